#pragma once
/// @file  An outline cut by a circle in the common case, without asking twice. Room: slope
// SPDX-License-Identifier: Apache-2.0

#include "slope/circle_cut.h"
#include "slope/place.h"

#include <array>
#include <cstddef>

namespace ostrel::slope {

/// Outlines with more vertices than this, the repeated one counted, are never clean.
inline constexpr std::size_t most_clean_vertices = 16;

/// Whether sides that do not meet stay more than 0.01 mm apart, and those that do meet at no needle's
/// point. A place well within a side then lies on no other one, and no two vertices are one.
///
/// @param outline  with regular sides, as `cut_by_circle` asks of an outline that it cuts in a hurry
bool is_clean(OutlineView outline);

/// What a circle leaves of a clean outline.
struct CleanCut {
  OutlineView part() const { return {vertices.data(), size}; }

  std::array<Place, most_clean_vertices + 3> vertices;
  std::size_t size = 0;
  Place chord_mid;
  double chord_length = 0.0;                         ///< [mm]
  std::array<double, most_clean_vertices> excess{};  ///< of each vertex, as in `CutBuffers` [mm²]
};

/// A circle, and the difference of squares beyond which a vertex is more than a millimetre off it.
struct Rim {
  Place center;
  double radius = 0.0;  ///< [mm]
  double clear = 0.0;   ///< [mm²]
};

Rim rim_of(Place center, double radius, double tol);

/// Cuts a clean outline whose sides meet the circle in none or in two points, all well off the
/// vertices. The result is that of `cut_by_circle` to the last bit.
///
/// @param kind  receives what is left
/// @return false where the case is another one; nothing is settled then
bool cut_cleanly(OutlineView outline, Place centroid, const Rim& rim, CutKind& kind, CleanCut& cut);

}  // namespace ostrel::slope
