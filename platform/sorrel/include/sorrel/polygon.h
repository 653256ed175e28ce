#pragma once
/// @file  What a single polygon of the plane answers. Library: sorrel
// SPDX-License-Identifier: Apache-2.0

#include "sorrel/export.h"

#include <armadillo>

#include <cstdint>
#include <vector>

namespace sorrel {

/// A point of the plane: x to the right, y up [mm].
using Point = arma::Col<double>::fixed<2>;

/// A polygon: its vertices in the order of the outline, closed by repeating the first one. The
/// operations take it stored closed or not, and either way round.
///
/// Two kinds of polygon cover no ground, and every operation says what it answers for them: a
/// polygon with fewer than three vertices, and a polygon with a coordinate that is not a number or
/// lies beyond 1e15 mm. A self-crossing outline covers every place that it winds round, however
/// often and whichever way; a slit that leads to a void running the other way leaves it a void.
using Polygon = std::vector<Point>;

}  // namespace sorrel

/// Area of a polygon, half the sum of the cross products of neighbouring vertices.
///
/// @return area, never negative [mm²]; 0 for a polygon that covers no ground. Of an outline that
///   crosses itself the parts that run clockwise count against the others.
SORREL_API double polyArea(const sorrel::Polygon& polygon);

/// Centroid of a polygon's area.
///
/// @param polygon     where the area is wanted of
/// @param baricenter  receives the centroid, a point within the bounding box [mm]. Without an area
///   to speak of, and for an outline crossing itself whose parts outweigh each other, it is the
///   middle of the outline, every side weighted with its length; for a polygon with a coordinate
///   that is no place it is (0, 0), as it is for one without vertices.
SORREL_API void polyBaricenter(const sorrel::Polygon& polygon, sorrel::Point& baricenter);

/// The smallest upright rectangle around a polygon.
///
/// @param polygon  at least one vertex; both corners are (0, 0) for none, and for a polygon with a
///   coordinate that is no place
/// @param min      receives the lower left corner [mm]
/// @param max      receives the upper right corner [mm]
SORREL_API void polyBBox(const sorrel::Polygon& polygon, sorrel::Point& min, sorrel::Point& max);

/// Whether a point lies in a polygon or on its outline. What two neighbours share belongs to both,
/// so that no place between them is nobody's. Decided without rounding errors.
///
/// @return false for a polygon that covers no ground
SORREL_API bool pointInPolygon(const sorrel::Point& point, const sorrel::Polygon& polygon);

/// Draws a point inside a polygon, off its outline wherever doubles allow.
///
/// @param polygon  to draw in
/// @param point    receives the point [mm]; left alone where there is none
/// @param seed     the same polygon and seed give the same point at every run and on every machine
/// @return false for a polygon that covers no ground
SORREL_API bool randomPointInsidepoly(const sorrel::Polygon& polygon, sorrel::Point& point,
                                      std::uint64_t seed = 0);

/// Removes every vertex that lies closer than `tol` to the one kept before it, round the outline.
///
/// The first vertex stays where it is. What is left is closed; a polygon that shrinks to one place
/// is that place twice. A second call changes nothing.
///
/// @param polygon  closed in any case afterwards, unless it is empty
/// @param tol      smallest distance of neighbours [mm]; not positive or not a number removes nothing
SORREL_API void mergeCoincidentVertices(sorrel::Polygon& polygon, double tol);
