#pragma once
/// @file  The files that every report is made from, carried in the program. Room: host
// SPDX-License-Identifier: Apache-2.0

#include <cstddef>
#include <string_view>

namespace ostrel::host {

/// What lies in `report/`, and plotly.js; the last two are empty in a build without figures.
struct ReportFiles {
  std::string_view page;
  std::string_view style;
  std::string_view script;
  std::string_view plotly;
  std::string_view plotly_licence;
};

const ReportFiles& report_files();

}  // namespace ostrel::host
