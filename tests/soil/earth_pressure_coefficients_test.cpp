// SPDX-License-Identifier: Apache-2.0
#include "soil/earth_pressure_coefficients.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace ostrel::soil {
namespace {

using std::numbers::pi;
using std::numbers::sqrt2;
using std::numbers::sqrt3;

constexpr bool active = true;
constexpr bool passive = false;
constexpr double half_root = sqrt2 / 2.0;  // sqrt(1/2)

constexpr double deg(double angle) {
  return angle * pi / 180.0;
}

constexpr double square(double x) {
  return x * x;
}

void expect_same(double value, double expected) {
  EXPECT_NEAR(value, expected, 1e-13 * std::abs(expected));
}

double coulomb_of(bool side, const WallAngles& angles) {
  return coulomb(side, angles, no_friction);
}

// --- At rest ---

TEST(AtRest, TakesFrictionAndOverconsolidation) {
  expect_same(at_rest(deg(30), 0.3, 1.0, 0.0, 0.0), 0.5);  // 1 - sin(30°)
  expect_same(at_rest(deg(30), 0.3, 4.0, 0.0, 0.0), 1.0);  // twice that: sqrt(4)
}

TEST(AtRest, TakesThePoissonRatioWithoutFriction) {
  expect_same(at_rest(0.0, 0.25, 4.0, 0.0, 0.0), 1.0 / 3.0);  // 0.25 / 0.75, whatever the OCR
  expect_same(at_rest(0.9e-6, 0.25, 1.0, 0.0, 0.0), 1.0 / 3.0);
  expect_same(at_rest(-0.9e-6, 0.25, 1.0, 0.0, 0.0), 1.0 / 3.0);
  // 1e-6 is friction: (1 - sin(1e-6)) sqrt(1).
  expect_same(at_rest(1e-6, 0.25, 1.0, 0.0, 0.0), 1.0 - 1e-6);
}

TEST(AtRest, GrowsWithTheSlope) {
  expect_same(at_rest(deg(30), 0.3, 1.0, 0.0, deg(30)), 0.75);  // 0.5 (1 + 0.5)
  expect_same(at_rest(0.0, 0.25, 1.0, 0.0, deg(30)), 0.5);      // 1/3 * 1.5
}

TEST(AtRest, ResolvesTheStressOnAnInclinedBack) {
  // sqrt(0.5² cos²(30°) + sin²(30°)) = sqrt(0.25 * 0.75 + 0.25)
  expect_same(at_rest(deg(30), 0.3, 1.0, deg(30), 0.0), std::sqrt(0.4375));
  // sqrt(0.75² * 0.75 + 0.25) with the slope
  expect_same(at_rest(deg(30), 0.3, 1.0, deg(30), deg(30)), std::sqrt(0.671875));
}

// --- Rankine ---

TEST(Rankine, HasTheClassicalValuesOnLevelGround) {
  expect_same(rankine(active, deg(30), 0.0), 1.0 / 3.0);
  expect_same(rankine(passive, deg(30), 0.0), 3.0);
}

TEST(Rankine, TakesTheSlope) {
  // cos(beta) = 0.9 and cos²(phi) = 0.56: r = sqrt(0.81 - 0.56) = 0.5.
  const double beta = std::acos(0.9);
  const double phi = std::acos(std::sqrt(0.56));
  expect_same(rankine(active, phi, beta), 0.9 * 0.4 / 1.4);
  expect_same(rankine(passive, phi, beta), 0.9 * 1.4 / 0.4);
  expect_same(rankine(active, phi, -beta), 0.9 * 0.4 / 1.4);
}

TEST(Rankine, HasOneValueForBothSidesWhereTheSlopeIsTheFrictionAngle) {
  expect_same(rankine(active, deg(30), deg(30)), sqrt3 / 2.0);  // r = 0 leaves cos(beta)
  expect_same(rankine(passive, deg(30), deg(30)), sqrt3 / 2.0);
}

TEST(Rankine, IsNotANumberBeyondTheFrictionAngle) {
  EXPECT_TRUE(std::isnan(rankine(active, deg(30), deg(31))));
  EXPECT_TRUE(std::isnan(rankine(passive, deg(30), deg(-31))));
}

TEST(Rankine, IsOneWithoutFriction) {
  EXPECT_EQ(rankine(active, 0.0, deg(20)), 1.0);
  EXPECT_EQ(rankine(passive, -0.9e-6, deg(20)), 1.0);
  EXPECT_LT(rankine(active, 1e-6, 0.0), 1.0);
  EXPECT_GT(rankine(passive, 1e-6, 0.0), 1.0);
}

// --- Coulomb ---

TEST(Coulomb, IsRankineOnASmoothVerticalWall) {
  expect_same(coulomb_of(active, {.phi = deg(30)}), 1.0 / 3.0);
  expect_same(coulomb_of(passive, {.phi = deg(30)}), 3.0);
}

TEST(Coulomb, TakesTheWallFriction) {
  // A² = 3/4, C = sqrt(3)/2, r² = sin(60°) sin(30°) / cos(30°) = 1/2.
  const WallAngles angles{.phi = deg(30), .delta = deg(30)};
  expect_same(coulomb_of(active, angles), sqrt3 / 2.0 / square(1.0 + half_root));
  expect_same(coulomb_of(passive, angles), sqrt3 / 2.0 / square(1.0 - half_root));
}

TEST(Coulomb, TakesTheInclinationOfTheBack) {
  // B² = 3/4, C = sqrt(3)/2, r² = (1/4) / (3/4); A = cos(0) active, cos(60°) passive.
  const WallAngles angles{.phi = deg(30), .theta = deg(30)};
  const double r = 1.0 / sqrt3;
  expect_same(coulomb_of(active, angles), 1.0 / (0.75 * sqrt3 / 2.0 * square(1.0 + r)));
  expect_same(coulomb_of(passive, angles), 0.25 / (0.75 * sqrt3 / 2.0 * square(1.0 - r)));
}

TEST(Coulomb, AddsOrSubtractsInclinationAndWallFriction) {
  const WallAngles angles{.phi = deg(30), .delta = deg(30), .theta = deg(30)};
  // Active: A = 1, C = cos(60°) = 1/2, r² = (sqrt(3)/2 * 1/2) / (sqrt(3)/2 * 1/2) = 1.
  expect_same(coulomb_of(active, angles), 1.0 / (0.75 * 0.5 * 4.0));
  // Passive: A = 1/2, C = cos(0) = 1, r² = (sqrt(3)/2 * 1/2) / (sqrt(3)/2) = 1/2.
  expect_same(coulomb_of(passive, angles), 0.25 / (0.75 * square(1.0 - half_root)));
}

TEST(Coulomb, TakesTheSlope) {
  // r² = sin(30°) sin(15°) / cos(15°) = tan(15°) / 2, tan(15°) = 2 - sqrt(3).
  const double r = std::sqrt((2.0 - sqrt3) / 2.0);
  expect_same(coulomb_of(active, {.phi = deg(30), .beta = deg(15)}), 0.75 / square(1.0 + r));
  expect_same(coulomb_of(passive, {.phi = deg(30), .beta = deg(-15)}), 0.75 / square(1.0 - r));
}

TEST(Coulomb, LeavesTheRootOutFromTheFrictionAngleOn) {
  // K = cos²(30°) for a slope of 30° and for any above.
  EXPECT_DOUBLE_EQ(coulomb_of(active, {.phi = deg(30), .beta = deg(30)}), 0.75);
  EXPECT_DOUBLE_EQ(coulomb_of(active, {.phi = deg(30), .beta = deg(45)}), 0.75);
}

TEST(Coulomb, IsOneBelowTheZeroItIsGiven) {
  const WallAngles angles{.phi = 0.05, .delta = 0.3, .theta = 0.2, .beta = 0.01};
  EXPECT_EQ(coulomb(active, angles, 0.1), 1.0);
  EXPECT_EQ(coulomb(passive, angles, 0.1), 1.0);
  EXPECT_NE(coulomb(active, angles, 0.05), 1.0);  // 0.05 is not below 0.05
  EXPECT_EQ(coulomb_of(active, {.delta = 0.3, .theta = 0.2, .beta = 0.1}), 1.0);
}

// --- Mononobe-Okabe ---

TEST(SeismicInclination, PairsKhWithOnePlusKv) {
  expect_same(seismic_inclination(0.3, 0.0), std::atan(0.3));
  expect_same(seismic_inclination(0.3, 0.5), std::atan(0.2));   // 0.3 / 1.5
  expect_same(seismic_inclination(0.3, -0.5), std::atan(0.6));  // 0.3 / 0.5
  EXPECT_EQ(seismic_inclination(0.0, 0.0), 0.0);
}

TEST(MononobeOkabe, TakesTheInclinationOfTheBodyForces) {
  // phi = 60°, psi = 30°: N = 3/4, C = cos(30°), r² = sin(30°) sin(60°) / cos(30°) = 1/2.
  const WallAngles angles{.phi = deg(60)};
  expect_same(mononobe_okabe(active, angles, deg(30)), 1.0 / square(1.0 + half_root));
  expect_same(mononobe_okabe(passive, angles, deg(30)), 1.0 / square(1.0 - half_root));
}

TEST(MononobeOkabe, TakesTheWallFriction) {
  // Active, delta = 30°: C = cos(60°) = 1/2, r² = (1/2 * 1) / (1/2) = 1:
  // (3/4) / (sqrt(3)/2 * 1/2 * 4) = sqrt(3)/4.
  expect_same(mononobe_okabe(active, {.phi = deg(60), .delta = deg(30)}, deg(30)), sqrt3 / 4.0);
  // Passive, delta = -30°: C = cos(0) = 1, r² = 1/2 * 1/2: (3/4) / (sqrt(3)/2 * 1/4) = 2 sqrt(3).
  expect_same(mononobe_okabe(passive, {.phi = deg(60), .delta = deg(-30)}, deg(30)), 2.0 * sqrt3);
}

TEST(MononobeOkabe, TakesTheInclinationOfTheBack) {
  const WallAngles angles{.phi = deg(60), .theta = deg(30)};
  // Active: N = cos²(0) = 1, C = cos(60°) = 1/2, r² = (1/2 sqrt(3)/2) / (sqrt(3)/2 * 1/2) = 1:
  // 1 / (sqrt(3)/2 * 3/4 * 1/2 * 4) = 4 / (3 sqrt(3)).
  expect_same(mononobe_okabe(active, angles, deg(30)), 4.0 / (3.0 * sqrt3));
  // Passive: N = cos²(60°) = 1/4, C = cos(0) = 1, r² = (1/2 sqrt(3)/2) / (sqrt(3)/2) = 1/2.
  expect_same(mononobe_okabe(passive, angles, deg(30)),
              0.25 / (sqrt3 / 2.0 * 0.75 * square(1.0 - half_root)));
}

TEST(MononobeOkabe, TakesTheSlope) {
  // r² = sin(15°) sin(60°) / (cos(15°) cos(30°)) = tan(15°) = 2 - sqrt(3); N and cos(psi) C = 3/4.
  const double r = std::sqrt(2.0 - sqrt3);
  expect_same(mononobe_okabe(active, {.phi = deg(60), .beta = deg(15)}, deg(30)),
              1.0 / square(1.0 + r));
  expect_same(mononobe_okabe(passive, {.phi = deg(60), .beta = deg(-15)}, deg(30)),
              1.0 / square(1.0 - r));
}

TEST(MononobeOkabe, LeavesTheRootOutWhereTheBodyForcesReachTheFriction) {
  // phi - psi = beta = 0.5 exactly: N = cos²(0.5) and C cos(psi) = cos²(0.5).
  EXPECT_DOUBLE_EQ(mononobe_okabe(active, {.phi = 1.0, .beta = 0.5}, 0.5), 1.0);
  EXPECT_DOUBLE_EQ(mononobe_okabe(active, {.phi = 1.0, .beta = 0.75}, 0.5), 1.0);
  // theta = 0.25, delta = 0.125: N = cos²(0.25), C = cos(0.125 + 0.25 + 0.5), cos(psi) = cos(0.5).
  expect_same(
      mononobe_okabe(active, {.phi = 1.0, .delta = 0.125, .theta = 0.25, .beta = 0.75}, 0.5),
      1.0 / (std::cos(0.875) * std::cos(0.5)));
}

TEST(MononobeOkabe, IsCoulombWithoutAnEarthquake) {
  for (const double delta : {0.0, 10.0, 20.0}) {
    for (const double theta : {-10.0, 0.0, 15.0}) {
      for (const double beta : {-10.0, 0.0, 20.0, 35.0}) {
        const WallAngles angles{deg(32), deg(delta), deg(theta), deg(beta)};
        expect_same(mononobe_okabe(active, angles, 0.0), coulomb_of(active, angles));
        expect_same(mononobe_okabe(passive, angles, 0.0), coulomb_of(passive, angles));
      }
    }
  }
}

TEST(MononobeOkabe, IsOneWithoutFriction) {
  EXPECT_EQ(mononobe_okabe(active, {.delta = 0.3, .theta = 0.2, .beta = 0.1}, 0.2), 1.0);
  EXPECT_EQ(mononobe_okabe(passive, {.phi = -0.9e-6}, 0.2), 1.0);
  EXPECT_NE(mononobe_okabe(active, {.phi = 1e-6}, 0.0), 1.0);
}

}  // namespace
}  // namespace ostrel::soil
