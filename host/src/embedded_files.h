#pragma once
/// @file  Files that the program carries within itself. Room: host
// SPDX-License-Identifier: Apache-2.0

#include <string_view>

namespace ostrel::host {

/// The contents of a file by its name, as "project.schema.json"; empty for a name that is none.
/// "plotly.js" and "plotly.licence" are none in a build without figures.
std::string_view embedded_file(std::string_view name);

}  // namespace ostrel::host
