// SPDX-License-Identifier: Apache-2.0
#include "command_line.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
  using namespace ostrel::host;
  try {
    const int status = run_program({argv + 1, argv + argc}, std::cout, std::cerr);
    if (std::cout.flush()) return status;
    std::cerr << "ostrel: standard output cannot be written\n";
    return exit_bad_input;
  } catch (const std::exception& error) {
    std::cerr << "ostrel: " << error.what() << "\n";
    return exit_analysis_failed;
  }
}
