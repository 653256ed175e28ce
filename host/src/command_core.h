#pragma once
/// @file  The command `ostrel core`. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "texts.h"

#include <iosfwd>
#include <string>

namespace ostrel::host {

struct CoreOptions {
  std::string case_file;
  std::string result_file;  ///< empty for standard output
  Texts texts{Language::italian};
};

/// Analyses a case in the library's own units and writes all its results. @return exit status
int run_core(const CoreOptions& options, std::ostream& out, std::ostream& err);

}  // namespace ostrel::host
