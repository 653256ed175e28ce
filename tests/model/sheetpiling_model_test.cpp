// SPDX-License-Identifier: Apache-2.0
#include "ostrel/sheetpiling_model.h"

#include "ostrel/sheetpiling_data.h"
#include "services/exact.h"
#include "support/wall_builder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace {

using ostrel::testing::anchor_at;
using ostrel::testing::clay;
using ostrel::testing::horizontal_at;
using ostrel::testing::rectangle;
using ostrel::testing::sand;
using ostrel::testing::WallBuilder;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

MATCHER_P2(LayerOf, depth, thickness, "") {
  return ostrel::exactly_equal(arg.getDepth(), depth)
      && ostrel::exactly_equal(arg.getThickness(), thickness);
}

MATCHER_P2(DryLayerOf, depth, thickness, "") {
  return ostrel::exactly_equal(arg.getDepth(), depth)
      && ostrel::exactly_equal(arg.getThickness(), thickness) && !arg.getUnderWater();
}

MATCHER_P2(WetLayerOf, depth, thickness, "") {
  return ostrel::exactly_equal(arg.getDepth(), depth)
      && ostrel::exactly_equal(arg.getThickness(), thickness) && arg.getUnderWater();
}

// A layer of sand by its polygon, with a slope.
xBoundSoilLayer sloping(std::vector<arma::Col<double>::fixed<2>> polygon, double angle) {
  xBoundSoilLayer made;
  made.polygons = {std::move(polygon)};
  made.soil = sand();
  made.setAngle(angle);
  return made;
}

std::vector<xSoilLayer> layers_of(const WallBuilder& builder) {
  auto data = builder.build();
  xSheetpilingModel model;
  EXPECT_EQ(model.create_Stratigraphy(&data), ostrel::ok);
  return model.layers;
}

TEST(SheetpilingModel, IsEmptyAfterReset) {
  xSheetpilingModel model;
  model.layers.resize(2);
  model.anchors.resize(1);
  model.fem.nodes.resize(3);
  model.fem.setDembin(5.0);
  model.reset();
  EXPECT_THAT(model.layers, IsEmpty());
  EXPECT_THAT(model.anchors, IsEmpty());
  EXPECT_THAT(model.fem.nodes, IsEmpty());
  EXPECT_EQ(model.fem.getDembin(), 0.0);
}

TEST(SheetpilingModel, SplitsALayerIntoItsOwnLayers) {
  xSheetpilingModel model;
  xSoilLayer layer;
  layer.setThickness(1000.0);
  EXPECT_TRUE(model.splitLayer(400.0, xWaterTable{}, layer));
  EXPECT_THAT(model.layers, ElementsAre(LayerOf(0.0, 400.0)));
  EXPECT_FALSE(model.splitLayer(400.0, xWaterTable{}, layer));
  model.insert_WaterTable(xWaterTable{}, layer);
  EXPECT_THAT(model.layers, ElementsAre(LayerOf(0.0, 400.0), LayerOf(400.0, 600.0)));
}

// The vector of the layers is full, so each append moves the layer that is being cut.
TEST(SheetpilingModel, SplitsALayerOfItsOwn) {
  xSheetpilingModel model;
  model.layers.resize(1);
  model.layers[0].setThickness(1000.0);
  model.layers[0].soil.setName("a name too long to be kept inside of the record of the soil");
  model.layers.shrink_to_fit();
  EXPECT_TRUE(model.splitLayer(400.0, xWaterTable{}, model.layers[0]));
  EXPECT_THAT(model.layers, ElementsAre(LayerOf(400.0, 600.0), LayerOf(0.0, 400.0)));

  xWaterTable water;
  water.setIsDefined(true);
  water.setLivelloMonte(-700.0);
  model.layers.shrink_to_fit();
  model.insert_WaterTable(water, model.layers[0]);
  EXPECT_THAT(model.layers, ElementsAre(WetLayerOf(700.0, 300.0), DryLayerOf(0.0, 400.0),
                                        DryLayerOf(400.0, 300.0), WetLayerOf(700.0, 300.0)));
  for (const xSoilLayer& layer : model.layers) {
    EXPECT_EQ(layer.soil.getName(), model.layers[0].soil.getName());
  }
}

TEST(Stratigraphy, WithoutAWallIsCode5BeforeAnythingElse) {
  xSheetpilingModel model;
  EXPECT_EQ(model.create_Stratigraphy(nullptr), errNoWall);

  auto data = WallBuilder{}.layer(sand()).build();
  data.soilLayers.front().polygons.clear();
  data.calcSettings.setStepMolle(0.0);
  data.props = nullptr;
  EXPECT_EQ(model.create_Stratigraphy(&data), errNoWall);
  EXPECT_THAT(model.layers, IsEmpty());
}

TEST(Stratigraphy, TakesAWallThatIsNoRowOfPilesForNone) {
  auto data = WallBuilder{}.layer(sand()).build();
  data.props = new xSheetpiling_Props;
  xSheetpilingModel model;
  EXPECT_EQ(model.create_Stratigraphy(&data), errNoWall);
}

TEST(Stratigraphy, RefusesAStepThatIsNoPositiveNumber) {
  for (const double step : {0.0, -250.0, std::numeric_limits<double>::quiet_NaN(),
                            std::numeric_limits<double>::infinity()}) {
    auto data = WallBuilder{}.layer(sand()).step(step).build();
    xSheetpilingModel model;
    EXPECT_EQ(model.create_Stratigraphy(&data), errStratigraphy) << step;
    EXPECT_THAT(model.layers, IsEmpty());
  }
}

TEST(Stratigraphy, RefusesALayerBesideTheWall) {
  auto data = WallBuilder{}.layer(sand(), 4e3).layer(clay()).build();
  data.soilLayers[1].polygons = {rectangle(500.0, 900.0, -9e3, -4e3)};
  xSheetpilingModel model;
  EXPECT_EQ(model.create_Stratigraphy(&data), errNoLayerIntersection);
  EXPECT_THAT(model.layers, ElementsAre(LayerOf(0.0, 4e3)));
}

TEST(Stratigraphy, AppendsToTheLayersOfTheModel) {
  auto data = WallBuilder{}.pile(600.0, 12e3).excavation(6e3).layer(sand(), 6e3).build();
  xSheetpilingModel model;
  EXPECT_EQ(model.create_Stratigraphy(&data), ostrel::ok);
  EXPECT_EQ(model.create_Stratigraphy(&data), ostrel::ok);
  EXPECT_THAT(model.layers, ElementsAre(LayerOf(0.0, 6e3), LayerOf(0.0, 6e3)));
}

// Excavation 6 m, foot 12 m, anchor 2 m, an imposed displacement at 1 m, a spring at 3 m.
TEST(Stratigraphy, CutsAtEveryLevelOfTheInput) {
  const auto layers = layers_of(WallBuilder{}
                                    .pile(600.0, 12e3)
                                    .excavation(6e3)
                                    .layer(sand(), 20e3)
                                    .spring(horizontal_at(3e3, 100.0))
                                    .imposed(horizontal_at(1e3, 0.0))
                                    .anchor(anchor_at(2e3)));
  EXPECT_THAT(layers, ElementsAre(LayerOf(0.0, 1e3), LayerOf(1e3, 1e3), LayerOf(2e3, 1e3),
                                  LayerOf(3e3, 3e3), LayerOf(6e3, 6e3), LayerOf(12e3, 8e3)));
}

TEST(Stratigraphy, TakesTheStepOfTheSettings) {
  const auto layers = layers_of(WallBuilder{}.excavation(6e3).layer(sand(), 6e3).step(2e3));
  ASSERT_EQ(layers.size(), 1U);
  EXPECT_EQ(layers[0].getStepSize(), 2e3);
  EXPECT_THAT(layers[0].levels, ElementsAre(0.0, 2e3, 4e3, 6e3));
}

TEST(Stratigraphy, LeavesTheInputAsItIs) {
  auto data = WallBuilder{}.layer(sand(), 5999.0).layer(clay()).water(-2e3).build();
  xSheetpilingModel model;
  EXPECT_EQ(model.create_Stratigraphy(&data), ostrel::ok);
  EXPECT_EQ(data.soilLayers[0].polygons[0][2][1], -5999.0);
  EXPECT_EQ(data.waterTable.getLivelloMonte(), -2e3);
}

TEST(Stratigraphy, OfAWallShorterThanTheColumnGoesOnBelowTheFoot) {
  EXPECT_THAT(
      layers_of(
          WallBuilder{}.pile(600.0, 9e3).excavation(4e3).layer(sand(), 6e3).layer(clay(), 10e3)),
      ElementsAre(LayerOf(0.0, 4e3), LayerOf(4e3, 2e3), LayerOf(6e3, 3e3), LayerOf(9e3, 7e3)));
}

TEST(Stratigraphy, OfAColumnShorterThanTheWallEndsWithTheColumn) {
  EXPECT_THAT(layers_of(WallBuilder{}.pile(600.0, 12e3).excavation(4e3).layer(sand(), 9e3)),
              ElementsAre(LayerOf(0.0, 4e3), LayerOf(4e3, 5e3)));
}

TEST(Stratigraphy, WithWaterOnABorderWetsTheLayersBelowIt) {
  EXPECT_THAT(layers_of(WallBuilder{}
                            .pile(600.0, 12e3)
                            .excavation(6e3)
                            .layer(sand(), 3e3)
                            .layer(clay(), 17e3)
                            .water(-3e3)),
              ElementsAre(DryLayerOf(0.0, 3e3), WetLayerOf(3e3, 3e3), WetLayerOf(6e3, 6e3),
                          WetLayerOf(12e3, 8e3)));
}

TEST(Stratigraphy, WithWaterAMillimetreFromABorderMovesTheBorder) {
  const auto layers = layers_of(
      WallBuilder{}.excavation(6e3).layer(sand(), 3001.0).layer(clay(), 2999.0).water(-3e3));
  EXPECT_THAT(layers, ElementsAre(DryLayerOf(0.0, 3e3), WetLayerOf(3e3, 3e3)));
}

// The ground rises by 1/10 behind the wall, from the head on; the wall stands in it from 0 down.
TEST(Stratigraphy, OfSlopingGroundBeginsAtTheHeadAndSlopesInItsTopPieceAlone) {
  const auto layers = layers_of(
      WallBuilder{}
          .pile(600.0, 9e3)
          .excavation(4e3)
          .layer(
              sloping({{20e3, 2e3}, {0.0, 0.0}, {0.0, -9e3}, {20e3, -9e3}, {20e3, 2e3}}, 0.0997)));
  ASSERT_THAT(layers, ElementsAre(LayerOf(0.0, 4e3), LayerOf(4e3, 5e3)));
  EXPECT_EQ(layers[0].getAngle(), 0.0997);
  EXPECT_EQ(layers[1].getAngle(), 0.0);
}

// The border between both layers falls by 1/5 away from the wall, from -3 m: each layer takes it
// at the wall itself, not at the probe.
TEST(Stratigraphy, OfASlopingBorderMeetsTheWallAtX0) {
  const auto layers = layers_of(
      WallBuilder{}
          .pile(600.0, 9e3)
          .excavation(9e3)
          .layer(sloping({{10e3, 0.0}, {0.0, 0.0}, {0.0, -3e3}, {10e3, -5e3}, {10e3, 0.0}}, 0.0))
          .layer(
              sloping({{10e3, -5e3}, {0.0, -3e3}, {0.0, -9e3}, {10e3, -9e3}, {10e3, -5e3}}, 0.0)));
  ASSERT_EQ(layers.size(), 2U);
  EXPECT_NEAR(layers[0].getThickness(), 3e3, 1e-9);
  EXPECT_NEAR(layers[1].getDepth(), 3e3, 1e-9);
  EXPECT_NEAR(layers[1].getThickness(), 6e3, 1e-9);
}

}  // namespace
