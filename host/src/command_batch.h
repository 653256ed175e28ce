#pragma once
/// @file  The command `ostrel batch`. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "texts.h"

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace ostrel::host {

/// Exit status after SIGINT, as shells count it.
inline constexpr int exit_interrupted = 130;

struct BatchOptions {
  std::vector<std::string> project_files;
  std::string presets_file;          ///< standards; empty for those of the program
  std::size_t threads = 0;           ///< 0 for as many as the machine has
  std::string folder;                ///< for a folder of results of each; empty for none
  std::string progress = "auto";     ///< or none, plain, json
  std::optional<double> fail_below;  ///< the factor that every verification has to reach
  Texts texts{Language::english};
};

/// Analyses many projects at a time and prints a table of what came of them. A project that fails
/// stops none of the others; the first SIGINT lets those under way end and starts no more.
/// @return 0, 1 where a project failed, 2 where the folder cannot be made, 130 after SIGINT
int run_batch(const BatchOptions& options, std::ostream& out, std::ostream& err);

/// A folder for each project, named after its file without what follows the last point. No two are
/// the same, not even where capitals do not count: later ones get "-2", "-3".
std::vector<std::string> folder_names(const std::vector<std::string>& project_files);

}  // namespace ostrel::host
