#pragma once
/// @file  The pile wall of an input tree. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/sheetpiling_data.h"

namespace ostrel::model {

/// Inclination of the back of a row of piles [rad].
inline constexpr double vertical_back = 0.0;

/// The wall of `data` as the row of piles that the analysis knows; null when the wall is absent or
/// of another class.
inline const xPile_Sheetpiling* pile_wall(const xSheetpilingData& data) {
  return dynamic_cast<const xPile_Sheetpiling*>(data.props.get());
}

}  // namespace ostrel::model
