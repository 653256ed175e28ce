// SPDX-License-Identifier: Apache-2.0
#include "slope/stripes.h"

#include "support/slope_ground.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using ostrel::slope::buildStripes;
using ostrel::slope::Stripe;
using ostrel::slope::Stripes;
using ostrel::testing::box;
using ostrel::testing::ground;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

OstrelErrorType build(const std::vector<xBoundSoilLayer>& layers, double width, Stripes& stripes,
                      const xBoundSoilLayer& boundary = {}) {
  xSlopeStabilitySettings settings;
  settings.setWidthstripe(width);
  return buildStripes(xWaterTable{}, settings, layers, boundary, stripes);
}

// trunc(10 / 5 + 1) = 3 stripes of 10 / 3.
TEST(Stripes, AreOneMoreThanAWholeQuotient) {
  Stripes stripes;
  ASSERT_EQ(build({ground(box(0, -10, 10, 0), 1)}, 5, stripes), ostrel::ok);
  ASSERT_EQ(stripes.size(), 3U);
  for (std::size_t k = 0; k < 3; ++k) {
    ASSERT_EQ(stripes[k].size(), 1U);
    EXPECT_NEAR(stripes[k][0]->clip.width, 10.0 / 3.0, 1e-14);
    EXPECT_NEAR(stripes[k][0]->clip.area, 100.0 / 3.0, 1e-12);
    EXPECT_NEAR(stripes[k][0]->xmin, static_cast<double>(k) * 10.0 / 3.0, 1e-14);
    EXPECT_DOUBLE_EQ(stripes[k][0]->clip.baseLength, 0.0);
    EXPECT_FALSE(stripes[k][0]->clip.belowWater);
  }
}

TEST(Stripes, HoldTheirPiecesFromTheLowestUp) {
  Stripes stripes;
  const std::vector<xBoundSoilLayer> layers{ground(box(0, -4, 10, 0), 1),
                                            ground(box(0, -10, 10, -4), 2)};
  ASSERT_EQ(build(layers, 20, stripes), ostrel::ok);
  ASSERT_EQ(stripes.size(), 1U);
  ASSERT_EQ(stripes[0].size(), 2U);
  EXPECT_DOUBLE_EQ(stripes[0][0]->clip.soil.soil.getUnitWeight(), 2.0);
  EXPECT_DOUBLE_EQ(stripes[0][0]->clip.area, 60.0);
  EXPECT_DOUBLE_EQ(stripes[0][1]->clip.soil.soil.getUnitWeight(), 1.0);
  EXPECT_DOUBLE_EQ(stripes[0][1]->clip.baricenter[1], -2.0);
}

// Both layers give a piece of 10 by 10, and both centroids lie in the earlier one.
TEST(Stripes, GiveOverlappingGroundToTheEarlierLayerTwice) {
  Stripes stripes;
  const xBoundSoilLayer first = ground(box(0, -10, 10, 0), 1);
  const xBoundSoilLayer second = ground(box(0, -10, 10, 0), 2);
  ASSERT_EQ(build({first, second}, 20, stripes), ostrel::ok);
  ASSERT_EQ(stripes[0].size(), 2U);
  for (const auto& piece : stripes[0])
    EXPECT_DOUBLE_EQ(piece->clip.soil.soil.getUnitWeight(), 1.0);

  ASSERT_EQ(build({first}, 20, stripes, second), ostrel::ok);
  for (const auto& piece : stripes[0])
    EXPECT_DOUBLE_EQ(piece->clip.soil.soil.getUnitWeight(), 2.0);  // the boundary comes first
}

TEST(Stripes, AreEmptyOverAGap) {
  Stripes stripes;
  ASSERT_EQ(build({ground(box(0, -10, 10, 0), 1), ground(box(20, -10, 30, 0), 1)}, 15, stripes),
            ostrel::ok);
  ASSERT_EQ(stripes.size(), 3U);  // trunc(30 / 15 + 1), each 10 wide
  EXPECT_EQ(stripes[0].size(), 1U);
  EXPECT_TRUE(stripes[1].empty());
  EXPECT_EQ(stripes[2].size(), 1U);
}

TEST(Stripes, RefuseAnEmptyPolygonOfALayerAndSkipOneOfTheBoundary) {
  Stripes stripes;
  xBoundSoilLayer layer = ground(box(0, -10, 10, 0), 1);
  ASSERT_EQ(build({layer}, 20, stripes, ground({}, 1)), ostrel::ok);
  layer.polygons.emplace_back();
  EXPECT_EQ(build({layer}, 20, stripes), errEmptyPolygons);
}

TEST(Stripes, RefuseAWidthThatIsNotPositiveOrMakesMoreThanAMillion) {
  Stripes stripes;
  const xBoundSoilLayer layer = ground(box(0, -10, 10, 0), 1);
  for (const double width : {0.0, -1.0, nan, 1e-9, 1e-300})
    EXPECT_EQ(build({layer}, width, stripes), errEmptyPolygons) << width;
  EXPECT_EQ(build({layer}, std::numeric_limits<double>::infinity(), stripes), ostrel::ok);
}

TEST(Stripes, WithoutGroundAreOneEmptyStripe) {
  Stripes stripes;
  ASSERT_EQ(build({}, 20, stripes), ostrel::ok);
  ASSERT_EQ(stripes.size(), 1U);
  EXPECT_TRUE(stripes[0].empty());
}

TEST(Stripes, SurviveGroundThatIsNoPlace) {
  Stripes stripes;
  EXPECT_EQ(build({ground(box(nan, -10, 10, 0), 1)}, 5, stripes), errEmptyPolygons);
  auto outline = box(0, -10, 10, 0);
  outline[2][1] = nan;
  ASSERT_EQ(build({ground(outline, 1), ground(box(0, -10, 10, 0), 1)}, 20, stripes), ostrel::ok);
  ASSERT_EQ(stripes[0].size(), 1U);
  EXPECT_DOUBLE_EQ(stripes[0][0]->clip.area, 100.0);
}

// The upper border is 2 (-3000 + 1000) = -4000: the highest metre of the ground is lost.
TEST(ClipStripe, DoublesTheShiftedLevelAlsoBelowZero) {
  xPolyClipHelper polygons;
  const xBoundSoilLayer owner;
  ASSERT_TRUE(polygons.pushPolygon(box(0, -10'000, 10, -3'000), &owner, false));
  Stripe stripe;
  ostrel::slope::clipStripe(polygons, 0, 10, -10'000, -3'000, stripe);
  ASSERT_EQ(stripe.size(), 1U);
  EXPECT_DOUBLE_EQ(stripe[0]->ymax, -4'000.0);
  EXPECT_DOUBLE_EQ(stripe[0]->clip.area, 60'000.0);
}

// 0.1 by 0.09 = 0.009; 0.1 by 0.11 = 0.011.
TEST(InitSlice, DropsAPieceBelowAHundredth) {
  sliceSeg piece;
  EXPECT_FALSE(ostrel::slope::initSlice(nullptr, box(0, 0, 0.1, 0.09), 1, 0, {0, 0}, piece));
  EXPECT_TRUE(ostrel::slope::initSlice(nullptr, box(0, 0, 0.1, 0.11), 1, 0, {0, 0}, piece));
  EXPECT_FALSE(ostrel::slope::initSlice(nullptr, {}, 1, 0, {0, 0}, piece));
}

TEST(InitSlice, DropsAPieceThatNobodyOwns) {
  const xPolyClipHelper nobody;
  sliceSeg piece;
  EXPECT_FALSE(ostrel::slope::initSlice(&nobody, box(0, 0, 10, 10), 1, 0, {0, 0}, piece));
}

TEST(InitSlice, StartsAfresh) {
  sliceSeg piece;
  piece.clip.belowWater = true;
  piece.clip.phi = 1.0;
  ASSERT_TRUE(ostrel::slope::initSlice(nullptr, box(1, 2, 5, 8), 4, 3, {2, 1}, piece));
  EXPECT_FALSE(piece.clip.belowWater);
  EXPECT_DOUBLE_EQ(piece.clip.phi, 0.0);
  EXPECT_DOUBLE_EQ(piece.clip.area, 24.0);
  EXPECT_DOUBLE_EQ(piece.clip.width, 4.0);
  EXPECT_DOUBLE_EQ(piece.clip.baseLength, 3.0);
  EXPECT_THAT(piece.clip.baseMid, ::testing::ElementsAre(2, 1));
  EXPECT_THAT(piece.clip.baricenter, ::testing::ElementsAre(3, 5));
  EXPECT_DOUBLE_EQ(piece.xmin, 1.0);
  EXPECT_DOUBLE_EQ(piece.ymin, 2.0);
  EXPECT_DOUBLE_EQ(piece.xmax, 5.0);
  EXPECT_DOUBLE_EQ(piece.ymax, 8.0);
}

}  // namespace
