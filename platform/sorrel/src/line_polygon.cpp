// SPDX-License-Identifier: Apache-2.0
#include "sorrel/line_polygon.h"

#include "geos_geometry.h"
#include "outline.h"

#include <algorithm>
#include <cmath>
#include <compare>
#include <cstddef>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace {

using sorrel::Outline;
using sorrel::Point;
using sorrel::Polygon;
using sorrel::Vertex;

struct Segment {
  Vertex from;
  Vertex to;
};

double length(const Segment& segment) {
  return std::hypot(segment.to.x - segment.from.x, segment.to.y - segment.from.y);
}

/// How far along the segment a point lies from its beginning [mm].
double position(const Segment& segment, Vertex point) {
  const double whole = length(segment);
  return (point.x - segment.from.x) * ((segment.to.x - segment.from.x) / whole)
       + (point.y - segment.from.y) * ((segment.to.y - segment.from.y) / whole);
}

/// On which side of the line through the segment a point lies: 1, -1, or 0 on the line.
int side_of(const Segment& segment, Vertex point) {
  return GEOSOrientationIndex_r(sorrel::geos_context(), segment.from.x, segment.from.y,
                                segment.to.x, segment.to.y, point.x, point.y);
}

/// Distance from the line, times the length of the segment [mm²].
double offset(const Segment& segment, Vertex point) {
  const double dx = segment.to.x - segment.from.x;
  const double dy = segment.to.y - segment.from.y;
  return std::abs(dx * (point.y - segment.from.y) - dy * (point.x - segment.from.x));
}

/// The point `share` of the way from `a` to `b`, reckoned from the nearer of them.
double between(double a, double b, double share) {
  return share < 0.5 ? a + share * (b - a) : b - (1.0 - share) * (b - a);
}

/// Where a side that has an end on either side of the line crosses it. Reckoned along the side,
/// which is short against a probe of kilometres, and the same whichever way the side runs.
Vertex crossing(const Segment& segment, Vertex a, Vertex b) {
  if (a.x > b.x || (std::is_eq(a.x <=> b.x) && a.y > b.y)) std::swap(a, b);
  const double from_a = offset(segment, a);
  const double from_b = offset(segment, b);
  const double share = from_a + from_b > 0.0 ? from_a / (from_a + from_b) : 0.5;
  Vertex point{.x = between(a.x, b.x, share), .y = between(a.y, b.y, share)};
  if (std::is_eq(segment.from.x <=> segment.to.x)) point.x = segment.from.x;
  if (std::is_eq(segment.from.y <=> segment.to.y)) point.y = segment.from.y;
  return point;
}

/// Appends where an outline crosses the line through the segment, before, on and beyond it.
void append_crossings(const Segment& segment, const Outline& outline, std::vector<Vertex>& found) {
  const std::size_t size = outline.size();
  std::vector<int> sides(size);
  std::transform(outline.begin(), outline.end(), sides.begin(),
                 [&](Vertex each) { return side_of(segment, each); });
  for (std::size_t i = 0; i < size; ++i) {
    const std::size_t next = i + 1 < size ? i + 1 : 0;
    const std::size_t before = i > 0 ? i - 1 : size - 1;
    const bool leaves_line = sides[before] != 0 || sides[next] != 0;
    if (sides[i] == 0 && leaves_line) found.push_back(outline[i]);
    if (sides[i] * sides[next] < 0) found.push_back(crossing(segment, outline[i], outline[next]));
  }
}

/// Puts crossings in the order of the segment, leaves out what lies beyond its ends by more than
/// `beyond`, and every one that lies closer than `apart` to the one before it.
std::vector<Point> sorted_along(const Segment& segment, const std::vector<Vertex>& found,
                                double beyond, double apart) {
  struct Stop {
    double position;
    Vertex point;
  };
  std::vector<Stop> stops;
  const double end = length(segment) + beyond;
  for (const Vertex each : found) {
    const double along = position(segment, each);
    if (along >= -beyond && along <= end) stops.push_back({along, each});
  }
  std::stable_sort(stops.begin(), stops.end(),
                   [](const Stop& a, const Stop& b) { return a.position < b.position; });
  std::vector<Point> points;
  std::optional<Vertex> last;
  for (const Stop& each : stops) {
    const bool repeated =
        last && (same_place(*last, each.point) || length({*last, each.point}) < apart);
    if (repeated) continue;
    last = each.point;
    points.push_back(Point{each.point.x, each.point.y});
  }
  return points;
}

std::vector<Point> crossings(const Segment& segment, double beyond, double apart,
                             std::span<const Polygon> polygons) {
  const bool are_places = sorrel::is_place(segment.from.x) && sorrel::is_place(segment.from.y)
                       && sorrel::is_place(segment.to.x) && sorrel::is_place(segment.to.y);
  if (!are_places || same_place(segment.from, segment.to)) return {};
  std::vector<Vertex> found;
  for (const Polygon& polygon : polygons) {
    const std::optional<Outline> outline = sorrel::outline_of(polygon);
    if (outline) append_crossings(segment, *outline, found);
  }
  return sorted_along(segment, found, beyond > 0.0 ? beyond : 0.0, apart > 0.0 ? apart : 0.0);
}

Segment segment_between(const Point& from, const Point& to) {
  return {.from = {.x = from[0], .y = from[1]}, .to = {.x = to[0], .y = to[1]}};
}

}  // namespace

bool linepolyIntersectSorted(const Point& from, const Point& to, double tolA, double tolB,
                             const Polygon& polygon, std::vector<Point>& out) {
  out = crossings(segment_between(from, to), tolA, tolB, {&polygon, 1});
  return !out.empty();
}

bool linepolyIntersectSorted(const Point& from, const Point& to, double tolA, double tolB,
                             const std::vector<Polygon>& polygons, std::vector<Point>& out) {
  out = crossings(segment_between(from, to), tolA, tolB, polygons);
  return !out.empty();
}
