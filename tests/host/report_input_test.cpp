// SPDX-License-Identifier: Apache-2.0
#include "report_input.h"

#include "host_testing.h"
#include "report_combinations.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace ostrel::host {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;
using Json = nlohmann::json;

class ReportInput : public ::testing::Test {
protected:
  void read(const Json& json) { blocks_ = input_blocks(project_of(json)); }

  OrderedJson block(const std::string& kind, const std::string& key,
                    const std::string& value) const {
    for (const OrderedJson& block : blocks_) {
      const bool named =
          block.contains(key)
          && (block[key] == value || (block[key].is_object() && block[key]["en"] == value));
      if (block["kind"] == kind && named) return block;
    }
    return {};
  }
  OrderedJson row(const std::string& table, std::size_t place) const {
    return block("table", "id", table)["rows"][place];
  }
  // A fact by its English name, as "value unit".
  std::string fact(const std::string& caption, const std::string& label) const {
    const OrderedJson facts = block("facts", "caption", caption);
    if (facts.is_null()) return "none";
    for (const OrderedJson& row : facts["rows"]) {
      if (row["label"]["en"] == label)
        return row["value"].dump() + " " + row["unit"].get<std::string>();
    }
    return "none";
  }
  std::vector<std::string> notes() const {
    std::vector<std::string> notes;
    for (const OrderedJson& block : blocks_) {
      if (block["kind"] == "note") notes.push_back(block["text"]["it"].get<std::string>());
    }
    return notes;
  }

  OrderedJson blocks_;
};

TEST_F(ReportInput, TellsAWallOfPiles) {
  read(sound_project());
  EXPECT_EQ(fact("Wall", "Diameter of the piles"), "600.0 mm");
  EXPECT_EQ(fact("Wall", "Distance between axes"), "1.0 m");
  EXPECT_EQ(fact("Wall", "Piles considered"), "4 ");
  EXPECT_EQ(fact("Wall", "Length"), "10.0 m");
  EXPECT_EQ(fact("Wall", "Depth of the excavation"), "4.0 m");
  EXPECT_EQ(fact("Wall", "Thickness"), "none");
  EXPECT_EQ(fact("Wall", "Cap beam, height"), "none");
}

TEST_F(ReportInput, TellsADiaphragm) {
  read(sound_diaphragm());
  EXPECT_EQ(fact("Wall", "Thickness"), "800.0 mm");
  EXPECT_EQ(fact("Wall", "Width of a panel"), "2.5 m");
  EXPECT_EQ(fact("Wall", "Diameter of the piles"), "none");
  EXPECT_EQ(fact("Rules of the reinforcement", "Retained side, least"), "0.2 %");
  EXPECT_EQ(fact("Rules of the reinforcement", "Least reinforcement"), "none");
}

// One layer from the head down to -30 m.
TEST_F(ReportInput, TellsSoilsAndLayers) {
  read(sound_project());
  const OrderedJson soil = row("soils", 0);
  EXPECT_EQ(soil[0], "sand");
  EXPECT_EQ(soil[1], 18.0);
  EXPECT_EQ(soil[3], 32.0);
  EXPECT_TRUE(soil[9].is_null());  // no constrained modulus is given
  EXPECT_EQ(row("layers", 0), OrderedJson({"sand", 0.0, -30.0, 30.0}));
}

TEST_F(ReportInput, EndsALayerWhereTheNextBegins) {
  Json json = sound_project();
  json["ground"]["layers"].push_back({{"soil", "sand"}, {"top_level_m", -6.5}});
  read(json);
  EXPECT_EQ(row("layers", 0), OrderedJson({"sand", 0.0, -6.5, 6.5}));
  EXPECT_EQ(row("layers", 1), OrderedJson({"sand", -6.5, -30.0, 23.5}));
}

TEST_F(ReportInput, ListsTheVerticesOfPolygons) {
  Json json = sound_project();
  json["ground"] = {
      {"layers",
       {{{"soil", "sand"},
         {"polygons_m", {{{-30, -30}, {40, -30}, {40, 0}, {0, 0}, {0, -4.5}, {-30, -4.5}}}}}}}};
  json["excavation_depth_m"] = 4.5;
  read(json);
  EXPECT_EQ(row("layers", 0)[2]["en"], "(-30, -30) (40, -30) (40, 0) (0, 0) (0, -4.5) (-30, -4.5)");
  EXPECT_THAT(row("layers", 0)[2]["it"].get<std::string>(), HasSubstr("(0; -4,5) (-30; -4,5)"));
}

TEST_F(ReportInput, TellsLevelsOfWater) {
  Json json = sound_project();
  read(json);
  EXPECT_EQ(fact("Water", "Level on the retained side"), "none");
  json["water"] = {{"retained_level_m", -1.25}, {"excavated_level_m", -4}};
  read(json);
  EXPECT_EQ(fact("Water", "Level on the retained side"), "-1.25 m");
  EXPECT_EQ(fact("Water", "Level on the excavation side"), "-4.0 m");
}

TEST_F(ReportInput, TellsWhatHasADistanceAndWhatHasNone) {
  Json json = sound_project();
  json["loads"].push_back({{"name", "S"},
                           {"on_ground",
                            {{{"type", "strip"},
                              {"value_kPa", 20},
                              {"end_value_kPa", 5},
                              {"distance_m", 2},
                              {"width_m", 3}},
                             {{"type", "line"}, {"value_kN_m", 7}, {"distance_m", 1.5}}}}});
  read(json);
  EXPECT_EQ(row("ground-loads", 0)[1]["en"], "uniform");
  EXPECT_TRUE(row("ground-loads", 0)[5].is_null());
  const OrderedJson strip = row("ground-loads", 1);
  EXPECT_EQ(strip[2], 20.0);
  EXPECT_EQ(strip[3], 5.0);
  EXPECT_EQ(strip[4], "kPa");
  EXPECT_EQ(strip[6], 3.0);
  const OrderedJson line = row("ground-loads", 2);
  EXPECT_TRUE(line[3].is_null());
  EXPECT_EQ(line[4], "kN/m");
  EXPECT_EQ(line[5], 1.5);
}

TEST_F(ReportInput, SetsFavourableBesideUnfavourable) {
  Json json = sound_project();
  json["combinations"][0]["actions"] = {
      {"earth_pressure", {{"favourable", 1}, {"unfavourable", 1.3}}}, {"loads", {{"Q", 1.5}}}};
  read(json);
  const OrderedJson rows = block("table", "id", "actions")["rows"];
  ASSERT_EQ(rows.size(), 4U);  // weight, soil, water, Q
  EXPECT_EQ(rows[1][0]["en"], "Earth pressure");
  EXPECT_EQ(rows[1][1]["pair"], OrderedJson({1.0, 1.3}));
  EXPECT_EQ(rows[3][0]["en"], "Q");
  EXPECT_EQ(rows[3][1]["pair"], OrderedJson({1.5, 1.5}));
}

// The first has nothing of its own: the pressure is at rest, adhesion and friction are the soil's.
TEST_F(ReportInput, TellsWhatEachBondIsWorkedOutFrom) {
  Json json = sound_project();
  const Json anchor = {{"level_m", -1}, {"inclination_deg", 20},   {"free_length_m", 8},
                       {"number", 2},   {"tendon_area_mm2", 500},  {"E_GPa", 195},
                       {"xi_3", 1.8},   {"bond_diameter_mm", 180}, {"bond_length_m", 6}};
  json["anchors"] = {anchor, anchor, anchor};
  json["anchors"][1].update({{"name", "<T2>"},
                             {"pressure_coefficient", "active"},
                             {"bond", {{"adhesion_kPa", 12.5}, {"friction_angle_deg", 0}}},
                             {"minimum_values", true}});
  json["anchors"][2]["pressure_coefficient"] = "mean";
  read(json);
  const OrderedJson table = block("table", "id", "bonds");
  EXPECT_EQ(table["columns"][2]["label"]["it"], "Adesione [kPa]");
  EXPECT_EQ(table["columns"][3]["label"]["en"], "Friction angle [°]");
  const Both of_soil{"del terreno", "of the soil"};
  ASSERT_EQ(table["rows"].size(), 3U);
  EXPECT_EQ(table["rows"][0],
            OrderedJson({"1", Both{"a riposo", "at rest"}, of_soil, of_soil, false}));
  EXPECT_EQ(table["rows"][1], OrderedJson({"<T2>", Both{"attiva", "active"}, Both{"12,5", "12.5"},
                                           Both{"0", "0"}, true}));
  EXPECT_EQ(table["rows"][2],
            OrderedJson({"3", Both{"media delle due", "mean of both"}, of_soil, of_soil, false}));
}

TEST_F(ReportInput, HasNoBondsWithoutAnchors) {
  read(sound_project());
  EXPECT_TRUE(block("table", "id", "bonds").is_null());
}

// What a standard gives for the ground in front changes nothing; who reads the report is told. The
// other factors are not marked.
TEST_F(ReportInput, MarksTheResistanceInFrontThatNoSpringReads) {
  read(with("/combinations/0/resistance_factors", {{"soil_in_front", 1.4}, {"uplift", 0.9}}));
  const OrderedJson rows = block("table", "id", "resistance-factors")["rows"];
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0], OrderedJson({Both{"Terreno a valle (nessuna molla lo legge)",
                                       "Soil in front (no spring reads it)"},
                                  1.4}));
  EXPECT_EQ(rows[1], OrderedJson({Both{"Sollevamento", "Uplift"}, 0.9}));
}

TEST_F(ReportInput, SaysNothingOfTheResistanceInFrontWhereItHasNoFactor) {
  read(with("/combinations/0/resistance_factors", {{"uplift", 0.9}}));
  const OrderedJson rows = block("table", "id", "resistance-factors")["rows"];
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0][0]["en"], "Uplift");
}

TEST_F(ReportInput, LeavesNamesAsTheyAre) {
  Json json = sound_project();
  const std::string name = "<b>\"Q\" & 'q'";
  json["loads"][0]["name"] = name;
  json["combinations"][0]["actions"] = {{"loads", {{name, 1}}}};
  read(json);
  EXPECT_EQ(row("ground-loads", 0)[0], name);
}

// The notes come in English here: the reader of the tests speaks it.
TEST_F(ReportInput, TellsNotesInBothLanguages) {
  Json json = sound_project();
  json.erase("combinations");
  json["standard"] = "NTC2008";
  read(json);
  EXPECT_THAT(notes(), Contains(HasSubstr("Norma NTC2008: combinazioni aggiunte")));
  EXPECT_THAT(notes(), Not(Contains(HasSubstr("Standard"))));
}

TEST(NameOf, IsUnknownBeyondTheList) {
  EXPECT_EQ(name_of(combSeismic).english, "Seismic");
  EXPECT_EQ(name_of(checkDisplacements).italian, "Spostamenti");
  EXPECT_EQ(name_of(static_cast<pCheckTypes>(99)).english, "?");
}

}  // namespace
}  // namespace ostrel::host
