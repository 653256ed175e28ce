// SPDX-License-Identifier: Apache-2.0
#include "moment_slice.h"

#include "ferrule/models_testing.h"
#include "support/relative.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

namespace {

using Ferrule::internal::Direction;
using Ferrule::internal::direction_at;
using Ferrule::internal::Moment;
using Ferrule::internal::MomentSlice;
using Ferrule::internal::StrainState;
using namespace Ferrule::testing;
using ostrel::testing::expect_relative;

constexpr double row_area = 400 * pi;

// Below the yield strain, the bars alone carry tension: 2 * 400 pi * 200 000 * strain.
TEST(MomentSlice, HasAUniformPlaneForTension) {
  ModelOf model(round_rectangle());
  const StrainState state = MomentSlice(*model, row_area * 400).uniform();
  EXPECT_NEAR(state.plane.top, 0.001, 1e-15);
  EXPECT_DOUBLE_EQ(state.plane.slope, 0);
  EXPECT_NEAR(state.moment.x, 0, 1e-6);
}

// Strain -0.001: 12.75 in the concrete, 200 in the bars of one row at y = -200, whose moment is
// + 200 * 400 pi * 200.
TEST(MomentSlice, HasAUniformPlaneForCompression) {
  ModelOf model(Recipe{.outline = rectangle(300, 500), .bars = row(4, -200, 10)});
  const StrainState state = MomentSlice(*model, -12.75 * 150'000 - 200 * row_area).uniform();
  EXPECT_NEAR(state.plane.top, -0.001, 1e-15);
  expect_relative(state.moment.x, 200 * row_area * 200);
}

// Bars at the same places on both sides of the plane of bending: the neutral axis does not turn.
TEST(MomentSlice, MeetsTheBorderStraightAheadInASymmetricalSection) {
  ModelOf model(pile(16));
  for (const double angle : {0.0, pi, pi / 2}) {
    const auto state = MomentSlice(*model, -5e5).border({}, direction_at(angle));
    ASSERT_TRUE(state);
    EXPECT_DOUBLE_EQ(state->gradient.cosine, direction_at(angle).cosine);
  }
}

TEST(MomentSlice, TurnsTheNeutralAxisOfAnOddRing) {
  ModelOf model(pile(9));
  const auto straight = MomentSlice(*model, -5e5).ultimate_along({});
  const auto state = MomentSlice(*model, -5e5).border({}, {});
  ASSERT_TRUE(straight && state);
  EXPECT_GT(std::abs(straight->moment.y), 1e6);
  EXPECT_NEAR(state->moment.y, 0, 1e-5);
  EXPECT_GT(std::abs(state->gradient.sine), 1e-3);
  EXPECT_GT(state->moment.x, 0);
}

// A rectangle carries most in a direction between its axes with the neutral axis nearly along a
// diagonal; the border has no moment beside the ray from any start within.
TEST(MomentSlice, MeetsTheBorderFromAnyStartWithin) {
  ModelOf model(round_rectangle());
  MomentSlice slice(*model, -8e5);
  const Moment from{.x = 3e7, .y = -2e7};
  for (int i = 0; i < 24; ++i) {
    const Direction ray = direction_at(0.1 + pi * i / 12);
    const auto state = slice.border(from, ray);
    ASSERT_TRUE(state);
    EXPECT_NEAR(across(state->moment - from, ray), 0, 1e-4);
    EXPECT_GT(along(state->moment - from, ray), 0);
  }
}

// From far outside, the ray towards the slice leaves it on the far side, the ray away from it has
// its crossings behind.
TEST(MomentSlice, MeetsTheFarBorderFromOutside) {
  ModelOf model(round_rectangle());
  MomentSlice slice(*model, -8e5);
  const auto far = slice.border({}, {});
  ASSERT_TRUE(far);
  const Moment from{.x = -1e9, .y = 0};
  const auto towards = slice.border(from, {});
  ASSERT_TRUE(towards);
  expect_relative(towards->moment.x, far->moment.x);
  const auto away = slice.border(from, {.cosine = -1.0, .sine = 0.0});
  ASSERT_TRUE(away);
  EXPECT_LT(along(away->moment - from, {.cosine = -1.0, .sine = 0.0}), 0);
}

TEST(MomentSlice, HasNoBorderOnARayThatMissesIt) {
  ModelOf model(round_rectangle());
  EXPECT_FALSE(MomentSlice(*model, -8e5).border({.x = 0, .y = 1e9}, {}));
}

// One row of bars that do not yield under the peak strain: below uniform compression there are
// planes only with the bars on the compressed side, so only Mx > 0.
TEST(MomentSlice, HasABorderBelowUniformCompression) {
  Recipe recipe{.outline = rectangle(300, 500), .bars = row(4, -200, 10)};
  recipe.material.Fyk = 500;
  recipe.material.GammaS = 1.15;
  ModelOf model(recipe);
  MomentSlice slice(*model, model->along({}).path.uniform_compression() - 10'000);
  EXPECT_TRUE(slice.ultimate_along({}));
  EXPECT_FALSE(slice.ultimate_along({.cosine = -1.0, .sine = 0.0}));
  const auto state = slice.border({}, {});
  ASSERT_TRUE(state);
  EXPECT_GT(state->moment.x, 0);
}

// The same with a bar in a corner: the window of directions and both of its borders are found.
TEST(MomentSlice, FindsTheWindowOfDirectionsBelowUniformCompression) {
  Recipe recipe{.outline = rectangle(300, 500), .bars = {{-100, -200, 16}}};
  recipe.material.Fyk = 500;
  recipe.material.GammaS = 1.15;
  ModelOf model(recipe);
  const double uniform = model->along({}).path.uniform_compression();
  MomentSlice slice(*model, uniform - 1'000);
  const auto ahead = slice.ultimate_along(direction_at(std::atan2(100, 200)));
  ASSERT_TRUE(ahead);
  const Direction ray = direction_of(ahead->moment);
  const auto state = slice.border({}, ray);
  ASSERT_TRUE(state);
  EXPECT_NEAR(across(state->moment, ray), 0, 1e-3);
  EXPECT_GE(along(state->moment, ray), along(ahead->moment, ray) * (1 - 1e-9));
}

}  // namespace
