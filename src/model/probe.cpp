// SPDX-License-Identifier: Apache-2.0
#include "model/probe.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace ostrel::model {

namespace {

constexpr double shortest_segment = 1e-8;    // [mm]
constexpr double parallel_tolerance = 1e-8;  // on the cosine [-]
constexpr double end_tolerance = 1e-8;       // on t and u [-]
constexpr double same_crossing = 1e-4;       // distance of two crossings taken for one [mm]

double cross(const Point& a, const Point& b) {
  return a[0] * b[1] - a[1] * b[0];
}

double dot(const Point& a, const Point& b) {
  return a[0] * b[0] + a[1] * b[1];
}

double length(const Point& a) {
  return std::hypot(a[0], a[1]);
}

bool within_ends(double parameter) {
  return parameter >= -end_tolerance && parameter < 1.0 + end_tolerance;
}

void sort_along(const Segment& probe, std::vector<Crossing>& crossings) {
  const Point direction = probe.to - probe.from;
  const auto position = [&](const Crossing& each) {
    return dot(Point(each.point - probe.from), direction);
  };
  std::stable_sort(crossings.begin(), crossings.end(),
                   [&](const Crossing& a, const Crossing& b) { return position(a) < position(b); });
}

void merge_near(std::vector<Crossing>& crossings) {
  std::vector<Crossing> kept;
  for (const Crossing& each : crossings) {
    if (!kept.empty() && length(Point(each.point - kept.back().point)) < same_crossing) continue;
    kept.push_back(each);
  }
  crossings = std::move(kept);
}

}  // namespace

bool parallel(const Segment& probe, const Segment& side) {
  const Point r = probe.to - probe.from;
  const Point s = side.to - side.from;
  const double probe_length = length(r);
  const double side_length = length(s);
  if (probe_length < shortest_segment || side_length < shortest_segment) return true;
  const double cosine = dot(r, s) / (probe_length * side_length);
  return std::abs(std::abs(cosine) - 1.0) < parallel_tolerance;
}

std::optional<Crossing> crossing(const Segment& probe, const Segment& side) {
  if (parallel(probe, side)) return std::nullopt;
  const Point r = probe.to - probe.from;
  const Point s = side.to - side.from;
  const Point gap = side.from - probe.from;
  const double determinant = cross(r, s);
  const double t = cross(gap, s) / determinant;
  const double u = cross(gap, r) / determinant;
  if (!(within_ends(t) && within_ends(u))) return std::nullopt;
  return Crossing{.point = side.from + u * s, .side = side};
}

std::vector<Crossing> probe_crossings(const Segment& probe, const std::vector<Polygon>& polygons) {
  std::vector<Crossing> found;
  for (const Polygon& polygon : polygons) {
    for (std::size_t i = 1; i < polygon.size(); ++i) {
      const auto each = crossing(probe, {.from = polygon[i - 1], .to = polygon[i]});
      if (each) found.push_back(*each);
    }
  }
  sort_along(probe, found);
  merge_near(found);
  return found;
}

}  // namespace ostrel::model
