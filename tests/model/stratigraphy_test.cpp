// SPDX-License-Identifier: Apache-2.0
#include "model/stratigraphy.h"

#include "services/exact.h"
#include "support/random_contents.h"
#include "support/wall_builder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace {

using namespace ostrel::model;
using ostrel::testing::clay;
using ostrel::testing::RandomContents;
using ostrel::testing::rectangle;
using ostrel::testing::sand;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

xBoundSoilLayer ground(std::vector<std::vector<arma::Col<double>::fixed<2>>> polygons) {
  xBoundSoilLayer made;
  made.polygons = std::move(polygons);
  made.soil = sand();
  return made;
}

xBoundSoilLayer strip(double top, double bottom) {
  return ground({rectangle(-20e3, 20e3, bottom, top)});
}

xWaterTable water(double monte) {
  xWaterTable made;
  made.setIsDefined(true);
  made.setLivelloMonte(monte);
  return made;
}

const xWaterTable dry;

xSoilLayer uncut(double depth, double thickness) {
  xSoilLayer made;
  made.setDepth(depth);
  made.setThickness(thickness);
  made.set_Angle(0.1);
  return made;
}

MATCHER_P4(PieceOf, depth, thickness, under_water, angle, "") {
  return ostrel::exactly_equal(arg.getDepth(), depth)
      && ostrel::exactly_equal(arg.getThickness(), thickness) && arg.getUnderWater() == under_water
      && ostrel::exactly_equal(arg.getAngle(), angle);
}

std::vector<xSoilLayer> column_of(const std::vector<xBoundSoilLayer>& layers,
                                  const std::vector<double>& levels, const xWaterTable& table = dry,
                                  double step = 250.0) {
  std::vector<xSoilLayer> column;
  EXPECT_EQ(build_column(layers, table, levels, step, column), ostrel::ok);
  return column;
}

TEST(CutDepths, AreAscendingNumbers) {
  EXPECT_THAT(cut_depths({6e3, 12e3, not_a_number, 2e3, -5.0}), ElementsAre(-5.0, 2e3, 6e3, 12e3));
}

TEST(SnapElevations, AreTheLevelsTheHeadAndTheWater) {
  EXPECT_THAT(snap_elevations({6e3, 12e3, 2e3}, water(-1500.0)),
              ElementsAre(-12e3, -6e3, -2e3, -1500.0, 0.0));
}

TEST(SnapElevations, HoldTheLevelOfAWaterTableThatIsNotDefined) {
  xWaterTable table = water(-1500.0);
  table.setIsDefined(false);
  EXPECT_THAT(snap_elevations({6e3}, table), ElementsAre(-6e3, -1500.0, 0.0));
}

TEST(SnapElevations, LeaveOutWhatIsNoNumber) {
  EXPECT_THAT(snap_elevations({not_a_number, 6e3}, water(not_a_number)), ElementsAre(-6e3, 0.0));
}

TEST(BordersAtWall, AreTheHighestAndLowestCrossing) {
  const auto borders = borders_at_wall(
      ground({rectangle(-10.0, 10.0, -300.0, -100.0), rectangle(-10.0, 10.0, -900.0, -700.0)}));
  ASSERT_TRUE(borders.has_value());
  EXPECT_EQ(borders->top, -100.0);
  EXPECT_EQ(borders->bottom, -900.0);
}

// The top rises by 1/5 from -3200 at x = -1000 to -1200 at x = 9000: -3000 at x = 0. The bottom
// falls by 1/10 from -8000 at x = -1000: -8100 at x = 0.
TEST(BordersAtWall, AreCarriedAlongTheirSides) {
  const auto borders = borders_at_wall(ground({{{9000.0, -1200.0},
                                                {-1000.0, -3200.0},
                                                {-1000.0, -8000.0},
                                                {9000.0, -9000.0},
                                                {9000.0, -1200.0}}}));
  ASSERT_TRUE(borders.has_value());
  EXPECT_NEAR(borders->top, -3000.0, 1e-9);
  EXPECT_NEAR(borders->bottom, -8100.0, 1e-9);
}

// The first side is 5e-11 mm wide and 2e-8 high: carried along it, the top would move by 40 mm.
TEST(BordersAtWall, StayWhereTheyAreOnAnUprightSide) {
  const auto borders = borders_at_wall(ground({{{0.1 - 2.5e-11, -1000.0},
                                                {0.1 + 2.5e-11, -1000.00000002},
                                                {5000.0, -2000.0},
                                                {-5000.0, -2000.0}}}));
  ASSERT_TRUE(borders.has_value());
  EXPECT_NEAR(borders->top, -1000.0, 1e-7);
}

TEST(BordersAtWall, AreNoneWithFewerThanTwoCrossings) {
  EXPECT_FALSE(borders_at_wall(ground({})).has_value());
  EXPECT_FALSE(borders_at_wall(ground({rectangle(100.0, 200.0, -10.0, 0.0)})).has_value());
  EXPECT_FALSE(borders_at_wall(ground({{{-1.0, 0.0}, {1.0, 0.0}}})).has_value());
}

// A triangle of 1 mm touches the probe with its tip alone.
TEST(BordersAtWall, AreNoneForAPolygonThatEndsOnTheProbe) {
  EXPECT_FALSE(borders_at_wall(ground({{{0.1, -50.0}, {1.1, -49.5}, {1.1, -50.5}, {0.1, -50.0}}}))
                   .has_value());
}

TEST(Snap, MovesABorderThatIsNearerThanTheTolerance) {
  Borders borders{.top = -1.0, .bottom = -5999.0};
  snap(borders, {-6000.0, 0.0}, 2.5);
  EXPECT_EQ(borders.bottom, -6000.0);
  EXPECT_EQ(borders.top, 0.0);
}

TEST(Snap, LeavesABorderThatIsExactlyTheToleranceAway) {
  Borders borders{.top = -2.5, .bottom = -6002.5};
  snap(borders, {-6000.0, 0.0}, 2.5);
  EXPECT_EQ(borders.bottom, -6002.5);
  EXPECT_EQ(borders.top, -2.5);
}

// From -6003 to -6001, which is near it, and from there on to -5999.
TEST(Snap, GoesOnFromTheElevationItHasReached) {
  Borders borders{.top = 0.0, .bottom = -6003.0};
  snap(borders, {-6001.0, -5999.0, -5990.0}, 2.5);
  EXPECT_EQ(borders.bottom, -5999.0);
}

TEST(UncutLayer, TakesSoilSlopeAndStep) {
  xBoundSoilLayer source = strip(0.0, -1.0);
  source.soil = clay();
  source.soil.setIsDense(true);
  source.setAngle(0.2);
  const xSoilLayer made = uncut_layer(source, {.top = -500.0, .bottom = -2000.0}, 300.0);
  EXPECT_EQ(made.getDepth(), 500.0);
  EXPECT_EQ(made.getThickness(), 1500.0);
  EXPECT_EQ(made.getAngle(), 0.2);
  EXPECT_EQ(made.getStepSize(), 300.0);
  EXPECT_FALSE(made.getUnderWater());
  EXPECT_TRUE(made.levels.empty());
  EXPECT_EQ(made.soil.getName(), "clay");
  EXPECT_EQ(made.soil.getElasticityModulus(), clay().getElasticityModulus());
  EXPECT_EQ(made.soil.getShearModulus(), clay().getShearModulus());
  EXPECT_EQ(made.soil.getPoissonRatio(), clay().getPoissonRatio());
  EXPECT_EQ(made.soil.getUnitWeight(), clay().getUnitWeight());
  EXPECT_EQ(made.soil.getSaturatedUnitWeight(), clay().getSaturatedUnitWeight());
  EXPECT_EQ(made.soil.getCohesion(), clay().getCohesion());
  EXPECT_EQ(made.soil.getAdhesion(), clay().getAdhesion());
  EXPECT_EQ(made.soil.getOCR(), clay().getOCR());
  EXPECT_EQ(made.soil.getConstrModulus(), clay().getConstrModulus());
  EXPECT_EQ(made.soil.getKPerm(), clay().getKPerm());
  EXPECT_TRUE(made.soil.getIsDense());
}

TEST(UncutLayer, TakesTheDepthOfItsTopWithoutTheSign) {
  const xSoilLayer made = uncut_layer(strip(0.0, -1.0), {.top = 2000.0, .bottom = -500.0}, 250.0);
  EXPECT_EQ(made.getDepth(), 2000.0);
  EXPECT_EQ(made.getThickness(), 2500.0);
}

TEST(UncutLayer, BeginsAtTheHigherBorder) {
  const xSoilLayer made = uncut_layer(strip(0.0, -1.0), {.top = -900.0, .bottom = -400.0}, 250.0);
  EXPECT_EQ(made.getDepth(), 400.0);
  EXPECT_EQ(made.getThickness(), 500.0);
}

TEST(SplitLayer, CutsStrictlyInside) {
  std::vector<xSoilLayer> column;
  xSoilLayer layer = uncut(1000.0, 500.0);
  for (const double depth : {1000.0, 1500.0, 999.0, 1501.0, not_a_number, infinity, -infinity}) {
    EXPECT_FALSE(split_layer(depth, dry, layer, column)) << depth;
    EXPECT_THAT(layer, PieceOf(1000.0, 500.0, false, 0.1));
  }
  EXPECT_THAT(column, IsEmpty());
}

TEST(SplitLayer, FinishesTheUpperPieceAndKeepsTheLower) {
  std::vector<xSoilLayer> column;
  xSoilLayer layer = uncut(1000.0, 500.0);
  EXPECT_TRUE(split_layer(1200.0, dry, layer, column));
  ASSERT_THAT(column, ElementsAre(PieceOf(1000.0, 200.0, false, 0.1)));
  EXPECT_THAT(column[0].levels, ElementsAre(1000.0, 1200.0));
  EXPECT_THAT(layer, PieceOf(1200.0, 300.0, false, 0.0));
  EXPECT_THAT(layer.levels, IsEmpty());
}

// Water at 1100: the upper piece, cut at 1200, lies in two, the lower one is not finished.
TEST(SplitLayer, SplitsTheUpperPieceAtTheWater) {
  std::vector<xSoilLayer> column;
  xSoilLayer layer = uncut(1000.0, 500.0);
  EXPECT_TRUE(split_layer(1200.0, water(-1100.0), layer, column));
  EXPECT_THAT(column,
              ElementsAre(PieceOf(1000.0, 100.0, false, 0.1), PieceOf(1100.0, 100.0, true, 0.0)));
  EXPECT_THAT(layer, PieceOf(1200.0, 300.0, false, 0.0));
}

TEST(InsertWaterTable, SplitsALayerAtWaterInside) {
  std::vector<xSoilLayer> column;
  xSoilLayer layer = uncut(1000.0, 500.0);
  insert_water_table(water(-1200.0), layer, column);
  ASSERT_THAT(column,
              ElementsAre(PieceOf(1000.0, 200.0, false, 0.1), PieceOf(1200.0, 300.0, true, 0.0)));
  EXPECT_THAT(column[0].levels, ElementsAre(1000.0, 1200.0));
  EXPECT_THAT(column[1].levels, ElementsAre(1200.0, 1350.0, 1500.0));
}

TEST(InsertWaterTable, PutsALayerBelowTheLevelUnderWaterWhole) {
  std::vector<xSoilLayer> column;
  xSoilLayer layer = uncut(1000.0, 500.0);
  insert_water_table(water(-900.0), layer, column);
  EXPECT_THAT(column, ElementsAre(PieceOf(1000.0, 500.0, true, 0.1)));
}

TEST(InsertWaterTable, TakesWaterExactlyOnTheTopForAllOfTheLayer) {
  std::vector<xSoilLayer> column;
  xSoilLayer layer = uncut(1000.0, 500.0);
  insert_water_table(water(-1000.0), layer, column);
  EXPECT_THAT(column, ElementsAre(PieceOf(1000.0, 500.0, true, 0.1)));
}

TEST(InsertWaterTable, LeavesALayerDryWhoseBottomIsExactlyAtTheWater) {
  std::vector<xSoilLayer> column;
  xSoilLayer layer = uncut(1000.0, 500.0);
  insert_water_table(water(-1500.0), layer, column);
  EXPECT_THAT(column, ElementsAre(PieceOf(1000.0, 500.0, false, 0.1)));
}

TEST(InsertWaterTable, LeavesEveryLayerDryWithoutADefinedTable) {
  for (const double monte : {0.0, 500.0, -1200.0, -2000.0}) {
    std::vector<xSoilLayer> column;
    xSoilLayer layer = uncut(1000.0, 500.0);
    xWaterTable table = water(monte);
    table.setIsDefined(false);
    insert_water_table(table, layer, column);
    EXPECT_THAT(column, ElementsAre(PieceOf(1000.0, 500.0, false, 0.1))) << monte;
  }
}

TEST(InsertWaterTable, TakesALevelThatIsNoNumberForNone) {
  std::vector<xSoilLayer> column;
  xSoilLayer layer = uncut(1000.0, 500.0);
  insert_water_table(water(not_a_number), layer, column);
  EXPECT_THAT(column, ElementsAre(PieceOf(1000.0, 500.0, false, 0.1)));
}

TEST(Column, CutsALayerAtEveryLevelInside) {
  const auto column = column_of({strip(0.0, -20e3)}, {6e3, 12e3, 2e3, 2e3, 30e3});
  EXPECT_THAT(column, ElementsAre(PieceOf(0.0, 2e3, false, 0.0), PieceOf(2e3, 4e3, false, 0.0),
                                  PieceOf(6e3, 6e3, false, 0.0), PieceOf(12e3, 8e3, false, 0.0)));
  EXPECT_EQ(column[0].levels.size(), 9U);  // 2000 / 250 steps and the top
}

TEST(Column, KeepsTheOrderOfTheInput) {
  const auto column = column_of({strip(-5e3, -9e3), strip(0.0, -5e3)}, {});
  EXPECT_THAT(column, ElementsAre(PieceOf(5e3, 4e3, false, 0.0), PieceOf(0.0, 5e3, false, 0.0)));
}

TEST(Column, AppendsToWhatIsThere) {
  std::vector<xSoilLayer> column{uncut(1.0, 2.0)};
  EXPECT_EQ(build_column({strip(0.0, -1e3)}, dry, {}, 250.0, column), ostrel::ok);
  EXPECT_THAT(column, ElementsAre(PieceOf(1.0, 2.0, false, 0.1), PieceOf(0.0, 1e3, false, 0.0)));
}

TEST(Column, KeepsTheSlopeOnTheTopPieceOfEachLayer) {
  xBoundSoilLayer top = strip(0.0, -5e3);
  top.setAngle(0.2);
  xBoundSoilLayer below = strip(-5e3, -9e3);
  below.setAngle(0.3);
  const auto column = column_of({top, below}, {3e3}, water(-7e3));
  EXPECT_THAT(column, ElementsAre(PieceOf(0.0, 3e3, false, 0.2), PieceOf(3e3, 2e3, false, 0.0),
                                  PieceOf(5e3, 2e3, false, 0.3), PieceOf(7e3, 2e3, true, 0.0)));
}

TEST(Column, SnapsABorderToALevelAMillimetreAway) {
  const auto column = column_of({strip(0.0, -5999.0), strip(-5999.0, -9e3)}, {6e3});
  EXPECT_THAT(column, ElementsAre(PieceOf(0.0, 6e3, false, 0.0), PieceOf(6e3, 3e3, false, 0.0)));
}

// The tolerance is 250 / 100 = 2.5: a border at exactly that distance stays and is cut off.
TEST(Column, DoesNotSnapABorderExactlyTheToleranceAway) {
  const auto column = column_of({strip(0.0, -6002.5), strip(-6002.5, -9e3)}, {6e3});
  EXPECT_THAT(column, ElementsAre(PieceOf(0.0, 6e3, false, 0.0), PieceOf(6e3, 2.5, false, 0.0),
                                  PieceOf(6002.5, 2997.5, false, 0.0)));
}

TEST(Column, SnapsToTheLevelOfAWaterTableThatIsNotDefined) {
  xWaterTable table = water(-2000.0);
  table.setIsDefined(false);
  EXPECT_THAT(column_of({strip(0.0, -2001.0)}, {}, table),
              ElementsAre(PieceOf(0.0, 2e3, false, 0.0)));
}

// Both borders snap to the excavation: nothing of the layer is left at the wall.
TEST(Column, SkipsALayerThatIsAbsentAtTheWall) {
  const auto column =
      column_of({strip(0.0, -5998.0), strip(-5998.0, -6002.0), strip(-6002.0, -9e3)}, {6e3});
  EXPECT_THAT(column, ElementsAre(PieceOf(0.0, 6e3, false, 0.0), PieceOf(6e3, 3e3, false, 0.0)));
}

TEST(Column, TakesGroundAboveTheHeadForGroundBelow) {
  EXPECT_THAT(column_of({strip(2000.0, -500.0)}, {}),
              ElementsAre(PieceOf(2000.0, 2500.0, false, 0.0)));
}

TEST(Column, PutsWaterOnABorderExactlyBetweenTheLayers) {
  const auto column = column_of({strip(0.0, -3e3), strip(-3e3, -9e3)}, {6e3}, water(-3e3));
  EXPECT_THAT(column, ElementsAre(PieceOf(0.0, 3e3, false, 0.0), PieceOf(3e3, 3e3, true, 0.0),
                                  PieceOf(6e3, 3e3, true, 0.0)));
}

TEST(Column, StopsAtALayerThatDoesNotReachAcrossTheWall) {
  std::vector<xSoilLayer> column;
  const auto aside = ground({rectangle(100.0, 200.0, -5e3, -4e3)});
  EXPECT_EQ(build_column({strip(0.0, -4e3), aside, strip(-4e3, -9e3)}, dry, {}, 250.0, column),
            errNoLayerIntersection);
  EXPECT_THAT(column, ElementsAre(PieceOf(0.0, 4e3, false, 0.0)));
}

TEST(Column, IsEmptyWithoutLayers) {
  EXPECT_THAT(column_of({}, {6e3, 12e3}, water(-1e3)), IsEmpty());
}

TEST(Column, RefusesAStepThatIsNoPositiveNumber) {
  for (const double step : {0.0, -0.0, -250.0, not_a_number, infinity, -infinity}) {
    std::vector<xSoilLayer> column;
    EXPECT_EQ(build_column({strip(0.0, -9e3)}, dry, {6e3}, step, column), errStratigraphy) << step;
    EXPECT_THAT(column, IsEmpty());
  }
}

TEST(Column, RefusesAStepThatWouldTakeMoreThanAMillionLevels) {
  for (const double step : {0.008, 1e-9, 1e-300, std::numeric_limits<double>::denorm_min()}) {
    std::vector<xSoilLayer> column;
    EXPECT_EQ(build_column({strip(0.0, -9e3)}, dry, {}, step, column), errStratigraphy) << step;
    EXPECT_THAT(column, IsEmpty());
  }
  // 9000 / 0.01 = 900 000 steps.
  EXPECT_EQ(column_of({strip(0.0, -9e3)}, {}, dry, 0.01)[0].levels.size(), 900'001U);
}

// Ten layers of 150 000 levels each: the seventh would exceed the million.
TEST(Column, RefusesLayersThatTogetherWouldTakeMoreThanAMillionLevels) {
  const std::vector<xBoundSoilLayer> layers(10, strip(0.0, -1500.0));
  std::vector<xSoilLayer> column;
  EXPECT_EQ(build_column(layers, dry, {}, 0.01, column), errStratigraphy);
  EXPECT_EQ(column.size(), 6U);
}

// Thousands of cuts through thousands of layers at one place: 2 levels for each piece.
TEST(Column, RefusesPiecesThatTogetherWouldTakeMoreThanAMillionLevels) {
  const std::vector<xBoundSoilLayer> layers(500, strip(0.0, -9e3));
  std::vector<double> levels;
  for (int i = 1; i < 3000; ++i)
    levels.push_back(3.0 * i);
  std::vector<xSoilLayer> column;
  EXPECT_EQ(build_column(layers, dry, levels, 200.0, column), errStratigraphy);
  EXPECT_LT(column.size(), 500'000U);
}

// The probe is 2e7 mm long, so no layer is thicker: 2e7 / 250 = 80 000 steps.
TEST(Column, TakesALayerOfHugeThickness) {
  const auto column = column_of({strip(9.9e6, -1e7)}, {});
  ASSERT_EQ(column.size(), 1U);
  EXPECT_EQ(column[0].levels.size(), 79'601U);
  std::vector<xSoilLayer> none;
  EXPECT_EQ(build_column({strip(1e300, -1e300)}, dry, {}, 250.0, none), errNoLayerIntersection);
}

TEST(Column, RefusesPolygonsOfWhatIsNoNumber) {
  for (const double odd : {not_a_number, infinity, -infinity}) {
    for (const auto& outline : {rectangle(-10.0, 10.0, odd, 0.0), rectangle(odd, 10.0, -10.0, 0.0),
                                rectangle(odd, odd, odd, odd)}) {
      std::vector<xSoilLayer> column;
      EXPECT_EQ(build_column({ground({outline})}, dry, {6e3}, 250.0, column),
                errNoLayerIntersection);
    }
  }
}

TEST(Column, IsNotCutAtALevelThatIsNoNumber) {
  const auto column =
      column_of({strip(0.0, -9e3)}, {not_a_number, 6e3, infinity, -infinity}, water(not_a_number));
  EXPECT_THAT(column, ElementsAre(PieceOf(0.0, 6e3, false, 0.0), PieceOf(6e3, 3e3, false, 0.0)));
}

TEST(Column, DoesNotMindTheDirectionOfAPolygon) {
  xBoundSoilLayer turned = strip(0.0, -9e3);
  std::reverse(turned.polygons[0].begin(), turned.polygons[0].end());
  EXPECT_THAT(column_of({turned}, {}), ElementsAre(PieceOf(0.0, 9e3, false, 0.0)));
}

// Levels on the grid of 2^-10 mm, five borders, a sloping top, water: every piece ends exactly
// where the next one begins, and none is a sliver.
TEST(Column, HasNeitherSliversNorGapsForLevelsOnTheGrid) {
  RandomContents random(11);
  for (int run = 0; run < 500; ++run) {
    std::vector<double> borders{0.0};
    for (int i = 0; i < 5; ++i)
      borders.push_back(borders.back() + random.on_grid(200.0, 4000.0));
    std::vector<xBoundSoilLayer> layers;
    for (std::size_t i = 1; i < borders.size(); ++i)
      layers.push_back(strip(-borders[i - 1], -borders[i]));
    // Half of the levels lie on borders or just beside them.
    std::vector<double> levels;
    for (int i = 0; i < 6; ++i) {
      const double level = random.yes() ? random.on_grid(0.0, 12e3) : borders[random.below(6)];
      levels.push_back(random.yes() ? level : level + random.on_grid(0.0, 2.0));
    }
    const auto column = column_of(layers, levels, water(-random.on_grid(0.0, 12e3)));
    for (std::size_t i = 0; i < column.size(); ++i) {
      EXPECT_GE(column[i].getThickness(), 1.0 / 1024.0);
      if (i == 0) continue;
      EXPECT_EQ(column[i].getDepth(), column[i - 1].getDepth() + column[i - 1].getThickness());
    }
  }
}

// The ground slopes at any angle through the wall and ends at a level on the grid that is a cut.
TEST(Column, HasNoSliverBelowASlopingTop) {
  RandomContents random(12);
  for (int run = 0; run < 2000; ++run) {
    const double foot = random.on_grid(7e3, 20e3);
    const double left = -random.on_grid(1e3, 6e3);
    const double right = -random.on_grid(1e3, 6e3);
    const auto sloping =
        ground({{{1e4, right}, {-1e4, left}, {-1e4, -foot}, {1e4, -foot}, {1e4, right}}});
    const auto column = column_of({sloping, strip(-foot, -30e3)}, {foot}, water(-foot));
    ASSERT_EQ(column.size(), 2U);
    EXPECT_FALSE(column[0].getUnderWater());
    EXPECT_TRUE(column[1].getUnderWater());
    EXPECT_EQ(column[1].getDepth(), foot);
  }
}

}  // namespace
