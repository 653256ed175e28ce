// SPDX-License-Identifier: Apache-2.0
#include "slope/slice_sums.h"

#include "ostrel/slope_stability.h"
#include "slope/stripes.h"
#include "support/slope_ground.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

using ostrel::testing::box;
using ostrel::testing::plain_combination;
using ostrel::testing::water_at;

/// One slice 10 by 10 with its base of 10 about (0, 0) and its centroid at (0, 5); unit weights 3
/// and 5, cohesion 7, tan(phi) 1/2. Spacing 2, unit weight of water 1.
///
/// The centre (30, 40), radius 50: slant 3/4, cos(alpha) = 0.8, sin(alpha) = -0.6.
struct OneSlice {
  OneSlice() {
    EXPECT_TRUE(ostrel::slope::initSlice(nullptr, box(-5, 0, 5, 10), 10, 10, {0, 0}, *piece));
    xSoilProps& soil = piece->clip.soil.soil;
    soil.setUnitWeight(3);
    soil.setSaturatedUnitWeight(5);
    soil.setCohesion(7);
    soil.set_InternalFriction(std::atan(0.5));
    stripes = {{piece}};
  }

  double factor(bool bishop = false) {
    return bishop
             ? stability.bishop_new(center, 50, 2, 1, conds, comb, water, stripes, stab, destab)
             : stability.fellenius_new(center, 50, 2, 1, conds, comb, water, stripes, stab, destab);
  }

  osg::ref_ptr<sliceSeg> piece = new sliceSeg;
  xSlopeStability::Stripes stripes;
  xSlopeStability::Center center{30, 40};
  std::vector<xLoadCond> conds;
  xLoadComb comb = plain_combination(1);
  xWaterTable water;
  xSlopeStability stability;
  double stab = -1.0;
  double destab = -1.0;
};

// W = 3 * 2 * 100 = 600, N = 600 * 0.8 = 480, T = 10 * 7 * 2 + 480 / 2 = 380;
// 380 * 50 = 19 000 over 600 * 30 = 18 000.
TEST(SliceSums, OfOneSlice) {
  OneSlice slice;
  EXPECT_NEAR(slice.factor(), 19.0 / 18.0, 1e-14);
  EXPECT_NEAR(slice.stab, 19'000.0, 1e-9);
  EXPECT_NEAR(slice.destab, 18'000.0, 1e-9);
  const xClipData& clip = slice.piece->clip;
  EXPECT_DOUBLE_EQ(clip.volume, 200.0);
  EXPECT_DOUBLE_EQ(clip.weight, 600.0);
  EXPECT_DOUBLE_EQ(clip.verticalWeight, 600.0);
  EXPECT_DOUBLE_EQ(clip.armY, 35.0);
  EXPECT_DOUBLE_EQ(clip.cohesion, 7.0);
  EXPECT_NEAR(clip.phi, std::atan(0.5), 1e-15);
  EXPECT_NEAR(clip.alpha, -std::atan(0.75), 1e-15);
  EXPECT_DOUBLE_EQ(clip.porePressure, 0.0);
}

// m = (1 + 0.75 * 0.5) * 0.8 = 1.1: 380 / 1.1 * 50.
TEST(SliceSums, InTheFormOfBishopAreThoseOfOnePass) {
  OneSlice slice;
  EXPECT_NEAR(slice.factor(true), 19.0 / 18.0 / 1.1, 1e-13);
  EXPECT_NEAR(slice.stab, 19'000.0 / 1.1, 1e-9);
  EXPECT_NEAR(slice.destab, 18'000.0, 1e-9);
}

// On the other side of the centre |alpha| makes the same divisor.
TEST(SliceSums, InTheFormOfBishopHaveOneDivisorOnBothSides) {
  OneSlice slice;
  slice.center = {-30, 40};
  EXPECT_NEAR(slice.factor(true), 19.0 / 18.0 / 1.1, 1e-13);  // by the absolute value
  EXPECT_NEAR(slice.destab, -18'000.0, 1e-9);
}

// Without friction m = cos(alpha) = 0.8: 140 / 0.8 * 50 = 8750.
TEST(SliceSums, InTheFormOfBishopWithoutFriction) {
  OneSlice slice;
  slice.piece->clip.soil.soil.set_InternalFriction(0.0);
  slice.factor(true);
  EXPECT_NEAR(slice.stab, 8750.0, 1e-9);
}

// kh = 0.5 * 0.2 = 0.1, kv = 0.1. The slice lies left of the centre: weight 600 * 1.5 = 900, while
// the inertia always takes the second factor: 600 * 0.1 * 0.5 = 30.
// N = 0.9 * 900 * 0.8 + 0.6 * 30 = 666, T = 140 + 333 = 473.
// The driving moment knows neither kh nor kv: 900 * 30.
TEST(SliceSums, LetTheEarthquakeLowerTheResistanceAlone) {
  OneSlice slice;
  slice.comb.seismic.setSt(0.5);
  slice.comb.seismic.coefficients = {0.1, 0.1};
  slice.comb.setSeismFact(2.0);
  slice.comb.actions[0].set("", true, 1.5, 0.5);
  slice.factor();
  EXPECT_NEAR(slice.stab, 473.0 * 50.0, 1e-8);
  EXPECT_NEAR(slice.destab, 27'000.0, 1e-9);
  EXPECT_NEAR(slice.piece->clip.seismicForce, 30.0, 1e-12);
  EXPECT_NEAR(slice.piece->clip.verticalWeight, 810.0, 1e-12);
}

TEST(SliceSums, TakeTheSecondFactorRightOfTheCentre) {
  OneSlice slice;
  slice.center = {-30, 40};
  slice.comb.actions[0].set("", true, 1.5, 0.5);
  slice.factor();
  EXPECT_DOUBLE_EQ(slice.piece->clip.weight, 300.0);
  slice.center = {0, 40};  // straight below the centre
  slice.factor();
  EXPECT_DOUBLE_EQ(slice.piece->clip.weight, 300.0);
}

// Below the water W = (5 - 1) * 200 = 800 and u = (2 - 0) * 1 over a base of 10, without the
// spacing of 2: N = 640 - 20 = 620, T = 140 + 310 = 450.
TEST(SliceSums, TakeThePorePressureWithoutTheSpacing) {
  OneSlice slice;
  slice.water = water_at(2, 77);
  slice.piece->clip.belowWater = true;
  slice.factor();
  EXPECT_DOUBLE_EQ(slice.piece->clip.porePressure, 2.0);
  EXPECT_NEAR(slice.stab, 450.0 * 50.0, 1e-8);
  EXPECT_NEAR(slice.destab, 24'000.0, 1e-9);
}

TEST(SliceSums, TakeTheWaterLevelOfTheBasesSide) {
  OneSlice slice;
  slice.water = water_at(2, 77);
  slice.piece->clip.belowWater = true;
  slice.piece->clip.baseMid = {-1, 0};
  slice.factor();
  EXPECT_DOUBLE_EQ(slice.piece->clip.porePressure, 77.0);
}

TEST(SliceSums, TakeNoPorePressureAboveTheWater) {
  OneSlice slice;
  slice.water = water_at(100, 100);
  slice.factor();
  EXPECT_DOUBLE_EQ(slice.piece->clip.porePressure, 0.0);
}

// u = 200: N = 640 - 2000 < 0, only the cohesion stays: 140 * 50.
TEST(SliceSums, TakeNoFrictionOfABaseThatIsLifted) {
  OneSlice slice;
  slice.water = water_at(200, 0);
  slice.piece->clip.belowWater = true;
  slice.factor();
  EXPECT_NEAR(slice.stab, 7000.0, 1e-9);
}

// Weight factors 0 are strength, 1 pressure. tan(phi) 0.5 / 2 = 0.25 and c = 7 / 7 = 1 by the second
// numbers, gamma 3 / 1.5 = 2 by the first: W = 400, N = 320, T = 10 * 1 * 2 + 320 / 4 = 100.
TEST(SliceSums, FactorWeightAndStrengthByTheirOwnNumbers) {
  OneSlice slice;
  slice.comb.geoFactors.assign(5, GeoCombFactor{});
  slice.comb.geoFactors[0] = {.first = 99, .second = 2};
  slice.comb.geoFactors[2] = {.first = 99, .second = 7};
  slice.comb.geoFactors[4] = {.first = 1.5, .second = 99};
  slice.factor();
  EXPECT_NEAR(slice.stab, 5000.0, 1e-9);
  EXPECT_NEAR(slice.destab, 12'000.0, 1e-9);
}

// A uniform load of 4 on the half of the slice at x > 0: 4 * 5 * 2 = 40, by 2 on the driving side
// and by 3 on the other. Left of the centre: M = 18 000 + 30 * 80, N = (600 + 80) * 0.8 = 544,
// T = 140 + 272. Right of it the moment takes 3 but the normal force still 2.
TEST(SliceSums, TakeTheFirstFactorOfALoadForTheNormalForce) {
  OneSlice slice;
  auto* load = new xUniformLoad;
  load->setValue(4);
  slice.conds.resize(1);
  slice.conds[0].soilLoads.emplace_back(load);
  slice.comb.actions[3].set("", true, 2, 3);
  slice.factor();
  EXPECT_NEAR(slice.destab, 20'400.0, 1e-9);
  EXPECT_NEAR(slice.stab, 412.0 * 50.0, 1e-8);
  slice.center = {-30, 40};
  slice.factor();
  EXPECT_NEAR(slice.destab, -18'000.0 - 30.0 * 120.0, 1e-9);
  EXPECT_NEAR(slice.stab, 412.0 * 50.0, 1e-8);
}

TEST(SliceSums, TakeTheLoadsOnTheWallLast) {
  OneSlice slice;
  slice.conds.resize(1);
  for (const double moment : {1000.0, -3000.0}) {
    auto* load = new xTorqueLoad;
    load->setValue(moment);
    slice.conds[0].shpileLoads.emplace_back(load);
  }
  slice.factor();
  EXPECT_NEAR(slice.stab, 20'000.0, 1e-9);
  EXPECT_NEAR(slice.destab, 15'000.0, 1e-9);
}

TEST(SliceSums, AddThePiecesOfAStripe) {
  OneSlice slice;
  const osg::ref_ptr<sliceSeg> upper = new sliceSeg;
  ASSERT_TRUE(ostrel::slope::initSlice(nullptr, box(-5, 10, 5, 20), 10, 0, {0, 0}, *upper));
  upper->clip.soil.soil.setUnitWeight(1.0);
  slice.stripes[0].push_back(upper);
  slice.stripes.emplace_back();  // a stripe without pieces is passed over
  slice.factor();
  // W = 600 + 200; N = 640, T = 140 + 320.
  EXPECT_NEAR(slice.destab, 24'000.0, 1e-9);
  EXPECT_NEAR(slice.stab, 460.0 * 50.0, 1e-8);
}

TEST(SliceSums, WithoutSlicesOrLoadsAreNothing) {
  OneSlice slice;
  slice.stripes.clear();
  EXPECT_DOUBLE_EQ(slice.factor(), 1e10);
  EXPECT_DOUBLE_EQ(slice.stab, 0.0);
  EXPECT_DOUBLE_EQ(slice.destab, 0.0);
}

// A base level with the centre: a quarter turn, so N is -sin(-pi/2) * 0 = 0 and the cohesion stays.
TEST(SliceSums, OfABaseLevelWithTheCentre) {
  OneSlice slice;
  slice.center = {30, 0};
  slice.factor();
  EXPECT_NEAR(slice.piece->clip.alpha, -std::numbers::pi / 2.0, 1e-15);
  EXPECT_NEAR(slice.stab, 7000.0, 1e-9);
}

TEST(SliceSums, GoByTheNumberOfTheFormulation) {
  OneSlice slice;
  OstrelErrorType err = errUndefined;
  const auto by = [&](int formulation) {
    return slice.stability.calcSafetyFactor_new(formulation, slice.center, 50, 2, 1, slice.conds,
                                                slice.comb, slice.water, slice.stripes, err,
                                                slice.stab, slice.destab);
  };
  EXPECT_NEAR(by(0), 19.0 / 18.0, 1e-14);
  EXPECT_EQ(err, ostrel::ok);
  EXPECT_NEAR(by(1), 19.0 / 18.0 / 1.1, 1e-13);
  EXPECT_EQ(err, ostrel::ok);
  for (const int unknown : {-1, 2}) {
    EXPECT_DOUBLE_EQ(by(unknown), 0.0);
    EXPECT_EQ(err, errStabilityFormula);
  }
}

TEST(SliceSums, WithoutActionsTakeTheWeightAsItIs) {
  OneSlice slice;
  slice.comb.actions.clear();
  slice.factor();
  EXPECT_NEAR(slice.destab, 18'000.0, 1e-9);
}

}  // namespace
