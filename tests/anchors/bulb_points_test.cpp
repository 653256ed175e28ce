// SPDX-License-Identifier: Apache-2.0
#include "anchors/bulb_points.h"

#include "ostrel/tolerances.h"
#include "support/tolerances_guard.h"
#include "support/wall_builder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using ostrel::anchors::bonded_length;
using ostrel::anchors::BondedLength;
using ostrel::anchors::bulb_points;
using ostrel::anchors::delete_repetitions;
using ostrel::testing::rectangle;
using ostrel::testing::TolerancesGuard;
using sorrel::Point;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

xBoundSoilLayer layer(double bottom, double top) {
  xBoundSoilLayer ground;
  ground.polygons = {rectangle(0.0, 50000.0, bottom, top)};
  return ground;
}

// Falls 3 on 4 from (8000, -8000).
const BondedLength falling{.start = {8000.0, -8000.0}, .end = {12000.0, -11000.0}};

void expect_points(const std::vector<Point>& points, const std::vector<Point>& expected) {
  ASSERT_EQ(points.size(), expected.size());
  for (std::size_t i = 0; i < points.size(); ++i) {
    EXPECT_NEAR(points[i][0], expected[i][0], 1e-8) << "point " << i;
    EXPECT_NEAR(points[i][1], expected[i][1], 1e-8) << "point " << i;
  }
}

// sin 0.6, cos 0.8: 10 000 mm free end 8000 away and 6000 below the head, 15 000 mm 12 000 and
// 9000.
TEST(BondedLength, FollowsTheFreeLengthDownwards) {
  xAnchor anchor;
  anchor.z = 2000.0;
  anchor.setAngleRad(std::asin(0.6));
  anchor.setFreeLength(10000.0);
  anchor.setBulbLength(5000.0);
  const BondedLength bonded = bonded_length(anchor);
  expect_points({bonded.start, bonded.end}, {falling.start, falling.end});
}

TEST(BulbPoints, AreTheEndsWithinOneLayer) {
  expect_points(bulb_points(falling, {layer(-20000.0, 0.0)}), {falling.start, falling.end});
  expect_points(bulb_points(falling, {}), {falling.start, falling.end});
}

// The borders at -9000 and -10 000 are met a third and two thirds along: every 4000 / 3 in x.
TEST(BulbPoints, TakeABorderOfTwoLayersOnce) {
  const std::vector<xBoundSoilLayer> layers{layer(-9000.0, 0.0), layer(-10000.0, -9000.0),
                                            layer(-20000.0, -10000.0)};
  expect_points(bulb_points(falling, layers), {falling.start,
                                               {8000.0 + 4000.0 / 3.0, -9000.0},
                                               {8000.0 + 8000.0 / 3.0, -10000.0},
                                               falling.end});
}

TEST(BulbPoints, StandInTheOrderOfTheLayers) {
  const std::vector<xBoundSoilLayer> layers{layer(-20000.0, -10000.0), layer(-10000.0, -9000.0),
                                            layer(-9000.0, 0.0)};
  const Point upper{8000.0 + 4000.0 / 3.0, -9000.0};
  const Point lower{8000.0 + 8000.0 / 3.0, -10000.0};
  expect_points(bulb_points(falling, layers),
                {falling.start, lower, upper, lower, upper, falling.end});
}

TEST(BulbPoints, StandAlongTheAnchorForALayerOfTwoPolygons) {
  xBoundSoilLayer both;
  both.polygons = {rectangle(0.0, 50000.0, -20000.0, -10000.0),
                   rectangle(0.0, 50000.0, -9000.0, 0.0)};
  expect_points(bulb_points(falling, {both}), {falling.start,
                                               {8000.0 + 4000.0 / 3.0, -9000.0},
                                               {8000.0 + 8000.0 / 3.0, -10000.0},
                                               falling.end});
}

// Start, the border of the first layer, that of the second, its lower border, end: the start lies
// there three times and stays twice, the end twice and stays once.
TEST(BulbPoints, KeepAnEndOnTheBorderOfTwoLayersTwice) {
  const std::vector<xBoundSoilLayer> layers{layer(-8000.0, 0.0), layer(-11000.0, -8000.0)};
  expect_points(bulb_points(falling, layers), {falling.start, falling.start, falling.end});
}

TEST(BulbPoints, AreOneForABondedLengthOfZero) {
  const BondedLength none{.start = falling.start, .end = falling.start};
  expect_points(bulb_points(none, {layer(-20000.0, 0.0)}), {falling.start});
}

TEST(BulbPoints, StayApartWhereTheyAreNoPlaces) {
  const BondedLength nowhere{.start = {nan, 0.0}, .end = {0.0, nan}};
  EXPECT_EQ(bulb_points(nowhere, {layer(-20000.0, 0.0)}).size(), 2U);
}

// Both ends are 11 314 and 16 279 mm from the origin.
TEST(BulbPoints, RepeatWithinTheToleranceOfPositions) {
  const TolerancesGuard guard;
  xTolerances tolerances;
  tolerances.values[xTolerances::position_identity] = 5000.0;
  setTolerances(tolerances);
  EXPECT_EQ(bulb_points(falling, {}).size(), 1U);
  tolerances.values[xTolerances::position_identity] = 4900.0;
  setTolerances(tolerances);
  EXPECT_EQ(bulb_points(falling, {}).size(), 2U);
}

TEST(DeleteRepetitions, LeavesTwoOfThreePointsAtOnePlace) {
  const Point place{3.0, -4.0};
  std::vector<Point> points{place, place, place};
  delete_repetitions(points, 1e-6);
  EXPECT_EQ(points.size(), 2U);
}

// 3, 4, 5: both lie 5 m from the origin.
TEST(DeleteRepetitions, TakesPointsEquallyFarFromTheOriginForOne) {
  std::vector<Point> points{{3000.0, -4000.0}, {5000.0, 0.0}, {6000.0, 0.0}};
  delete_repetitions(points, 1e-6);
  expect_points(points, {{3000.0, -4000.0}, {6000.0, 0.0}});
}

TEST(DeleteRepetitions, DeletesUpToTheToleranceItself) {
  std::vector<Point> points{{10.0, 0.0}, {10.5, 0.0}, {11.25, 0.0}};
  delete_repetitions(points, 0.5);
  expect_points(points, {{10.0, 0.0}, {11.25, 0.0}});
  points = {{10.0, 0.0}, {10.75, 0.0}};
  delete_repetitions(points, 0.5);
  EXPECT_EQ(points.size(), 2U);
}

TEST(DeleteRepetitions, TakesAnyNumberOfPoints) {
  std::vector<Point> points;
  delete_repetitions(points, 1e-6);
  EXPECT_TRUE(points.empty());
  points = {{1.0, 1.0}};
  delete_repetitions(points, 1e-6);
  EXPECT_EQ(points.size(), 1U);
}

}  // namespace
