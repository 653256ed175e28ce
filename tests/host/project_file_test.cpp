// SPDX-License-Identifier: Apache-2.0
#include "project_file.h"

#include "host_testing.h"

#include <gmock/gmock.h>

namespace ostrel::host {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Json = nlohmann::json;

// One wrong thing in a sound project, where it is told, and part of what is told to be allowed.
struct Fault {
  const char* place;  // JSON pointer
  Json value;
  const char* path;
  const char* allowed;
};

void PrintTo(const Fault& fault, std::ostream* out) {
  *out << fault.place << " = " << fault.value;
}

class ProjectFault : public ::testing::TestWithParam<Fault> {};

TEST_P(ProjectFault, IsToldAloneWithPlaceAndWhatIsAllowed) {
  const ReadingOutcome outcome = read(with(GetParam().place, GetParam().value));
  EXPECT_FALSE(outcome.project.has_value());
  ASSERT_THAT(outcome.errors, SizeIs(1));
  EXPECT_EQ(outcome.errors[0].path, GetParam().path);
  EXPECT_THAT(outcome.errors[0].allowed, HasSubstr(GetParam().allowed));
}

INSTANTIATE_TEST_SUITE_P(
    Types, ProjectFault,
    ::testing::Values(Fault{"/format", 2, "format", "1"}, Fault{"/format", "1", "format", "1"},
                      Fault{"/name", 3, "name", "a text"},
                      Fault{"/excavation_depth_m", "4", "excavation_depth_m", "a number above 0"},
                      Fault{"/wall", 3, "wall", "an object"},
                      Fault{"/wall/piles", 1.5, "wall.piles", "a whole number not below 1"},
                      Fault{"/soils/0/dense", 1, "soils[0].dense", "true or false"},
                      Fault{"/ground", Json::array(), "ground", "an object"},
                      Fault{"/anchors", Json::object(), "anchors", "a list"},
                      Fault{"/supports", 3, "supports", "an object"},
                      Fault{"/water", true, "water", "an object"},
                      Fault{"/combinations/0/actions/loads", 3, "combinations[0].actions.loads",
                            "an object"},
                      Fault{"/combinations/0/checks", "all", "combinations[0].checks", "a list"},
                      Fault{"/description", Json::array(), "description", "a text"}));

INSTANTIATE_TEST_SUITE_P(
    Values, ProjectFault,
    ::testing::Values(
        Fault{"/wall/diameter_mm", -600, "wall.diameter_mm", "above 0"},
        Fault{"/wall/length_m", 0, "wall.length_m", "above 0"},
        Fault{"/wall/E_GPa", 0, "wall.E_GPa", "above 0"},
        Fault{"/wall/type", "sheet_pile", "wall.type", "\"pile_row\", \"diaphragm\""},
        Fault{"/wall/thickness_mm", 600, "wall.thickness_mm", "one of"},
        Fault{"/soils/0/friction_angle_deg", 95, "soils[0].friction_angle_deg",
              "not below 0 and below 90"},
        Fault{"/soils/0/unit_weight_kN_m3", 0, "soils[0].unit_weight_kN_m3", "above 0"},
        Fault{"/soils/0/cohesion_kPa", -1, "soils[0].cohesion_kPa", "not below 0"},
        Fault{"/soils/0/poisson_ratio", 0.5, "soils[0].poisson_ratio", "below 0.5"},
        Fault{"/ground/bottom_level_m", 1e6, "ground.bottom_level_m", "not above 10000"},
        Fault{"/ground/layers", Json::array(), "ground.layers", "not empty"},
        Fault{"/loads/0/on_ground/0/value_kPa", -1, "loads[0].on_ground[0].value_kPa",
              "not below 0"},
        Fault{"/loads/0/on_ground/0/type", "area", "loads[0].on_ground[0].type", "\"point\""},
        Fault{"/combinations/0/type", "ultimat", "combinations[0].type", "\"accidental\""},
        Fault{"/combinations/0/actions/earth_pressure", -1,
              "combinations[0].actions.earth_pressure", "not below 0"},
        Fault{"/combinations/0/soil_factors",
              {{"friction_angle", 0}},
              "combinations[0].soil_factors.friction_angle",
              "above 0"},
        Fault{"/combinations/0/soil_factors",
              {{"cohesion", {1.0, 1.25, 1.4}}},
              "combinations[0].soil_factors.cohesion",
              "a list of 2"},
        Fault{"/combinations/0/resistance_factors",
              {{"anchors", -1}},
              "combinations[0].resistance_factors.anchors",
              "above 0"},
        Fault{"/combinations/0/checks",
              {"anchor_strength", "luck"},
              "combinations[0].checks[1]",
              "\"uplift\""},
        Fault{"/combinations/0/seismic",
              {{"kh", 1.0}, {"kv", 0.0}},
              "combinations[0].seismic.kh",
              "below 1"},
        Fault{"/combinations", Json::array(), "combinations", "not empty"},
        Fault{"/calculation/earth_pressure", "jaky", "calculation.earth_pressure", "\"wood\""},
        Fault{"/calculation/node_spacing_mm", 0, "calculation.node_spacing_mm", "above 0"},
        Fault{"/calculation/max_iterations", 0, "calculation.max_iterations", "not below 1"},
        Fault{"/spring_intervals",
              {{{"from", 0.5}, {"to", 0.2}}},
              "spring_intervals[0].to",
              "not below 0.5"}));

INSTANTIATE_TEST_SUITE_P(References, ProjectFault,
                         ::testing::Values(Fault{"/ground/layers/0/soil", "clay",
                                                 "ground.layers[0].soil", "\"sand\""},
                                           Fault{"/combinations/0/actions/loads",
                                                 {{"P", 1}},
                                                 "combinations[0].actions.loads.P",
                                                 "\"Q\""}));

INSTANTIATE_TEST_SUITE_P(
    UnknownFields, ProjectFault,
    ::testing::Values(Fault{"/excavation_dept_m", 4, "excavation_dept_m",
                            "perhaps excavation_depth_m"},
                      Fault{"/wall/pile", 4, "wall.pile", "perhaps piles"},
                      Fault{"/soils/0/phi", 4, "soils[0].phi", "friction_angle_deg"},
                      Fault{"/ground/layers/0/polygons_m", Json::array(),
                            "ground.layers[0].polygons_m", "soil, top_level_m"}));

TEST(ProjectFile, IsReadWhereItIsSound) {
  const Project project = project_of(sound_project());
  EXPECT_EQ(project.name, "wall");
  EXPECT_EQ(project.wall.count, 4);
  EXPECT_EQ(project.wall.poisson_ratio, 0.2);
  EXPECT_EQ(project.calculation.earth_pressure, formulaCoulomb);
  EXPECT_EQ(project.calculation.seismic_earth_pressure, formulaMononobeOkabe);
  EXPECT_EQ(project.calculation.node_spacing_mm, 250.0);
  EXPECT_THAT(project.spring_intervals, SizeIs(1));
  EXPECT_FALSE(project.water.has_value());
}

TEST(ProjectFile, TellsEveryMissingField) {
  const char* const fields[] = {"/format",
                                "/name",
                                "/wall",
                                "/excavation_depth_m",
                                "/soils",
                                "/ground",
                                "/combinations",
                                "/wall/length_m",
                                "/wall/E_GPa",
                                "/wall/reinforcement",
                                "/wall/reinforcement/steel",
                                "/soils/0/E_MPa",
                                "/soils/0/friction_angle_deg",
                                "/ground/retained_width_m",
                                "/combinations/0/type"};
  for (const char* field : fields) {
    const ReadingOutcome outcome = read(without(field));
    EXPECT_FALSE(outcome.project.has_value()) << field;
    EXPECT_THAT(outcome.errors, Contains(Field(&Problem::found, "nothing"))) << field;
  }
}

TEST(ProjectFile, TellsAllErrorsAtOnce) {
  Json project = sound_project();
  project["wall"]["diameter_mm"] = -600;
  project["soils"][0]["friction_angle_deg"] = 95;
  project["excavation_depth_m"] = 12;
  const ReadingOutcome outcome = read(project);
  EXPECT_THAT(outcome.errors, ElementsAre(Field(&Problem::path, "wall.diameter_mm"),
                                          Field(&Problem::path, "soils[0].friction_angle_deg"),
                                          Field(&Problem::path, "excavation_depth_m")));
}

TEST(ProjectFile, TellsSoilsThatAreNoneAndTheLayersThatNameThem) {
  EXPECT_THAT(
      read(with("/soils", 3)).errors,
      ElementsAre(Field(&Problem::path, "soils"), Field(&Problem::path, "ground.layers[0].soil")));
  EXPECT_THAT(read(with("/soils/0/name", "")).errors,
              ElementsAre(Field(&Problem::path, "soils[0].name"),
                          Field(&Problem::path, "ground.layers[0].soil")));
}

TEST(ProjectFile, RefusesNamesThatStandTwice) {
  Json project = sound_project();
  project["soils"].push_back(project["soils"][0]);
  project["loads"].push_back(project["loads"][0]);
  project["combinations"].push_back(project["combinations"][0]);
  const ReadingOutcome outcome = read(project);
  EXPECT_THAT(outcome.errors, ElementsAre(Field(&Problem::path, "soils[1].name"),
                                          Field(&Problem::path, "loads[1].name"),
                                          Field(&Problem::path, "combinations[1].name")));
}

TEST(ProjectFile, TakesNamesOfAnyLanguage) {
  Json project = sound_project();
  project["name"] = "Paratia città 深基坑";
  project["soils"][0]["name"] = "Limo sabbioso è";
  project["ground"]["layers"][0]["soil"] = "Limo sabbioso è";
  EXPECT_EQ(project_of(project).soils[0].name, "Limo sabbioso è");
}

TEST(ProjectFile, TakesCommentsAndASchemaAnywhereTheyBelong) {
  Json project = sound_project();
  project["$schema"] = "project.schema.json";
  project["comment"] = "why";
  project["wall"]["comment"] = {"because", "of"};
  EXPECT_THAT(read(project).errors, IsEmpty());
}

TEST(ProjectFile, RefusesACommentThatIsNoText) {
  const ReadingOutcome outcome = read(with("/wall/comment", 3));
  ASSERT_THAT(outcome.errors, SizeIs(1));
  EXPECT_EQ(outcome.errors[0].path, "wall.comment");
  EXPECT_EQ(outcome.errors[0].found, "3");
  EXPECT_THAT(outcome.errors[0].allowed, HasSubstr("a list of texts"));
}

TEST(ProjectFile, IsNoTreeWithoutAnObject) {
  for (const char* text : {"3", "[]", "null", "\"x\""}) {
    Problems problems{Texts(Language::english)};
    EXPECT_FALSE(read_project(text, problems).has_value());
    ASSERT_THAT(problems.errors(), SizeIs(1)) << text;
    EXPECT_EQ(problems.errors()[0].path, "");
  }
}

TEST(ProjectFile, ReadsActionsOneByOne) {
  Json project = sound_project();
  project["combinations"][0]["actions"] = {
      {"self_weight", nullptr},
      {"earth_pressure", {{"favourable", 1.0}, {"unfavourable", 1.3}}},
      {"water_pressure", 1.1}};
  const CombinationInput combination = project_of(project).combinations[0];
  EXPECT_FALSE(combination.self_weight.active);
  EXPECT_EQ(combination.earth_pressure.favourable, 1.0);
  EXPECT_EQ(combination.earth_pressure.unfavourable, 1.3);
  EXPECT_EQ(combination.water_pressure.favourable, 1.1);
  EXPECT_EQ(combination.water_pressure.unfavourable, 1.1);
  // A load that no action names does not act.
  ASSERT_THAT(combination.loads, SizeIs(1));
  EXPECT_FALSE(combination.loads[0].active);
}

}  // namespace
}  // namespace ostrel::host
