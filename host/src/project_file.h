#pragma once
/// @file  Reads project files. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "problems.h"
#include "project.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace ostrel::host {

/// What a reading takes besides the file.
struct ProjectReading {
  const nlohmann::json* presets =
      nullptr;                             ///< standards; those of the program where there are none
  std::set<std::string>* asked = nullptr;  ///< gathers the paths of all fields looked for
  bool by_schema = true;                   ///< also; a file that has passed needs it no more
};

/// Reads a project and looks at each field by itself and at all of them together. Whatever is wrong
/// is told, all of it; then nothing is returned. What is only odd is remarked upon.
/// The combinations of a standard that the project names are added to its own.
std::optional<Project> read_project(std::string_view text, Problems& problems,
                                    const ProjectReading& reading = {});

}  // namespace ostrel::host
