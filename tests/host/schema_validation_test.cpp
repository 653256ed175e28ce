// SPDX-License-Identifier: Apache-2.0
#include "schema_validation.h"

#include "host_testing.h"

#include <gmock/gmock.h>

#include <set>

namespace ostrel::host {
namespace {

using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using Json = nlohmann::json;

Json schema() {
  return Json::parse(project_schema());
}

const Json& resolved(const Json& root, const Json& node) {
  if (!node.is_object() || !node.contains("$ref")) return node;
  const std::string target = node.at("$ref").get<std::string>().substr(1);
  return root.at(Json::json_pointer(target));
}

// The paths of all fields that a schema allows, comments left out; and those without a description.
struct SchemaFields {
  std::set<std::string> paths;
  std::set<std::string> undescribed;
};

void gather(const Json& root, const Json& node_or_reference, const std::string& path,
            SchemaFields& found) {
  const Json& node = resolved(root, node_or_reference);
  if (!node.is_object()) return;
  if (node.contains("properties")) {
    for (const auto& [name, value] : node.at("properties").items()) {
      if (name == "comment" || value == Json(false)) continue;
      const std::string child = child_path(path, name);
      found.paths.insert(child);
      const bool is_condition = !node.contains("type");
      if (!is_condition && !resolved(root, value).contains("description"))
        found.undescribed.insert(child);
      gather(root, value, child, found);
    }
  }
  if (node.contains("items")) gather(root, node.at("items"), path + "[]", found);
  for (const char* word : {"anyOf", "oneOf", "allOf"}) {
    if (!node.contains(word)) continue;
    for (const Json& option : node.at(word))
      gather(root, option, path, found);
  }
  for (const char* word : {"if", "then", "else"}) {
    if (node.contains(word)) gather(root, node.at(word), path, found);
  }
}

SchemaFields fields_of_schema() {
  const Json root = schema();
  SchemaFields found;
  gather(root, root, "", found);
  return found;
}

std::set<std::string> without_those(std::set<std::string> all, const std::set<std::string>& some) {
  for (const std::string& entry : some)
    all.erase(entry);
  return all;
}

// Projects that hold, taken together, every object that a project can hold.
std::vector<Json> projects_of_all_kinds() {
  Json piles = sound_project();
  piles["wall"]["cap_beam"] = {{"height_m", 0.6}, {"width_m", 0.6}};
  piles["wall"]["displacement_limits"] = {{"head_mm", 30}, {"excavation_mm", 20}};
  piles["wall"]["vertical_bearing"] = {{"technology", "bored"}, {"xi_3", 1.7}, {"xi_4", 1.7}};
  piles["wall"]["reinforcement"]["cap_beam"] = {
      {"cover_mm", 50},
      {"bar_diameter_mm", 16},
      {"least_ratio_percent", 0.2},
      {"largest_ratio_percent", 4},
      {"stirrups", piles["wall"]["reinforcement"]["stirrups"]}};
  piles["water"] = {{"retained_level_m", 0}, {"excavated_level_m", -4}};
  piles["anchors"] = {{{"level_m", -1},
                       {"inclination_deg", 20},
                       {"free_length_m", 8},
                       {"number", 2},
                       {"tendon_area_mm2", 500},
                       {"E_GPa", 195},
                       {"bond", {{"adhesion_kPa", 80}, {"friction_angle_deg", 0}}}}};
  piles["loads"][0]["on_ground"] = {
      {{"type", "uniform"}, {"value_kPa", 10}},
      {{"type", "strip"}, {"value_kPa", 10}, {"distance_m", 1}, {"width_m", 2}},
      {{"type", "line"}, {"value_kN_m", 10}, {"distance_m", 1}},
      {{"type", "point"}, {"value_kN", 10}, {"distance_m", 1}}};
  piles["loads"][0]["on_wall"] = {{{"level_m", 0}, {"horizontal_kN", 1}}};
  const Json factors = {{"favourable", 1}, {"unfavourable", 1.3}};
  piles["combinations"][0]["soil_factors"] = {{"friction_angle", {1, 1.25}}, {"cohesion", 1.25}};
  piles["combinations"][0]["resistance_factors"] = {{"anchors", 1.1}};
  piles["combinations"][0]["to_be_confirmed"] = {"table 1"};
  piles["combinations"][0]["actions"] = {{"self_weight", factors},
                                         {"earth_pressure", factors},
                                         {"water_pressure", factors},
                                         {"loads", {{"Q", factors}}}};
  piles["combinations"].push_back(
      {{"name", "S"}, {"type", "seismic"}, {"seismic", {{"kh", 0.1}, {"kv", 0.05}}}});
  piles["seismic"] = {{"standard", "NTC2008"}, {"ag_g", 0.1}, {"F0", 2.5}, {"ground_class", "B"}};
  piles["spring_intervals"] = {{{"from", 0}, {"to", 1}}};
  piles["supports"] = {{"fixed", {{{"level_m", -1}, {"horizontal_mm", 0}}}},
                       {"elastic", {{{"level_m", -2}, {"horizontal_kN_m", 100}}}}};
  piles["slope"] = {
      {"centre_box",
       {{"x_m", {-5, 5}}, {"y_m", {5, 10}}, {"spacing_m", 5}, {"radii_m", {16, 20}}}}};
  Json panels = sound_diaphragm();
  panels["ground"] = {
      {"layers",
       {{{"soil", "sand"},
         {"polygons_m", {{{-30, -30}, {40, -30}, {40, 0}, {0, 0}, {0, -4}, {-30, -4}}}}}}}};
  panels["slope"] = {
      {"centres", {{{"x_m", 0}, {"y_m", 5}, {"least_radius_m", 14}, {"largest_radius_m", 17}}}}};
  panels["seismic"] = {{"standard", "EN1998-5"}, {"ag_g", 0.1}, {"soil_factor", 1.2}};
  Json tangents = piles;
  tangents["slope"]["centre_box"].erase("radii_m");
  tangents["slope"]["centre_box"]["tangent_levels_m"] = {-15, -11};
  return {piles, panels, tangents};
}

TEST(ProjectSchema, KnowsTheFieldsThatTheReaderKnows) {
  std::set<std::string> asked;
  for (const Json& project : projects_of_all_kinds()) {
    Problems problems{Texts(Language::english)};
    EXPECT_TRUE(read_project(project.dump(), problems, {.asked = &asked}).has_value())
        << problems.report("p", project.dump());
  }
  // Factors of a load stand below its name.
  std::erase_if(asked, [](const std::string& path) {
    return path.starts_with("combinations[].actions.loads.");
  });
  const std::set<std::string> described = fields_of_schema().paths;
  EXPECT_THAT(without_those(described, asked), IsEmpty());
  EXPECT_THAT(without_those(asked, described), IsEmpty());
}

TEST(ProjectSchema, TiesTheFieldsOfALoadToItsType) {
  const auto findings = [](const Json& load) {
    return schema_findings(with("/loads/0/on_ground", Json::array({load})));
  };
  EXPECT_THAT(findings({{"type", "strip"}, {"value_kPa", 10}, {"distance_m", 1}, {"width_m", 2}}),
              IsEmpty());
  EXPECT_THAT(findings({{"type", "strip"}, {"value_kPa", 10}, {"distance_m", 1}}), SizeIs(1));
  const auto of_line =
      findings({{"type", "line"}, {"value_kN_m", 10}, {"distance_m", 1}, {"width_m", 2}});
  ASSERT_THAT(of_line, SizeIs(1));
  EXPECT_EQ(of_line[0].path, "loads[0].on_ground[0]");
  EXPECT_THAT(findings({{"type", "point"}, {"value_kPa", 10}, {"distance_m", 1}}), Not(IsEmpty()));
  EXPECT_THAT(findings({{"type", "uniform"}, {"value_kPa", 10}, {"distance_m", 1}}), SizeIs(1));
}

TEST(ProjectSchema, DescribesEveryField) {
  EXPECT_THAT(fields_of_schema().undescribed, IsEmpty());
}

TEST(ProjectSchema, AllowsWhatTheReaderAllows) {
  for (const Json& project : projects_of_all_kinds()) {
    for (const SchemaFinding& finding : schema_findings(project))
      ADD_FAILURE() << finding.path << ": " << finding.message;
  }
  EXPECT_THAT(schema_findings(sound_project()), IsEmpty());
  EXPECT_THAT(schema_findings(sound_diaphragm()), IsEmpty());
}

TEST(ProjectSchema, TakesWholeNumbersWithADecimalPoint) {
  EXPECT_THAT(schema_findings(with("/wall/piles", 4.0)), IsEmpty());
  EXPECT_THAT(schema_findings(with("/wall/piles", 4.5)),
              ElementsAre(Field(&SchemaFinding::path, "wall.piles")));
}

TEST(SchemaFindings, AreTheInnermostOfEachChain) {
  EXPECT_THAT(schema_findings(with("/soils/0/E_MPa", -1)),
              ElementsAre(Field(&SchemaFinding::path, "soils[0].E_MPa")));
  EXPECT_THAT(schema_findings(with("/wall/reinforcement/stirrups/legs", 0)),
              ElementsAre(Field(&SchemaFinding::path, "wall.reinforcement.stirrups.legs")));
}

TEST(SchemaFindings, StandAtTheObjectThatMissesAField) {
  EXPECT_THAT(schema_findings(without("/wall/length_m")),
              ElementsAre(Field(&SchemaFinding::path, "wall")));
  EXPECT_THAT(schema_findings(with("/wall/thickness_mm", 600)), SizeIs(1));
}

TEST(CheckSchema, LeavesToTheReaderWhatItTold) {
  const ReadingOutcome outcome = read(with("/soils/0/E_MPa", -1));
  ASSERT_THAT(outcome.errors, SizeIs(1));
  EXPECT_THAT(outcome.errors[0].allowed, HasSubstr("a number above 0"));
}

TEST(CheckSchema, TellsWhatNobodyTold) {
  Problems problems{Texts(Language::english)};
  problems.add("wall.length_m", "0", "more");
  Json project = sound_project();
  project["wall"]["length_m"] = 0;
  project["soils"][0]["E_MPa"] = -1;
  check_schema(project, problems);
  EXPECT_THAT(problems.errors(), ElementsAre(Field(&Problem::path, "wall.length_m"),
                                             Field(&Problem::path, "soils[0].E_MPa")));
  EXPECT_EQ(problems.errors()[1].found, "-1");
  EXPECT_THAT(problems.errors()[1].allowed, HasSubstr("greater than 0"));
}

// The reader takes anything as the place of the schema; the schema wants a text.
TEST(CheckSchema, IsLeftOutOfAReadingThatAsksForNone) {
  const std::string project = with("/$schema", 5).dump();
  for (const bool by_schema : {true, false}) {
    Problems problems{Texts(Language::english)};
    const auto read = read_project(project, problems, {.by_schema = by_schema});
    EXPECT_EQ(read.has_value(), !by_schema);
    EXPECT_THAT(problems.errors(), SizeIs(by_schema ? 1 : 0));
  }
}

}  // namespace
}  // namespace ostrel::host
