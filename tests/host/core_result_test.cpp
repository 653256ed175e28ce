// SPDX-License-Identifier: Apache-2.0
#include "core_result.h"

#include <gmock/gmock.h>

#include <limits>

namespace ostrel::host {
namespace {

using Json = nlohmann::json;

// As another program would read it.
Json result_of(const Outcome& outcome) {
  return Json::parse(core_result(outcome).dump());
}

TEST(CoreResult, OfNothingHasEmptyBlocks) {
  const Json result = result_of(Outcome{});
  EXPECT_EQ(result["return"], 0);
  EXPECT_EQ(result["errors"], Json::array());
  EXPECT_EQ(result["layers"], Json::array());
  EXPECT_EQ(result["combinations"], Json::array());
  EXPECT_EQ(result["mesh"]["nodes"], Json::array());
  EXPECT_EQ(result["mesh"]["jtsoil"], 0);
}

TEST(CoreResult, HoldsTheMessages) {
  Outcome outcome;
  outcome.verdict = veldError;
  outcome.messages.emplace_back("text", 7, xVeldError::typeWarning);
  const Json result = result_of(outcome);
  EXPECT_EQ(result["return"], 3);
  EXPECT_EQ(result["errors"], (Json::array({{{"code", -1}, {"id_obj", 7}, {"message", "text"}}})));
}

TEST(CoreResult, HoldsTheGroundAndTheBeam) {
  Outcome outcome;
  xSoilLayer layer;
  layer.setDepth(1.0);
  layer.setThickness(2.0);
  layer.setUnderWater(true);
  layer.set_Angle(0.5);
  layer.soil.setName("è");
  layer.levels = {1.0, 3.0};
  outcome.model.layers = {layer};
  outcome.model.fem.nodes = {{0.0, 0.0}, {0.0, 4.0}};
  outcome.model.fem.elements.resize(1);
  outcome.model.fem.elements[0].setL(5.0);
  outcome.model.fem.setJtsoil(1);
  outcome.model.fem.setDembin(6.0);
  outcome.model.anchors.resize(1);
  outcome.model.anchors[0].node = -1;
  const Json result = result_of(outcome);
  EXPECT_EQ(result["layers"][0], (Json{{"depth", 1.0},
                                       {"thickness", 2.0},
                                       {"under_water", true},
                                       {"angle", 0.5},
                                       {"soil_name", "è"},
                                       {"levels", {1.0, 3.0}}}));
  EXPECT_EQ(result["mesh"], (Json{{"nodes", {0.0, 4.0}},
                                  {"element_L", {5.0}},
                                  {"jtsoil", 1},
                                  {"dembin", 6.0},
                                  {"anchor_nodes", {-1}}}));
}

xCombResults filled_combination() {
  xCombResults combination;
  combination.setCombName("C");
  combination.setcombIndex(4);
  NodeModulus& spring = combination.subgradeModulus.springs[12];
  spring.type = xSpringInterval::limitPassive;
  spring.position = 1.0;
  spring.ultimate_limit = 2.0;
  spring.passive_limit = 3.0;
  spring.modulus = 4.0;
  xFemResults& results = combination.femResults;
  results.dispAxial.points = {{0.0, 1.0}};
  results.dispTrans.points = {{0.0, 2.0}};
  results.rotation.points = {{0.0, 3.0}};
  results.moment.points = {{0.0, 5.0}, {1.0, 6.0}};
  results.nodalForces[3] = xFemNodeData(1.0, 2.0, 3.0);
  Fsoil& soil = results.soilForces[12];
  soil.elevation = -1.0;
  soil.springForce = 2.0;
  soil.limitForce = 3.0;
  soil.limitMoment = 4.0;
  results.appliedForces.resize(1);
  results.appliedForces[0].pos = 9.0;
  results.appliedForces[0].data = xFemNodeData(1.0, 2.0, 3.0);
  results.anchorSoll.resize(2);
  results.anchorSoll[0].axial.points = {{0.0, 7.0}, {1.0, 7.0}};
  combination.femLoadConds.emplace_back("weight");
  return combination;
}

TEST(CoreResult, HoldsTheCombination) {
  Outcome outcome;
  outcome.results.combResults = {filled_combination()};
  const Json result = result_of(outcome)["combinations"][0];
  EXPECT_EQ(result["name"], "C");
  EXPECT_EQ(result["index"], 4);
  EXPECT_EQ(
      result["springs"]["12"],
      (Json{
          {"type", 1}, {"position", 1.0}, {"ultimate", 2.0}, {"passive", 3.0}, {"modulus", 4.0}}));
  EXPECT_EQ(result["disp"], (Json{{1.0, 2.0, 3.0}}));
  EXPECT_EQ(result["moment"], (Json{{0.0, 5.0}, {1.0, 6.0}}));
  EXPECT_EQ(result["nodal_forces"], (Json{{"3", {1.0, 2.0, 3.0}}}));
  EXPECT_EQ(result["soil_forces"], (Json{{"12", {-1.0, 2.0, 3.0, 4.0}}}));
  EXPECT_EQ(result["applied"], (Json{{9.0, 1.0, 2.0, 3.0}}));
  EXPECT_EQ(result["cond_names"], (Json{"weight"}));
  // The second anchor has no diagram.
  EXPECT_EQ(result["anchor_forces"], (Json{7.0, nullptr}));
}

TEST(CoreResult, HoldsThePressures) {
  xLayerPress diagram;
  diagram.start = xPoint2d(0.0, -1.0);
  diagram.end = xPoint2d(0.0, -2.0);
  diagram.points = {{0.0, 3.0}, {1.0, 4.0}};
  diagram.Rx = -5.0;
  diagram.Ry = 6.0;
  diagram.pos = 7.0;
  xLoadCondPress condition;
  condition.name = "Q";
  condition.loads.resize(1);
  condition.loads[0].diagrams = {diagram};
  Outcome outcome;
  outcome.results.combResults.resize(1);
  outcome.results.combResults[0].earthPress.diagrams = {diagram};
  outcome.results.combResults[0].loadCondPress = {condition};
  const Json result = result_of(outcome)["combinations"][0];
  const Json expected = {{"start_y", -1.0}, {"end_y", -2.0}, {"points", {{0.0, 3.0}, {1.0, 4.0}}},
                         {"rx", -5.0},      {"ry", 6.0},     {"pos", 7.0}};
  EXPECT_EQ(result["earth"], Json::array({expected}));
  EXPECT_EQ(result["hydro"], Json::array());
  EXPECT_EQ(result["load_press"][0]["name"], "Q");
  EXPECT_EQ(result["load_press"][0]["loads"][0], Json::array({expected}));
}

TEST(CoreResult, HoldsTheDisplacementsAgainstTheirLimits) {
  Outcome outcome;
  xServiceLimitDispCombRes checked;
  checked.setCheckID(7, 3, "SLE");
  checked.setHeadPos(0.0);
  checked.setHeaddisp(-8.0);
  checked.setJtsPos(4000.0);
  checked.setJtsdisp(-5.0);
  checked.check(20.0, 50.0);
  outcome.serviceability.displacements.results = {checked};
  const Json result = result_of(outcome);
  EXPECT_EQ(result["sls"][0], (Json{{"name", "SLE"},
                                    {"index", 3},
                                    {"head_pos", 0.0},
                                    {"head_disp", -8.0},
                                    {"jts_pos", 4000.0},
                                    {"jts_disp", -5.0},
                                    {"head_lim", 50.0},
                                    {"jts_lim", 20.0}}));
  // The smaller of 50 / 8 and 20 / 5.
  EXPECT_EQ(result["sls_sf_min"], 4.0);
  outcome.verdict = veldError;
  EXPECT_EQ(result_of(outcome)["sls"], nullptr);
  EXPECT_EQ(result_of(outcome)["sls_sf_min"], nullptr);
}

TEST(CoreResult, WritesNullForWhatIsNotFinite) {
  Outcome outcome;
  outcome.results.combResults.resize(1);
  outcome.results.combResults[0].femResults.moment.points = {
      {0.0, std::numeric_limits<double>::quiet_NaN()},
      {1.0, std::numeric_limits<double>::infinity()}};
  const Json result = result_of(outcome)["combinations"][0]["moment"];
  EXPECT_EQ(result, (Json{{0.0, nullptr}, {1.0, nullptr}}));
}

}  // namespace
}  // namespace ostrel::host
