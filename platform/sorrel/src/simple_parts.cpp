// SPDX-License-Identifier: Apache-2.0
#include "simple_parts.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace sorrel {

namespace {

/// The part of a polygon within a box, on its own.
Geometry part_within(const GEOSGeometry& polygon, const Box& box) {
  const Geometry other = polygon_geometry(box_outline(box));
  if (!other) return nullptr;
  return Geometry(GEOSIntersection_r(geos_context(), &polygon, other.get()));
}

/// The level through the middle of the middle hole; nothing where no hole has a height.
std::optional<double> level_through_holes(const GEOSGeometry& polygon, int holes) {
  std::vector<double> levels;
  for (int i = 0; i < holes; ++i) {
    const Outline hole = outline_of_ring(*GEOSGetInteriorRingN_r(geos_context(), &polygon, i));
    if (hole.empty()) continue;
    const Box box = bounding_box(hole);
    const double middle = std::midpoint(box.ymin, box.ymax);
    if (box.ymin < middle && middle < box.ymax) levels.push_back(middle);
  }
  if (levels.empty()) return std::nullopt;
  const auto median = levels.begin() + static_cast<std::ptrdiff_t>(levels.size() / 2);
  std::nth_element(levels.begin(), median, levels.end());
  return *median;
}

/// Cuts a polygon along a level and leaves what lies above and below it on the pile.
bool cut_at_level(const GEOSGeometry& polygon, const Outline& shell, double level,
                  std::vector<Geometry>& pile) {
  Box above = bounding_box(shell);
  const double margin = above.xmax - above.xmin + (above.ymax - above.ymin);
  above = {.xmin = above.xmin - margin,
           .ymin = above.ymin - margin,
           .xmax = above.xmax + margin,
           .ymax = above.ymax + margin};
  Box below = above;
  above.ymin = level;
  below.ymax = level;
  pile.push_back(part_within(polygon, above));
  pile.push_back(part_within(polygon, below));
  return pile.back() && pile[pile.size() - 2];
}

/// Takes a polygon apart: appends it, or leaves its halves on the pile.
bool take_polygon(const GEOSGeometry& polygon, std::vector<Geometry>& pile,
                  std::vector<Polygon>& parts) {
  GEOSContextHandle_t geos = geos_context();
  const GEOSGeometry* ring = GEOSGetExteriorRing_r(geos, &polygon);
  const int holes = GEOSGetNumInteriorRings_r(geos, &polygon);
  if (ring == nullptr || holes < 0) return false;
  Outline shell = outline_of_ring(*ring);
  if (shell.size() < 3) return true;
  if (holes > 0) {
    const std::optional<double> level = level_through_holes(polygon, holes);
    if (level) return cut_at_level(polygon, shell, *level, pile);
  }
  parts.push_back(arranged(std::move(shell)));
  return true;
}

/// Takes every polygon of a geometry apart; lines and points are passed over.
bool take(const GEOSGeometry& geometry, std::vector<Geometry>& pile, std::vector<Polygon>& parts) {
  GEOSContextHandle_t geos = geos_context();
  const int type = GEOSGeomTypeId_r(geos, &geometry);
  if (type == GEOS_POLYGON) return take_polygon(geometry, pile, parts);
  if (type != GEOS_MULTIPOLYGON && type != GEOS_GEOMETRYCOLLECTION) return type >= 0;
  const int count = GEOSGetNumGeometries_r(geos, &geometry);
  for (int i = 0; i < count; ++i) {
    const GEOSGeometry* each = GEOSGetGeometryN_r(geos, &geometry, i);
    if (each == nullptr || !take(*each, pile, parts)) return false;
  }
  return count >= 0;
}

}  // namespace

std::optional<std::vector<Polygon>> simple_parts(Geometry geometry) {
  std::vector<Polygon> parts;
  std::vector<Geometry> pile;
  pile.push_back(std::move(geometry));
  while (!pile.empty()) {
    const Geometry whole = std::move(pile.back());
    pile.pop_back();
    if (!whole || !take(*whole, pile, parts)) return std::nullopt;
  }
  sort_from_left(parts);
  return parts;
}

Polygon arranged(Outline outline) {
  if (!runs_counter_clockwise(outline)) std::reverse(outline.begin(), outline.end());
  return polygon_from_top(outline);
}

void sort_from_left(std::vector<Polygon>& polygons) {
  struct Key {
    double left;
    double down;
  };
  const auto key = [](const Polygon& polygon) {
    Key found{.left = polygon.front()[0], .down = -polygon.front()[1]};
    for (const Point& each : polygon) {
      found.left = std::min(found.left, each[0]);
    }
    return found;
  };
  std::stable_sort(polygons.begin(), polygons.end(), [&](const Polygon& a, const Polygon& b) {
    const Key first = key(a);
    const Key second = key(b);
    if (first.left < second.left || second.left < first.left) return first.left < second.left;
    return first.down < second.down;
  });
}

}  // namespace sorrel
