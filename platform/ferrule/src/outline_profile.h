#pragma once
/// @file  The widths of an outline along a direction and their integrals. Library: ferrule
// SPDX-License-Identifier: Apache-2.0
//
// Notation: a direction at the angle a, measured as that of a moment (Mx, My), has the level
// s = y cos a + x sin a along it and u = x cos a - y sin a across it. A strain plane whose gradient
// has this direction is constant along u. The depth z is counted from the lowest level of the
// outline, which is its most compressed fibre.
//
// Between neighbouring levels of vertices the width is linear in z, and the first moment of the
// chord about u = 0 is quadratic. Integrals of powers of z over the area are therefore polynomials
// there, and those up to the start of each such slab are kept: an integral up to any depth costs
// one search and a few products, and it is exact.

#include "ferrule/concrete_domain.h"

#include <array>
#include <span>
#include <vector>

namespace Ferrule::internal {

/// A direction in the plane of (Mx, My), which is also that of (d1, d2) of a strain plane.
struct Direction {
  double cosine = 1.0;
  double sine = 0.0;

  double level(Point p) const { return p.y * cosine + p.x * sine; }
  double across(Point p) const { return p.x * cosine - p.y * sine; }
};

class OutlineProfile {
public:
  /// @param outline      a simple polygon of at least three vertices
  /// @param orientation  1 when it is counter-clockwise, -1 when it is clockwise
  void build(std::span<const Point> outline, double orientation, Direction direction);

  double start() const { return start_; }    ///< level of the most compressed fibre [mm]
  double height() const { return height_; }  ///< extent along the direction [mm]

  /// ∫ z^p dA over the depths from 0 to `depth`, for p = 0, 1, 2, 3 [mm^(2 + p)].
  std::array<double, 4> area_moments(double depth) const;
  /// ∫ u z^p dA over the depths from 0 to `depth`, for p = 0, 1, 2 [mm^(3 + p)].
  std::array<double, 3> across_moments(double depth) const;

private:
  /// The strip between two neighbouring levels; t is the depth from its start.
  struct Slab {
    double width = 0.0;     ///< width at t = 0 [mm]
    double widening = 0.0;  ///< its growth with t [-]
    std::array<double, 3>
        chord{};  ///< first moment of the chord: chord[0] + chord[1] t + chord[2] t²
    std::array<double, 4> area_before{};
    std::array<double, 3> across_before{};
  };

  void collect_levels(std::span<const Point> outline, Direction direction);
  std::size_t level_of(double s) const;
  void add_edge(Point from, Point to, double orientation, Direction direction);
  void sum_up();
  std::size_t slab_at(double depth) const;
  std::array<double, 4> area_moments_in(std::size_t slab, double depth) const;
  std::array<double, 3> across_moments_in(std::size_t slab, double depth) const;

  double start_ = 0.0;
  double height_ = 0.0;
  double tolerance_ = 0.0;      ///< levels nearer to each other than this count as one [mm]
  std::vector<double> depths_;  ///< of the levels, ascending from 0 [mm]
  std::vector<Slab> slabs_;     ///< one fewer than levels
};

}  // namespace Ferrule::internal
