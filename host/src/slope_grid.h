#pragma once
/// @file  Grids of slip circles, drawn or chosen from the geometry. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "project.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace ostrel::host {

/// The rectangle around all ground, as coordinates [m].
struct GroundBox {
  double left = 0.0;
  double right = 0.0;
  double bottom = 0.0;
  double top = 0.0;
};

/// The rectangle around the ground of a project; nothing where it has no layers or no vertices.
std::optional<GroundBox> ground_box(const GroundInput& ground);

/// A regular grid of centres, from the first to the second of each pair.
struct CentreBox {
  std::array<double, 2> x_m{};
  std::array<double, 2> y_m{};
  double spacing_m = 0.0;
};

/// Which circles are tried around each centre of a box.
struct CircleRange {
  enum class Kind : std::int32_t {
    tangent_levels,  ///< the lowest points lie between two elevations
    radii,           ///< the radii lie between two lengths
    below_foot       ///< on the wall's line the circles pass between two depths below the foot
  };
  Kind kind = Kind::tangent_levels;
  std::array<double, 2> span_m{};
};

/// Centres of a box; not a number for a spacing that is not above 0.
double number_of_centres(const CentreBox& box);

/// The centres of a box, along x first from the lower left, each with its radii.
/// @param length_m  of the wall, whose foot circles may pass below
std::vector<SlopeCentreInput> centres_of(const CentreBox& box, const CircleRange& range,
                                         double length_m);

/// The largest radius that is tried: the range is cut into whole steps, and its end is left out.
double last_radius(const SlopeCentreInput& centre, double step_m);

/// @name What is tried where the file says nothing
///
/// Circles through the foot of the wall and below it, to half the wall's length, around centres from
/// 0.8 of the length in front of the wall to 0.4 behind it and from 0.02 above the ground at the wall
/// to 1.22 above the highest ground: the worst circles beside a vertical wall come up steeply, with a
/// low centre. Circles that leave the ground sideways or below are left out, since what lies outside
/// of it has no weight and no strength, and so are those that ground behind meets above their
/// centre, which the search passes over.
///@{
double default_stripe_width_m(const Project& project);
double default_radius_step_m(const Project& project);
CentreBox default_box(const Project& project);
std::vector<SlopeCentreInput> default_centres(const Project& project);
///@}

/// Where the ground behind the wall first is above a level: x [m], infinite for nowhere.
double rise_behind(const GroundInput& ground, double level_m);

enum class GroundEdge : std::int32_t { front, back, bottom };

/// How large a circle may be, and which edge of the ground bounds it.
struct GroundReach {
  double radius_m = 0.0;
  GroundEdge edge = GroundEdge::bottom;
};

/// The largest circle around a centre that stays within the ground: it comes up on the excavation
/// in front or at the highest ground behind, or it touches the bottom.
GroundReach reach_within(const SlopeCentreInput& centre, const GroundBox& ground,
                         double excavation_depth_m);

}  // namespace ostrel::host
