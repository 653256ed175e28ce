#pragma once
/// @file  Polygons for the tests of what polygons have in common
// SPDX-License-Identifier: Apache-2.0

#include "sorrel/polygon.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <numbers>
#include <random>
#include <utility>
#include <vector>

namespace sorrel::testing {

/// The coordinates of a polygon, to be compared and printed.
using Pairs = std::vector<std::pair<double, double>>;

inline Pairs pairs(const Polygon& polygon) {
  Pairs all;
  for (const Point& each : polygon)
    all.emplace_back(each[0], each[1]);
  return all;
}

inline std::vector<Pairs> pairs(const std::vector<Polygon>& polygons) {
  std::vector<Pairs> all;
  for (const Polygon& each : polygons)
    all.push_back(pairs(each));
  return all;
}

inline Polygon polygon(const Pairs& vertices) {
  Polygon made;
  for (const auto& [x, y] : vertices)
    made.push_back(Point{x, y});
  return made;
}

/// The vertices and the first of them again.
inline Polygon closed(Pairs vertices) {
  vertices.push_back(vertices.front());
  return polygon(vertices);
}

/// An upright rectangle, counter-clockwise from its lower left corner.
inline Polygon box(double xmin, double ymin, double xmax, double ymax) {
  return closed({{xmin, ymin}, {xmax, ymin}, {xmax, ymax}, {xmin, ymax}});
}

/// The same rectangle with a fifth vertex half-way along its lower side: no box to look at.
inline Polygon five_sided_box(double xmin, double ymin, double xmax, double ymax) {
  return closed(
      {{xmin, ymin}, {xmin / 2 + xmax / 2, ymin}, {xmax, ymin}, {xmax, ymax}, {xmin, ymax}});
}

inline double total_area(const std::vector<Polygon>& polygons) {
  double area = 0.0;
  for (const Polygon& each : polygons)
    area += polyArea(each);
  return area;
}

inline bool same(double a, double b) {
  return std::is_eq(a <=> b);
}

/// Closed, of three vertices at least, none twice in a row, counter-clockwise, and begun at the
/// highest vertex, the leftmost of several.
inline ::testing::AssertionResult is_arranged(const Polygon& polygon) {
  const Pairs all = pairs(polygon);
  if (all.size() < 4) return ::testing::AssertionFailure() << "too few vertices";
  if (all.front() != all.back()) return ::testing::AssertionFailure() << "not closed";
  if (std::adjacent_find(all.begin(), all.end()) != all.end())
    return ::testing::AssertionFailure() << "a vertex twice in a row";
  for (const auto& [x, y] : all) {
    if (y > all.front().second || (same(y, all.front().second) && x < all.front().first))
      return ::testing::AssertionFailure() << "begins below its top";
  }
  long double twice_area = 0.0L;  // a sliver of one ulp has a direction too
  for (std::size_t i = 1; i < all.size(); ++i) {
    const long double x0 = static_cast<long double>(all[i - 1].first) - all[0].first;
    const long double y0 = static_cast<long double>(all[i - 1].second) - all[0].second;
    const long double x1 = static_cast<long double>(all[i].first) - all[0].first;
    const long double y1 = static_cast<long double>(all[i].second) - all[0].second;
    twice_area += x0 * y1 - x1 * y0;
  }
  if (!(twice_area > 0.0L)) return ::testing::AssertionFailure() << "runs clockwise";
  return ::testing::AssertionSuccess();
}

/// Polygons from a seed: the same at every run on every machine but for the last bits of a cosine.
class RandomPolygons {
public:
  explicit RandomPolygons(std::uint64_t seed) : engine_(seed) {}

  /// A number in [low, high).
  double number(double low, double high) {
    return low + (high - low) * (static_cast<double>(engine_() >> 11U) * 0x1p-53);
  }

  /// An integer in [low, high].
  int integer(int low, int high) {
    return low + static_cast<int>(engine_() % static_cast<std::uint64_t>(high - low + 1));
  }

  /// A star round (x, y) that does not cross itself, with vertices between a fifth of the radius
  /// and the whole, each in its own equal sector.
  Polygon star(int vertices, double radius, double x = 0.0, double y = 0.0) {
    Pairs made;
    for (int i = 0; i < vertices; ++i) {
      const double angle = (i + number(0.0, 1.0)) * 2.0 * std::numbers::pi / vertices;
      const double distance = number(0.2, 1.0) * radius;
      made.emplace_back(x + distance * std::cos(angle), y + distance * std::sin(angle));
    }
    return closed(made);
  }

  /// Any vertices in any order within a square of twice `radius` round the origin: the sides cross.
  Polygon tangle(int vertices, double radius) {
    Pairs made;
    for (int i = 0; i < vertices; ++i)
      made.emplace_back(number(-radius, radius), number(-radius, radius));
    return closed(made);
  }

  /// An upright rectangle within the same square.
  Polygon rectangle(double radius) {
    const double x0 = number(-radius, radius);
    const double x1 = number(-radius, radius);
    const double y0 = number(-radius, radius);
    const double y1 = number(-radius, radius);
    return box(std::min(x0, x1), std::min(y0, y1), std::max(x0, x1), std::max(y0, y1));
  }

private:
  std::mt19937_64 engine_;
};

/// Every coordinate on whole numbers: sides lie on each other, vertices coincide, outlines touch
/// themselves.
inline Polygon on_whole_numbers(Polygon polygon) {
  for (Point& each : polygon)
    each = Point{std::round(each[0]), std::round(each[1])};
  return polygon;
}

inline constexpr double nan = std::numeric_limits<double>::quiet_NaN();
inline constexpr double infinity = std::numeric_limits<double>::infinity();

}  // namespace sorrel::testing
