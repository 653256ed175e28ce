// SPDX-License-Identifier: Apache-2.0
#include "anchors/overburden.h"

#include "support/wall_builder.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using ostrel::anchors::DesignGround;
using ostrel::anchors::Overburden;
using ostrel::testing::rectangle;
using sorrel::Point;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

xBoundSoilLayer layer(const std::vector<sorrel::Polygon>& polygons, double gamma,
                      double saturated) {
  xBoundSoilLayer ground;
  ground.polygons = polygons;
  ground.soil.setUnitWeight(gamma);
  ground.soil.setSaturatedUnitWeight(saturated);
  return ground;
}

sorrel::Polygon band(double bottom, double top) {
  return rectangle(0.0, 50000.0, bottom, top);
}

// 3 m of 18 kN/m³ (19 saturated) on 7 m of 20 kN/m³ (21 saturated).
std::vector<xBoundSoilLayer> two_layers() {
  return {layer({band(-3000.0, 0.0)}, 18e-6, 19e-6),
          layer({band(-10000.0, -3000.0)}, 20e-6, 21e-6)};
}

xWaterTable water_at(double level) {
  xWaterTable water;
  water.setIsDefined(true);
  water.setLivelloMonte(level);
  return water;
}

Overburden above(const Point& place, const std::vector<xBoundSoilLayer>& layers,
                 const xWaterTable& water = {}, const std::vector<GeoCombFactor>& factors = {}) {
  return DesignGround(layers, water, factors).above(place);
}

const Point in_second_layer{5000.0, -5000.0};

void expect_stress(const Overburden& over, double stress) {
  EXPECT_NEAR(over.stress, stress, 1e-15);
}

// 3000 · 18e-6 + 2000 · 20e-6 = 0.054 + 0.040.
TEST(Overburden, AddsUpTheLayersToTheGround) {
  const Overburden over = above(in_second_layer, two_layers());
  expect_stress(over, 0.094);
  EXPECT_EQ(over.layer, 1U);
}

// 1000 · 18e-6.
TEST(Overburden, CountsOnlyWhatLiesAbove) {
  const Overburden over = above({5000.0, -1000.0}, two_layers());
  expect_stress(over, 0.018);
  EXPECT_EQ(over.layer, 0U);
}

TEST(Overburden, IsDryWithoutWater) {
  xWaterTable water = water_at(0.0);
  water.setIsDefined(false);
  expect_stress(above(in_second_layer, two_layers(), water), 0.094);
}

// 0.054 + 1000 · 20e-6 + 1000 · (21e-6 - 10e-6) = 0.054 + 0.020 + 0.011.
TEST(Overburden, ChangesWeightAtTheWaterWithinALayer) {
  expect_stress(above(in_second_layer, two_layers(), water_at(-4000.0)), 0.085);
}

// On the border: 0.054 dry and 2000 · 11e-6 below the water.
TEST(Overburden, ChangesWeightAtTheWaterOnABorder) {
  expect_stress(above(in_second_layer, two_layers(), water_at(-3000.0)), 0.076);
}

// 3000 · (19e-6 - 10e-6) + 2000 · 11e-6 = 0.027 + 0.022; the water itself has no weight here.
TEST(Overburden, IsSubmergedBelowWaterThatStandsAboveTheGround) {
  expect_stress(above(in_second_layer, two_layers(), water_at(0.0)), 0.049);
  expect_stress(above(in_second_layer, two_layers(), water_at(1000.0)), 0.049);
}

TEST(Overburden, IsDryAboveWaterThatStandsBelowThePlace) {
  expect_stress(above(in_second_layer, two_layers(), water_at(-5000.0)), 0.094);
  expect_stress(above(in_second_layer, two_layers(), water_at(-6000.0)), 0.094);
}

TEST(Overburden, IsSubmergedForALevelThatIsNotANumber) {
  expect_stress(above(in_second_layer, two_layers(), water_at(nan)), 0.049);
}

// By 1.25: 0.0432 + 1000 · 16e-6 + 1000 · (16.8e-6 - 10e-6) = 0.0432 + 0.0160 + 0.0068. The weight
// of water takes no factor, and the factors on pressure (9) are not asked for.
TEST(Overburden, DividesTheWeightsByTheirFactor) {
  std::vector<GeoCombFactor> factors(6, GeoCombFactor{.first = 9.0, .second = 1.0});
  factors[4].second = 1.25;
  expect_stress(above(in_second_layer, two_layers(), water_at(-4000.0), factors), 0.066);
}

TEST(Overburden, CountsAMissingFactorAsOne) {
  const std::vector<GeoCombFactor> factors(4, GeoCombFactor{.first = 9.0, .second = 9.0});
  expect_stress(above(in_second_layer, two_layers(), water_at(-4000.0), factors), 0.085);
}

TEST(Overburden, GivesABorderToTheLayerBelow) {
  for (const double off : {-0.5e-6, 0.0, 0.5e-6}) {
    const Overburden over = above({5000.0, -3000.0 + off}, two_layers());
    EXPECT_EQ(over.layer, 1U) << off;
    EXPECT_NEAR(over.stress, 0.054, 1e-10);
  }
}

TEST(Overburden, GivesAPlaceInTwoLayersToTheLaterOne) {
  auto layers = two_layers();
  layers.push_back(layer({band(-6000.0, -4000.0)}, 1e-6, 1e-6));  // lies over the second
  const Overburden over = above(in_second_layer, layers);
  EXPECT_EQ(over.layer, 2U);
  expect_stress(over, 0.094 + 0.001);  // 1000 · 1e-6 more
}

TEST(Overburden, FindsNoLayerBelowTheGroundOrOutsideOfIt) {
  EXPECT_EQ(above({5000.0, -10001.0}, two_layers()).layer, std::nullopt);
  EXPECT_EQ(above({-5000.0, -5000.0}, two_layers()).layer, std::nullopt);
  EXPECT_EQ(above({5000.0, 1.0}, two_layers()).layer, std::nullopt);
  EXPECT_EQ(above(in_second_layer, {}).layer, std::nullopt);
}

TEST(Overburden, FindsNoLayerForAPlaceThatIsNotANumber) {
  EXPECT_EQ(above({nan, -5000.0}, two_layers()).layer, std::nullopt);
  EXPECT_EQ(above({5000.0, nan}, two_layers()).layer, std::nullopt);
}

TEST(Overburden, LosesTheLayersAfterOneThatTheVerticalDoesNotMeet) {
  auto layers = two_layers();
  layers[0].polygons = {rectangle(0.0, 4000.0, -3000.0, 0.0)};
  const Overburden over = above(in_second_layer, layers);
  EXPECT_EQ(over.layer, std::nullopt);
  expect_stress(over, 0.0);
}

// From -3000 to 0 although 1 m of it is a void: 3000 · 18e-6 + 2000 · 20e-6.
TEST(Overburden, FillsAVoidWithinALayer) {
  auto layers = two_layers();
  layers[0].polygons = {band(-1000.0, 0.0), band(-3000.0, -2000.0)};
  expect_stress(above(in_second_layer, layers), 0.094);
}

// Left at -2000, met again at -1000, left at 0: its lowest crossing lies above the place.
TEST(Overburden, DoesNotFindALayerThatIsMetAgainAboveThePlace) {
  const std::vector<xBoundSoilLayer> layers{
      layer({band(-1000.0, 0.0), band(-3000.0, -2000.0)}, 18e-6, 19e-6)};
  const Overburden over = above({5000.0, -2500.0}, layers);
  EXPECT_EQ(over.layer, std::nullopt);
  expect_stress(over, 0.036);  // 2000 · 18e-6
}

// The ground at x = 5000 lies 500 above the head: 5500 of slope, the layer goes 3000 deep.
TEST(Overburden, GoesUpToTheGroundAsTheLayersHaveIt) {
  auto layers = two_layers();
  layers[0].polygons = {
      {{10000.0, 1000.0}, {0.0, 0.0}, {0.0, -3000.0}, {10000.0, -3000.0}, {10000.0, 1000.0}}};
  expect_stress(above(in_second_layer, layers), 0.063 + 0.040);  // 3500 · 18e-6
}

}  // namespace
