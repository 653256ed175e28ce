// SPDX-License-Identifier: Apache-2.0
#include "layout_checks.h"

#include "checks_testing.h"

namespace ostrel::host {
namespace {

using Json = nlohmann::json;

Json anchored(const Json& anchor) {
  return with("/anchors", Json::array({anchor}));
}

Json verified(Json project) {
  project["combinations"][0]["checks"] = {"anchor_pull_out"};
  project["combinations"][0]["resistance_factors"] = {{"anchors", 1.1}};
  return project;
}

// 6 m of 10 m are embedded: three nodes are 3 m apart at most.
TEST(LayoutChecks, WantNodesForTheSprings) {
  expect_error(with("/calculation/node_spacing_mm", 3001), "calculation.node_spacing_mm",
               "at most 3000 mm");
  expect_error(with("/calculation/node_spacing_mm", 12000), "calculation.node_spacing_mm",
               "at most 3000 mm");
  EXPECT_TRUE(read(with("/calculation/node_spacing_mm", 3000)).project.has_value());
}

TEST(LayoutChecks, RemarkUponAnAnchorBelowTheExcavation) {
  expect_remark(anchored(sound_anchor(-4.5, 4)), "anchors[0].level_m", "-4 m");
  expect_nothing(anchored(sound_anchor(-4.0, 4)));
}

TEST(LayoutChecks, RemarkUponSupportsThatHoldNothing) {
  expect_remark(with("/supports", {{"elastic", {{{"level_m", -1}}}}}), "supports.elastic[0]",
                "holds nothing");
  expect_remark(with("/supports", {{"elastic", {{{"level_m", -1}, {"horizontal_kN_m", 0}}}}}),
                "supports.elastic[0]", "holds nothing");
  expect_remark(with("/supports", {{"fixed", {{{"level_m", -1}}}}}), "supports.fixed[0]",
                "holds nothing");
  expect_nothing(with("/supports", {{"fixed", {{{"level_m", -1}, {"horizontal_mm", 0}}}}}));
}

TEST(LayoutChecks, TellWhichOfTwoIntervalsCounts) {
  expect_remark(with("/spring_intervals", {{{"from", 0}, {"to", 0.6}}, {{"from", 0.5}}}),
                "spring_intervals[1]", "from 0.5 to 0.6 spring_intervals[0] counts");
  expect_nothing(with("/spring_intervals", {{{"from", 0}, {"to", 0.5}}, {{"from", 0.5}}}));
}

// The ground ends 40 m from the wall.
TEST(LayoutChecks, RemarkUponLoadsBeyondTheGround) {
  const auto strip = [](double distance) {
    return with("/loads/0/on_ground/0",
                {{"type", "strip"}, {"value_kPa", 10}, {"distance_m", distance}, {"width_m", 3}});
  };
  expect_remark(strip(38), "loads[0].on_ground[0].distance_m", "reaches 41 m from the wall");
  expect_nothing(strip(37));
}

// A bulb from 8 m to 14 m along the anchor: at 20 degrees upwards its beginning lies at
// x = 8 cos 20° = 7.52 m, y = -1 + 8 sin 20° = 1.74 m.
TEST(LayoutChecks, WantABulbThatIsVerifiedInTheGround) {
  Json upwards = sound_anchor(-1, 4);
  upwards["inclination_deg"] = -20;
  const ReadingOutcome outcome = read(verified(anchored(upwards)));
  ASSERT_EQ(outcome.errors.size(), 1u);
  EXPECT_EQ(outcome.errors[0].path, "anchors[0].inclination_deg");
  EXPECT_EQ(outcome.errors[0].found,
            "a bulb outside of the ground, at x = 7.52 m and level 1.74 m");
  expect_remark(anchored(upwards), "anchors[0].inclination_deg", "outside of the ground");
}

// 8 m and 36 m along the anchor end at x = 44 cos 20° = 41.3 m.
TEST(LayoutChecks, WantABulbThatEndsInTheGround) {
  Json far_away = sound_anchor(-1, 4);
  far_away["bond_length_m"] = 36;
  expect_error(verified(anchored(far_away)), "anchors[0].bond_length_m", "lies in the ground");
  expect_nothing(verified(anchored(sound_anchor(-1, 4))));
}

}  // namespace
}  // namespace ostrel::host
