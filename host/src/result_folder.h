#pragma once
/// @file  The folder with the files of a run. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"
#include "project.h"
#include "texts.h"

#include <optional>
#include <string>
#include <system_error>

namespace ostrel::host {

/// What could not be written, and why.
struct WriteFailure {
  std::string file;
  std::error_code error;
};

/// Makes the folder of the results and tries to write there.
std::error_code prepare_results(const std::string& folder);

/// Writes all files of a run, each whole or not at all. The folder is made where it is missing.
std::optional<WriteFailure> write_results(const std::string& folder, const Project& project,
                                          const Job& job, const Outcome& outcome,
                                          Language language);

}  // namespace ostrel::host
