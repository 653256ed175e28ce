// SPDX-License-Identifier: Apache-2.0
#include "action_checks.h"

#include "checks_testing.h"

namespace ostrel::host {
namespace {

using Json = nlohmann::json;

// Two combinations, the second of which has the loads that are given.
Json two_combinations(const Json& loads) {
  Json project = sound_project();
  project["combinations"].push_back(project["combinations"][0]);
  project["combinations"][1]["name"] = "D";
  project["combinations"][1]["actions"]["loads"] = loads;
  return project;
}

TEST(ActionChecks, RemarkUponALoadThatNeverActs) {
  expect_remark(without("/combinations/0/actions"), "loads[0]", "no combination names this load");
}

TEST(ActionChecks, RemarkUponACombinationThatLeavesALoadOut) {
  expect_remark(two_combinations(Json::object()), "combinations[1].actions.loads",
                "\"Q\", which other combinations name, does not act here");
}

TEST(ActionChecks, TakeNullForAWord) {
  expect_nothing(two_combinations({{"Q", nullptr}}));
  expect_nothing(with("/combinations/0/actions/loads/Q", nullptr));
}

TEST(ActionChecks, RemarkUponAFavourableFactorAboveTheOther) {
  expect_remark(
      with("/combinations/0/actions/loads/Q", {{"favourable", 1.5}, {"unfavourable", 1.0}}),
      "combinations[0].actions.loads.Q", "favourable factor 1.5 is above");
  for (const char* name : {"self_weight", "earth_pressure", "water_pressure"}) {
    Json project = sound_project();
    project["combinations"][0]["actions"][name] = {{"favourable", 1.3}, {"unfavourable", 1.0}};
    expect_remark(project, std::string("combinations[0].actions.") + name, "1.3 is above");
  }
}

}  // namespace
}  // namespace ostrel::host
