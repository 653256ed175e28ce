// SPDX-License-Identifier: Apache-2.0
#include "sorrel/polygon.h"

#include "polygon_testing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
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

Point baricenter(const Polygon& polygon) {
  Point found{-77.0, -77.0};
  polyBaricenter(polygon, found);
  return found;
}

bool holds(const Polygon& polygon, double x, double y) {
  return pointInPolygon(Point{x, y}, polygon);
}

/// 2 x 1 with 1 x 1 on its left half.
Polygon angle() {
  return closed({{0, 0}, {2, 0}, {2, 1}, {1, 1}, {1, 2}, {0, 2}});
}

/// Two triangles of area 1 that meet in (1, 1).
Polygon bow_tie() {
  return closed({{0, 0}, {2, 2}, {2, 0}, {0, 2}});
}

std::vector<Polygon> polygons_with_no_place() {
  std::vector<Polygon> all;
  for (const double bad : {nan, infinity, -infinity, 2e15}) {
    all.push_back(closed({{bad, 0}, {1, 0}, {1, 1}}));
    all.push_back(closed({{0, 0}, {1, bad}, {1, 1}}));
    all.push_back(polygon({{0, 0}, {1, 0}, {1, 1}, {bad, bad}}));
  }
  return all;
}

TEST(PolyArea, IsTheSumOfItsParts) {
  EXPECT_EQ(polyArea(angle()), 3.0);
  EXPECT_EQ(polyArea(closed({{0, 0}, {4, 0}, {1, 3}})), 6.0);
}

TEST(PolyArea, IsTheSameEitherWayRoundAndStoredOpen) {
  EXPECT_EQ(polyArea(closed({{1, 3}, {4, 0}, {0, 0}})), 6.0);
  EXPECT_EQ(polyArea(polygon({{0, 0}, {4, 0}, {1, 3}})), 6.0);
}

// Half a square millimetre 1000 km away: the products of the coordinates, 1e18, would swallow it.
TEST(PolyArea, IsExactFarFromTheOrigin) {
  EXPECT_EQ(polyArea(closed({{1e9, 1e9}, {1e9 + 1, 1e9}, {1e9, 1e9 + 1}})), 0.5);
}

TEST(PolyArea, IsNothingWithoutGround) {
  EXPECT_EQ(polyArea({}), 0.0);
  EXPECT_EQ(polyArea(polygon({{1, 1}})), 0.0);
  EXPECT_EQ(polyArea(closed({{1, 1}, {4, 3}})), 0.0);
  for (const Polygon& bad : polygons_with_no_place())
    EXPECT_EQ(polyArea(bad), 0.0);
}

TEST(PolyArea, CountsClockwisePartsAgainstTheOthers) {
  EXPECT_EQ(polyArea(bow_tie()), 0.0);
}

// 2 x 1 with its middle in (1, 0.5) and 1 x 1 with (0.5, 1.5): 2.5 / 3 both ways.
TEST(PolyBaricenter, IsTheCentroidOfTheArea) {
  EXPECT_DOUBLE_EQ(baricenter(angle())[0], 2.5 / 3.0);
  EXPECT_DOUBLE_EQ(baricenter(angle())[1], 2.5 / 3.0);
  const Point third = baricenter(closed({{1, 3}, {4, 0}, {0, 0}}));
  EXPECT_DOUBLE_EQ(third[0], 5.0 / 3.0);
  EXPECT_DOUBLE_EQ(third[1], 1.0);
}

TEST(PolyBaricenter, IsExactFarFromTheOrigin) {
  const Point middle = baricenter(box(1e9, -1e9, 1e9 + 1, -1e9 + 3));
  EXPECT_EQ(middle[0], 1e9 + 0.5);
  EXPECT_EQ(middle[1], -1e9 + 1.5);
}

// The sides of 4, 3 and 1 have their middles at 2, 2.5 and 0.5: (8 + 7.5 + 0.5) / 8 = 2.
TEST(PolyBaricenter, IsTheMiddleOfAnOutlineWithoutArea) {
  EXPECT_EQ(pairs({baricenter(closed({{0, 5}, {4, 5}, {1, 5}}))}), (Pairs{{2, 5}}));
  EXPECT_EQ(pairs({baricenter(closed({{0, 0}, {4, 2}}))}), (Pairs{{2, 1}}));
  EXPECT_EQ(pairs({baricenter(polygon({{3, 4}}))}), (Pairs{{3, 4}}));
  EXPECT_EQ(pairs({baricenter(bow_tie())}), (Pairs{{1, 1}}));
}

// The right wing is a little greater: divided by the small difference of both, the moments give a
// point far away.
TEST(PolyBaricenter, StaysWithinTheBox) {
  const Point middle = baricenter(closed({{0, 0}, {2, 2}, {2, -0.001}, {0, 2}}));
  EXPECT_NEAR(middle[0], 1.0, 0.001);
  EXPECT_NEAR(middle[1], 1.0, 0.001);
}

TEST(PolyBaricenter, IsTheOriginWithoutAnyPlace) {
  EXPECT_EQ(pairs({baricenter({})}), (Pairs{{0, 0}}));
  for (const Polygon& bad : polygons_with_no_place())
    EXPECT_EQ(pairs({baricenter(bad)}), (Pairs{{0, 0}}));
}

TEST(PolyBBox, ReachesTheOutermostVertices) {
  Point min;
  Point max;
  polyBBox(closed({{3, -1}, {5, 2}, {-4, 7}}), min, max);
  EXPECT_EQ(pairs({min, max}), (Pairs{{-4, -1}, {5, 7}}));
  polyBBox(polygon({{3, -1}}), min, max);
  EXPECT_EQ(pairs({min, max}), (Pairs{{3, -1}, {3, -1}}));
}

TEST(PolyBBox, IsTheOriginWithoutAnyPlace) {
  std::vector<Polygon> none = polygons_with_no_place();
  none.emplace_back();
  for (const Polygon& each : none) {
    Point min{1, 1};
    Point max{2, 2};
    polyBBox(each, min, max);
    EXPECT_EQ(pairs({min, max}), (Pairs{{0, 0}, {0, 0}}));
  }
}

TEST(PointInPolygon, HoldsInsideAndNotOutside) {
  EXPECT_TRUE(holds(angle(), 0.5, 0.5));
  EXPECT_TRUE(holds(angle(), 0.5, 1.5));
  EXPECT_TRUE(holds(angle(), 1.5, 0.5));
  EXPECT_FALSE(holds(angle(), 1.5, 1.5));
  EXPECT_FALSE(holds(angle(), -1, 1));
  EXPECT_FALSE(holds(angle(), 3, 1));
  EXPECT_FALSE(holds(angle(), 0.5, 3));
  EXPECT_FALSE(holds(angle(), 0.5, -1));
}

TEST(PointInPolygon, HoldsOnSidesAndCorners) {
  for (const auto& [x, y] : pairs(angle()))
    EXPECT_TRUE(holds(angle(), x, y)) << x << ", " << y;
  for (const auto& [x, y] : Pairs{{1, 0}, {2, 0.5}, {1.5, 1}, {1, 1.5}, {0.5, 2}, {0, 1}})
    EXPECT_TRUE(holds(angle(), x, y)) << x << ", " << y;
}

// The level of the point passes through vertices and along sides.
TEST(PointInPolygon, CountsAVertexOnTheLevelOfThePointOnce) {
  const Polygon peaks = closed(
      {{0, 0}, {8, 0}, {8, 2}, {7, 2}, {6, 4}, {5, 2}, {4, 2}, {3, 0.5}, {2, 2}, {1, 4}, {0, 2}});
  for (const double x : {0.5, 1.5, 5.5, 6.5})
    EXPECT_TRUE(holds(peaks, x, 2)) << x;
  for (const double x : {-1.0, 2.5, 3.5, 9.0})
    EXPECT_FALSE(holds(peaks, x, 2)) << x;
  for (const double x : {-1.0, 0.5, 3.0, 5.5, 7.0})
    EXPECT_FALSE(holds(peaks, x, 4)) << x;
}

TEST(PointInPolygon, TakesPolygonsEitherWayRoundAndStoredOpen) {
  EXPECT_TRUE(holds(closed({{0, 2}, {1, 2}, {1, 1}, {2, 1}, {2, 0}, {0, 0}}), 0.5, 1.5));
  EXPECT_TRUE(holds(polygon({{0, 0}, {4, 0}, {4, 4}}), 2.5, 2));
  EXPECT_TRUE(holds(polygon({{0, 0}, {4, 0}, {4, 4}}), 2, 2));
  EXPECT_FALSE(holds(polygon({{0, 0}, {4, 0}, {4, 4}}), 1.5, 2));
}

// Of the Fibonacci numbers F(42) to F(45): F(45) F(43) - F(44)² = 1 and
// F(45) F(42) - F(44) F(43) = -1, so that the points (F(44), F(43)) and (F(43), F(42)) lie on either
// side of the line to (F(45), F(44)), 1e-9 mm from it, while the products of doubles are 128 apart.
TEST(PointInPolygon, DecidesWithoutRoundingErrors) {
  const double f42 = 267'914'296;
  const double f43 = 433'494'437;
  const double f44 = 701'408'733;
  const double f45 = 1'134'903'170;
  const Polygon above = closed({{0, 0}, {f45, f44}, {0, f44}});
  const Polygon below = closed({{0, 0}, {f45, 0}, {f45, f44}});
  EXPECT_TRUE(holds(above, f44, f43));
  EXPECT_FALSE(holds(below, f44, f43));
  EXPECT_FALSE(holds(above, f43, f42));
  EXPECT_TRUE(holds(below, f43, f42));
  EXPECT_TRUE(holds(above, f45 / 2, f44 / 2));
  EXPECT_TRUE(holds(below, f45 / 2, f44 / 2));
}

TEST(PointInPolygon, HoldsWhereverTheOutlineWindsRound) {
  EXPECT_TRUE(holds(bow_tie(), 0.5, 1));
  EXPECT_TRUE(holds(bow_tie(), 1.5, 1));
  EXPECT_FALSE(holds(bow_tie(), 1, 1.5));
  const Polygon twice = closed({{0, 0}, {4, 0}, {4, 4}, {0, 4}, {0, 0}, {4, 0}, {4, 4}, {0, 4}});
  EXPECT_TRUE(holds(twice, 2, 2));
  const Polygon keyhole =
      closed({{0, 0}, {4, 0}, {4, 4}, {0, 4}, {0, 0}, {1, 1}, {1, 2}, {2, 2}, {2, 1}, {1, 1}});
  EXPECT_FALSE(holds(keyhole, 1.5, 1.5));
  EXPECT_TRUE(holds(keyhole, 3, 1.5));
}

TEST(PointInPolygon, HoldsNowhereWithoutGround) {
  EXPECT_FALSE(holds({}, 0, 0));
  EXPECT_FALSE(holds(polygon({{0, 0}}), 0, 0));
  EXPECT_FALSE(holds(closed({{0, 0}, {2, 2}}), 1, 1));
  EXPECT_FALSE(holds(closed({{0, 0}, {2, 0}}), 1, 0));
  for (const Polygon& bad : polygons_with_no_place())
    EXPECT_FALSE(holds(bad, 0.9, 0.5));
  for (const double bad : {nan, infinity, -infinity}) {
    EXPECT_FALSE(holds(angle(), bad, 0.5));
    EXPECT_FALSE(holds(angle(), 0.5, bad));
  }
}

TEST(RandomPointInsidepoly, LiesInside) {
  RandomPolygons random(21);
  for (std::uint64_t seed = 0; seed < 200; ++seed) {
    const Polygon star = random.star(random.integer(3, 20), 1000.0);
    Point point;
    ASSERT_TRUE(randomPointInsidepoly(star, point, seed));
    EXPECT_TRUE(pointInPolygon(point, star)) << seed;
  }
}

TEST(RandomPointInsidepoly, IsOnePointForEachSeed) {
  Point first;
  Point again;
  Point other;
  Point unasked;
  EXPECT_TRUE(randomPointInsidepoly(angle(), first, 5));
  EXPECT_TRUE(randomPointInsidepoly(angle(), again, 5));
  EXPECT_TRUE(randomPointInsidepoly(angle(), other, 6));
  EXPECT_EQ(pairs({first}), pairs({again}));
  EXPECT_NE(pairs({first}), pairs({other}));
  EXPECT_TRUE(randomPointInsidepoly(angle(), unasked));
  EXPECT_TRUE(randomPointInsidepoly(angle(), again, 0));
  EXPECT_EQ(pairs({unasked}), pairs({again}));
}

// A third of the area of the angle lies above 1: of 3000 points 1000, with a standard deviation of
// sqrt(3000 * 1/3 * 2/3) = 26.
TEST(RandomPointInsidepoly, IsSpreadEvenly) {
  int above = 0;
  for (std::uint64_t seed = 0; seed < 3000; ++seed) {
    Point point;
    ASSERT_TRUE(randomPointInsidepoly(angle(), point, seed));
    if (point[1] > 1.0) ++above;
  }
  EXPECT_NEAR(above, 1000, 4 * 26);
}

// One nanometre thin on 1.4 m of a slope: a point drawn in the box around it misses it.
TEST(RandomPointInsidepoly, IsFoundInTheThinnestPolygon) {
  const Polygon thin = closed({{0, 0}, {1000, 1000}, {1000, 1000.000001}, {0, 0.000001}});
  for (std::uint64_t seed = 0; seed < 20; ++seed) {
    Point point;
    ASSERT_TRUE(randomPointInsidepoly(thin, point, seed));
    EXPECT_TRUE(pointInPolygon(point, thin));
  }
}

TEST(RandomPointInsidepoly, StaysOutOfAVoid) {
  const Polygon keyhole =
      closed({{0, 0}, {4, 0}, {4, 4}, {0, 4}, {0, 0}, {1, 1}, {1, 3}, {3, 3}, {3, 1}, {1, 1}});
  for (std::uint64_t seed = 0; seed < 200; ++seed) {
    Point point;
    ASSERT_TRUE(randomPointInsidepoly(keyhole, point, seed));
    EXPECT_FALSE(point[0] > 1 && point[0] < 3 && point[1] > 1 && point[1] < 3) << seed;
  }
}

TEST(RandomPointInsidepoly, LeavesThePointAloneWithoutGround) {
  std::vector<Polygon> none = polygons_with_no_place();
  none.insert(none.end(), {Polygon{}, polygon({{1, 1}}), closed({{1, 1}, {3, 2}}),
                           closed({{1, 1}, {2, 2}, {4, 4}})});
  for (const Polygon& each : none) {
    Point point{7, 8};
    EXPECT_FALSE(randomPointInsidepoly(each, point));
    EXPECT_EQ(pairs({point}), (Pairs{{7, 8}}));
  }
}

Pairs merged(Polygon polygon, double tol) {
  mergeCoincidentVertices(polygon, tol);
  return pairs(polygon);
}

TEST(MergeCoincidentVertices, RemovesWhatLiesCloserThanTheTolerance) {
  EXPECT_EQ(merged(closed({{0, 0}, {4, 0}, {4, 0.5}, {4, 4}, {3.75, 4}, {0, 4}}), 1.0),
            (Pairs{{0, 0}, {4, 0}, {4, 4}, {0, 4}, {0, 0}}));
}

// 3, 4, 5: the distance is 5 exactly.
TEST(MergeCoincidentVertices, KeepsWhatLiesAtTheTolerance) {
  const Polygon triangle = closed({{0, 0}, {3, 4}, {-20, 4}});
  EXPECT_EQ(merged(triangle, 5.0), pairs(triangle));
  EXPECT_EQ(merged(triangle, 5.0000001), (Pairs{{0, 0}, {-20, 4}, {0, 0}}));
}

TEST(MergeCoincidentVertices, KeepsTheFirstVertexAndDropsThoseBeforeTheEnd) {
  EXPECT_EQ(merged(closed({{0, 0}, {4, 0}, {4, 4}, {0, 0.2}, {0, 0.1}}), 0.5),
            (Pairs{{0, 0}, {4, 0}, {4, 4}, {0, 0}}));
}

// Steps of 0.75 with a tolerance of 1: every second one lies 1.5 from the one kept.
TEST(MergeCoincidentVertices, MeasuresFromTheVertexKept) {
  EXPECT_EQ(merged(closed({{0, 0}, {0.75, 0}, {1.5, 0}, {2.25, 0}, {3, 0}, {3, 9}}), 1.0),
            (Pairs{{0, 0}, {1.5, 0}, {3, 0}, {3, 9}, {0, 0}}));
}

TEST(MergeCoincidentVertices, ClosesAnOpenPolygon) {
  EXPECT_EQ(merged(polygon({{0, 0}, {4, 0}, {4, 4}}), 0.1),
            (Pairs{{0, 0}, {4, 0}, {4, 4}, {0, 0}}));
  EXPECT_EQ(merged(polygon({{0, 0}, {4, 0}, {4, 4}, {0.01, 0}}), 0.1),
            (Pairs{{0, 0}, {4, 0}, {4, 4}, {0, 0}}));
}

TEST(MergeCoincidentVertices, LeavesOnePlaceTwice) {
  EXPECT_EQ(merged(closed({{1, 2}, {1.1, 2}, {1, 2.1}}), 1.0), (Pairs{{1, 2}, {1, 2}}));
  EXPECT_EQ(merged(polygon({{1, 2}}), 1.0), (Pairs{{1, 2}, {1, 2}}));
  EXPECT_EQ(merged({}, 1.0), Pairs{});
}

TEST(MergeCoincidentVertices, ChangesNothingTheSecondTime) {
  RandomPolygons random(22);
  for (int trial = 0; trial < 300; ++trial) {
    Polygon once = random.tangle(random.integer(1, 40), 5.0);
    mergeCoincidentVertices(once, 1.0);
    EXPECT_EQ(merged(once, 1.0), pairs(once)) << trial;
  }
}

TEST(MergeCoincidentVertices, RemovesNothingWithoutAPositiveTolerance) {
  const Polygon repeated = closed({{0, 0}, {4, 0}, {4, 0}, {4, 4}});
  for (const double tol : {0.0, -1.0, nan})
    EXPECT_EQ(merged(repeated, tol), pairs(repeated)) << tol;
}

TEST(MergeCoincidentVertices, KeepsWhatIsNoPlace) {
  Polygon bad = closed({{0, 0}, {4, 0}, {4, nan}, {4, 4}});
  mergeCoincidentVertices(bad, 0.1);
  EXPECT_EQ(bad.size(), 5U);
  EXPECT_TRUE(std::isnan(bad[2][1]));
}

}  // namespace
