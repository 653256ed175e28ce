// SPDX-License-Identifier: Apache-2.0
#include "geotech/pile_resistance.h"

#include "support/relative.h"
#include "support/soil_column.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

using ostrel::geotech::adhesion_factor;
using ostrel::geotech::angle_after_installation;
using ostrel::geotech::effective_weight;
using ostrel::geotech::shaft_friction;
using ostrel::geotech::shaft_pressure_coefficient;
using ostrel::geotech::ShaftFriction;
using ostrel::geotech::tip_factor_cohesion;
using ostrel::geotech::tip_factor_overburden;
using ostrel::testing::expect_relative;
using ostrel::testing::layer_of;
using ostrel::testing::smooth_soil;
using ostrel::testing::submerged_layer_of;

constexpr auto unknown_technology = static_cast<xtechPiles>(7);

// D 600, L 2400, r 4, phi 20°:
// (51.4769 + 4.153848) - (4.233764 + 0.224312) * 20 + (0.094698 + 0.00261) * 400
// = 55.630748 - 89.16152 + 38.9232 = 5.392428.
constexpr double large_at_20 = 5.392428;

TEST(TipFactors, OfALargePileFollowItsCurve) {
  expect_relative(tip_factor_overburden(20.0, 600.0, 2400.0), large_at_20);
  // D 1000, L 10 000, r 10, phi 30°: 61.86152 - 4.794544 * 30 + 0.101223 * 900
  // = 61.86152 - 143.83632 + 91.1007 = 9.1259.
  expect_relative(tip_factor_overburden(30.0, 1000.0, 10'000.0), 9.1259);
}

// D 500, L 500 e², ln(r) 2, phi 20°: 2.9013002 - 0.30822131 - 1.62076368 + 0.64428 = 1.61659521.
TEST(TipFactors, OfASmallPileFollowTheOtherCurve) {
  const double e = std::numbers::e;
  expect_relative(tip_factor_overburden(20.0, 500.0, 500.0 * e * e), std::exp(1.61659521));
  // r 4 just below the limit: 2.9013002 - 0.30822131 + (0.32214 - 0.81038184) ln(4).
  expect_relative(tip_factor_overburden(20.0, 599.9, 2399.6),
                  std::exp(2.59307889 - 0.48824184 * std::log(4.0)));
}

TEST(TipFactors, OfAShortPileAreThoseOfFourDiameters) {
  expect_relative(tip_factor_overburden(20.0, 600.0, 100.0), large_at_20);
  expect_relative(tip_factor_overburden(20.0, 600.0, -5000.0), large_at_20);
}

TEST(TipFactors, BelowTheCurvesFollowALine) {
  // 1 + (5.392428 - 1) / 2; 1 - (5.392428 - 1) / 2 for -10°.
  expect_relative(tip_factor_overburden(10.0, 600.0, 2400.0), 3.196214);
  EXPECT_DOUBLE_EQ(tip_factor_overburden(0.0, 600.0, 2400.0), 1.0);
  expect_relative(tip_factor_overburden(-10.0, 600.0, 2400.0), -1.196214);
  // (Nc(20) - 9) / 2 + 9.
  const double nc_at_20 = (large_at_20 - 1.0) / std::tan(std::numbers::pi / 9.0);
  expect_relative(tip_factor_cohesion(10.0, 600.0, 2400.0), 4.5 + nc_at_20 / 2.0);
  EXPECT_DOUBLE_EQ(tip_factor_cohesion(0.0, 600.0, 2400.0), 9.0);
}

TEST(TipFactors, OfTheCohesionFollowThatOfTheOverburden) {
  expect_relative(tip_factor_cohesion(20.0, 600.0, 2400.0),
                  (large_at_20 - 1.0) / std::tan(std::numbers::pi / 9.0));
  // tan(30°) = 1 / sqrt(3).
  expect_relative(tip_factor_cohesion(30.0, 1000.0, 10'000.0), 8.1259 * std::numbers::sqrt3);
}

TEST(TipFactors, OfAnAngleThatIsNoNumberAreNone) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(std::isnan(tip_factor_overburden(none, 600.0, 2400.0)));
  EXPECT_TRUE(std::isnan(tip_factor_cohesion(none, 500.0, 2400.0)));
}

TEST(AngleAfterInstallation, RisesAroundADrivenPileAndFallsBelowAnyOther) {
  EXPECT_DOUBLE_EQ(angle_after_installation(30.0, pileDriven), 35.0);
  EXPECT_DOUBLE_EQ(angle_after_installation(30.0, pileBored), 27.0);
  EXPECT_DOUBLE_EQ(angle_after_installation(30.0, pileAugered), 27.0);
  EXPECT_DOUBLE_EQ(angle_after_installation(30.0, unknown_technology), 27.0);
}

TEST(ShaftPressureCoefficient, FollowsPileAndDensity) {
  EXPECT_DOUBLE_EQ(shaft_pressure_coefficient(pileDriven, false), 1.0);
  EXPECT_DOUBLE_EQ(shaft_pressure_coefficient(pileDriven, true), 3.0);
  EXPECT_DOUBLE_EQ(shaft_pressure_coefficient(pileBored, false), 0.5);
  EXPECT_DOUBLE_EQ(shaft_pressure_coefficient(pileBored, true), 0.4);
  EXPECT_DOUBLE_EQ(shaft_pressure_coefficient(pileAugered, false), 0.7);
  EXPECT_DOUBLE_EQ(shaft_pressure_coefficient(pileAugered, true), 0.9);
}

TEST(ShaftPressureCoefficient, OfAnUnknownPileIsTheLeast) {
  EXPECT_DOUBLE_EQ(shaft_pressure_coefficient(unknown_technology, false), 0.5);
  EXPECT_DOUBLE_EQ(shaft_pressure_coefficient(unknown_technology, true), 0.4);
}

// 1 - 25 * 0.011 = 0.725 and 0.7 - 25 * 0.008 = 0.5 at 50 kN/m²; 1 - 45 * 0.011 = 0.505 and
// 0.7 - 45 * 0.008 = 0.34 at 70.
TEST(AdhesionFactor, FallsWithTheCohesion) {
  EXPECT_DOUBLE_EQ(adhesion_factor(0.010, pileDriven), 1.0);
  EXPECT_DOUBLE_EQ(adhesion_factor(0.025, pileDriven), 1.0);
  EXPECT_DOUBLE_EQ(adhesion_factor(0.050, pileDriven), 0.725);
  EXPECT_DOUBLE_EQ(adhesion_factor(0.070, pileDriven), 0.505);
  EXPECT_DOUBLE_EQ(adhesion_factor(0.0701, pileDriven), 0.5);
  for (const xtechPiles other : {pileBored, pileAugered, unknown_technology}) {
    EXPECT_DOUBLE_EQ(adhesion_factor(0.010, other), 0.7);
    EXPECT_DOUBLE_EQ(adhesion_factor(0.025, other), 0.7);
    EXPECT_DOUBLE_EQ(adhesion_factor(0.050, other), 0.5);
    expect_relative(adhesion_factor(0.070, other), 0.34);
    EXPECT_DOUBLE_EQ(adhesion_factor(0.0701, other), 0.35);
  }
}

TEST(EffectiveWeight, IsBuoyantUnderWater) {
  EXPECT_DOUBLE_EQ(effective_weight(smooth_soil(), layer_of(smooth_soil(), {0.0, 1.0})), 2e-5);
  expect_relative(effective_weight(smooth_soil(), submerged_layer_of(smooth_soil(), {0.0, 1.0})),
                  1.2e-5);  // 2.2e-5 - 1e-5
}

// U 1000, coefficient 0.5, weight 2e-5, no stress at first; U / 2 * 0.5 = 250.
//   z 6000: dz 6000 - 0 - 0 = 6000, s 0.12, 250 * (0.24 - 0.12) * 6000 = 180 000
//   z 7000: dz 1000, s 0.14, 250 * (0.28 - 0.02) * 1000 = 65 000
//   z 8000: dz 1000, s 0.16, 250 * (0.32 - 0.02) * 1000 = 75 000
TEST(ShaftFriction, CountsALayerFromTheHeadOfTheWall) {
  xSoilLayer layer = layer_of(smooth_soil(), {6000.0, 7000.0, 8000.0});
  layer.setDepth(0.0);
  const ShaftFriction shaft = shaft_friction(layer, 1000.0, 0.5, 0.0);
  expect_relative(shaft.resistance, 320'000.0);
  expect_relative(shaft.stress, 0.16);
}

//   z 8000: dz 8000 - 2000 - 2000 = 4000, s 0.08, 250 * (0.16 - 0.08) * 4000 = 80 000
//   z 9000: dz 7000 - 6000 = 1000, s 0.10, 250 * (0.20 - 0.02) * 1000 = 45 000
TEST(ShaftFriction, TakesTheStartOffTwiceInTheFirstStep) {
  xSoilLayer layer = layer_of(smooth_soil(), {8000.0, 9000.0});
  layer.setDepth(2000.0);
  const ShaftFriction shaft = shaft_friction(layer, 1000.0, 0.5, 0.0);
  expect_relative(shaft.resistance, 125'000.0);
  expect_relative(shaft.stress, 0.10);
}

// 1.2e-5 * 1000 = 0.012 over 0.05: 250 * (2 * 0.062 - 0.012) * 1000 = 28 000.
TEST(ShaftFriction, GoesOnFromTheStressAtTheTopWithBuoyantWeight) {
  const xSoilLayer layer = submerged_layer_of(smooth_soil(), {0.0, 1000.0});
  const ShaftFriction shaft = shaft_friction(layer, 1000.0, 0.5, 0.05);
  expect_relative(shaft.resistance, 28'000.0);
  expect_relative(shaft.stress, 0.062);
}

TEST(ShaftFriction, OfALayerWithoutLevelsIsNone) {
  const ShaftFriction shaft = shaft_friction(xSoilLayer{}, 1000.0, 0.5, 0.05);
  EXPECT_DOUBLE_EQ(shaft.resistance, 0.0);
  EXPECT_DOUBLE_EQ(shaft.stress, 0.05);
}

}  // namespace
