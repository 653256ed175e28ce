// SPDX-License-Identifier: Apache-2.0
#include "slope/circle_trial.h"

#include "ostrel/slope_stability.h"
#include "support/no_allocation.h"
#include "support/random_contents.h"
#include "support/wavy_ground.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

using ostrel::slope::CircleMoments;
using ostrel::slope::CircleTrial;
using ostrel::slope::Place;
using ostrel::slope::Stripes;
using ostrel::testing::RandomContents;
using ostrel::testing::WavyGround;

constexpr double spacing = 1'000.0;
constexpr double gamma_water = 1e-5;

Stripes cut_ground(const WavyGround& ground, double width) {
  xSlopeStabilitySettings settings;
  settings.setWidthstripe(width);
  Stripes stripes;
  EXPECT_EQ(ostrel::slope::buildStripes(ground.water, settings, ground.layers, {}, stripes),
            ostrel::ok);
  return stripes;
}

struct Tally {
  int accepted = 0;
  int rejected = 0;
};

/// What the quick way leaves in the shared pieces must be what the plain way leaves, but for what
/// every circle fills anew.
void expect_same_base(const xClipData& quick, const xClipData& plain) {
  EXPECT_DOUBLE_EQ(quick.phi, plain.phi);
  EXPECT_DOUBLE_EQ(quick.cohesion, plain.cohesion);
  EXPECT_DOUBLE_EQ(quick.alpha, plain.alpha);
  EXPECT_DOUBLE_EQ(quick.porePressure, plain.porePressure);
  EXPECT_EQ(quick.hasLoad, plain.hasLoad);
  for (const std::size_t act : {0U, 1U}) {
    EXPECT_DOUBLE_EQ(quick.uniformLoad[act], plain.uniformLoad[act]);
    EXPECT_DOUBLE_EQ(quick.stripLoad[act], plain.stripLoad[act]);
    EXPECT_DOUBLE_EQ(quick.lineLoad[act], plain.lineLoad[act]);
    EXPECT_DOUBLE_EQ(quick.pointLoad[act], plain.pointLoad[act]);
  }
}

void expect_same_bases(const Stripes& quick, const Stripes& plain) {
  for (std::size_t k = 0; k < quick.size(); ++k) {
    for (std::size_t i = 0; i < quick[k].size(); ++i) {
      expect_same_base(quick[k][i]->clip, plain[k][i]->clip);
    }
  }
}

/// Tries random circles both ways.
Tally compare(const WavyGround& ground, double width, bool bishop, int circles,
              std::uint64_t seed) {
  const Stripes quick_ground = cut_ground(ground, width);
  const Stripes plain_ground = cut_ground(ground, width);
  CircleTrial trial(quick_ground, spacing, gamma_water, ground.conds, ground.comb, ground.water);
  xSlopeStability plain;
  RandomContents random(seed);
  Stripes slices;
  Tally tally;
  for (int i = 0; i < circles; ++i) {
    // Whole metres now and then, so that circles pass through corners and stripe borders.
    const double grain = random.yes() ? 1'000.0 : 1.0;
    const auto draw = [&](double low, double high) {
      return std::round(random.on_grid(low, high) / grain) * grain;
    };
    const xSlopeStability::Center center{draw(-20'000, 20'000), draw(-4'000, 15'000)};
    const double radius = draw(500, 32'000);
    const bool valid = ostrel::slope::intersectStripes(center, radius, plain_ground, slices);
    EXPECT_EQ(trial.cut(ostrel::slope::place(center), radius), valid);
    valid ? ++tally.accepted : ++tally.rejected;
    if (!valid) continue;
    double stab = 0.0;
    double destab = 0.0;
    if (bishop) {
      plain.bishop_new(center, radius, spacing, gamma_water, ground.conds, ground.comb,
                       ground.water, slices, stab, destab);
    } else {
      plain.fellenius_new(center, radius, spacing, gamma_water, ground.conds, ground.comb,
                          ground.water, slices, stab, destab);
    }
    const CircleMoments moments = trial.moments(bishop);
    const double size = std::max(std::abs(stab), std::abs(destab));
    EXPECT_NEAR(moments.stab, stab, 1e-12 * size) << center.t() << radius;
    EXPECT_NEAR(moments.destab, destab, 1e-12 * size) << center.t() << radius;
  }
  expect_same_bases(quick_ground, plain_ground);
  return tally;
}

TEST(CircleTrial, GivesWhatThePlainWayGives) {
  const Tally ordinary = compare(WavyGround(), 1'500, false, 300, 1);
  const Tally bishop = compare(WavyGround(), 1'500, true, 300, 2);
  EXPECT_GT(std::min(ordinary.accepted, bishop.accepted), 50);
  EXPECT_GT(std::min(ordinary.rejected, bishop.rejected), 20);
}

TEST(CircleTrial, GivesItOnNarrowAndOnWideStripes) {
  compare(WavyGround(2, 7), 300, false, 40, 3);
  compare(WavyGround(3, 60), 9'000, true, 200, 4);
}

TEST(CircleTrial, GivesItOnGroundThatOverlaps) {
  WavyGround ground(3, 10);
  const WavyGround other(4, 13);
  ground.layers.insert(ground.layers.end(), other.layers.begin(), other.layers.end());
  ground.layers.push_back(ostrel::testing::ground(
      {{0, 0}, {9'000, -9'000}, {9'000, 0}, {0, -9'000}, {0, 0}}, 1e-5, 2e-5));
  compare(ground, 2'000, false, 150, 5);
}

TEST(CircleTrial, GivesItWithoutWaterOrLoads) {
  WavyGround ground(4, 20);
  ground.water.setIsDefined(false);
  ground.conds.clear();
  compare(ground, 2'500, true, 100, 6);
  ground.comb.actions.clear();
  compare(ground, 2'500, false, 100, 7);
}

// Circles that only just reach a corner of a piece, by less than the rounding of squares.
TEST(CircleTrial, MeasuresCornersThatAreTooNearToTell) {
  WavyGround ground;
  ground.layers = {ostrel::testing::ground(ostrel::testing::box(0, 0, 10, 10), 1e-5, 2e-5, 1)};
  ground.water.setIsDefined(false);
  const Stripes stripes = cut_ground(ground, 20);
  CircleTrial trial(stripes, spacing, gamma_water, {}, ground.comb, ground.water);
  Stripes slices;
  const xSlopeStability::Center center{-3, 14};  // 5 from the corner (0, 10)
  for (const double radius : {5.0, std::nextafter(5.0, 9.0), std::nextafter(5.0, 0.0)}) {
    ASSERT_TRUE(ostrel::slope::intersectStripes(center, radius, stripes, slices));
    ASSERT_TRUE(trial.cut(ostrel::slope::place(center), radius));
    double stab = 0.0;
    double destab = 0.0;
    xSlopeStability{}.fellenius_new(center, radius, spacing, gamma_water, {}, ground.comb, {},
                                    slices, stab, destab);
    EXPECT_DOUBLE_EQ(trial.moments(false).stab, stab);
  }
}

TEST(CircleTrial, AllocatesNothingOnceItsListsHaveGrown) {
  const WavyGround ground;
  const Stripes stripes = cut_ground(ground, 500);
  CircleTrial trial(stripes, spacing, gamma_water, ground.conds, ground.comb, ground.water);
  double sum = 0.0;
  const auto try_all = [&] {
    for (const double radius : {12'000.0, 15'000.0, 18'000.0}) {
      if (trial.cut({.x = -2'000, .y = 4'000}, radius)) sum += trial.moments(true).stab;
    }
  };
  try_all();
  const ostrel::testing::AllocationCount allocations;
  try_all();
  EXPECT_EQ(allocations.since(), 0);
  EXPECT_GT(sum, 0.0);
}

}  // namespace
