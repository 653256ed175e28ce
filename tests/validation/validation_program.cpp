// SPDX-License-Identifier: Apache-2.0
//
// Runs the published cases and writes the page on them to the standard output.
#include "validation/chapters.h"
#include "validation/validation_page.h"

#include <cstdlib>
#include <exception>
#include <iostream>

int main() {
  try {
    std::cout << ostrel::validation::validation_page(ostrel::validation::all_chapters());
  } catch (const std::exception& error) {
    std::cerr << "ostrel_validation: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
  return std::cout.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
