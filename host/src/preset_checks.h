#pragma once
/// @file  Whether a file of standards has the form and the numbers that combinations need. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "problems.h"

#include <nlohmann/json.hpp>

namespace ostrel::host {

/// Tells every field of a file of standards that is wrong: missing or unknown, of the wrong kind, a
/// factor out of its range, or the name of a set that the standard does not have. What passes
/// expands into combinations that a project may have.
void check_presets(const nlohmann::json& presets, Problems& problems);

}  // namespace ostrel::host
