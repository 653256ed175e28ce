// SPDX-License-Identifier: Apache-2.0
#include "outline_profile.h"

#include "ferrule/sections_testing.h"
#include "support/relative.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace {

using Ferrule::Point;
using Ferrule::internal::Direction;
using Ferrule::internal::OutlineProfile;
using Ferrule::testing::rectangle;
using Ferrule::testing::regular_polygon;
using ostrel::testing::expect_relative;

OutlineProfile profile_of(const std::vector<Point>& outline, Direction direction = {},
                          double orientation = 1.0) {
  OutlineProfile profile;
  profile.build(outline, orientation, direction);
  return profile;
}

const double half_root = std::numbers::sqrt2 / 2.0;

// Width 300 from y = -250 on: to the depth 100 the area is 30 000, and ∫ z^p is 300 * 100^(p+1) /
// (p+1).
TEST(OutlineProfile, IntegratesARectangle) {
  const OutlineProfile profile = profile_of(rectangle(300, 500));
  EXPECT_DOUBLE_EQ(profile.start(), -250);
  EXPECT_DOUBLE_EQ(profile.height(), 500);
  const auto moments = profile.area_moments(100);
  EXPECT_DOUBLE_EQ(moments[0], 30'000);
  EXPECT_DOUBLE_EQ(moments[1], 1.5e6);
  EXPECT_DOUBLE_EQ(moments[2], 1e8);
  EXPECT_DOUBLE_EQ(moments[3], 7.5e9);
  for (const double across : profile.across_moments(500)) {
    EXPECT_NEAR(across, 0.0, 1e-6);
  }
}

// Seen from the other side the first fibre is y = 250. The triangle (0,0) (400,0) (0,300) then has
// the width 400 z / 300, and ∫ z^p dA = 4/3 * 300^(p+2) / (p+2).
TEST(OutlineProfile, CountsDepthsAgainstTheDirection) {
  const OutlineProfile profile =
      profile_of({{0, 0}, {400, 0}, {0, 300}}, {.cosine = -1.0, .sine = 0.0});
  EXPECT_DOUBLE_EQ(profile.start(), -300);
  const auto moments = profile.area_moments(300);
  expect_relative(moments[0], 60'000);
  expect_relative(moments[1], 4.0 / 9.0 * 2.7e7);
  expect_relative(moments[2], 1.0 / 3.0 * 8.1e9);
  expect_relative(moments[3], 4.0 / 15.0 * 2.43e12);
}

// Against y, u = -x. The chord at the depth z runs from u = -4 z / 3 to 0, its first moment is
// -8 z² / 9: ∫ u z^p dA = -8/9 * 300^(p+3) / (p+3).
TEST(OutlineProfile, TakesFirstMomentsAcrossTheDirection) {
  const OutlineProfile profile =
      profile_of({{0, 0}, {400, 0}, {0, 300}}, {.cosine = -1.0, .sine = 0.0});
  const auto across = profile.across_moments(300);
  expect_relative(across[0], -8.0 / 27.0 * 2.7e7);
  expect_relative(across[1], -8.0 / 36.0 * 8.1e9);
  expect_relative(across[2], -8.0 / 45.0 * 2.43e12);
}

// A square of side 200 along its diagonal: width 2 z down to the middle, so 141.42...² = 20 000 is
// half its area, and ∫ z dA to there is 2/3 * 141.42³.
TEST(OutlineProfile, SeesASquareAlongItsDiagonal) {
  const OutlineProfile profile =
      profile_of(rectangle(200, 200), {.cosine = half_root, .sine = half_root});
  const double middle = 100 * std::numbers::sqrt2;
  expect_relative(profile.height(), 2 * middle);
  expect_relative(profile.area_moments(middle)[0], 20'000);
  expect_relative(profile.area_moments(middle)[1], 2.0 / 3.0 * std::pow(middle, 3));
  expect_relative(profile.area_moments(2 * middle)[0], 40'000);
}

// An L of two arms 100 wide, 300 long: width 300 below y = 100, then 100. ∫ u dA is that of x:
// 300 * 100 * 150 + 100 * 200 * 50 = 5.5e6.
TEST(OutlineProfile, IntegratesAnOutlineThatIsNotConvex) {
  const std::vector<Point> outline{{0, 0}, {300, 0}, {300, 100}, {100, 100}, {100, 300}, {0, 300}};
  const OutlineProfile profile = profile_of(outline);
  expect_relative(profile.area_moments(150)[0], 35'000);
  expect_relative(profile.area_moments(300)[0], 50'000);
  expect_relative(profile.across_moments(300)[0], 5.5e6);
}

// Two teeth 100 wide on a foot 300 x 100: width 300, then twice 100 side by side.
TEST(OutlineProfile, AddsTheWidthsOfTeeth) {
  const std::vector<Point> outline{{0, 0},     {300, 0},   {300, 200}, {200, 200},
                                   {200, 100}, {100, 100}, {100, 200}, {0, 200}};
  const OutlineProfile profile = profile_of(outline);
  expect_relative(profile.area_moments(200)[0] - profile.area_moments(100)[0], 20'000);
  expect_relative(profile.across_moments(200)[0], 300 * 100 * 150 + 2e4 * 150);
}

TEST(OutlineProfile, TakesAClockwiseOutlineByItsOrientation) {
  std::vector<Point> outline = rectangle(300, 500);
  std::reverse(outline.begin(), outline.end());
  EXPECT_DOUBLE_EQ(profile_of(outline, {}, -1.0).area_moments(500)[0], 150'000);
}

TEST(OutlineProfile, IgnoresARepeatedVertex) {
  std::vector<Point> outline = rectangle(300, 500);
  outline.push_back(outline.front());
  EXPECT_DOUBLE_EQ(profile_of(outline).area_moments(500)[0], 150'000);
}

// A regular polygon of n vertices has the area n / 2 R² sin(2 pi / n) in whatever direction.
TEST(OutlineProfile, HasTheSameAreaAlongEveryDirection) {
  const double area = 20 * 400.0 * 400.0 * std::sin(std::numbers::pi / 20);
  for (int i = 0; i < 50; ++i) {
    const Direction direction{.cosine = std::cos(0.13 * i), .sine = std::sin(0.13 * i)};
    const OutlineProfile profile = profile_of(regular_polygon(40, 800), direction);
    expect_relative(profile.area_moments(profile.height())[0], area);
  }
}

// Two vertices differ by 1e-9 mm in level: the slab between them is all but empty, and the width
// jumps by 100 within it.
TEST(OutlineProfile, StandsANearlyLevelEdge) {
  const std::vector<Point> outline{{0, 0}, {200, 0}, {200, 100 + 1e-9}, {100, 100}, {0, 200}};
  const double area = 200.0 * 100.0 + 100.0 * 100.0 / 2.0;
  EXPECT_NEAR(profile_of(outline).area_moments(200)[0], area, 1e-6);
}

}  // namespace
