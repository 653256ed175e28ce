// SPDX-License-Identifier: Apache-2.0
#include "checked_overlay.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace sorrel {

namespace {

struct PreparedDeleter {
  void operator()(const GEOSPreparedGeometry* prepared) const {
    GEOSPreparedGeom_destroy_r(geos_context(), prepared);
  }
};
using Prepared = std::unique_ptr<const GEOSPreparedGeometry, PreparedDeleter>;

enum class Place { outside, on_outline, inside, unknown };

Place place_in(const GEOSPreparedGeometry& ground, const GEOSGeometry& point) {
  GEOSContextHandle_t geos = geos_context();
  const char meets = GEOSPreparedIntersects_r(geos, &ground, &point);
  if (meets == 0) return Place::outside;
  const char within = GEOSPreparedContainsProperly_r(geos, &ground, &point);
  if (meets != 1 || within > 1) return Place::unknown;
  return within == 1 ? Place::inside : Place::on_outline;
}

Geometry overlay(const GEOSGeometry& a, const GEOSGeometry& b, iPolyOp::iPolyOperation operation) {
  GEOSContextHandle_t geos = geos_context();
  switch (operation) {
    case iPolyOp::Intersection:
      return Geometry(GEOSIntersection_r(geos, &a, &b));
    case iPolyOp::Union:
      return Geometry(GEOSUnion_r(geos, &a, &b));
    case iPolyOp::Difference:
      return Geometry(GEOSDifference_r(geos, &a, &b));
  }
  return nullptr;
}

bool expected(bool in_a, bool in_b, iPolyOp::iPolyOperation operation) {
  switch (operation) {
    case iPolyOp::Intersection:
      return in_a && in_b;
    case iPolyOp::Union:
      return in_a || in_b;
    case iPolyOp::Difference:
      return in_a && !in_b;
  }
  return false;
}

/// The result, if it is believed.
Geometry believed(const GEOSGeometry& a, const GEOSGeometry& b, iPolyOp::iPolyOperation operation) {
  Geometry result = overlay(a, b, operation);
  if (result && !agrees(a, b, *result, operation)) result.reset();
  return result;
}

/// A ground with its parts and their vertices in the order that GEOS prefers.
Geometry reordered(const GEOSGeometry& ground) {
  GEOSContextHandle_t geos = geos_context();
  Geometry copy(GEOSGeom_clone_r(geos, &ground));
  if (copy && GEOSNormalize_r(geos, copy.get()) != 0) return nullptr;
  return copy;
}

/// A ground with x and y exchanged.
Geometry mirrored(const GEOSGeometry& ground) {
  const auto exchange = [](double* x, double* y, void* /*unused*/) {
    std::swap(*x, *y);
    return 1;
  };
  return Geometry(GEOSGeom_transformXY_r(geos_context(), &ground, exchange, nullptr));
}

}  // namespace

bool agrees(const GEOSGeometry& a, const GEOSGeometry& b, const GEOSGeometry& result,
            iPolyOp::iPolyOperation operation) {
  GEOSContextHandle_t geos = geos_context();
  const Prepared first(GEOSPrepare_r(geos, &a));
  const Prepared second(GEOSPrepare_r(geos, &b));
  const Prepared third(GEOSPrepare_r(geos, &result));
  if (!first || !second || !third) return false;
  for (const GEOSGeometry* ground : {&a, &b, &result}) {
    const int parts = GEOSGetNumGeometries_r(geos, ground);
    for (int i = 0; i < parts; ++i) {
      const GEOSGeometry* part = GEOSGetGeometryN_r(geos, ground, i);
      if (GEOSGeomTypeId_r(geos, part) != GEOS_POLYGON || GEOSisEmpty_r(geos, part) != 0) continue;
      const Geometry point(GEOSPointOnSurface_r(geos, part));
      if (!point) return false;
      const std::array<Place, 3> places = {place_in(*first, *point), place_in(*second, *point),
                                           place_in(*third, *point)};
      if (std::find(places.begin(), places.end(), Place::unknown) != places.end()) return false;
      if (std::find(places.begin(), places.end(), Place::on_outline) != places.end()) continue;
      const bool wanted =
          expected(places[0] == Place::inside, places[1] == Place::inside, operation);
      if (wanted != (places[2] == Place::inside)) return false;
    }
  }
  return true;
}

Geometry checked_overlay(const GEOSGeometry& a, const GEOSGeometry& b,
                         iPolyOp::iPolyOperation operation) {
  Geometry result = believed(a, b, operation);
  if (!result && operation != iPolyOp::Difference) result = believed(b, a, operation);
  if (result) return result;
  const Geometry first = reordered(a);
  const Geometry second = reordered(b);
  if (first && second) result = believed(*first, *second, operation);
  if (result) return result;
  const Geometry first_mirrored = mirrored(a);
  const Geometry second_mirrored = mirrored(b);
  if (first_mirrored && second_mirrored) {
    result = believed(*first_mirrored, *second_mirrored, operation);
  }
  return result ? mirrored(*result) : nullptr;
}

}  // namespace sorrel
