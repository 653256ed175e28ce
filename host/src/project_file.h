#pragma once
/// @file  Reads project files. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "problems.h"
#include "project.h"

#include <optional>
#include <string_view>

namespace ostrel::host {

/// Reads a project and looks at each field by itself and at all of them together. Whatever is wrong
/// is told, all of it; then nothing is returned. What is only odd is remarked upon.
std::optional<Project> read_project(std::string_view text, Problems& problems);

}  // namespace ostrel::host
