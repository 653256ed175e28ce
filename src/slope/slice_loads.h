#pragma once
/// @file  Loads of a combination as the slices of a circle feel them. Room: slope
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/load_combination.h"
#include "ostrel/load_condition.h"
#include "ostrel/slip_circle.h"
#include "slope/place.h"

#include <array>
#include <vector>

namespace ostrel::slope {

/// A load on the ground with the two factors of its action.
struct GroundLoad {
  enum class Kind { uniform, strip, line, point };

  Kind kind = Kind::uniform;
  double position = 0.0;           ///< of the nearer edge or of the load [mm]
  double extension = 0.0;          ///< of a strip [mm]
  double start = 0.0;              ///< value [N/mm²], of a line [N/mm], of a point [N]
  double end = 0.0;                ///< value of a strip at its farther edge [N/mm²]
  std::array<double, 2> factor{};  ///< by `actType` [-]
};

/// The four sums of loads on one stripe [N].
struct StripeLoads {
  double uniform = 0.0;
  double strip = 0.0;
  double line = 0.0;
  double point = 0.0;

  double total() const { return uniform + strip + line + point; }
  bool present() const;  ///< whether the total counts for a load
};

/// The loads on the ground of all active load conditions, in their order. An action without a
/// condition has no loads, and a condition without an action does not act.
std::vector<GroundLoad> ground_loads(const std::vector<xLoadCond>& conds, const xLoadComb& comb);

/// Whether loads on the ground reach a stripe at all: not one that lies on the excavated side.
inline bool takes_ground_loads(double base_mid_x, double width) {
  return base_mid_x + 0.5 * width > 0.0;
}

/// The loads on a stripe. A load by the position of its line acts on the stripe that begins there,
/// not on the one that ends there.
///
/// @oddity A point load acts whole on each of its slices, while all other loads are multiplied by
/// the spacing. Stored results depend on it.
///
/// @param base_mid_x  middle of the stripe's base [mm]
/// @param width       of the stripe [mm]
/// @param spacing     extent of the slice along the wall [mm]
StripeLoads loads_on_stripe(const std::vector<GroundLoad>& loads, double base_mid_x, double width,
                            double spacing, actType act);

/// Notes the sums in a piece. @return their total [N]
double note_loads(const StripeLoads& loads, actType act, xClipData& clip);

/// A load on the wall with the two factors of its action: a force at a place, or a moment.
struct WallLoad {
  bool is_moment = false;
  Place at;                        ///< of the force (x, y) [mm]
  Place force;                     ///< (x, y) [N]
  double moment = 0.0;             ///< [N mm]
  std::array<double, 2> factor{};  ///< by `actType` [-]
};

/// The loads on the wall of all active load conditions; those per mm of wall times the spacing.
std::vector<WallLoad> wall_loads(const std::vector<xLoadCond>& conds, const xLoadComb& comb,
                                 double spacing);

/// Adds the moments about a centre [N mm].
///
/// @oddity A moment against the sense of the stabilising ones is added without its sign to
/// `destab`, which the sums then subtract from the destabilising moment. Stored results depend on
/// it.
void add_wall_moments(const std::vector<WallLoad>& loads, Place center, double& stab,
                      double& destab);

}  // namespace ostrel::slope
