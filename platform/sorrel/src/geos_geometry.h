#pragma once
/// @file  Polygons on the side of GEOS, owned. Library: sorrel
// SPDX-License-Identifier: Apache-2.0

#include "outline.h"

#include <geos_c.h>

#include <memory>
#include <vector>

namespace sorrel {

/// What GEOS works with in this thread; made once in a thread and given back at its end. It has no
/// handlers for messages, so nothing is printed. Null if there is no memory for it.
GEOSContextHandle_t geos_context();

struct GeometryDeleter {
  void operator()(GEOSGeometry* geometry) const { GEOSGeom_destroy_r(geos_context(), geometry); }
};

/// A geometry that is destroyed where it is left; null stands for a failure of GEOS.
using Geometry = std::unique_ptr<GEOSGeometry, GeometryDeleter>;

/// The polygon of an outline, with its vertices as they are.
/// @param outline  at least three vertices
Geometry polygon_geometry(const Outline& outline);

/// Whether the outline of a polygon neither crosses nor touches itself.
bool is_simple(const GEOSGeometry& polygon);

/// Where an outline runs counter-clockwise, decided at its extreme vertex without rounding errors.
/// @param outline  three vertices at least, of an outline that does not cross itself
bool runs_counter_clockwise(const Outline& outline);

/// The ground that an outline winds round, as polygons that do not meet themselves.
/// @param outline  at least three vertices
Geometry covered_ground(const Outline& outline);

/// The ground that any of several geometries covers. An empty list gives null.
Geometry covered_together(std::vector<Geometry> geometries);

/// The vertices of a ring, without repetitions. Empty if GEOS fails.
Outline outline_of_ring(const GEOSGeometry& ring);

}  // namespace sorrel
