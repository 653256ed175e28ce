// SPDX-License-Identifier: Apache-2.0
#include "verdict_colours.h"

#include "terminal.h"

#include <array>
#include <sstream>
#include <string_view>
#include <utility>

namespace ostrel::host {

namespace {

// A verdict stands in the last column, two blanks behind the one before.
std::string coloured_line(const std::string& line, const Texts& texts) {
  const std::array<std::pair<Text, Colour>, 3> verdicts{{{Text::satisfied, Colour::green},
                                                         {Text::not_satisfied, Colour::red},
                                                         {Text::not_determined, Colour::yellow}}};
  for (const auto& [text, colour] : verdicts) {
    const std::string_view verdict = texts(text);
    if (!line.ends_with("  " + std::string(verdict))) continue;
    return line.substr(0, line.size() - verdict.size()) + coloured(verdict, colour);
  }
  return line;
}

}  // namespace

std::string with_coloured_verdicts(const std::string& text, const Texts& texts) {
  std::istringstream lines(text);
  std::string result;
  for (std::string line; std::getline(lines, line);) {
    result += coloured_line(line, texts) + "\n";
  }
  return result;
}

}  // namespace ostrel::host
