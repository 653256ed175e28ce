#pragma once
/// @file  Ultimate strain planes along one direction, tension to compression. Library: ferrule
// SPDX-License-Identifier: Apache-2.0
//
// Planes along a direction are points (slope, top). Each limit is a line there, and the planes
// within all limits lie between an upper line chain (bars in tension) and a lower one (concrete).
// The ultimate planes are these chains, walked from the uniform tension of slope 0 along the upper
// chain to where the two meet, and back along the lower one to the uniform compression of slope 0.
// For one material they are the three pivots: the farthest bar at its limit, the extreme fibre at
// the ultimate strain, the fibre at the fixed depth at the peak strain.
//
// The axial force falls along the way. There is one exception: where bars do not yet yield at the
// peak strain, turning about the fibre at the fixed depth may shorten the bars beside the top by
// more than it relieves those far from it. Then the force falls below that of uniform compression
// on the last stretch, and reaches it from below.

#include "bracketed_root.h"
#include "directed_section.h"

#include <optional>
#include <vector>

namespace Ferrule::internal {

class UltimatePath {
public:
  /// @param section  with limits on the concrete at least
  void build(const DirectedSection& section);

  double largest_axial() const { return legs_.front().axial_from; }     ///< uniform tension [N]
  double uniform_compression() const { return legs_.back().axial_to; }  ///< [N]

  /// Which of two planes with the same axial force.
  enum class Choice { steeper, flatter };

  /// The ultimate plane with the axial force `axial` [N]. Beyond uniform tension that of uniform
  /// tension; nothing where no plane has the force, nor for the flatter one where there is but one.
  std::optional<Plane> plane_with(const DirectedSection& section, double axial,
                                  Choice choice = Choice::steeper) const;

private:
  /// A stretch on which the plane turns about one fibre, or, where both slopes are the same, lifts
  /// off it by `lift`. `part` runs from 0 to 1 along a leg.
  struct Leg {
    StrainLimit pivot;
    double slope_from = 0.0;
    double slope_to = 0.0;
    double lift = 0.0;
    double axial_from = 0.0;
    double axial_to = 0.0;

    Plane plane(double part) const;
    Plane change(double part) const;
    Sample axial(const DirectedSection& section, double part) const;
  };

  double walk_stretch_limits(const DirectedSection& section);
  void walk_crush_limits(const DirectedSection& section, double steepest);
  void add_crush_leg(const StrainLimit& pivot, double from, double to, double depth);
  std::optional<Plane> beyond_uniform_compression(const DirectedSection& section, double axial,
                                                  Choice choice) const;

  std::vector<Leg> legs_;
};

/// How far a plane is within the limits: the largest ratio of a strain to its limit, 1 on the
/// ultimate planes and less within.
double utilisation(const DirectedSection& section, Plane plane);

}  // namespace Ferrule::internal
