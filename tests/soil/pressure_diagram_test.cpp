// SPDX-License-Identifier: Apache-2.0
#include "soil/pressure_diagram.h"

#include "support/soil_column.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace ostrel::soil {
namespace {

using ostrel::testing::layer_of;
using ostrel::testing::smooth_soil;
using std::numbers::pi;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

void expect_ends(const StepEnds& ends, double top, double bottom) {
  EXPECT_NEAR(ends.top, top, 1e-14);
  EXPECT_NEAR(ends.bottom, bottom, 1e-14);
}

TEST(LayerRange, BeginsAboveADepthByAMillionthOfAMillimetre) {
  const xSoilLayer layer = layer_of(smooth_soil(), {0.0, 1.0});
  EXPECT_TRUE(begins_above(layer, 2.0));
  EXPECT_TRUE(begins_above(layer, 1e-6));
  EXPECT_FALSE(begins_above(layer, 0.99e-6));
  EXPECT_FALSE(begins_above(layer, 0.0));
  EXPECT_FALSE(begins_above(layer, -1.0));
  EXPECT_FALSE(begins_above(layer, nan));
}

TEST(LayerRange, EndsBelowADepthByAMillionthOfAMillimetre) {
  const xSoilLayer layer = layer_of(smooth_soil(), {-1.0, 0.0});
  EXPECT_TRUE(ends_below(layer, -2.0));
  EXPECT_TRUE(ends_below(layer, -1e-6));
  EXPECT_FALSE(ends_below(layer, -0.99e-6));
  EXPECT_FALSE(ends_below(layer, 1.0));
  EXPECT_FALSE(ends_below(layer, nan));
}

TEST(SlopeRatio, IsOneOnLevelGround) {
  EXPECT_EQ(slope_ratio(0.0, 0.0), 1.0);
  EXPECT_EQ(slope_ratio(0.3, 0.0), 1.0);
}

TEST(SlopeRatio, ComparesTheHeightsAlongAndBesideTheBack) {
  EXPECT_NEAR(slope_ratio(0.0, pi / 3.0), 2.0, 1e-14);  // 1 / cos(60°)
  // theta 30°, slope 15°: sin(60°) / sin(75°); slope -30°: sin(60°) / sin(30°).
  EXPECT_NEAR(slope_ratio(pi / 6.0, pi / 12.0), std::sqrt(0.75) / std::cos(pi / 12.0), 1e-14);
  EXPECT_NEAR(slope_ratio(pi / 6.0, -pi / 6.0), std::sqrt(3.0), 1e-14);
}

TEST(EmptyDiagram, SpansTheLayer) {
  const xLayerPress diagram = empty_diagram(layer_of(smooth_soil(), {1000.0, 1500.0, 4000.0}));
  EXPECT_EQ(diagram.start.x, 0.0);
  EXPECT_EQ(diagram.start.y, -1000.0);
  EXPECT_EQ(diagram.end.x, 0.0);
  EXPECT_EQ(diagram.end.y, -4000.0);
  EXPECT_TRUE(diagram.points.empty());
}

TEST(ResultantOf, StandsAtTwoThirdsOfATriangle) {
  const auto [force, position] = resultant_of({{0.0, 0.0}, {3000.0, 6.0}});
  EXPECT_DOUBLE_EQ(force, 9000.0);
  EXPECT_DOUBLE_EQ(position, 2000.0);
}

TEST(ResultantOf, AddsTheTrapezoids) {
  // (0, 2) (10, 4) (20, 4) (20, 6) (50, 0): areas 30, 40, 0, 90; moments about 0
  //   10 (2*2*0 + 0*4 + 2*10 + 2*4*10) / 6 = 1000 / 6, 40 * 15 = 600, 0, 90 * (20 + 10) = 2700.
  const auto [force, position] =
      resultant_of({{0.0, 2.0}, {10.0, 4.0}, {20.0, 4.0}, {20.0, 6.0}, {50.0, 0.0}});
  EXPECT_DOUBLE_EQ(force, 160.0);
  EXPECT_DOUBLE_EQ(position, (1000.0 / 6.0 + 3300.0) / 160.0);
}

TEST(ResultantOf, StandsInTheMiddleWhereItIsNothing) {
  const auto zero = resultant_of({{100.0, 0.0}, {200.0, 0.0}, {500.0, 0.0}});
  EXPECT_EQ(zero.force, 0.0);
  EXPECT_EQ(zero.position, 300.0);
  // Two triangles that cancel: +5 * 10 / 2 and -5 * 10 / 2.
  const auto balanced = resultant_of({{0.0, 5.0}, {10.0, 0.0}, {20.0, -5.0}});
  EXPECT_EQ(balanced.force, 0.0);
  EXPECT_EQ(balanced.position, 10.0);
}

TEST(ResultantOf, NeedsNoPoints) {
  EXPECT_EQ(resultant_of({}).force, 0.0);
  EXPECT_EQ(resultant_of({}).position, 0.0);
  EXPECT_EQ(resultant_of({{70.0, 5.0}}).force, 0.0);
  EXPECT_EQ(resultant_of({{70.0, 5.0}}).position, 70.0);
}

TEST(Overburden, GrowsStepByStep) {
  Overburden overburden;
  expect_ends(overburden.add_step(1000.0, 2e-5, 1.0), 0.0, 0.02);
  expect_ends(overburden.add_step(500.0, 1e-5, 1.0), 0.02, 0.025);
  expect_ends(overburden.add_step(500.0, 2e-5, 1.0), 0.025, 0.035);
}

TEST(Overburden, TakesTheSlopeAtEveryStepBelowTheFirst) {
  Overburden overburden;
  expect_ends(overburden.add_step(1000.0, 2e-5, 2.0), 0.0, 0.02);
  expect_ends(overburden.add_step(1000.0, 2e-5, 2.0), 0.02, 0.06);  // 0.02 + 2 * 0.02
  expect_ends(overburden.add_step(1000.0, 1e-5, 1.0), 0.06, 0.07);
}

// The overburden as an equivalent height P of the step's own soil.
TEST(Overburden, IsTheEquivalentHeightOfTheSoil) {
  Overburden overburden;
  double H = 0.0;
  double P = 0.0;
  double G = 0.0;
  for (int i = 1; i <= 40; ++i) {
    const double thickness = 100.0 + 37.0 * (i % 7);
    const double weight = 1e-6 * (8.0 + (i * i) % 13);
    const double ratio = 1.0 + 0.01 * (i % 3);
    const StepEnds ends = overburden.add_step(thickness, weight, ratio);
    H = H + P;
    const double top = H * G;
    P = ratio * G / weight * H;
    const double bottom = (thickness + P) * weight;
    H = thickness;
    G = weight;
    EXPECT_NEAR(ends.top, top, 1e-13 * top);
    EXPECT_NEAR(ends.bottom, bottom, 1e-13 * bottom);
  }
}

TEST(Overburden, IsNothingUnderWeightlessSoilAlone) {
  Overburden overburden;
  expect_ends(overburden.add_step(1000.0, 0.0, 1.0), 0.0, 0.0);
  expect_ends(overburden.add_step(1000.0, 0.0, 1.2), 0.0, 0.0);
}

TEST(Overburden, PassesThroughAWeightlessLayer) {
  Overburden overburden;
  expect_ends(overburden.add_step(1000.0, 2e-5, 1.0), 0.0, 0.02);
  expect_ends(overburden.add_step(1000.0, 0.0, 1.0), 0.02, 0.02);
  expect_ends(overburden.add_step(1000.0, 1e-5, 1.0), 0.02, 0.03);
}

TEST(EffectiveWeight, LosesTheWaterBelowTheWaterTable) {
  const xSoilProps soil = smooth_soil();
  EXPECT_DOUBLE_EQ(effective_weight(soil, false, 0.0), 2e-5);
  EXPECT_DOUBLE_EQ(effective_weight(soil, true, 0.0), 1.2e-5);  // 22 - 10 kN/m³
}

TEST(EffectiveWeight, IsLightenedByTheVerticalCoefficient) {
  const xSoilProps soil = smooth_soil();
  EXPECT_DOUBLE_EQ(effective_weight(soil, false, 0.25), 1.5e-5);
  EXPECT_DOUBLE_EQ(effective_weight(soil, true, -0.25), 1.5e-5);
  EXPECT_EQ(effective_weight(soil, false, 1.0), 0.0);
  EXPECT_EQ(effective_weight(soil, true, 1.0), 0.0);
}

TEST(EarthPressure, IsCutAtZeroAtEachEnd) {
  // 0.5 * 0.02 - 0.015 < 0; (0.5 * 0.06 - 0.015) * 1.5 = 0.0225.
  expect_ends(earth_pressure({0.02, 0.06}, 0.5, 0.015, 1.5), 0.0, 0.0225);
  expect_ends(earth_pressure({0.06, 0.02}, 0.5, 0.015, 1.5), 0.0225, 0.0);
  // Passive: the cohesion adds up. (0.5 * 0.02 + 0.015) = 0.025, (0.03 + 0.015) = 0.045.
  expect_ends(earth_pressure({0.02, 0.06}, 0.5, -0.015, 1.0), 0.025, 0.045);
}

TEST(EarthPressure, IsZeroWhereItIsNotANumber) {
  const StepEnds ends = earth_pressure({0.02, 0.06}, nan, nan, 1.5);
  EXPECT_EQ(ends.top, 0.0);
  EXPECT_EQ(ends.bottom, 0.0);
}

TEST(WoodPressure, TakesTheFactorInItsOwnWay) {
  // Top (0.02 * 1.5 * 0.5 + 0.004) * 1.5 = 0.0285, bottom 0.04 * 1.5 * 0.5 * 1.5 + 0.004 = 0.049.
  expect_ends(wood_pressure({0.02, 0.04}, 0.5, 0.004, 1.5), 0.0285, 0.049);
}

TEST(WoodPressure, IsNotCutAtZero) {
  expect_ends(wood_pressure({0.0, 0.0}, 0.5, -0.004, 1.5), -0.006, -0.004);
}

}  // namespace
}  // namespace ostrel::soil
