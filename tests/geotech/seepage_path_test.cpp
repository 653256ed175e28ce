// SPDX-License-Identifier: Apache-2.0
#include "geotech/seepage_path.h"

#include "support/tolerances_guard.h"
#include "support/wall_builder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace ostrel::geotech {
namespace {

using ostrel::testing::rectangle;
using ostrel::testing::unfactored;
using ::testing::ElementsAre;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

// Ground across both sides of the wall between two elevations [mm].
xBoundSoilLayer ground(double bottom, double top, double permeability = 0.01,
                       double saturated = 20e-6) {
  xBoundSoilLayer layer;
  layer.soil.setKPerm(permeability);
  layer.soil.setSaturatedUnitWeight(saturated);
  layer.polygons = {rectangle(-5e4, 5e4, bottom, top)};
  return layer;
}

MATCHER_P2(Spans, s0, s1, "") {
  return std::abs(arg.s0 - s0) <= 1e-9 && std::abs(arg.s1 - s1) <= 1e-9;
}

class ColumnOfLayers : public ::testing::Test {
protected:
  // The column at x = 1 for water at -2000 and a foot at -12 000.
  std::vector<SeepageSegment> column(const std::vector<xBoundSoilLayer>& layers) {
    std::vector<SeepageSegment> found;
    code = column_of_layers(1.0, -2000.0, -12'000.0, layers, comb, found);
    return found;
  }

  xLoadComb comb = unfactored("A");
  OstrelErrorType code = ok;
};

TEST_F(ColumnOfLayers, GoesFromTheWaterToTheFoot) {
  EXPECT_THAT(column({ground(-30'000, 0)}), ElementsAre(Spans(2000, 12'000)));
  EXPECT_EQ(code, ok);
}

TEST_F(ColumnOfLayers, BeginsAtTheGroundWhereTheWaterStandsAboveIt) {
  EXPECT_THAT(column({ground(-30'000, -3000)}), ElementsAre(Spans(3000, 12'000)));
}

TEST_F(ColumnOfLayers, EndsWithTheGroundAboveTheFoot) {
  EXPECT_THAT(column({ground(-9000, 0)}), ElementsAre(Spans(2000, 9000)));
}

TEST_F(ColumnOfLayers, LosesTheGroundAboveTheWater) {
  EXPECT_THAT(column({ground(-1500, 0), ground(-30'000, -1500)}), ElementsAre(Spans(2000, 12'000)));
}

TEST_F(ColumnOfLayers, IsSearchedNoFurtherThanALayerThatBeginsUnderTheFoot) {
  EXPECT_THAT(column({ground(-5000, 0), ground(-30'000, -12'001), ground(-12'001, -5000)}),
              ElementsAre(Spans(2000, 5000)));
}

TEST_F(ColumnOfLayers, IsSearchedOnBehindALayerThatBeginsAtTheFoot) {
  EXPECT_THAT(column({ground(-30'000, -12'000), ground(-12'000, 0)}),
              ElementsAre(Spans(2000, 12'000)));
}

TEST_F(ColumnOfLayers, IsOrderedFromTheTopDown) {
  EXPECT_THAT(column({ground(-30'000, -8000), ground(-8000, -3000), ground(-3000, 0)}),
              ElementsAre(Spans(2000, 3000), Spans(3000, 8000), Spans(8000, 12'000)));
}

TEST_F(ColumnOfLayers, LeavesOutFilms) {
  // 0.00005 mm lie below the water, less than 0.0001 mm; 0.0002 mm are more.
  EXPECT_THAT(column({ground(-2000.00005, 0), ground(-9000, -4000)}),
              ElementsAre(Spans(4000, 9000)));
  EXPECT_THAT(column({ground(-2000.0002, 0)}), ElementsAre(Spans(2000, 2000.0002)));
}

TEST_F(ColumnOfLayers, PassesALayerThatItOnlyTouches) {
  xBoundSoilLayer corner = ground(-9000, 0);
  corner.polygons = {{{1.0, -5000.0}, {3000.0, -9000.0}, {3000.0, 0.0}, {1.0, -5000.0}}};
  EXPECT_TRUE(column({corner}).empty());
  EXPECT_EQ(code, errNoLayerIntersection);
}

TEST_F(ColumnOfLayers, TakesALayerOfSeveralPolygonsFromItsFirstSideToItsLast) {
  xBoundSoilLayer parts = ground(-4000, 0);
  parts.polygons.push_back(rectangle(-5e4, 5e4, -9000, -6000));
  EXPECT_THAT(column({parts}), ElementsAre(Spans(2000, 9000)));
}

TEST_F(ColumnOfLayers, TakesSidesNearerThanTheProcessToleranceForOne) {
  const testing::TolerancesGuard guard;
  xTolerances wide;
  wide.values[xTolerances::crossing_distance] = 500.0;
  setTolerances(wide);
  EXPECT_THAT(column({ground(-3400, -3000), ground(-9000, -3400)}), ElementsAre(Spans(3400, 9000)));
}

TEST_F(ColumnOfLayers, StandsOnTheSideThatIsAskedFor) {
  xBoundSoilLayer behind = ground(-9000, 0);
  behind.polygons = {rectangle(0, 5e4, -9000, 0)};
  std::vector<SeepageSegment> found;
  EXPECT_EQ(column_of_layers(-1.0, -2000, -12'000, {behind}, comb, found), errNoLayerIntersection);
  EXPECT_EQ(column_of_layers(1.0, -2000, -12'000, {behind}, comb, found), ok);
}

TEST_F(ColumnOfLayers, HoldsDesignValues) {
  comb.geoFactors[4] = {.first = 7.0, .second = 1.25};
  comb.geoFactors[5] = {.first = 2.0, .second = 7.0};
  const auto found = column({ground(-9000, 0, 0.01, 20e-6)});
  ASSERT_EQ(found.size(), 1U);
  EXPECT_DOUBLE_EQ(found[0].gamma, 16e-6);  // 20e-6 / 1.25
  EXPECT_DOUBLE_EQ(found[0].k, 0.005);      // 0.01 / 2
}

TEST_F(ColumnOfLayers, HoldsCharacteristicValuesWithoutFactors) {
  comb.geoFactors.clear();
  const auto found = column({ground(-9000, 0, 0.01, 20e-6)});
  ASSERT_EQ(found.size(), 1U);
  EXPECT_DOUBLE_EQ(found[0].gamma, 20e-6);
  EXPECT_DOUBLE_EQ(found[0].k, 0.01);
}

TEST_F(ColumnOfLayers, NeedsGround) {
  EXPECT_TRUE(column({}).empty());
  EXPECT_EQ(code, errNoLayerIntersection);
  EXPECT_TRUE(column({xBoundSoilLayer{}}).empty());
  EXPECT_EQ(code, errNoLayerIntersection);
  EXPECT_TRUE(column({ground(nan, 0)}).empty());
  EXPECT_EQ(code, errNoLayerIntersection);
}

TEST_F(ColumnOfLayers, NeedsAFoot) {
  std::vector<SeepageSegment> found(3);
  EXPECT_EQ(column_of_layers(1.0, -2000, nan, {ground(-9000, 0)}, comb, found),
            errNoLayerIntersection);
  EXPECT_TRUE(found.empty());
}

xWaterTable water(double uphill, double downhill) {
  xWaterTable table;
  table.setIsDefined(true);
  table.setLivelloMonte(uphill);
  table.setLivelloValle(downhill);
  return table;
}

// Two layers that meet at -8000, with an excavation to -6000.
std::vector<xBoundSoilLayer> dug_ground() {
  xBoundSoilLayer upper = ground(-8000, 0, 0.01, 20e-6);
  upper.polygons = {{{5e4, 0.0},
                     {0.0, 0.0},
                     {0.0, -6000.0},
                     {-5e4, -6000.0},
                     {-5e4, -8000.0},
                     {5e4, -8000.0},
                     {5e4, 0.0}}};
  return {upper, ground(-30'000, -8000, 0.005, 21e-6)};
}

TEST(SeepagePath, GoesDownBehindTheWallAndUpBeforeIt) {
  SeepagePath path;
  ASSERT_EQ(build_seepage_path(water(-2000, -6000), dug_ground(), unfactored("A"), -12'000, path),
            ok);
  EXPECT_DOUBLE_EQ(path.head_up, -2000.0);
  EXPECT_DOUBLE_EQ(path.head_down, -6000.0);
  // Uphill 6000 of the upper and 4000 of the lower layer, downhill 4000 and 2000.
  EXPECT_THAT(path.segments, ElementsAre(Spans(0, 6000), Spans(6000, 10'000), Spans(10'000, 14'000),
                                         Spans(14'000, 16'000)));
  EXPECT_DOUBLE_EQ(path.s_toe, 10'000.0);
  EXPECT_DOUBLE_EQ(downhill_height(path), 6000.0);
  EXPECT_DOUBLE_EQ(path.segments[1].k, 0.005);
  EXPECT_DOUBLE_EQ(path.segments[2].k, 0.005);
  EXPECT_DOUBLE_EQ(path.segments[3].k, 0.01);
  EXPECT_DOUBLE_EQ(path.segments[2].gamma, 21e-6);
  EXPECT_DOUBLE_EQ(path.segments[3].gamma, 20e-6);
}

TEST(SeepagePath, NeedsWater) {
  SeepagePath path;
  const xLoadComb comb = unfactored("A");
  xWaterTable none = water(-2000, -6000);
  none.setIsDefined(false);
  EXPECT_EQ(build_seepage_path(none, dug_ground(), comb, -12'000, path), errHydroNoWater);
  EXPECT_EQ(build_seepage_path(water(nan, -6000), dug_ground(), comb, -12'000, path),
            errHydroNoWater);
  EXPECT_EQ(build_seepage_path(water(-2000, nan), dug_ground(), comb, -12'000, path),
            errHydroNoWater);
  EXPECT_EQ(build_seepage_path(water(infinity, -6000), dug_ground(), comb, -12'000, path),
            errHydroNoWater);
  EXPECT_TRUE(path.segments.empty());
}

TEST(SeepagePath, NeedsGroundOnBothSides) {
  SeepagePath path;
  xBoundSoilLayer one_side = ground(-30'000, 0);
  one_side.polygons = {rectangle(0, 5e4, -30'000, 0)};
  EXPECT_EQ(build_seepage_path(water(-2000, -6000), {one_side}, unfactored("A"), -12'000, path),
            errNoLayerIntersection);
  one_side.polygons = {rectangle(-5e4, 0, -30'000, 0)};
  EXPECT_EQ(build_seepage_path(water(-2000, -6000), {one_side}, unfactored("A"), -12'000, path),
            errNoLayerIntersection);
}

// Three layers of 2000, 1000 and 3000 mm and k of 0.01, 0.005 and 0.01; the foot at 2500.
SeepagePath three_layers() {
  SeepagePath path;
  path.head_up = -1000.0;
  path.head_down = -5000.0;
  path.s_toe = 2500.0;
  path.segments = {{.s0 = 0, .s1 = 2000, .k = 0.01, .gamma = 20e-6},
                   {.s0 = 2000, .s1 = 3000, .k = 0.005, .gamma = 21e-6},
                   {.s0 = 3000, .s1 = 6000, .k = 0.01, .gamma = 19e-6}};
  return path;
}

TEST(HeadsAlong, FallByLengthOverPermeability) {
  // 200 000 + 200 000 + 300 000 = 700 000 s share 4000 mm: 8000/7, 8000/7 and 12 000/7.
  const std::vector<HeadDrop> heads = heads_along(three_layers());
  ASSERT_EQ(heads.size(), 3U);
  EXPECT_DOUBLE_EQ(heads[0].h0, -1000.0);
  EXPECT_DOUBLE_EQ(heads[0].h1, -1000.0 - 8000.0 / 7.0);
  EXPECT_DOUBLE_EQ(heads[1].h0, heads[0].h1);
  EXPECT_DOUBLE_EQ(heads[1].h1, -1000.0 - 16'000.0 / 7.0);
  EXPECT_DOUBLE_EQ(heads[2].h0, heads[1].h1);
}

// The second path's drops, each rounded, add up to 1e-12 mm more than the 4000 mm between the waters.
TEST(HeadsAlong, EndAtTheLowerWaterItself) {
  SeepagePath path = three_layers();
  EXPECT_EQ(heads_along(path).back().h1, -5000.0);
  path.segments[1].k = 0.007;
  path.segments[2].k = 0.003;
  EXPECT_EQ(heads_along(path).back().h1, -5000.0);
  EXPECT_TRUE(heads_along(SeepagePath{}).empty());
}

TEST(HeadsAlong, AreNotNumbersBehindALayerThatLetsNoWaterThrough) {
  SeepagePath path = three_layers();
  path.segments[1].k = 0.0;
  const std::vector<HeadDrop> heads = heads_along(path);
  EXPECT_DOUBLE_EQ(heads[0].h1, -1000.0);  // nothing flows, so nothing is lost before it
  EXPECT_TRUE(std::isnan(heads[1].h1));
  EXPECT_TRUE(std::isnan(head_at_toe(path)));
}

TEST(HeadAtToe, IsLinearWithinTheSegment) {
  // Half of the second drop: -1000 - 8000/7 - 4000/7 = -1000 - 12 000/7.
  EXPECT_DOUBLE_EQ(head_at_toe(three_layers()), -1000.0 - 12'000.0 / 7.0);
}

TEST(HeadAtToe, IsTakenInTheFirstSegmentThatHoldsTheFoot) {
  SeepagePath path = three_layers();
  path.s_toe = 2000.0;
  EXPECT_DOUBLE_EQ(head_at_toe(path), -1000.0 - 8000.0 / 7.0);
}

TEST(HeadAtToe, OfAPathThatDoesNotReachItIsTheDifferenceOfTheLevels) {
  SeepagePath path = three_layers();
  path.s_toe = 6000.5;
  EXPECT_DOUBLE_EQ(head_at_toe(path), 4000.0);  // -1000 - (-5000)
  EXPECT_DOUBLE_EQ(head_at_toe(SeepagePath{}), 0.0);
}

TEST(WeightBeyond, CountsWhatLiesAfterThePoint) {
  const SeepagePath path = three_layers();
  // All: 2000 * 10e-6 + 1000 * 11e-6 + 3000 * 9e-6 = 0.02 + 0.011 + 0.027.
  EXPECT_DOUBLE_EQ(weight_beyond(path, -1.0, 1.0), 0.058);
  EXPECT_DOUBLE_EQ(weight_beyond(path, 0.0, 1.0), 0.058);
  // From 2500: 500 * 11e-6 + 0.027.
  EXPECT_DOUBLE_EQ(weight_beyond(path, 2500.0, 1.0), 0.0325);
  EXPECT_DOUBLE_EQ(weight_beyond(path, 3000.0, 1000.0), 27.0);
  EXPECT_DOUBLE_EQ(weight_beyond(path, 6000.0, 1.0), 0.0);
}

TEST(DownhillHeight, OfAPathOfNothingIsZero) {
  EXPECT_DOUBLE_EQ(downhill_height(SeepagePath{}), 0.0);
  EXPECT_DOUBLE_EQ(downhill_height(three_layers()), 3500.0);
}

}  // namespace
}  // namespace ostrel::geotech
