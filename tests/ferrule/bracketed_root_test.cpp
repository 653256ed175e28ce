// SPDX-License-Identifier: Apache-2.0
#include "bracketed_root.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

using Ferrule::internal::finest;
using Ferrule::internal::growing_root;
using Ferrule::internal::Sample;
using Ferrule::internal::sign_change;
using Ferrule::internal::turning_root;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(GrowingRoot, FindsTheCubeRootOfTwo) {
  const auto f = [](double x) { return Sample{.value = x * x * x - 2, .slope = 3 * x * x}; };
  EXPECT_NEAR(growing_root(f, 0.0, 10.0, 5.0, 0.0), std::cbrt(2.0), 1e-15);
}

// Newton's steps for atan overshoot ever more from |x| > 1.39.
TEST(GrowingRoot, HoldsNewtonWithinTheBracket) {
  const auto f = [](double x) {
    return Sample{.value = std::atan(x - 3), .slope = 1 / (1 + (x - 3) * (x - 3))};
  };
  EXPECT_NEAR(growing_root(f, -1e6, 1e6, -9e5, 0.0), 3.0, 1e-12);
}

TEST(GrowingRoot, HalvesWhereThereIsNoSlope) {
  const auto f = [](double x) { return Sample{.value = x < 0.3 ? -1.0 : 1.0, .slope = 0}; };
  EXPECT_NEAR(growing_root(f, 0.0, 1.0, 0.5, 0.0), 0.3, 1e-15);
}

TEST(GrowingRoot, BeginsInTheMiddleWithoutAStart) {
  double first = 0.0;
  const auto f = [&first](double x) {
    first = x;
    return Sample{};
  };
  growing_root(f, 2.0, 4.0, nan, 0.0);
  EXPECT_DOUBLE_EQ(first, 3.0);
}

TEST(GrowingRoot, EndsWhereThereIsNoNumber) {
  int calls = 0;
  const auto f = [&calls](double) {
    ++calls;
    return Sample{.value = nan, .slope = nan};
  };
  growing_root(f, 0.0, 1.0, 0.5, 0.0);
  EXPECT_EQ(calls, 1);
}

TEST(GrowingRoot, EndsWithoutAChangeOfSign) {
  int calls = 0;
  const auto f = [&calls](double) {
    ++calls;
    return Sample{.value = -1, .slope = nan};
  };
  EXPECT_NEAR(growing_root(f, 0.0, 1.0, 0.5, 0.0), 1.0, 1e-15);
  EXPECT_LE(calls, 200);
}

// x = cos(x) at 0.739085133215160641655312...
TEST(SignChange, FindsTheFixedPointOfTheCosine) {
  const auto f = [](double x) { return x - std::cos(x); };
  EXPECT_NEAR(sign_change(f, 0.0, -1.0, 1.0, f(1.0), 0.0, finest), 0.7390851332151607, 2e-15);
}

TEST(SignChange, FindsAStep) {
  int calls = 0;
  const auto f = [&calls](double x) {
    ++calls;
    return x < -0.2 ? 5.0 : -1e-3;
  };
  EXPECT_NEAR(sign_change(f, -1.0, 5.0, 1.0, -1e-3, 0.0, finest), -0.2, 2e-15);
  EXPECT_LE(calls, 200);
}

TEST(SignChange, EndsAtTheWidthAskedFor) {
  int calls = 0;
  const auto f = [&calls](double x) {
    ++calls;
    return x < 0.3 ? -1.0 : 1.0;
  };
  EXPECT_NEAR(sign_change(f, 0.0, -1.0, 1.0, 1.0, 0.0, [] { return 0.1; }), 0.3, 0.2);
  EXPECT_LE(calls, 5);
}

TEST(TurningRoot, FindsAnAngleFarFromTheFirstStep) {
  const auto f = [](double angle) { return std::sin(angle - 1.4); };
  const auto root = turning_root(f, f(0.0), 1e3, 0.0, finest);
  ASSERT_TRUE(root);
  EXPECT_NEAR(*root, 1.4, 2e-15);
}

TEST(TurningRoot, TakesZeroWhereTheFunctionVanishesThere) {
  const auto f = [](double) { return 1.0; };
  const auto root = turning_root(f, 1e-9, 1.0, 1e-8, finest);
  ASSERT_TRUE(root);
  EXPECT_DOUBLE_EQ(*root, 0.0);
}

TEST(TurningRoot, FindsNothingWithoutAChangeOfSign) {
  const auto f = [](double angle) { return 3.0 + angle; };
  EXPECT_FALSE(turning_root(f, 3.0, 1.0, 0.0, finest));
}

TEST(TurningRoot, FindsNothingWhereThereIsNoNumber) {
  const auto f = [](double) { return nan; };
  EXPECT_FALSE(turning_root(f, -1.0, 1.0, 0.0, finest));
}

TEST(TurningRoot, MakesItsFirstStepWithoutAPace) {
  const auto f = [](double angle) { return angle - 0.5; };
  const auto root = turning_root(f, -0.5, 0.0, 1e-15, finest);
  ASSERT_TRUE(root);
  EXPECT_NEAR(*root, 0.5, 2e-15);
}

}  // namespace
