// SPDX-License-Identifier: Apache-2.0
#include "soil/surcharge_laws.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace ostrel::soil {
namespace {

using std::numbers::pi;
using std::numbers::sqrt3;

// --- Strip ---

TEST(StripInfluence, SeesTheEdgesUnderTheirAngles) {
  // Edges at 45° and 60°: b = 15°, m = 52.5°, -cos(105°) sin(15°) = sin²(15°) = (2 - sqrt(3)) / 4.
  EXPECT_NEAR(strip_influence(1000.0, 1000.0 * (sqrt3 - 1.0), 1000.0),
              pi / 12.0 + (2.0 - sqrt3) / 4.0, 1e-14);
}

TEST(StripInfluence, BeginsAtTheWall) {
  // Edges at 0 and 45°: b = 45°, m = 22.5°, cos(45°) sin(45°) = 1/2.
  EXPECT_NEAR(strip_influence(0.0, 1000.0, 1000.0), pi / 4.0 - 0.5, 1e-14);
}

TEST(StripInfluence, IsTheFullLoadBesideAStripAtTheWall) {
  // At its own level the strip is seen from 0 to 90°: b = 90°, cos(90°) = 0.
  EXPECT_NEAR(strip_influence(0.0, 1000.0, 0.0), pi / 2.0, 1e-15);
}

TEST(StripInfluence, IsNothingAtTheLevelOfAStripAwayFromTheWall) {
  EXPECT_EQ(strip_influence(500.0, 1000.0, 0.0), 0.0);  // both edges at 90°
}

TEST(StripInfluence, StraddlesTheWall) {
  // Edges at -45° and 45°: b = 90°, m = 0, cos(0) sin(90°) = 1.
  EXPECT_NEAR(strip_influence(-1000.0, 2000.0, 1000.0), pi / 2.0 - 1.0, 1e-14);
}

TEST(StripInfluence, TakesAnEdgeWithinATenthOfAMicrometreAsAtTheWall) {
  EXPECT_EQ(strip_influence(0.99e-4, 1000.0 - 0.99e-4, 1000.0),
            strip_influence(0.0, 1000.0, 1000.0));
  // At its own level, the nearer edge is seen at 90° from 1e-4 on.
  EXPECT_NEAR(strip_influence(-0.99e-4, 1000.0, 0.0), pi / 2.0, 1e-15);
  EXPECT_EQ(strip_influence(1e-4, 1000.0, 0.0), 0.0);
  // The farther edge too: one at the wall is seen at 0.
  EXPECT_NEAR(strip_influence(-1000.0, 1000.0, 0.0), -pi / 2.0, 1e-15);
}

TEST(StripInfluence, TakesADepthWithinATenthOfAMicrometreAsTheLevelOfTheLoad) {
  EXPECT_EQ(strip_influence(500.0, 1000.0, 0.99e-4), 0.0);
  EXPECT_EQ(strip_influence(500.0, 1000.0, -0.99e-4), 0.0);
  // From 1e-4 on the two angles differ: b = 1e-4 / 500 - 1e-4 / 1500, doubled by the cosine of
  // 180°.
  EXPECT_NEAR(strip_influence(500.0, 1000.0, 1e-4), 2.0 * (1e-4 / 500.0 - 1e-4 / 1500.0), 1e-15);
}

// --- Line ---

TEST(LineInfluence, IsTheSameForAllNearLoads) {
  // n = 0.4: 0.203 * 0.4 / (10 * 0.32²) = 0.0812 / 1.024.
  for (const double position : {0.0, 1.0, 3.9}) {
    EXPECT_NEAR(line_influence(position, 10.0, 4.0), 0.0812 / 1.024, 1e-16);
  }
}

TEST(LineInfluence, FollowsTheDistanceOfFarLoads) {
  // m = n = 0.5: 4 / (10 pi) * 0.25 * 0.5 / 0.5².
  EXPECT_NEAR(line_influence(5.0, 10.0, 5.0), 0.2 / pi, 1e-16);
  // m = 1, n = 0.5: 4 / (10 pi) * 0.5 / 1.25².
  EXPECT_NEAR(line_influence(10.0, 10.0, 5.0), 0.128 / pi, 1e-16);
}

TEST(LineInfluence, CountsALoadAtFourTenthsAsFar) {
  // m = n = 0.4: 4 / (10 pi) * 0.16 * 0.4 / 0.32² = 0.25 / pi = 0.0796, not 0.0793.
  EXPECT_NEAR(line_influence(4.0, 10.0, 4.0), 0.25 / pi, 1e-16);
}

TEST(LineInfluence, IsNothingAtTheLevelOfTheLoad) {
  EXPECT_EQ(line_influence(1.0, 10.0, 0.0), 0.0);
  EXPECT_EQ(line_influence(5.0, 10.0, 0.0), 0.0);
}

// --- Point ---

TEST(PointInfluence, IsTheSameForAllNearLoads) {
  // n = 0.4: 0.28 * 0.16 / 0.32³ = 0.0448 / 0.032768.
  for (const double position : {0.0, 1.0, 3.9}) {
    EXPECT_NEAR(point_influence(position, 10.0, 4.0), 0.0448 / 0.032768, 1e-14);
  }
}

TEST(PointInfluence, FollowsTheDistanceOfFarLoads) {
  // m = n = 0.5: 1.77 * 0.25 * 0.25 / 0.5³ = 0.885.
  EXPECT_NEAR(point_influence(5.0, 10.0, 5.0), 0.885, 1e-15);
}

TEST(PointInfluence, CountsALoadAtFourTenthsAsFar) {
  // m = n = 0.4: 1.77 * 0.16 * 0.16 / 0.32³ = 0.045312 / 0.032768.
  EXPECT_NEAR(point_influence(4.0, 10.0, 4.0), 0.045312 / 0.032768, 1e-14);
}

TEST(PointInfluence, IsNothingAtTheLevelOfTheLoad) {
  EXPECT_EQ(point_influence(1.0, 10.0, 0.0), 0.0);
  EXPECT_EQ(point_influence(5.0, 10.0, 0.0), 0.0);
}

TEST(PointSpread, IsTheSpacingFarFromTheLoad) {
  // Over 500 to either side of 1e6: 1 - 1.1² (5e-4)² / 3 = 1 - 1.008e-7 on average.
  EXPECT_NEAR(point_spread(1e6, 1000.0), 1000.0 * (1.0 - 1.21 * 25e-8 / 3.0), 1e-7);
}

TEST(PointSpread, SumsAHundredStepsAtTheirMiddles) {
  // Load at 1000, spacing 2000: both sides to 45°. The integral of cos²(1.1 a) over the wall, with
  // y = 1000 tan(a), by Simpson's rule over a; the sum at the middles of steps of h = 10 is longer
  // by -h² / 24 (f'(end) - f'(start)) = h² / 24 * 1.1 sin(99°) cos²(45°) / 1000 on each side.
  constexpr int n = 2000;
  const auto f = [](double a) { return std::pow(std::cos(1.1 * a) / std::cos(a), 2.0); };
  double integral = f(0.0) + f(pi / 4.0);
  for (int i = 1; i < n; ++i) {
    integral += (i % 2 == 1 ? 4.0 : 2.0) * f(pi / 4.0 * i / n);
  }
  integral *= 1000.0 * pi / 4.0 / n / 3.0;
  const double excess = 100.0 / 24.0 * 1.1 * std::sin(0.55 * pi) * 0.5 / 1000.0;
  EXPECT_NEAR(point_spread(1000.0, 2000.0), 2.0 * (integral + excess), 1e-6);
}

TEST(PointSpread, EndsWhereThePressureHasFallenToZero) {
  // tan(pi / 2.2) = 6.955: a load at 1000 reaches 6955 to either side.
  EXPECT_EQ(point_spread(1000.0, 1e9), point_spread(1000.0, 2.0 * 6956.0));
  EXPECT_NE(point_spread(1000.0, 1e9), point_spread(1000.0, 2.0 * 6954.0));
  EXPECT_NEAR(std::tan(1.427996660722633), std::tan(pi / 2.2), 1e-12);
}

TEST(PointSpread, GrowsInProportion) {
  EXPECT_NEAR(point_spread(3000.0, 4500.0), 3.0 * point_spread(1000.0, 1500.0), 1e-9);
}

TEST(PointSpread, IsNotANumberForALoadAtTheWall) {
  EXPECT_TRUE(std::isnan(point_spread(0.0, 1000.0)));
}

}  // namespace
}  // namespace ostrel::soil
