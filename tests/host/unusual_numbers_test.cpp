// SPDX-License-Identifier: Apache-2.0
#include "unusual_numbers.h"

#include "checks_testing.h"
#include "schema_validation.h"

namespace ostrel::host {
namespace {

using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::IsEmpty;
using Json = nlohmann::json;

std::vector<Remark> remarks_upon(const Json& project) {
  Problems problems{Texts(Language::english)};
  remark_upon_unusual_numbers(project, problems);
  return problems.remarks();
}

// The value at a path of `sound_project`, which a comma or a unit has shifted.
struct Slip {
  const char* pointer;
  Json value;
  const char* path;
};

TEST(UnusualNumbers, AreSlipsOfUnitsAndCommas) {
  const std::vector<Slip> slips{
      {"/wall/diameter_mm", 0.9, "wall.diameter_mm"},
      {"/wall/E_GPa", 31000, "wall.E_GPa"},
      {"/wall/reinforcement/concrete/cube_strength_MPa", 35e6,
       "wall.reinforcement.concrete.cube_strength_MPa"},
      {"/wall/reinforcement/steel/yield_strength_MPa", 0.45,
       "wall.reinforcement.steel.yield_strength_MPa"},
      {"/soils/0/unit_weight_kN_m3", 1.8, "soils[0].unit_weight_kN_m3"},
      {"/soils/0/friction_angle_deg", 0.61, "soils[0].friction_angle_deg"},
      {"/soils/0/cohesion_kPa", 5000, "soils[0].cohesion_kPa"},
      {"/soils/0/cohesion_kPa", 0.02, "soils[0].cohesion_kPa"},
      {"/soils/0/permeability_m_s", 10, "soils[0].permeability_m_s"},
      {"/anchors/0/E_GPa", 195000, "anchors[0].E_GPa"},
      {"/anchors/0/tendon_area_mm2", 6.95, "anchors[0].tendon_area_mm2"},
      {"/anchors/0/prestress_kN", 150000, "anchors[0].prestress_kN"},
      {"/anchors/0/xi_3", 18, "anchors[0].xi_3"},
      {"/calculation/spring_limit_mm", 0.0254, "calculation.spring_limit_mm"},
      {"/combinations/0/seismic", {{"kh", 0.9}, {"kv", 0}}, "combinations[0].seismic.kh"},
      {"/loads/0/on_wall", Json::array({{{"level_m", 0}, {"horizontal_kN", -50000}}}),
       "loads[0].on_wall[0].horizontal_kN"},
  };
  for (const Slip& slip : slips) {
    Json project = sound_project();
    project["anchors"] = Json::array({sound_anchor(-1, 4)});
    project[Json::json_pointer(slip.pointer)] = slip.value;
    EXPECT_THAT(remarks_upon(project), ElementsAre(Field(&Remark::path, slip.path))) << slip.path;
  }
}

TEST(UnusualNumbers, AreToldWithTheirRange) {
  expect_remark(with("/wall/E_GPa", 31000), "wall.E_GPa",
                "31000 is outside of what is usual, 5 to 250");
}

TEST(UnusualNumbers, StandInListsAndUnderAnyName) {
  EXPECT_THAT(remarks_upon(with("/combinations/0/soil_factors", {{"cohesion", {1.0, 0.5}}})),
              ElementsAre(Field(&Remark::path, "combinations[0].soil_factors.cohesion[1]")));
  EXPECT_THAT(remarks_upon(with("/combinations/0/resistance_factors", {{"anchors", 0.8}})),
              ElementsAre(Field(&Remark::path, "combinations[0].resistance_factors.anchors")));
  EXPECT_THAT(remarks_upon(with("/combinations/0/actions/loads/Q",
                                {{"favourable", 0.0}, {"unfavourable", 15}})),
              ElementsAre(Field(&Remark::path, "combinations[0].actions.loads.Q.unfavourable")));
}

TEST(UnusualNumbers, AreNotTheZerosThatStandForNone) {
  Json project = with("/soils/0/cohesion_kPa", 0);
  project["soils"][0]["friction_angle_deg"] = 0;
  project["soils"][0]["wall_friction_angle_deg"] = 0;
  project["soils"][0]["permeability_m_s"] = 0;
  project["combinations"][0]["actions"]["loads"]["Q"] = 0;
  EXPECT_THAT(remarks_upon(project), IsEmpty());
}

TEST(UnusualNumbers, AreNotToldTwice) {
  const ReadingOutcome outcome = read(with("/wall/diameter_mm", -600));
  EXPECT_THAT(outcome.errors, ElementsAre(Field(&Problem::path, "wall.diameter_mm")));
  EXPECT_THAT(outcome.remarks, IsEmpty());
}

TEST(UnusualNumbers, AreLookedForInProjectsOfAnyForm) {
  for (const char* text : {"3", "[]", "null", "{\"wall\": 3, \"soils\": {\"E_MPa\": 1}}",
                           "{\"soils\": [3, null], \"anchors\": {}}"}) {
    EXPECT_THAT(remarks_upon(Json::parse(text)), IsEmpty()) << text;
  }
}

// The part of the schema under a name, through whatever stands around it.
const Json* part_of(const Json& schema, const Json& part, const std::string& name) {
  if (part.contains("$ref")) {
    const auto reference = part.at("$ref").get<std::string>();
    return part_of(schema, schema.at(Json::json_pointer(reference.substr(1))), name);
  }
  if (part.contains("properties") && part.at("properties").contains(name)) {
    return &part.at("properties").at(name);
  }
  if (part.contains("anyOf")) {
    for (const Json& choice : part.at("anyOf")) {
      if (const Json* found = part_of(schema, choice, name)) return found;
    }
  }
  return nullptr;
}

bool is_in_schema(const Json& schema, const Json& part, std::string_view field) {
  if (field.empty()) return true;
  if (field.starts_with("[]")) {
    field.remove_prefix(field.starts_with("[].") ? 3 : 2);
    return part.contains("items") && is_in_schema(schema, part.at("items"), field);
  }
  const std::string name(field.substr(0, field.find_first_of(".[")));
  if (name == "*") return true;
  const Json* found = part_of(schema, part, name);
  if (found == nullptr) return false;
  field.remove_prefix(name.size());
  if (field.starts_with('.')) field.remove_prefix(1);
  return is_in_schema(schema, *found, field);
}

TEST(UnusualNumbers, HaveRangesForFieldsThatThereAre) {
  const Json schema = Json::parse(project_schema());
  for (const UsualRange& range : usual_ranges()) {
    EXPECT_TRUE(is_in_schema(schema, schema, range.field)) << range.field;
    EXPECT_LT(range.least, range.most) << range.field;
  }
}

}  // namespace
}  // namespace ostrel::host
