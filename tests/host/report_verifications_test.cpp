// SPDX-License-Identifier: Apache-2.0
#include "report_verifications.h"

#include "verification_testing.h"

#include <gmock/gmock.h>

#include <cmath>
#include <string>

namespace ostrel::host {
namespace {

// Of "A" the wall has 300 / 250 = 1.2 at 4 m in bending, of "B" 200 / 250 = 0.8 at 6 m in shear; the
// displacements of "S" have 20 / 8 = 2.5 and 10 / 5 = 2.
Outcome verified() {
  Outcome outcome;
  outcome.ultimate.structuralDesign = verified_wall();
  outcome.serviceability = verified_displacements();
  return outcome;
}

OrderedJson rows_of(const Outcome& outcome, const std::string& id) {
  for (const OrderedJson& block : verification_blocks(outcome)) {
    if (block["id"] == id) return block["rows"];
  }
  return OrderedJson::array();
}

TEST(VerificationBlocks, HoldTheWorstOfEach) {
  const OrderedJson rows = rows_of(verified(), "verifications");
  ASSERT_EQ(rows.size(), 10U);
  EXPECT_EQ(rows[0][0]["en"], "Wall sections");
  EXPECT_EQ(rows[0][1], 0.8);
  EXPECT_EQ(rows[0][2]["verdict"], false);
  EXPECT_EQ(rows[0][3], "B");
  EXPECT_EQ(rows[0][4]["it"], "6,00 m, taglio");
  EXPECT_EQ(rows[0][4]["en"], "6.00 m, shear");
  EXPECT_EQ(rows[1][2]["it"], "non eseguita");
  EXPECT_EQ(rows[1][3], "–");
}

TEST(VerificationBlocks, HoldEachOfEveryCombinationTheWorstFirst) {
  const OrderedJson rows = rows_of(verified(), "all-verifications");
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0][0], "B");
  EXPECT_EQ(rows[0][2], 0.8);
  EXPECT_EQ(rows[0][3]["verdict"], false);
  EXPECT_EQ(rows[0][4]["en"], "6.00 m, shear");
  // One of its two sections.
  EXPECT_EQ(rows[0][5]["it"], "1 su 2");
  EXPECT_EQ(rows[0][5]["en"], "1 of 2");
  EXPECT_EQ(rows[1][0], "A");
  EXPECT_EQ(rows[1][1]["it"], "Sezioni paratia");
  EXPECT_EQ(rows[1][2], 1.2);
  EXPECT_EQ(rows[1][3]["verdict"], true);
  EXPECT_EQ(rows[1][4]["en"], "4.00 m, bending");
  EXPECT_EQ(rows[1][5]["en"], "0 of 3");
  EXPECT_EQ(rows[2][0], "S");
  EXPECT_EQ(rows[2][1]["en"], "Displacements");
}

TEST(VerificationBlocks, FoldTheLongTable) {
  for (const OrderedJson& block : verification_blocks(verified()))
    EXPECT_EQ(block.contains("folded"), block["id"] == "all-verifications");
}

TEST(VerificationBlocks, HaveNoLongTableWhereNothingWasMade) {
  EXPECT_EQ(verification_blocks(Outcome{}).size(), 1U);
  EXPECT_TRUE(verdict_block(Outcome{}).is_null());
}

// 0.799 must not look like 0.80, nor 0.999 like 1.00.
TEST(VerificationBlocks, RoundFactorsDown) {
  Outcome outcome;
  outcome.ultimate.structuralDesign.bendShear.combinations = {
      sections_of("A", 1, {section_at(0.0, 300.0 / 0.999, 0.0)})};
  const OrderedJson rows = rows_of(outcome, "all-verifications");
  EXPECT_EQ(rows[0][2], 0.99);
  EXPECT_EQ(rows[0][3]["verdict"], false);
}

TEST(VerificationBlocks, PutWhatIsNoNumberFirstAndCallItNotSatisfied) {
  Outcome outcome = verified();
  outcome.ultimate.structuralDesign.bendShear.combinations.push_back(
      sections_of("N", 3, {section_at(1000.0, std::nan(""), 0.0)}));
  const OrderedJson rows = rows_of(outcome, "all-verifications");
  ASSERT_EQ(rows.size(), 4U);
  EXPECT_EQ(rows[0][0], "N");
  EXPECT_TRUE(rows[0][2].is_null());
  EXPECT_EQ(rows[0][3]["verdict"], false);
  EXPECT_TRUE(verdict_block(outcome)["factor"].is_null());
}

TEST(VerdictBlock, TellsWhatGoverns) {
  const OrderedJson block = verdict_block(verified());
  EXPECT_EQ(block["holds"], false);
  EXPECT_EQ(block["failing"], 1);
  EXPECT_EQ(block["count"], 3);
  EXPECT_EQ(block["factor"], 0.8);
  EXPECT_EQ(block["check"]["en"], "Wall sections");
  EXPECT_EQ(block["combination"], "B");
  EXPECT_EQ(block["place"]["it"], "6,00 m, taglio");
}

TEST(VerdictBlock, HoldsWhereAllDo) {
  Outcome outcome = verified();
  outcome.ultimate.structuralDesign.bendShear.combinations.pop_back();
  const OrderedJson block = verdict_block(outcome);
  EXPECT_EQ(block["holds"], true);
  EXPECT_EQ(block["failing"], 0);
  EXPECT_EQ(block["combination"], "A");
}

}  // namespace
}  // namespace ostrel::host
