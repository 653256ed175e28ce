// SPDX-License-Identifier: Apache-2.0
#include "verification_checks.h"

#include "host_testing.h"

#include <gmock/gmock.h>

namespace ostrel::host {
namespace {

using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Json = nlohmann::json;

Json checking(const char* check) {
  return with("/combinations/0/checks", Json::array({check}));
}

void expect_missed(const Json& project, const std::string& path, const std::string& allowed) {
  const ReadingOutcome outcome = read(project);
  EXPECT_FALSE(outcome.project.has_value());
  ASSERT_THAT(outcome.errors, SizeIs(1)) << path;
  EXPECT_EQ(outcome.errors[0].path, path);
  EXPECT_THAT(outcome.errors[0].allowed, HasSubstr(allowed));
}

Json anchor() {
  return {{"level_m", -1},
          {"inclination_deg", 20},
          {"free_length_m", 8},
          {"bond_length_m", 6},
          {"number", 2},
          {"tendon_area_mm2", 500},
          {"E_GPa", 195},
          {"xi_3", 1.8},
          {"bond_diameter_mm", 180},
          {"yield_strength_MPa", 1600}};
}

// The anchor checked for what the name says, without one field.
Json anchored(const char* check, const char* without_field) {
  Json project = checking(check);
  project["combinations"][0]["resistance_factors"] = {{"anchors", 1.1}};
  project["anchors"] = Json::array({anchor()});
  project["anchors"][0].erase(without_field);
  return project;
}

TEST(VerificationChecks, WantTheBlocksThatVerificationsRead) {
  expect_missed(checking("vertical_bearing"), "combinations[0].checks", "wall.vertical_bearing");
  expect_missed(checking("cap_beam_strength"), "wall.cap_beam", "cap_beam_strength");
}

TEST(VerificationChecks, WantWaterAndPermeabilitiesForSeepage) {
  for (const char* check : {"piping", "uplift"}) {
    Json project = checking(check);
    project["soils"][0]["permeability_m_s"] = 1e-5;
    expect_missed(project, "combinations[0].checks", "water");
    project["water"] = {{"retained_level_m", 0}, {"excavated_level_m", -4}};
    EXPECT_THAT(read(project).errors, IsEmpty());
    project["soils"][0].erase("permeability_m_s");
    expect_missed(project, "soils[0].permeability_m_s", check);
  }
}

TEST(VerificationChecks, WantCirclesAndAFactorForGlobalStability) {
  Json project = checking("global_stability");
  expect_missed(project, "combinations[0].resistance_factors.global_stability", "global_stability");
  project["combinations"][0]["resistance_factors"] = {{"global_stability", 1.1}};
  EXPECT_THAT(read(project).errors, IsEmpty());
  project["slope"] = false;
  expect_missed(project, "combinations[0].checks", "\"slope\"");
}

// The ground ends 3 m behind the wall, and every circle below its foot comes up farther away.
TEST(VerificationChecks, WantRoomForTheCirclesOfGlobalStability) {
  Json project = checking("global_stability");
  project["combinations"][0]["resistance_factors"] = {{"global_stability", 1.1}};
  project["ground"]["retained_width_m"] = 3;
  expect_missed(project, "ground.retained_width_m", "wider and deeper ground");
}

TEST(VerificationChecks, WantTheStrengthOfTendons) {
  EXPECT_THAT(read(anchored("anchor_strength", "xi_3")).errors, IsEmpty());
  expect_missed(anchored("anchor_strength", "yield_strength_MPa"), "anchors[0].yield_strength_MPa",
                "anchor_strength");
}

TEST(VerificationChecks, WantBondAndFactorsForPullOut) {
  EXPECT_THAT(read(anchored("anchor_pull_out", "yield_strength_MPa")).errors, IsEmpty());
  for (const char* field : {"bond_length_m", "bond_diameter_mm", "xi_3"}) {
    expect_missed(anchored("anchor_pull_out", field), std::string("anchors[0].") + field,
                  "anchor_pull_out");
  }
  Json least = anchored("anchor_pull_out", "yield_strength_MPa");
  least["anchors"][0]["minimum_values"] = true;
  expect_missed(least, "anchors[0].xi_4", "anchor_pull_out");
  Json without_factor = anchored("anchor_pull_out", "yield_strength_MPa");
  without_factor["combinations"][0].erase("resistance_factors");
  expect_missed(without_factor, "combinations[0].resistance_factors.anchors", "anchor_pull_out");
}

TEST(VerificationChecks, TellAFieldOnceForAllCombinations) {
  Json project = anchored("anchor_strength", "yield_strength_MPa");
  project["combinations"].push_back(project["combinations"][0]);
  project["combinations"][1]["name"] = "second";
  EXPECT_THAT(read(project).errors, SizeIs(1));
}

TEST(VerificationChecks, TellAWrongNumberOnceOnly) {
  Json project = anchored("anchor_strength", "bond_length_m");
  project["anchors"][0]["yield_strength_MPa"] = -3;
  EXPECT_THAT(read(project).errors,
              ElementsAre(Field(&Problem::path, "anchors[0].yield_strength_MPa")));
}

TEST(VerificationChecks, RemarkUponDisplacementsWithoutLimits) {
  const ReadingOutcome outcome = read(checking("displacements"));
  EXPECT_THAT(outcome.errors, IsEmpty());
  EXPECT_THAT(outcome.remarks, ElementsAre(Field(&Remark::path, "combinations[0].checks")));
}

}  // namespace
}  // namespace ostrel::host
