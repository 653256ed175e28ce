// SPDX-License-Identifier: Apache-2.0
#include "sorrel/polygon_boolean.h"

#include "box_cut.h"
#include "checked_overlay.h"
#include "geos_geometry.h"
#include "outline.h"
#include "overlay_effort.h"
#include "simple_parts.h"

#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace {

using sorrel::Box;
using sorrel::Geometry;
using sorrel::Outline;
using sorrel::Polygon;

/// The outlines that cover the ground of one operand together; none for no ground.
using Ground = std::vector<Outline>;

/// The polygons of a result; nothing where the operation cannot be carried out.
using Parts = std::optional<std::vector<Polygon>>;

bool covers_ground(const Outline& outline) {
  return outline.size() >= 3 && has_extent(bounding_box(outline));
}

/// The ground of polygons; nothing if a coordinate is no place.
std::optional<Ground> ground_of(std::span<const Polygon> polygons) {
  Ground ground;
  for (const Polygon& polygon : polygons) {
    std::optional<Outline> outline = sorrel::outline_of(polygon);
    if (!outline) return std::nullopt;
    if (covers_ground(*outline)) ground.push_back(*std::move(outline));
  }
  return ground;
}

/// A ground on the side of GEOS; null for a failure.
Geometry geometry_of(const Ground& ground) {
  if (ground.empty()) return Geometry(GEOSGeom_createEmptyPolygon_r(sorrel::geos_context()));
  std::vector<Geometry> geometries;
  for (const Outline& outline : ground) {
    geometries.push_back(sorrel::covered_ground(outline));
    if (!geometries.back()) return nullptr;
  }
  return sorrel::covered_together(std::move(geometries));
}

/// Any operation on any two grounds.
Parts overlaid(const Ground& a, const Ground& b, iPolyOp::iPolyOperation operation) {
  Ground all = a;
  all.insert(all.end(), b.begin(), b.end());
  if (!sorrel::is_affordable(all)) return std::nullopt;
  const Geometry first = geometry_of(a);
  const Geometry second = geometry_of(b);
  if (!first || !second) return std::nullopt;
  return sorrel::simple_parts(sorrel::checked_overlay(*first, *second, operation));
}

/// What an outline and a box have in common. Nothing is overlaid, which takes a tenth of the time
/// and makes no vertex but where a side crosses a border or another side of the same outline.
Parts common_with_box(const Outline& outline, const Box& box) {
  const Outline common = cut_to_box(outline, box);
  if (!covers_ground(common)) return std::vector<Polygon>{};
  if (!sorrel::is_affordable({&common, 1})) return std::nullopt;
  return sorrel::simple_parts(sorrel::covered_ground(common));
}

Parts common_ground(const Ground& a, const Ground& b) {
  if (a.empty() || b.empty()) return std::vector<Polygon>{};
  if (a.size() == 1 && b.size() == 1) {
    if (const std::optional<Box> box = as_box(a.front())) return common_with_box(b.front(), *box);
    if (const std::optional<Box> box = as_box(b.front())) return common_with_box(a.front(), *box);
  }
  return overlaid(a, b, iPolyOp::Intersection);
}

bool append_combined(std::span<const Polygon> a, std::span<const Polygon> b,
                     std::vector<Polygon>& result, iPolyOp::iPolyOperation operation) {
  const std::optional<Ground> first = ground_of(a);
  const std::optional<Ground> second = ground_of(b);
  if (!first || !second) return false;
  Parts parts = operation == iPolyOp::Intersection ? common_ground(*first, *second)
                                                   : overlaid(*first, *second, operation);
  if (!parts) return false;
  for (Polygon& each : *parts) {
    result.push_back(std::move(each));
  }
  return true;
}

}  // namespace

bool PolyBoolean(const Polygon& a, const Polygon& b, std::vector<Polygon>& result,
                 std::uint64_t /*scale*/, iPolyOp::iPolyOperation operation) {
  return append_combined({&a, 1}, {&b, 1}, result, operation);
}

bool PolyIntersect(const Polygon& clip, const std::vector<Polygon>& polygons,
                   std::vector<Polygon>& result, std::uint64_t /*scale*/,
                   iPolyOp::iPolyOperation operation) {
  return append_combined({&clip, 1}, polygons, result, operation);
}
