#pragma once
/// @file  The folder with the files of a run. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"
#include "project.h"
#include "texts.h"

#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace ostrel::host {

/// What could not be written, and why.
struct WriteFailure {
  std::string file;
  std::error_code error;
};

/// Makes the folder of the results and tries to write there.
std::error_code prepare_results(const std::string& folder);

struct WrittenFolder {
  std::optional<WriteFailure> failure;
  std::vector<std::string> strangers;  ///< other tables and figures there, by name
};

/// Writes all files of a run, each whole or not at all. The folder is made where it is missing. What
/// else lies there, as the files of a run with more combinations, is left as it is and named, so that
/// nobody takes it for a part of this run.
WrittenFolder write_results(const std::string& folder, const Project& project, const Job& job,
                            const Outcome& outcome, Language language);

/// A warning of strangers in a folder; empty where there are none.
std::string strangers_warning(const std::string& folder, const std::vector<std::string>& strangers,
                              const Texts& texts);

}  // namespace ostrel::host
