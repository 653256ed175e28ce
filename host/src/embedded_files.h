#pragma once
/// @file  Files that the program carries within itself. Room: host
// SPDX-License-Identifier: Apache-2.0

#include <string_view>
#include <vector>

namespace ostrel::host {

/// The contents of a file by its name, as "project.schema.json"; empty for a name that is none.
std::string_view embedded_file(std::string_view name);

/// The names, in alphabetical order.
std::vector<std::string_view> embedded_files();

}  // namespace ostrel::host
