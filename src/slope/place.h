#pragma once
/// @file  Points and outlines of the plane in their barest form. Room: slope
// SPDX-License-Identifier: Apache-2.0

#include <armadillo>

#include <cmath>
#include <span>
#include <vector>

namespace ostrel::slope {

using Vector2 = arma::Col<double>::fixed<2>;
using Polygon = std::vector<Vector2>;

/// A point (x, y) [mm]. Circles are tried on these: they cost nothing to make and to move.
struct Place {
  double x = 0.0;
  double y = 0.0;
};

/// A closed polygon, the first vertex repeated at the end.
using Outline = std::vector<Place>;

inline Place place(const Vector2& point) {
  return {.x = point[0], .y = point[1]};
}

inline Vector2 vector2(Place point) {
  return {point.x, point.y};
}

inline double distance(Place a, Place b) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  return std::sqrt(dx * dx + dy * dy);
}

inline Outline outline_of(const Polygon& polygon) {
  Outline outline;
  outline.reserve(polygon.size());
  for (const Vector2& each : polygon) {
    outline.push_back(place(each));
  }
  return outline;
}

inline Polygon polygon_of(std::span<const Place> outline) {
  Polygon polygon;
  polygon.reserve(outline.size());
  for (const Place& each : outline) {
    polygon.push_back(vector2(each));
  }
  return polygon;
}

/// Orders by x alone; what is not a number stands last.
inline bool left_of(Place a, Place b) {
  return a.x < b.x || (!std::isnan(a.x) && std::isnan(b.x));
}

}  // namespace ostrel::slope
