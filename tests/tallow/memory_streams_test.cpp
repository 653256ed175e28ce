// SPDX-License-Identifier: Apache-2.0
#include <tallow/memory_streams.h>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

TEST(MemoryInStream, ReadsACopyOfTheBytesGiven) {
  std::string bytes("\1\0\0\0", 4);
  iMemoryInStream in(bytes.data(), bytes.size());
  bytes = "xxxx";
  EXPECT_EQ(in.readInt(), 1);
}

TEST(MemoryInStream, ReadsAStringGiven) {
  std::string bytes("\2\0\0\0\3\0\0\0", 8);
  iMemoryInStream in(std::move(bytes));
  EXPECT_EQ(in.readInt(), 2);
  EXPECT_EQ(in.readInt(), 3);
  EXPECT_THROW(in.readInt(), std::runtime_error);
}

TEST(MemoryInStream, MayBeEmpty) {
  iMemoryInStream in(nullptr, 0);
  EXPECT_EQ(in.tellg(), std::streampos(0));
  EXPECT_THROW(in.readBool(), std::runtime_error);
}

TEST(MemoryInStream, StaysWhereItIsWhenSoughtBeyondItsBytes) {
  iMemoryInStream in(std::string("\7\0\0\0", 4));
  in.seekg(5);
  EXPECT_TRUE(in.fail());
  in.clear();
  EXPECT_EQ(in.readInt(), 7);
}

TEST(MemoryOutStream, BeginsEmpty) {
  iMemoryOutStream out;
  EXPECT_EQ(out.bytes(), "");
  EXPECT_EQ(out.tellp(), std::streampos(0));
}

TEST(MemoryOutStream, ShowsAllBytesAlsoAfterGoingBack) {
  iMemoryOutStream out;
  out.writeInt(1);
  out.writeInt(2);
  out.seekp(0);
  EXPECT_EQ(out.bytes(), std::string_view("\1\0\0\0\2\0\0\0", 8));
  out.writeInt(9);
  EXPECT_EQ(out.tellp(), std::streampos(4));
  EXPECT_EQ(out.bytes(), std::string_view("\11\0\0\0\2\0\0\0", 8));
  out.seekp(0, std::ios::end);
  out.writeBool(true);
  EXPECT_EQ(out.bytes(), std::string_view("\11\0\0\0\2\0\0\0\1", 9));
}

TEST(MemoryOutStream, GivesItsBytesAwayAndStartsAnew) {
  iMemoryOutStream out;
  out.writeInt(1);
  EXPECT_EQ(out.takeBytes(), std::string("\1\0\0\0", 4));
  EXPECT_EQ(out.bytes(), "");
  EXPECT_EQ(out.tellp(), std::streampos(0));
  out.writeInt(2);
  EXPECT_EQ(out.bytes(), std::string_view("\2\0\0\0", 4));
}

TEST(MemoryOutStream, TakesTextLikeAnyStandardStream) {
  iMemoryOutStream out;
  out << "depth " << 12;
  EXPECT_EQ(out.bytes(), "depth 12");
}

}  // namespace
