// SPDX-License-Identifier: Apache-2.0
#include "core_case.h"

#include "host_testing.h"

#include <sorrel/cross_section.h>

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace ostrel::host {
namespace {

using ::testing::Contains;
using ::testing::Field;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Json = nlohmann::json;

const char* const soil_text = R"({"name": "s", "E": 1, "G": 2, "nu": 0.3, "unit_weight": 4,
  "sat_unit_weight": 5, "phi": 6, "delta": 7, "cohesion": 8, "adhesion": 9, "OCR": 10,
  "constr_modulus": 11, "kperm": 12, "dense": true})";

// A case in which every number is another one.
Json sound_case() {
  Json text = Json::parse(R"({
    "name": "n",
    "wall": {"id": 7, "length": 18000, "depth": 8000, "extension": 10000, "num_piles": 3,
             "spacing": 1000, "htrave": 800, "btrave": 900,
             "section": {"type": "circ", "radius": 400},
             "material": {"E": 31000, "nu": 0.25, "unit_weight": 2.5e-5},
             "check": {"head_disp_lim": 50, "jts_disp_lim": 20, "reinforcement": null,
                       "pile": {"diam_method": 1, "technology": 2, "kishida": true, "eta": 0.9,
                                "csi3": 1.7, "csi4": 1.6, "value_type": 1}}},
    "spring_intervals": [{"type": 1, "start": 0.1, "end": 0.9, "factor": 2}],
    "soil_layers": [{"polygons": [[[0, 0], [1, 0], [1, 1], [0, 0]]], "angle": 0.1}],
    "bound_layer": {"polygons": [], "angle": 0},
    "water": {"defined": true, "monte": -1, "valle": -2},
    "load_conds": [{"id": 1, "name": "Q",
      "soil_loads": [{"class": "xUniformLoad", "id": 11, "name": "q", "value": 0.01},
                     {"class": "xNastriformLoad", "id": 12, "name": "s", "start_value": 1,
                      "end_value": 2, "position": 3, "extension": 4},
                     {"class": "xLinearLoad", "id": 13, "name": "l", "position": 5, "value": 6},
                     {"class": "xPuntiformLoad", "id": 14, "name": "p", "position": 7,
                      "value": 8}],
      "wall_loads": [{"class": "xConcenterdLoad", "id": 21, "name": "c", "position": 1,
                      "force": [2, 3]},
                     {"class": "xDistribuitedLoad", "id": 22, "name": "d", "position": 4,
                      "force": [5, 6]},
                     {"class": "xTorqueLoad", "id": 23, "name": "t", "position": 7, "value": 8},
                     {"class": "xDistribuitedTorque", "id": 24, "name": "u", "position": 9,
                      "value": 10}]}],
    "load_combs": [{"name": "SLU1", "index": 5, "type": 1, "seism_fact": 0.5, "kh": 0.1,
                    "kv": 0.05, "st": 1.2, "checks": [0, 9], "geo_factors": [[1.1, 1.2]],
                    "uls_factors": {"1": 1.1, "7": 0.9},
                    "actions": [{"name": "a", "active": true, "f0": 1.0, "f1": 1.3}]}],
    "imposed": [{"position": 0, "axial": null, "horizontal": 0.0, "rotation": 0.1}],
    "springs": [{"position": 3, "axial": 2, "horizontal": 1e4, "rotation": null}],
    "anchors": [{"id": 101, "z": 1500, "mode_flag": true, "E": 195000, "cable_diam": 40,
                 "bulb_diam": 200, "alpha_d": 1.4, "angle": 0.4, "free_length": 7000,
                 "bulb_length": 12000, "number": 2, "prestress": 5e4, "use_soil": false,
                 "adesione": 0.06, "attrito": 0.3, "fyk": 1600, "gamma_s": 1.15, "csi3": 1.8,
                 "csi4": 1.7, "value_type": 1, "soil_coeff_type": 2}],
    "calc": {"ep_formula": 2, "ep_formula_seismic": 4, "step_molle": 200, "disp_lim": 20,
             "slope": {"formulation": 1, "width_stripe": 500, "step_radius": 1000,
                       "grid": [{"x": -2000, "y": 5000, "rmin": 15000, "rmax": 30000}]}},
    "fem": {"linear": true, "tolerance": 0.01, "max_iterations": 50}
  })");
  text["soil_layers"][0]["soil"] = Json::parse(soil_text);
  text["bound_layer"]["soil"] = Json::parse(soil_text);
  return text;
}

struct CaseOutcome {
  std::optional<Job> job;
  std::vector<Problem> errors;
  std::vector<Remark> remarks;
};

CaseOutcome read_text(const std::string& text) {
  Problems problems{Texts(Language::english)};
  CaseOutcome outcome;
  outcome.job = read_core_case(text, problems);
  outcome.errors = problems.errors();
  outcome.remarks = problems.remarks();
  return outcome;
}

Job job_of(const Json& text) {
  const CaseOutcome outcome = read_text(text.dump());
  EXPECT_THAT(outcome.errors, IsEmpty());
  EXPECT_THAT(outcome.remarks, IsEmpty());
  return outcome.job.value_or(Job{});
}

TEST(CoreCase, GivesTheWallAsItStands) {
  const Job job = job_of(sound_case());
  const auto& wall = dynamic_cast<const xPile_Sheetpiling&>(*job.data.props);
  EXPECT_EQ(wall.getIdObj(), 7);
  EXPECT_EQ(wall.getLength(), 18000.0);
  EXPECT_EQ(wall.getDepth(), 8000.0);
  EXPECT_EQ(wall.getExtension(), 10000.0);
  EXPECT_EQ(wall.getNumPiles(), 3);
  EXPECT_EQ(wall.getSpacing(), 1000.0);
  EXPECT_EQ(wall.getHtrave(), 800.0);
  EXPECT_EQ(wall.getBtrave(), 900.0);
  EXPECT_EQ(dynamic_cast<const xCircSecProp&>(*wall.section).getRadius(), 400.0);
  EXPECT_GT(wall.section->getArea(), 0.0);
  // 31000 / (2 * 1.25)
  EXPECT_EQ(wall.material.getShearModulus(), 12400.0);
  EXPECT_EQ(wall.material.getUnitWeight(), 2.5e-5);
  EXPECT_EQ(wall.checkSettings.getHeadDispLim(), 50.0);
  EXPECT_EQ(wall.checkSettings.getJtsDispLim(), 20.0);
  EXPECT_EQ(wall.checkSettings.pileSettings.getTechnologyType(), pileAugered);
  EXPECT_EQ(wall.checkSettings.pileSettings.getDiamMethod(), bearSecPile::diamLargerSide);
  EXPECT_TRUE(wall.checkSettings.pileSettings.getApplyKishida());
  EXPECT_EQ(wall.checkSettings.pileSettings.getValueType(), 1);
}

TEST(CoreCase, GivesTheGroundAsItStands) {
  const Job job = job_of(sound_case());
  const xBoundSoilLayer& layer = job.data.soilLayers.at(0);
  EXPECT_EQ(layer.getAngle(), 0.1);
  EXPECT_THAT(layer.polygons.at(0), SizeIs(4));
  EXPECT_EQ(layer.soil.getElasticityModulus(), 1.0);
  EXPECT_EQ(layer.soil.getShearModulus(), 2.0);
  EXPECT_EQ(layer.soil.getPoissonRatio(), 0.3);
  EXPECT_EQ(layer.soil.getUnitWeight(), 4.0);
  EXPECT_EQ(layer.soil.getSaturatedUnitWeight(), 5.0);
  EXPECT_EQ(layer.soil.getInternalFriction(), 6.0);
  EXPECT_EQ(layer.soil.getInterfaceFriction(), 7.0);
  EXPECT_EQ(layer.soil.getCohesion(), 8.0);
  EXPECT_EQ(layer.soil.getAdhesion(), 9.0);
  EXPECT_EQ(layer.soil.getOCR(), 10.0);
  EXPECT_EQ(layer.soil.getConstrModulus(), 11.0);
  EXPECT_EQ(layer.soil.getKPerm(), 12.0);
  EXPECT_TRUE(layer.soil.getIsDense());
  EXPECT_EQ(job.data.springIntervals.at(0).type, xSpringInterval::limitPassive);
  EXPECT_EQ(job.data.springIntervals.at(0).factor, 2.0);
  EXPECT_EQ(job.data.waterTable.getLivelloMonte(), -1.0);
  EXPECT_EQ(job.data.waterTable.getLivelloValle(), -2.0);
}

TEST(CoreCase, GivesLoadsAndCombinationsAsTheyStand) {
  const Job job = job_of(sound_case());
  const xLoadCond& condition = job.data.loadConds.at(0);
  ASSERT_THAT(condition.soilLoads, SizeIs(4));
  EXPECT_EQ(condition.soilLoads[1]->getIOClass(), "xNastriformLoad");
  EXPECT_EQ(dynamic_cast<xNastriformLoad&>(*condition.soilLoads[1]).getExtension(), 4.0);
  EXPECT_EQ(condition.soilLoads[3]->id, 14);
  ASSERT_THAT(condition.shpileLoads, SizeIs(4));
  EXPECT_EQ(condition.shpileLoads[1]->getIOClass(), "xDistribuitedLoad");
  EXPECT_EQ(dynamic_cast<xConcenterdLoad&>(*condition.shpileLoads[1]).force(1), 6.0);
  EXPECT_EQ(condition.shpileLoads[3]->getIOClass(), "xDistribuitedTorque");
  const xLoadComb& combination = job.data.loadCombs.at(0);
  EXPECT_EQ(combination.getcombIndex(), 5);
  EXPECT_EQ(combination.getCombType(), combSeismic);
  EXPECT_EQ(combination.getSeismFact(), 0.5);
  EXPECT_EQ(combination.seismic.coefficients(1), 0.05);
  EXPECT_EQ(combination.seismic.getSt(), 1.2);
  EXPECT_TRUE(combination.checkActive(checkDisplacements));
  EXPECT_FALSE(combination.checkActive(checkPiping));
  EXPECT_THAT(combination.checks, SizeIs(10));
  EXPECT_EQ(combination.geoFactors.at(0).second, 1.2);
  EXPECT_EQ(combination.ulsFactors.at(factorUplift), 0.9);
  EXPECT_EQ(combination.actions.at(0).getFactor(actSecond), 1.3);
}

TEST(CoreCase, GivesSupportsAnchorsAndSettingsAsTheyStand) {
  const Job job = job_of(sound_case());
  const xConstraint& imposed = job.data.restriction.imposed.at(0);
  EXPECT_FALSE(imposed.axial.getActive());
  EXPECT_TRUE(imposed.horizontal.getActive());
  EXPECT_EQ(imposed.rotation.getValue(), 0.1);
  EXPECT_EQ(job.data.restriction.springs.at(0).axial.getValue(), 2.0);
  const xAnchor& anchor = job.data.anchors.at(0);
  EXPECT_EQ(anchor.getIdObj(), 101);
  EXPECT_EQ(anchor.getAlphaD(), 1.4);
  EXPECT_EQ(anchor.getBulbLength(), 12000.0);
  EXPECT_EQ(anchor.settings.getSoilCoeffType(), 2);
  EXPECT_EQ(anchor.settings.get_ValueType(), csiMinimumValues);
  EXPECT_FALSE(anchor.settings.getuse_soil());
  EXPECT_EQ(job.data.calcSettings.get_EpFormuls(true), formulaWood);
  EXPECT_EQ(job.data.calcSettings.slope.grid.points.at(0).getMaxRadius(), 30000.0);
  EXPECT_TRUE(job.fem.linear);
  EXPECT_EQ(job.fem.maxIterations, 50);
}

TEST(CoreCase, MayHaveNoWallAndNoTableOfChecks) {
  Json text = sound_case();
  text["wall"] = nullptr;
  text["load_combs"][0]["checks"] = nullptr;
  const Job job = job_of(text);
  EXPECT_FALSE(job.data.props.valid());
  EXPECT_THAT(job.data.loadCombs.at(0).checks, IsEmpty());
}

TEST(CoreCase, ReadsRectanglesAndTheirReinforcement) {
  Json text = sound_case();
  text["wall"]["section"] = {{"type", "rect"}, {"first", 800}, {"second", 1000}};
  const Json bracket = {
      {"diam", 12}, {"min_step", 100}, {"max_step", 250}, {"step_incr", 25}, {"n_arms", 4}};
  text["wall"]["check"]["reinforcement"] = {
      {"kind", "rect"},
      {"bar_diam", 20},
      {"cover", 60},
      {"step", 2},
      {"bracket", bracket},
      {"concrete",
       {{"Rck", 35},
        {"Ec2", 0.002},
        {"Ecu", 0.0035},
        {"AlfaCC", 0.85},
        {"GammaC", 1.5},
        {"Eta", 1}}},
      {"steel", {{"Fyk", 450}, {"Es", 210000}, {"Euk", 0.075}, {"K", 1.2}, {"GammaS", 1.15}}},
      {"alfa_c", 15},
      {"min_valle", 0.1},
      {"max_valle", 2.0},
      {"min_monte", 0.2},
      {"max_monte", 3.0},
      {"ratio", 80},
      {"use_vertex_bars", false},
      {"trave",
       {{"cover", 50},
        {"step", 1},
        {"bar_diam", 20},
        {"min_ratio", 0.3},
        {"max_ratio", 4.0},
        {"bracket", bracket}}}};
  const Job job = job_of(text);
  const auto* settings = dynamic_cast<const xRectReinfSettings*>(
      job.data.props->checkSettings.reinforcementSettings.get());
  ASSERT_NE(settings, nullptr);
  EXPECT_EQ(settings->maxMonte, 3.0);
  EXPECT_EQ(settings->ratio, 80.0);
  EXPECT_FALSE(settings->useVertexBars);
  EXPECT_EQ(settings->bracket.getNArms(), 4);
  EXPECT_EQ(settings->trave.maxRatio, 4.0);
}

TEST(CoreCase, TakesNumbersThatAreNotFinite) {
  std::string text = sound_case().dump();
  const auto replace = [&text](const std::string& from, const std::string& to) {
    text.replace(text.find(from), from.size(), to);
  };
  replace("\"phi\":6", "\"phi\":NaN");
  replace("\"monte\":-1", "\"monte\":-Infinity");
  replace("\"valle\":-2", "\"valle\":null");
  const CaseOutcome outcome = read_text(text);
  ASSERT_THAT(outcome.errors, IsEmpty());
  EXPECT_TRUE(std::isnan(outcome.job->data.boundLayer.soil.getInternalFriction()));
  EXPECT_EQ(outcome.job->data.waterTable.getLivelloMonte(),
            -std::numeric_limits<double>::infinity());
  EXPECT_TRUE(std::isnan(outcome.job->data.waterTable.getLivelloValle()));
}

TEST(CoreCase, RemarksUponFieldsThatItDoesNotKnow) {
  Json text = sound_case();
  text["author"] = "x";
  const CaseOutcome outcome = read_text(text.dump());
  EXPECT_TRUE(outcome.job.has_value());
  ASSERT_THAT(outcome.remarks, SizeIs(1));
  EXPECT_EQ(outcome.remarks[0].path, "author");
}

TEST(CoreCase, TellsEveryMissingField) {
  const Json whole = sound_case();
  for (const auto& [name, value] : whole.items()) {
    Json text = whole;
    text.erase(name);
    const CaseOutcome outcome = read_text(text.dump());
    EXPECT_FALSE(outcome.job.has_value());
    EXPECT_THAT(outcome.errors, Contains(Field(&Problem::path, name)));
  }
}

TEST(CoreCase, TellsWrongTypes) {
  const std::vector<std::pair<const char*, Json>> faults = {
      {"/wall/section/type", "hex"},
      {"/wall/num_piles", 1.5},
      {"/load_combs/0/uls_factors", 3},
      {"/load_combs/0/uls_factors", {{"x", 1.0}}},
      {"/load_combs/0/geo_factors/0", {1.0}},
      {"/load_combs/0/checks", {"a"}},
      {"/load_conds/0/soil_loads/0/class", "xLocalizedLoad"},
      {"/load_conds/0/wall_loads/0/force", {1.0}},
      {"/soil_layers/0/polygons", 3},
      {"/anchors/0/id", 1e300}};
  for (const auto& [place, value] : faults) {
    Json text = sound_case();
    text[Json::json_pointer(place)] = value;
    const CaseOutcome outcome = read_text(text.dump());
    EXPECT_FALSE(outcome.job.has_value()) << place;
    EXPECT_FALSE(outcome.errors.empty()) << place;
  }
}

}  // namespace
}  // namespace ostrel::host
