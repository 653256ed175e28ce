// SPDX-License-Identifier: Apache-2.0
#include "ostrel/pile_bearing_check.h"

#include "ostrel/language.h"
#include "ostrel/results.h"
#include "ostrel/sheetpiling_data.h"
#include "ostrel/tolerances.h"
#include "support/hostile_stream.h"
#include "support/relative.h"
#include "support/soil_column.h"
#include "support/stream_round_trip.h"
#include "support/tolerances_guard.h"
#include "support/wall_builder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::clay;
using ostrel::testing::degrees;
using ostrel::testing::expect_cuts_refused;
using ostrel::testing::expect_relative;
using ostrel::testing::frame_bytes;
using ostrel::testing::layer_of;
using ostrel::testing::refused_mutations;
using ostrel::testing::smooth_soil;
using ostrel::testing::stored;
using ostrel::testing::submerged_layer_of;
using ostrel::testing::through_memory;
using ostrel::testing::TolerancesGuard;
using ostrel::testing::unfactored;
using ostrel::testing::WallBuilder;
using std::numbers::pi;

constexpr double infinity = std::numeric_limits<double>::infinity();

// Six partial factors on the soil for its resistance; those for its pressure would show.
std::vector<GeoCombFactor> soil_factors(double friction, double cohesion, double undrained,
                                        double weight) {
  std::vector<GeoCombFactor> factors;
  for (const double factor : {friction, 1.0, cohesion, undrained, weight, 1.0}) {
    factors.push_back({.first = 99.0, .second = factor});
  }
  return factors;
}

class PileBearing : public ::testing::Test {
protected:
  PileBearing() {
    pile.setSectionRect(600.0, 900.0, bearSecPile::diamSmallerSide);  // 540 000 mm², 3000 mm
    pile.setLength(2400.0);
    settings.setCsi3(2.0);
    settings.setCsi4(1.5);
    factors.setGammaB(2.0);
    factors.setGammaS(1.5);
    factors.setGammaST(2.5);
  }

  OstrelErrorType check() { return result.check(pile, settings, factors); }

  xBearCapacityPileData pile;
  xBearCapacityPileSettings settings;
  xPilePartialFactors factors;
  xBearCapacityPile result;
};

// 19e-6 * 6000 = 0.114; (0.05 * 9 + 0.114) * 540 000 = 304 560;
// 50 kN/m² hold by 0.725: 3000 * 6000 * 0.725 * 0.05 = 652 500.
TEST_F(PileBearing, InClayHasAnAdhesionAndNineTimesTheCohesion) {
  pile.layers = {layer_of(clay(), {0.0, 6000.0})};
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_DOUBLE_EQ(result.getNq(), 1.0);
  EXPECT_DOUBLE_EQ(result.getNc(), 9.0);
  expect_relative(result.getDepthStress(), 0.114);
  expect_relative(result.getPlim(), 304'560.0);
  expect_relative(result.getSlim(), 652'500.0);
}

// (0.05 * 9 + 0.1 + 0.114) * 540 000 = 358 560; bored 0.5: 3000 * 6000 * 0.5 * 0.05 = 450 000.
TEST_F(PileBearing, TakesTheStressAtTheTopAndTheTechnology) {
  pile.layers = {layer_of(clay(), {0.0, 6000.0})};
  pile.setTopStress(0.1);
  settings.setTechnologyType(pileBored);
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(result.getDepthStress(), 0.214);
  expect_relative(result.getPlim(), 358'560.0);
  expect_relative(result.getSlim(), 450'000.0);
}

// 2e-5 * 1000 + 1.2e-5 * 1000 + 19e-6 * 2000 = 0.02 + 0.012 + 0.038 = 0.07. Only the clay at the
// tip holds the shaft, 3000 * 2000 * 0.725 * 0.05 = 217 500.
TEST_F(PileBearing, HasTheShaftOfItsLastLayerAlone) {
  pile.layers = {layer_of(smooth_soil(), {0.0, 1000.0}),
                 submerged_layer_of(smooth_soil(), {1000.0, 2000.0}),
                 layer_of(clay(), {2000.0, 4000.0})};
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(result.getDepthStress(), 0.07);
  expect_relative(result.getSlim(), 217'500.0);
  expect_relative(result.getPlim(), (0.45 + 0.07) * 540'000.0);
}

// The tip has 0.05 / 2 = 0.025, the first layer 0.0125, the second 0.00625, of which all holds:
// 3000 * 2000 * 0.00625 = 37 500. Weights / 1.25: 19e-6 * 6000 / 1.25 = 0.0912.
TEST_F(PileBearing, FactorsTheShaftOnceMoreAtEachLayer) {
  pile.layers = {layer_of(clay(), {0.0, 4000.0}), layer_of(clay(), {4000.0, 6000.0})};
  factors.factors = soil_factors(1.0, 1.0, 2.0, 1.25);
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(result.getDepthStress(), 0.0912);
  expect_relative(result.getPlim(), (0.025 * 9.0 + 0.0912) * 540'000.0);
  expect_relative(result.getSlim(), 37'500.0);
}

// Nq at 20° is 5.392428 for D 600, L 2400, so 1 + 4.392428 * (pi / 6) / 20 at pi / 6 "degrees".
// One layer from 0: dz 1000, s 0.02; 3000 * 0.5 * 1 * tan(30°) * (0.04 - 0.02) * 1000
// = 30 000 / sqrt(3).
TEST_F(PileBearing, MeetsTheChartsInRadians) {
  pile.layers = {layer_of(smooth_soil(), {0.0, 1000.0})};
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(result.getNq(), 1.0 + 4.392428 * pi / 120.0);
  const double nc_at_20 = 4.392428 / std::tan(pi / 9.0);
  expect_relative(result.getNc(), 9.0 + (nc_at_20 - 9.0) * pi / 120.0);
  expect_relative(result.getPlim(), 0.02 * (1.0 + 4.392428 * pi / 120.0) * 540'000.0);
  expect_relative(result.getSlim(), 30'000.0 / std::numbers::sqrt3);
  expect_relative(result.getDepthStress(), 0.02);
}

// Driven (30 + 40) / 2 = 35°: 55.630748 - 4.458076 * 35 + 0.097308 * 1225
// = 55.630748 - 156.03266 + 119.2023 = 18.800388. Bored 27°:
// 55.630748 - 120.368052 + 0.097308 * 729 = 55.630748 - 120.368052 + 70.937532 = 6.200228.
TEST_F(PileBearing, MeetsThemInDegreesWithTheCorrectedAngle) {
  pile.layers = {layer_of(smooth_soil(), {0.0, 1000.0})};
  settings.setApplyKishida(true);
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(result.getNq(), 18.800388);
  expect_relative(result.getNc(), 17.800388 / std::tan(degrees(35.0)));
  settings.setTechnologyType(pileBored);
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(result.getNq(), 6.200228);
  expect_relative(result.getNc(), 5.200228 / std::tan(degrees(27.0)));
}

// 23° bored is 20°, where the chart begins: 55.630748 - 89.16152 + 38.9232 = 5.392428.
TEST_F(PileBearing, AtTwentyDegreesIsOnTheCurve) {
  xSoilProps soil = smooth_soil();
  soil.set_InternalFriction(degrees(23.0));
  pile.layers = {layer_of(soil, {0.0, 1000.0})};
  settings.setApplyKishida(true);
  settings.setTechnologyType(pileBored);
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(result.getNq(), 5.392428, 1e-9);
}

// Dense and driven K = 3; tan(30°) / 2 at the tip, / 4 at the first layer, / 8 at the second.
// Second layer: dz (1000 - 1000) - 1000 = -1000, s -0.02, 3000 / 2 * K t * (-0.04 + 0.02) * -1000
// = 30 000 K t; dz 1000 - 0 = 1000, s 0, 1500 K t * (0 - 0.02) * 1000 = -30 000 K t. Levels 1000
// and 2000 below a start of 1000 thus cancel; with 3000 too: dz 1000, s 0.02, + 30 000 K t.
TEST_F(PileBearing, InDenseSoilTakesTheHigherPressureAndTheUnfactoredWeight) {
  xSoilProps soil = smooth_soil();
  soil.setIsDense(true);
  pile.layers = {layer_of(smooth_soil(), {0.0, 1000.0}), layer_of(soil, {1000.0, 2000.0, 3000.0})};
  factors.factors = soil_factors(2.0, 1.0, 1.0, 1.25);
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(result.getSlim(), 30'000.0 * 3.0 / (8.0 * std::numbers::sqrt3));
  expect_relative(result.getDepthStress(), 0.02);
}

TEST_F(PileBearing, WithFrictionAndNoLevelsHasNoShaftAndTheStressOfTheTop) {
  xSoilLayer layer = layer_of(smooth_soil(), {0.0, 1000.0});
  layer.levels.clear();
  pile.layers = {layer};
  pile.setTopStress(0.3);
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_DOUBLE_EQ(result.getSlim(), 0.0);
  EXPECT_DOUBLE_EQ(result.getDepthStress(), 0.3);
  expect_relative(result.getPlim(), 0.32 * (1.0 + 4.392428 * pi / 120.0) * 540'000.0);
}

// 0.02 rad is no friction with a tolerance of 0.03: 3000 * 1000 * 1 * 0.02 = 60 000. With
// 0.04 rad there is: 3000 / 2 * tan(0.04) * (0.04 - 0.02) * 1000 = 30 000 tan(0.04).
TEST_F(PileBearing, BelowTheToleranceHasNoFriction) {
  const TolerancesGuard guard;
  xTolerances tolerances;
  tolerances.values[xTolerances::friction_angle] = 0.03;
  setTolerances(tolerances);
  xSoilProps soil = smooth_soil();
  soil.set_InternalFriction(0.02);
  soil.setCohesion(0.02);
  pile.layers = {layer_of(soil, {0.0, 1000.0})};
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(result.getSlim(), 60'000.0);
  soil.set_InternalFriction(-0.02);
  pile.layers = {layer_of(soil, {0.0, 1000.0})};
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(result.getSlim(), 60'000.0);
  soil.set_InternalFriction(0.04);
  pile.layers = {layer_of(soil, {0.0, 1000.0})};
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(result.getSlim(), 30'000.0 * std::tan(0.04));
}

TEST_F(PileBearing, WithoutLayersResistsNothing) {
  pile.setLoad(1000.0);
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_DOUBLE_EQ(result.getNq(), 0.0);
  EXPECT_DOUBLE_EQ(result.getFd(), 1000.0);
  EXPECT_DOUBLE_EQ(result.getRd(), 0.0);
  EXPECT_DOUBLE_EQ(result.getSf(), 0.0);
}

// 652 500 / (1.5 * 2) + 304 560 / (2 * 2) = 217 500 + 76 140; with 1.5 for 2:
// 652 500 / 2.25 + 304 560 / 3 = 290 000 + 101 520.
TEST_F(PileBearing, DividesTheResistancesByTheChosenCorrelation) {
  pile.layers = {layer_of(clay(), {0.0, 6000.0})};
  pile.setLoad(100'000.0);
  pile.setPileWeight(46'820.0);
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_DOUBLE_EQ(result.getFd(), 146'820.0);
  expect_relative(result.getRd(), 293'640.0);
  expect_relative(result.getSf(), 2.0);
  for (const int type : {1, -3}) {
    settings.setValueType(type);
    ASSERT_EQ(check(), ostrel::ok);
    expect_relative(result.getRd(), 391'520.0);
  }
}

// 652 500 / (2.5 * 2) + 76 140 = 206 640.
TEST_F(PileBearing, InTensionTakesTheOtherShaftFactorAndStillTheTip) {
  pile.layers = {layer_of(clay(), {0.0, 6000.0})};
  pile.setLoad(-100'000.0);
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_DOUBLE_EQ(result.getFd(), -100'000.0);
  expect_relative(result.getRd(), 206'640.0);
  expect_relative(result.getSf(), 2.0664);
}

TEST_F(PileBearing, WithoutACorrelationFactorIsUnlimited) {
  pile.layers = {layer_of(clay(), {0.0, 6000.0})};
  pile.setLoad(1.0);
  settings.setCsi3(0.0);
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_DOUBLE_EQ(result.getRd(), infinity);
  EXPECT_DOUBLE_EQ(result.getSf(), 1e10);
  pile.layers.clear();
  result.reset();
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_TRUE(std::isnan(result.getRd()));  // nothing by nothing
}

TEST_F(PileBearing, UnloadedIsUnlimited) {
  pile.layers = {layer_of(clay(), {0.0, 6000.0})};
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_DOUBLE_EQ(result.getSf(), 1e10);
}

TEST_F(PileBearing, OfNumbersThatAreNoneIsNone) {
  xSoilProps soil = clay();
  soil.setCohesion(std::numeric_limits<double>::quiet_NaN());
  pile.layers = {layer_of(soil, {0.0, 6000.0})};
  pile.setLoad(1.0);
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_TRUE(std::isnan(result.getSf()));
}

TEST(PileData, BeginsEmptyAndResets) {
  xBearCapacityPileData pile;
  pile.setSectionRect(600.0, 1500.0, bearSecPile::diamLargerSide);
  EXPECT_EQ(pile.getSection().type, 1);
  EXPECT_DOUBLE_EQ(pile.pile_Area(), 900'000.0);
  EXPECT_DOUBLE_EQ(pile.pile_Perim(), 4200.0);
  EXPECT_DOUBLE_EQ(pile.getSection().getEqvDiam(), 1500.0);
  pile.setSectionCirc(600.0);
  EXPECT_EQ(pile.getSection().type, 0);
  EXPECT_EQ(static_cast<int>(pile.getSection().method), 2);
  EXPECT_DOUBLE_EQ(pile.pile_Area(), 90'000.0 * pi);
  pile.layers.resize(2);
  pile.setLength(1.0);
  pile.setLoad(2.0);
  pile.setTopStress(3.0);
  pile.setPileWeight(4.0);
  EXPECT_DOUBLE_EQ(pile.getLength(), 1.0);
  EXPECT_DOUBLE_EQ(pile.getLoad(), 2.0);
  EXPECT_DOUBLE_EQ(pile.getTopStress(), 3.0);
  EXPECT_DOUBLE_EQ(pile.getPileWeight(), 4.0);
  pile.reset();
  EXPECT_TRUE(pile.layers.empty());
  EXPECT_DOUBLE_EQ(pile.pile_Area(), 0.0);
  EXPECT_DOUBLE_EQ(pile.getLength(), 0.0);
  EXPECT_DOUBLE_EQ(pile.getLoad(), 0.0);
  EXPECT_DOUBLE_EQ(pile.getTopStress(), 0.0);
  EXPECT_DOUBLE_EQ(pile.getPileWeight(), 0.0);
}

TEST(PilePartialFactors, ResetTheResistancesAndClearTheSoil) {
  xPilePartialFactors factors;
  EXPECT_DOUBLE_EQ(factors.getGammaB(), 1.0);
  EXPECT_DOUBLE_EQ(factors.getGammaLatSurf(0.0), 1.0);
  factors.setGammaB(1.3);
  factors.setGammaS(1.1);
  factors.setGammaST(1.2);
  factors.factors.resize(6);
  EXPECT_DOUBLE_EQ(factors.getGammaLatSurf(1.0), 1.1);
  EXPECT_DOUBLE_EQ(factors.getGammaLatSurf(0.0), 1.1);
  EXPECT_DOUBLE_EQ(factors.getGammaLatSurf(-1.0), 1.2);
  factors.reset();
  EXPECT_EQ(factors.factors.size(), 6U);
  EXPECT_DOUBLE_EQ(factors.getGammaB(), 1.0);
  EXPECT_DOUBLE_EQ(factors.getGammaS(), 1.0);
  EXPECT_DOUBLE_EQ(factors.getGammaST(), 1.0);
  factors.setGammaB(1.3);
  factors.clear();
  EXPECT_TRUE(factors.factors.empty());
  EXPECT_DOUBLE_EQ(factors.getGammaB(), 1.3);
}

// A wall of 12 m, 6 m of which are embedded, in clay from 6 m to 12 m; round piles of 600 mm.
class PileDesign : public ::testing::Test {
protected:
  PileDesign() {
    data = WallBuilder{}.combination(combination("SLU", true)).build();
    data.props->checkSettings.pileSettings.setCsi3(2.0);
    layers = {layer_of(clay(), {0.0, 6000.0}), layer_of(clay(), {6000.0, 12'000.0})};
    results = {loaded("SLU", 3, 1000.0)};
  }
  void SetUp() override { ASSERT_TRUE(ostrel::set_language("it")); }
  void TearDown() override { ostrel::set_language(""); }

  static xLoadComb combination(const std::string& name, bool wanted) {
    xLoadComb comb = unfactored(name);
    comb.checks[checkVerticalLimitLoad] = wanted;
    return comb;
  }

  // The foot pushes up against `load` [N].
  static xCombResults loaded(const std::string& name, int index, double load) {
    xCombResults result;
    result.setCombName(name);
    result.setcombIndex(index);
    result.femResults.nodalForces[2] = xFemNodeData(-load, 7.0, 8.0);
    return result;
  }

  OstrelErrorType check() { return design.check(nodes, data, layers, results); }
  xPile_Sheetpiling& wall() { return dynamic_cast<xPile_Sheetpiling&>(*data.props); }

  xSheetpilingData data;
  std::vector<xPoint2d> nodes{{0.0, 0.0}, {0.0, 6000.0}, {0.0, 12'000.0}};
  std::vector<xSoilLayer> layers;
  std::vector<xCombResults> results;
  xGeotechnicalPileDesign design;
};

// Weight 25e-6 * 12 000 = 0.3. Tip (0.05 * 9 + 0.114) * 90 000 pi = 50 760 pi; shaft
// 600 pi * 6000 * 0.725 * 0.05 = 130 500 pi; 181 260 pi / 2 = 90 630 pi.
TEST_F(PileDesign, LoadsThePileByTheForceAtItsFoot) {
  ASSERT_EQ(check(), ostrel::ok);
  ASSERT_EQ(design.results.size(), 1U);
  const xBearCapacityPile& result = design.results[0];
  EXPECT_EQ(result.getIdObj(), 7);
  EXPECT_EQ(result.getCombIndex(), 3);
  EXPECT_EQ(result.getCombName(), "SLU");
  expect_relative(result.getFd(), 1000.3);
  expect_relative(result.getPlim(), 50'760.0 * pi);
  expect_relative(result.getSlim(), 130'500.0 * pi);
  expect_relative(result.getRd(), 90'630.0 * pi);
  expect_relative(design.getSf(), 90'630.0 * pi / 1000.3);
}

TEST_F(PileDesign, TakesTheDeepestNodeThatHasAForce) {
  results[0].femResults.nodalForces = {{0, {-500.0, 0.0, 0.0}}, {1, {-400.0, 0.0, 0.0}}};
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(design.results[0].getFd(), 400.3);
  results[0].femResults.nodalForces = {{0, {-500.0, 0.0, 0.0}}};  // not below the head
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(design.results[1].getFd(), 0.3);
  results[0].femResults.nodalForces.clear();
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(design.results[2].getFd(), 0.3);
  nodes[1].y = 12'000.0;  // of two as deep the first
  results[0].femResults.nodalForces = {{1, {-400.0, 0.0, 0.0}}, {2, {-600.0, 0.0, 0.0}}};
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(design.results[3].getFd(), 400.3);
}

TEST_F(PileDesign, RefusesAForceAtANodeThatTheBeamDoesNotHave) {
  results[0].femResults.nodalForces[3] = xFemNodeData(1.0, 0.0, 0.0);
  EXPECT_EQ(check(), errFemNodeNotFound);
  results[0].femResults.nodalForces = {{-1, {1.0, 0.0, 0.0}}};
  EXPECT_EQ(check(), errFemNodeNotFound);
  EXPECT_TRUE(design.results.empty());
}

// 2e-5 * 1000 = 0.02 of sand, then 19e-6 * 5000 = 0.095 of clay: 0.115.
TEST_F(PileDesign, StandsInTheLayersBetweenExcavationAndFoot) {
  layers = {layer_of(smooth_soil(), {0.0, 5999.0}), layer_of(smooth_soil(), {5999.0, 6000.0}),
            layer_of(smooth_soil(), {6000.0, 7000.0}), layer_of(clay(), {7000.0, 12'000.0}),
            layer_of(clay(), {12'000.0, 15'000.0})};
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(design.results[0].getDepthStress(), 0.115);
  expect_relative(design.results[0].getSlim(), 600.0 * pi * 5000.0 * 0.725 * 0.05);
}

TEST_F(PileDesign, DoesNotSeeALayerThatCrossesTheFootNorThoseBelow) {
  layers = {layer_of(clay(), {6000.0, 8000.0}), layer_of(clay(), {8000.0, 12'000.5}),
            layer_of(clay(), {9000.0, 10'000.0})};
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(design.results[0].getDepthStress(), 0.038);
  layers[0].setThickness(6000.0 + 1e-9);  // no tolerance
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_DOUBLE_EQ(design.results[1].getRd(), 0.0);
  EXPECT_DOUBLE_EQ(design.getSf(), 0.0);
}

TEST_F(PileDesign, PassesOverALayerThatBeginsAboveTheExcavation) {
  layers = {layer_of(clay(), {6000.0 - 1e-9, 8000.0}), layer_of(clay(), {8000.0, 9000.0})};
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(design.results[0].getDepthStress(), 0.019);
}

TEST_F(PileDesign, PassesOverALayerThatBeginsNowhereAndEndsAtOneThatEndsNowhere) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  layers.insert(layers.begin(), layers[1]);
  layers[0].setDepth(none);
  layers.push_back(layers[2]);
  layers[2].setThickness(none);
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_DOUBLE_EQ(design.results[0].getPlim(), 0.0);
}

// Start 0 from the excavation, levels 6000 and 8000 from the head; weight 2e-5, K = 1.
//   z 6000: dz 6000, s 0.12, (0.24 - 0.12) * 6000 = 720
//   z 8000: dz 2000, s 0.16, (0.32 - 0.04) * 2000 = 560
// 600 pi / 2 * tan(30°) * 1280 = 384 000 pi / sqrt(3).
TEST_F(PileDesign, CountsOnlyTheStartOfALayerFromTheExcavation) {
  layers = {layer_of(smooth_soil(), {6000.0, 8000.0})};
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(design.results[0].getSlim(), 384'000.0 * pi / std::numbers::sqrt3);
  expect_relative(design.results[0].getDepthStress(), 0.16);
}

// The chart for D 600 and r = 6000 / 600 = 10 at 20°:
// 61.86152 - 4.794544 * 20 + 0.101223 * 400 = 61.86152 - 95.89088 + 40.4892 = 6.45984.
TEST_F(PileDesign, HasItsEmbeddedLengthInTheChart) {
  layers = {layer_of(smooth_soil(), {6000.0, 12'000.0})};
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(design.results[0].getNq(), 1.0 + 5.45984 * pi / 120.0);
}

// Tip 0.564 * 540 000 = 304 560; shaft 3000 * 6000 * 0.725 * 0.05 = 652 500.
TEST_F(PileDesign, TakesARectangleByItsSides) {
  data = WallBuilder{}.panel(600.0, 900.0, 12'000.0).combination(combination("SLU", true)).build();
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(design.results[0].getPlim(), 304'560.0);
  expect_relative(design.results[0].getSlim(), 652'500.0);
}

// At 20° with L 6000: the smaller side 500 has r 12 on the curve of small piles,
// exp(2.59307889 - 0.48824184 ln(12)); the larger side 1000 has r 6 on that of large ones,
// 57.707672 - 4.570232 * 20 + 0.098613 * 400 = 57.707672 - 91.40464 + 39.4452 = 5.748232.
TEST_F(PileDesign, TakesTheDiameterOfARectangleByTheSettings) {
  data = WallBuilder{}.panel(500.0, 1000.0, 12'000.0).combination(combination("SLU", true)).build();
  layers = {layer_of(smooth_soil(), {6000.0, 12'000.0})};
  data.props->checkSettings.pileSettings.setDiamMethod(bearSecPile::diamSmallerSide);
  ASSERT_EQ(check(), ostrel::ok);
  data.props->checkSettings.pileSettings.setDiamMethod(bearSecPile::diamLargerSide);
  ASSERT_EQ(check(), ostrel::ok);
  const double small = std::exp(2.59307889 - 0.48824184 * std::log(12.0));
  expect_relative(design.results[0].getNq(), 1.0 + (small - 1.0) * pi / 120.0);
  expect_relative(design.results[1].getNq(), 1.0 + 4.748232 * pi / 120.0);
}

// 50 760 pi / (1.5 * 2) + 130 500 pi / (3 * 2) = 16 920 pi + 21 750 pi in compression, and
// 16 920 pi + 130 500 pi / (4 * 2) = 16 920 pi + 16 312.5 pi in tension.
TEST_F(PileDesign, TakesTheFactorsOfTheCombination) {
  data.loadCombs[0].ulsFactors = {
      {factorPileBase, 1.5}, {factorPileShaftCompression, 3.0}, {factorPileShaftTension, 4.0}};
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(design.results[0].getRd(), 38'670.0 * pi);
  results = {loaded("SLU", 3, -1000.0)};
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(design.results[1].getFd(), -999.7);
  expect_relative(design.results[1].getRd(), 33'232.5 * pi);
  data.loadCombs[0].geoFactors = soil_factors(1.0, 1.0, 1.0, 2.0);  // 0.114 / 2
  ASSERT_EQ(check(), ostrel::ok);
  expect_relative(design.results[2].getDepthStress(), 0.057);
}

TEST_F(PileDesign, NeedsAWall) {
  data.props = nullptr;
  EXPECT_EQ(check(), errNoWall);
}

TEST_F(PileDesign, NeedsASectionItKnowsAndThatHasASize) {
  wall().section = nullptr;
  EXPECT_EQ(check(), errInvalidSection);
  osg::ref_ptr<xCircSecProp> circle = new xCircSecProp;
  wall().section = circle;
  for (const double radius : {0.0, -300.0, infinity, std::nan("")}) {
    circle->setRadius(radius);
    EXPECT_EQ(check(), errInvalidSection) << radius;
  }
  osg::ref_ptr<xRectSecProp> rectangle = new xRectSecProp;
  rectangle->setFirst(-600.0);
  rectangle->setSecond(-600.0);
  wall().section = rectangle;
  EXPECT_EQ(check(), errInvalidSection);
  EXPECT_TRUE(design.results.empty());
}

TEST_F(PileDesign, NeedsACombinationForEachResult) {
  results.push_back(results[0]);
  EXPECT_EQ(check(), errResultCount);
  EXPECT_TRUE(design.results.empty());
}

TEST_F(PileDesign, OfACombinationThatDoesNotAskLeavesNoRecord) {
  data.loadCombs = {combination("A", false), combination("B", true)};
  results = {loaded("A", 1, 1.0), loaded("B", 2, 1.0)};
  ASSERT_EQ(check(), ostrel::ok);
  ASSERT_EQ(design.results.size(), 1U);
  EXPECT_EQ(design.results[0].getCombName(), "B");
}

TEST_F(PileDesign, OfNoCombinationIsUnlimited) {
  data.loadCombs[0].checks.clear();
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_TRUE(design.results.empty());
  EXPECT_DOUBLE_EQ(design.getSf(), 1e10);
  EXPECT_DOUBLE_EQ(design.getSfMin(nullptr), 1e10);
}

// With a resistance of 1: factors 0.8, 0.9, 0.5, 1 of the actions 1.25, 1 / 0.9, 2 and 1.
TEST_F(PileDesign, ListsTheFailuresThatLowerTheMinimum) {
  for (const double action : {1.25, 1.0 / 0.9, 2.0, 1.0}) {
    xBearCapacityPile& result = design.results.emplace_back();
    result.setCheckID(7, 3, "C");
    result.setFd(action);
    result.setRd(1.0);
  }
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  EXPECT_DOUBLE_EQ(design.getSfMin(&failures), 0.5);
  EXPECT_DOUBLE_EQ(design.getIndex(), 2.0);
  ASSERT_EQ(failures.size(), 2U);
  EXPECT_DOUBLE_EQ(failures[0]->sf, 0.8);
  EXPECT_EQ(failures[1]->idObj, 7);
  EXPECT_EQ(failures[1]->combIndex, 3);
  EXPECT_EQ(failures[1]->getString(), "Verifica a carico limite non soddisfatta: comb=C, sf=0.5");
  const osg::ref_ptr<xCheckInfo> copy = failures[1]->clone();
  EXPECT_EQ(copy->getString(), failures[1]->getString());
  design.reset();
  EXPECT_TRUE(design.results.empty());
  EXPECT_DOUBLE_EQ(design.getSf(), 1e10);
}

xBearCapacityPile filled_record() {
  xBearCapacityPile record;
  record.setCheckID(7, 3, "SLU");
  record.setDepthStress(1.0);
  record.setNq(2.0);
  record.setNc(3.0);
  record.setPlim(4.0);
  record.setSlim(5.0);
  record.setFd(6.0);
  record.setRd(9.0);
  return record;
}

std::string stored_fields() {
  return bytes_of([](outstream& out) {
    xCheckCombID base;
    base.setCheckID(7, 3, "SLU");
    base.pub_write(out);
    out << 1.0 << 2.0 << 3.0 << 4.0 << 5.0 << 6.0 << 9.0;
  });
}

TEST(PileBearingRecord, IsStoredAfterItsBase) {
  const xBearCapacityPile record = filled_record();
  EXPECT_EQ(record.getIOClass(), "xBearCapacityPile");
  EXPECT_EQ(stored(record), frame_bytes(1, stored_fields()));
  EXPECT_EQ(stored(through_memory(record)), stored(record));
  xBearCapacityPile emptied = record;
  emptied.reset();
  EXPECT_EQ(stored(emptied), stored(xBearCapacityPile{}));
}

// |9 / 6| = 1.5.
TEST(PileDesignResults, AreStoredAfterTheirBase) {
  xGeotechnicalPileDesign design;
  design.results.push_back(filled_record());
  EXPECT_DOUBLE_EQ(design.getSfMin(nullptr), 1.5);
  EXPECT_EQ(design.getIOClass(), "xGeotechnicalPileDesign");
  EXPECT_EQ(stored(design), frame_bytes(1, bytes_of([](outstream& out) {
                                             xBaseResults base;
                                             base.setSf(1.5);
                                             base.pub_write(out);
                                             out << 1;
                                           }) + frame_bytes(1, stored_fields())));
  xGeotechnicalPileDesign read = through_memory(design);
  EXPECT_EQ(stored(read), stored(design));
  EXPECT_DOUBLE_EQ(read.getSf(), 1.5);
}

TEST(PileDesignResults, RefuseDamagedStreams) {
  xGeotechnicalPileDesign design;
  design.results = {filled_record(), filled_record()};
  expect_cuts_refused(design);
  EXPECT_GT(refused_mutations(design, 300), 0);
}

}  // namespace
