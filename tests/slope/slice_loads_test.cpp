// SPDX-License-Identifier: Apache-2.0
#include "slope/slice_loads.h"

#include "ostrel/slope_stability.h"
#include "support/slope_ground.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

using ostrel::testing::plain_combination;

constexpr double spacing = 2.0;

template <class Load>
Load* at(double position, double value) {
  auto* load = new Load;
  load->setPosition(position);
  load->setValue(value);
  return load;
}

xUniformLoad* uniform(double value) {
  auto* load = new xUniformLoad;
  load->setValue(value);
  return load;
}

xNastriformLoad* strip(double position, double extension, double start, double end) {
  auto* load = new xNastriformLoad;
  load->setPosition(position);
  load->setExtension(extension);
  load->setStartValue(start);
  load->setEndValue(end);
  return load;
}

std::vector<xLoadCond> condition(std::initializer_list<xSoilLoad*> loads) {
  std::vector<xLoadCond> conds(1);
  for (xSoilLoad* load : loads) {
    conds[0].soilLoads.emplace_back(load);
  }
  return conds;
}

/// A slice with its base in the middle of `left` to `right`.
osg::ref_ptr<sliceSeg> slice(double left, double right) {
  osg::ref_ptr<sliceSeg> piece = new sliceSeg;
  piece->clip.width = right - left;
  piece->clip.baseMid = {0.5 * (left + right), -3.0};
  return piece;
}

double effect(osg::ref_ptr<sliceSeg> piece, const std::vector<xLoadCond>& conds,
              actType act = actFirst, const xLoadComb& comb = plain_combination(1)) {
  xSlopeStability stability;
  return stability.soil_LoadEffect_new(spacing, conds, comb, piece, act);
}

// q = 3 over a width of 4 and a spacing of 2: 24.
TEST(SliceLoads, TakeTheUniformLoadOverTheWidth) {
  const auto piece = slice(10, 14);
  EXPECT_DOUBLE_EQ(effect(piece, condition({uniform(3)})), 24.0);
  EXPECT_DOUBLE_EQ(piece->clip.uniformLoad[0], 24.0);
  EXPECT_TRUE(piece->clip.hasLoad[0]);
  EXPECT_FALSE(piece->clip.hasLoad[1]);
}

// The second action after the three of weight, soil and water goes with the second condition: 24 of the
// first by 2, 5 * 4 * 2 = 40 of the second by 3.
TEST(SliceLoads, TakeEachConditionByItsOwnAction) {
  std::vector<xLoadCond> conds = condition({uniform(3)});
  conds.push_back(condition({uniform(5)})[0]);
  xLoadComb comb = plain_combination(2);
  comb.actions[3].set("", true, 2.0, 2.0);
  comb.actions[4].set("", true, 3.0, 3.0);
  EXPECT_DOUBLE_EQ(effect(slice(10, 14), conds, actFirst, comb), 2.0 * 24.0 + 3.0 * 40.0);
}

// From -1 to 3 only 0 to 3 counts: 3 * 3 * 2 = 18.
TEST(SliceLoads, TakeTheUniformLoadOnlyUphillOfTheWall) {
  EXPECT_DOUBLE_EQ(effect(slice(-1, 3), condition({uniform(3)})), 18.0);
}

// The strip runs from 2 with 10 to 6 with 30, 5 per unit. Over 3 to 6: (15 + 30) / 2 * 3 * 2 = 135;
// over 3 to 5: (15 + 25) / 2 * 2 * 2 = 80; over the whole of it (10 + 30) / 2 * 4 * 2 = 160.
TEST(SliceLoads, TakeTheTrapezoidOfAStrip) {
  const auto load = condition({strip(2, 4, 10, 30)});
  EXPECT_DOUBLE_EQ(effect(slice(3, 10), load), 135.0);
  EXPECT_DOUBLE_EQ(effect(slice(3, 5), load), 80.0);
  EXPECT_DOUBLE_EQ(effect(slice(0, 10), load), 160.0);
  const auto right_of_it = slice(6, 10);
  EXPECT_DOUBLE_EQ(effect(right_of_it, load), 0.0);
  EXPECT_FALSE(right_of_it->clip.hasLoad[0]);
}

TEST(SliceLoads, TakeNothingOfAStripWithoutExtension) {
  EXPECT_DOUBLE_EQ(effect(slice(0, 10), condition({strip(2, 0, 10, 30)})), 0.0);
}

// A line load is multiplied by the spacing, a point load is not.
TEST(SliceLoads, TakeALineByTheSpacingAndAPointWhole) {
  const auto piece = slice(0, 10);
  EXPECT_DOUBLE_EQ(effect(piece, condition({at<xLinearLoad>(5, 7), at<xPuntiformLoad>(5, 11)})),
                   14.0 + 11.0);
  EXPECT_DOUBLE_EQ(piece->clip.lineLoad[0], 14.0);
  EXPECT_DOUBLE_EQ(piece->clip.pointLoad[0], 11.0);
}

TEST(SliceLoads, GiveALoadOnABoundaryToTheStripeOnItsRight) {
  const auto load = condition({at<xLinearLoad>(10, 7), at<xPuntiformLoad>(10, 11)});
  EXPECT_DOUBLE_EQ(effect(slice(0, 10), load), 0.0);
  EXPECT_DOUBLE_EQ(effect(slice(10, 20), load), 25.0);
}

TEST(SliceLoads, TakeTheFactorsOfTheAction) {
  xLoadComb comb = plain_combination(1);
  comb.actions[3].set("", true, 1.5, 0.5);
  const auto piece = slice(10, 14);
  const auto load = condition({uniform(3)});
  EXPECT_DOUBLE_EQ(effect(piece, load, actFirst, comb), 36.0);
  EXPECT_DOUBLE_EQ(effect(piece, load, actSecond, comb), 12.0);
  EXPECT_DOUBLE_EQ(piece->clip.uniformLoad[0], 36.0);
  EXPECT_DOUBLE_EQ(piece->clip.uniformLoad[1], 12.0);
  comb.actions[3].setIsActive(false);
  EXPECT_DOUBLE_EQ(effect(piece, load, actFirst, comb), 0.0);
  EXPECT_DOUBLE_EQ(piece->clip.uniformLoad[0], 0.0);  // reckoned anew from zero
  EXPECT_FALSE(piece->clip.hasLoad[0]);
}

TEST(SliceLoads, OnTheExcavatedSideLeaveWhatWasNoted) {
  const auto piece = slice(-10, 0);
  piece->clip.uniformLoad[0] = 99.0;
  piece->clip.hasLoad[0] = true;
  EXPECT_DOUBLE_EQ(effect(piece, condition({uniform(3)})), 0.0);
  EXPECT_DOUBLE_EQ(piece->clip.uniformLoad[0], 99.0);
  EXPECT_TRUE(piece->clip.hasLoad[0]);
}

TEST(SliceLoads, WithoutConditionsLeaveWhatWasNoted) {
  const auto piece = slice(0, 10);
  piece->clip.uniformLoad[0] = 99.0;
  EXPECT_DOUBLE_EQ(effect(piece, {}), 0.0);
  EXPECT_DOUBLE_EQ(piece->clip.uniformLoad[0], 99.0);
}

TEST(SliceLoads, TakeOnlyPairsOfConditionAndAction) {
  EXPECT_DOUBLE_EQ(effect(slice(10, 14), condition({uniform(3)}), actFirst, plain_combination(0)),
                   0.0);
  EXPECT_DOUBLE_EQ(effect(slice(10, 14), condition({uniform(3)}), actFirst, plain_combination(9)),
                   24.0);
  auto with_gap = condition({uniform(3)});
  with_gap[0].soilLoads.insert(with_gap[0].soilLoads.begin(), nullptr);
  EXPECT_DOUBLE_EQ(effect(slice(10, 14), with_gap), 24.0);
}

struct WallMoments {
  double stab = 0.0;
  double destab = 0.0;
};

WallMoments wall_moments(xShpileLoad* load, const xLoadComb& comb = plain_combination(1)) {
  std::vector<xLoadCond> conds(1);
  conds[0].shpileLoads.emplace_back(load);
  WallMoments moments;
  xSlopeStability stability;
  stability.shpileLoadLoadEffect({-5, 10}, spacing, conds, comb, moments.stab, moments.destab);
  return moments;
}

template <class Load>
Load* force(double along, double across, double depth) {
  auto* load = new Load;
  load->force = {along, across};
  load->setPosition(depth);
  return load;
}

// r = (0, -4) - (-5, 10) = (5, -14). Along 3, across 2: F = (2, -3), M = -3 * 5 + 2 * 14 = 13.
TEST(WallLoads, StabiliseWithAPositiveMoment) {
  const WallMoments moments = wall_moments(force<xConcenterdLoad>(3, 2, 4));
  EXPECT_DOUBLE_EQ(moments.stab, 13.0);
  EXPECT_DOUBLE_EQ(moments.destab, 0.0);
}

TEST(WallLoads, PerLengthAreMultipliedByTheSpacing) {
  EXPECT_DOUBLE_EQ(wall_moments(force<xDistribuitedLoad>(3, 2, 4)).stab, 26.0);
  EXPECT_DOUBLE_EQ(wall_moments(at<xTorqueLoad>(4, 6)).stab, 6.0);
  EXPECT_DOUBLE_EQ(wall_moments(at<xDistribuitedTorque>(4, 6)).stab, 12.0);
}

// The destabilising side takes the first factor, the stabilising one the second.
TEST(WallLoads, TakeTheFactorOfTheirSide) {
  xLoadComb comb = plain_combination(1);
  comb.actions[3].set("", true, 1.5, 0.5);
  EXPECT_DOUBLE_EQ(wall_moments(at<xTorqueLoad>(4, 6), comb).stab, 3.0);
  const WallMoments moments = wall_moments(at<xTorqueLoad>(4, -6), comb);
  EXPECT_DOUBLE_EQ(moments.destab, 9.0);
  EXPECT_DOUBLE_EQ(moments.stab, 0.0);
}

TEST(WallLoads, WithoutMomentHaveNoEffect) {
  const WallMoments moments = wall_moments(at<xTorqueLoad>(4, 0));
  EXPECT_DOUBLE_EQ(moments.stab, 0.0);
  EXPECT_DOUBLE_EQ(moments.destab, 0.0);
}

TEST(WallLoads, WithoutAnActionDoNotAct) {
  EXPECT_DOUBLE_EQ(wall_moments(at<xTorqueLoad>(4, 6), plain_combination(0)).stab, 0.0);
}

TEST(WallLoads, AddToWhatIsThere) {
  std::vector<xLoadCond> conds(1);
  conds[0].shpileLoads.emplace_back(at<xTorqueLoad>(4, 6));
  double stab = 100.0;
  double destab = 200.0;
  xSlopeStability{}.shpileLoadLoadEffect({0, 0}, spacing, conds, plain_combination(1), stab,
                                         destab);
  EXPECT_DOUBLE_EQ(stab, 106.0);
  EXPECT_DOUBLE_EQ(destab, 200.0);
}

}  // namespace
