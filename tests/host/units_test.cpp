// SPDX-License-Identifier: Apache-2.0
#include "units.h"

#include <gtest/gtest.h>

#include <numbers>

namespace ostrel::host {
namespace {

TEST(Units, TurnDecimalNumbersIntoTheNearestDoubles) {
  EXPECT_EQ(n_mm3_of_kn_m3(18.0), 18e-6);
  EXPECT_EQ(n_mm2_of_kpa(0.3), 0.3e-3);
  EXPECT_EQ(n_mm2_of_gpa(31.0), 31000.0);
  EXPECT_EQ(n_mm2_of_mpa(35.0), 35.0);
  EXPECT_EQ(n_of_kn(250.0), 250e3);
  EXPECT_EQ(nmm_of_knm(1.6), 1.6e6);
  EXPECT_EQ(mm_s_of_m_s(0.5), 500.0);
  EXPECT_EQ(rad_of_mrad(2.0), 0.002);
}

TEST(Units, TurnDegreesIntoRadians) {
  EXPECT_DOUBLE_EQ(rad_of_deg(180.0), std::numbers::pi);
}

// A kN/m is a N/mm.
TEST(Units, KeepForcesPerLength) {
  EXPECT_EQ(n_mm_of_kn_m(35.0), 35.0);
  EXPECT_EQ(kn_m_of_n_mm(35.0), 35.0);
}

TEST(Units, GoBackToWhatTheyCameFrom) {
  EXPECT_DOUBLE_EQ(m_of_mm(mm_of_m(2.2)), 2.2);
  EXPECT_DOUBLE_EQ(kn_of_n(n_of_kn(2.2)), 2.2);
  EXPECT_DOUBLE_EQ(knm_of_nmm(nmm_of_knm(2.2)), 2.2);
  EXPECT_DOUBLE_EQ(kpa_of_n_mm2(n_mm2_of_kpa(2.2)), 2.2);
  EXPECT_DOUBLE_EQ(kn_m3_of_n_mm3(n_mm3_of_kn_m3(2.2)), 2.2);
  EXPECT_DOUBLE_EQ(mrad_of_rad(rad_of_mrad(2.2)), 2.2);
}

// 9.4 m = 9400 mm and 2.2 m = 2200 mm are on the grid; 1/3 m = 333.333... mm is not, the nearest
// point of the grid is 341333 / 1024 mm.
TEST(Units, RoundLevelsToTheGridOnWhichSumsAreExact) {
  EXPECT_EQ(level_mm_of_m(9.4), 9400.0);
  EXPECT_EQ(level_mm_of_m(1.0 / 3.0), 341333.0 / 1024.0);
  EXPECT_EQ(level_mm_of_m(-2.2), -2200.0);
}

TEST(Units, MakeSumsOfLevelsExact) {
  const double a = level_mm_of_m(2.0 / 7.0);
  const double b = level_mm_of_m(9.4 / 3.0);
  EXPECT_EQ((b - a) + a, b);
}

}  // namespace
}  // namespace ostrel::host
