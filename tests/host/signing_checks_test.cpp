// SPDX-License-Identifier: Apache-2.0
#include "signing_checks.h"

#include "checks_testing.h"

namespace ostrel::host {
namespace {

using Json = nlohmann::json;

Json seismic(Json project, double kv = 0.0) {
  project["combinations"][0]["type"] = "seismic";
  project["combinations"][0]["seismic"] = {{"kh", 0.1}, {"kv", kv}};
  return project;
}

Json checking(Json project, const Json& checks) {
  project["combinations"][0]["checks"] = checks;
  project["combinations"][0]["resistance_factors"] = {{"anchors", 1.1}, {"global_stability", 1.1}};
  return project;
}

// Springs whose limit is that of the bearing capacity, so that nothing passive is told.
Json without_passive_limit(Json project) {
  project["spring_intervals"] = Json::array({{{"limit", "bearing_capacity"}}});
  return project;
}

// What is remarked upon besides the limit of the springs.
void expect_remark_beside_bearing(const Json& project, const std::string& path,
                                  const std::string& message) {
  const ReadingOutcome outcome = read(project);
  EXPECT_TRUE(outcome.project.has_value());
  ASSERT_EQ(outcome.remarks.size(), 2u) << path;
  EXPECT_EQ(outcome.remarks[0].path, "spring_intervals[0].limit");
  EXPECT_EQ(outcome.remarks[1].path, path);
  EXPECT_THAT(outcome.remarks[1].message, ::testing::HasSubstr(message));
}

TEST(SigningChecks, NameTheirPage) {
  expect_remark(without_passive_limit(sound_project()), "spring_intervals[0].limit",
                "(see \"Before you sign\")");
}

TEST(SigningChecks, RemarkUponTheBearingCapacityAsLimit) {
  expect_remark(without_passive_limit(sound_project()), "spring_intervals[0].limit",
                "several times the passive pressure");
}

// At rest it is on the safe side.
TEST(SigningChecks, RemarkUponWoodInAnEarthquake) {
  expect_nothing(with("/calculation/earth_pressure", "wood"));
  expect_nothing(with("/calculation/seismic_earth_pressure", "wood"));
  Json project = seismic(without_passive_limit(sound_project()));
  project["calculation"]["seismic_earth_pressure"] = "wood";
  const ReadingOutcome outcome = read(project);
  ASSERT_EQ(outcome.remarks.size(), 2u);
  EXPECT_EQ(outcome.remarks[0].path, "calculation.seismic_earth_pressure");
}

TEST(SigningChecks, RemarkUponSpringsInAnEarthquake) {
  expect_remark(seismic(sound_project()), "combinations[0].seismic",
                "does not lower the passive limit of the springs, unsafe by 6 to 9 % for each 0.1 "
                "of kh: \"C\"");
}

TEST(SigningChecks, RemarkUponANegativeKv) {
  expect_remark_beside_bearing(seismic(without_passive_limit(sound_project()), -0.05),
                               "combinations[0].seismic", "favourable twice");
}

// A third of 32° is 10.67°; up to half a degree more it is taken for a third.
TEST(SigningChecks, RemarkUponWallFrictionThatCoulombDoesNotBear) {
  expect_remark(with("/soils/0/wall_friction_angle_deg", 12), "soils[0].wall_friction_angle_deg",
                "with 12° in soil of 32° Coulomb's passive value is too high");
  expect_nothing(with("/soils/0/wall_friction_angle_deg", 11));
  Json rankine = with("/soils/0/wall_friction_angle_deg", 12);
  rankine["calculation"]["earth_pressure"] = "rankine";
  expect_nothing(rankine);
}

// The excavation is 4 m deep: what ends there makes no springs.
TEST(SigningChecks, LookAtTheGroundInFrontForItsWallFriction) {
  Json project = sound_project();
  project["soils"].push_back(project["soils"][0]);
  project["soils"][1]["name"] = "gravel";
  project["soils"][0]["wall_friction_angle_deg"] = 20;
  project["ground"]["layers"].push_back({{"soil", "gravel"}, {"top_level_m", -4}});
  expect_nothing(project);
  project["ground"]["layers"][1]["top_level_m"] = -4.5;
  expect_remark(project, "soils[0].wall_friction_angle_deg", "too high");
}

// With a factor of 1.25 on tan(phi) 32° are atan(0.6249 / 1.25) = 26.6°.
TEST(SigningChecks, RemarkUponGroundTooSteepForRankine) {
  Json project = sound_project();
  project["ground"] = {
      {"layers",
       {{{"soil", "sand"},
         {"surface_slope_deg", 28},
         {"polygons_m", {{{-30, -30}, {40, -30}, {40, 0}, {0, 0}, {0, -4}, {-30, -4}}}}}}}};
  project["combinations"][0]["soil_factors"] = {{"friction_angle", 1.25}};
  expect_nothing(project);
  project["calculation"]["earth_pressure"] = "rankine";
  expect_remark(project, "ground.layers[0].surface_slope_deg", "26.6°");
}

TEST(SigningChecks, RemarkUponWaterLevelsThatDifferInTheCircles) {
  const auto water = [](double excavated) {
    Json project = with("/water", {{"retained_level_m", 0}, {"excavated_level_m", excavated}});
    return checking(project, {"global_stability"});
  };
  expect_remark(water(-4), "water", "drive the slide");
  expect_nothing(water(0));
}

TEST(SigningChecks, RemarkUponCirclesInAnEarthquake) {
  expect_remark_beside_bearing(
      seismic(checking(without_passive_limit(sound_project()), {"global_stability"})),
      "combinations[0].checks", "no driving moment");
}

// The wall has four piles.
TEST(SigningChecks, RemarkUponRigidMotionWithAnchors) {
  const auto anchored = [](const Json& anchors) {
    return checking(with("/anchors", anchors), {"rigid_motion"});
  };
  expect_remark(anchored({sound_anchor(-1, 4), sound_anchor(-3, 4)}), "combinations[0].checks",
                "two levels of anchors");
  expect_remark(anchored(Json::array({sound_anchor(-1, 2)})), "combinations[0].checks",
                "fewer anchors than piles");
  expect_nothing(anchored(Json::array({sound_anchor(-1, 4)})));
}

Json with_cap_beam(double anchor_level, const Json& checks) {
  Json project = checking(with("/anchors", Json::array({sound_anchor(anchor_level, 4)})), checks);
  Json& wall = project["wall"];
  wall["cap_beam"] = {{"height_m", 0.8}, {"width_m", 0.8}};
  wall["reinforcement"]["cap_beam"] = {{"cover_mm", 60},
                                       {"bar_diameter_mm", 20},
                                       {"least_ratio_percent", 0.2},
                                       {"largest_ratio_percent", 4},
                                       {"stirrups", wall["reinforcement"]["stirrups"]}};
  return project;
}

TEST(SigningChecks, RemarkUponACapBeamThatDoesNotKnowItsAnchors) {
  expect_remark(with_cap_beam(-0.5, {"cap_beam_strength"}), "combinations[0].checks",
                "does not know the anchors");
  expect_nothing(with_cap_beam(-0.5, {"cap_beam_strength", "anchor_strength"}));
  expect_nothing(with_cap_beam(-1.5, {"cap_beam_strength"}));
}

TEST(SigningChecks, RemarkUponTheActiveCoefficientOnABulb) {
  Json anchor = sound_anchor(-1, 4);
  anchor["pressure_coefficient"] = "active";
  const Json project = checking(with("/anchors", Json::array({anchor})), {"anchor_pull_out"});
  expect_remark(project, "anchors[0].pressure_coefficient", "friction of the interface");
  anchor["bond"] = {{"adhesion_kPa", 200}, {"friction_angle_deg", 0}};
  expect_nothing(checking(with("/anchors", Json::array({anchor})), {"anchor_pull_out"}));
}

TEST(SigningChecks, RemarkUponFactorsThatNothingReads) {
  expect_remark(with("/combinations/0/resistance_factors", {{"soil_in_front", 1.4}}),
                "combinations[0].resistance_factors", "no spring reads");
  expect_nothing(with("/combinations/0/resistance_factors", {{"soil_in_front", 1.0}}));
  expect_nothing(with("/combinations/0/resistance_factors", {{"uplift", 1.2}}));
}

TEST(SigningChecks, RemarkUponVerticalBearing) {
  Json project = checking(sound_project(), {"vertical_bearing"});
  project["wall"]["vertical_bearing"] = {{"technology", "bored"}, {"xi_3", 1.4}, {"xi_4", 1.4}};
  expect_remark(project, "combinations[0].checks", "work out vertical bearing by hand");
}

}  // namespace
}  // namespace ostrel::host
