// SPDX-License-Identifier: Apache-2.0
#include "model/probe.h"

#include "support/random_contents.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace {

using ostrel::model::crossing;
using ostrel::model::parallel;
using ostrel::model::Point;
using ostrel::model::Polygon;
using ostrel::model::probe_crossings;
using ostrel::model::Segment;
using ostrel::testing::RandomContents;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

// A plumb line at x = 0.1 from the elevation 1e7 down to -1e7.
const Segment plumb{.from = {0.1, 1e7}, .to = {0.1, -1e7}};

std::vector<double> elevations(const std::vector<Polygon>& polygons) {
  std::vector<double> found;
  for (const auto& each : probe_crossings(plumb, polygons))
    found.push_back(each.point[1]);
  return found;
}

TEST(Parallel, HoldsForBothDirections) {
  EXPECT_TRUE(parallel(plumb, {.from = {5.0, 0.0}, .to = {5.0, -100.0}}));
  EXPECT_TRUE(parallel(plumb, {.from = {5.0, -100.0}, .to = {5.0, 0.0}}));
  EXPECT_FALSE(parallel(plumb, {.from = {5.0, 0.0}, .to = {-5.0, 0.0}}));
}

// For a small slope s against the plumb line 1 - cos = s² / 2: 9.8e-9 for 1.4e-4 and 1.125e-8 for
// 1.5e-4; the limit is 1e-8.
TEST(Parallel, EndsAtACosineOfOneLess1e8) {
  EXPECT_TRUE(parallel(plumb, {.from = {0.0, 0.0}, .to = {1.4, -1e4}}));
  EXPECT_FALSE(parallel(plumb, {.from = {0.0, 0.0}, .to = {1.5, -1e4}}));
}

TEST(Parallel, HoldsForASegmentShorterThan1e8) {
  EXPECT_TRUE(parallel(plumb, {.from = {0.1, 0.0}, .to = {0.1 + 0.9e-8, 0.0}}));
  EXPECT_FALSE(parallel(plumb, {.from = {0.0, 0.0}, .to = {1.1e-8, 0.0}}));
  const Segment point{.from = {0.1, 0.0}, .to = {0.1, 0.0}};
  EXPECT_TRUE(parallel(point, {.from = {-1.0, 0.0}, .to = {1.0, 0.0}}));
}

// The side rises by 1/4: at x = 0.1 it stands at 1000 + 0.025.
TEST(Crossing, LiesOnBothLinesAndRemembersTheSide) {
  const auto found = crossing(plumb, {.from = {-4000.0, 0.0}, .to = {4000.0, 2000.0}});
  ASSERT_TRUE(found.has_value());
  EXPECT_NEAR(found->point[0], 0.1, 1e-12);
  EXPECT_NEAR(found->point[1], 1000.025, 1e-12);
  EXPECT_EQ(found->side.from[0], -4000.0);
  EXPECT_EQ(found->side.to[1], 2000.0);
}

TEST(Crossing, WithALevelSideHasThatVeryElevation) {
  RandomContents random(1);
  for (int i = 0; i < 1000; ++i) {
    const double level = random.on_grid(-60'000.0, 5'000.0);
    const Segment side{.from = {-random.on_grid(0.0, 90'000.0), level},
                       .to = {1.0 + random.on_grid(0.0, 90'000.0), level}};
    const auto found = crossing(plumb, side);
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(found->point[1], level);
    EXPECT_EQ(crossing(plumb, {.from = side.to, .to = side.from})->point[1], level);
  }
}

// Sides of 1000 mm that end short of x = 0.1, by 5e-6 mm (u = 1 + 5e-9) and by 2e-5 (1 + 2e-8).
TEST(Crossing, ReachesBeyondTheEndsOfASideByAHundredMillionth) {
  const auto side = [](double gap) {
    return Segment{.from = {-999.9 - gap, 0.0}, .to = {0.1 - gap, 0.0}};
  };
  EXPECT_TRUE(crossing(plumb, side(5e-6)).has_value());
  EXPECT_FALSE(crossing(plumb, side(2e-5)).has_value());
  const auto reversed = [&](double gap) {
    return Segment{.from = side(gap).to, .to = side(gap).from};
  };
  EXPECT_TRUE(crossing(plumb, reversed(5e-6)).has_value());
  EXPECT_FALSE(crossing(plumb, reversed(2e-5)).has_value());
}

// The probe is 2e7 mm long: it reaches 0.2 mm beyond its ends.
TEST(Crossing, ReachesBeyondTheEndsOfTheProbeByAHundredMillionth) {
  const auto level = [](double y) {
    return crossing(plumb, {.from = {-1.0, y}, .to = {1.0, y}}).has_value();
  };
  EXPECT_TRUE(level(1e7 + 0.1));
  EXPECT_FALSE(level(1e7 + 0.3));
  EXPECT_TRUE(level(-1e7 - 0.1));
  EXPECT_FALSE(level(-1e7 - 0.3));
}

// Sides across the probe with one, two or all coordinates odd.
std::vector<Segment> odd_sides(double odd) {
  return {{.from = {odd, 0.0}, .to = {5.0, 0.0}},
          {.from = {-5.0, odd}, .to = {5.0, 0.0}},
          {.from = {-5.0, 0.0}, .to = {odd, odd}},
          {.from = {odd, 0.0}, .to = {5.0, odd}},
          {.from = {odd, odd}, .to = {-odd, -odd}}};
}

TEST(Crossing, IsNoneForCoordinatesThatAreNotFinite) {
  for (const double odd : {not_a_number, infinity, -infinity}) {
    for (const Segment& side : odd_sides(odd))
      EXPECT_FALSE(crossing(plumb, side).has_value()) << odd;
  }
}

TEST(Crossing, IsFiniteOrNoneForHugeCoordinates) {
  for (const double odd : {1e150, -1e150, 1e300, -1e300, 1.7e308, -1.7e308}) {
    for (const Segment& side : odd_sides(odd)) {
      const auto found = crossing(plumb, side);
      EXPECT_TRUE(!found || std::isfinite(found->point[1])) << odd;
    }
  }
}

TEST(ProbeCrossings, GoFromTheTopDownWhateverTheOrderOfTheSides) {
  const Polygon low{{10.0, -300.0}, {-10.0, -300.0}, {-10.0, -400.0}, {10.0, -400.0}};
  const Polygon high{{-10.0, -200.0}, {10.0, -200.0}, {10.0, -100.0}, {-10.0, -100.0}};
  EXPECT_EQ(elevations({low, high}), (std::vector<double>{-100.0, -200.0, -300.0, -400.0}));
}

TEST(ProbeCrossings, DoNotCloseAPolygon) {
  Polygon triangle{{-10.0, 0.0}, {10.0, 0.0}, {10.0, -50.0}};
  EXPECT_EQ(elevations({triangle}).size(), 1U);
  triangle.push_back(triangle.front());
  EXPECT_EQ(elevations({triangle}).size(), 2U);
}

TEST(ProbeCrossings, AreNoneForPolygonsWithFewerThanTwoVertices) {
  EXPECT_TRUE(elevations({}).empty());
  EXPECT_TRUE(elevations({{}, {{0.1, 0.0}}}).empty());
}

// Both sides end in the vertex on the probe; the first stored one is kept.
TEST(ProbeCrossings, CountAVertexOnTheProbeOnce) {
  const auto found = probe_crossings(plumb, {{{-10.0, -5.0}, {0.1, 0.0}, {10.0, -8.0}}});
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].side.from[0], -10.0);
}

// Four levels, each 6e-5 mm below the one before: the second is near the first and goes; the third
// is 1.2e-4 from the first and stays; the fourth is near the third and goes.
TEST(ProbeCrossings, NearOneThatIsKeptAreDropped) {
  std::vector<Polygon> sides;
  for (int i = 0; i < 4; ++i)
    sides.push_back({{-1.0, -6e-5 * i}, {1.0, -6e-5 * i}});
  EXPECT_EQ(elevations(sides), (std::vector<double>{-0.0, -1.2e-4}));
}

// 1.25e-4 and 2^-14 = 0.6e-4: exactly the distance of 1e-4 is not representable, but these lie on
// either side.
TEST(ProbeCrossings, FartherApartThan1e4AreKept) {
  EXPECT_EQ(elevations({{{-1.0, 0.0}, {1.0, 0.0}}, {{-1.0, -1.25e-4}, {1.0, -1.25e-4}}}).size(),
            2U);
  EXPECT_EQ(elevations({{{-1.0, 0.0}, {1.0, 0.0}}, {{-1.0, -0.9e-4}, {1.0, -0.9e-4}}}).size(), 1U);
}

TEST(ProbeCrossings, OfASelfCrossingPolygonAreAllThere) {
  // A bow tie whose two diagonals cross the probe at -50 -+ a little, between level sides.
  const Polygon bow{{-50.0, 0.0}, {50.0, 0.0}, {-50.0, -100.0}, {50.0, -100.0}, {-50.0, 0.0}};
  const auto found = elevations({bow});
  ASSERT_EQ(found.size(), 4U);
  EXPECT_EQ(found[0], 0.0);
  EXPECT_NEAR(found[1], -49.9, 1e-12);  // 0.1 mm to the right of the middle of (50,0)-(-50,-100)
  EXPECT_NEAR(found[2], -50.1, 1e-12);
  EXPECT_EQ(found[3], -100.0);
}

}  // namespace
