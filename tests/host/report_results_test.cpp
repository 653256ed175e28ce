// SPDX-License-Identifier: Apache-2.0
#include "report_results.h"

#include "host_testing.h"
#include "outcome_testing.h"
#include "verification_testing.h"

#include <gmock/gmock.h>

#include <string>

namespace ostrel::host {
namespace {

// Two combinations with one result, of the second.
class ReportResults : public ::testing::Test {
protected:
  ReportResults() {
    project_ = project_of(sound_project());
    CombinationInput second = project_.combinations[0];
    second.name = "<2> & \"rare\"";
    second.kind = combRare;
    project_.combinations.push_back(second);
    outcome_ = small_outcome(second.name);
  }
  static OrderedJson table(const OrderedJson& blocks, const std::string& id) {
    for (const OrderedJson& block : blocks) {
      if (block.contains("id") && block["id"] == id) return block;
    }
    return {};
  }

  Project project_;
  Job job_;
  Outcome outcome_;
};

// In kNm, kN and mm: -5e6 Nmm, -4e3 N, -7e3 N. Displacements are turned: 9 mm away from the
// excavation is -9 mm, and the head's -8 mm is 8 mm towards it.
TEST_F(ReportResults, HaveTheLargestValuesInEngineeringUnits) {
  const OrderedJson rows = table(overview_blocks(project_, job_, outcome_, {}), "overview")["rows"];
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[1][0], "<2> & \"rare\"");
  EXPECT_EQ(rows[1][1]["en"], "Rare");
  EXPECT_EQ(rows[1][2], -5.0);
  EXPECT_EQ(rows[1][3], -4.0);
  EXPECT_EQ(rows[1][4], -7.0);
  EXPECT_EQ(rows[1][5], -9.0);
  EXPECT_EQ(rows[1][6], 8.0);
  EXPECT_EQ(rows[1][7], 4.0);
  EXPECT_EQ(rows[1][9], "0 / 0");
}

TEST_F(ReportResults, SayWhereACombinationHasNone) {
  const OrderedJson rows = table(overview_blocks(project_, job_, outcome_, {}), "overview")["rows"];
  EXPECT_TRUE(rows[0][2].is_null());
  EXPECT_EQ(rows[0][9]["it"], "nessun risultato");
  const OrderedJson blocks = combination_blocks(project_, job_, outcome_, {});
  EXPECT_EQ(blocks[0]["text"]["en"], "1. C · Ultimate limit state");
  EXPECT_EQ(blocks[1]["kind"], "note");
  EXPECT_EQ(blocks[2]["text"]["it"], "2. <2> & \"rare\" · Rara");
}

TEST_F(ReportResults, TellThePlaceOfEachLargestValue) {
  const OrderedJson rows =
      table(combination_blocks(project_, job_, outcome_, {}), "extremes-02")["rows"];
  EXPECT_EQ(rows[0], OrderedJson({Both{"Momento flettente", "Bending moment"}, -5.0, "kNm", 2.0}));
  EXPECT_EQ(rows[1][1], -4.0);
  EXPECT_EQ(rows[1][3], 1.0);
  EXPECT_EQ(rows[3][1], -9.0);
  EXPECT_EQ(rows[3][2], "mm");
}

// 8 mm against 1000 N/mm are 8 kN towards the retained side.
TEST_F(ReportResults, TellTheForcesOfSupports) {
  outcome_.model.fem.springDof1[0] = 1000.0;
  const OrderedJson support =
      table(combination_blocks(project_, job_, outcome_, {}), "support-forces-02");
  EXPECT_EQ(support["columns"][1]["label"]["en"], "Horizontal, towards retained side");
  EXPECT_EQ(support["rows"][0][0], 0.0);
  EXPECT_EQ(support["rows"][0][1], 8.0);
  EXPECT_TRUE(support["rows"][0][2].is_null());
}

TEST_F(ReportResults, NameAnAnchorByItsNumberWhereItHasNoName) {
  AnchorSoll anchor;
  anchor.axial.start = xPoint2d(0.0, -1500.0);
  anchor.axial.points = {{0.0, 250e3}, {9000.0, 250e3}};
  outcome_.results.combResults[0].femResults.anchorSoll = {anchor};
  const OrderedJson rows =
      table(combination_blocks(project_, job_, outcome_, {}), "anchor-forces-02")["rows"];
  EXPECT_EQ(rows[0][0], "1");
  EXPECT_EQ(rows[0][1], 1.5);
  EXPECT_EQ(rows[0][2], 250.0);
}

// Sixteen bars of 20 mm from the head to 4 m, ten from 6 m to 8 m: 16 * 3.1416 = 50.27 cm² and
// 31.42 cm².
TEST_F(ReportResults, TakeEqualReinforcementTogether) {
  outcome_.ultimate.structuralDesign = verified_wall();
  const OrderedJson rows =
      table(reinforcement_blocks(project_, outcome_, {}), "reinforcement")["rows"];
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0][0], 0.0);
  EXPECT_EQ(rows[0][1], 4.0);
  EXPECT_NEAR(rows[0][3].get<double>(), 50.2655, 1e-4);
  EXPECT_EQ(rows[1][0], 6.0);
  EXPECT_EQ(rows[1][1], 8.0);
  EXPECT_NEAR(rows[1][3].get<double>(), 31.4159, 1e-4);
}

TEST_F(ReportResults, TellTheGoverningCircles) {
  EXPECT_TRUE(stability_blocks(outcome_, {}).empty());
  outcome_.ultimate.slopeStabilityDesign.getResults() = {circle_of("A", 1)};
  const OrderedJson row = table(stability_blocks(outcome_, {}), "slip-circles")["rows"][0];
  // mm and Nmm: -4000, 4500, 21000; 6e10 and -3e10.
  EXPECT_EQ(row[0], "A");
  EXPECT_EQ(row[1], 2.0);
  EXPECT_EQ(row[2], -4.0);
  EXPECT_EQ(row[3], 4.5);
  EXPECT_EQ(row[4], 21.0);
  EXPECT_EQ(row[5], 60000.0);
  EXPECT_EQ(row[6], -30000.0);
  EXPECT_EQ(row[7]["verdict"], true);
}

}  // namespace
}  // namespace ostrel::host
