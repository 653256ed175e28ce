// SPDX-License-Identifier: Apache-2.0
#include "slope_grid.h"

#include "host_testing.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace ostrel::host {
namespace {

using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::HasSubstr;
using ::testing::SizeIs;
using Json = nlohmann::json;

Json box(const Json& circles) {
  Json box = {{"x_m", {-2.0, 2.0}}, {"y_m", {3.0, 5.0}}, {"spacing_m", 2.0}};
  box.update(circles);
  return {{"stripe_width_m", 1.0}, {"radius_step_m", 0.5}, {"centre_box", box}};
}

SlopeInput slope_of(const Json& slope) {
  return project_of(with("/slope", slope)).slope.value_or(SlopeInput{});
}

TEST(SlopeGrid, GoesAlongXFirstFromTheLowerLeft) {
  const SlopeInput slope = slope_of(box({{"radii_m", {14.0, 20.0}}}));
  std::vector<std::array<double, 2>> centres;
  for (const SlopeCentreInput& centre : slope.centres)
    centres.push_back({centre.x_m, centre.y_m});
  using P = std::array<double, 2>;
  EXPECT_THAT(centres, ElementsAre(P{-2, 3}, P{0, 3}, P{2, 3}, P{-2, 5}, P{0, 5}, P{2, 5}));
}

// Around (2, 5).
TEST(SlopeGrid, HasCirclesBetweenTwoTangentLevels) {
  const SlopeCentreInput last = slope_of(box({{"tangent_levels_m", {-14.0, -10.0}}})).centres.at(5);
  EXPECT_EQ(last.least_radius_m, 15.0);    // 5 + 10
  EXPECT_EQ(last.largest_radius_m, 19.0);  // 5 + 14
}

TEST(SlopeGrid, HasCirclesBetweenTwoRadii) {
  const SlopeCentreInput last = slope_of(box({{"radii_m", {14.0, 20.0}}})).centres.at(5);
  EXPECT_EQ(last.least_radius_m, 14.0);
  EXPECT_EQ(last.largest_radius_m, 20.0);
}

// The foot stands at (0, -10): from (2, 5) to 1 m and to 3 m below it.
TEST(SlopeGrid, HasCirclesBetweenTwoDepthsBelowTheFoot) {
  const SlopeCentreInput last = slope_of(box({{"depths_below_foot_m", {1.0, 3.0}}})).centres.at(5);
  EXPECT_DOUBLE_EQ(last.least_radius_m, std::sqrt(4.0 + 16.0 * 16.0));
  EXPECT_DOUBLE_EQ(last.largest_radius_m, std::sqrt(4.0 + 18.0 * 18.0));
}

TEST(SlopeGrid, RefusesTooManyCentresAndCentresBelowTheirCircles) {
  Json many = box({{"radii_m", {14.0, 20.0}}});
  many["centre_box"]["spacing_m"] = 0.001;  // 4001 by 2001
  EXPECT_THAT(read(with("/slope", many)).errors,
              ElementsAre(Field(&Problem::path, "slope.centre_box")));
  EXPECT_THAT(read(with("/slope", box({{"tangent_levels_m", {-14.0, 3.0}}}))).errors,
              ElementsAre(Field(&Problem::path, "slope.centre_box")));
}

TEST(SlopeGrid, WantsOneOfTheThreeWaysToNameCircles) {
  EXPECT_THAT(read(with("/slope", box(Json::object()))).errors,
              ElementsAre(Field(&Problem::path, "slope.centre_box.tangent_levels_m")));
}

TEST(SlopeGrid, IsLeftOutByFalseAndChosenOtherwise) {
  EXPECT_FALSE(project_of(with("/slope", false)).slope.has_value());
  for (const Json& slope : {Json(true), Json(nullptr), Json::object()}) {
    EXPECT_TRUE(project_of(with("/slope", slope)).slope.has_value()) << slope;
  }
  const ReadingOutcome outcome = read(with("/slope", 3));
  ASSERT_THAT(outcome.errors, SizeIs(1));
  EXPECT_THAT(outcome.errors[0].allowed, HasSubstr("false"));
}

// Piles of 10 m: centres from -8 m to 4 m and from 0.2 m to 12.2 m, every 1.5 m, circles from the foot
// to 5 m below it. Nothing of the ground (40 m behind, 30 m in front, down to -30 m) is in their way.
TEST(DefaultSlopeGrid, GoesThroughTheFootAndBelowIt) {
  const SlopeInput slope = *project_of(sound_project()).slope;
  EXPECT_EQ(slope.formulation, 0);
  EXPECT_EQ(slope.stripe_width_m, 0.5);
  EXPECT_EQ(slope.radius_step_m, 1.0);
  ASSERT_THAT(slope.centres, SizeIs(81));
  EXPECT_DOUBLE_EQ(slope.centres.front().x_m, -8.0);
  EXPECT_DOUBLE_EQ(slope.centres.front().y_m, 0.2);
  EXPECT_DOUBLE_EQ(slope.centres.back().x_m, 4.0);
  EXPECT_DOUBLE_EQ(slope.centres.back().y_m, 12.2);
  EXPECT_DOUBLE_EQ(slope.centres.front().least_radius_m, std::sqrt(64.0 + 10.2 * 10.2));
  EXPECT_DOUBLE_EQ(slope.centres.front().largest_radius_m, std::sqrt(64.0 + 15.2 * 15.2));
}

// In front 11 m of ground at -4 m, up to (-11, -4). From (-8, 0.2) there are sqrt(9 + 17.64) = 5.16 m,
// less than the 12.96 m to the foot: no circles. From (4, 0.2) there are sqrt(225 + 17.64) = 15.58 m,
// more than sqrt(16 + 104.04) = 10.96 m to the foot and less than sqrt(16 + 231.04) = 15.72 m to 5 m
// below it.
TEST(DefaultSlopeGrid, StaysWithinTheGround) {
  const Project project = project_of(with("/ground/excavated_width_m", 11));
  const GroundBox ground = *ground_box(project.ground);
  EXPECT_EQ(ground.left, -11.0);
  EXPECT_EQ(ground.right, 40.0);
  EXPECT_EQ(ground.bottom, -30.0);
  EXPECT_EQ(ground.top, 0.0);
  const std::vector<SlopeCentreInput> centres = project.slope->centres;
  ASSERT_FALSE(centres.empty());
  EXPECT_LT(centres.size(), 81u);
  for (const SlopeCentreInput& centre : centres) {
    EXPECT_LE(centre.largest_radius_m, reach_within(centre, ground, 4.0).radius_m);
    EXPECT_NE(std::abs(centre.x_m + 8.0) + std::abs(centre.y_m - 0.2), 0.0);
    const bool lower_right = std::abs(centre.x_m - 4.0) + std::abs(centre.y_m - 0.2) < 1e-9;
    if (lower_right) {
      EXPECT_NEAR(centre.largest_radius_m, std::sqrt(242.64), 1e-9);
    }
  }
}

// The ground behind rises from the head by 0.3, to `peak`.
Json rising_ground(double peak) {
  Json project = sound_project();
  const double far = peak / 0.3;
  project["ground"] = {
      {"layers",
       {{{"soil", "sand"},
         {"polygons_m",
          {{{-30, -30}, {100, -30}, {100, peak}, {far, peak}, {0, 0}, {0, -4}, {-30, -4}}}}}}}};
  return project;
}

// From 0.02 of 10 m above the ground at the wall, 0 m, to 1.22 above the highest, +3 m, every 1.5 m:
// up to 15.2 m. Ground higher than 1.22 of the length counts as high as that: up to 24.4 m.
TEST(DefaultSlopeGrid, StandsBetweenTheGroundAtTheWallAndTheHighest) {
  const CentreBox low = default_box(project_of(rising_ground(3)));
  EXPECT_DOUBLE_EQ(low.y_m[0], 0.2);
  EXPECT_DOUBLE_EQ(low.y_m[1], 15.2);
  EXPECT_DOUBLE_EQ(default_box(project_of(rising_ground(20))).y_m[1], 24.4);
}

// Around (-5, 1.7) the ground is above the centre from 1.7 / 0.3 = 5.67 m on, 10.67 m from the centre:
// less than the hypot(5, 11.7) = 12.72 m to the foot. Above (x, 3.2) there is no ground, the centre
// keeps all its circles.
TEST(DefaultSlopeGrid, LeavesOutCirclesThatMeetTheGroundAboveTheirCentre) {
  const std::vector<SlopeCentreInput> centres = project_of(rising_ground(3)).slope->centres;
  std::size_t above = 0;
  for (const SlopeCentreInput& centre : centres) {
    EXPECT_FALSE(std::abs(centre.x_m + 5.0) + std::abs(centre.y_m - 1.7) < 1e-9);
    if (centre.y_m < 3.0) {
      EXPECT_LE(centre.x_m + centre.largest_radius_m, centre.y_m / 0.3 + 1e-9);
    }
    if (std::abs(centre.y_m - 3.2) < 1e-9) ++above;
  }
  EXPECT_EQ(above, 9u);
}

TEST(GroundBehind, RisesAboveALevelAtItsSurface) {
  const GroundInput rising = project_of(rising_ground(3)).ground;
  EXPECT_EQ(rise_behind(rising, -1.0), 0.0);
  EXPECT_DOUBLE_EQ(rise_behind(rising, 1.5), 5.0);
  EXPECT_EQ(rise_behind(rising, 3.0), std::numeric_limits<double>::infinity());
  const GroundInput level = project_of(sound_project()).ground;
  EXPECT_EQ(rise_behind(level, -0.1), 0.0);
  EXPECT_EQ(rise_behind(level, 0.0), std::numeric_limits<double>::infinity());
}

// From (1, 2) it is hypot(31, 6) = 31.58 m to the end of the excavation at -4 m, hypot(39, 2) = 39.05 m
// to that of the ground behind and 32 m down; from (1, 12) hypot(31, 16) = 34.89 m to the first.
TEST(GroundReach, EndsAtTheNearestEdge) {
  const GroundBox ground{.left = -30, .right = 40, .bottom = -30, .top = 0};
  const GroundReach front = reach_within({.x_m = 1, .y_m = 2}, ground, 4.0);
  EXPECT_DOUBLE_EQ(front.radius_m, std::hypot(31.0, 6.0));
  EXPECT_EQ(front.edge, GroundEdge::front);
  const GroundReach bottom = reach_within({.x_m = 6, .y_m = 0}, ground, 4.0);
  EXPECT_EQ(bottom.radius_m, 30.0);
  EXPECT_EQ(bottom.edge, GroundEdge::bottom);
  EXPECT_EQ(reach_within({.x_m = 35, .y_m = 2}, ground, 4.0).edge, GroundEdge::back);
}

}  // namespace
}  // namespace ostrel::host
