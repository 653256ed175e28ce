#pragma once
/// @file  What the cap beam carries in a combination. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/fem_load.h"

#include <string>
#include <vector>

namespace ostrel::structural {

/// The load of the beam in one combination. A new one carries nothing.
struct CapBeamLoad {
  double q = 0.0;  ///< distributed [N/mm]
  double P = 0.0;  ///< at midspan [N]
  int comb_index = 0;
  std::string comb_name;
};

/// Bending moment at midspan of a simply supported beam [N mm]: q L² / 8 + P L / 4.
/// @param L  span [mm]
double midspan_moment(const CapBeamLoad& load, double L);

/// Shear at its supports [N]: q L / 2 + P / 2.
double support_shear(const CapBeamLoad& load, double L);

/// The reaction at the head of a wall that rests on the head and on the level `ref` alone [N]:
///
///     |sum of (ref - pos) F| / ref
///
/// @param applied  total loads of the wall; `pos` is the depth [mm], `data.y` the force across [N]
/// @param ref      depth of the lower support, positive [mm]
double head_reaction(const std::vector<xFemNodeData_pos>& applied, double ref);

}  // namespace ostrel::structural
