// SPDX-License-Identifier: Apache-2.0
#include "fem/beam_assembly.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>

namespace ostrel::fem {
namespace {

using ::testing::ElementsAre;

// E A / L = 10 * 20 / 2 = 100; E J = 60, so 12 E J / L³ = 90, 6 E J / L² = 90, 4 E J / L = 120,
// 2 E J / L = 60.
constexpr BeamElement beam{
    .elastic_modulus = 10.0, .area = 20.0, .second_moment = 6.0, .length = 2.0};

TEST(ElementDofs, AreSixInARowFromThreeTimesTheElement) {
  EXPECT_THAT(element_dofs(0), ElementsAre(0, 1, 2, 3, 4, 5));
  EXPECT_THAT(element_dofs(7), ElementsAre(21, 22, 23, 24, 25, 26));
}

// Of the 12 dofs of three elements the first meets those up to 5, the last those from 6 on.
TEST(BandRows, ReachFiveDofsToEitherSide) {
  constexpr std::size_t size = 12;
  for (const auto& [column, first, end] :
       {std::array<std::size_t, 3>{0, 0, 6}, {4, 0, 10}, {5, 0, 11}, {6, 1, 12}, {11, 6, 12}}) {
    EXPECT_EQ(band_rows(column, size).first, first) << column;
    EXPECT_EQ(band_rows(column, size).end, end) << column;
  }
  EXPECT_EQ(band_rows(0, 3).end, 3U);
}

TEST(ElementStiffness, HasEachEntryInItsPlace) {
  const double expected[6][6] = {
      {100, 0, 0, -100, 0, 0}, {0, 90, 90, 0, -90, 90},   {0, 90, 120, 0, -90, 60},
      {-100, 0, 0, 100, 0, 0}, {0, -90, -90, 0, 90, -90}, {0, 90, 60, 0, -90, 120},
  };
  const arma::Mat<double> k = element_stiffness(beam);
  ASSERT_EQ(k.n_rows, 6U);
  ASSERT_EQ(k.n_cols, 6U);
  for (arma::uword i = 0; i < 6; ++i) {
    for (arma::uword j = 0; j < 6; ++j)
      EXPECT_DOUBLE_EQ(k(i, j), expected[i][j]) << i << ", " << j;
  }
}

TEST(ElementStiffness, GivesNoForceForAMotionAsARigidBody) {
  const arma::Mat<double> k = element_stiffness(beam);
  // Along; across; a turn by 1 about the start, which moves the end across by L = 2.
  for (const arma::Col<double>& motion :
       {arma::Col<double>{1, 0, 0, 1, 0, 0}, arma::Col<double>{0, 1, 0, 0, 1, 0},
        arma::Col<double>{0, 0, 1, 0, 2, 1}}) {
    const arma::Col<double> forces = k * motion;
    for (const double force : forces)
      EXPECT_NEAR(force, 0.0, 1e-12);
  }
}

// A cantilever held at its start with P = 45 across its end: P L³ / (3 E J) = 2 and
// P L² / (2 E J) = 1.5 at the end; the start takes -P and -P L = -90.
TEST(ElementStiffness, AgreesWithTheDeflectionOfACantilever) {
  const arma::Col<double> forces =
      element_stiffness(beam) * arma::Col<double>{0, 0, 0, 0, 2.0, 1.5};
  EXPECT_NEAR(forces[1], -45.0, 1e-12);
  EXPECT_NEAR(forces[2], -90.0, 1e-12);
  EXPECT_NEAR(forces[4], 45.0, 1e-12);
  EXPECT_NEAR(forces[5], 0.0, 1e-12);
}

TEST(ElementStiffness, IsNotFiniteForAnElementWithoutLength) {
  BeamElement none = beam;
  none.length = 0.0;
  const arma::Mat<double> k = element_stiffness(none);
  EXPECT_TRUE(std::isinf(k(0, 0)));
  EXPECT_TRUE(std::isinf(k(1, 2)));
}

// q L / 2 = 3 * 4 / 2 = 6 and q L² / 12 = 3 * 16 / 12 = 4.
TEST(EquivalentNodalLoads, OfAUniformLoadAcrossAreThoseOfAFixedBeam) {
  const arma::Col<double> q = equivalent_nodal_loads(PressAtEnds(3.0, 3.0), 4.0);
  const double expected[6] = {0, 6, 4, 0, 6, -4};
  for (arma::uword i = 0; i < 6; ++i)
    EXPECT_NEAR(q[i], expected[i], 1e-14) << i;
}

// A triangle from 0 to q on a fixed beam has 3 q L / 20 and q L² / 30 at its thin end and
// 7 q L / 20 and q L² / 20 at its thick end: with q = 60 and L = 2 these are 18, 8, 42, 12.
TEST(EquivalentNodalLoads, OfATriangleAreThoseOfAFixedBeam) {
  const arma::Col<double> thick_below = equivalent_nodal_loads(PressAtEnds(0.0, 60.0), 2.0);
  const double expected_below[6] = {0, 18, 8, 0, 42, -12};
  const arma::Col<double> thick_above = equivalent_nodal_loads(PressAtEnds(60.0, 0.0), 2.0);
  const double expected_above[6] = {0, 42, 12, 0, 18, -8};
  for (arma::uword i = 0; i < 6; ++i) {
    EXPECT_NEAR(thick_below[i], expected_below[i], 1e-13) << i;
    EXPECT_NEAR(thick_above[i], expected_above[i], 1e-13) << i;
  }
}

// a L / 2 = 5 * 4 / 2 = 10.
TEST(EquivalentNodalLoads, OfAUniformLoadAlongAreItsHalvesWithoutAMoment) {
  PressAtEnds load;
  load.aStart = 5.0;
  load.aEnd = 5.0;
  const arma::Col<double> q = equivalent_nodal_loads(load, 4.0);
  const double expected[6] = {10, 0, 0, 10, 0, 0};
  for (arma::uword i = 0; i < 6; ++i)
    EXPECT_NEAR(q[i], expected[i], 1e-14) << i;
}

// 60 at the start and 0 at the end over 2 mm is 60 N: 7 * 60 * 2 / 20 = 42 and 3 * 60 * 2 / 20 =
// 18, where a bar would take 40 and 20.
TEST(EquivalentNodalLoads, ShareAVaryingLoadAlongByTheRuleOfTheLoadAcross) {
  PressAtEnds load;
  load.aStart = 60.0;
  const arma::Col<double> q = equivalent_nodal_loads(load, 2.0);
  EXPECT_DOUBLE_EQ(q[0], 42.0);
  EXPECT_DOUBLE_EQ(q[3], 18.0);
}

TEST(AddAtDofs, AddsToWhatIsThere) {
  arma::Mat<double> sum(9, 9, arma::fill::ones);
  add_at_dofs(element_stiffness(beam), element_dofs(1), sum);
  EXPECT_DOUBLE_EQ(sum(3, 3), 101.0);
  EXPECT_DOUBLE_EQ(sum(3, 6), -99.0);
  EXPECT_DOUBLE_EQ(sum(8, 5), 61.0);
  EXPECT_DOUBLE_EQ(sum(2, 3), 1.0);
  EXPECT_DOUBLE_EQ(sum(0, 0), 1.0);
}

}  // namespace
}  // namespace ostrel::fem
