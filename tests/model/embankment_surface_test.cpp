// SPDX-License-Identifier: Apache-2.0
#include "ostrel/embankment_surface.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

xEmbankmentSurface surface(std::vector<arma::Col<double>::fixed<2>> profile) {
  xEmbankmentSurface made;
  made.profile = std::move(profile);
  return made;
}

TEST(EmbankmentSurface, IsEmptyAfterReset) {
  auto made = surface({{1.0, 2.0}});
  made.reset();
  EXPECT_TRUE(made.profile.empty());
}

// From the origin to (4000, 1000): 1/4. From there to (6000, 2000): 1/2. Then down by 1/5.
TEST(EmbankmentSurface, GivesTheSlopeOfEachSegment) {
  const auto made = surface({{4000.0, 1000.0}, {6000.0, 2000.0}, {11000.0, 1000.0}});
  EXPECT_DOUBLE_EQ(made._computeAngle(0), std::atan(0.25));
  EXPECT_DOUBLE_EQ(made._computeAngle(1), std::atan(0.5));
  EXPECT_DOUBLE_EQ(made._computeAngle(2), std::atan(-0.2));
}

TEST(EmbankmentSurface, GivesARightAngleForAVerticalSegment) {
  const auto made = surface({{1000.0, 0.0}, {1000.0, 500.0}, {1000.0, 100.0}});
  EXPECT_DOUBLE_EQ(made._computeAngle(1), std::numbers::pi / 2.0);
  EXPECT_DOUBLE_EQ(made._computeAngle(2), -std::numbers::pi / 2.0);
}

TEST(EmbankmentSurface, GivesNoNumberForASegmentOfNoLength) {
  const auto made = surface({{0.0, 0.0}, {1000.0, 500.0}});
  EXPECT_TRUE(std::isnan(made._computeAngle(0)));
  EXPECT_DOUBLE_EQ(made._computeAngle(1), std::atan(0.5));
}

TEST(EmbankmentSurface, GivesZeroWhereThereIsNoPoint) {
  const auto made = surface({{4000.0, 1000.0}});
  EXPECT_EQ(made._computeAngle(1), 0.0);
  EXPECT_EQ(made._computeAngle(-1), 0.0);
  EXPECT_EQ(made._computeAngle(std::numeric_limits<int>::max()), 0.0);
  EXPECT_EQ(surface({})._computeAngle(0), 0.0);
}

// A = 1000 * 5000 / 2 + 1000 * 5000 = 7.5e6; 2 A / 10000² = 0.15.
TEST(EmbankmentSurface, EvensOutAProfileByItsArea) {
  const auto made = surface({{5000.0, 1000.0}, {10000.0, 1000.0}});
  EXPECT_DOUBLE_EQ(made.computeAngle(), std::atan(0.15));
}

TEST(EmbankmentSurface, EvensOutAStraightProfileToItself) {
  EXPECT_DOUBLE_EQ(surface({{5000.0, 1000.0}, {20000.0, 4000.0}}).computeAngle(), std::atan(0.2));
  EXPECT_DOUBLE_EQ(surface({{0.0, 0.0}, {10000.0, -1000.0}}).computeAngle(), std::atan(-0.1));
}

TEST(EmbankmentSurface, EvensOutNoProfileToZero) {
  EXPECT_EQ(surface({}).computeAngle(), 0.0);
}

// It begins and ends at x = 0. Out to (1000, 1000) and back to (0, 2000): A = 0.5e6 - 1.5e6 < 0.
TEST(EmbankmentSurface, GivesARightAngleOrNoNumberForAProfileOfNoWidth) {
  EXPECT_DOUBLE_EQ(surface({{1000.0, 1000.0}, {0.0, 2000.0}}).computeAngle(),
                   -std::numbers::pi / 2.0);
  EXPECT_TRUE(std::isnan(surface({{0.0, 0.0}}).computeAngle()));
}

}  // namespace
