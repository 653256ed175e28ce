// SPDX-License-Identifier: Apache-2.0
#include "ostrel/soil_layer.h"

#include "support/random_contents.h"
#include "support/stream_round_trip.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::RandomContents;
using ostrel::testing::read_stored;
using ostrel::testing::stored;
using ostrel::testing::through_memory;
using ::testing::ElementsAre;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

xSoilLayer layer(double depth, double thickness, double step) {
  xSoilLayer made;
  made.setDepth(depth);
  made.setThickness(thickness);
  made.setStepSize(step);
  return made;
}

std::vector<double> levels_of(double depth, double thickness, double step) {
  xSoilLayer made = layer(depth, thickness, step);
  made.discretize();
  return made.levels;
}

TEST(BoundSoilLayer, IsEmptyWhenNewAndAfterReset) {
  xBoundSoilLayer ground;
  EXPECT_TRUE(ground.polygons.empty());
  EXPECT_EQ(ground.getAngle(), 0.0);
  EXPECT_EQ(ground.getIOClass(), "xBoundSoilLayer");
  ground.polygons = {{{1.0, 2.0}}};
  ground.soil.setName("fill");
  ground.setAngle(0.3);
  ground.reset();
  EXPECT_TRUE(ground.polygons.empty());
  EXPECT_EQ(ground.soil.getName(), "");
  EXPECT_EQ(ground.getAngle(), 0.0);
}

TEST(BoundSoilLayer, IsStoredAsSoilPolygonsAndAngle) {
  xBoundSoilLayer ground;
  ground.soil.setName("fill");
  ground.polygons = {{{1.0, 2.0}, {3.0, 4.0}}, {}};
  ground.setAngle(0.25);
  EXPECT_EQ(stored(ground), frame_bytes(1, stored(ground.soil) + bytes_of([](outstream& out) {
                                             out << 2 << 2 << 1.0 << 2.0 << 3.0 << 4.0 << 0 << 0.25;
                                           })));
}

TEST(BoundSoilLayer, SurvivesMemoryWithRandomContents) {
  RandomContents random(1);
  for (int i = 0; i < 50; ++i) {
    xBoundSoilLayer ground;
    ground.soil.setName(random.text());
    ground.soil.setCohesion(random.number());
    ground.setAngle(random.number());
    ground.polygons.resize(random.below(4));
    for (auto& polygon : ground.polygons) {
      polygon.resize(random.below(6));
      for (auto& point : polygon)
        point = {random.number(), random.number()};
    }
    const xBoundSoilLayer copy = through_memory(ground);
    EXPECT_EQ(copy.soil.getName(), ground.soil.getName());
    EXPECT_EQ(copy.soil.getCohesion(), ground.soil.getCohesion());
    EXPECT_EQ(copy.getAngle(), ground.getAngle());
    ASSERT_EQ(copy.polygons.size(), ground.polygons.size());
    for (std::size_t p = 0; p < copy.polygons.size(); ++p) {
      ASSERT_EQ(copy.polygons[p].size(), ground.polygons[p].size());
      for (std::size_t v = 0; v < copy.polygons[p].size(); ++v) {
        EXPECT_EQ(copy.polygons[p][v][0], ground.polygons[p][v][0]);
        EXPECT_EQ(copy.polygons[p][v][1], ground.polygons[p][v][1]);
      }
    }
  }
}

TEST(BoundSoilLayer, ReplacesThePolygonsItHadBeforeReading) {
  xBoundSoilLayer ground;
  ground.polygons = {{{1.0, 2.0}}};
  const std::string bytes = stored(ground);
  ground.polygons = {{{5.0, 6.0}, {7.0, 8.0}}, {{9.0, 9.0}}};
  read_stored(ground, bytes);
  ASSERT_EQ(ground.polygons.size(), 1U);
  ASSERT_EQ(ground.polygons[0].size(), 1U);
  EXPECT_EQ(ground.polygons[0][0][1], 2.0);
}

// Two billion polygons are promised and one point of one polygon comes: nothing more is set aside.
TEST(BoundSoilLayer, SetsNothingAsideForPolygonsThatDoNotCome) {
  const std::string begin = bytes_of([](outstream& out) { out << 0x01010101 << 1; });
  const std::string fields = stored(xSoilProps{}) + bytes_of([](outstream& out) {
                               out << 2'000'000'000 << 1 << 3.0 << 4.0;
                             });
  xBoundSoilLayer ground;
  EXPECT_THROW(read_stored(ground, begin + fields), std::runtime_error);
  EXPECT_LE(ground.polygons.capacity(), 4U);
}

TEST(BoundSoilLayer, RefusesANegativeNumberOfPolygons) {
  const std::string fields =
      stored(xSoilProps{}) + bytes_of([](outstream& out) { out << -1 << 0.0; });
  xBoundSoilLayer ground;
  EXPECT_THROW(read_stored(ground, frame_bytes(1, fields)), std::runtime_error);
}

TEST(SoilLayer, HasItsDefaultsWhenNewAndAfterReset) {
  xSoilLayer made = layer(1.0, 2.0, 3.0);
  made.setUnderWater(true);
  made.set_Angle(0.1);
  made.soil.setCohesion(1.0);
  made.levels = {1.0};
  made.reset();
  EXPECT_EQ(made.getDepth(), 0.0);
  EXPECT_EQ(made.getThickness(), 0.0);
  EXPECT_FALSE(made.getUnderWater());
  EXPECT_EQ(made.getStepSize(), 250.0);
  EXPECT_EQ(made.getAngle(), 0.0);
  EXPECT_EQ(made.soil.getCohesion(), 0.0);
  EXPECT_TRUE(made.levels.empty());
}

TEST(WaterTable, IsUndefinedWhenNewAndAfterReset) {
  xWaterTable water;
  water.setIsDefined(true);
  water.setLivelloMonte(-1.0);
  water.setLivelloValle(-2.0);
  water.reset();
  EXPECT_FALSE(water.getIsDefined());
  EXPECT_EQ(water.getLivelloMonte(), 0.0);
  EXPECT_EQ(water.getLivelloValle(), 0.0);
}

// 600 / 250 = 2.4, so three steps of 200.
TEST(Discretize, TakesTheFewestStepsNotLongerThanWanted) {
  EXPECT_THAT(levels_of(1000.0, 600.0, 250.0), ElementsAre(1000.0, 1200.0, 1400.0, 1600.0));
}

TEST(Discretize, TakesWholeStepsWhereTheyFit) {
  EXPECT_THAT(levels_of(0.0, 500.0, 250.0), ElementsAre(0.0, 250.0, 500.0));
}

TEST(Discretize, GivesAThinLayerItsTopAndBottom) {
  EXPECT_THAT(levels_of(100.0, 1.0, 250.0), ElementsAre(100.0, 101.0));
}

// Ten times 0.1 added up give the double before 1, which is 1 - 2^-53.
TEST(Discretize, EndsAtTheRunningSum) {
  const auto levels = levels_of(0.0, 1.0, 0.1);
  ASSERT_EQ(levels.size(), 11U);
  EXPECT_EQ(levels.back(), 1.0 - std::numeric_limits<double>::epsilon() / 2.0);
}

TEST(Discretize, AppendsToTheLevelsThatAreThere) {
  xSoilLayer made = layer(0.0, 250.0, 250.0);
  made.levels = {-1.0};
  made.discretize();
  EXPECT_THAT(made.levels, ElementsAre(-1.0, 0.0, 250.0));
}

TEST(Discretize, GivesALayerWithoutThicknessItsTopAlone) {
  EXPECT_THAT(levels_of(7.0, 0.0, 250.0), ElementsAre(7.0));
  EXPECT_THAT(levels_of(7.0, -600.0, 250.0), ElementsAre(7.0));
  EXPECT_THAT(levels_of(7.0, not_a_number, 250.0), ElementsAre(7.0));
}

TEST(Discretize, GivesALayerWithAnImpossibleStepItsTopAlone) {
  for (const double step : {0.0, -0.0, -250.0, not_a_number, -infinity})
    EXPECT_THAT(levels_of(7.0, 600.0, step), ElementsAre(7.0)) << step;
}

// A million steps are made, a million and one are not.
TEST(Discretize, GivesALayerOfMoreThanAMillionStepsItsTopAlone) {
  EXPECT_EQ(levels_of(0.0, 1e6, 1.0).size(), 1'000'001U);
  EXPECT_THAT(levels_of(7.0, 1e6 + 0.5, 1.0), ElementsAre(7.0));
  EXPECT_THAT(levels_of(7.0, infinity, 250.0), ElementsAre(7.0));
  EXPECT_THAT(levels_of(7.0, 600.0, 1e-300), ElementsAre(7.0));
}

}  // namespace
