#pragma once
/// @file  Overlays of GEOS whose result is looked at before it is believed. Library: sorrel
// SPDX-License-Identifier: Apache-2.0

#include "geos_geometry.h"
#include "sorrel/polygon_boolean.h"

namespace sorrel {

/// The result of an operation on two grounds; null if it cannot be had.
///
/// Where sides of both nearly coincide, within the last digits, GEOS now and then takes grounds that
/// overlap for grounds apart, about once in two thousand times that a part is laid over the whole it
/// came from. So one point inside of each part, of the operands and of the result, is asked
/// whether it lies where the operation says. If one does not, the overlay is done again in other
/// orders, which lead GEOS another way and leave every coordinate as it is.
Geometry checked_overlay(const GEOSGeometry& a, const GEOSGeometry& b,
                         iPolyOp::iPolyOperation operation);

/// Whether one point inside of each part of `a`, `b` and `result` lies in the result exactly if the
/// operation says so. A point on the outline of any of them tells nothing.
bool agrees(const GEOSGeometry& a, const GEOSGeometry& b, const GEOSGeometry& result,
            iPolyOp::iPolyOperation operation);

}  // namespace sorrel
