// SPDX-License-Identifier: Apache-2.0
#include "section_model.h"

#include "ferrule/models_testing.h"
#include "support/relative.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

namespace {

using Ferrule::Deform;
using Ferrule::internal::Direction;
using Ferrule::internal::direction_at;
using Ferrule::internal::direction_of;
using namespace Ferrule::testing;
using ostrel::testing::expect_relative;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double row_area = 400 * pi;

void expect_direction(Direction direction, double cosine, double sine) {
  EXPECT_DOUBLE_EQ(direction.cosine, cosine);
  EXPECT_DOUBLE_EQ(direction.sine, sine);
}

TEST(DirectionAt, TakesMultiplesOfARightAngleAsSuch) {
  expect_direction(direction_at(0.0), 1, 0);
  expect_direction(direction_at(std::numbers::pi), -1, 0);
  expect_direction(direction_at(-std::numbers::pi), -1, 0);
  expect_direction(direction_at(std::numbers::pi / 2), 0, 1);
  expect_direction(direction_at(-std::numbers::pi / 2), 0, -1);
  expect_direction(direction_at(2.0), std::cos(2.0), std::sin(2.0));
}

TEST(DirectionOf, IsThatOfTheMoment) {
  expect_direction(direction_of({.x = -3e8, .y = 4e8}), -0.6, 0.8);
  expect_direction(direction_of({.x = -2.0, .y = 0.0}), -1, 0);
}

TEST(DirectionOf, TakesNoMomentAsAPositiveOne) {
  expect_direction(direction_of({}), 1, 0);
}

TEST(DirectionOf, StandsMomentsWhoseSquareOverflows) {
  expect_direction(direction_of({.x = 3e300, .y = -4e300}), 0.6, -0.8);
}

TEST(SectionModel, RefusesASectionWithoutComponents) {
  ModelOf model(std::vector<Recipe>{});
  EXPECT_FALSE(model.usable());
}

TEST(SectionModel, RefusesAnOutlineWithoutArea) {
  for (const double y : {0.0, 1e-10, nan, 1e31, std::numeric_limits<double>::infinity()}) {
    ModelOf model(Recipe{.outline = {{0, 0}, {300, 0}, {600, y}}});
    EXPECT_FALSE(model.usable()) << y;
  }
}

TEST(SectionModel, RefusesAComponentWithoutOutlineOrLaws) {
  EXPECT_FALSE(ModelOf(Recipe{.outline = {}}).usable());
  Recipe recipe = round_rectangle();
  recipe.material.GammaC = 0;
  EXPECT_FALSE(ModelOf(recipe).usable());
  EXPECT_FALSE(ModelOf(std::vector<Recipe>{round_rectangle(), recipe}).usable());
}

TEST(SectionModel, RefusesAScaleThatIsNotPositive) {
  for (const double scale : {0.0, -1.0, nan, std::numeric_limits<double>::infinity()}) {
    ModelOf model(round_rectangle());
    model.domain(0).setScaleCoefficient(scale);
    EXPECT_FALSE(model.refresh()) << scale;
  }
}

TEST(SectionModel, RecoversWhenItsComponentsDo) {
  Recipe recipe = round_rectangle();
  recipe.outline.clear();
  ModelOf model(recipe);
  ASSERT_FALSE(model.usable());
  const auto whole = make_domain(round_rectangle());
  const std::vector<double> x{-150, 150, 150, -150};
  const std::vector<double> y{-250, -250, 250, 250};
  model.domain(0).setExternBoundary(4, x.data(), y.data());
  ASSERT_TRUE(model.refresh());
  expect_relative(model->along({}).path.largest_axial(), 2 * row_area * 400);
}

TEST(SectionModel, TakesNewBarsAlongEveryDirection) {
  ModelOf model(round_rectangle());
  for (const Direction direction : {Direction{}, {-1, 0}, {0, 1}}) {
    expect_relative(model->along(direction).path.largest_axial(), 2 * row_area * 400);
  }
  std::vector<Ferrule::SteelBar> bars(1);
  bars[0].setPosR(0, 200, 10);
  model.domain(0).setBars(1, bars.data());
  ASSERT_TRUE(model.refresh());
  for (const Direction direction : {Direction{}, {-1, 0}, {0, 1}}) {
    expect_relative(model->along(direction).path.largest_axial(), row_area / 4 * 400);
  }
}

TEST(SectionModel, CountsOnlyBarsWithAPositiveRadiusAndAPlace) {
  Recipe recipe = round_rectangle();
  recipe.bars =
      recipe.bars + std::vector<Bar>{{0, 0, 0},    {0, 0, -5},
                                     {0, 0, nan},  {nan, 0, 5},
                                     {0, 1e31, 5}, {0, 0, std::numeric_limits<double>::infinity()}};
  ModelOf model(recipe);
  expect_relative(model->along({}).path.largest_axial(), 2 * row_area * 400);
}

// Concrete 17 * 150 000 at the mean distance sqrt((300² + 500²) / 12), bars at their own: two of
// each row at x = 20, two at x = 60.
TEST(SectionModel, SumsItsOwnForces) {
  ModelOf model(round_rectangle());
  const double crushed = 17 * 150'000.0;
  const double bar = 100 * pi * 400;
  expect_relative(model->axial_force(), crushed + 8 * bar);
  expect_relative(model->moment_force(), crushed * std::sqrt((9e4 + 25e4) / 12)
                                             + 4 * bar * std::hypot(20, 200)
                                             + 4 * bar * std::hypot(60, 200));
}

// A = 150 000, about x: 300 * 500³ / 12 = 3.125e9, about y: 500 * 300³ / 12 = 1.125e9.
TEST(SectionModel, HasTheElasticPlaneOfARectangle) {
  ModelOf model(round_rectangle());
  const Deform d = model->elastic_plane(-3e6, {.x = 6.25e9, .y = -2.25e9});
  EXPECT_DOUBLE_EQ(d.d0, -20);
  EXPECT_DOUBLE_EQ(d.d1, 2);
  EXPECT_DOUBLE_EQ(d.d2, -2);
}

// The same rectangle moved by (1000, -500) carries the same stresses: moments about the origin
// gain N times the distances.
TEST(SectionModel, TakesElasticMomentsAboutTheOrigin) {
  ModelOf model(Recipe{.outline = {{850, -750}, {1150, -750}, {1150, -250}, {850, -250}}});
  const Deform d =
      model->elastic_plane(-3e6, {.x = 6.25e9 + 3e6 * 500, .y = -2.25e9 - 3e6 * 1'000});
  expect_relative(d.strain(1'000, -500), -20, 1e-10);
  expect_relative(d.d1, 2, 1e-10);
  expect_relative(d.d2, -2, 1e-10);
}

// Right triangle with legs 300: about the centroid xx = yy = 300⁴ / 36 = 2.25e8 and
// xy = -300⁴ / 72 = -1.125e8. For d1 = 1 alone, Mx = yy and My = xy.
TEST(SectionModel, TurnsTheElasticPlaneOfASkewSection) {
  ModelOf model(Recipe{.outline = {{-100, -100}, {200, -100}, {-100, 200}}});
  const Deform d = model->elastic_plane(0, {.x = 2.25e8, .y = -1.125e8});
  expect_relative(d.d1, 1, 1e-12);
  EXPECT_NEAR(d.d2, 0, 1e-12);
}

TEST(SectionModel, HasAnElasticPlaneWithoutUsableLaws) {
  Recipe recipe = round_rectangle();
  recipe.material.GammaS = 0;
  ModelOf model(recipe);
  ASSERT_FALSE(model.usable());
  EXPECT_DOUBLE_EQ(model->elastic_plane(-3e6, {}).d0, -20);
}

TEST(SectionModel, HasNoElasticPlaneWithoutAnOutline) {
  ModelOf model(std::vector<Recipe>{});
  EXPECT_DOUBLE_EQ(model->elastic_plane(-3e6, {}).d0, 0);
}

}  // namespace
