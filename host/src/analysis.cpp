// SPDX-License-Identifier: Apache-2.0
#include "analysis.h"

#include <ostrel/solver.h>

#include <cstddef>
#include <utility>

namespace ostrel::host {

Outcome analyse(const Job& job) {
  xSolver solver;
  solver.data = job.data;
  solver.femOptions = job.fem;
  Outcome outcome;
  outcome.verdict =
      solver.solve(outcome.results, outcome.ultimate, outcome.serviceability, outcome.messages);
  const std::size_t combinations = solver.data.loadCombs.size();
  outcome.verified = outcome.verdict != veldError
                  || (combinations > 0 && outcome.results.combResults.size() == combinations);
  outcome.model = std::move(solver.model);
  return outcome;
}

// A result carries the number of its combination, from 1 up.
const xCombResults* result_of(const Outcome& outcome, std::size_t place) {
  for (const xCombResults& result : outcome.results.combResults) {
    if (result.getcombIndex() == static_cast<int>(place) + 1) return &result;
  }
  return nullptr;
}

const std::vector<xSlopeStability>& slope_results(const Outcome& outcome) {
  return outcome.ultimate.slopeStabilityDesign.getResults();
}

}  // namespace ostrel::host
