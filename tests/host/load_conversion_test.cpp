// SPDX-License-Identifier: Apache-2.0
#include "analysis.h"
#include "host_testing.h"
#include "project_conversion.h"

#include <gmock/gmock.h>

#include <cmath>

namespace ostrel::host {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;
using Json = nlohmann::json;

std::vector<xLoadCond> conditions_of(const Json& load) {
  Json project = sound_project();
  project["loads"] = Json::array({load});
  project["combinations"][0]["actions"] = Json::object();
  return to_job(project_of(project)).data.loadConds;
}

TEST(ConvertedGroundLoads, AreInTheUnitsOfTheLibrary) {
  const auto conditions =
      conditions_of({{"name", "Q"},
                     {"on_ground",
                      {{{"type", "uniform"}, {"value_kPa", 10}},
                       {{"type", "strip"},
                        {"value_kPa", 20},
                        {"end_value_kPa", 40},
                        {"distance_m", 1.5},
                        {"width_m", 3}},
                       {{"type", "line"}, {"value_kN_m", 15}, {"distance_m", 1}},
                       {{"type", "point"}, {"value_kN", 40}, {"distance_m", 1.2}}}}});
  ASSERT_THAT(conditions, SizeIs(4));
  EXPECT_EQ(dynamic_cast<xUniformLoad&>(*conditions[0].soilLoads.at(0)).getValue(), 0.01);
  const auto& strip = dynamic_cast<xNastriformLoad&>(*conditions[1].soilLoads.at(0));
  EXPECT_EQ(strip.getStartValue(), 0.02);
  EXPECT_EQ(strip.getEndValue(), 0.04);
  EXPECT_EQ(strip.getPosition(), 1500.0);
  EXPECT_EQ(strip.getExtension(), 3000.0);
  const auto& line = dynamic_cast<xLinearLoad&>(*conditions[2].soilLoads.at(0));
  EXPECT_EQ(line.getValue(), 15.0);
  EXPECT_EQ(line.getPosition(), 1000.0);
  EXPECT_EQ(dynamic_cast<xPuntiformLoad&>(*conditions[3].soilLoads.at(0)).getValue(), 40000.0);
}

TEST(ConvertedGroundLoads, OfAStripAreEvenWhereNoEndValueStands) {
  const auto conditions = conditions_of(
      {{"name", "Q"},
       {"on_ground", {{{"type", "strip"}, {"value_kPa", 20}, {"distance_m", 1}, {"width_m", 3}}}}});
  EXPECT_EQ(dynamic_cast<xNastriformLoad&>(*conditions[0].soilLoads.at(0)).getEndValue(), 0.02);
}

TEST(ConvertedLoad, HasOneConditionForEachLoadOnTheGround) {
  const auto conditions = conditions_of(
      {{"name", "Q"},
       {"on_ground",
        {{{"type", "uniform"}, {"value_kPa", 1}}, {{"type", "uniform"}, {"value_kPa", 2}}}},
       {"on_wall", {{{"level_m", -1}, {"horizontal_kN", 3}}}}});
  ASSERT_THAT(conditions, SizeIs(2));
  EXPECT_EQ(conditions[0].name, "Q");
  EXPECT_EQ(conditions[1].name, "Q (2)");
  EXPECT_EQ(conditions[0].id, 1);
  EXPECT_EQ(conditions[1].id, 2);
  EXPECT_THAT(conditions[0].shpileLoads, SizeIs(1));
  EXPECT_THAT(conditions[1].shpileLoads, SizeIs(0));
}

TEST(ConvertedLoad, WithoutAnyPartStaysOneCondition) {
  EXPECT_THAT(conditions_of({{"name", "Q"}}), SizeIs(1));
}

TEST(ConvertedWallLoads, TurnTheirSigns) {
  const auto conditions = conditions_of(
      {{"name", "H"},
       {"on_wall",
        {{{"level_m", -1}, {"horizontal_kN", 3}, {"vertical_kN", 2}, {"moment_kNm", 4}},
         {{"level_m", 0}, {"per", "metre"}, {"horizontal_kN", 3}, {"moment_kNm", 4}}}}});
  const auto& loads = conditions[0].shpileLoads;
  ASSERT_THAT(loads, SizeIs(4));
  const auto& force = dynamic_cast<xConcenterdLoad&>(*loads[0]);
  EXPECT_EQ(force.getIOClass(), "xConcenterdLoad");
  EXPECT_EQ(force.getPosition(), 1000.0);
  EXPECT_EQ(force.force(0), 2000.0);
  EXPECT_EQ(force.force(1), -3000.0);
  EXPECT_EQ(loads[1]->getIOClass(), "xTorqueLoad");
  EXPECT_EQ(dynamic_cast<xTorqueLoad&>(*loads[1]).getValue(), -4e6);
  // 3 kN for each metre are 3 N for each mm, 4 kNm for each metre 4000 Nmm for each mm.
  EXPECT_EQ(loads[2]->getIOClass(), "xDistribuitedLoad");
  EXPECT_EQ(dynamic_cast<xConcenterdLoad&>(*loads[2]).force(1), -3.0);
  EXPECT_EQ(loads[3]->getIOClass(), "xDistribuitedTorque");
  EXPECT_EQ(dynamic_cast<xTorqueLoad&>(*loads[3]).getValue(), -4000.0);
}

TEST(ConvertedCombination, HasAnActionForEachConditionAndThreeBefore) {
  Json project = sound_project();
  project["loads"].push_back(
      {{"name", "P"},
       {"on_ground",
        {{{"type", "uniform"}, {"value_kPa", 1}}, {{"type", "uniform"}, {"value_kPa", 2}}}}});
  project["combinations"][0]["actions"]["loads"] = {
      {"P", {{"favourable", 0}, {"unfavourable", 1.5}}}};
  const Job job = to_job(project_of(project));
  const auto& actions = job.data.loadCombs[0].actions;
  ASSERT_THAT(actions, SizeIs(6));
  EXPECT_EQ(job.data.loadConds.size(), 3u);
  EXPECT_TRUE(actions[0].getIsActive());
  EXPECT_TRUE(actions[2].getIsActive());
  EXPECT_FALSE(actions[3].getIsActive());
  for (const std::size_t i : {4u, 5u}) {
    EXPECT_TRUE(actions[i].getIsActive());
    EXPECT_EQ(actions[i].getFactor(actFirst), 0.0);
    EXPECT_EQ(actions[i].getFactor(actSecond), 1.5);
    EXPECT_EQ(actions[i].getCondName(), job.data.loadConds[i - 3].name);
  }
}

TEST(ConvertedCombination, HasItsFactorsByTheirPlaces) {
  Json project = sound_project();
  project["combinations"][0]["soil_factors"] = {
      {"friction_angle", {1.25, 1.0}}, {"undrained_strength", 1.4}, {"permeability", {1, 2}}};
  project["combinations"][0]["resistance_factors"] = {{"soil_in_front", 1.4}, {"uplift", 0.9}};
  project["combinations"][0]["seismic"] = {{"kh", 0.1}, {"kv", -0.05}};
  project["combinations"][0]["type"] = "seismic";
  project["combinations"][0]["checks"] = {"rigid_motion", "displacements"};
  const xLoadComb combination = to_job(project_of(project)).data.loadCombs[0];
  ASSERT_THAT(combination.geoFactors, SizeIs(6));
  EXPECT_EQ(combination.geoFactors[0].first, 1.25);
  EXPECT_EQ(combination.geoFactors[0].second, 1.0);
  EXPECT_EQ(combination.geoFactors[1].first, 1.0);
  EXPECT_EQ(combination.geoFactors[3].second, 1.4);
  EXPECT_EQ(combination.geoFactors[5].second, 2.0);
  EXPECT_EQ(combination.ulsFactors.at(factorDownhillSoil), 1.4);
  EXPECT_EQ(combination.ulsFactors.at(factorUplift), 0.9);
  EXPECT_EQ(combination.ulsFactors.size(), 2u);
  EXPECT_EQ(combination.getCombType(), combSeismic);
  EXPECT_EQ(combination.seismic.coefficients(0), 0.1);
  EXPECT_EQ(combination.seismic.coefficients(1), -0.05);
  EXPECT_TRUE(combination.checkActive(checkRigidMotion));
  EXPECT_TRUE(combination.checkActive(checkDisplacements));
  EXPECT_FALSE(combination.checkActive(checkUplift));
  EXPECT_EQ(combination.getcombIndex(), 1);
}

// Displacement of the head towards the excavation [mm].
double head(const Json& project) {
  const Outcome outcome = analyse(to_job(project_of(project)));
  EXPECT_EQ(outcome.verdict, veldNothing);
  if (outcome.results.combResults.empty()) return std::nan("");
  return -outcome.results.combResults[0].femResults.dispTrans.points[0].value;
}

Json pushed(const Json& wall_load) {
  Json project = sound_project();
  project["loads"] = Json::array({{{"name", "Q"}, {"on_wall", Json::array({wall_load})}}});
  return project;
}

// The wall leans into the excavation already; each of these has to push it further.
TEST(SignsOfAProject, AreThoseItDeclares) {
  const double alone = head(pushed({{"level_m", 0}}));
  EXPECT_GT(alone, 0.0);
  EXPECT_GT(head(pushed({{"level_m", 0}, {"horizontal_kN", 5}})), alone);
  EXPECT_GT(head(pushed({{"level_m", 0}, {"moment_kNm", 5}})), alone);
  EXPECT_GT(head(pushed({{"level_m", 0}, {"per", "metre"}, {"moment_kNm", 5}})), alone);
  EXPECT_LT(head(pushed({{"level_m", 0}, {"horizontal_kN", -5}})), alone);
  Json shaken = sound_project();
  const double still = head(shaken);
  shaken["combinations"][0]["type"] = "seismic";
  shaken["combinations"][0]["seismic"] = {{"kh", 0.1}, {"kv", 0}};
  EXPECT_GT(head(shaken), still);
}

TEST(SignsOfAProject, HoldForWhatSupportsImpose) {
  Json project = with("/supports", {{"fixed", {{{"level_m", 0}, {"horizontal_mm", 7}}}}});
  EXPECT_NEAR(head(project), 7.0, 1e-9);
  project["supports"] = {{"fixed", {{{"level_m", 0}, {"rotation_mrad", 3}}}}};
  const double turned = head(project);
  project["supports"]["fixed"][0]["rotation_mrad"] = 1;
  EXPECT_GT(turned, head(project));
}

// A surcharge in two halves at two places does what the whole does; so it would not if both stood in
// one condition of the library.
TEST(ConvertedLoad, ActsAsTheSumOfItsParts) {
  Json halves = sound_project();
  halves["loads"][0]["on_ground"] = {{{"type", "uniform"}, {"value_kPa", 4}},
                                     {{"type", "uniform"}, {"value_kPa", 6}}};
  EXPECT_NEAR(head(halves), head(sound_project()), 1e-7);
}

}  // namespace
}  // namespace ostrel::host
