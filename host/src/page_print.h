#pragma once
/// @file  Prints a page through a browser that is installed. Room: host
// SPDX-License-Identifier: Apache-2.0

#include <cstdint>
#include <string>

namespace ostrel::host {

/// The first browser in PATH that can print without a window, with its folder; empty for none.
std::string found_browser();

/// The names that are looked for, as a list for people.
std::string browser_names();

enum class PrintProblem : std::int32_t { none, failed, too_slow };

/// The bytes of a PDF, or why there are none.
struct Print {
  std::string bytes;
  PrintProblem problem = PrintProblem::none;
};

/// Prints an HTML page. The browser gets a profile and a folder of its own, which go with it, and is
/// ended with all that it started when its time is up.
Print print_page(const std::string& browser, const std::string& html, int seconds);

}  // namespace ostrel::host
