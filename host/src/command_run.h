#pragma once
/// @file  The command `ostrel run`. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "export_files.h"
#include "texts.h"

#include <iosfwd>
#include <optional>
#include <string>

namespace ostrel::host {

struct RunOptions {
  std::string project_file;
  std::string presets_file;  ///< standards; empty for those of the program
  std::string folder;        ///< for the files; empty for none
  std::string report_file;   ///< for the report; empty for none
  std::string results_file;  ///< to save the results in; empty for none
  ExportFiles exports;
  std::optional<double> fail_below;  ///< the factor that every verification has to reach
  bool verbose = false;              ///< also time and equilibrium
  bool quiet = false;                ///< nothing but errors
  Texts texts{Language::english};
};

/// Analyses a project, prints its tables and messages and writes its files. @return exit status
int run_project(const RunOptions& options, std::ostream& out, std::ostream& err);

}  // namespace ostrel::host
