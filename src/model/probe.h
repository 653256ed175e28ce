#pragma once
/// @file  Where a straight probe through the ground crosses the sides of polygons. Room: model
// SPDX-License-Identifier: Apache-2.0
//
// Notation: the probe goes from P to Q and a side from A to B; t runs along the probe from 0 at P
// to 1 at Q, u along the side from 0 at A to 1 at B. All coordinates are x, y of the plane [mm].

#include <armadillo>

#include <optional>
#include <vector>

namespace ostrel::model {

using Point = arma::Col<double>::fixed<2>;
using Polygon = std::vector<Point>;

/// A straight line between two points of the plane [mm].
struct Segment {
  Point from;
  Point to;
};

/// A point of the probe and the side of a polygon that it lies on.
struct Crossing {
  Point point;   ///< where they cross [mm]
  Segment side;  ///< from A to B
};

/// True when the directions differ by less than 1e-8 in the absolute cosine, or when one of both
/// is shorter than 1e-8 mm.
bool parallel(const Segment& probe, const Segment& side);

/// The crossing of a probe and a side that are not parallel; t and u may lie outside of [0, 1) by
/// 1e-8. Nothing for coordinates that are no numbers.
///
/// The point is the side's own, A + u (B - A): a level side gives its elevation unrounded, which a
/// point reckoned along a probe of 20 km would miss by 1e-9 mm.
std::optional<Crossing> crossing(const Segment& probe, const Segment& side);

/// All crossings of the probe with the stored sides of the polygons, in the order of the probe. Of
/// crossings nearer than 1e-4 mm to the one kept before them only that one is kept. A polygon is
/// not closed here: a side from the last vertex to the first counts only if it is stored.
std::vector<Crossing> probe_crossings(const Segment& probe, const std::vector<Polygon>& polygons);

}  // namespace ostrel::model
