// SPDX-License-Identifier: Apache-2.0
#include "structural/shear_truss.h"

#include "support/random_bits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

namespace {

using ostrel::structural::equivalent_rectangle;
using ostrel::structural::search_step;
using ostrel::structural::strut_cotangent;
using ostrel::structural::strut_utilisation;
using ostrel::structural::truss_strength;
using ostrel::testing::RandomBits;
using std::numbers::pi;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

// 2 * 400 * 1 / (400 * 8) = 0.25.
TEST(StrutUtilisation, IsTheRootOfTwiceTheRatioOfForces) {
  EXPECT_DOUBLE_EQ(strut_utilisation(1.0, 400.0, 400.0, 8.0), 0.5);
  EXPECT_DOUBLE_EQ(strut_utilisation(0.0, 400.0, 400.0, 8.0), 0.0);
}

TEST(StrutUtilisation, IsAtMostOne) {
  EXPECT_DOUBLE_EQ(strut_utilisation(4.0, 400.0, 400.0, 8.0), 1.0);
  EXPECT_DOUBLE_EQ(strut_utilisation(5.0, 400.0, 400.0, 8.0), 1.0);
  EXPECT_DOUBLE_EQ(strut_utilisation(infinity, 400.0, 400.0, 8.0), 1.0);
  EXPECT_DOUBLE_EQ(strut_utilisation(not_a_number, 400.0, 400.0, 8.0), 1.0);
  EXPECT_DOUBLE_EQ(strut_utilisation(-1.0, 400.0, 400.0, 8.0), 1.0);
}

// sqrt(0.5) / 0.5 = sqrt(2), where the root of 1 - 0.25 would give sqrt(3);
// sqrt(0.64) / 0.36 = 0.8 / 0.36.
TEST(StrutCotangent, TakesTheRootOfOneLessTheUtilisationItself) {
  EXPECT_DOUBLE_EQ(strut_cotangent(0.5), std::numbers::sqrt2);
  EXPECT_DOUBLE_EQ(strut_cotangent(0.36), 0.8 / 0.36);
}

// sqrt(0.8) / 0.2 = 4.47.
TEST(StrutCotangent, IsTwoAndAHalfForLightStirrups) {
  EXPECT_DOUBLE_EQ(strut_cotangent(0.0), 2.5);
  EXPECT_DOUBLE_EQ(strut_cotangent(2.220446049250313e-13), 2.5);
  EXPECT_DOUBLE_EQ(strut_cotangent(1e-9), 2.5);
  EXPECT_DOUBLE_EQ(strut_cotangent(0.2), 2.5);
}

// sqrt(0.25) / 0.75 = 2 / 3.
TEST(StrutCotangent, IsOneForHeavyStirrups) {
  EXPECT_DOUBLE_EQ(strut_cotangent(0.75), 1.0);
  EXPECT_DOUBLE_EQ(strut_cotangent(1.0), 1.0);
}

TEST(StrutCotangent, StaysInItsRangeWhateverTheUtilisation) {
  RandomBits random(16);
  for (int i = 0; i < 20000; ++i) {
    const double sn = i < 10000 ? i / 9999.0 : random.number();
    const double ct = strut_cotangent(sn);
    EXPECT_TRUE(ct >= 1.0 && ct <= 2.5) << sn;
  }
  EXPECT_DOUBLE_EQ(strut_cotangent(not_a_number), 1.0);
}

// sn = 0.5, ct = sqrt(2), z = 0.9 * 1000 = 900: stirrups 1 * 900 * 400 * sqrt(2), struts
// 900 * 400 * 0.5 * 8 * sqrt(2) / 3.
TEST(TrussStrength, MeetsTheHandCalculation) {
  const auto strength = truss_strength({.b = 400.0, .h = 1050.0}, 50.0, 1.0, 400.0, 8.0);
  EXPECT_NEAR(strength.stirrups, 360'000.0 * std::numbers::sqrt2, 1e-9);
  EXPECT_NEAR(strength.struts, 480'000.0 * std::numbers::sqrt2, 1e-9);
}

// Without stirrups ct = 2.5: struts 900 * 400 * 0.5 * 8 * 2.5 / 7.25 = 3 600 000 / 7.25.
TEST(TrussStrength, WithoutStirrupsIsThatOfTheStrutsAlone) {
  const auto strength = truss_strength({.b = 400.0, .h = 1050.0}, 50.0, 0.0, 400.0, 8.0);
  EXPECT_DOUBLE_EQ(strength.stirrups, 0.0);
  EXPECT_DOUBLE_EQ(strength.struts, 3'600'000.0 / 7.25);
}

// With ct = 1 the struts carry 900 * 400 * 0.5 * 8 / 2 = 720 000.
TEST(TrussStrength, OfStirrupsWithoutDistanceIsNotFinite) {
  const auto strength = truss_strength({.b = 400.0, .h = 1050.0}, 50.0, infinity, 400.0, 8.0);
  EXPECT_TRUE(std::isinf(strength.stirrups));
  EXPECT_DOUBLE_EQ(strength.struts, 720'000.0);
}

TEST(TrussStrength, GrowsWithTheStirrups) {
  double before = 0.0;
  for (int i = 1; i <= 2000; ++i) {
    const auto strength = truss_strength({.b = 400.0, .h = 1050.0}, 50.0, 0.002 * i, 400.0, 8.0);
    const double weaker = std::min(strength.stirrups, strength.struts);
    EXPECT_GE(weaker, before * (1.0 - 1e-15)) << i;
    before = weaker;
  }
}

TEST(EquivalentRectangle, OfACircleWithoutCoverHasTheBarsOnItsEdge) {
  const auto rectangle = equivalent_rectangle(800.0, 0.0);
  EXPECT_DOUBLE_EQ(rectangle.h, (2.0 / pi + 1.0) * 400.0);
}

// c = R: x = 0, h = 2 R, b = (pi / 2) R² / (2 R).
TEST(EquivalentRectangle, OfACircleWithBarsInItsCentreIsHalfACircle) {
  const auto rectangle = equivalent_rectangle(800.0, 400.0);
  EXPECT_DOUBLE_EQ(rectangle.h, 800.0);
  EXPECT_DOUBLE_EQ(rectangle.b, 100.0 * pi);
}

// c = R (1 - pi / 4): x = 1 / 2, h = 1.5 R + c, b = (sqrt(3) / 4 + pi / 6 + pi / 2) R² / h.
TEST(EquivalentRectangle, MeetsTheHandCalculation) {
  const double c = 1000.0 - 250.0 * pi;
  const auto rectangle = equivalent_rectangle(2000.0, c);
  const double h = 1500.0 + c;
  EXPECT_NEAR(rectangle.h, h, 1e-9);
  EXPECT_NEAR(rectangle.b, (std::numbers::sqrt3 / 4.0 + 2.0 * pi / 3.0) * 1e6 / h, 1e-9);
}

TEST(EquivalentRectangle, HasNoWidthForACoverBeyondTheCircle) {
  EXPECT_TRUE(std::isnan(equivalent_rectangle(800.0, 1100.0).b));  // x = -1.11
}

xBracketSettings steps(double largest, double smallest, double increment) {
  xBracketSettings settings;
  settings.setMaxStep(largest);
  settings.setMinStep(smallest);
  settings.setStepIncr(increment);
  return settings;
}

/// The steps that a search tries which only `enough` or less satisfies.
std::vector<double> tried(const xBracketSettings& settings, double enough) {
  std::vector<double> list;
  xBracket stirrup;
  stirrup.setStep(-1.0);
  search_step(settings, stirrup, [&] {
    list.push_back(stirrup.getStep());
    return stirrup.getStep() <= enough;
  });
  return list;
}

TEST(SearchStep, ClosesUpUntilItSuffices) {
  EXPECT_EQ(tried(steps(300.0, 100.0, 50.0), 200.0), (std::vector{300.0, 250.0, 200.0}));
  EXPECT_EQ(tried(steps(300.0, 100.0, 50.0), 500.0), (std::vector{300.0}));
}

TEST(SearchStep, EndsAtTheSmallestStep) {
  EXPECT_EQ(tried(steps(300.0, 200.0, 50.0), 0.0), (std::vector{300.0, 250.0, 200.0}));
  EXPECT_EQ(tried(steps(300.0, 220.0, 50.0), 0.0), (std::vector{300.0, 250.0}));
}

TEST(SearchStep, TriesNothingWithoutARange) {
  EXPECT_TRUE(tried(steps(100.0, 200.0, 50.0), 0.0).empty());
  EXPECT_TRUE(tried(steps(not_a_number, 100.0, 50.0), 0.0).empty());
  EXPECT_TRUE(tried(steps(300.0, not_a_number, 50.0), 0.0).empty());
}

TEST(SearchStep, EndsWhereItStandsWhenItCannotCloseUp) {
  for (const double increment : {0.0, -50.0, 1e-300, not_a_number, -infinity}) {
    EXPECT_EQ(tried(steps(300.0, 100.0, increment), 0.0), (std::vector{300.0})) << increment;
  }
  EXPECT_EQ(tried(steps(infinity, 100.0, 50.0), 0.0), (std::vector{infinity}));
}

TEST(SearchStep, GivesUpAfterAHundredThousandTries) {
  EXPECT_EQ(tried(steps(300.0, 100.0, 1e-9), 0.0).size(), 100'000U);
}

}  // namespace
