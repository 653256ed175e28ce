#pragma once
/// @file  What two polygons have in common, or one before the other. Library: sorrel
// SPDX-License-Identifier: Apache-2.0
//
// Every polygon that comes out has no self-crossing and no hole, is closed, runs counter-clockwise
// (y up) and begins at its highest vertex, the leftmost of several. The polygons that one call
// appends stand from left to right by their leftmost points; of two that begin at the same x the
// higher stands first.
//
// Nothing is snapped. A vertex is one of an operand's own, unchanged, or the crossing of two sides.
// A crossing with a level or a plumb side has the very coordinate of that side, the same double; of
// two slanting sides it is the nearest double. Two soils that share a side are cut at one point.
//
// A hole, where a result has one, is opened by a level cut through its middle, so that the ground
// around it comes out as a polygon above and one below: a list of simple polygons says the same as
// a ring around a void, and every one of them can be weighed and cut again.

#include "sorrel/export.h"
#include "sorrel/polygon.h"

#include <cstdint>
#include <vector>

/// The kinds of operation; the numbers belong to the interface.
struct iPolyOp {
  enum iPolyOperation : std::int32_t {
    Intersection = 0,  ///< what both operands cover
    Union = 1,         ///< what either of them covers
    Difference = 2     ///< what the first covers and the second does not
  };
};

/// Appends to `result` the polygons of an operation on `a` and `b`.
///
/// @param a, b       operands; one without area has nothing in common with the other
/// @param result     what it held before stays in front
/// @param scale      kept by the interface for a grid of whole numbers that coordinates would be
///   multiplied onto. There is no grid here, and any scale gives the same result.
/// @param operation  the kind
/// @return false if the operation could not be carried out; nothing is appended then. So it is for
///   a coordinate that is no place, an operation of no known number, and outlines that cross so
///   often (about fifty thousand times) that the result would exhaust time or memory.
SORREL_API bool PolyBoolean(const sorrel::Polygon& a, const sorrel::Polygon& b,
                            std::vector<sorrel::Polygon>& result, std::uint64_t scale,
                            iPolyOp::iPolyOperation operation);

/// Appends to `result` the polygons of an operation on `clip` and the ground that all of `polygons`
/// cover together; where they overlap it counts once.
///
/// @param clip       first operand
/// @param polygons   second operand; may be the list that receives the result
/// @param result     what it held before stays in front
/// @param scale      as for `PolyBoolean`, of no effect
/// @param operation  the kind
/// @return as `PolyBoolean`
SORREL_API bool PolyIntersect(const sorrel::Polygon& clip,
                              const std::vector<sorrel::Polygon>& polygons,
                              std::vector<sorrel::Polygon>& result, std::uint64_t scale,
                              iPolyOp::iPolyOperation operation);
