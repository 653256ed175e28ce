// SPDX-License-Identifier: Apache-2.0
#include "command_line.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
  try {
    return ostrel::host::run_program({argv + 1, argv + argc}, std::cout, std::cerr);
  } catch (const std::exception& error) {
    std::cerr << "ostrel: " << error.what() << "\n";
    return ostrel::host::exit_analysis_failed;
  }
}
