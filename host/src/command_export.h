#pragma once
/// @file  The command `ostrel export`. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "export_files.h"
#include "texts.h"

#include <iosfwd>
#include <string>

namespace ostrel::host {

struct ExportOptions {
  std::string project_file;
  std::string presets_file;  ///< standards; empty for those of the program
  ExportFiles files;
  Texts texts{Language::english};
};

/// Analyses a project and writes its results in the forms asked for. @return exit status
int export_project(const ExportOptions& options, std::ostream& out, std::ostream& err);

}  // namespace ostrel::host
