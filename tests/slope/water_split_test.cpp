// SPDX-License-Identifier: Apache-2.0
#include "slope/water_split.h"

#include "support/slope_ground.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using ostrel::slope::splitAtWater;
using ostrel::slope::Stripe;
using ostrel::slope::WaterClass;
using ostrel::testing::box;
using ostrel::testing::water_at;
using ::testing::ElementsAre;

osg::ref_ptr<sliceSeg> piece_of(const ostrel::testing::Outline& outline) {
  osg::ref_ptr<sliceSeg> piece = new sliceSeg;
  EXPECT_TRUE(ostrel::slope::initSlice(nullptr, outline, 10, 0, {0, 0}, *piece));
  piece->clip.soil.soil.setUnitWeight(7.0);
  return piece;
}

WaterClass side(double level) {
  xClipData clip;
  clip.polygon = box(0, -10, 10, -2);
  return ostrel::slope::classifyAgainstWater(level, clip);
}

TEST(WaterSplit, TellsTheSidesWithoutATolerance) {
  EXPECT_EQ(side(-10.0), WaterClass::above);
  EXPECT_EQ(side(-9.999999), WaterClass::across);
  EXPECT_EQ(side(-2.000001), WaterClass::across);
  EXPECT_EQ(side(-2.0), WaterClass::below);
}

TEST(WaterSplit, CutsAPieceAcrossTheLevel) {
  Stripe stripe{piece_of(box(0, -10, 10, 0))};
  stripe[0]->clip.ownerFlag = true;
  splitAtWater(water_at(-4, -100), stripe);
  ASSERT_EQ(stripe.size(), 2U);
  const xClipData& lower = stripe[0]->clip;
  EXPECT_TRUE(lower.belowWater);
  EXPECT_DOUBLE_EQ(lower.area, 60.0);
  EXPECT_DOUBLE_EQ(lower.baseLength, 0.0);
  EXPECT_THAT(lower.baseMid, ElementsAre(0, 0));
  EXPECT_DOUBLE_EQ(lower.soil.soil.getUnitWeight(), 7.0);
  EXPECT_FALSE(lower.ownerFlag);
  const xClipData& upper = stripe[1]->clip;
  EXPECT_FALSE(upper.belowWater);
  EXPECT_DOUBLE_EQ(upper.area, 40.0);
  EXPECT_DOUBLE_EQ(upper.baseLength, 10.0);  // the water surface over the width of the stripe
  EXPECT_THAT(upper.baseMid, ElementsAre(5, -4));
  EXPECT_DOUBLE_EQ(upper.width, 10.0);
}

TEST(WaterSplit, TakesTheLevelOfTheExcavationWhereTheLowestPieceEndsBeforeTheWall) {
  Stripe stripe{piece_of(box(-10, -10, -1, 0))};
  splitAtWater(water_at(-20, 5), stripe);
  EXPECT_TRUE(stripe[0]->clip.belowWater);
}

// The right edge lies on the wall: the level of the retained side, below the piece, holds.
TEST(WaterSplit, TakesTheLevelOfTheRetainedSideWhereTheLowestPieceTouchesTheWall) {
  Stripe stripe{piece_of(box(-10, -10, 0, 0))};
  splitAtWater(water_at(-20, 5), stripe);
  EXPECT_FALSE(stripe[0]->clip.belowWater);
}

TEST(WaterSplit, LetsTheLowestPieceDecideForAll) {
  Stripe stripe{piece_of(box(-10, -10, -1, -5)), piece_of(box(-10, -5, 1, 0))};
  splitAtWater(water_at(-20, 5), stripe);
  EXPECT_TRUE(stripe[1]->clip.belowWater);
}

TEST(WaterSplit, WithoutWaterLeavesAllPiecesDry) {
  Stripe stripe{piece_of(box(0, -10, 10, 0))};
  xWaterTable water = water_at(-4, -4);
  water.setIsDefined(false);
  splitAtWater(water, stripe);
  ASSERT_EQ(stripe.size(), 1U);
  EXPECT_FALSE(stripe[0]->clip.belowWater);
  Stripe nothing;
  splitAtWater(water_at(0, 0), nothing);
  EXPECT_TRUE(nothing.empty());
}

TEST(WaterSplit, SortsAllPiecesOfTheStripe) {
  Stripe stripe{piece_of(box(0, -10, 10, -5)), piece_of(box(0, -5, 10, 5)),
                piece_of(box(0, 5, 10, 9))};
  splitAtWater(water_at(1, 1), stripe);
  ASSERT_EQ(stripe.size(), 4U);
  EXPECT_DOUBLE_EQ(stripe[0]->clip.baricenter[1], -7.5);
  EXPECT_DOUBLE_EQ(stripe[1]->clip.baricenter[1], -2.0);
  EXPECT_TRUE(stripe[1]->clip.belowWater);
  EXPECT_DOUBLE_EQ(stripe[2]->clip.baricenter[1], 3.0);
  EXPECT_FALSE(stripe[2]->clip.belowWater);
  EXPECT_DOUBLE_EQ(stripe[3]->clip.baricenter[1], 7.0);
}

// The two half-planes end a kilometre from the wall: what lies beyond keeps its piece undivided.
TEST(WaterSplit, DoesNotReachBeyondAKilometre) {
  Stripe stripe{piece_of(box(2e6, -10, 2e6 + 10, 0))};
  splitAtWater(water_at(-4, -4), stripe);
  ASSERT_EQ(stripe.size(), 1U);
  EXPECT_DOUBLE_EQ(stripe[0]->clip.area, 100.0);
  EXPECT_FALSE(stripe[0]->clip.belowWater);
}

TEST(WaterSplit, SurvivesALevelThatIsNoNumber) {
  Stripe stripe{piece_of(box(0, -10, 10, 0))};
  const double nan = std::numeric_limits<double>::quiet_NaN();
  splitAtWater(water_at(nan, nan), stripe);
  EXPECT_EQ(stripe.size(), 1U);
}

}  // namespace
