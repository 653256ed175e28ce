// SPDX-License-Identifier: Apache-2.0
#include "questionable_circles.h"

#include "host_testing.h"

#include <gmock/gmock.h>

namespace ostrel::host {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Json = nlohmann::json;

// Piles of 10 m in sand, circles searched.
Json searching(const Json& slope) {
  Json project = with("/slope", slope);
  project["combinations"][0]["checks"] = {"global_stability"};
  project["combinations"][0]["resistance_factors"] = {{"global_stability", 1.1}};
  return project;
}

Json centre(double least, double largest) {
  return {{{"x_m", 0}, {"y_m", 5}, {"least_radius_m", least}, {"largest_radius_m", largest}}};
}

void expect_remark_upon(const Json& project, const std::string& path, const std::string& message) {
  const ReadingOutcome outcome = read(project);
  ASSERT_THAT(outcome.errors, IsEmpty());
  ASSERT_THAT(outcome.remarks, SizeIs(1));
  EXPECT_EQ(outcome.remarks[0].path, path);
  EXPECT_THAT(outcome.remarks[0].message, HasSubstr(message));
}

TEST(QuestionableCircles, AreNoneOfThoseChosenFromTheGeometry) {
  EXPECT_THAT(read(searching(true)).remarks, IsEmpty());
}

TEST(QuestionableCircles, HaveStripesWiderThanTheWallIsLong) {
  expect_remark_upon(searching({{"stripe_width_m", 10.5}}), "slope.stripe_width_m", "10.5");
}

// The foot is 15 m below (0, 5). From 14 m to 16 m in steps of 1 m: the range is cut into 3 steps,
// and the last radius is 16 - 2 / 3 = 15.33 m; from 14 m to 15 m into 2, and the last is 14.5 m.
TEST(QuestionableCircles, StayAboveTheFoot) {
  Json slope = {{"radius_step_m", 1}, {"centres", centre(14, 15)}};
  expect_remark_upon(searching(slope), "slope", "below the foot");
  slope["centres"] = centre(14, 16);
  EXPECT_THAT(read(searching(slope)).remarks, IsEmpty());
}

// 30 m of ground in front: from (0, 5) to (-30, -4) are 31.3 m.
TEST(QuestionableCircles, LeaveTheGround) {
  expect_remark_upon(searching({{"radius_step_m", 1}, {"centres", centre(14, 33)}}), "slope",
                     "leave the ground");
}

TEST(QuestionableCircles, GoByBishopThroughASoilWithoutFriction) {
  Json project = searching({{"method", "bishop"}});
  project["soils"][0]["friction_angle_deg"] = 0;
  project["soils"][0]["wall_friction_angle_deg"] = 0;
  project["soils"][0]["cohesion_kPa"] = 40;
  expect_remark_upon(project, "slope.method", "sand");
}

TEST(QuestionableCircles, DoNotMatterWhereNoneAreSearched) {
  EXPECT_THAT(read(with("/slope", {{"stripe_width_m", 10.5}})).remarks, IsEmpty());
}

}  // namespace
}  // namespace ostrel::host
