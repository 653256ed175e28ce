// SPDX-License-Identifier: Apache-2.0
#include "result_tables.h"

#include "host_testing.h"
#include "project_conversion.h"
#include "table_labels.h"

#include <gmock/gmock.h>

#include <cmath>
#include <map>

namespace ostrel::host {
namespace {

using Json = nlohmann::json;

class ResultTables : public ::testing::Test {
protected:
  void run(const Json& json) {
    const Project project = project_of(json);
    const Job job = to_job(project);
    outcome_ = analyse(job);
    tables_ = result_tables(project, job, outcome_, Texts(Language::english));
  }
  const ResultTable& table(const std::string& subject) const {
    for (const ResultTable& table : tables_) {
      if (table.subject == subject) return table;
    }
    throw std::runtime_error(subject);
  }
  static std::size_t place_of(const ResultTable& table, std::string_view column) {
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
      if (table.columns[i] == column) return i;
    }
    throw std::runtime_error(std::string(column));
  }
  static double number(const ResultTable& table, std::size_t row, std::string_view column) {
    return std::get<double>(table.rows.at(row).at(place_of(table, column)));
  }
  static std::string text(const ResultTable& table, std::size_t row, std::string_view column) {
    const TableCell& cell = table.rows.at(row).at(place_of(table, column));
    const auto* one = std::get_if<CodedText>(&cell);
    return one != nullptr ? one->code : std::get<std::string>(cell);
  }

  Outcome outcome_;
  std::vector<ResultTable> tables_;
};

TEST_F(ResultTables, HaveARowAsLongAsTheirColumnsAndAHeadingForEach) {
  run(sound_project());
  ASSERT_EQ(tables_.size(), 9u);
  for (const ResultTable& table : tables_) {
    for (const Language language : {Language::italian, Language::english}) {
      EXPECT_NE(subject_label(table.subject, Texts(language)), "") << table.subject;
      for (const std::string_view column : table.columns)
        EXPECT_NE(column_label(column, Texts(language)), "") << column;
    }
    for (const auto& row : table.rows)
      EXPECT_EQ(row.size(), table.columns.size()) << table.subject;
  }
}

// A layer of clay from 6 m down to 8 m: at its upper border the clay counts, at its lower one the
// sand below it. The springs begin at the excavation, 4 m deep.
TEST_F(ResultTables, NameTheSoilOfEachSpringTheLowerOneAtABorder) {
  Json project = sound_project();
  Json clay = project["soils"][0];
  clay["name"] = "clay";
  project["soils"].push_back(clay);
  project["ground"]["layers"] = {{{"soil", "sand"}, {"top_level_m", 0}},
                                 {{"soil", "clay"}, {"top_level_m", -6}},
                                 {{"soil", "sand"}, {"top_level_m", -8}}};
  run(project);
  const ResultTable& springs = table("springs");
  ASSERT_GT(springs.rows.size(), 3u);
  EXPECT_DOUBLE_EQ(number(springs, 0, "depth_m"), 4.0);
  std::size_t borders = 0;
  for (std::size_t i = 0; i < springs.rows.size(); ++i) {
    const double depth = number(springs, i, "depth_m");
    const bool in_clay = depth > 6.0 - 1e-9 && depth < 8.0 - 1e-9;
    EXPECT_EQ(text(springs, i, "soil"), in_clay ? "clay" : "sand") << depth;
    if (std::abs(depth - 6.0) < 1e-9 || std::abs(depth - 8.0) < 1e-9) ++borders;
  }
  EXPECT_EQ(borders, 2u);
}

// Nodes count from the head: the numbers follow one another, and the same number of the beam's nodes
// lies above the first spring.
TEST_F(ResultTables, NumberTheNodesOfSpringsFromTheHead) {
  run(sound_project());
  const ResultTable& springs = table("springs");
  for (std::size_t i = 0; i < springs.rows.size(); ++i) {
    const auto node = static_cast<std::size_t>(number(springs, i, "node"));
    EXPECT_DOUBLE_EQ(outcome_.model.fem.nodes.at(node).y, 1e3 * number(springs, i, "depth_m"));
  }
}

// What acts on a wall in equilibrium adds up to nothing.
TEST_F(ResultTables, LeaveNothingOverOfTheForcesOnTheWall) {
  run(sound_project());
  const ResultTable& equilibrium = table("equilibrium");
  ASSERT_EQ(equilibrium.rows.size(), 6u);
  double largest = 0.0;
  double sum = 0.0;
  for (std::size_t i = 0; i < 5; ++i) {
    const double force = number(equilibrium, i, "towards_retained_kN");
    largest = std::max(largest, std::abs(force));
    sum += force;
  }
  EXPECT_GT(largest, 1.0);
  EXPECT_EQ(text(equilibrium, 5, "part"), "residual");
  EXPECT_NEAR(number(equilibrium, 5, "towards_retained_kN"), sum, 1e-12 * largest);
  EXPECT_NEAR(sum, 0.0, 1e-6 * largest);
}

TEST_F(ResultTables, TellTheResidualByTheLoadsInItsRowAlone) {
  run(sound_project());
  const ResultTable& equilibrium = table("equilibrium");
  const std::size_t column = place_of(equilibrium, "relative_to_loads");
  for (std::size_t i = 0; i < 5; ++i)
    EXPECT_TRUE(std::holds_alternative<std::monostate>(equilibrium.rows.at(i).at(column)));
  EXPECT_LE(number(equilibrium, 5, "relative_to_loads"), 1e-6);
}

// 4 piles of 1 m and 2 anchors of 500 mm² at 30 degrees, 9 m of them free: each carries the force of
// two piles; on one pile 2 · 500 mm² · 195 GPa / 9 m / 4 = 5416.7 kN/m.
TEST_F(ResultTables, TellTheForcesOfAnAnchorAndWhatTheyPutOnTheWall) {
  Json project = with("/anchors", {{{"name", "A"},
                                    {"level_m", -1},
                                    {"inclination_deg", 30},
                                    {"free_length_m", 9},
                                    {"number", 2},
                                    {"tendon_area_mm2", 500},
                                    {"E_GPa", 195},
                                    {"prestress_kN", 100}}});
  run(project);
  const ResultTable& anchors = table("anchors");
  ASSERT_EQ(anchors.rows.size(), 1u);
  EXPECT_EQ(text(anchors, 0, "name"), "A");
  EXPECT_EQ(number(anchors, 0, "anchor"), 1.0);
  EXPECT_DOUBLE_EQ(number(anchors, 0, "prestress_kN"), 100.0);
  EXPECT_DOUBLE_EQ(number(anchors, 0, "share"), 2.0);
  EXPECT_NEAR(number(anchors, 0, "stiffness_kN_m"), 2 * 500.0 * 195.0 / 9.0 / 4.0, 1e-6);
  const double force = number(anchors, 0, "force_kN");
  EXPECT_GT(force, 100.0);
  EXPECT_NEAR(number(anchors, 0, "horizontal_kN"), force * std::sqrt(0.75), 1e-9 * force);
  EXPECT_NEAR(number(anchors, 0, "vertical_kN"), force * 0.5, 1e-9 * force);
  // The force beyond the prestress is what the head draws out of the anchor.
  const double drawn_mm = number(anchors, 0, "head_displacement_mm") * std::sqrt(0.75)
                        - number(anchors, 0, "head_settlement_mm") * 0.5;
  EXPECT_NEAR(force - 100.0, 5416.666667 * drawn_mm / 1e3 * 2.0, 1e-6 * force);
}

TEST_F(ResultTables, TellEveryVerificationMadeOrNot) {
  run(sound_project());
  const ResultTable& verifications = table("verifications");
  EXPECT_EQ(verifications.rows.size(), 10u);
  for (const auto& row : verifications.rows) {
    const bool made = std::get<bool>(row.at(1));
    EXPECT_EQ(std::holds_alternative<bool>(row.at(3)), made);
    EXPECT_EQ(std::holds_alternative<std::string>(row.at(4)), made);
  }
}

TEST(ResultTable, BecomesCommaSeparatedValues) {
  const ResultTable table{.subject = "s",
                          .columns = {"a", "b", "c", "d"},
                          .rows = {{std::string("x, y"), 0.5, true, std::monostate{}},
                                   {CodedText{"code", "words"}, -2.0, false, 1.0}}};
  EXPECT_EQ(csv_of(table), "a,b,c,d\r\n\"x, y\",0.5,1,\r\ncode,-2,0,1\r\n");
}

}  // namespace
}  // namespace ostrel::host
