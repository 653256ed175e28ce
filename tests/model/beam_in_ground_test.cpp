// SPDX-License-Identifier: Apache-2.0
//
// The whole way from polygons of soil to the nodes of the beam.
#include "ostrel/sheetpiling_data.h"
#include "ostrel/sheetpiling_model.h"
#include "support/beam_walls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using ostrel::testing::along;
using ostrel::testing::anchor_at;
using ostrel::testing::anchor_nodes;
using ostrel::testing::clay;
using ostrel::testing::depths;
using ostrel::testing::expect_chain;
using ostrel::testing::lengths;
using ostrel::testing::rectangle;
using ostrel::testing::sand;
using ostrel::testing::WallBuilder;
using ::testing::DoubleNear;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::Pointwise;

// 10 m of wall, 4 m of excavation, nodes every 500 mm, the foot held along the wall.
WallBuilder excavation_of_4_m() {
  return WallBuilder{}
      .panel(600.0, 400.0, 10'000.0)
      .excavation(4'000.0)
      .step(500.0)
      .imposed(along(10'000.0, 0.0));
}

std::vector<double> steps(double from, double to, int count) {
  std::vector<double> depths_of_nodes;
  for (int i = 1; i <= count; ++i)
    depths_of_nodes.push_back(from + (to - from) * i / count);
  return depths_of_nodes;
}

std::vector<double> joined(const std::vector<std::vector<double>>& parts) {
  std::vector<double> all{0.0};
  for (const std::vector<double>& part : parts)
    all.insert(all.end(), part.begin(), part.end());
  return all;
}

void build(xSheetpilingModel& model, xSheetpilingData& data) {
  ASSERT_EQ(model.create_Stratigraphy(&data), ostrel::ok);
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  expect_chain(model);
}

TEST(BeamInTheGround, EndsAtTheFootOfAWallShorterThanTheColumn) {
  xSheetpilingData data = excavation_of_4_m().layer(sand()).build();
  xSheetpilingModel model;
  build(model, data);
  EXPECT_THAT(depths(model),
              Pointwise(DoubleNear(1e-9), joined({steps(0, 4'000, 8), steps(4'000, 10'000, 12)})));
  EXPECT_EQ(model.fem.getJtsoil(), 8);
  EXPECT_EQ(model.fem.getDembin(), 6'000.0);
  EXPECT_THAT(model.fem.constrDof0, ElementsAre(Pair(20, 0.0)));
}

TEST(BeamInTheGround, EndsWithAColumnShorterThanTheWall) {
  xSheetpilingData data = excavation_of_4_m().layer(sand(), 8'000.0).build();
  xSheetpilingModel model;
  build(model, data);
  EXPECT_THAT(depths(model),
              Pointwise(DoubleNear(1e-9), joined({steps(0, 4'000, 8), steps(4'000, 8'000, 8)})));
  EXPECT_EQ(model.fem.getJtsoil(), 8);
  EXPECT_EQ(model.fem.getDembin(), 6'000.0);
  EXPECT_THAT(model.fem.constrDof0, IsEmpty());  // the foot at 10 m is not on the beam
}

TEST(BeamInTheGround, IsRefusedWhenTheColumnStopsAboveTheExcavation) {
  xSheetpilingData data = excavation_of_4_m().layer(sand(), 3'000.0).build();
  xSheetpilingModel model;
  ASSERT_EQ(model.create_Stratigraphy(&data), ostrel::ok);
  EXPECT_EQ(model.create_FemModel(&data), errNoExcavationNode);
}

// The anchors cut the layers, so their nodes are levels and nothing is split: 1250 mm between them
// make three steps.
TEST(BeamInTheGround, HasLevelsAtItsAnchors) {
  xSheetpilingData data = excavation_of_4_m()
                              .layer(sand())
                              .anchor(anchor_at(2'750.0))
                              .anchor(anchor_at(1'500.0))
                              .build();
  xSheetpilingModel model;
  build(model, data);
  EXPECT_THAT(depths(model), Pointwise(DoubleNear(1e-9),
                                       joined({steps(0, 1'500, 3), steps(1'500, 2'750, 3),
                                               steps(2'750, 4'000, 3), steps(4'000, 10'000, 12)})));
  EXPECT_THAT(anchor_nodes(model), ElementsAre(6, 3));
  double total = 0.0;
  for (const double length : lengths(model))
    total += length;
  EXPECT_NEAR(total, 10'000.0, 1e-8);  // no stale length
}

TEST(BeamInTheGround, SharesTheNodeOfAnAnchorOnABorderOfLayers) {
  xSheetpilingData data =
      excavation_of_4_m().layer(sand(), 1'500.0).layer(clay()).anchor(anchor_at(1'500.0)).build();
  xSheetpilingModel model;
  build(model, data);
  EXPECT_THAT(depths(model),
              Pointwise(DoubleNear(1e-9), joined({steps(0, 1'500, 3), steps(1'500, 4'000, 5),
                                                  steps(4'000, 10'000, 12)})));
  EXPECT_THAT(anchor_nodes(model), ElementsAre(3));
}

TEST(BeamInTheGround, HasOneNodeWhereTheWaterStandsOnABorderOfLayers) {
  xSheetpilingData data =
      excavation_of_4_m().layer(sand(), 1'500.0).layer(clay()).water(-1'500.0).build();
  xSheetpilingModel model;
  build(model, data);
  EXPECT_THAT(depths(model),
              Pointwise(DoubleNear(1e-9), joined({steps(0, 1'500, 3), steps(1'500, 4'000, 5),
                                                  steps(4'000, 10'000, 12)})));
  EXPECT_FALSE(model.layers[0].getUnderWater());
  EXPECT_TRUE(model.layers[1].getUnderWater());
}

// The border is 4 mm off the anchor, less than a hundredth of 500: it takes the anchor's level.
TEST(BeamInTheGround, HasOneNodeForAnAnchorNearABorderOfLayers) {
  xSheetpilingData data =
      excavation_of_4_m().layer(sand(), 1'496.0).layer(clay()).anchor(anchor_at(1'500.0)).build();
  xSheetpilingModel model;
  build(model, data);
  EXPECT_EQ(model.fem.nodes.size(), 21U);
  EXPECT_THAT(anchor_nodes(model), ElementsAre(3));
  EXPECT_NEAR(model.fem.nodes[3].y, 1'500.0, 1e-9);
}

// The ground rises by 1 in 8 through the head: 0.1 mm beside the wall it stands 0.0125 mm higher.
TEST(BeamInTheGround, BeginsAtTheHeadUnderASlopingFirstLayer) {
  xBoundSoilLayer slope;
  slope.polygons = {{{-16'000.0, -2'000.0},
                     {16'000.0, 2'000.0},
                     {16'000.0, -20'000.0},
                     {-16'000.0, -20'000.0},
                     {-16'000.0, -2'000.0}}};
  slope.setAngle(std::atan(0.125));
  xSheetpilingData data = excavation_of_4_m().layer(slope).build();
  xSheetpilingModel model;
  build(model, data);
  EXPECT_THAT(depths(model),
              Pointwise(DoubleNear(1e-9), joined({steps(0, 4'000, 8), steps(4'000, 10'000, 12)})));
  EXPECT_EQ(model.layers[0].levels.front(), 0.0);
  EXPECT_EQ(model.layers[0].getAngle(), std::atan(0.125));
  EXPECT_EQ(model.layers[1].getAngle(), 0.0);
}

// The ground begins 2 m below the head. The first element reaches from the head to the second level
// at 2500 mm with the length 500, and two anchors above the ground split it: three elements of 500.
TEST(BeamInTheGround, IsSplitByTwoAnchorsInOneElementAboveTheGround) {
  xBoundSoilLayer low_ground;
  low_ground.polygons = {rectangle(-20'000.0, 20'000.0, -20'000.0, -2'000.0)};
  xSheetpilingData data = excavation_of_4_m()
                              .layer(low_ground)
                              .anchor(anchor_at(1'000.0))
                              .anchor(anchor_at(400.0))
                              .build();
  xSheetpilingModel model;
  build(model, data);
  ASSERT_EQ(model.fem.nodes.size(), 1U + 2U + 4U + 12U);
  EXPECT_EQ(model.fem.nodes[1].y, 400.0);
  EXPECT_EQ(model.fem.nodes[2].y, 1'000.0);
  EXPECT_EQ(model.fem.nodes[3].y, 2'500.0);
  EXPECT_THAT(anchor_nodes(model), ElementsAre(2, 1));
  EXPECT_EQ(model.fem.getJtsoil(), 6);
  EXPECT_THAT(model.fem.constrDof0, ElementsAre(Pair(18, 0.0)));
  for (int e = 0; e < 4; ++e)
    EXPECT_EQ(model.fem.elements[static_cast<std::size_t>(e)].getL(), 500.0) << e;
  ASSERT_GE(model.layers[0].levels.size(), 4U);
  EXPECT_EQ(model.layers[0].levels[0], 400.0);
  EXPECT_EQ(model.layers[0].levels[1], 1'000.0);
  EXPECT_EQ(model.layers[0].levels[2], 2'000.0);
}

}  // namespace
