#pragma once
/// @file  Where a straight segment crosses polygons. Library: sorrel
// SPDX-License-Identifier: Apache-2.0

#include "sorrel/export.h"
#include "sorrel/polygon.h"

#include <vector>

/// The points where the segment from `from` to `to` crosses the sides of a polygon.
///
/// All sides count, also the one from the last vertex to the first where it is not stored. A corner
/// on the segment counts once. A side along the segment gives no point of its own; its corners
/// count as corners of the sides that leave the segment there.
///
/// A point on a level or plumb side, or of a level or plumb segment, has that very coordinate, the
/// same double. Which side of the segment a corner lies on is decided without rounding errors, so a
/// segment that ends outside never enters a polygon without leaving it.
///
/// @param from, to  ends of the segment [mm]; there is no crossing where they are one point
/// @param tolA      how far beyond both ends a crossing still counts [mm]; less than 0 or not a
///   number is taken as 0
/// @param tolB      crossings nearer to each other than this are one, that nearest to `from` [mm];
///   less than 0 or not a number is taken as 0
/// @param polygon   a coordinate that is no place leaves it without crossings
/// @param out       receives the crossings, in order from `from` to `to`; what it held is dropped
/// @return whether there is any
SORREL_API bool linepolyIntersectSorted(const sorrel::Point& from, const sorrel::Point& to,
                                        double tolA, double tolB, const sorrel::Polygon& polygon,
                                        std::vector<sorrel::Point>& out);

/// The same for the sides of several polygons together: one order, and where polygons touch one
/// crossing.
SORREL_API bool linepolyIntersectSorted(const sorrel::Point& from, const sorrel::Point& to,
                                        double tolA, double tolB,
                                        const std::vector<sorrel::Polygon>& polygons,
                                        std::vector<sorrel::Point>& out);
