#pragma once
/// @file  Whether a governing slip circle lies on the border of its search. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "project.h"
#include "texts.h"

#include <ostrel/slope_stability.h>

#include <cstdint>
#include <string>
#include <vector>

namespace ostrel::host {

enum class CircleSide : std::int32_t {
  left,      ///< no centre further in front of the wall
  right,     ///< none further behind it
  low,       ///< none below
  high,      ///< none above
  smallest,  ///< the smallest radius tried at its centre
  largest    ///< the largest
};

/// A border of the search, and the field of the project that would move it.
struct CircleBorder {
  CircleSide side = CircleSide::left;
  std::string field;
  double reached_m = 0.0;  ///< what the field reaches now
};

/// The borders on which a circle lies; empty for one that the search did not try.
///
/// Not counted is what nothing can lie beyond: the lowest centres where half a spacing further down
/// the circle would meet ground above its centre, or pass below the level of the head; and the
/// smallest radius where the circle passes less than half a step of radii below the foot, since a
/// smaller one cuts the wall. A search that ends at the edge of the ground names the ground.
std::vector<CircleBorder> borders_of(const Project& project, double x_m, double y_m,
                                     double radius_m);

/// A sentence for each set of borders on which governing circles lie, with the names of their
/// combinations and what to change. A combination without a governing circle has none.
std::vector<std::string> border_warnings(const Project& project,
                                         const xSlopeStabilityDesign& design, const Texts& texts);

}  // namespace ostrel::host
