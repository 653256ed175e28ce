// SPDX-License-Identifier: Apache-2.0
#include "ostrel/anchor_results.h"

#include "support/hostile_stream.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::stored;
using ostrel::testing::through_memory;

xAnchorResults results() {
  xAnchorResults outcome;
  outcome.setCheckID(101, 3, "A1");
  outcome.depth = 1500.0;
  outcome.setRd(200.0);
  outcome.setFd(-80.0);
  outcome.setSf(2.5);
  return outcome;
}

TEST(AnchorResults, StartEmptyAndResetToThat) {
  xAnchorResults outcome = results();
  EXPECT_EQ(outcome.getRd(), 200.0);
  EXPECT_EQ(outcome.getFd(), -80.0);
  EXPECT_EQ(outcome.getSf(), 2.5);
  outcome.reset();
  EXPECT_EQ(outcome.getRd(), 0.0);
  EXPECT_EQ(outcome.getFd(), 0.0);
  EXPECT_EQ(outcome.getSf(), 0.0);
  EXPECT_EQ(outcome.depth, 0.0);
  EXPECT_EQ(outcome.getIdObj(), -1);
  EXPECT_EQ(stored(outcome), stored(xAnchorResults{}));
}

TEST(AnchorResults, AreStoredAfterTheirBaseWithTheDepthLast) {
  EXPECT_EQ(results().getIOClass(), "xAnchorResults");
  EXPECT_EQ(stored(results()), frame_bytes(1, bytes_of([](outstream& out) {
                                             xCheckCombID id;
                                             id.setCheckID(101, 3, "A1");
                                             id.pub_write(out);
                                             out << 200.0 << -80.0 << 2.5 << 1500.0;
                                           })));
  EXPECT_EQ(stored(through_memory(results())), stored(results()));
}

TEST(AnchorResults, RefuseDamagedStreams) {
  ostrel::testing::expect_cuts_refused(results());
  EXPECT_GT(ostrel::testing::refused_mutations(results(), 200), 0);
}

}  // namespace
