// SPDX-License-Identifier: Apache-2.0
#include "ostrel/soil_spring.h"

#include "support/hostile_stream.h"
#include "support/relative.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <string>
#include <vector>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::expect_relative;
using ostrel::testing::frame_bytes;
using ostrel::testing::read_stored;
using ostrel::testing::stored;
using ostrel::testing::through_memory;

constexpr double two_plus_pi = 5.141592653589793;
constexpr double deg30 = std::numbers::pi / 6.0;
constexpr double nan_value = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

// A spring of 0.5 N/mm³ with limits of 10 mm (ultimate) and 4 mm (passive).
NodeModulus spring(int type) {
  NodeModulus node;
  node.type = static_cast<xSpringInterval::QlimSpring>(type);
  node.ultimate_limit = 10.0;
  node.passive_limit = 4.0;
  node.modulus = 0.5;
  return node;
}

// A soil without friction: the limit load is c (2 + pi) + sigma_v, the passive coefficient 1.
xSoilProps cohesive(double cohesion, double unit_weight) {
  xSoilProps soil;
  soil.setCohesion(cohesion);
  soil.setUnitWeight(unit_weight);
  soil.setSaturatedUnitWeight(2.0 * unit_weight);
  return soil;
}

xSoilLayer layer(double top, double bottom, const xSoilProps& soil,
                 const std::vector<double>& levels) {
  xSoilLayer made;
  made.setDepth(top);
  made.setThickness(bottom - top);
  made.soil = soil;
  made.levels = levels;
  return made;
}

const xSoilProps clay = cohesive(0.1, 2e-5);
constexpr double clay_load = 0.1 * two_plus_pi;  // limit load without overburden

// Clay from 0 to 20 m behind an excavation of 4 m and a wall of 10 m.
std::vector<xSoilLayer> clay_column() {
  return {layer(0.0, 4000.0, clay, {0.0, 4000.0}),
          layer(4000.0, 10'000.0, clay, {4000.0, 6000.0, 8000.0, 10'000.0}),
          layer(10'000.0, 20'000.0, clay, {10'000.0, 20'000.0})};
}

// What the tests vary of a wall of 10 m with an excavation of 4 m, at a spacing of 1 m.
struct Wall {
  int first_node = 7;
  formulType formula = formulaCoulomb;
  std::vector<xSpringInterval> intervals{xSpringInterval{}};
  geoFactorType factor_type = geoFactorResistance;
  std::vector<GeoCombFactor> factors = std::vector<GeoCombFactor>(6);
  double depth = 4000.0;
  double length = 10'000.0;
  double displacement = 10.0;

  OstrelErrorType fill(xSubgradeReactionModulus& into,
                       const std::vector<xSoilLayer>& layers) const {
    return into.compute_SkSpring(first_node, formula, 0.0, intervals, factor_type, factors, layers,
                                 depth, length, 1000.0, displacement);
  }
  std::map<int, NodeModulus> springs(const std::vector<xSoilLayer>& layers) const {
    xSubgradeReactionModulus subgrade;
    EXPECT_EQ(fill(subgrade, layers), ostrel::ok);
    return subgrade.springs;
  }
};

TEST(SpringLaw, LimitIsTheOneOfItsType) {
  EXPECT_EQ(spring(0).getDyLim(), 10.0);
  EXPECT_EQ(spring(1).getDyLim(), 4.0);
  EXPECT_EQ(spring(2).getDyLim(), 4.0);
  NodeModulus strong = spring(2);
  strong.passive_limit = 40.0;
  EXPECT_EQ(strong.getDyLim(), 10.0);
}

TEST(SpringLaw, EveryOtherTypeTakesTheSmallerLimit) {
  for (const int type : {-1, 3, 1000})
    EXPECT_EQ(spring(type).getDyLim(), 4.0);
}

TEST(SpringLaw, TheSmallerLimitIsNoNumberWhereEitherIsNone) {
  NodeModulus node = spring(2);
  node.passive_limit = nan_value;
  EXPECT_TRUE(std::isnan(node.getDyLim()));
  node = spring(2);
  node.ultimate_limit = nan_value;
  EXPECT_TRUE(std::isnan(node.getDyLim()));
}

TEST(SpringLaw, SecantIsTheModulusUpToTheLimitAndHalfOfItAtTwiceTheLimit) {
  const NodeModulus node = spring(1);
  for (const double d : {0.0, -0.0, 3.0, 4.0, -4.0})
    EXPECT_EQ(node.getKmolla(d), 0.5) << d;
  EXPECT_EQ(node.getKmolla(8.0), 0.25);
  EXPECT_EQ(node.getKmolla(-8.0), 0.25);
  EXPECT_EQ(node.getKmolla(infinite), 0.0);
}

TEST(SpringLaw, PressureGrowsToTheLimitAndStaysThereInBothDirections) {
  const NodeModulus node = spring(1);
  EXPECT_EQ(node.q(3.0), 1.5);
  EXPECT_EQ(node.q(-3.0), -1.5);
  EXPECT_EQ(node.q(4.0), 2.0);
  EXPECT_EQ(node.q(-4.0), -2.0);
  EXPECT_EQ(node.q(8.0), 2.0);
  EXPECT_EQ(node.q(-8.0), -2.0);  // minus twice the limit: minus modulus times limit
  EXPECT_EQ(node.q(infinite), 2.0);
  EXPECT_EQ(node.q(-infinite), -2.0);
}

// A negative limit is beyond any displacement, so that the sign shows at 0.
TEST(SpringLaw, CountsMinusZeroAsPositive) {
  NodeModulus node = spring(1);
  node.passive_limit = -4.0;
  EXPECT_EQ(node.q(0.0), -2.0);
  EXPECT_EQ(node.q(-0.0), -2.0);
  EXPECT_EQ(node.q(-1e-300), 2.0);
}

TEST(SpringLaw, PassesOnADisplacementThatIsNotANumber) {
  EXPECT_TRUE(std::isnan(spring(1).getKmolla(nan_value)));
  EXPECT_TRUE(std::isnan(spring(1).q(nan_value)));
  EXPECT_TRUE(std::isnan(NodeModulus{}.q(nan_value)));
}

TEST(SpringLaw, PassesOnALimitThatIsNotANumber) {
  NodeModulus node = spring(1);
  node.passive_limit = nan_value;
  EXPECT_TRUE(std::isnan(node.getKmolla(1.0)));
  EXPECT_TRUE(std::isnan(node.q(1.0)));
}

TEST(SpringLaw, OfANewSpringIsNothing) {
  const NodeModulus node;
  EXPECT_EQ(node.type, xSpringInterval::limitSmaller);
  EXPECT_EQ(node.node, -1);
  EXPECT_EQ(node.position, 0.0);
  EXPECT_EQ(node.ultimate_limit, 25.4);
  EXPECT_EQ(node.passive_limit, 0.0);
  EXPECT_EQ(node.modulus, 0.0);
  EXPECT_EQ(node.getDyLim(), 0.0);
  for (const double d : {0.0, 1.0, -1.0, 1000.0}) {
    EXPECT_EQ(node.q(d), 0.0);
    EXPECT_EQ(node.getKmolla(d), 0.0);
  }
}

TEST(SpringLaw, WithoutModulusCarriesNothingWhateverTheLimit) {
  NodeModulus node = spring(1);
  node.modulus = 0.0;
  node.passive_limit = infinite;
  EXPECT_EQ(node.q(node.getDyLim()), 0.0);
  EXPECT_EQ(node.q(5.0), 0.0);
  EXPECT_EQ(node.getKmolla(5.0), 0.0);
}

TEST(SpringIntervals, AreFoundByTheirEndsAndAMarginOfAMillionth) {
  const std::vector<xSpringInterval> intervals{{0.2, 0.5, xSpringInterval::limitUltimate, 1.0}};
  const auto found = [&intervals](double x) {
    return xSubgradeReactionModulus::find_SprInterval(intervals, x) == intervals.data();
  };
  EXPECT_TRUE(found(0.2));
  EXPECT_TRUE(found(0.5));
  EXPECT_TRUE(found(0.2 - 1e-6));
  EXPECT_TRUE(found(0.5 + 0.9e-6));
  EXPECT_FALSE(found(0.2 - 1.1e-6));
  EXPECT_FALSE(found(0.5 + 1.1e-6));
  EXPECT_FALSE(found(nan_value));
}

TEST(SpringIntervals, TheEarlierWinsWhereTheyOverlap) {
  const std::vector<xSpringInterval> intervals{{0.0, 0.5, xSpringInterval::limitUltimate, 1.0},
                                               {0.3, 1.0, xSpringInterval::limitPassive, 2.0}};
  const auto at = [&intervals](double x) {
    return xSubgradeReactionModulus::find_SprInterval(intervals, x);
  };
  EXPECT_EQ(at(0.4), &intervals[0]);
  EXPECT_EQ(at(0.5), &intervals[0]);
  EXPECT_EQ(at(0.6), &intervals[1]);
  EXPECT_EQ(at(1.1), nullptr);
  EXPECT_EQ(xSubgradeReactionModulus::find_SprInterval({}, 0.4), nullptr);
}

// sigma_v = 2e-5 z, modulus = (0.1 (2 + pi) + sigma_v) / 10 mm; passive limit = sigma_v / modulus.
TEST(SoilSprings, StandAtEveryLevelBelowTheExcavation) {
  const auto springs = Wall{}.springs(clay_column());
  ASSERT_EQ(springs.size(), 4U);
  for (int i = 0; i < 4; ++i) {
    const NodeModulus& node = springs.at(7 + i);
    const double stress = 2e-5 * 2000.0 * i;
    EXPECT_EQ(node.type, xSpringInterval::limitSmaller);
    EXPECT_EQ(node.node, 7 + i);
    EXPECT_EQ(node.position, 4000.0 + 2000.0 * i);
    EXPECT_EQ(node.ultimate_limit, 10.0);
    EXPECT_DOUBLE_EQ(node.modulus, (clay_load + stress) / 10.0);
    EXPECT_DOUBLE_EQ(node.passive_limit, stress / node.modulus);
  }
}

// The last node: sigma_v = 0.12, modulus = 0.0634159..., 1.892... mm; with a modulus a hundred times
// smaller 189.2 mm, more than the 10 mm of the limit load times one hundred.
TEST(SoilSprings, TakeTheSmallerOfBothLimitsByDefault) {
  Wall wall;
  EXPECT_DOUBLE_EQ(wall.springs(clay_column()).at(10).getDyLim(), 1.2 / (clay_load + 0.12));
  wall.intervals = {{0.0, 1.0, xSpringInterval::limitSmaller, 0.01}};
  EXPECT_EQ(wall.springs(clay_column()).at(10).getDyLim(), 10.0);
}

TEST(SoilSprings, CarryNothingAtTheFirstNodeButWithTheUltimateLimit) {
  Wall wall;
  for (const auto type : {xSpringInterval::limitPassive, xSpringInterval::limitSmaller}) {
    wall.intervals[0].type = type;
    const NodeModulus first = wall.springs(clay_column()).at(7);
    EXPECT_EQ(first.getDyLim(), 0.0);
    EXPECT_EQ(first.q(5.0), 0.0);
  }
  wall.intervals[0].type = xSpringInterval::limitUltimate;
  EXPECT_DOUBLE_EQ(wall.springs(clay_column()).at(7).q(5.0), clay_load / 2.0);
}

// Ng at 30 degrees is 2 (18.4011222187087 + 1) / sqrt(3), Nc as there; the width is 1000 mm:
// (0.5 * 2e-5 * 1000 Ng + 18.4011222187087 * 0.04) / 10 at 2 m.
TEST(SoilSprings, AreThoseOfAStripAsWideAsTheSpacing) {
  xSoilProps sand;
  sand.set_InternalFriction(deg30);
  sand.setUnitWeight(2e-5);
  const auto springs = Wall{}.springs({layer(4000.0, 10'000.0, sand, {4000.0, 6000.0}),
                                       layer(10'000.0, 20'000.0, sand, {10'000.0})});
  const double Nq = 18.4011222187087;
  const double Ng = 38.8022444374174 / std::numbers::sqrt3;
  expect_relative(springs.at(7).modulus, 0.01 * Ng / 10.0);
  expect_relative(springs.at(8).modulus, (0.01 * Ng + 0.04 * Nq) / 10.0);
  // Coulomb's passive coefficient is 3: 3 * 0.04.
  expect_relative(springs.at(8).passive_limit * springs.at(8).modulus, 0.12);
}

// Under water 4e-5 - 1e-5 = 3e-5, below the strip and beside it: (0.015 Ng + 0.06 Nq) / 10.
TEST(SoilSprings, UnderWaterTakeTheBuoyantWeight) {
  xSoilProps sand;
  sand.set_InternalFriction(deg30);
  sand.setSaturatedUnitWeight(4e-5);
  std::vector<xSoilLayer> layers{layer(4000.0, 10'000.0, sand, {4000.0, 6000.0}),
                                 layer(10'000.0, 20'000.0, sand, {10'000.0})};
  layers[0].setUnderWater(true);
  const double Nq = 18.4011222187087;
  const double Ng = 38.8022444374174 / std::numbers::sqrt3;
  expect_relative(Wall{}.springs(layers).at(8).modulus, (0.015 * Ng + 0.06 * Nq) / 10.0);
}

// Clay of 20 kN/m³ from 4 to 6 m, of 16 kN/m³ and another cohesion from 6 to 10 m.
std::vector<xSoilLayer> two_clays() {
  return {layer(0.0, 4000.0, clay, {0.0, 4000.0}),
          layer(4000.0, 6000.0, clay, {4000.0, 5000.0, 6000.0}),
          layer(6000.0, 10'000.0, cohesive(0.2, 1.6e-5), {6000.0, 8000.0, 10'000.0}),
          layer(10'000.0, 20'000.0, clay, {10'000.0, 20'000.0})};
}

// sigma_v at 6 m: 2e-5 * 2000 = 0.04, and 1.6e-5 z more below it.
TEST(SoilSprings, AtTheBorderOfTwoLayersAreThoseOfTheLowerOne) {
  const auto springs = Wall{}.springs(two_clays());
  ASSERT_EQ(springs.size(), 5U);
  expect_relative(springs.at(8).modulus, (clay_load + 0.02) / 10.0);
  expect_relative(springs.at(9).modulus, (2.0 * clay_load + 0.04) / 10.0);
  EXPECT_EQ(springs.at(9).position, 6000.0);
  EXPECT_EQ(springs.at(9).node, 9);
  expect_relative(springs.at(10).modulus, (2.0 * clay_load + 0.072) / 10.0);
  expect_relative(springs.at(11).modulus, (2.0 * clay_load + 0.104) / 10.0);
}

// Under water 2 * 1.6e-5 - 1e-5 = 2.2e-5; then 0.04 + 0.088 = 0.128 lies on a third clay of 3e-5.
TEST(SoilSprings, BearTheWeightOfAllLayersBelowTheExcavation) {
  std::vector<xSoilLayer> layers = two_clays();
  layers[2].setUnderWater(true);
  layers.insert(layers.begin() + 3,
                layer(10'000.0, 12'000.0, cohesive(0.3, 3e-5), {10'000.0, 12'000.0}));
  Wall wall;
  wall.length = 12'000.0;
  layers.back() = layer(12'000.0, 20'000.0, clay, {12'000.0, 20'000.0});
  const auto springs = wall.springs(layers);
  ASSERT_EQ(springs.size(), 6U);
  expect_relative(springs.at(10).modulus, (2.0 * clay_load + 0.084) / 10.0);
  expect_relative(springs.at(11).modulus, (3.0 * clay_load + 0.128) / 10.0);
  expect_relative(springs.at(12).modulus, (3.0 * clay_load + 0.188) / 10.0);
}

// The soil above the excavation, however heavy, presses on no spring.
TEST(SoilSprings, DoNotFeelTheSoilAboveTheExcavation) {
  std::vector<xSoilLayer> layers = clay_column();
  layers[0].soil.setUnitWeight(1.0);
  EXPECT_DOUBLE_EQ(Wall{}.springs(layers).at(7).modulus, clay_load / 10.0);
}

TEST(SoilSprings, LeaveOutTheLastLayerAlsoWhereTheSoilEndsAtTheFoot) {
  std::vector<xSoilLayer> layers = two_clays();
  layers.pop_back();  // nothing below the foot
  const auto springs = Wall{}.springs(layers);
  ASSERT_EQ(springs.size(), 3U);  // those of the layer from 4 to 6 m
  EXPECT_EQ(springs.at(9).position, 6000.0);
  expect_relative(springs.at(9).modulus, (clay_load + 0.04) / 10.0);
}

TEST(SoilSprings, AreNoneWithASingleEmbeddedLayer) {
  std::vector<xSoilLayer> layers = clay_column();
  layers.pop_back();
  EXPECT_TRUE(Wall{}.springs(layers).empty());
}

TEST(SoilSprings, AreNoneWithoutALayerBelowTheExcavation) {
  EXPECT_TRUE(Wall{}.springs({}).empty());
  EXPECT_TRUE(Wall{}.springs({clay_column()[0]}).empty());
}

TEST(SoilSprings, AreNoneForAWallThatEndsAtTheExcavation) {
  Wall wall;
  wall.length = 4000.0;
  EXPECT_TRUE(wall.springs(clay_column()).empty());
}

// A layer that ends less than 1e-6 mm below the excavation does not count. One that ends deeper
// does: its 4 m are overburden, and depths count from its top, to 10 m of 6 m embedded.
TEST(SoilSprings, CountALayerThatReachesAMillionthBelowTheExcavation) {
  Wall wall;
  wall.intervals[0].end = 2.0;
  std::vector<xSoilLayer> layers = clay_column();
  layers[0].setThickness(4000.0 + 0.9e-6);
  EXPECT_DOUBLE_EQ(wall.springs(layers).at(8).modulus, (clay_load + 0.04) / 10.0);
  layers[0].setThickness(4000.0 + 1.2e-6);
  layers[0].levels = {4000.0};
  expect_relative(wall.springs(layers).at(8).modulus, (clay_load + 0.08 + 0.04) / 10.0, 1e-9);
}

// A layer that begins less than 1e-6 mm above the foot is the last, and no spring stands in it.
TEST(SoilSprings, EndWithALayerThatBeginsAMillionthAboveTheFoot) {
  std::vector<xSoilLayer> layers = clay_column();
  layers[2].levels = {10'000.0, 10'000.0};
  layers.push_back(layer(20'000.0, 30'000.0, clay, {20'000.0}));
  layers[2].setDepth(10'000.0 - 0.9e-6);
  EXPECT_EQ(Wall{}.springs(layers).size(), 4U);
  layers[2].setDepth(10'000.0 - 1.2e-6);
  EXPECT_EQ(Wall{}.springs(layers).size(), 5U);
}

TEST(SoilSprings, StopAtTheFirstLayerBelowTheFoot) {
  std::vector<xSoilLayer> layers = clay_column();
  layers.push_back(layer(20'000.0, 30'000.0, clay, {20'000.0, 30'000.0}));
  layers.push_back(layer(30'000.0, 40'000.0, clay, {30'000.0, 40'000.0}));
  const auto springs = Wall{}.springs(layers);
  ASSERT_EQ(springs.size(), 4U);
  EXPECT_EQ(springs.rbegin()->second.position, 10'000.0);
}

TEST(SoilSprings, TakeFactorsOnACopyOfTheSoil) {
  Wall wall;
  wall.factors[3] = {4.0, 2.0};   // cohesion without friction
  wall.factors[4] = {1.0, 1.25};  // unit weight
  const std::vector<xSoilLayer> layers = clay_column();
  expect_relative(wall.springs(layers).at(8).modulus, (clay_load / 2.0 + 0.04 / 1.25) / 10.0);
  EXPECT_EQ(layers[1].soil.getCohesion(), 0.1);
  EXPECT_EQ(layers[1].soil.getUnitWeight(), 2e-5);
  wall.factor_type = geoFactorPressure;
  expect_relative(wall.springs(layers).at(8).modulus, (clay_load / 4.0 + 0.04) / 10.0);
}

// Levels at 0, 1/3, 2/3 and 1 of the embedded length.
TEST(SoilSprings, TakeTheIntervalOfTheirRelativeDepth) {
  Wall wall;
  wall.intervals = {{0.0, 0.4, xSpringInterval::limitUltimate, 1.0},
                    {0.4, 1.0, xSpringInterval::limitPassive, 3.0}};
  const auto springs = wall.springs(clay_column());
  EXPECT_EQ(springs.at(8).type, xSpringInterval::limitUltimate);
  EXPECT_DOUBLE_EQ(springs.at(8).modulus, (clay_load + 0.04) / 10.0);
  EXPECT_EQ(springs.at(9).type, xSpringInterval::limitPassive);
  EXPECT_DOUBLE_EQ(springs.at(9).modulus, 3.0 * (clay_load + 0.08) / 10.0);
  EXPECT_EQ(springs.at(10).type, xSpringInterval::limitPassive);

  for (const double end : {1.0 / 3.0, 0.333}) {
    wall.intervals[0].end = end;
    wall.intervals[1].start = end;
    EXPECT_EQ(wall.springs(clay_column()).at(8).type,
              end < 1.0 / 3.0 ? xSpringInterval::limitPassive : xSpringInterval::limitUltimate);
  }
}

TEST(SoilSprings, StopAtANodeWithoutIntervalAndKeepThoseAboveIt) {
  Wall wall;
  wall.intervals = {{0.0, 0.5, xSpringInterval::limitUltimate, 1.0}};
  xSubgradeReactionModulus subgrade;
  EXPECT_EQ(wall.fill(subgrade, clay_column()), errNoUltimatePressure);
  EXPECT_EQ(errNoUltimatePressure, 24);
  EXPECT_EQ(subgrade.springs.size(), 2U);
  wall.intervals.clear();
  EXPECT_EQ(wall.fill(subgrade, clay_column()), errNoUltimatePressure);
  EXPECT_TRUE(subgrade.springs.empty());
}

TEST(SoilSprings, WithTwiceTheFactorAreTwiceAsStiffUnderTheSamePassivePressure) {
  Wall wall;
  const NodeModulus plain = wall.springs(clay_column()).at(9);
  wall.intervals[0].factor = 2.0;
  const NodeModulus stiff = wall.springs(clay_column()).at(9);
  EXPECT_EQ(stiff.modulus, 2.0 * plain.modulus);
  EXPECT_EQ(stiff.passive_limit, 0.5 * plain.passive_limit);
  EXPECT_EQ(stiff.passive_limit * stiff.modulus, plain.passive_limit * plain.modulus);
}

// At rest without friction nu / (1 - nu) = 1/3, and by 1 + sin(30°) on the slope of the layer.
TEST(SoilSprings, TakeThePassivePressureFromTheFormulaChosen) {
  std::vector<xSoilLayer> layers = clay_column();
  layers[1].soil.setPoissonRatio(0.25);
  Wall wall;
  wall.formula = formulaAtRest;
  const NodeModulus level = wall.springs(layers).at(9);
  expect_relative(level.passive_limit * level.modulus, 0.08 / 3.0);
  layers[1].set_Angle(deg30);
  const NodeModulus sloping = wall.springs(layers).at(9);
  expect_relative(sloping.passive_limit * sloping.modulus, 0.04);
}

// phi = delta = 0 but for the friction: Mononobe-Okabe without acceleration is Coulomb's 3.
TEST(SoilSprings, FeelNoAccelerationInTheirPassiveLimit) {
  std::vector<xSoilLayer> layers = clay_column();
  layers[1].soil.set_InternalFriction(deg30);
  Wall wall;
  wall.formula = formulaMononobeOkabe;
  const NodeModulus node = wall.springs(layers).at(9);
  expect_relative(node.passive_limit * node.modulus, 0.24);
}

TEST(SoilSprings, WithoutStrengthCarryNothingAndHaveNoLimitThatIsNotANumber) {
  std::vector<xSoilLayer> layers = clay_column();
  layers[1].soil.setCohesion(0.0);
  const auto springs = Wall{}.springs(layers);
  EXPECT_EQ(springs.at(7).modulus, 0.0);
  EXPECT_EQ(springs.at(7).passive_limit, 0.0);
  EXPECT_EQ(springs.at(7).getKmolla(3.0), 0.0);
  // 2 m below, the overburden alone: the passive pressure is the limit load.
  EXPECT_DOUBLE_EQ(springs.at(8).passive_limit, 10.0);
}

TEST(SoilSprings, SwitchedOffByAFactorOf0CarryNothing) {
  Wall wall;
  wall.intervals[0].factor = 0.0;
  const NodeModulus node = wall.springs(clay_column()).at(9);
  EXPECT_EQ(node.passive_limit, infinite);
  EXPECT_EQ(node.getDyLim(), 10.0);
  EXPECT_EQ(node.q(20.0), 0.0);
  EXPECT_EQ(node.getKmolla(20.0), 0.0);
}

TEST(SoilSprings, InAWeightlessFirstLayerStandOnTheCohesion) {
  std::vector<xSoilLayer> layers = clay_column();
  layers[1].soil.setUnitWeight(0.0);
  for (const auto& [node, weightless] : Wall{}.springs(layers)) {
    EXPECT_DOUBLE_EQ(weightless.modulus, clay_load / 10.0) << node;
    EXPECT_EQ(weightless.passive_limit, 0.0) << node;
  }
}

TEST(SoilSprings, GoOnCountingBelowALayerWithoutLevels) {
  std::vector<xSoilLayer> layers = two_clays();
  layers[1].levels.clear();
  const auto springs = Wall{}.springs(layers);
  ASSERT_EQ(springs.size(), 3U);
  EXPECT_EQ(springs.at(7).position, 6000.0);
}

TEST(SoilSprings, WrapNodesBeyondTheLargest) {
  Wall wall;
  wall.first_node = std::numeric_limits<int>::max();
  const auto springs = wall.springs(clay_column());
  EXPECT_EQ(springs.at(std::numeric_limits<int>::max()).position, 4000.0);
  EXPECT_EQ(springs.at(std::numeric_limits<int>::min()).position, 6000.0);
}

TEST(SoilSprings, ForgetThoseOfAnEarlierCall) {
  xSubgradeReactionModulus subgrade;
  subgrade.springs[99] = spring(0);
  ASSERT_EQ(Wall{}.fill(subgrade, clay_column()), ostrel::ok);
  EXPECT_EQ(subgrade.springs.count(99), 0U);
  ASSERT_EQ(Wall{}.fill(subgrade, {}), ostrel::ok);
  EXPECT_TRUE(subgrade.springs.empty());
  subgrade.springs[99] = spring(0);
  subgrade.clear();
  EXPECT_TRUE(subgrade.springs.empty());
}

TEST(SoilSprings, EndInSomeResultForEveryNumber) {
  for (const double odd : {nan_value, infinite, -infinite, 0.0, -1.0, 1e308}) {
    for (double Wall::*field : {&Wall::depth, &Wall::length, &Wall::displacement}) {
      Wall wall;
      wall.*field = odd;
      xSubgradeReactionModulus subgrade;
      const auto code = wall.fill(subgrade, clay_column());
      EXPECT_TRUE(code == ostrel::ok || code == errNoUltimatePressure) << odd;
      EXPECT_LE(subgrade.springs.size(), 6U) << odd;
    }
  }
}

NodeModulus stored_spring() {
  NodeModulus node = spring(1);
  node.node = 12;
  node.position = 4500.0;
  return node;
}

TEST(SpringStream, HoldsTypeNodePositionModulusAndUltimateLimit) {
  const NodeModulus node = stored_spring();
  EXPECT_EQ(node.getIOClass(), "NodeModulus");
  EXPECT_EQ(
      stored(node),
      frame_bytes(1, bytes_of([](outstream& out) { out << 1 << 12 << 4500.0 << 0.5 << 10.0; })));
}

TEST(SpringStream, LeavesThePassiveLimitAsItWas) {
  NodeModulus node;
  node.passive_limit = 3.0;
  read_stored(node, stored(stored_spring()));
  EXPECT_EQ(node.type, xSpringInterval::limitPassive);
  EXPECT_EQ(node.node, 12);
  EXPECT_EQ(node.position, 4500.0);
  EXPECT_EQ(node.modulus, 0.5);
  EXPECT_EQ(node.ultimate_limit, 10.0);
  EXPECT_EQ(node.passive_limit, 3.0);
  EXPECT_EQ(through_memory(stored_spring()).getDyLim(), 0.0);
}

TEST(SpringStream, KeepsATypeItDoesNotKnow) {
  NodeModulus node = stored_spring();
  node.type = static_cast<xSpringInterval::QlimSpring>(-5);
  EXPECT_EQ(static_cast<int>(through_memory(node).type), -5);
}

TEST(SpringStream, HoldsTheSpringsInTheOrderOfTheirNodes) {
  xSubgradeReactionModulus subgrade;
  subgrade.springs[9] = spring(0);
  subgrade.springs[-3] = stored_spring();
  EXPECT_EQ(subgrade.getIOClass(), "xSubgradeReactionModulus");
  const std::string fields = bytes_of([](outstream& out) { out << 2 << -3; })
                           + stored(stored_spring()) + bytes_of([](outstream& out) { out << 9; })
                           + stored(spring(0));
  EXPECT_EQ(stored(subgrade), frame_bytes(1, fields));

  xSubgradeReactionModulus read;
  read.springs[5] = spring(2);
  read_stored(read, stored(subgrade));
  ASSERT_EQ(read.springs.size(), 2U);
  EXPECT_EQ(read.springs.at(-3).node, 12);
  EXPECT_EQ(read.springs.at(9).modulus, 0.5);
}

TEST(SpringStream, RefusesWhatIsDamaged) {
  xSubgradeReactionModulus subgrade;
  subgrade.springs[9] = stored_spring();
  ostrel::testing::expect_cuts_refused(subgrade);
  EXPECT_GT(ostrel::testing::refused_mutations(subgrade, 2000), 500);
}

}  // namespace
