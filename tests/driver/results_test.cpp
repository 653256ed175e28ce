// SPDX-License-Identifier: Apache-2.0
#include "ostrel/results.h"

#include "support/hostile_stream.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::read_stored;
using ostrel::testing::stored;
using ostrel::testing::through_memory;

xCombResults filled_results() {
  xCombResults results;
  results.setCombName("A1");
  results.setcombIndex(4);
  results.earthPress.diagrams.resize(2);
  results.hydroPress.diagrams.resize(1);
  results.subgradeModulus.springs[3].modulus = 0.5;
  results.loadCondPress.resize(1);
  results.femLoadConds.emplace_back("weight");
  results.femResults.axial.points = {{1.0, 2.0}};
  return results;
}

TEST(CombResults, AreStoredInTheirOrder) {
  const xCombResults results = filled_results();
  EXPECT_EQ(stored(results), frame_bytes(2, bytes_of([&results](outstream& out) {
                                           results.earthPress.pub_write(out);
                                           results.hydroPress.pub_write(out);
                                           results.subgradeModulus.pub_write(out);
                                           out << 1;
                                           results.loadCondPress[0].pub_write(out);
                                           out << 1;
                                           results.femLoadConds[0].pub_write(out);
                                           results.femResults.pub_write(out);
                                           out << 4 << "A1";
                                         })));
}

TEST(CombResults, ComeBackAsTheyWere) {
  const xCombResults read = through_memory(filled_results());
  EXPECT_EQ(read.getCombName(), "A1");
  EXPECT_EQ(read.getcombIndex(), 4);
  EXPECT_EQ(read.earthPress.diagrams.size(), 2U);
  EXPECT_EQ(read.hydroPress.diagrams.size(), 1U);
  EXPECT_DOUBLE_EQ(read.subgradeModulus.springs.at(3).modulus, 0.5);
  EXPECT_EQ(read.femLoadConds[0].getCondName(), "weight");
  EXPECT_DOUBLE_EQ(read.femResults.axial.points[0].value, 2.0);
  EXPECT_EQ(stored(read), stored(filled_results()));
}

TEST(CombResults, OfTheFirstVersionAreRefused) {
  xCombResults results;
  try {
    read_stored(results, frame_bytes(1, ""));
    FAIL() << "version 1 was read";
  } catch (int version) {
    EXPECT_EQ(version, 1);
  }
}

TEST(CombResults, OfADamagedStreamAreRefused) {
  ostrel::testing::expect_cuts_refused(filled_results());
  EXPECT_GT(ostrel::testing::refused_mutations(filled_results(), 500), 0);
}

TEST(CombResults, ResetEmptiesThem) {
  xCombResults results = filled_results();
  results.reset();
  EXPECT_EQ(stored(results), stored(xCombResults{}));
}

TEST(SheetpilingRes, ReplacesItsListWhenRead) {
  xSheetpilingRes results;
  results.combResults = {filled_results(), xCombResults{}};
  EXPECT_EQ(stored(results), frame_bytes(1, bytes_of([&results](outstream& out) {
                                           out << 2;
                                           results.combResults[0].pub_write(out);
                                           results.combResults[1].pub_write(out);
                                         })));
  xSheetpilingRes read;
  read.combResults.resize(5);
  read_stored(read, stored(results));
  ASSERT_EQ(read.combResults.size(), 2U);
  EXPECT_EQ(read.combResults[0].getCombName(), "A1");
  read.reset();
  EXPECT_TRUE(read.combResults.empty());
}

}  // namespace
