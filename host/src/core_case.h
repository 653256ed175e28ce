#pragma once
/// @file  Reads an input tree in the library's own units. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// The form is the tree of `xSheetpilingData` as JSON: millimetres, newtons, radians, enumerations by
// their numbers. It is for exchange with other programs and for regression tests, so nothing is
// checked but the form: the analysis itself answers for values without sense.

#include "analysis.h"
#include "problems.h"

#include <optional>
#include <string_view>

namespace ostrel::host {

/// Reads a case; nothing where the text is wrong. Unknown fields are remarked upon.
std::optional<Job> read_core_case(std::string_view text, Problems& problems);

}  // namespace ostrel::host
