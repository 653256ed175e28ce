// SPDX-License-Identifier: Apache-2.0
#include "ground_checks.h"

#include "host_testing.h"

#include <gmock/gmock.h>

namespace ostrel::host {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Json = nlohmann::json;

Json ground_of(const std::vector<Json>& polygons) {
  Json project = sound_project();
  project["ground"] = {{"layers", Json::array()}};
  for (const Json& polygon : polygons) {
    project["ground"]["layers"].push_back(
        {{"soil", "sand"}, {"polygons_m", Json::array({polygon})}});
  }
  return project;
}

Json levels_of(const std::vector<double>& tops, double bottom) {
  Json project = sound_project();
  project["ground"]["bottom_level_m"] = bottom;
  project["ground"]["layers"] = Json::array();
  for (const double top : tops) {
    project["ground"]["layers"].push_back({{"soil", "sand"}, {"top_level_m", top}});
  }
  return project;
}

const Json upper = {{0, -2}, {40, -2}, {40, 0}, {0, 0}};
const Json lower = {{-30, -30}, {40, -30}, {40, -2}, {0, -2}, {0, -4}, {-30, -4}};

void expect_found(const Json& project, const std::string& path, const std::string& found) {
  const ReadingOutcome outcome = read(project);
  EXPECT_FALSE(outcome.project.has_value());
  ASSERT_THAT(outcome.errors, SizeIs(1));
  EXPECT_EQ(outcome.errors[0].path, path);
  EXPECT_THAT(outcome.errors[0].found, HasSubstr(found));
}

TEST(GroundChecks, TakePolygonsThatJoinAtTheWall) {
  EXPECT_THAT(read(ground_of({upper, lower})).errors, IsEmpty());
  EXPECT_THAT(read(ground_of({upper, lower})).remarks, IsEmpty());
}

TEST(GroundChecks, RefusePolygonsThatDoNotReachTheWall) {
  expect_found(ground_of({{{1, -2}, {40, -2}, {40, 0}, {1, 0}}, lower}),
               "ground.layers[0].polygons_m", "do not cross");
  // Wholly on the excavated side.
  expect_found(ground_of({upper, lower, {{-30, -40}, {-1, -40}, {-1, -30}, {-30, -30}}}),
               "ground.layers[2].polygons_m", "do not cross");
}

TEST(GroundChecks, RefusePolygonsOfTwoVertices) {
  expect_found(ground_of({{{0, -2}, {40, -2}}, lower}), "ground.layers[0].polygons_m[0]",
               "a list of 2");
}

TEST(GroundChecks, RefuseGapsAndOverlapsAtTheWall) {
  expect_found(ground_of({{{0, -1}, {40, -1}, {40, 0}, {0, 0}}, lower}), "ground.layers[1]",
               "begins at -2.000 m");
  expect_found(ground_of({{{0, -3}, {40, -3}, {40, 0}, {0, 0}}, lower}), "ground.layers[1]",
               "begins at -2.000 m");
}

// 2 mm are below a hundredth of 250 mm, within which the library joins levels.
TEST(GroundChecks, LetTheLibraryJoinLevelsThatAreNear) {
  EXPECT_THAT(read(ground_of({{{0, -1.998}, {40, -1.998}, {40, 0}, {0, 0}}, lower})).errors,
              IsEmpty());
}

TEST(GroundChecks, WantTheGroundToBeginAtTheHead) {
  expect_found(levels_of({0.5}, -30), "ground.layers[0]", "begins at 0.500 m");
  const ReadingOutcome below = read(levels_of({-0.5}, -30));
  EXPECT_TRUE(below.project.has_value());
  ASSERT_THAT(below.remarks, SizeIs(1));
  EXPECT_THAT(below.remarks[0].message, HasSubstr("-0.500 m"));
}

TEST(GroundChecks, WantGroundBelowTheFoot) {
  expect_found(levels_of({0}, -9), "ground", "ends at -9.000 m");
  const ReadingOutcome at_foot = read(levels_of({0, -5}, -10));
  EXPECT_TRUE(at_foot.project.has_value());
  ASSERT_THAT(at_foot.remarks, SizeIs(1));
  EXPECT_THAT(at_foot.remarks[0].message, HasSubstr("the last embedded layer bears nothing"));
}

TEST(GroundChecks, RefuseTopsThatDoNotGoDown) {
  EXPECT_FALSE(read(levels_of({0, -5, -3}, -30)).project.has_value());
  expect_found(levels_of({0, 0}, -30), "ground.layers[0]", "without thickness");
}

// A slope of 1 in 10 from (0, 0): at the wall it stands at 0, not at the 0.01 mm of the cut.
TEST(GroundChecks, CarryTheCutBackToTheWallAlongTheSlope) {
  xBoundSoilLayer layer;
  layer.polygons = {{{0, -1000}, {10000, -1000}, {10000, 1000}, {0, 0}, {0, -1000}}};
  const auto span = span_at_wall(layer);
  ASSERT_TRUE(span.has_value());
  EXPECT_NEAR(span->top, 0.0, 1e-12);
  EXPECT_NEAR(span->bottom, -1000.0, 1e-12);
}

}  // namespace
}  // namespace ostrel::host
