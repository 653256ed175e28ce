#pragma once
/// @file  A project from its file, with messages about all that is wrong or odd. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "project.h"
#include "texts.h"

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>

namespace ostrel::host {

/// Where a project comes from.
struct ProjectSource {
  std::string project_file;
  std::string presets_file;  ///< standards; empty for those of the program
};

struct LoadedProject {
  std::optional<Project> project;  ///< nothing where there are errors
  std::size_t errors = 0;
  std::size_t warnings = 0;
};

/// Reads and checks a project. @param err  gets every error and every remark
LoadedProject load_project(const ProjectSource& source, const Texts& texts, std::ostream& err);

/// The text of a project with the combinations of its standard written out; nothing on failure.
/// @param err  gets every error and remark, and the notes on the standard
std::optional<std::string> expanded_project(const ProjectSource& source, const Texts& texts,
                                            std::ostream& err);

}  // namespace ostrel::host
