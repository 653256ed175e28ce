#pragma once
/// @file  The files that `ostrel run` writes. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"
#include "project.h"
#include "texts.h"

#include <string>
#include <vector>

namespace ostrel::host {

inline constexpr const char* figure_folder = "figures";

struct ResultFile {
  std::string name;  ///< beneath the folder of the results, with "/" before that of a figure
  std::string contents;
};

/// All results as JSON in the library's units ("result.json"), a CSV file for each table of
/// result_tables.h, and these tables together ("tables.json"). The names of what belongs to one
/// combination begin with its number. Then each figure as plotly draws it, its texts in one language,
/// in a folder of its own.
std::vector<ResultFile> result_files(const Project& project, const Job& job, const Outcome& outcome,
                                     Language language);

}  // namespace ostrel::host
