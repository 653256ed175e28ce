// SPDX-License-Identifier: Apache-2.0
#include "sorrel/polygon.h"

#include "geos_geometry.h"
#include "outline.h"
#include "overlay_effort.h"

#include <algorithm>
#include <cmath>
#include <compare>
#include <cstddef>
#include <optional>
#include <random>
#include <utility>

namespace {

using sorrel::Box;
using sorrel::Geometry;
using sorrel::Outline;
using sorrel::Point;
using sorrel::Polygon;
using sorrel::Vertex;

bool is_place(const Point& point) {
  return sorrel::is_place(point[0]) && sorrel::is_place(point[1]);
}

Vertex vertex(const Point& point) {
  return {.x = point[0], .y = point[1]};
}

double distance(const Point& a, const Point& b) {
  return std::hypot(b[0] - a[0], b[1] - a[1]);
}

/// Twice the area of a polygon, positive counter-clockwise, and its moments, reckoned from the
/// first vertex: they are then as exact far from the origin as they are near it.
struct AreaSums {
  double twice_area = 0.0;  ///< [mm²]
  double moment_x = 0.0;    ///< six times the integral of x over the area [mm³]
  double moment_y = 0.0;    ///< six times the integral of y over the area [mm³]
};

AreaSums area_sums(const Polygon& polygon) {
  AreaSums sums;
  const Point& origin = polygon.front();
  for (std::size_t i = 1; i < polygon.size(); ++i) {
    const double x0 = polygon[i - 1][0] - origin[0];
    const double y0 = polygon[i - 1][1] - origin[1];
    const double x1 = polygon[i][0] - origin[0];
    const double y1 = polygon[i][1] - origin[1];
    const double cross = x0 * y1 - x1 * y0;
    sums.twice_area += cross;
    sums.moment_x += (x0 + x1) * cross;
    sums.moment_y += (y0 + y1) * cross;
  }
  return sums;
}

/// The box around a polygon; nothing without vertices or for a coordinate that is no place.
std::optional<Box> box_around(const Polygon& polygon) {
  if (polygon.empty()) return std::nullopt;
  const Point& first = polygon.front();
  Box box{.xmin = first[0], .ymin = first[1], .xmax = first[0], .ymax = first[1]};
  for (const Point& each : polygon) {
    if (!is_place(each)) return std::nullopt;
    box.xmin = std::min(box.xmin, each[0]);
    box.ymin = std::min(box.ymin, each[1]);
    box.xmax = std::max(box.xmax, each[0]);
    box.ymax = std::max(box.ymax, each[1]);
  }
  return box;
}

bool holds(const Box& box, Vertex vertex) {
  return vertex.x >= box.xmin && vertex.x <= box.xmax && vertex.y >= box.ymin
      && vertex.y <= box.ymax;
}

/// The middle of the sides of a polygon, each weighted with its length; its first vertex where no
/// side has any.
Point middle_of_outline(const Polygon& polygon) {
  const Point& origin = polygon.front();
  double length = 0.0;
  double moment_x = 0.0;
  double moment_y = 0.0;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Point& from = polygon[i];
    const Point& to = polygon[i + 1 < polygon.size() ? i + 1 : 0];
    const double side = distance(from, to);
    length += side;
    moment_x += 0.5 * (from[0] - origin[0] + (to[0] - origin[0])) * side;
    moment_y += 0.5 * (from[1] - origin[1] + (to[1] - origin[1])) * side;
  }
  if (!(length > 0.0)) return origin;
  return {origin[0] + moment_x / length, origin[1] + moment_y / length};
}

/// On which side of the line from `a` to `b` a point lies: 1 to the left, -1 to the right, 0 on it.
int side_of(Vertex a, Vertex b, Vertex point) {
  return GEOSOrientationIndex_r(sorrel::geos_context(), a.x, a.y, b.x, b.y, point.x, point.y);
}

/// Whether a point lies on a level side or at its end `to`; the side may be a single place.
bool on_level_side(Vertex from, Vertex to, Vertex point) {
  if (!std::is_eq(to.y <=> point.y)) return false;
  if (!std::is_eq(from.y <=> point.y)) return same_place(to, point);
  const auto [low, high] = std::minmax(from.x, to.x);
  return low <= point.x && point.x <= high;
}

enum class Location { outside, on_outline, inside };

/// Whether three vertices of a polygon lie at different places. The polygon has at least one.
bool has_three_vertices(const Polygon& polygon) {
  const auto other_than = [](const Point& known) {
    return [&known](const Point& each) { return !same_place(vertex(known), vertex(each)); };
  };
  const Point& first = polygon.front();
  const auto second = std::find_if(polygon.begin(), polygon.end(), other_than(first));
  return second != polygon.end() && std::any_of(second, polygon.end(), [&](const Point& each) {
           return other_than(first)(each) && other_than(*second)(each);
         });
}

/// Counts how often a polygon winds round a point, by the sides that cross the level of the point
/// to the right of it.
Location locate(Vertex point, const Polygon& polygon) {
  int winding = 0;
  Vertex from = vertex(polygon.back());
  for (const Point& each : polygon) {
    const Vertex to = vertex(each);
    const bool rises = from.y <= point.y && to.y > point.y;
    const bool falls = from.y > point.y && to.y <= point.y;
    if (rises || falls) {
      const int side = side_of(from, to, point);
      if (side == 0) return Location::on_outline;
      if (rises && side > 0) ++winding;
      if (falls && side < 0) --winding;
    } else if (on_level_side(from, to, point)) {
      return Location::on_outline;
    }
    from = to;
  }
  return winding != 0 ? Location::inside : Location::outside;
}

/// A point inside, found by GEOS half-way along a wide level chord.
std::optional<Vertex> point_on_surface(const Polygon& polygon) {
  const std::optional<Outline> outline = sorrel::outline_of(polygon);
  if (!outline || !sorrel::is_affordable({&*outline, 1})) return std::nullopt;
  GEOSContextHandle_t geos = sorrel::geos_context();
  const Geometry ground = sorrel::covered_ground(*outline);
  if (!ground || GEOSisEmpty_r(geos, ground.get()) != 0) return std::nullopt;
  const Geometry point(GEOSPointOnSurface_r(geos, ground.get()));
  Vertex found;
  if (!point || GEOSGeomGetX_r(geos, point.get(), &found.x) != 1
      || GEOSGeomGetY_r(geos, point.get(), &found.y) != 1) {
    return std::nullopt;
  }
  return found;
}

/// A number in [0, 1) with 53 random bits.
double fraction(std::mt19937_64& engine) {
  return static_cast<double>(engine() >> 11U) * 0x1p-53;
}

/// Tries points of the box around a polygon; a thin polygon may have none of them.
std::optional<Vertex> drawn_point(const Polygon& polygon, const Box& box, std::uint64_t seed) {
  constexpr int attempts = 64;
  std::mt19937_64 engine(seed);
  for (int i = 0; i < attempts; ++i) {
    Vertex point;
    point.x = box.xmin + fraction(engine) * (box.xmax - box.xmin);
    point.y = box.ymin + fraction(engine) * (box.ymax - box.ymin);
    if (locate(point, polygon) == Location::inside) return point;
  }
  return std::nullopt;
}

}  // namespace

double polyArea(const Polygon& polygon) {
  if (!box_around(polygon)) return 0.0;
  return 0.5 * std::abs(area_sums(polygon).twice_area);
}

void polyBaricenter(const Polygon& polygon, Point& baricenter) {
  baricenter = Point{0.0, 0.0};
  const std::optional<Box> box = box_around(polygon);
  if (!box) return;
  const AreaSums sums = area_sums(polygon);
  const double x = polygon.front()[0] + sums.moment_x / (3.0 * sums.twice_area);
  const double y = polygon.front()[1] + sums.moment_y / (3.0 * sums.twice_area);
  baricenter = holds(*box, {.x = x, .y = y}) ? Point{x, y} : middle_of_outline(polygon);
}

void polyBBox(const Polygon& polygon, Point& min, Point& max) {
  const Box box = box_around(polygon).value_or(Box{});
  min = Point{box.xmin, box.ymin};
  max = Point{box.xmax, box.ymax};
}

bool pointInPolygon(const Point& point, const Polygon& polygon) {
  const std::optional<Box> box = box_around(polygon);
  const Vertex place = vertex(point);
  if (!box || !holds(*box, place) || !has_three_vertices(polygon)) return false;
  return locate(place, polygon) != Location::outside;
}

bool randomPointInsidepoly(const Polygon& polygon, Point& point, std::uint64_t seed) {
  const std::optional<Box> box = box_around(polygon);
  if (!box || !has_three_vertices(polygon)) return false;
  std::optional<Vertex> found = drawn_point(polygon, *box, seed);
  if (!found) found = point_on_surface(polygon);
  if (!found) return false;
  point = Point{found->x, found->y};
  return true;
}

void mergeCoincidentVertices(Polygon& polygon, double tol) {
  if (polygon.empty()) return;
  const auto near = [tol](const Point& a, const Point& b) {
    return std::abs(b[0] - a[0]) < tol && std::abs(b[1] - a[1]) < tol && distance(a, b) < tol;
  };
  if (polygon.size() > 1 && same_place(vertex(polygon.front()), vertex(polygon.back()))) {
    polygon.pop_back();
  }
  std::size_t kept = 1;
  for (std::size_t i = 1; i < polygon.size(); ++i) {
    if (!near(polygon[kept - 1], polygon[i])) polygon[kept++] = polygon[i];
  }
  while (kept > 1 && near(polygon[kept - 1], polygon.front())) {
    --kept;
  }
  polygon.resize(kept);
  polygon.push_back(polygon.front());
}
