// SPDX-License-Identifier: Apache-2.0
#include "project_checks.h"

#include "checks_testing.h"

#include <gmock/gmock.h>

namespace ostrel::host {
namespace {

using ::testing::IsEmpty;
using Json = nlohmann::json;

Json anchor(double level) {
  return {{"level_m", level}, {"inclination_deg", 20},  {"free_length_m", 8},
          {"number", 2},      {"tendon_area_mm2", 500}, {"E_GPa", 195}};
}

TEST(ProjectChecks, FindNothingInASoundProject) {
  EXPECT_THAT(read(sound_project()).errors, IsEmpty());
  EXPECT_THAT(read(sound_project()).remarks, IsEmpty());
}

TEST(ProjectChecks, WantTheExcavationAboveTheFoot) {
  expect_error(with("/excavation_depth_m", 10), "excavation_depth_m",
               "less than the length of the wall, 10");
}

TEST(ProjectChecks, LimitTheNumberOfNodes) {
  // 10 m at 1.9 mm are 5263 nodes.
  expect_error(with("/calculation/node_spacing_mm", 1.9), "calculation.node_spacing_mm", "5000");
}

TEST(ProjectChecks, WantEverythingOnTheWall) {
  expect_error(with("/anchors", {anchor(-1.0), anchor(-10.5)}), "anchors[1].level_m",
               "from -10 to 0");
  expect_error(with("/supports", {{"fixed", {{{"level_m", -11}, {"horizontal_mm", 0}}}}}),
               "supports.fixed[0].level_m", "from -10 to 0");
  expect_error(with("/supports", {{"elastic", {{{"level_m", -11}, {"horizontal_kN_m", 10}}}}}),
               "supports.elastic[0].level_m", "from -10 to 0");
  expect_error(with("/loads/0/on_wall", {{{"level_m", -10.1}, {"horizontal_kN", 1}}}),
               "loads[0].on_wall[0].level_m", "from -10 to 0");
}

TEST(ProjectChecks, RemarkUponOddSoils) {
  expect_remark(with("/soils/0/friction_angle_deg", 55), "soils[0].friction_angle_deg", "55");
  expect_remark(with("/soils/0/wall_friction_angle_deg", 33), "soils[0].wall_friction_angle_deg",
                "exceeds");
  expect_remark(with("/soils/0/saturated_unit_weight_kN_m3", 17),
                "soils[0].saturated_unit_weight_kN_m3", "lighter");
  Json unused = sound_project();
  unused["soils"].push_back(unused["soils"][0]);
  unused["soils"][1]["name"] = "gravel";
  expect_remark(unused, "soils[1]", "no layer uses");
}

TEST(ProjectChecks, RemarkUponPilesThatOverlap) {
  expect_remark(with("/wall/diameter_mm", 1100), "wall.spacing_m", "overlap");
}

TEST(ProjectChecks, RemarkUponWaterThatIsNotAtTheHead) {
  const auto water = [](double retained, double excavated) {
    return with("/water", {{"retained_level_m", retained}, {"excavated_level_m", excavated}});
  };
  EXPECT_THAT(read(water(0, -4)).remarks, IsEmpty());
  expect_remark(water(-2, -4), "water.retained_level_m", "loads the elements from the head down");
  expect_remark(water(1, -4), "water.retained_level_m", "above the head");
  expect_remark(water(0, 0.5), "water.excavated_level_m", "higher in front");
}

TEST(ProjectChecks, RemarkUponSpringsThatDoNotCoverTheEmbedment) {
  expect_remark(with("/spring_intervals", {{{"from", 0}, {"to", 0.4}}, {{"from", 0.5}}}),
                "spring_intervals", "from 0.4 to 1");
  EXPECT_THAT(
      read(with("/spring_intervals", {{{"from", 0.4}}, {{"from", 0}, {"to", 0.4}}})).remarks,
      IsEmpty());
}

TEST(ProjectChecks, RemarkUponSeismicCombinationsWithoutActionAndTheOtherWayRound) {
  expect_remark(with("/combinations/0/type", "seismic"), "combinations[0].seismic", "without kh");
  expect_remark(with("/combinations/0/seismic", {{"kh", 0.1}, {"kv", 0.05}}),
                "combinations[0].seismic", "not seismic");
}

}  // namespace
}  // namespace ostrel::host
