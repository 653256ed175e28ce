// SPDX-License-Identifier: Apache-2.0
#include "ostrel/load_pressure.h"

#include "support/soil_column.h"
#include "support/stream_round_trip.h"

#include <gmock/gmock.h>
#include <osg/ref_ptr>

#include <cmath>
#include <numbers>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::layer_of;
using ostrel::testing::positions_of;
using ostrel::testing::sloping_layer_of;
using ostrel::testing::smooth_soil;
using ostrel::testing::stored;
using ostrel::testing::through_memory;
using ostrel::testing::values_of;
using std::numbers::pi;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pointwise;
using ::testing::SizeIs;

using Acceleration = arma::Col<double>::fixed<2>;

MATCHER_P(Near, tolerance, "") {
  return std::abs(std::get<0>(arg) - std::get<1>(arg)) <= tolerance;
}

osg::ref_ptr<xUniformLoad> uniform(double value) {
  osg::ref_ptr<xUniformLoad> load = new xUniformLoad;
  load->setObjectID(11, "uniform");
  load->setValue(value);
  return load;
}

osg::ref_ptr<xNastriformLoad> strip(double start, double end, double position, double extension) {
  osg::ref_ptr<xNastriformLoad> load = new xNastriformLoad;
  load->setObjectID(12, "strip");
  load->setStartValue(start);
  load->setEndValue(end);
  load->setPosition(position);
  load->setExtension(extension);
  return load;
}

template <class Load>
osg::ref_ptr<Load> localized(double position, double value) {
  osg::ref_ptr<Load> load = new Load;
  load->setObjectID(13, "localized");
  load->setPosition(position);
  load->setValue(value);
  return load;
}

// What all loads take; what a test does not say is without factor, earthquake and inclination, on
// 1 mm of wall and 10 m of excavation.
struct Surroundings {
  std::vector<xSoilLayer> layers;
  double gamma = 1.0;
  double spacing = 1.0;
  Acceleration acc{0.0, 0.0};
  double depth = 10000.0;
  double theta = 0.0;
  formulType formula = formulaRankine;
  std::vector<GeoCombFactor> factors = std::vector<GeoCombFactor>(6);

  xLoadPress from(xUniformLoad* load) const {
    return xUniform{}.compute_LoadPress(load, geoFactorPressure, factors, gamma, formula, theta,
                                        layers, acc, depth, spacing);
  }
  xLoadPress from(xNastriformLoad* load) const {
    return xNastriform{}.computeLoadPress(load, gamma, theta, layers, acc, depth, spacing);
  }
  xLoadPress from(xLinearLoad* load) const {
    return xLinear{}.computeLoadPress(load, gamma, theta, layers, acc, depth, spacing);
  }
  xLoadPress from(xPuntiformLoad* load) const {
    return xPuntiform{}.computeLoadPress(load, gamma, theta, layers, acc, depth, spacing);
  }
};

// One level layer of 5 m with three levels.
std::vector<xSoilLayer> level_ground() {
  return {layer_of(smooth_soil(), {0.0, 4000.0, 5000.0})};
}

// The pressures of one load of each kind.
std::vector<xLoadPress> from_each_kind(const Surroundings& around) {
  return {around.from(uniform(0.03)), around.from(strip(0.02, 0.02, 1000.0, 2000.0)),
          around.from(localized<xLinearLoad>(4000.0, 100.0)),
          around.from(localized<xPuntiformLoad>(4000.0, 1e5))};
}

// --- All kinds ---

TEST(LoadPressure, CarriesTheNameAndIdOfItsLoad) {
  const auto all = from_each_kind({.layers = level_ground()});
  EXPECT_EQ(all[0].id, 11);
  EXPECT_EQ(all[0].name, "uniform");
  EXPECT_EQ(all[1].id, 12);
  EXPECT_EQ(all[1].name, "strip");
  EXPECT_EQ(all[2].id, 13);
  EXPECT_EQ(all[3].name, "localized");
}

TEST(LoadPressure, HasADiagramForEachLayerAboveTheExcavationLevel) {
  const std::vector<xSoilLayer> layers{
      layer_of(smooth_soil(), {500.0, 1000.0, 2500.0}), layer_of(smooth_soil(), {2500.0, 4000.0}),
      layer_of(smooth_soil(), {4000.0, 5000.0}), layer_of(smooth_soil(), {600.0, 700.0})};
  for (const xLoadPress& press : from_each_kind({.layers = layers, .depth = 4000.0})) {
    ASSERT_THAT(press.diagrams, SizeIs(2)) << press.name;
    EXPECT_EQ(press.diagrams[0].start.y, -500.0);
    EXPECT_EQ(press.diagrams[0].end.y, -2500.0);
    EXPECT_THAT(positions_of(press.diagrams[0]), ElementsAre(0.0, 500.0, 2000.0));
    EXPECT_EQ(press.diagrams[1].start.y, -2500.0);
    EXPECT_THAT(positions_of(press.diagrams[1]), ElementsAre(0.0, 1500.0));
  }
  for (const xLoadPress& press : from_each_kind({.layers = layers, .depth = 4000.0000009})) {
    EXPECT_THAT(press.diagrams, SizeIs(2));
  }
  for (const xLoadPress& press : from_each_kind({.layers = layers, .depth = 4000.0000011})) {
    EXPECT_THAT(press.diagrams, SizeIs(4));
  }
  for (const xLoadPress& press : from_each_kind({.layers = layers, .depth = std::nan("")})) {
    EXPECT_THAT(press.diagrams, IsEmpty());
  }
  for (const xLoadPress& press : from_each_kind({.layers = {}})) {
    EXPECT_THAT(press.diagrams, IsEmpty());
  }
}

TEST(LoadPressure, VanishesWithAVerticalCoefficientOfOne) {
  for (const xLoadPress& press : from_each_kind({.layers = level_ground(), .acc = {0.1, 1.0}})) {
    ASSERT_THAT(press.diagrams, SizeIs(1)) << press.name;
    EXPECT_THAT(values_of(press.diagrams[0]), Each(0.0)) << press.name;
    EXPECT_EQ(press.diagrams[0].Rx, 0.0);
    EXPECT_EQ(press.diagrams[0].pos, 2500.0);
  }
}

TEST(LoadPressure, IsProportionalToFactorAndLightening) {
  // 1.5 * (1 - 0.2) = 1.2.
  const auto plain = from_each_kind({.layers = level_ground()});
  const auto scaled = from_each_kind({.layers = level_ground(), .gamma = 1.5, .acc = {0.0, 0.2}});
  for (std::size_t i = 0; i < plain.size(); ++i) {
    const std::vector<double> expected = values_of(plain[i].diagrams.at(0));
    const std::vector<double> values = values_of(scaled[i].diagrams.at(0));
    for (std::size_t k = 0; k < expected.size(); ++k) {
      EXPECT_NEAR(values[k], 1.2 * expected[k], 1e-13 * expected[k]) << plain[i].name;
    }
  }
}

TEST(LoadPressure, IsTurnedAndRaisedBySlopes) {
  // 60°: ratio 2, and the resultant at 60°. (The uniform load has another K on a slope.)
  const std::vector<xSoilLayer> slope{
      sloping_layer_of(smooth_soil(), {0.0, 4000.0, 5000.0}, pi / 3.0)};
  const auto level = from_each_kind({.layers = level_ground()});
  const auto sloping = from_each_kind({.layers = slope, .formula = formulaCoulomb});
  for (std::size_t i = 0; i < level.size(); ++i) {
    const xLayerPress& diagram = sloping[i].diagrams.at(0);
    EXPECT_NEAR(std::atan2(-diagram.Ry, -diagram.Rx), pi / 3.0, 1e-14);
    const double k_ratio = i == 0 ? 0.75 * 3.0 : 1.0;  // cos²(30°) to 1/3
    const double expected = 2.0 * k_ratio * level[i].diagrams.at(0).points[1].value;
    EXPECT_NEAR(diagram.points[1].value, expected, 1e-13 * expected) << level[i].name;
  }
}

TEST(LoadPressure, OfAnAbsentLoadIsNothing) {
  const Surroundings around{.layers = level_ground()};
  EXPECT_THAT(around.from(static_cast<xUniformLoad*>(nullptr)).diagrams, IsEmpty());
  EXPECT_THAT(around.from(static_cast<xNastriformLoad*>(nullptr)).diagrams, IsEmpty());
  EXPECT_THAT(around.from(static_cast<xLinearLoad*>(nullptr)).diagrams, IsEmpty());
  EXPECT_THAT(around.from(static_cast<xPuntiformLoad*>(nullptr)).diagrams, IsEmpty());
}

TEST(LoadPressure, TakesALayerWithoutLevels) {
  xSoilLayer bare = layer_of(smooth_soil(), {0.0, 1000.0});
  bare.levels.clear();
  for (const xLoadPress& press : from_each_kind({.layers = {bare}})) {
    ASSERT_THAT(press.diagrams, SizeIs(1));
    EXPECT_THAT(press.diagrams[0].points, IsEmpty());
  }
}

// --- Uniform load ---

TEST(UniformPressure, IsConstantInsideEachLayer) {
  // 0.03 / 3, and 0.03 in the soil without friction below; times 1.5 * 800.
  xSoilProps mud = smooth_soil();
  mud.set_InternalFriction(0.0);
  const Surroundings around{
      .layers = {layer_of(smooth_soil(), {0.0, 1000.0, 2000.0}), layer_of(mud, {2000.0, 3000.0})}};
  const xLoadPress press = around.from(uniform(0.03));
  EXPECT_THAT(values_of(press.diagrams.at(0)), Pointwise(Near(1e-15), {0.01, 0.01, 0.01}));
  EXPECT_THAT(values_of(press.diagrams.at(1)), Pointwise(Near(1e-15), {0.03, 0.03}));
  EXPECT_NEAR(press.diagrams[0].Rx, -20.0, 1e-12);
  EXPECT_NEAR(press.diagrams[0].pos, 1000.0, 1e-9);

  Surroundings factored = around;
  factored.gamma = 1.5;
  factored.spacing = 800.0;
  EXPECT_THAT(values_of(factored.from(uniform(0.03)).diagrams.at(0)),
              Pointwise(Near(1e-12), {12.0, 12.0, 12.0}));
}

TEST(UniformPressure, TakesTheDesignValuesOfTheSoil) {
  // tan(phi) = 1.25 tan(30°) becomes 30°.
  xSoilProps soil = smooth_soil();
  soil.set_InternalFriction(std::atan(1.25 / std::numbers::sqrt3));
  Surroundings around{.layers = {layer_of(soil, {0.0, 1000.0})}};
  around.factors[0] = {1.25, 9.0};
  EXPECT_THAT(values_of(around.from(uniform(0.03)).diagrams.at(0)),
              Pointwise(Near(1e-15), {0.01, 0.01}));
}

TEST(UniformPressure, ByWoodIsThatByMononobeOkabe) {
  Surroundings around{.layers = level_ground(), .acc = {0.2, 0.1}};
  around.formula = formulaMononobeOkabe;
  const std::vector<double> mononobe_okabe = values_of(around.from(uniform(0.03)).diagrams.at(0));
  around.formula = formulaWood;
  EXPECT_EQ(values_of(around.from(uniform(0.03)).diagrams.at(0)), mononobe_okabe);
  around.formula = formulaAtRest;  // 0.03 / 2 * 0.9
  EXPECT_THAT(values_of(around.from(uniform(0.03)).diagrams.at(0)),
              Pointwise(Near(1e-15), {0.0135, 0.0135, 0.0135}));
}

TEST(UniformPressure, KeepsTheSoilOfTheLastLayerUntilReset) {
  xUniform law;
  law.compute_LoadPress(uniform(0.03), geoFactorPressure, {}, 1.0, formulaRankine, 0.0,
                        level_ground(), {0.0, 0.0}, 10000.0, 1.0);
  EXPECT_NEAR(law.designSoil.getK(), 1.0 / 3.0, 1e-15);
  law.reset();
  EXPECT_EQ(law.designSoil.getK(), 0.0);
  EXPECT_EQ(law.designSoil.soil.getUnitWeight(), 0.0);
}

// --- Strip ---

TEST(StripPressure, TakesTheElasticStrip) {
  // At the wall, 4000 wide, at z = 4000: 2 / pi * (pi / 4 - 1/2) * 0.02 * 1.5 * 800; at z = 0 the
  // full load.
  const Surroundings around{.layers = level_ground(), .gamma = 1.5, .spacing = 800.0};
  const auto values = values_of(around.from(strip(0.02, 0.02, 0.0, 4000.0)).diagrams.at(0));
  EXPECT_NEAR(values[0], 24.0, 1e-12);
  EXPECT_NEAR(values[1], 24.0 * (0.5 - 1.0 / pi), 1e-12);
}

TEST(StripPressure, TakesTheMeanOfItsTwoValues) {
  const Surroundings around{.layers = level_ground()};
  EXPECT_EQ(values_of(around.from(strip(10.0, 30.0, 500.0, 2000.0)).diagrams.at(0)),
            values_of(around.from(strip(20.0, 20.0, 500.0, 2000.0)).diagrams.at(0)));
}

// --- Line load ---

TEST(LinePressure, TakesTheHeightAboveTheExcavationLevel) {
  // H = 10000, at 5000, z = 5000: 0.2 / pi / 1000 * 100 * 1.5 * 800.
  const Surroundings around{.layers = level_ground(), .gamma = 1.5, .spacing = 800.0};
  EXPECT_NEAR(around.from(localized<xLinearLoad>(5000.0, 100.0)).diagrams.at(0).points[2].value,
              0.2 / pi * 120.0, 1e-12);
}

TEST(LinePressure, MeasuresTheDepthFromTheHead) {
  const xLoadPress whole =
      Surroundings{.layers = {layer_of(smooth_soil(), {0.0, 2000.0, 4000.0})}}.from(
          localized<xLinearLoad>(1000.0, 100.0));
  const xLoadPress cut = Surroundings{.layers = {layer_of(smooth_soil(), {0.0, 2000.0}),
                                                 layer_of(smooth_soil(), {2000.0, 4000.0})}}
                             .from(localized<xLinearLoad>(1000.0, 100.0));
  EXPECT_EQ(cut.diagrams.at(1).points[0].value, whole.diagrams.at(0).points[1].value);
  EXPECT_EQ(cut.diagrams.at(1).points[1].value, whole.diagrams.at(0).points[2].value);
  // n = 0.4: 0.0812 / 1.024 / 1000 * 100.
  EXPECT_NEAR(whole.diagrams[0].points[2].value, 0.00812 / 1.024, 1e-15);
}

// --- Point load ---

TEST(PointPressure, SpreadsAlongTheWall) {
  // H = 10000, load at 4e3 (m = 0.4), z = 4000: 1e5 / 1e8 * 0.045312 / 0.032768 times the width,
  // 1 mm of wall so near that it is 1 but for 1.1² (0.5 / 4000)² / 3.
  const Surroundings around{.layers = level_ground()};
  EXPECT_NEAR(around.from(localized<xPuntiformLoad>(4000.0, 1e5)).diagrams.at(0).points[1].value,
              1e-3 * 0.045312 / 0.032768, 1e-11);
  // Near load, 100 mm of wall at 2000: mean of cos² to either side 1 - 1.1² (50 / 2000)² / 3, to
  // the fourth power of 50 / 2000.
  const Surroundings wide{.layers = level_ground(), .gamma = 1.5, .spacing = 100.0};
  const double width = 100.0 * (1.0 - 1.21 * 0.025 * 0.025 / 3.0);
  EXPECT_NEAR(wide.from(localized<xPuntiformLoad>(2000.0, 1e5)).diagrams.at(0).points[1].value,
              1.5e-3 * width * 0.0448 / 0.032768, 1e-6);
}

TEST(PointPressure, IsNotANumberForALoadAtTheWall) {
  const Surroundings around{.layers = level_ground()};
  const xLoadPress press = around.from(localized<xPuntiformLoad>(0.0, 1e5));
  ASSERT_THAT(press.diagrams, SizeIs(1));
  for (const double value : values_of(press.diagrams[0])) {
    EXPECT_TRUE(std::isnan(value));
  }
}

// --- Stored forms ---

xLoadPress sample_pressure(int id) {
  xLoadPress press;
  press.setObjectID(id, "load");
  press.diagrams.resize(1);
  press.diagrams[0].points = {{0.0, 1.0 * id}};
  return press;
}

TEST(LoadPress, IsStoredAsItsNameThenItsDiagrams) {
  const xLoadPress press = sample_pressure(5);
  EXPECT_EQ(press.getIOClass(), "xLoadPress");
  EXPECT_EQ(stored(press), frame_bytes(1, bytes_of([&press](outstream& out) {
                                         press.xObjectID::pub_write(out);
                                         out << 1;
                                         press.diagrams[0].pub_write(out);
                                       })));
  const xLoadPress read = through_memory(press);
  EXPECT_EQ(stored(read), stored(press));
  EXPECT_EQ(read.id, 5);
}

TEST(LoadPress, ResetClearsNameAndDiagrams) {
  xLoadPress press = sample_pressure(5);
  press.reset();
  EXPECT_EQ(press.id, -1);
  EXPECT_EQ(press.name, "");
  EXPECT_THAT(press.diagrams, IsEmpty());
}

TEST(LoadPress, CopiesNameAndIdAlone) {
  xLoadPress press = sample_pressure(5);
  press.copy(sample_pressure(6));
  EXPECT_EQ(press.id, 6);
  EXPECT_EQ(press.diagrams.at(0).points.at(0).value, 5.0);
}

TEST(LoadCondPress, IsStoredAsItsNameThenItsLoads) {
  xLoadCondPress condition;
  condition.setObjectID(3, "condition");
  condition.loads = {sample_pressure(5), sample_pressure(6)};
  EXPECT_EQ(condition.getIOClass(), "xLoadCondPress");
  EXPECT_EQ(stored(condition), frame_bytes(1, bytes_of([&condition](outstream& out) {
                                             condition.xObjectID::pub_write(out);
                                             out << 2;
                                             condition.loads[0].pub_write(out);
                                             condition.loads[1].pub_write(out);
                                           })));
  EXPECT_EQ(stored(through_memory(condition)), stored(condition));
}

TEST(LoadCondPress, ResetClearsNameAndLoads) {
  xLoadCondPress condition;
  condition.setObjectID(3, "condition");
  condition.loads = {sample_pressure(5)};
  condition.reset();
  EXPECT_EQ(condition.id, -1);
  EXPECT_EQ(condition.name, "");
  EXPECT_THAT(condition.loads, IsEmpty());
}

}  // namespace
