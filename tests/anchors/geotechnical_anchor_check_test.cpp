// SPDX-License-Identifier: Apache-2.0
#include "ostrel/geotechnical_anchor_check.h"

#include "ostrel/results.h"
#include "ostrel/sheetpiling_data.h"
#include "ostrel/tolerances.h"
#include "support/tolerances_guard.h"
#include "support/wall_builder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

using ostrel::ok;
using ostrel::testing::rectangle;
using ostrel::testing::TolerancesGuard;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double pi = std::numbers::pi;

xBoundSoilLayer layer(double bottom, double top, double gamma, double saturated) {
  xBoundSoilLayer ground;
  ground.polygons = {rectangle(0.0, 50000.0, bottom, top)};
  ground.soil.setUnitWeight(gamma);
  ground.soil.setSaturatedUnitWeight(saturated);
  ground.soil.set_InternalFriction(std::atan(0.5));
  ground.soil.setInterfaceFriction(std::atan(0.25));
  ground.soil.setAdhesion(0.01);
  ground.soil.setOCR(1.0);
  return ground;
}

// 9.5 m of 18 kN/m³ (19 saturated) on 20.5 m of 20 kN/m³ (21 saturated).
std::vector<xBoundSoilLayer> two_layers() {
  return {layer(-9500.0, 0.0, 18e-6, 19e-6), layer(-30000.0, -9500.0, 20e-6, 21e-6)};
}

xWaterTable water_at(double level) {
  xWaterTable water;
  water.setIsDefined(true);
  water.setLivelloMonte(level);
  return water;
}

// 3 on 4 downwards: bonded from (8000, -8000) to (12 000, -11 000), so that the border at -9500
// halves it. The middles of the halves are (9000, -8750) and (11 000, -10 250).
xAnchor falling() {
  xAnchor anchor;
  anchor.setIdObj(101);
  anchor.z = 2000.0;
  anchor.setAngleRad(std::asin(0.6));
  anchor.setFreeLength(10000.0);
  anchor.setBulbLength(5000.0);
  anchor.setbulbDiam(100.0);
  anchor.setAlphaD(1.5);
  anchor.settings.setCsi3(1.25);
  anchor.settings.setCsi4(2.5);
  return anchor;
}

xAnchorPartialFactors unfactored() {
  xAnchorPartialFactors factors;
  factors.geoFactors.assign(6, GeoCombFactor{});
  factors.gammaR = 1.0;
  return factors;
}

xGeoAnchorCombRes built(const xAnchor& anchor, const xWaterTable& water = {},
                        const xAnchorPartialFactors& factors = unfactored()) {
  xGeoAnchorCombRes outcome;
  EXPECT_EQ(outcome.buildBulb(anchor, water, two_layers(), factors), ok);
  return outcome;
}

// Each half has pi · 100 · 2500 mm²; K0 = 1 - sin(atan(0.5)) = 1 - 0.5 / sqrt(1.25).
TEST(BuildBulb, CutsTheBondedLengthAtTheBorders) {
  const auto bulbs = built(falling()).bulbs;
  ASSERT_EQ(bulbs.size(), 2U);
  for (const xBulbAnchor& bulb : bulbs) {
    EXPECT_NEAR(bulb.getArea(), 250e3 * pi, 1e-6);
    EXPECT_EQ(bulb.getAlphaD(), 1.5);
    EXPECT_NEAR(bulb.getSoilCoeff(), 1.0 - 0.5 / std::sqrt(1.25), 1e-14);
    EXPECT_EQ(bulb.soil.getAdhesion(), 0.01);
  }
  EXPECT_NEAR(bulbs[0].getDepthStress(), 0.1575, 1e-12);         // 8750 · 18e-6
  EXPECT_NEAR(bulbs[1].getDepthStress(), 0.171 + 0.015, 1e-12);  // 9500 · 18e-6 + 750 · 20e-6
  EXPECT_EQ(bulbs[0].soil.getUnitWeight(), 18e-6);
  EXPECT_EQ(bulbs[1].soil.getUnitWeight(), 20e-6);
}

// Below: 9000 · 18e-6 + 500 · 9e-6 + 750 · 11e-6 = 0.162 + 0.0045 + 0.00825.
TEST(BuildBulb, TakesTheEffectiveStressBelowTheWater) {
  const auto bulbs = built(falling(), water_at(-9000.0)).bulbs;
  ASSERT_EQ(bulbs.size(), 2U);
  EXPECT_NEAR(bulbs[0].getDepthStress(), 0.1575, 1e-12);
  EXPECT_NEAR(bulbs[1].getDepthStress(), 0.17475, 1e-12);
}

TEST(BuildBulb, LeavesOneStretchWithinOneLayer) {
  xAnchor anchor = falling();
  anchor.setBulbLength(1000.0);
  const auto bulbs = built(anchor).bulbs;
  ASSERT_EQ(bulbs.size(), 1U);
  EXPECT_NEAR(bulbs[0].getArea(), 100e3 * pi, 1e-6);
}

TEST(BuildBulb, GivesNoStretchForABondedLengthOfZero) {
  xAnchor anchor = falling();
  anchor.setBulbLength(0.0);
  xGeoAnchorCombRes outcome = built(anchor);
  EXPECT_TRUE(outcome.bulbs.empty());
  EXPECT_EQ(outcome._check(1.0, anchor, unfactored()), errNoBulb);
}

// Upwards at 45° from (3000, -4000) to (4000, -3000): both ends 5 m from the wall's head.
TEST(BuildBulb, GivesNoStretchBetweenEndsEquallyFarFromTheHead) {
  xAnchor anchor = falling();
  anchor.z = 7000.0;
  anchor.setAngleRad(-pi / 4.0);
  anchor.setFreeLength(3000.0 * std::numbers::sqrt2);
  anchor.setBulbLength(1000.0 * std::numbers::sqrt2);
  EXPECT_TRUE(built(anchor).bulbs.empty());
}

// tan(phi) = 0.5 / 1.25 = 0.4, tan(delta) = 0.25 / 1.25 = 0.2, weights by 2; the adhesion stays. The
// first numbers, those of the pressure, are not asked for.
TEST(BuildBulb, FactorsTheSoilByTheNumbersOfResistance) {
  xAnchorPartialFactors factors = unfactored();
  factors.geoFactors.assign(6, GeoCombFactor{.first = 9.0, .second = 1.0});
  factors.geoFactors[0].second = 1.25;
  factors.geoFactors[1].second = 1.25;
  factors.geoFactors[4].second = 2.0;
  const auto bulbs = built(falling(), {}, factors).bulbs;
  ASSERT_EQ(bulbs.size(), 2U);
  EXPECT_NEAR(bulbs[0].getSoilCoeff(), 1.0 - 0.4 / std::sqrt(1.16), 1e-14);
  EXPECT_NEAR(std::tan(bulbs[0].soil.getInterfaceFriction()), 0.2, 1e-14);
  EXPECT_EQ(bulbs[0].soil.getAdhesion(), 0.01);
  EXPECT_EQ(bulbs[0].soil.getUnitWeight(), 9e-6);
  EXPECT_NEAR(bulbs[0].getDepthStress(), 0.07875, 1e-12);  // 8750 · 9e-6
}

TEST(BuildBulb, CountsAMissingFactorAsOne) {
  xAnchorPartialFactors factors;
  factors.geoFactors = {{.first = 9.0, .second = 1.25}};
  const auto bulbs = built(falling(), {}, factors).bulbs;
  ASSERT_EQ(bulbs.size(), 2U);
  EXPECT_NEAR(bulbs[0].getSoilCoeff(), 1.0 - 0.4 / std::sqrt(1.16), 1e-14);
  EXPECT_NEAR(std::tan(bulbs[0].soil.getInterfaceFriction()), 0.25, 1e-14);
  EXPECT_NEAR(bulbs[0].getDepthStress(), 0.1575, 1e-12);
}

// Friction 0.5 of the anchor by 1.25, its adhesion as it is; Ka goes with the same friction: with
// t = 0.4, tan²(pi/4 - delta/2) = (1 - s) / (1 + s), s = sin(delta) = 0.4 / sqrt(1.16).
TEST(BuildBulb, TakesTheBondOfTheAnchorWhereTheSoilsIsNotWanted) {
  xAnchor anchor = falling();
  anchor.settings.setuse_soil(false);
  anchor.settings.setadesione(0.03);
  anchor.settings.setattrito(std::atan(0.5));
  anchor.settings.setSoilCoeffType(coeffActive);
  xAnchorPartialFactors factors = unfactored();
  factors.geoFactors[1].second = 1.25;
  const auto bulbs = built(anchor, {}, factors).bulbs;
  ASSERT_EQ(bulbs.size(), 2U);
  const double s = 0.4 / std::sqrt(1.16);
  for (const xBulbAnchor& bulb : bulbs) {
    EXPECT_EQ(bulb.soil.getAdhesion(), 0.03);
    EXPECT_NEAR(std::tan(bulb.soil.getInterfaceFriction()), 0.4, 1e-14);
    EXPECT_NEAR(bulb.getSoilCoeff(), (1.0 - s) / (1.0 + s), 1e-14);
  }
}

// The start on the border of two layers lies there three times and stays twice.
TEST(BuildBulb, MakesAStretchWithoutSurfaceAtAnEndOnABorder) {
  auto layers = two_layers();
  layers[0].polygons = {rectangle(0.0, 50000.0, -8000.0, 0.0)};
  layers[1].polygons = {rectangle(0.0, 50000.0, -30000.0, -8000.0)};
  xGeoAnchorCombRes outcome;
  EXPECT_EQ(outcome.buildBulb(falling(), {}, layers, unfactored()), ok);
  ASSERT_EQ(outcome.bulbs.size(), 2U);
  EXPECT_NEAR(outcome.bulbs[0].getArea(), 0.0, 1e-6);
  EXPECT_NEAR(outcome.bulbs[1].getArea(), 500e3 * pi, 1e-6);
}

// Level at -5000 from 8000 to 13 000; beyond 10 000 the first layer is not there.
TEST(BuildBulb, StopsBesideTheFirstLayer) {
  auto layers = two_layers();
  layers[0].polygons = {rectangle(0.0, 10000.0, -30000.0, 0.0)};
  layers[1].polygons = {rectangle(10000.0, 50000.0, -30000.0, 0.0)};
  xAnchor anchor = falling();
  anchor.z = 5000.0;
  anchor.setAngleRad(0.0);
  anchor.setFreeLength(8000.0);
  xGeoAnchorCombRes outcome;
  EXPECT_EQ(outcome.buildBulb(anchor, {}, layers, unfactored()), errNoLayerIntersection);
  EXPECT_EQ(outcome.bulbs.size(), 1U);
}

TEST(BuildBulb, StopsWhereTheBulbLeavesTheGround) {
  auto layers = two_layers();
  layers.pop_back();
  xGeoAnchorCombRes outcome;
  EXPECT_EQ(outcome.buildBulb(falling(), {}, layers, unfactored()), errNoLayerIntersection);
  EXPECT_EQ(outcome.bulbs.size(), 1U);  // the stretch before stays
  EXPECT_EQ(outcome.buildBulb(falling(), {}, {}, unfactored()), errNoLayerIntersection);
  EXPECT_TRUE(outcome.bulbs.empty());
}

TEST(BuildBulb, StopsForAnAnchorThatIsNowhere) {
  for (const double value : {nan, std::numeric_limits<double>::infinity()}) {
    xAnchor anchor = falling();
    anchor.setBulbLength(value);
    xGeoAnchorCombRes outcome;
    EXPECT_EQ(outcome.buildBulb(anchor, {}, two_layers(), unfactored()), errNoLayerIntersection);
  }
}

TEST(BuildBulb, BuildsAnewEachTime) {
  xGeoAnchorCombRes outcome = built(falling());
  EXPECT_EQ(outcome.buildBulb(falling(), {}, two_layers(), unfactored()), ok);
  EXPECT_EQ(outcome.bulbs.size(), 2U);
}

xBulbAnchor stretch(double area) {
  xBulbAnchor bulb;
  bulb.soil.setAdhesion(0.1);
  bulb.set_Area(area);
  return bulb;
}

// 0.1 · (1500 + 1000) = 250 N.
xGeoAnchorCombRes two_stretches() {
  xGeoAnchorCombRes outcome;
  outcome.bulbs = {stretch(1500.0), stretch(1000.0)};
  return outcome;
}

// 250 / 1.25 / 2 = 100 N on mean values, 250 / 2.5 / 2 = 50 N on any other.
TEST(PullOut, DividesTheStrengthByBothFactors) {
  xAnchor anchor = falling();
  xAnchorPartialFactors factors = unfactored();
  factors.gammaR = 2.0;
  xGeoAnchorCombRes outcome = two_stretches();
  EXPECT_EQ(outcome._check(-50.0, anchor, factors), ok);
  EXPECT_DOUBLE_EQ(outcome.getRd(), 100.0);
  EXPECT_EQ(outcome.getFd(), -50.0);
  EXPECT_DOUBLE_EQ(outcome.getSf(), 2.0);
  EXPECT_EQ(outcome.depth, 2000.0);
  for (const int type : {1, 2, -1}) {
    anchor.settings.set_ValueType(static_cast<AnchorCsiData>(type));
    EXPECT_EQ(outcome._check(50.0, anchor, factors), ok);
    EXPECT_DOUBLE_EQ(outcome.getRd(), 50.0) << type;
    EXPECT_DOUBLE_EQ(outcome.getSf(), 1.0) << type;
  }
}

TEST(PullOut, IsUnlimitedWithoutAForce) {
  xGeoAnchorCombRes outcome = two_stretches();
  EXPECT_EQ(outcome._check(0.0, falling(), unfactored()), ok);
  EXPECT_EQ(outcome.getSf(), 1e10);
}

TEST(PullOut, IsRefusedWithoutABulb) {
  xGeoAnchorCombRes outcome;
  EXPECT_EQ(outcome._check(1.0, falling(), unfactored()), errNoBulb);
  EXPECT_EQ(outcome.depth, 2000.0);
  EXPECT_EQ(outcome._check(1.0, falling(), {}), errNoBulb);  // asked for before the factor
}

TEST(PullOut, IsRefusedWithoutAPartialFactor) {
  xGeoAnchorCombRes outcome = two_stretches();
  xAnchorPartialFactors factors;
  for (const double factor : {0.0, 0.9e-6, -0.9e-6, nan}) {
    factors.gammaR = factor;
    EXPECT_EQ(outcome._check(1.0, falling(), factors), errPulloutFactorZero) << factor;
  }
  EXPECT_EQ(outcome.getRd(), 0.0);
  const TolerancesGuard guard;
  xTolerances tolerances;
  tolerances.values[1] = 1.5;
  setTolerances(tolerances);
  factors.gammaR = 1.4;
  EXPECT_EQ(outcome._check(1.0, falling(), factors), errPulloutFactorZero);
  factors.gammaR = 1.5;
  EXPECT_EQ(outcome._check(1.0, falling(), factors), ok);
}

TEST(PullOut, IsUnlimitedWithACorrelationFactorOfZero) {
  xAnchor anchor = falling();
  anchor.settings.setCsi3(0.0);
  xGeoAnchorCombRes outcome = two_stretches();
  EXPECT_EQ(outcome._check(1.0, anchor, unfactored()), ok);
  EXPECT_TRUE(std::isinf(outcome.getRd()));
  EXPECT_EQ(outcome.getSf(), 1e10);
}

xLoadComb combination(bool wanted, double gammaR) {
  xLoadComb comb;
  comb.checks[checkAnchorPullout] = wanted;
  comb.ulsFactors[factorAnchors] = gammaR;
  return comb;
}

// One node that goes `across` towards the excavation [mm]; a level link holds it by 1000 N/mm.
xCombResults moved(int index, double across) {
  xCombResults results;
  results.setcombIndex(index);
  results.setCombName("C" + std::to_string(index));
  results.femResults.dispAxial.points = {{0.0, 0.0}};
  results.femResults.dispTrans.points = {{0.0, -across}};
  return results;
}

info_Fem_anchor link_to(int node) {
  info_Fem_anchor link;
  link.node = node;
  link.kCC = 1000.0;
  return link;
}

// Adhesion alone: 0.01 · pi · 100 · 5000 · 1.5 / 1.25 = 6000 pi N before gammaR.
xSheetpilingData ground_with(const std::vector<xAnchor>& anchors,
                             const std::vector<xLoadComb>& combs) {
  xSheetpilingData data;
  data.soilLayers = two_layers();
  for (xBoundSoilLayer& each : data.soilLayers) {
    each.soil.setInterfaceFriction(0.0);
  }
  data.anchors = anchors;
  data.loadCombs = combs;
  return data;
}

TEST(GeotechnicalAnchorDesign, VerifiesEachAnchorInEachCombinationThatAsksForIt) {
  xAnchor stressed = falling();
  stressed.setIdObj(102);
  stressed.setPreStress(500.0);
  const auto data =
      ground_with({falling(), stressed},
                  {combination(true, 1.2), combination(false, 0.0), combination(true, 1.5)});
  const std::vector<xCombResults> results{moved(7, 2.0), moved(8, 100.0), moved(9, 5.0)};
  xGeotechnicalAnchorDesign design;
  EXPECT_EQ(design.check(data, {link_to(0), link_to(0)}, results), ok);
  ASSERT_EQ(design.anchors.size(), 2U);
  const auto& first = design.anchors[0].combinations;
  const auto& second = design.anchors[1].combinations;
  ASSERT_EQ(first.size(), 2U);
  ASSERT_EQ(second.size(), 2U);
  EXPECT_EQ(first[0].getIdObj(), 101);
  EXPECT_EQ(first[0].getCombName(), "C7");
  EXPECT_EQ(first[0].getCombIndex(), 7);
  EXPECT_EQ(first[0].depth, 2000.0);
  EXPECT_EQ(first[0].bulbs.size(), 2U);
  EXPECT_DOUBLE_EQ(first[0].getFd(), 2000.0);
  EXPECT_NEAR(first[0].getRd(), 5000.0 * pi, 1e-8);
  EXPECT_EQ(first[1].getCombName(), "C9");
  EXPECT_NEAR(first[1].getRd(), 4000.0 * pi, 1e-8);
  EXPECT_EQ(second[0].getIdObj(), 102);
  EXPECT_DOUBLE_EQ(second[0].getFd(), 2500.0);
  EXPECT_DOUBLE_EQ(second[1].getFd(), 5500.0);
  EXPECT_NEAR(second[1].getSf(), 4000.0 * pi / 5500.0, 1e-12);
  EXPECT_DOUBLE_EQ(design.anchors[1].getSf(), second[1].getSf());  // each anchor has its minimum
  EXPECT_EQ(design.anchors[1].getIndex(), 1.0);
  EXPECT_NEAR(design.getSfMin(nullptr), 4000.0 * pi / 5500.0, 1e-12);
}

TEST(GeotechnicalAnchorDesign, FactorsTheSoilAsTheCombinationDoes) {
  auto data = ground_with({falling()}, {combination(true, 1.0)});
  data.loadCombs[0].geoFactors.assign(6, GeoCombFactor{.first = 9.0, .second = 1.0});
  data.loadCombs[0].geoFactors[4].second = 2.0;
  xGeotechnicalAnchorDesign design;
  EXPECT_EQ(design.check(data, {link_to(0)}, {moved(0, 1.0)}), ok);
  EXPECT_NEAR(design.anchors.at(0).combinations.at(0).bulbs.at(0).getDepthStress(), 0.07875, 1e-12);
}

// 50 kN/m² over all the ground, in a condition that acts: the halves of the bulb keep the 0.1575 and
// 0.186 N/mm² of their ground alone, and with the soil's friction its strength is the same.
TEST(GeotechnicalAnchorDesign, CountsNoSurcharge) {
  auto data = ground_with({falling()}, {combination(true, 1.0)});
  data.soilLayers = two_layers();
  data.loadCombs[0].actions = ostrel::testing::unfactored("C").actions;
  xGeotechnicalAnchorDesign bare;
  ASSERT_EQ(bare.check(data, {link_to(0)}, {moved(0, 1.0)}), ok);

  const osg::ref_ptr<xUniformLoad> surcharge = new xUniformLoad;
  surcharge->setValue(0.05);
  data.loadConds.resize(1);
  data.loadConds[0].soilLoads = {surcharge};
  data.loadCombs[0].actions.emplace_back().set("surcharge", true, 1.0, 1.0);
  xGeotechnicalAnchorDesign loaded;
  ASSERT_EQ(loaded.check(data, {link_to(0)}, {moved(0, 1.0)}), ok);
  const xGeoAnchorCombRes& outcome = loaded.anchors.at(0).combinations.at(0);
  ASSERT_EQ(outcome.bulbs.size(), 2U);
  EXPECT_NEAR(outcome.bulbs[0].getDepthStress(), 0.1575, 1e-12);
  EXPECT_NEAR(outcome.bulbs[1].getDepthStress(), 0.186, 1e-12);
  EXPECT_EQ(outcome.getRd(), bare.anchors.at(0).combinations.at(0).getRd());
  EXPECT_EQ(outcome.getFd(), bare.anchors.at(0).combinations.at(0).getFd());
}

TEST(GeotechnicalAnchorDesign, TakesAMissingFactorOnTheResistanceForOne) {
  auto data = ground_with({falling()}, {combination(true, 1.0)});
  data.loadCombs[0].ulsFactors.clear();
  xGeotechnicalAnchorDesign design;
  EXPECT_EQ(design.check(data, {link_to(0)}, {moved(0, 1.0)}), ok);
  EXPECT_NEAR(design.anchors.at(0).combinations.at(0).getRd(), 6000.0 * pi, 1e-8);
}

TEST(GeotechnicalAnchorDesign, LeavesOutAnAnchorThatNoCombinationAsksFor) {
  const auto data = ground_with({falling()}, {combination(false, 1.0)});
  xGeotechnicalAnchorDesign design;
  EXPECT_EQ(design.check(data, {link_to(-1)}, {moved(0, 1.0)}), ok);
  EXPECT_TRUE(design.anchors.empty());
}

TEST(GeotechnicalAnchorDesign, ComparesResultsWithCombinationsFirst) {
  xSheetpilingData data;
  xGeotechnicalAnchorDesign design;
  EXPECT_EQ(design.check(data, {}, {moved(0, 1.0)}), errResultCount);
  EXPECT_EQ(design.check(data, {}, {}), ok);
  data.anchors = {falling()};
  EXPECT_EQ(design.check(data, {}, {}), ok);
  EXPECT_TRUE(design.anchors.empty());
}

TEST(GeotechnicalAnchorDesign, EndsAtACodeAndKeepsTheAnchorsBefore) {
  const std::vector<xLoadComb> combs{combination(true, 1.0), combination(true, 1.0)};
  const std::vector<xCombResults> results{moved(0, 1.0), moved(1, 1.0)};
  const auto data = ground_with({falling(), falling()}, combs);
  xGeotechnicalAnchorDesign design;
  EXPECT_EQ(design.check(data, {link_to(0), link_to(5)}, results), errFemNodeNotFound);
  EXPECT_EQ(design.anchors.size(), 1U);

  design.reset();
  EXPECT_EQ(design.check(data, {link_to(0)}, results), errFemNodeNotFound);  // a missing link
  EXPECT_EQ(design.anchors.size(), 1U);

  auto changed = data;
  changed.anchors[1].setBulbLength(0.0);
  design.reset();
  EXPECT_EQ(design.check(changed, {link_to(0), link_to(0)}, results), errNoBulb);
  EXPECT_EQ(design.anchors.size(), 1U);

  changed = data;
  changed.anchors[1].setFreeLength(60000.0);
  design.reset();
  EXPECT_EQ(design.check(changed, {link_to(0), link_to(5)}, results), errNoLayerIntersection);
  EXPECT_EQ(design.anchors.size(), 1U);

  changed = data;
  changed.loadCombs[1].ulsFactors[factorAnchors] = 0.0;
  design.reset();
  EXPECT_EQ(design.check(changed, {link_to(0), link_to(0)}, results), errPulloutFactorZero);
  EXPECT_TRUE(design.anchors.empty());  // its first anchor is under way
}

}  // namespace
