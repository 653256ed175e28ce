// SPDX-License-Identifier: Apache-2.0
#include "presets.h"

#include "host_testing.h"

#include <gmock/gmock.h>

namespace ostrel::host {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using Json = nlohmann::json;

// `sound_project` with a standard instead of its combination.
Json by(const char* standard) {
  Json project = sound_project();
  project.erase("combinations");
  project["standard"] = standard;
  return project;
}

Json anchored(const char* standard, bool permanent) {
  Json project = by(standard);
  project["anchors"] = {{{"level_m", -1},
                         {"inclination_deg", 20},
                         {"free_length_m", 8},
                         {"bond_length_m", 6},
                         {"number", 2},
                         {"tendon_area_mm2", 500},
                         {"E_GPa", 195},
                         {"xi_3", 1.8},
                         {"permanent", permanent},
                         {"bond_diameter_mm", 180},
                         {"yield_strength_MPa", 1600}}};
  return project;
}

Json expanded(Json project) {
  Problems problems{Texts(Language::english)};
  expand_presets(project, built_in_presets(), problems);
  EXPECT_THAT(problems.errors(), IsEmpty());
  return project;
}

Json combination(const Json& project, const std::string& name) {
  for (const Json& entry : project.at("combinations")) {
    if (entry.at("name") == name) return entry;
  }
  ADD_FAILURE() << "no combination " << name;
  return Json::object();
}

// The factors of an object without the comment on their clauses.
Json numbers(Json factors) {
  factors.erase("comment");
  return factors;
}

std::vector<std::string> names(const Json& project) {
  std::vector<std::string> names;
  for (const Json& entry : project.at("combinations"))
    names.push_back(entry.at("name").get<std::string>());
  return names;
}

TEST(Presets, LeaveAProjectWithoutStandardAlone) {
  EXPECT_EQ(expanded(sound_project()), sound_project());
}

TEST(Presets, TellAStandardThatTheyDoNotHold) {
  const ReadingOutcome outcome = read(by("NTC1988"));
  ASSERT_THAT(outcome.errors, SizeIs(1));
  EXPECT_EQ(outcome.errors[0].path, "standard");
  EXPECT_THAT(outcome.errors[0].allowed, HasSubstr("\"NTC2008\""));
}

TEST(Presets, TellNothingElseOfTheCombinationsThatAWrongStandardLeavesOut) {
  Json project = by("NTC1988");
  project["combinations"] = Json::array();
  EXPECT_THAT(read(project).errors, ElementsAre(Field(&Problem::path, "standard")));
}

TEST(Presets, RemarkUponANameThatIsNearlyTheirs) {
  for (const char* name : {"SLS Rare", "sls-rare"}) {
    Json project = with("/combinations/0/name", name);
    project["standard"] = "NTC2008";
    const ReadingOutcome outcome = read(project);
    EXPECT_THAT(outcome.remarks, ElementsAre(Field(&Remark::path, "combinations[0].name"))) << name;
    ASSERT_TRUE(outcome.project.has_value());
    EXPECT_EQ(outcome.project->combinations.back().name, "SLS quasi-permanent");
  }
  Json same = with("/combinations/0/name", "SLS rare");
  same["standard"] = "NTC2008";
  EXPECT_THAT(read(same).remarks, IsEmpty());
}

TEST(Presets, RemarkUponCirclesThatTheFileLeavesOut) {
  Json project = by("NTC2008");
  project["slope"] = false;
  EXPECT_THAT(read(project).remarks, ElementsAre(Field(&Remark::path, "slope")));
}

// NTC 2008: A1 1.0/1.3 and 0/1.5, M1 all 1, table 6.5.I R1 1.0.
TEST(PresetsNtc2008, MultiplyTheActionsForTheStructure) {
  const Json found = combination(expanded(by("NTC2008")), "ULS A1+M1+R1");
  EXPECT_EQ(found["type"], "ultimate");
  EXPECT_EQ(found["actions"]["self_weight"], Json({{"favourable", 1.0}, {"unfavourable", 1.3}}));
  EXPECT_EQ(found["actions"]["earth_pressure"], found["actions"]["self_weight"]);
  EXPECT_EQ(found["actions"]["water_pressure"], found["actions"]["self_weight"]);
  EXPECT_EQ(found["actions"]["loads"]["Q"], Json({{"favourable", 0.0}, {"unfavourable", 1.5}}));
  EXPECT_EQ(found["soil_factors"]["friction_angle"], 1.0);
  EXPECT_EQ(numbers(found["resistance_factors"]), Json({{"soil_in_front", 1.0}}));
  EXPECT_EQ(found["checks"], Json({"wall_strength"}));
}

// A2 1.0/1.0 and 0/1.3, M2 1.25, 1.25 and 1.4, table 6.8.I R2 1.1.
TEST(PresetsNtc2008, DivideTheStrengthOfTheGroundForItsVerifications) {
  const Json project = expanded(by("NTC2008"));
  const Json circles = combination(project, "ULS A2+M2+R2, global stability");
  EXPECT_EQ(numbers(circles["resistance_factors"]), Json({{"global_stability", 1.1}}));
  EXPECT_EQ(numbers(circles["soil_factors"]), Json({{"friction_angle", 1.25},
                                                    {"wall_friction_angle", 1.25},
                                                    {"cohesion", 1.25},
                                                    {"undrained_strength", 1.4},
                                                    {"unit_weight", 1.0}}));
  EXPECT_EQ(circles["actions"]["loads"]["Q"], Json({{"favourable", 0.0}, {"unfavourable", 1.3}}));
  EXPECT_EQ(combination(project, "ULS A2+M2+R1")["checks"], Json({"rigid_motion"}));
}

TEST(PresetsNtc2008, DependOnTheTimeThatAnchorsStay) {
  const auto factor = [](bool permanent) {
    return combination(expanded(anchored("NTC2008", permanent)),
                       "ULS A1+M1+R1")["resistance_factors"]["anchors"];
  };
  EXPECT_EQ(factor(true), 1.2);
  EXPECT_EQ(factor(false), 1.1);
}

// Table 6.4.II, R2: bored 1.7, driven 1.45, augered 1.6 at the base; 1.45 along the shaft, 1.6 in
// tension.
TEST(PresetsNtc2008, DependOnTheWayThatPilesAreMade) {
  const auto factors = [](const char* technology) {
    Json project = by("NTC2008");
    project["wall"]["vertical_bearing"] = {
        {"technology", technology}, {"xi_3", 1.7}, {"xi_4", 1.7}};
    return numbers(combination(expanded(project), "ULS A2+M1+R2, piles")["resistance_factors"]);
  };
  EXPECT_EQ(
      factors("bored"),
      Json({{"pile_base", 1.7}, {"pile_shaft_compression", 1.45}, {"pile_shaft_tension", 1.6}}));
  EXPECT_EQ(factors("driven")["pile_base"], 1.45);
  EXPECT_EQ(factors("augered")["pile_base"], 1.6);
}

// Table 6.2.IV: 0.9 and 1.3.
TEST(PresetsNtc2008, VerifyPipingAndUpliftByThemselves) {
  Json project = by("NTC2008");
  EXPECT_THAT(names(expanded(project)), Not(Contains("ULS HYD")));
  project["water"] = {{"retained_level_m", 0}, {"excavated_level_m", -4}};
  const Json found = combination(expanded(project), "ULS HYD");
  EXPECT_EQ(found["actions"]["earth_pressure"], Json({{"favourable", 0.9}, {"unfavourable", 1.3}}));
  EXPECT_EQ(found["checks"], Json({"piping", "uplift"}));
}

TEST(PresetsNtc2008, ShakeOnlyASiteThatIsGiven) {
  Json project = by("NTC2008");
  EXPECT_THAT(names(expanded(project)), Not(Contains(HasSubstr("Seismic"))));
  project["seismic"] = {{"standard", "NTC2008"}, {"ag_g", 0.1}, {"F0", 2.5}, {"ground_class", "A"}};
  project["loads"][0]["psi_2"] = 0.3;
  const Json found = combination(expanded(project), "Seismic M2");
  EXPECT_EQ(found["type"], "seismic");
  EXPECT_EQ(found["seismic"], true);
  EXPECT_EQ(found["actions"]["loads"]["Q"], Json({{"favourable", 0.0}, {"unfavourable", 0.3}}));
  EXPECT_EQ(found["soil_factors"]["friction_angle"], 1.25);
  // kh = 0.1 on rock with a wall that may not move.
  for (const CombinationInput& combination : project_of(project).combinations) {
    EXPECT_EQ(combination.kh, combination.kind == combSeismic ? 0.1 : 0.0);
  }
}

TEST(PresetsNtc2008, ReduceVariableLoadsInService) {
  Json project = by("NTC2008");
  project["loads"][0]["psi_1"] = 0.5;
  project["loads"][0]["psi_2"] = 0.3;
  project = expanded(project);
  const auto load = [&](const char* name) {
    return combination(project, name)["actions"]["loads"]["Q"]["unfavourable"];
  };
  EXPECT_EQ(load("SLS rare"), 1.0);
  EXPECT_EQ(load("SLS frequent"), 0.5);
  EXPECT_EQ(load("SLS quasi-permanent"), 0.3);
}

TEST(Presets, TakePermanentLoadsAsSuch) {
  Json project = by("NTC2008");
  project["loads"][0]["nature"] = "permanent";
  EXPECT_EQ(combination(expanded(project), "ULS A1+M1+R1")["actions"]["loads"]["Q"],
            Json({{"favourable", 1.0}, {"unfavourable", 1.3}}));
}

// EN 1997-1: A1 1.35, M2 1.25, A.14 R1 1.0; anchors and piles with A2, M1 and R4: A.12 1.1.
TEST(PresetsEn1997, HaveTwoCombinationsInApproach1) {
  const Json project = expanded(anchored("EN1997-DA1", true));
  const Json first = combination(project, "DA1-1 A1+M1+R1");
  EXPECT_EQ(first["actions"]["earth_pressure"]["unfavourable"], 1.35);
  EXPECT_EQ(first["soil_factors"]["cohesion"], 1.0);
  const Json second = combination(project, "DA1-2 A2+M2+R1");
  EXPECT_EQ(second["actions"]["earth_pressure"]["unfavourable"], 1.0);
  EXPECT_EQ(second["soil_factors"]["undrained_strength"], 1.4);
  EXPECT_EQ(second["resistance_factors"]["global_stability"], 1.0);
  const Json anchors = combination(project, "DA1-2 A2+M1+R4, piles and anchors");
  EXPECT_EQ(numbers(anchors["resistance_factors"]), Json({{"anchors", 1.1}}));
  EXPECT_EQ(anchors["soil_factors"]["friction_angle"], 1.0);
}

// A.13 and A.14, R2: 1.4 in front, 1.1 for slopes.
TEST(PresetsEn1997, DivideResistancesInApproach2) {
  const Json found = combination(expanded(by("EN1997-DA2")), "DA2 A1+M1+R2");
  EXPECT_EQ(numbers(found["resistance_factors"]),
            Json({{"soil_in_front", 1.4}, {"global_stability", 1.1}}));
}

TEST(PresetsEn1997, TellGroundAndStructureApartInApproach3) {
  Json project = by("EN1997-DA3");
  project["loads"].push_back(
      {{"name", "H"}, {"on_wall", {{{"level_m", 0}, {"horizontal_kN", 5}}}}});
  const Json found = combination(expanded(project), "DA3 A1|A2+M2+R3");
  EXPECT_EQ(found["actions"]["self_weight"]["unfavourable"], 1.35);
  EXPECT_EQ(found["actions"]["earth_pressure"]["unfavourable"], 1.0);
  EXPECT_EQ(found["actions"]["loads"]["Q"]["unfavourable"], 1.3);
  EXPECT_EQ(found["actions"]["loads"]["H"]["unfavourable"], 1.5);
}

TEST(Presets, GiveWayToTheCombinationsOfTheFile) {
  Json project = by("NTC2008");
  project["combinations"] = {{{"name", "SLS rare"}, {"type", "rare"}, {"comment", "mine"}},
                             {{"name", "Other"}, {"type", "accidental"}}};
  project = expanded(project);
  EXPECT_EQ(combination(project, "SLS rare")["comment"], "mine");
  EXPECT_EQ(names(project)[0], "SLS rare");
  EXPECT_EQ(names(project)[1], "Other");
  EXPECT_THAT(names(project), Contains("ULS A1+M1+R1"));
  EXPECT_FALSE(project.contains("standard"));
}

TEST(Presets, LeaveOutCirclesThatAreLeftOut) {
  Json project = by("NTC2008");
  project["slope"] = false;
  EXPECT_THAT(names(expanded(project)), Not(Contains(HasSubstr("global"))));
}

TEST(Presets, MakeSoundProjectsOfEveryStandard) {
  for (const auto& [name, standard] : built_in_presets().at("standards").items()) {
    Json project = anchored(name.c_str(), true);
    project["wall"]["displacement_limits"] = {{"head_mm", 30}, {"excavation_mm", 20}};
    project["water"] = {{"retained_level_m", 0}, {"excavated_level_m", -4}};
    project["soils"][0]["permeability_m_s"] = 1e-5;
    project["seismic"] = {{"standard", "EN1998-5"}, {"ag_g", 0.1}, {"soil_factor", 1.2}};
    const Project found = project_of(project);
    EXPECT_EQ(found.standard, name);
    EXPECT_FALSE(found.combinations.empty());
  }
}

TEST(Presets, NameAClauseAndAStatusForEveryNumber) {
  for (const auto& [name, standard] : built_in_presets().at("standards").items()) {
    for (const char* part : {"actions", "soil"}) {
      for (const auto& [set, row] : standard.at(part).items()) {
        EXPECT_FALSE(row.at("clause").get<std::string>().empty()) << name << " " << set;
        EXPECT_TRUE(row.at("status").is_string()) << name << " " << set;
      }
    }
    for (const auto& [set, rows] : standard.at("resistances").items()) {
      for (const auto& [factor, row] : rows.items()) {
        EXPECT_FALSE(row.at("clause").get<std::string>().empty()) << name << " " << factor;
        EXPECT_TRUE(row.at("status").is_string()) << name << " " << factor;
      }
    }
  }
}

TEST(Presets, TellWhichNumbersAreToBeConfirmed) {
  const Project project = project_of(by("NTC2008"));
  EXPECT_THAT(project.notes, Contains(HasSubstr("table 6.5.I, R1")));
}

TEST(Presets, TellItOfAProjectThatIsWrittenOut) {
  const Project project = project_of(expanded(by("NTC2008")));
  EXPECT_THAT(project.standard, IsEmpty());
  EXPECT_THAT(project.notes, Contains(HasSubstr("table 6.5.I, R1")));
}

TEST(Presets, DoNotTellItOfACombinationThatTheFileReplaces) {
  Json project = expanded(by("NTC2008"));
  for (Json& combination : project["combinations"])
    combination.erase("to_be_confirmed");
  project["standard"] = "NTC2008";
  EXPECT_THAT(project_of(project).notes, Not(Contains(HasSubstr("table 6.5.I, R1"))));
}

// Status of 6.2.I and 6.2.II: as in the edition of 2018; 6.6.I and 6.5.I: unconfirmed.
TEST(Presets, WriteTheClauseOfEveryFactor) {
  const Json found = combination(expanded(anchored("NTC2008", true)), "ULS A1+M1+R1");
  EXPECT_EQ(found["actions"]["comment"], "A1: table 6.2.I (as in the edition of 2018)");
  EXPECT_EQ(found["soil_factors"]["comment"], "M1: table 6.2.II (as in the edition of 2018)");
  const Json& rows = found["resistance_factors"]["comment"];
  EXPECT_THAT(rows,
              Contains("soil_in_front: table 6.5.I, R1 (to be confirmed against the standard)"));
  EXPECT_EQ(rows.size() + 1, found["resistance_factors"].size());
  EXPECT_THAT(found["to_be_confirmed"], Contains("table 6.5.I, R1"));
}

TEST(Presets, WriteWhatVariableLoadsAreMultipliedBy) {
  const Json found = combination(expanded(by("NTC2008")), "SLS frequent");
  EXPECT_EQ(found["actions"]["comment"],
            "frequent: 2.5.3 (to be confirmed against the standard), variable loads times psi_1");
}

TEST(Presets, WriteTheClausesOfBothSetsOfActions) {
  const Json found = combination(expanded(by("EN1997-DA3")), "DA3 A1|A2+M2+R3");
  ASSERT_TRUE(found["actions"]["comment"].is_array());
  EXPECT_THAT(found["actions"]["comment"][0].get<std::string>(), HasSubstr("by A1: table A.3"));
  EXPECT_THAT(found["actions"]["comment"][1].get<std::string>(), HasSubstr("by A2: table A.3"));
}

TEST(Presets, CanBeReplacedByAFile) {
  Json own = built_in_presets();
  own["standards"]["OURS"] = own["standards"]["NTC2008"];
  own["standards"]["OURS"]["actions"]["A1"]["permanent"]["unfavourable"] = 1.7;
  Problems problems{Texts(Language::english)};
  const auto presets = read_presets(own.dump(), problems);
  ASSERT_TRUE(presets.has_value());
  Json project = by("OURS");
  expand_presets(project, *presets, problems);
  EXPECT_EQ(combination(project, "ULS A1+M1+R1")["actions"]["self_weight"]["unfavourable"], 1.7);
}

TEST(Presets, RefuseFilesThatAreNone) {
  for (const char* text : {"", "{", "[]", "{\"standards\": 3}"}) {
    Problems problems{Texts(Language::english)};
    EXPECT_FALSE(read_presets(text, problems).has_value());
    EXPECT_THAT(problems.errors(), SizeIs(1)) << text;
  }
}

TEST(Presets, TellAFileWhoseStandardIsIncomplete) {
  Json project = by("NTC2008");
  Problems problems{Texts(Language::english)};
  expand_presets(project, {{"standards", {{"NTC2008", {{"title", "half"}}}}}}, problems);
  EXPECT_THAT(problems.errors(), ElementsAre(Field(&Problem::path, "standard")));
}

TEST(Presets, SurviveProjectsThatAreWrong) {
  for (const char* place : {"/wall", "/loads", "/anchors", "/water", "/seismic", "/combinations"}) {
    for (const Json& value :
         {Json(3), Json("x"), Json::array({3}), Json::object(), Json(nullptr)}) {
      Json project = by("EN1997-DA3");
      project[Json::json_pointer(place)] = value;
      EXPECT_NO_THROW(read(project)) << place << " " << value;
    }
  }
  for (const char* text : {"3", "[]", "null"}) {
    Json project = Json::parse(text);
    Problems problems{Texts(Language::english)};
    EXPECT_NO_THROW(expand_presets(project, built_in_presets(), problems));
  }
}

}  // namespace
}  // namespace ostrel::host
