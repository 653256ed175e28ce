#pragma once
/// @file  An outline cut by a circle, and the cut ground within one. Room: slope
// SPDX-License-Identifier: Apache-2.0

#include "slope/place.h"
#include "slope/stripes.h"

#include <cstddef>
#include <span>
#include <vector>

namespace ostrel::slope {

using OutlineView = std::span<const Place>;

/// Crossings with a circle nearer in x than this are one [mm].
inline constexpr double crossing_tolerance = 1e-4;

/// Whether a point lies on the segment from `a` to `b`.
///
/// @param eps      how near is on it, relative to the length of the segment; a segment shorter than
///   `eps` [mm] holds what is as near to `a` in x
/// @param at_ends  the answer for the two ends
/// @param position receives where on the segment, 0 at `a` and 1 at `b`, once the point lies
///   between the ends or by them; may be null
bool pointOnSegment(Place point, Place a, Place b, double eps, bool at_ends, double* position);

/// The same, and false for a plumb segment.
bool pointOnSegmentNoVertical(Place point, Place a, Place b, double eps, bool at_ends,
                              double* position);

/// Appends the points, none to two, where the segment from `p1` to `p2` meets a circle.
/// @param tol  how far beyond an end, in parts of the segment, still counts as that end
void segCircleIntersect(Place p1, Place p2, Place center, double radius, double tol,
                        std::vector<Place>& points);

/// Appends the points where the sides of an outline meet a circle, side by side.
/// @return whether `points` holds any
bool circlePolyIntersections(OutlineView outline, Place center, double radius,
                             std::vector<Place>& points, double tol);

/// Sorts crossings by x and drops those that are one with the crossing before them.
/// @return false without any crossing, and if one lies above the centre; all are kept then
bool filterIntersections(double tol, Place center, const std::vector<Place>& crossings,
                         std::vector<Place>& filtered);

/// The difference of squares beyond which a vertex lies on its side of the circle for sure, and a
/// circle that passes between two vertices does so away from both of them [mm²].
double clear_of_circle(double radius, double tol);

/// What a circle leaves of an outline.
enum class CutKind {
  none,          ///< nothing
  whole,         ///< all of it
  part,          ///< what the buffers hold
  above_centre,  ///< the circle meets the outline above its centre
};

/// Working lists, which keep their memory from one cut to the next.
struct CutBuffers {
  std::vector<Place> crossings;
  std::vector<std::size_t> sides;  ///< on which side each crossing lies; kept in a hurry only
  std::vector<double> excess;  ///< of each vertex, likewise: its distance² less radius² [mm²]
  std::vector<Place> border;   ///< crossings and what lies between them, from left to right
  Outline part;                ///< what the circle leaves
  Place chord_mid;             ///< middle of the chord in place of the arc
  double chord_length = 0.0;   ///< [mm]
};

/// Cuts an outline that begins at its highest vertex and runs counter-clockwise.
///
/// @oddity The chord joins the two leftmost crossings, whether the arc runs between them or not;
/// further crossings only become vertices. Stored results depend on it.
///
/// @param centroid  decides where the circle meets the outline in one point or none
/// @param tol       as for `segCircleIntersect`
/// @param hurry     sides and vertices that a few multiplications settle are passed over. It gives
///   the same result, but only for outlines within 1e6 mm of the origin whose sides all measure from
///   1 mm to 1e5 mm
CutKind cut_by_circle(OutlineView outline, Place centroid, Place center, double radius, double tol,
                      bool hurry, CutBuffers& buffers);

/// The pieces of the cut ground within a circle, stripe by stripe; stripes without any are left out.
/// Pieces that lie inside whole are shared with `stripes`.
/// @return false if the circle meets the ground above its centre
bool intersectStripes(const Vector2& center, double radius, const Stripes& stripes,
                      Stripes& result);

}  // namespace ostrel::slope
