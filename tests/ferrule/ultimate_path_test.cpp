// SPDX-License-Identifier: Apache-2.0
#include "ultimate_path.h"

#include "ferrule/models_testing.h"
#include "support/relative.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using Ferrule::internal::DirectedSection;
using Ferrule::internal::Direction;
using Ferrule::internal::Plane;
using Ferrule::internal::UltimatePath;
using Ferrule::internal::View;
using namespace Ferrule::testing;
using ostrel::testing::expect_relative;

constexpr double row_area = 400 * pi;

TEST(UltimatePath, RunsFromUniformTensionToUniformCompression) {
  ModelOf model(round_rectangle());
  const View& view = model->along({});
  expect_relative(view.path.largest_axial(), 2 * row_area * 400);
  expect_relative(view.path.uniform_compression(), -17 * 150'000 - 2 * row_area * 400);
}

TEST(UltimatePath, HasTheAxialForceAskedForAndIsJustWithinTheLimits) {
  ModelOf model(round_rectangle());
  for (const Direction direction : {Direction{}, {0.8, 0.6}, {0.0, 1.0}}) {
    const View& view = model->along(direction);
    const double range = view.path.largest_axial() - view.path.uniform_compression();
    for (int i = 0; i <= 40; ++i) {
      const double axial = view.path.uniform_compression() + range * i / 40;
      const auto plane = view.path.plane_with(view.section, axial);
      ASSERT_TRUE(plane);
      EXPECT_NEAR(view.section.respond(*plane).axial, axial, 1e-8);
      EXPECT_NEAR(Ferrule::internal::utilisation(view.section, *plane), 1.0, 1e-12);
      EXPECT_GE(plane->slope, 0.0);
    }
  }
}

// Bars at the depth 450 at 0.0675 and the top at -0.0035: the slope 0.071 / 450. Less tension
// shortens the top no further, more of it shortens the top less.
TEST(UltimatePath, PassesFromThePivotOfSteelToThatOfConcrete) {
  ModelOf model(round_rectangle());
  const View& view = model->along({});
  const Plane corner{.top = -0.0035, .slope = 0.071 / 450};
  const double axial = view.section.respond(corner).axial;
  const auto more = view.path.plane_with(view.section, axial + 1'000);
  const auto less = view.path.plane_with(view.section, axial - 1'000);
  ASSERT_TRUE(more && less);
  EXPECT_NEAR(more->at(450), 0.0675, 1e-15);
  EXPECT_GT(more->top, -0.0035);
  EXPECT_NEAR(less->top, -0.0035, 1e-17);
  EXPECT_LT(less->at(450), 0.0675);
}

// The bottom fibre at the depth 500 has no strain at the slope 0.0035 / 500. Beyond that the fibre
// at 500 * 3/7 keeps the peak strain.
TEST(UltimatePath, PassesToThePivotOfTheWhollyCompressedSection) {
  ModelOf model(round_rectangle());
  const View& view = model->along({});
  const double axial = view.section.respond({.top = -0.0035, .slope = 7e-6}).axial;
  const auto plane = view.path.plane_with(view.section, axial - 10'000);
  ASSERT_TRUE(plane);
  EXPECT_NEAR(plane->at(1'500.0 / 7.0), -0.002, 1e-17);
  EXPECT_GT(plane->top, -0.0035);
  EXPECT_LT(plane->at(500), 0.0);
}

TEST(UltimatePath, KeepsUniformTensionBeyondIt) {
  ModelOf model(round_rectangle());
  const View& view = model->along({});
  const auto plane = view.path.plane_with(view.section, 1e9);
  ASSERT_TRUE(plane);
  EXPECT_DOUBLE_EQ(plane->top, 0.0675);
  EXPECT_DOUBLE_EQ(plane->slope, 0);
}

TEST(UltimatePath, HasNoPlaneBelowUniformCompressionOfYieldingBars) {
  ModelOf model(round_rectangle());
  const View& view = model->along({});
  const double axial = view.path.uniform_compression() - 1;
  EXPECT_FALSE(view.path.plane_with(view.section, axial));
  EXPECT_FALSE(view.path.plane_with(view.section, axial, UltimatePath::Choice::flatter));
}

TEST(UltimatePath, HasOnePlaneForEachForceAboveUniformCompression) {
  ModelOf model(round_rectangle());
  const View& view = model->along({});
  EXPECT_FALSE(view.path.plane_with(view.section, -1e6, UltimatePath::Choice::flatter));
}

// Bars that yield at 500 / 1.15 / 200000 = 0.00217 beside the top alone. Turning about the depth
// 1500/7 by the slope k shortens them by 0.002 + k (1500/7 - 50) and takes 17 * 300 * (k / 0.002)²
// * (2000/7)³ / 3 off the concrete: with k = 1e-6, -0.0021642857 and 432.857142... in the bars
// instead of 400, and 9912.536... N off the concrete.
TEST(UltimatePath, GoesBelowUniformCompressionWhereBarsDoNotYetYield) {
  Recipe recipe{.outline = rectangle(300, 500), .bars = row(4, -200, 10)};
  recipe.material.Fyk = 500;
  recipe.material.GammaS = 1.15;
  ModelOf model(recipe);
  const View& view = model->along({});
  const double k = 1e-6;
  const double bars = row_area * (400 + 200'000 * k * (1'500.0 / 7 - 50));
  const double relief = 17 * 300 * k * k / 4e-6 * std::pow(2'000.0 / 7, 3) / 3;
  const double axial = -17 * 150'000 + relief - bars;
  ASSERT_LT(axial, view.path.uniform_compression() - 30'000);
  const auto flatter = view.path.plane_with(view.section, axial, UltimatePath::Choice::flatter);
  const auto steeper = view.path.plane_with(view.section, axial);
  ASSERT_TRUE(flatter && steeper);
  expect_relative(flatter->slope, k, 1e-9);
  EXPECT_GT(steeper->slope, 1.001 * k);
  EXPECT_NEAR(view.section.respond(*steeper).axial, axial, 1e-8);
}

TEST(UltimatePath, WalksPlainConcreteFromNoForceAtAll) {
  ModelOf model(Recipe{.outline = rectangle(300, 500)});
  const View& view = model->along({});
  EXPECT_DOUBLE_EQ(view.path.largest_axial(), 0);
  const auto none = view.path.plane_with(view.section, 0);
  ASSERT_TRUE(none);
  EXPECT_DOUBLE_EQ(none->top, 0);
  EXPECT_DOUBLE_EQ(none->slope, 0);
  // 17/21 * 17 * 300 * x = 1 N at x = 21 / 86 700 mm.
  const auto thin = view.path.plane_with(view.section, -1);
  ASSERT_TRUE(thin);
  expect_relative(0.0035 / thin->slope, 21.0 / 86'700.0);
}

// Peak and ultimate strain are the same: one pivot from no force to uniform compression.
TEST(UltimatePath, WalksPlainConcreteWithoutAPlateau) {
  Recipe recipe{.outline = rectangle(300, 500)};
  recipe.material.Ecu = 0.002;
  ModelOf model(recipe);
  const View& view = model->along({});
  for (int i = 1; i < 20; ++i) {
    const double axial = view.path.uniform_compression() * i / 20;
    const auto plane = view.path.plane_with(view.section, axial);
    ASSERT_TRUE(plane);
    EXPECT_NEAR(plane->top, -0.002, 1e-17);
    EXPECT_NEAR(view.section.respond(*plane).axial, axial, 1e-8);
  }
}

// The weaker concrete below crushes first: the pivots of both components share the way.
TEST(UltimatePath, TurnsAboutTheLimitsOfTwoMaterials) {
  Recipe lower = round_rectangle();
  lower.outline = {{-150, -250}, {150, -250}, {150, -150}, {-150, -150}};
  lower.bars = row(4, -200, 10);
  Recipe upper = round_rectangle();
  upper.outline = {{-150, -150}, {150, -150}, {150, 250}, {-150, 250}};
  upper.bars = row(4, 200, 10);
  upper.material.Ecu = 0.0026;
  upper.material.EudTension = 0.02;
  ModelOf model(std::vector<Recipe>{lower, upper});
  for (const double cosine : {1.0, -1.0}) {
    const View& view = model->along({.cosine = cosine, .sine = 0.0});
    const double range = view.path.largest_axial() - view.path.uniform_compression();
    for (int i = 0; i <= 40; ++i) {
      const double axial = view.path.uniform_compression() + range * i / 40;
      const auto plane = view.path.plane_with(view.section, axial);
      ASSERT_TRUE(plane);
      EXPECT_NEAR(view.section.respond(*plane).axial, axial, 1e-8);
      EXPECT_NEAR(Ferrule::internal::utilisation(view.section, *plane), 1.0, 1e-12);
    }
  }
}

// Bars on the most compressed face: the neutral axis may not pass them, the path steps over them.
TEST(UltimatePath, StepsOverBarsOnTheCompressedFace) {
  ModelOf model(Recipe{.outline = rectangle(300, 500), .bars = row(4, -250, 10)});
  const View& view = model->along({});
  for (const double axial : {400.0, 0.0, -400.0}) {
    const auto plane = view.path.plane_with(view.section, axial * row_area / 2);
    ASSERT_TRUE(plane);
    EXPECT_NEAR(view.section.respond(*plane).axial, axial * row_area / 2, 1e-3);
  }
}

TEST(Utilisation, IsTheLargestRatioOfAStrainToItsLimit) {
  ModelOf model(round_rectangle());
  const DirectedSection& section = model->along({}).section;
  EXPECT_NEAR(Ferrule::internal::utilisation(section, {.top = -0.00175, .slope = 1e-5}), 0.5,
              1e-15);
  EXPECT_NEAR(Ferrule::internal::utilisation(section, {.top = 0.0135}), 0.2, 1e-15);
  EXPECT_NEAR(Ferrule::internal::utilisation(section, {.top = -0.001}), 0.5, 1e-15);
  EXPECT_DOUBLE_EQ(Ferrule::internal::utilisation(section, {}), 0);
}

}  // namespace
