#pragma once
/// @file  Numbers of a project that are possible but lie outside of what is usual. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// A slip of the unit by a thousand, or of the decimal point, gives a number that the reader cannot
// refuse: somewhere there may be such a wall. The ranges are wide; each row of the table says where
// its range comes from.

#include "problems.h"

#include <nlohmann/json.hpp>

#include <string_view>
#include <vector>

namespace ostrel::host {

/// Where numbers of one kind stand, and between which limits most of them lie.
struct UsualRange {
  /// Path of a field, as "soils[].cohesion_kPa": "[]" is any entry of a list, "*" any field.
  std::string_view field;
  double least;
  double most;
  bool or_zero = false;  ///< 0 is usual too: it stands for none
};

const std::vector<UsualRange>& usual_ranges();

/// Remarks upon every number outside of its usual range, by its size without the sign, with that
/// range. A number in a list stands for its field. What the reader has refused is not told again.
void remark_upon_unusual_numbers(const nlohmann::json& project, Problems& problems);

}  // namespace ostrel::host
