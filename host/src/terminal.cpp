// SPDX-License-Identifier: Apache-2.0
#include "terminal.h"

#include <fmt/format.h>

#include <cstdlib>
#include <iostream>
#include <unistd.h>

namespace ostrel::host {

namespace {

std::string_view environment(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

}  // namespace

bool is_terminal(const std::ostream& stream) {
  if (&stream == &std::cout) return isatty(STDOUT_FILENO) == 1;
  return &stream == &std::cerr && isatty(STDERR_FILENO) == 1;
}

bool wants_colour(const std::ostream& stream) {
  const std::string_view kind = environment("TERM");
  return environment("NO_COLOR").empty() && !kind.empty() && kind != "dumb" && is_terminal(stream);
}

std::string coloured(std::string_view text, Colour colour) {
  constexpr int first_code = 31;  // red, green, yellow stand in this order
  return fmt::format("\x1b[{}m{}\x1b[0m", first_code + static_cast<int>(colour), text);
}

}  // namespace ostrel::host
