// SPDX-License-Identifier: Apache-2.0
#include "ostrel/layer_pressure.h"

#include "support/soil_column.h"
#include "support/stream_round_trip.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::layer_of;
using ostrel::testing::positions_of;
using ostrel::testing::sloping_layer_of;
using ostrel::testing::smooth_soil;
using ostrel::testing::stored;
using ostrel::testing::submerged_layer_of;
using ostrel::testing::through_memory;
using ostrel::testing::values_of;
using std::numbers::pi;
using std::numbers::sqrt3;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pointwise;
using ::testing::SizeIs;

using Acceleration = arma::Col<double>::fixed<2>;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

MATCHER_P(Near, tolerance, "") {
  return std::abs(std::get<0>(arg) - std::get<1>(arg)) <= tolerance;
}

// The arguments of `compute_EarthPress`; what a test does not say is unfactored, without
// earthquake, on 1 mm of wall and active.
struct EarthCase {
  formulType formula = formulaRankine;
  double gamma = 1.0;
  double theta = 0.0;
  Acceleration acc{0.0, 0.0};
  double spacing = 1.0;
  bool active = true;
  double top = -1000.0;
  double bottom = 1e6;
  std::vector<GeoCombFactor> factors = std::vector<GeoCombFactor>(6);
  geoFactorType type = geoFactorPressure;

  std::vector<xLayerPress> on(const std::vector<xSoilLayer>& layers) const {
    std::vector<xLayerPress> out;
    EXPECT_EQ(xEarthPress::compute_EarthPress(type, factors, gamma, formula, theta, layers, acc,
                                              spacing, active, top, bottom, out),
              ostrel::ok);
    return out;
  }

  // The values of the only diagram.
  std::vector<double> values_on(const xSoilLayer& layer) const {
    const std::vector<xLayerPress> diagrams = on({layer});
    EXPECT_EQ(diagrams.size(), 1U);
    return diagrams.empty() ? std::vector<double>{} : values_of(diagrams.front());
  }
};

xSoilProps cohesive_soil(double cohesion) {
  xSoilProps soil = smooth_soil();
  soil.setCohesion(cohesion);
  return soil;
}

xLayerPress diagram_of(std::vector<diag_Point> points) {
  xLayerPress diagram;
  diagram.points = std::move(points);
  return diagram;
}

double force_of(const xLayerPress& diagram) {
  return std::hypot(diagram.Rx, diagram.Ry);
}

// --- One diagram ---

TEST(LayerPress, ResolvesItsResultantAgainstTheWall) {
  // R = 6 * 3000 / 2 = 9000 at 2000; 60°: Rx = -4500, Ry = -9000 sqrt(3)/2.
  xLayerPress diagram = diagram_of({{0.0, 0.0}, {3000.0, 6.0}});
  diagram.computeResultant(pi / 3.0);
  EXPECT_NEAR(diagram.Rx, -4500.0, 1e-9);
  EXPECT_NEAR(diagram.Ry, -4500.0 * sqrt3, 1e-9);
  EXPECT_DOUBLE_EQ(diagram.pos, 2000.0);
}

TEST(LayerPress, HasTheResultantOfNothingInTheMiddle) {
  xLayerPress diagram = diagram_of({{0.0, 0.0}, {1000.0, 0.0}, {3000.0, 0.0}});
  diagram.computeResultant(0.4);
  EXPECT_EQ(diagram.Rx, 0.0);
  EXPECT_EQ(diagram.Ry, 0.0);
  EXPECT_EQ(diagram.pos, 1500.0);
}

TEST(LayerPress, HasTheResultantOfNoPointsAtItsStart) {
  xLayerPress diagram;
  diagram.pos = 7.0;
  diagram.computeResultant(0.4);
  EXPECT_EQ(diagram.Rx, 0.0);
  EXPECT_EQ(diagram.Ry, 0.0);
  EXPECT_EQ(diagram.pos, 0.0);
}

TEST(LayerPress, GivesThePressureBetweenItsPoints) {
  const xLayerPress diagram =
      diagram_of({{0.0, 0.0}, {1000.0, 6.0}, {1000.0, 10.0}, {2000.0, 20.0}});
  EXPECT_EQ(diagram.getPressAt(0.0), 0.0);
  EXPECT_DOUBLE_EQ(diagram.getPressAt(500.0), 3.0);
  EXPECT_EQ(diagram.getPressAt(1000.0), 6.0);  // the first pair that holds the position
  EXPECT_DOUBLE_EQ(diagram.getPressAt(1500.0), 15.0);
  EXPECT_EQ(diagram.getPressAt(2000.0), 20.0);
}

TEST(LayerPress, GivesNoPressureBeyondItsPoints) {
  const xLayerPress diagram = diagram_of({{100.0, 5.0}, {200.0, 6.0}});
  EXPECT_EQ(diagram.getPressAt(99.0), 0.0);
  EXPECT_EQ(diagram.getPressAt(201.0), 0.0);
  EXPECT_EQ(diagram.getPressAt(nan), 0.0);
  EXPECT_EQ(diagram_of({{100.0, 5.0}}).getPressAt(100.0), 0.0);
  EXPECT_EQ(xLayerPress{}.getPressAt(0.0), 0.0);
}

TEST(LayerPress, GivesTheFirstValueOfAStepWithoutLength) {
  EXPECT_EQ(diagram_of({{100.0, 5.0}, {100.0, 6.0}}).getPressAt(100.0), 5.0);
}

TEST(LayerPress, TurnsLocalPositionsIntoPointsAndBack) {
  xLayerPress diagram;
  diagram.start.set(10.0, -1000.0);
  diagram.end.set(310.0, -1400.0);  // 500 long, along (0.6, -0.8)
  diagram.pos = 100.0;
  const double s = 250.0;
  EXPECT_NEAR(diagram.getGlobalPos(&s).x, 160.0, 1e-12);
  EXPECT_NEAR(diagram.getGlobalPos(&s).y, -1200.0, 1e-12);
  EXPECT_NEAR(diagram.getGlobalPos(nullptr).x, 70.0, 1e-12);
  EXPECT_NEAR(diagram.getGlobalPos(nullptr).y, -1080.0, 1e-12);
  EXPECT_NEAR(diagram.getLocalPos({160.0, -1200.0}), 250.0, 1e-12);
  // 100 beside the axis, along (0.8, 0.6): the same foot.
  EXPECT_NEAR(diagram.getLocalPos({240.0, -1140.0}), 250.0, 1e-12);
}

TEST(LayerPress, PointsDownwardsWhereItsEndsAreOnePoint) {
  xLayerPress diagram;
  diagram.start.set(5.0, -100.0);
  diagram.end = diagram.start;
  const double s = 30.0;
  EXPECT_EQ(diagram.getGlobalPos(&s).x, 5.0);
  EXPECT_EQ(diagram.getGlobalPos(&s).y, -130.0);
  EXPECT_EQ(diagram.getLocalPos({7.0, -160.0}), 60.0);
}

TEST(LayerPress, HasAnAxisFromTheSmallestLengthOn) {
  // The limit, 125 / 2^49, is exact in binary, and so are its square and its root.
  const double s = 1.0;
  xLayerPress diagram;
  diagram.end.set(2.220446049250313e-13, 0.0);
  EXPECT_EQ(diagram.getGlobalPos(&s).x, 1.0);
  EXPECT_EQ(diagram.getGlobalPos(&s).y, 0.0);
  diagram.end.set(2.22e-13, 0.0);
  EXPECT_EQ(diagram.getGlobalPos(&s).x, 0.0);
  EXPECT_EQ(diagram.getGlobalPos(&s).y, -1.0);
}

TEST(LayerPress, IsStoredByItsEndsPointsAndResultant) {
  xLayerPress diagram = diagram_of({{0.0, 1.0}, {500.0, 2.0}});
  diagram.start.set(0.0, -1000.0);
  diagram.end.set(0.0, -1500.0);
  diagram.Rx = 3.0;
  diagram.Ry = 4.0;
  diagram.pos = 5.0;
  EXPECT_EQ(diagram.getIOClass(), "xLayerPress");
  EXPECT_EQ(stored(diagram), frame_bytes(1, bytes_of([&diagram](outstream& out) {
                                           diagram.start.pub_write(out);
                                           diagram.end.pub_write(out);
                                           out << 2;
                                           diagram.points[0].pub_write(out);
                                           diagram.points[1].pub_write(out);
                                           out << 3.0 << 4.0 << 5.0;
                                         })));
  const xLayerPress read = through_memory(diagram);
  EXPECT_EQ(stored(read), stored(diagram));
  EXPECT_EQ(read.pos, 5.0);
}

TEST(LayerPress, ResetEmptiesIt) {
  xLayerPress diagram = diagram_of({{0.0, 1.0}});
  diagram.end.set(0.0, -5.0);
  diagram.Rx = 3.0;
  diagram.pos = 5.0;
  diagram.reset();
  EXPECT_EQ(stored(diagram), stored(xLayerPress{}));
}

// --- Several diagrams in one ---

TEST(PackLayerPress, MergesAListIntoOneDiagram) {
  xLayerPress upper = diagram_of({{0.0, 0.0}, {1000.0, 6.0}});
  upper.start.set(0.0, -500.0);
  upper.end.set(0.0, -1500.0);
  xLayerPress lower = diagram_of({{0.0, 9.0}, {2000.0, 9.0}});
  lower.start.set(0.0, -1500.0);
  lower.end.set(0.0, -3500.0);
  lower.Rx = -18000.0;
  std::vector<xLayerPress> list{upper, lower};
  packLayerPress(list);
  ASSERT_THAT(list, SizeIs(1));
  EXPECT_EQ(list[0].start.y, -500.0);
  EXPECT_EQ(list[0].end.y, -3500.0);
  EXPECT_THAT(positions_of(list[0]), ElementsAre(0.0, 1000.0, 1000.0, 3000.0));
  EXPECT_THAT(values_of(list[0]), ElementsAre(0.0, 6.0, 9.0, 9.0));
  // R = 3000 + 18000 at (3000 * 2000 / 3 + 18000 * 2000) / 21000.
  EXPECT_DOUBLE_EQ(list[0].Rx, -21000.0);
  EXPECT_EQ(list[0].Ry, 0.0);
  EXPECT_DOUBLE_EQ(list[0].pos, 38000.0 / 21.0);
}

TEST(PackLayerPress, LeavesFewerThanTwoAlone) {
  std::vector<xLayerPress> list;
  packLayerPress(list);
  EXPECT_THAT(list, IsEmpty());
  list.push_back(diagram_of({{0.0, 2.0}, {10.0, 2.0}}));
  list[0].start.set(0.0, -500.0);
  packLayerPress(list);
  EXPECT_THAT(positions_of(list[0]), ElementsAre(0.0, 10.0));
  EXPECT_EQ(list[0].Rx, 0.0);  // not worked out
}

// --- Earth pressure ---

TEST(EarthPress, GrowsWithTheDepthInDrySoil) {
  // 1/3 of z * 2e-5: 0, 1/150, 2/150, 3/150; R = 1/50 * 3000 / 2 = 30 at 2/3 of 3000.
  const auto diagrams = EarthCase{}.on({layer_of(smooth_soil(), {0.0, 1000.0, 2000.0, 3000.0})});
  ASSERT_THAT(diagrams, SizeIs(1));
  EXPECT_EQ(diagrams[0].start.y, 0.0);
  EXPECT_EQ(diagrams[0].end.y, -3000.0);
  EXPECT_THAT(positions_of(diagrams[0]), ElementsAre(0.0, 1000.0, 2000.0, 3000.0));
  EXPECT_THAT(values_of(diagrams[0]),
              Pointwise(Near(1e-15), {0.0, 1.0 / 150.0, 2.0 / 150.0, 3.0 / 150.0}));
  EXPECT_NEAR(diagrams[0].Rx, -30.0, 1e-12);
  EXPECT_EQ(diagrams[0].Ry, 0.0);
  EXPECT_NEAR(diagrams[0].pos, 2000.0, 1e-9);
}

TEST(EarthPress, TakesTheFactorAndTheSpacing) {
  // 1/3 * 3000 * 2e-5 * 1.5 * 800 = 24.
  const EarthCase factored{.gamma = 1.5, .spacing = 800.0};
  EXPECT_THAT(factored.values_on(layer_of(smooth_soil(), {0.0, 3000.0})),
              Pointwise(Near(1e-12), {0.0, 24.0}));
}

TEST(EarthPress, HoldsOnlyTheTopOfEachStepButTheLast) {
  // A step of K shows between two layers as two points. K 1/3, then 1 (no friction):
  // 1000 * 2e-5 = 0.02 at the border.
  xSoilProps mud = smooth_soil();
  mud.set_InternalFriction(0.0);
  const auto diagrams =
      EarthCase{}.on({layer_of(smooth_soil(), {0.0, 1000.0}), layer_of(mud, {1000.0, 2000.0})});
  ASSERT_THAT(diagrams, SizeIs(2));
  EXPECT_THAT(values_of(diagrams[0]), Pointwise(Near(1e-15), {0.0, 0.02 / 3.0}));
  EXPECT_THAT(values_of(diagrams[1]), Pointwise(Near(1e-15), {0.02, 0.04}));
  EXPECT_THAT(positions_of(diagrams[1]), ElementsAre(0.0, 1000.0));
  EXPECT_EQ(diagrams[1].start.y, -1000.0);
}

TEST(EarthPress, HasNoNegativeValuesInCohesiveSoil) {
  // 2 c sqrt(1/3) = 0.009 for c = 0.0045 sqrt(3). z * 2e-5 / 3 - 0.009 = -0.009, -0.007/3,
  // 0.013/3, 0.011 at 0, 1000, 2000, 3000.
  const xSoilLayer layer = layer_of(cohesive_soil(0.0045 * sqrt3), {0.0, 1000.0, 2000.0, 3000.0});
  EXPECT_THAT(EarthCase{}.values_on(layer), Pointwise(Near(1e-15), {0.0, 0.0, 0.013 / 3.0, 0.011}));
}

TEST(EarthPress, IsLighterUnderWater) {
  // 22 - 10 = 12 kN/m³: 0.012 at 1000, 0.024 at 2000, a third of it.
  const xSoilLayer layer = submerged_layer_of(smooth_soil(), {0.0, 1000.0, 2000.0});
  EXPECT_THAT(EarthCase{}.values_on(layer), Pointwise(Near(1e-15), {0.0, 0.004, 0.008}));
}

TEST(EarthPress, IsLightenedByTheVerticalCoefficient) {
  // kv = 0.25: 0.75 * 0.02 / 3 at 1000.
  const EarthCase seismic{.acc = {0.0, 0.25}};
  EXPECT_THAT(seismic.values_on(layer_of(smooth_soil(), {0.0, 1000.0})),
              Pointwise(Near(1e-15), {0.0, 0.005}));
}

TEST(EarthPress, VanishesWhereTheSoilWeighsNothing) {
  const std::vector<xSoilLayer> layers{
      layer_of(smooth_soil(), {0.0, 1000.0, 2000.0}),
      submerged_layer_of(cohesive_soil(0.01), {2000.0, 3000.0, 4000.0})};
  for (const formulType formula :
       {formulaAtRest, formulaRankine, formulaCoulomb, formulaMononobeOkabe, formulaWood}) {
    const EarthCase weightless{.formula = formula, .acc = {0.1, 1.0}};
    for (const xLayerPress& diagram : weightless.on(layers)) {
      EXPECT_THAT(values_of(diagram), Each(0.0)) << formula;
      EXPECT_EQ(diagram.Rx, 0.0);
      EXPECT_EQ(diagram.Ry, 0.0);
      EXPECT_EQ(diagram.pos, 1000.0);
    }
  }
}

TEST(EarthPress, LeavesTheCohesionToWeightlessSoilOnThePassiveSide) {
  // K = 3, no stress: 2 * 0.01 * sqrt(3).
  const EarthCase weightless{.acc = {0.0, 1.0}, .active = false};
  EXPECT_THAT(weightless.values_on(layer_of(cohesive_soil(0.01), {0.0, 1000.0, 2000.0})),
              Pointwise(Near(1e-15), {0.02 * sqrt3, 0.02 * sqrt3, 0.02 * sqrt3}));
}

TEST(EarthPress, PassesThroughALayerWithoutWeight) {
  // A soil as heavy as water hands on what lies on it: 0.02, 0.02 under water, 0.02 + 0.012.
  xSoilProps slurry = smooth_soil();
  slurry.setSaturatedUnitWeight(1e-5);
  const auto diagrams = EarthCase{}.on({layer_of(smooth_soil(), {0.0, 1000.0}),
                                        submerged_layer_of(slurry, {1000.0, 2000.0, 3000.0}),
                                        submerged_layer_of(smooth_soil(), {3000.0, 4000.0})});
  ASSERT_THAT(diagrams, SizeIs(3));
  EXPECT_THAT(values_of(diagrams[1]), Pointwise(Near(1e-15), {0.02 / 3.0, 0.02 / 3.0, 0.02 / 3.0}));
  EXPECT_THAT(values_of(diagrams[2]), Pointwise(Near(1e-15), {0.02 / 3.0, 0.032 / 3.0}));
}

TEST(EarthPress, VanishesWhereTheCoefficientIsNotANumber) {
  const EarthCase steep{.formula = formulaRankine};
  EXPECT_THAT(steep.values_on(sloping_layer_of(smooth_soil(), {0.0, 1000.0, 2000.0}, pi / 4.0)),
              ElementsAre(0.0, 0.0, 0.0));
}

TEST(EarthPress, CarriesTheOverburdenOfASlope) {
  // Slope 60°: ratio 2, and K = cos²(30°) = 0.75 without the root. Stresses 0, 0.02,
  // 0.02 + 2 * 0.02 = 0.06; the level piece below goes on with 0.06 and K = 1/3.
  const EarthCase sloping{.formula = formulaCoulomb};
  const auto diagrams =
      sloping.on({sloping_layer_of(smooth_soil(), {0.0, 1000.0, 2000.0}, pi / 3.0),
                  layer_of(smooth_soil(), {2000.0, 3000.0})});
  ASSERT_THAT(diagrams, SizeIs(2));
  EXPECT_THAT(values_of(diagrams[0]), Pointwise(Near(1e-15), {0.0, 0.015, 0.045}));
  EXPECT_THAT(values_of(diagrams[1]), Pointwise(Near(1e-15), {0.02, 0.08 / 3.0}));
}

TEST(EarthPress, ChoosesTheFormula) {
  // phi = 30°, smooth, kh = tan(10°): at rest 1/2, Rankine and Coulomb 1/3, times 0.02.
  const xSoilLayer layer = layer_of(smooth_soil(), {0.0, 1000.0});
  const Acceleration acc{std::tan(pi / 18.0), 0.0};
  const auto bottom_by = [&layer, &acc](int formula) {
    return EarthCase{.formula = static_cast<formulType>(formula), .acc = acc}.values_on(layer)[1];
  };
  EXPECT_NEAR(bottom_by(0), 0.01, 1e-15);
  EXPECT_NEAR(bottom_by(1), 0.02 / 3.0, 1e-15);
  EXPECT_NEAR(bottom_by(2), 0.02 / 3.0, 1e-15);
  // Mononobe-Okabe with psi = 10°: cos²(20°) / (cos²(10°) (1 + r)²),
  // r² = sin(20°) sin(30°) / cos(10°); any formula beyond Wood's likewise.
  const double cos10 = std::cos(pi / 18.0);
  const double r = std::sqrt(std::sin(pi / 9.0) * 0.5 / cos10);
  const double K = std::pow(std::cos(pi / 9.0) / (cos10 * (1.0 + r)), 2.0);
  EXPECT_NEAR(bottom_by(3), 0.02 * K, 1e-15);
  EXPECT_NEAR(bottom_by(5), 0.02 * K, 1e-15);
  EXPECT_NEAR(bottom_by(-1), 0.02 * K, 1e-15);
}

TEST(EarthPress, ByWoodTakesTheFactorInItsOwnWay) {
  // K0 = 1/2, gamma 1.5, kh 0.2: seismic part of a step 2e-5 * 0.2 * 1000 = 0.004.
  // (0 + 0.004) * 1.5; (0.02 * 1.5 * 0.5 + 0.004) * 1.5; 0.04 * 1.5 * 0.5 * 1.5 + 0.004.
  const EarthCase wood{.formula = formulaWood, .gamma = 1.5, .acc = {0.2, 0.0}};
  EXPECT_THAT(wood.values_on(layer_of(smooth_soil(), {0.0, 1000.0, 2000.0})),
              Pointwise(Near(1e-15), {0.006, 0.0285, 0.049}));
}

TEST(EarthPress, ByWoodHasNoCohesionAndNoCut) {
  // kh = -0.2: the seismic part alone at the top, (-0.004) * 1.5; bottom 0.02 * 0.5 * 2.25 - 0.004.
  const EarthCase wood{.formula = formulaWood, .gamma = 1.5, .acc = {-0.2, 0.0}};
  EXPECT_THAT(wood.values_on(layer_of(cohesive_soil(0.5), {0.0, 1000.0})),
              Pointwise(Near(1e-15), {-0.006, 0.0185}));
}

TEST(EarthPress, ByWoodLightensTheSeismicPartToo) {
  // kv = 0.5: 1e-5 * 0.2 * 1000 = 0.002; bottom 0.01 * 0.5 + 0.002.
  const EarthCase wood{.formula = formulaWood, .acc = {0.2, 0.5}};
  EXPECT_THAT(wood.values_on(layer_of(smooth_soil(), {0.0, 1000.0})),
              Pointwise(Near(1e-15), {0.002, 0.007}));
}

TEST(EarthPress, OnThePassiveSideIsAlwaysCoulomb) {
  // K = 3: 3 * 0.02 + 2 * 0.01 * sqrt(3) at 1000, whatever the formula and the earthquake.
  const xSoilLayer layer = layer_of(cohesive_soil(0.01), {0.0, 1000.0});
  for (const formulType formula :
       {formulaAtRest, formulaRankine, formulaCoulomb, formulaMononobeOkabe, formulaWood}) {
    const EarthCase passive{.formula = formula, .acc = {0.3, 0.0}, .active = false};
    EXPECT_THAT(passive.values_on(layer),
                Pointwise(Near(1e-14), {0.02 * sqrt3, 0.06 + 0.02 * sqrt3}));
  }
}

TEST(EarthPress, InclinesItsResultantByTheSlopeOrTheWallFriction) {
  xSoilProps rough = smooth_soil();
  rough.setInterfaceFriction(0.3);
  const xSoilLayer layer = sloping_layer_of(rough, {0.0, 1000.0}, 0.2);
  const auto inclination = [&layer](const EarthCase& earth) {
    const xLayerPress diagram = earth.on({layer}).front();
    return std::atan2(-diagram.Ry, -diagram.Rx);
  };
  EXPECT_NEAR(inclination({.formula = formulaRankine}), 0.2, 1e-14);
  EXPECT_NEAR(inclination({.formula = formulaCoulomb}), 0.3, 1e-14);
  EXPECT_NEAR(inclination({.formula = formulaWood}), 0.3, 1e-14);
  EXPECT_NEAR(inclination({.formula = formulaAtRest, .theta = 0.1}), 0.4, 1e-14);
  // The passive side is Coulomb's, though Rankine is asked for.
  EXPECT_NEAR(inclination({.formula = formulaRankine, .active = false}), 0.3, 1e-14);
  // The design friction counts: tan(0.3) / 2.
  EarthCase factored{.formula = formulaCoulomb};
  factored.factors[1] = {2.0, 1.0};
  EXPECT_NEAR(inclination(factored), std::atan(std::tan(0.3) / 2.0), 1e-14);
}

TEST(EarthPress, TakesTheDesignValuesOfTheSoil) {
  // tan(phi) = 1.25 tan(30°) becomes 30°; 25 kN/m³ / 1.25 = 20; c 0.003 / 1.5 = 0.002.
  xSoilProps soil = smooth_soil();
  soil.set_InternalFriction(std::atan(1.25 / sqrt3));
  soil.setUnitWeight(2.5e-5);
  soil.setCohesion(0.003);
  EarthCase factored;
  factored.factors = {{1.25, 9.0}, {1.0, 9.0}, {1.5, 9.0}, {9.0, 9.0}, {1.25, 9.0}, {9.0, 9.0}};
  const xSoilLayer layer = layer_of(soil, {0.0, 1000.0});
  EXPECT_THAT(factored.values_on(layer), Pointwise(Near(1e-15), {0.0, 0.02 / 3.0 - 0.004 / sqrt3}));
  // The other set of factors, all 9, gives another pressure.
  factored.type = geoFactorResistance;
  EXPECT_GT(std::abs(factored.values_on(layer)[1] - (0.02 / 3.0 - 0.004 / sqrt3)), 1e-4);
}

TEST(EarthPress, EndsAtTheFirstLayerThatBeginsAtTheBottom) {
  const std::vector<xSoilLayer> layers{layer_of(smooth_soil(), {0.0, 1000.0}),
                                       layer_of(smooth_soil(), {1000.0, 2000.0}),
                                       layer_of(smooth_soil(), {500.0, 600.0})};
  EXPECT_THAT(EarthCase{.bottom = 1000.0}.on(layers), SizeIs(1));
  EXPECT_THAT(EarthCase{.bottom = 1000.0000009}.on(layers), SizeIs(1));
  EXPECT_THAT(EarthCase{.bottom = 1000.0000011}.on(layers), SizeIs(3));
  EXPECT_THAT(EarthCase{.bottom = 0.0}.on(layers), IsEmpty());
  EXPECT_THAT(EarthCase{.bottom = nan}.on(layers), IsEmpty());
}

TEST(EarthPress, LeavesOutLayersAboveTheTopWithTheirWeight) {
  const std::vector<xSoilLayer> layers{layer_of(smooth_soil(), {0.0, 1000.0}),
                                       layer_of(smooth_soil(), {1000.0, 2000.0})};
  const auto below = EarthCase{.top = 1000.0}.on(layers);
  ASSERT_THAT(below, SizeIs(1));
  EXPECT_EQ(below[0].start.y, -1000.0);
  EXPECT_THAT(values_of(below[0]), Pointwise(Near(1e-15), {0.0, 0.02 / 3.0}));
  EXPECT_THAT(EarthCase{.top = 999.9999991}.on(layers), SizeIs(1));
  EXPECT_THAT(EarthCase{.top = 999.9999989}.on(layers), SizeIs(2));
}

TEST(EarthPress, TakesALayerWithOneLevelOrNone) {
  xSoilLayer bare = layer_of(smooth_soil(), {0.0, 1000.0});
  bare.levels = {0.0};
  xSoilLayer empty = bare;
  empty.levels.clear();
  const auto diagrams = EarthCase{}.on({bare, empty, layer_of(smooth_soil(), {1000.0, 2000.0})});
  ASSERT_THAT(diagrams, SizeIs(3));
  EXPECT_THAT(values_of(diagrams[0]), ElementsAre(0.0));
  EXPECT_THAT(positions_of(diagrams[0]), ElementsAre(0.0));
  EXPECT_THAT(diagrams[1].points, IsEmpty());
  EXPECT_EQ(diagrams[1].end.y, -1000.0);
  // Neither has a step, so neither weighs on the third.
  EXPECT_THAT(values_of(diagrams[2]), Pointwise(Near(1e-15), {0.0, 0.02 / 3.0}));
}

TEST(EarthPress, AppendsTheActivePressure) {
  xEarthPress press;
  const std::vector<xSoilLayer> layers{layer_of(smooth_soil(), {0.0, 1000.0}),
                                       layer_of(smooth_soil(), {1000.0, 2000.0})};
  const std::vector<GeoCombFactor> factors(6);
  for (int call = 1; call <= 2; ++call) {
    EXPECT_EQ(press.computeActiveEarthPress(geoFactorPressure, factors, 1.5, formulaRankine, 0.0,
                                            layers, {0.0, 0.0}, 1000.0, 800.0),
              ostrel::ok);
    EXPECT_THAT(press.diagrams, SizeIs(call));
  }
  // 0.02 / 3 * 1.5 * 800.
  EXPECT_THAT(values_of(press.diagrams[1]), Pointwise(Near(1e-12), {0.0, 8.0}));
  EXPECT_EQ(stored(press.diagrams[0]), stored(press.diagrams[1]));
}

TEST(EarthPress, LetsALayerAboveTheHeadIn) {
  // The first layer sets the upper limit, 1000 above its own top.
  xEarthPress press;
  EXPECT_EQ(press.computeActiveEarthPress(geoFactorPressure, {}, 1.0, formulaRankine, 0.0,
                                          {layer_of(smooth_soil(), {-5000.0, -4000.0}),
                                           layer_of(smooth_soil(), {-4000.0, 0.0})},
                                          {0.0, 0.0}, 1000.0, 1.0),
            ostrel::ok);
  EXPECT_THAT(press.diagrams, SizeIs(2));
}

TEST(EarthPress, OfNoLayersIsNothing) {
  xEarthPress press;
  EXPECT_EQ(press.computeActiveEarthPress(geoFactorPressure, {}, 1.0, formulaRankine, 0.0, {},
                                          {0.0, 0.0}, 1000.0, 1.0),
            ostrel::ok);
  EXPECT_THAT(press.diagrams, IsEmpty());
}

TEST(EarthPress, IsStoredAsItsDiagramsAndResetsToNone) {
  xEarthPress press;
  press.diagrams = {diagram_of({{0.0, 1.0}}), diagram_of({})};
  EXPECT_EQ(press.getIOClass(), "xEarthPress");
  EXPECT_EQ(stored(press), frame_bytes(1, bytes_of([&press](outstream& out) {
                                         out << 2;
                                         press.diagrams[0].pub_write(out);
                                         press.diagrams[1].pub_write(out);
                                       })));
  EXPECT_EQ(stored(through_memory(press)), stored(press));
  press.reset();
  EXPECT_THAT(press.diagrams, IsEmpty());
}

// --- Water pressure ---

TEST(HydrostaticPress, GrowsBelowTheWaterTable) {
  // Water at 1000: (z - 1000) * 800 * 1e-5 * 1.5 = 0, 12, 24.
  xHydrostaticPress press;
  EXPECT_EQ(press.computeHydroPress(1000.0, 1.5,
                                    {layer_of(smooth_soil(), {0.0, 1000.0}),
                                     submerged_layer_of(smooth_soil(), {1000.0, 2000.0, 3000.0})},
                                    5000.0, 800.0),
            0);
  ASSERT_THAT(press.diagrams, SizeIs(1));  // the dry layer has none
  EXPECT_EQ(press.diagrams[0].start.y, -1000.0);
  EXPECT_EQ(press.diagrams[0].end.y, -3000.0);
  EXPECT_THAT(positions_of(press.diagrams[0]), ElementsAre(0.0, 1000.0, 2000.0));
  EXPECT_THAT(values_of(press.diagrams[0]), Pointwise(Near(1e-12), {0.0, 12.0, 24.0}));
  EXPECT_NEAR(press.diagrams[0].Rx, -24000.0, 1e-8);
  EXPECT_NEAR(press.diagrams[0].pos, 4000.0 / 3.0, 1e-9);
}

TEST(HydrostaticPress, IsZeroAboveTheWaterTable) {
  xHydrostaticPress press;
  press.computeHydroPress(1500.0, 1.0, {submerged_layer_of(smooth_soil(), {1000.0, 2000.0})},
                          5000.0, 1000.0);
  ASSERT_THAT(press.diagrams, SizeIs(1));
  EXPECT_THAT(values_of(press.diagrams[0]), Pointwise(Near(1e-12), {0.0, 5.0}));
}

TEST(HydrostaticPress, EndsAtTheFirstLayerThatBeginsAtTheBottom) {
  const std::vector<xSoilLayer> layers{submerged_layer_of(smooth_soil(), {0.0, 1000.0}),
                                       submerged_layer_of(smooth_soil(), {1000.0, 2000.0}),
                                       submerged_layer_of(smooth_soil(), {500.0, 600.0})};
  const auto count_above = [&layers](double bottom) {
    xHydrostaticPress press;
    EXPECT_EQ(press.computeHydroPress(0.0, 1.0, layers, bottom, 1.0), 0);
    return press.diagrams.size();
  };
  EXPECT_EQ(count_above(1000.0), 1U);
  EXPECT_EQ(count_above(1000.0000009), 1U);
  EXPECT_EQ(count_above(1000.0000011), 3U);
  EXPECT_EQ(count_above(nan), 0U);
}

TEST(HydrostaticPress, InclinesItsResultantByTheSlope) {
  xSoilLayer layer = submerged_layer_of(smooth_soil(), {0.0, 1000.0});
  layer.set_Angle(0.2);
  xHydrostaticPress press;
  press.computeHydroPress(0.0, 1.0, {layer}, 5000.0, 1000.0);
  // R = 10 * 1000 / 2.
  EXPECT_NEAR(force_of(press.diagrams.at(0)), 5000.0, 1e-9);
  EXPECT_NEAR(press.diagrams.at(0).Ry, -5000.0 * std::sin(0.2), 1e-9);
}

TEST(HydrostaticPress, AppendsToWhatIsThere) {
  xHydrostaticPress press;
  for (std::size_t call = 1; call <= 2; ++call) {
    press.computeHydroPress(0.0, 1.0, {submerged_layer_of(smooth_soil(), {0.0, 1000.0})}, 5000.0,
                            1.0);
    EXPECT_EQ(press.diagrams.size(), call);
  }
  press.reset();
  EXPECT_THAT(press.diagrams, IsEmpty());
}

TEST(HydrostaticPress, IsStoredAsItsDiagrams) {
  xHydrostaticPress press;
  press.diagrams = {diagram_of({{0.0, 1.0}})};
  EXPECT_EQ(press.getIOClass(), "xHydrostaticPress");
  EXPECT_EQ(stored(press), frame_bytes(1, bytes_of([&press](outstream& out) {
                                         out << 1;
                                         press.diagrams[0].pub_write(out);
                                       })));
  EXPECT_EQ(stored(through_memory(press)), stored(press));
}

}  // namespace
