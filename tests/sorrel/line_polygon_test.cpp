// SPDX-License-Identifier: Apache-2.0
#include "sorrel/line_polygon.h"

#include "polygon_testing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace {

using sorrel::Point;
using sorrel::Polygon;
using sorrel::testing::box;
using sorrel::testing::closed;
using sorrel::testing::infinity;
using sorrel::testing::nan;
using sorrel::testing::Pairs;
using sorrel::testing::pairs;
using sorrel::testing::polygon;
using sorrel::testing::RandomPolygons;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr double tol = 1e-6;

template <class Polygons>
Pairs crossings(const Point& from, const Point& to, const Polygons& polygons, double beyond = tol,
                double apart = tol) {
  std::vector<Point> out = {Point{7, 7}};
  const bool any = linepolyIntersectSorted(from, to, beyond, apart, polygons, out);
  EXPECT_EQ(any, !out.empty());
  return pairs(out);
}

const Polygon square = box(0, 0, 4, 4);

TEST(LinepolyIntersectSorted, GivesTheCrossingsFromEndToEnd) {
  EXPECT_EQ(crossings({1, 9}, {1, -9}, square), (Pairs{{1, 4}, {1, 0}}));
  EXPECT_EQ(crossings({1, -9}, {1, 9}, square), (Pairs{{1, 0}, {1, 4}}));
  EXPECT_EQ(crossings({-1, 3}, {9, 3}, square), (Pairs{{0, 3}, {4, 3}}));
}

// The line y = x / 2 + 1 enters in (0, 1) and leaves in (4, 3).
TEST(LinepolyIntersectSorted, CrossesASlantingLine) {
  EXPECT_EQ(crossings({-2, 0}, {8, 5}, square), (Pairs{{0, 1}, {4, 3}}));
}

// Two teeth, at x = 0 to 1 and 3 to 4.
TEST(LinepolyIntersectSorted, CrossesEverySide) {
  const Polygon teeth = closed({{0, 0}, {4, 0}, {4, 4}, {3, 4}, {3, 1}, {1, 1}, {1, 4}, {0, 4}});
  EXPECT_EQ(crossings({-9, 2}, {9, 2}, teeth), (Pairs{{0, 2}, {1, 2}, {3, 2}, {4, 2}}));
}

TEST(LinepolyIntersectSorted, SeesOnlyWhatLiesBetweenTheEnds) {
  EXPECT_EQ(crossings({1, 2}, {1, 9}, square), (Pairs{{1, 4}}));
  EXPECT_THAT(crossings({1, 1}, {3, 3}, square), IsEmpty());
  EXPECT_THAT(crossings({5, -9}, {5, 9}, square), IsEmpty());
  EXPECT_THAT(crossings({1, 9}, {1, 5}, square), IsEmpty());
}

TEST(LinepolyIntersectSorted, ClosesAnOpenPolygon) {
  EXPECT_EQ(crossings({-9, 1}, {9, 1}, polygon({{0, 0}, {4, 0}, {4, 4}, {0, 4}})),
            (Pairs{{0, 1}, {4, 1}}));
}

TEST(LinepolyIntersectSorted, CountsACornerOnce) {
  EXPECT_EQ(crossings({-9, -9}, {9, 9}, square), (Pairs{{0, 0}, {4, 4}}));
  EXPECT_EQ(crossings({-9, -9}, {9, 9}, square, 0.0, 0.0), (Pairs{{0, 0}, {4, 4}}));
  EXPECT_EQ(crossings({-4, 4}, {4, -4}, square), (Pairs{{0, 0}}));
  const Polygon roof = closed({{0, 0}, {4, 0}, {2, 3}});
  EXPECT_EQ(crossings({-9, 3}, {9, 3}, roof), (Pairs{{2, 3}}));
}

TEST(LinepolyIntersectSorted, GivesASideAlongTheSegmentNoPointOfItsOwn) {
  EXPECT_EQ(crossings({-9, 4}, {9, 4}, square), (Pairs{{0, 4}, {4, 4}}));
  EXPECT_EQ(crossings({4, 9}, {4, -9}, square), (Pairs{{4, 4}, {4, 0}}));
  EXPECT_EQ(crossings({2, 4}, {9, 4}, square), (Pairs{{4, 4}}));
  EXPECT_THAT(crossings({1, 4}, {3, 4}, square), IsEmpty());
}

TEST(LinepolyIntersectSorted, PassesOverAVertexWithinASideAlongTheSegment) {
  const Polygon five = closed({{0, 0}, {4, 0}, {4, 4}, {2, 4}, {0, 4}});
  EXPECT_EQ(crossings({-9, 4}, {9, 4}, five), (Pairs{{0, 4}, {4, 4}}));
  EXPECT_THAT(crossings({1, 4}, {3, 4}, five), IsEmpty());
}

// A vertex repeated is still one corner, and its side of no length none along the segment.
TEST(LinepolyIntersectSorted, PassesOverRepeatedVertices) {
  const Polygon repeated = closed({{0, 0}, {0, 0}, {4, 0}, {4, 4}, {4, 4}, {4, 4}, {0, 4}});
  EXPECT_EQ(crossings({-9, -9}, {9, 9}, repeated, 0.0, 0.0), (Pairs{{0, 0}, {4, 4}}));
}

TEST(LinepolyIntersectSorted, CountsCrossingsALittleBeyondTheEnds) {
  EXPECT_EQ(crossings({1, 1}, {1, 3.75}, square, 0.25), (Pairs{{1, 4}}));
  EXPECT_THAT(crossings({1, 1}, {1, 3.75}, square, 0.125), IsEmpty());
  EXPECT_EQ(crossings({1, 0.25}, {1, 2}, square, 0.25), (Pairs{{1, 0}}));
  EXPECT_THAT(crossings({1, 0.25}, {1, 2}, square, 0.125), IsEmpty());
  EXPECT_EQ(crossings({1, 0}, {1, 2}, square, 0.0), (Pairs{{1, 0}}));
}

// The crossings near a corner cut off at 45 degrees lie 0.25 apart.
TEST(LinepolyIntersectSorted, TakesNearCrossingsForOneAndKeepsTheFirst) {
  const Polygon corner = closed({{0, 0}, {4, 0}, {0, 4}});
  EXPECT_EQ(crossings({0.25, -9}, {0.25, 9}, corner), (Pairs{{0.25, 0}, {0.25, 3.75}}));
  EXPECT_EQ(crossings({3.75, -9}, {3.75, 9}, corner, tol, 0.5), (Pairs{{3.75, 0}}));
  EXPECT_EQ(crossings({3.75, 9}, {3.75, -9}, corner, tol, 0.5), (Pairs{{3.75, 0.25}}));
  EXPECT_EQ(crossings({3.75, 9}, {3.75, -9}, corner, tol, 0.25), (Pairs{{3.75, 0.25}, {3.75, 0}}));
}

TEST(LinepolyIntersectSorted, TakesABadToleranceForNone) {
  for (const double bad : {-1.0, nan}) {
    EXPECT_EQ(crossings({1, 9}, {1, 0}, square, bad, bad), (Pairs{{1, 4}, {1, 0}}));
    EXPECT_THAT(crossings({1, 1}, {1, 3.5}, square, bad, bad), IsEmpty());
  }
}

// Two layers that share the level 0 are crossed there once.
TEST(LinepolyIntersectSorted, CrossesSeveralPolygonsInOneOrder) {
  const std::vector<Polygon> layers = {box(-5, -3, 5, 0), box(-5, 0, 5, 2), box(-5, -9, 5, -7)};
  EXPECT_EQ(crossings({1, 99}, {1, -99}, layers),
            (Pairs{{1, 2}, {1, 0}, {1, -3}, {1, -7}, {1, -9}}));
  EXPECT_THAT(crossings({1, 99}, {1, -99}, std::vector<Polygon>{}), IsEmpty());
}

// A probe of 20 km: one unit in its last place is 2e-9 mm.
TEST(LinepolyIntersectSorted, GivesLevelsUnroundedAlongALongProbe) {
  const Polygon layer = closed({{-3e4, -0.1}, {3e4, -0.1}, {3e4, 1234.567}, {-2e4, 1234.567}});
  EXPECT_EQ(crossings({1, 1e7}, {1, -1e7}, layer), (Pairs{{1, 1234.567}, {1, -0.1}}));
  const Polygon turned = closed({{-0.1, -3e4}, {-0.1, 3e4}, {1234.567, 3e4}, {1234.567, -2e4}});
  EXPECT_EQ(crossings({-1e7, 0.3}, {1e7, 0.3}, turned), (Pairs{{-0.1, 0.3}, {1234.567, 0.3}}));
}

TEST(LinepolyIntersectSorted, KeepsToThePlumbLineOfTheProbe) {
  RandomPolygons random(31);
  for (int trial = 0; trial < 200; ++trial) {
    const Polygon star = random.star(random.integer(3, 30), 2e4);
    const double x = random.number(-1e4, 1e4);
    for (const auto& point : crossings({x, 1e7}, {x, -1e7}, star))
      EXPECT_EQ(point.first, x) << trial;
  }
}

double distance_to_line(const Point& from, const Point& to, double x, double y) {
  const double dx = to[0] - from[0];
  const double dy = to[1] - from[1];
  return std::abs(dx * (y - from[1]) - dy * (x - from[0])) / std::hypot(dx, dy);
}

double distance_to_side(const Point& a, const Point& b, double x, double y) {
  const double dx = b[0] - a[0];
  const double dy = b[1] - a[1];
  const double t = std::clamp(((x - a[0]) * dx + (y - a[1]) * dy) / (dx * dx + dy * dy), 0.0, 1.0);
  return std::hypot(x - a[0] - t * dx, y - a[1] - t * dy);
}

double distance_to_outline(const Polygon& polygon, double x, double y) {
  double least = infinity;
  for (std::size_t i = 1; i < polygon.size(); ++i)
    least = std::min(least, distance_to_side(polygon[i - 1], polygon[i], x, y));
  return least;
}

// Between neighbouring crossings a segment from outside to outside runs inside and outside by turns.
TEST(LinepolyIntersectSorted, EntersAndLeavesByTurns) {
  RandomPolygons random(32);
  std::size_t found = 0;
  for (int trial = 0; trial < 1000; ++trial) {
    const Polygon star = random.star(random.integer(3, 30), 1000.0);
    const Point from{random.number(-3000, -1500), random.number(-2000, 2000)};
    const Point to{random.number(1500, 3000), random.number(-2000, 2000)};
    const Pairs points = crossings(from, to, star);
    EXPECT_EQ(points.size() % 2, 0U) << trial;
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
      const Point middle{0.5 * (points[i].first + points[i + 1].first),
                         0.5 * (points[i].second + points[i + 1].second)};
      EXPECT_EQ(pointInPolygon(middle, star), i % 2 == 0) << trial;
      EXPECT_LT(points[i].first, points[i + 1].first) << trial;
    }
    for (const auto& [x, y] : points) {
      EXPECT_LT(distance_to_line(from, to, x, y), 1e-9) << trial;
      EXPECT_LT(distance_to_outline(star, x, y), 1e-9) << trial;
    }
    found += points.size();
  }
  EXPECT_GT(found, 1000U);
}

TEST(LinepolyIntersectSorted, GivesTheSamePointsBackwards) {
  RandomPolygons random(33);
  for (int trial = 0; trial < 300; ++trial) {
    const Polygon star = random.star(random.integer(3, 30), 1000.0);
    const Point from{random.number(-2000, 2000), random.number(-2000, 2000)};
    const Point to{random.number(-2000, 2000), random.number(-2000, 2000)};
    Pairs there = crossings(from, to, star);
    std::reverse(there.begin(), there.end());
    const Pairs back = crossings(to, from, star);
    ASSERT_EQ(back.size(), there.size()) << trial;
    for (std::size_t i = 0; i < back.size(); ++i) {
      EXPECT_NEAR(back[i].first, there[i].first, 1e-9) << trial;
      EXPECT_NEAR(back[i].second, there[i].second, 1e-9) << trial;
    }
  }
}

TEST(LinepolyIntersectSorted, FindsNothingWhereNothingIs) {
  EXPECT_THAT(crossings({1, 1}, {1, 1}, square), IsEmpty());
  EXPECT_THAT(crossings({4, 4}, {4, 4}, square), IsEmpty());
  EXPECT_THAT(crossings({1, 9}, {1, -9}, Polygon{}), IsEmpty());
  EXPECT_THAT(crossings({1, 9}, {1, -9}, polygon({{1, 0}})), IsEmpty());
}

TEST(LinepolyIntersectSorted, FindsNothingWithoutAPlace) {
  for (const double bad : {nan, infinity, -infinity, 1e16}) {
    EXPECT_THAT(crossings({bad, 9}, {1, -9}, square), IsEmpty());
    EXPECT_THAT(crossings({1, 9}, {1, bad}, square), IsEmpty());
    EXPECT_THAT(crossings({1, 9}, {1, -9}, closed({{0, 0}, {4, 0}, {4, 4}, {0, bad}})), IsEmpty());
    EXPECT_EQ(crossings({1, 9}, {1, -9},
                        std::vector<Polygon>{closed({{0, 0}, {bad, 0}, {4, 4}}), square}),
              (Pairs{{1, 4}, {1, 0}}));
  }
}

}  // namespace
