#pragma once
/// @file  The command `ostrel report`, and the report of a run. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"
#include "export_files.h"
#include "project.h"
#include "texts.h"

#include <iosfwd>
#include <string>

namespace ostrel::host {

struct ReportOptions {
  std::string project_file;
  std::string presets_file;  ///< standards; empty for those of the program
  std::string report_file;
  ExportFiles exports;
  Texts texts{Language::english};  ///< also the language in which the report opens
};

/// Analyses a project and writes its report. @return exit status
int report_project(const ReportOptions& options, std::ostream& out, std::ostream& err);

/// Whether the report can be written, tried before the analysis; tells where not. An empty name
/// asks for no report.
bool may_write_report(const std::string& file, const Texts& texts, std::ostream& err);

/// Writes the report, or nothing for an empty name. @return false where it could not be written
bool write_report(const std::string& file, const Project& project, const Job& job,
                  const Outcome& outcome, const Texts& texts, std::ostream& out, std::ostream& err);

}  // namespace ostrel::host
