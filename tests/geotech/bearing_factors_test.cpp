// SPDX-License-Identifier: Apache-2.0
#include "geotech/bearing_factors.h"

#include "support/relative.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

using namespace ostrel::geotech;  // NOLINT(google-build-using-namespace): the file under test
using ostrel::testing::expect_relative;
using std::numbers::pi;
using std::numbers::sqrt2;
using std::numbers::sqrt3;

constexpr double two_plus_pi = 5.141592653589793;
constexpr double deg30 = pi / 6.0;  // sin = 1/2, tan = 1/sqrt(3)
constexpr double deg45 = pi / 4.0;  // sin = 1/sqrt(2), tan = 1

// exp(pi/sqrt(3)) = 6.13370740623623 and (1 + 1/2) / (1 - 1/2) = 3, so Nq = 18.4011222187087;
// Nc = (Nq - 1) sqrt(3), Ng = 2 (Nq + 1) / sqrt(3).
TEST(BearingFactors, OfTerzaghisFormAt30Degrees) {
  const TermFactors N = bearing_terzaghi(deg30);
  expect_relative(N.q, 18.4011222187087);
  expect_relative(N.c, 17.4011222187087 * sqrt3);
  expect_relative(N.g, 38.8022444374174 / sqrt3);
}

// tan²(45° + 15°) = 3 as above; Ng = 2 (Nq - 1) / sqrt(3).
TEST(BearingFactors, OfEurocode7At30Degrees) {
  const TermFactors N = bearing_eurocode7(deg30);
  expect_relative(N.q, 18.4011222187087);
  expect_relative(N.c, 17.4011222187087 * sqrt3);
  expect_relative(N.g, 34.8022444374174 / sqrt3);
}

TEST(BearingFactors, WithoutFrictionAreTwoPlusPiOneAndNothing) {
  for (const TermFactors& N : {bearing_terzaghi(0.0), bearing_eurocode7(0.0)}) {
    EXPECT_EQ(N.c, two_plus_pi);
    EXPECT_DOUBLE_EQ(N.q, 1.0);  // tan(pi / 4) rounds to a little less
    EXPECT_EQ(N.g, 0.0);
  }
  EXPECT_EQ(bearing_eurocode7(-0.0).c, two_plus_pi);
}

TEST(BearingFactors, OfAFrictionThatIsNoNumberAreNone) {
  const TermFactors N = bearing_terzaghi(std::numeric_limits<double>::quiet_NaN());
  EXPECT_TRUE(std::isnan(N.c));
  EXPECT_TRUE(std::isnan(N.q));
  EXPECT_TRUE(std::isnan(N.g));
}

TEST(InclinedLoads, OnARectangleHaveItsAreaAndAnExponentByItsSides) {
  // B / L = 0.5: m = 2.5 / 1.5; a square: m = 3 / 2.
  const InclinedLoad load = load_on_rectangle(3.0, 7.0, 2.0, 4.0);
  EXPECT_EQ(load.H, 3.0);
  EXPECT_EQ(load.V, 7.0);
  EXPECT_EQ(load.area, 8.0);
  EXPECT_DOUBLE_EQ(load.m, 5.0 / 3.0);
  EXPECT_EQ(load_on_rectangle(3.0, 7.0, 2.0, 2.0).m, 1.5);
}

TEST(InclinedLoads, OnAStripHaveItsWidthAndAnExponentOf2) {
  const InclinedLoad load = load_on_strip(3.0, 7.0, 2.0);
  EXPECT_EQ(load.H, 3.0);
  EXPECT_EQ(load.V, 7.0);
  EXPECT_EQ(load.area, 2.0);
  EXPECT_EQ(load.m, 2.0);
}

// t = 1, A c / t + V = 2 * 3 + 4 = 10, 1 - 5 / 10 = 1/2: Iq = 1/4, Ig = 1/8,
// Ic = 1/4 - (3/4) / 10 = 0.175.
TEST(InclinationFactors, WithFrictionAreTheSameInBothForms) {
  const InclinedLoad load = load_on_strip(5.0, 4.0, 2.0);
  for (const TermFactors& I : {inclination_terzaghi(deg45, 3.0, load, 10.0),
                               inclination_eurocode7(deg45, 3.0, load, 10.0)}) {
    expect_relative(I.q, 0.25);
    expect_relative(I.g, 0.125);
    expect_relative(I.c, 0.175);
  }
}

// A square: A = 4, 1 - 8 / (4 * 3 + 4) = 1/2, m = 3/2: Iq = 2^-1.5, Ig = 2^-2.5.
TEST(InclinationFactors, TakeTheExponentOfTheRectangle) {
  const InclinedLoad load = load_on_rectangle(8.0, 4.0, 2.0, 2.0);
  const TermFactors I = inclination_terzaghi(deg45, 3.0, load, 10.0);
  expect_relative(I.q, 0.5 / sqrt2);
  expect_relative(I.g, 0.25 / sqrt2);
}

// m H / (A c Nc) = 2 * 3 / (2 * 3 * 4) = 1/4.
TEST(InclinationFactors, OfTerzaghisFormWithoutFrictionFallWithTheLoad) {
  const TermFactors I = inclination_terzaghi(0.0, 3.0, load_on_strip(3.0, 9.0, 2.0), 4.0);
  EXPECT_DOUBLE_EQ(I.c, 0.75);
  EXPECT_EQ(I.q, 1.0);
  EXPECT_EQ(I.g, 0.0);
}

// A c = 6: at H = 4.5 sqrt(1 - 3/4) = 1/2 and Ic = 3/4; at H = 6 the root is 0.
TEST(InclinationFactors, OfEurocode7WithoutFrictionFallToOneHalf) {
  const auto Ic = [](double H) {
    return inclination_eurocode7(0.0, 3.0, load_on_strip(H, 9.0, 2.0), 4.0).c;
  };
  EXPECT_EQ(Ic(0.0), 1.0);
  EXPECT_DOUBLE_EQ(Ic(4.5), 0.75);
  EXPECT_EQ(Ic(6.0), 0.5);
  EXPECT_EQ(Ic(7.0), 0.5);
  const TermFactors I = inclination_eurocode7(0.0, 3.0, load_on_strip(4.5, 9.0, 2.0), 4.0);
  EXPECT_EQ(I.q, 1.0);
  EXPECT_EQ(I.g, 0.0);
}

// t = 1: (1 - 0.5)² = 0.25, Bc = 0.25 - 0.75 / 10.
TEST(BaseFactors, WithFriction) {
  const TermFactors b = base_factors(deg45, 0.5, 10.0);
  expect_relative(b.q, 0.25);
  expect_relative(b.g, 0.25);
  expect_relative(b.c, 0.175);
}

TEST(BaseFactors, WithoutFrictionLowerTheCohesionAlone) {
  const TermFactors b = base_factors(0.0, 0.5, two_plus_pi);
  EXPECT_DOUBLE_EQ(b.c, 1.0 - 1.0 / two_plus_pi);
  EXPECT_EQ(b.q, 1.0);
  EXPECT_EQ(b.g, 1.0);
}

// B / L = 1/2: Sc = 1 + (5 / 10) / 2, Sq = 1 + 1/2, Sg = 1 - 0.4 / 2.
TEST(ShapeFactors, OfTerzaghisForm) {
  const TermFactors s = shape_terzaghi(deg45, 1000.0, 2000.0, {.c = 10.0, .q = 5.0, .g = 7.0});
  EXPECT_DOUBLE_EQ(s.c, 1.25);
  expect_relative(s.q, 1.5);
  EXPECT_DOUBLE_EQ(s.g, 0.8);
}

// Without friction Nq = 1 and Sc = 1 + (B / L) / Nc.
TEST(ShapeFactors, OfTerzaghisFormWithoutFriction) {
  const TermFactors s = shape_terzaghi(0.0, 1000.0, 2000.0, bearing_terzaghi(0.0));
  EXPECT_DOUBLE_EQ(s.c, 1.0 + 0.5 / two_plus_pi);
  EXPECT_EQ(s.q, 1.0);
  EXPECT_DOUBLE_EQ(s.g, 0.8);
}

// sin = 1/2: Sq = 1 + 1/4, Sc = (5 * 1.25 - 1) / (5 - 1) = 1.3125, Sg = 1 - 0.15.
TEST(ShapeFactors, OfEurocode7) {
  const TermFactors s = shape_eurocode7(deg30, 1000.0, 2000.0, 5.0);
  expect_relative(s.q, 1.25);
  expect_relative(s.c, 1.3125);
  EXPECT_DOUBLE_EQ(s.g, 0.85);
}

TEST(ShapeFactors, OfEurocode7WithoutFriction) {
  const TermFactors s = shape_eurocode7(0.0, 1000.0, 2000.0, 1.0);
  EXPECT_DOUBLE_EQ(s.c, 1.1);
  EXPECT_EQ(s.q, 1.0);
  EXPECT_DOUBLE_EQ(s.g, 0.85);
}

// At 45 degrees 2 t (1 - sin)² = 2 (1 - 1/sqrt(2))² = 3 - 2 sqrt(2).
constexpr double depth_45 = 3.0 - 2.0 * sqrt2;

TEST(DepthFactors, OfAShallowBaseGrowWithItsDepth) {
  const TermFactors d = depth_factors(deg45, 500.0, 1000.0, 10.0);
  expect_relative(d.q, 1.0 + 0.5 * depth_45);
  expect_relative(d.c, 1.0 + 0.55 * depth_45);  // Dq - (1 - Dq) / 10
  EXPECT_EQ(d.g, 1.0);
}

TEST(DepthFactors, OfABaseAsDeepAsWideTakeTheRatioAndNotTheArc) {
  expect_relative(depth_factors(deg45, 1000.0, 1000.0, 10.0).q, 1.0 + depth_45);
  EXPECT_DOUBLE_EQ(depth_factors(0.0, 1000.0, 1000.0, two_plus_pi).c, 1.4);
}

// D / B = sqrt(3): an arc of pi / 3.
TEST(DepthFactors, OfADeepBaseTakeTheArc) {
  const TermFactors d = depth_factors(deg45, 1000.0 * sqrt3, 1000.0, 10.0);
  expect_relative(d.q, 1.0 + depth_45 * pi / 3.0);
  expect_relative(depth_factors(0.0, 1000.0 * sqrt3, 1000.0, 10.0).c, 1.0 + 0.4 * pi / 3.0);
}

TEST(DepthFactors, WithoutFrictionRaiseTheCohesionAlone) {
  const TermFactors d = depth_factors(0.0, 500.0, 1000.0, two_plus_pi);
  EXPECT_DOUBLE_EQ(d.c, 1.2);
  EXPECT_EQ(d.q, 1.0);
  EXPECT_EQ(d.g, 1.0);
}

// Slope 30 degrees: (1 - 1/sqrt(3))² = 4/3 - 2/sqrt(3), by cos = sqrt(3)/2 for the overburden.
TEST(GroundFactors, WithFriction) {
  const double g = 4.0 / 3.0 - 2.0 / sqrt3;
  const double q = g * sqrt3 / 2.0;
  const TermFactors factors = ground_factors(deg45, deg30, 10.0);
  expect_relative(factors.g, g);
  expect_relative(factors.q, q);
  expect_relative(factors.c, q - (1.0 - q) / 10.0);
}

TEST(GroundFactors, WithoutFrictionTakeTheSlopeItselfForTheCohesion) {
  const TermFactors factors = ground_factors(0.0, 0.25, two_plus_pi);
  EXPECT_DOUBLE_EQ(factors.c, 1.0 - 0.5 / two_plus_pi);
}

// phi = 0: exp(3.3 - 0.45 * 2/3) / 2 = exp(3) / 2. phi = 30 degrees: the exponent by sqrt(3).
TEST(RigidityIndices, CriticalOne) {
  expect_relative(critical_rigidity_index(0.0, 2000.0, 3000.0), 10.0427684615938);
  expect_relative(critical_rigidity_index(deg30, 2000.0, 3000.0), 90.2880614789171);
}

// t = 1: 12 / (0.01 + 0.05) = 200.
TEST(RigidityIndices, ActualOne) {
  expect_relative(rigidity_index(deg45, 0.01, 12.0, 0.05), 200.0);
  EXPECT_EQ(rigidity_index(0.0, 0.5, 12.0, 0.05), 24.0);
}

// sin / (1 + sin) = sqrt(2) - 1 and log10(2 * 5) = 1: the exponent is
// 0.6 / 2 - 4.4 + 3.07 (sqrt(2) - 1) = -2.82836436351460.
TEST(PunchingFactors, WithFriction) {
  const TermFactors psi = punching_factors(deg45, 1000.0, 2000.0, 5.0, 20.0);
  expect_relative(psi.q, 0.0591094562278150);
  EXPECT_EQ(psi.g, psi.q);
}

// The term of the cohesion refers to Nq = 20, not to Nc: q - (1 - q) / 20.
TEST(PunchingFactors, TakeTheOneOfTheCohesionFromNq) {
  const TermFactors psi = punching_factors(deg45, 1000.0, 2000.0, 5.0, 20.0);
  expect_relative(psi.c, 0.0591094562278150 - 0.9408905437721850 / 20.0);
}

// 0.32 + 0.12 / 2 + 0.6 log10(10).
TEST(PunchingFactors, WithoutFriction) {
  const TermFactors psi = punching_factors(0.0, 1000.0, 2000.0, 10.0, 1.0);
  EXPECT_DOUBLE_EQ(psi.c, 0.98);
  EXPECT_EQ(psi.q, 1.0);
  EXPECT_EQ(psi.g, 1.0);
}

// t = 1: (1 - 1/2)^0.35 = 0.784584097896751; 1 - 0.32 / 2.
TEST(InertiaFactors, FallWithTheAcceleration) {
  const TermFactors z = inertia_factors(deg45, 0.5);
  expect_relative(z.q, 0.784584097896751);
  EXPECT_EQ(z.g, z.q);
  EXPECT_DOUBLE_EQ(z.c, 0.84);
}

TEST(InertiaFactors, AreOneWhereTheInertiaAloneIsTooMuch) {
  const double t = std::tan(deg30);
  for (const double k : {t, 0.6, 100.0}) {
    const TermFactors z = inertia_factors(deg30, k);
    EXPECT_EQ(z.q, 1.0) << k;
    EXPECT_EQ(z.g, 1.0) << k;
    EXPECT_DOUBLE_EQ(z.c, 1.0 - 0.32 * k);
  }
  EXPECT_EQ(inertia_factors(0.0, 0.0).q, 1.0);
}

}  // namespace
