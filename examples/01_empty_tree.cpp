// SPDX-License-Identifier: Apache-2.0
// The smallest run: an input tree with nothing in it.
//
//   1. Choose the language of the messages.
//   2. Make a solver. Its `data` is the input tree; here it stays as it was made, without a wall.
//   3. Call `solve`. It returns the severity and appends a message for whatever went wrong.
//
// Without a wall there is nothing to analyse: the severity is 3, and one message says why.
#include <ostrel/error.h>
#include <ostrel/language.h>
#include <ostrel/solver.h>

#include <iostream>
#include <string>
#include <vector>

namespace {

void run_without_a_wall(const std::string& language) {
  if (!ostrel::set_language(language)) std::cout << "No catalogue for " << language << '\n';

  xSolver solver;
  xSheetpilingRes results;
  xUltimateLimitStates ultimate;
  xServiceabilityLimitStates serviceability;
  std::vector<xVeldError> messages;
  const xVeldErrorsType severity = solver.solve(results, ultimate, serviceability, messages);

  std::cout << language << ": severity " << severity << ", worst message "
            << xVeldError::getWorstErr(messages) << '\n';
  for (const xVeldError& message : messages) {
    std::cout << "  " << message.MakeErrStr() << " (code " << message.getID() << ", object "
              << message.getIdObj() << ")\n";
  }
}

}  // namespace

int main() {
  run_without_a_wall("it");
  run_without_a_wall("en");
}
