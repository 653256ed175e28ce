// SPDX-License-Identifier: Apache-2.0
#include "ostrel/identity.h"

#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::stored;
using ostrel::testing::through_memory;

TEST(Description, IsEmptyWhenNewAndAfterReset) {
  xDescription description;
  EXPECT_EQ(description.get_Description(), "");
  description.set_Description("fill");
  description.reset();
  EXPECT_EQ(description.get_Description(), "");
  EXPECT_EQ(description.getIOClass(), "xDescription");
}

TEST(Description, IsStoredAsItsTextAlone) {
  xDescription description;
  description.set_Description("argilla, \xc3\xa8 molle");
  EXPECT_EQ(
      stored(description),
      frame_bytes(1, bytes_of([&](outstream& out) { out << description.get_Description(); })));
  EXPECT_EQ(through_memory(description).get_Description(), description.get_Description());
}

TEST(ObjectID, IsUnsetWhenNewAndAfterReset) {
  xObjectID object;
  EXPECT_EQ(object.id, -1);
  EXPECT_EQ(object.name, "");
  object.setObjectID(3, "third");
  object.reset();
  EXPECT_EQ(object.id, -1);
  EXPECT_EQ(object.name, "");
}

TEST(ObjectID, KeepsTheLow32BitsOfALongId) {
  xObjectID object;
  object.setObjectID((std::int64_t{1} << 32) + 5, "wide");
  EXPECT_EQ(object.id, 5);
}

TEST(ObjectID, CopyTakesBoth) {
  xObjectID from;
  from.setObjectID(4, "fourth");
  xObjectID to;
  to.copy(from);
  EXPECT_EQ(to.id, 4);
  EXPECT_EQ(to.name, "fourth");
  to.copy(to);
  EXPECT_EQ(to.name, "fourth");
}

TEST(ObjectID, IsStoredAsIdThenName) {
  xObjectID object;
  object.setObjectID(-6, "sixth");
  EXPECT_EQ(stored(object), frame_bytes(1, bytes_of([](outstream& out) { out << -6 << "sixth"; })));
  EXPECT_EQ(through_memory(object).id, -6);
  EXPECT_EQ(through_memory(object).name, "sixth");
}

}  // namespace
