#pragma once
/// @file  The files that `ostrel run` writes. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"
#include "project.h"

#include <string>
#include <vector>

namespace ostrel::host {

struct ResultFile {
  std::string name;  ///< without a folder
  std::string contents;
};

/// All results as JSON in the library's units ("result.json"), the largest values of every
/// combination ("summary.csv"), and three tables for each combination in engineering units: along
/// the wall, of the springs, and of the pressures. Their names begin with the combination's number.
std::vector<ResultFile> result_files(const Project& project, const Job& job,
                                     const Outcome& outcome);

}  // namespace ostrel::host
