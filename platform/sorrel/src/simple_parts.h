#pragma once
/// @file  The simple polygons that a geometry consists of. Library: sorrel
// SPDX-License-Identifier: Apache-2.0

#include "geos_geometry.h"

#include <optional>
#include <vector>

namespace sorrel {

/// The polygons of a geometry, without holes, counter-clockwise, from their highest vertex and
/// closed, from left to right. Points and lines in it are left out. Nothing if GEOS fails.
///
/// A hole is opened by a level through its middle. Of many holes the middle one is taken first, so
/// that both sides keep half of them.
std::optional<std::vector<Polygon>> simple_parts(Geometry geometry);

/// An outline without self-crossings as a polygon that runs counter-clockwise, begins at its
/// highest vertex, the leftmost of several, and is closed.
Polygon arranged(Outline outline);

/// Sorts polygons by their leftmost points, of those at one x the higher first.
void sort_from_left(std::vector<Polygon>& polygons);

}  // namespace sorrel
