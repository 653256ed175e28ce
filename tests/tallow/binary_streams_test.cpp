// SPDX-License-Identifier: Apache-2.0
#include "tallow/largest_allocation_testing.h"

#include <tallow/binary_streams.h>
#include <tallow/memory_streams.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <stdexcept>
#include <string>

namespace {

using testing::HasSubstr;
using testing::StrEq;
using testing::ThrowsMessage;

std::string bytes(std::initializer_list<int> values) {
  std::string text;
  for (const int value : values)
    text += static_cast<char>(static_cast<unsigned char>(value));
  return text;
}

template <class Write>
std::string written(const Write& write) {
  iMemoryOutStream out;
  write(out);
  return std::string(out.bytes());
}

std::string int_bytes(int value) {
  return written([value](iOutStream& out) { out.writeInt(value); });
}

// The doubles are handed on as their bits, so that nothing but the streams can change them.
std::string double_bytes(std::uint64_t bits) {
  return written([bits](iOutStream& out) { out.writeDouble(std::bit_cast<double>(bits)); });
}

std::uint64_t double_bits_after_round_trip(std::uint64_t bits) {
  iMemoryInStream in(double_bytes(bits));
  return std::bit_cast<std::uint64_t>(in.readDouble());
}

std::string string_bytes(const std::string& value) {
  return written([&value](iOutStream& out) { out.writeString(value); });
}

// Takes up to `room` bytes and no more.
class NarrowBuffer : public std::streambuf {
public:
  explicit NarrowBuffer(std::size_t room) : room_(room) {}

protected:
  int_type overflow(int_type byte) override {
    if (room_ == 0) return traits_type::eof();
    --room_;
    return traits_type::not_eof(byte);
  }

private:
  std::size_t room_;
};

class NarrowStream : public iOutStream {
public:
  explicit NarrowStream(std::size_t room) : iOutStream(std::make_unique<NarrowBuffer>(room)) {}
};

class StreamWithoutSource : public iInStream {
public:
  StreamWithoutSource() : iInStream(nullptr) {}
};

class StreamWithoutTarget : public iOutStream {
public:
  StreamWithoutTarget() : iOutStream(nullptr) {}
};

// 305 419 896 is 0x12345678, -2 is 0xFFFFFFFE in two's complement.
TEST(WireForm, IntIsFourBytesLowestFirst) {
  EXPECT_EQ(int_bytes(305'419'896), bytes({0x78, 0x56, 0x34, 0x12}));
  EXPECT_EQ(int_bytes(-2), bytes({0xFE, 0xFF, 0xFF, 0xFF}));
  EXPECT_EQ(int_bytes(std::numeric_limits<int>::min()), bytes({0, 0, 0, 0x80}));
}

// 1 = 0x3FF0000000000000; -2.5 = -1.25 * 2^1: sign 1, exponent 1024 = 0x400, fraction 0.25 =
// 0x4..0, so 0xC004000000000000.
TEST(WireForm, DoubleIsItsEightBytesLowestFirst) {
  const std::string one = written([](iOutStream& out) { out.writeDouble(1.0); });
  const std::string other = written([](iOutStream& out) { out.writeDouble(-2.5); });
  EXPECT_EQ(one, bytes({0, 0, 0, 0, 0, 0, 0xF0, 0x3F}));
  EXPECT_EQ(other, bytes({0, 0, 0, 0, 0, 0, 0x04, 0xC0}));
  EXPECT_EQ(double_bytes(0x0123456789ABCDEFU),
            bytes({0xEF, 0xCD, 0xAB, 0x89, 0x67, 0x45, 0x23, 0x01}));
}

TEST(WireForm, BoolIsOneByte) {
  EXPECT_EQ(written([](iOutStream& out) { out.writeBool(true); }), bytes({1}));
  EXPECT_EQ(written([](iOutStream& out) { out.writeBool(false); }), bytes({0}));
}

TEST(WireForm, StringIsItsLengthInEightBytesAndItsBytes) {
  EXPECT_EQ(string_bytes("Lias"), bytes({4, 0, 0, 0, 0, 0, 0, 0, 'L', 'i', 'a', 's'}));
  EXPECT_EQ(string_bytes(""), bytes({0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(string_bytes(std::string("a\0b", 3)), bytes({3, 0, 0, 0, 0, 0, 0, 0, 'a', 0, 'b'}));
  // 258 = 0x102
  EXPECT_EQ(string_bytes(std::string(258, 'x')).substr(0, 8), bytes({2, 1, 0, 0, 0, 0, 0, 0}));
}

TEST(WireForm, IsReadFromBytesWrittenByHand) {
  iMemoryInStream in(bytes({0xFE, 0xFF, 0xFF, 0xFF}) + bytes({0, 0, 0, 0, 0, 0, 0x04, 0xC0})
                     + bytes({1, 0}) + bytes({2, 0, 0, 0, 0, 0, 0, 0, 'S', 'P'}));
  EXPECT_EQ(in.readInt(), -2);
  EXPECT_DOUBLE_EQ(in.readDouble(), -2.5);
  EXPECT_TRUE(in.readBool());
  EXPECT_FALSE(in.readBool());
  EXPECT_EQ(in.readString(), "SP");
}

TEST(RoundTrip, KeepsTheExtremesOfAnInt) {
  for (const int value : {0, 1, -1, 127, 128, 255, 256, -129, 65'536,
                          std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    iMemoryInStream in(int_bytes(value));
    EXPECT_EQ(in.readInt(), value);
  }
}

TEST(RoundTrip, KeepsEveryBitOfADouble) {
  constexpr std::array<std::uint64_t, 10> patterns{
      0x0000000000000000U,  // 0
      0x8000000000000000U,  // -0
      0x0000000000000001U,  // the smallest denormal
      0x800FFFFFFFFFFFFFU,  // the largest negative denormal
      0x7FEFFFFFFFFFFFFFU,  // the largest finite value
      0x7FF0000000000000U,  // infinity
      0xFFF0000000000000U,  // -infinity
      0x7FF8000000C0FFEEU,  // a quiet NaN with a payload
      0x7FF0000000000001U,  // a signalling NaN
      0xFFF4000000000123U,  // a negative signalling NaN with a payload
  };
  for (const std::uint64_t bits : patterns) {
    EXPECT_EQ(double_bits_after_round_trip(bits), bits) << std::hex << bits;
  }
}

TEST(RoundTrip, KeepsAMebibyteOfStringWithZeroBytes) {
  std::string value(1024 * 1024, '\0');
  for (std::size_t i = 0; i < value.size(); i += 7)
    value[i] = static_cast<char>(i % 251);
  iMemoryInStream in(string_bytes(value) + int_bytes(77));
  EXPECT_EQ(in.readString(), value);
  EXPECT_EQ(in.readInt(), 77);
}

TEST(RoundTrip, KeepsStringsAroundTheStepOfGrowth) {
  for (const std::size_t size : {65'535U, 65'536U, 65'537U, 131'072U}) {
    std::string value(size, 'a');
    value.back() = 'z';
    iMemoryInStream in(string_bytes(value));
    EXPECT_EQ(in.readString(), value) << size;
    EXPECT_EQ(in.peek(), std::char_traits<char>::eof());
  }
}

TEST(RoundTrip, KeepsRawBytes) {
  const std::string raw = bytes({9, 0, 255, 10, 13, 26});
  const std::string stored = written([&](iOutStream& out) { out.writeBytes(raw.data(), 6); });
  EXPECT_EQ(stored, raw);
  iMemoryInStream in(stored);
  std::string read(6, '?');
  in.readBytes(read.data(), 6);
  EXPECT_EQ(read, raw);
}

TEST(TypedRead, RefusesABoolThatIsNeitherZeroNorOne) {
  for (const int byte : {2, 127, 128, 255}) {
    iMemoryInStream in(bytes({byte}));
    EXPECT_THAT([&in] { in.readBool(); },
                ThrowsMessage<std::runtime_error>(
                    StrEq("byte " + std::to_string(byte) + " in the place of a bool")));
  }
}

TEST(TypedRead, SaysWhatTheStreamEndedIn) {
  iMemoryInStream three(bytes({1, 2, 3}));
  EXPECT_THAT([&three] { three.readInt(); },
              ThrowsMessage<std::runtime_error>(StrEq("stream ended while reading an int")));
  iMemoryInStream seven(bytes({1, 2, 3, 4, 5, 6, 7}));
  EXPECT_THAT([&seven] { seven.readDouble(); },
              ThrowsMessage<std::runtime_error>(StrEq("stream ended while reading a double")));
  iMemoryInStream none{std::string()};
  EXPECT_THAT([&none] { none.readBool(); },
              ThrowsMessage<std::runtime_error>(StrEq("stream ended while reading a bool")));
  iMemoryInStream length(bytes({1, 0, 0, 0, 0, 0, 0}));
  EXPECT_THAT([&length] { length.readString(); },
              ThrowsMessage<std::runtime_error>(
                  StrEq("stream ended while reading the length of a string")));
  iMemoryInStream text(bytes({3, 0, 0, 0, 0, 0, 0, 0, 'a', 'b'}));
  EXPECT_THAT(
      [&text] { text.readString(); },
      ThrowsMessage<std::runtime_error>(StrEq("stream ended while reading a string of 3 bytes")));
  iMemoryInStream raw(bytes({1}));
  std::array<char, 2> two{};
  EXPECT_THAT([&] { raw.readBytes(two.data(), 2); },
              ThrowsMessage<std::runtime_error>(StrEq("stream ended while reading 2 bytes")));
}

TEST(TypedRead, LeavesReadWhatWasReadBefore) {
  iMemoryInStream in(int_bytes(5) + bytes({1, 2}));
  EXPECT_EQ(in.readInt(), 5);
  EXPECT_THROW(in.readInt(), std::runtime_error);
  EXPECT_TRUE(in.eof());
  EXPECT_TRUE(in.fail());
  in.clear();
  in.seekg(0);
  EXPECT_EQ(in.readInt(), 5);
}

// 2^63 and 2^64 - 1 bytes, and 1 GiB which a machine might give.
TEST(TypedRead, AllocatesNothingForAClaimedLength) {
  for (const std::string& length :
       {bytes({0, 0, 0, 0, 0, 0, 0, 0x80}), bytes({255, 255, 255, 255, 255, 255, 255, 255}),
        bytes({0, 0, 0, 0x40, 0, 0, 0, 0})}) {
    iMemoryInStream in(length + "sand");
    const LargestAllocation watch;
    EXPECT_THROW(in.readString(), std::runtime_error);
    EXPECT_LE(watch.bytes(), 80U * 1024);
  }
}

TEST(TypedRead, NamesTheClaimedLength) {
  iMemoryInStream in(bytes({255, 255, 255, 255, 255, 255, 255, 255}));
  EXPECT_THAT([&in] { in.readString(); },
              ThrowsMessage<std::runtime_error>(HasSubstr("18446744073709551615 bytes")));
}

TEST(TypedRead, ThrowsOnAStreamThatFailedBefore) {
  iMemoryInStream in(int_bytes(1) + int_bytes(2));
  in.setstate(std::ios::failbit);
  EXPECT_THAT([&in] { in.readInt(); },
              ThrowsMessage<std::runtime_error>(StrEq("stream failed at reading an int")));
  EXPECT_THROW(in.readDouble(), std::runtime_error);
  EXPECT_THROW(in.readBool(), std::runtime_error);
  EXPECT_THROW(in.readString(), std::runtime_error);
  EXPECT_THROW(in.readBytes(nullptr, 0), std::runtime_error);
  in.clear();
  EXPECT_EQ(in.readInt(), 1);  // nothing was consumed
}

TEST(TypedRead, ThrowsOnAStreamWithoutASource) {
  StreamWithoutSource in;
  EXPECT_THROW(in.readInt(), std::runtime_error);
}

TEST(TypedRead, OfNoBytesSucceedsAtTheEnd) {
  iMemoryInStream in(string_bytes(""));
  EXPECT_EQ(in.readString(), "");
  EXPECT_NO_THROW(in.readBytes(nullptr, 0));
  EXPECT_TRUE(in.good());
}

TEST(TypedRead, ThrowsItsOwnExceptionUnderAnExceptionsMaskAndKeepsTheMask) {
  const auto mask = std::ios::failbit | std::ios::badbit | std::ios::eofbit;
  iMemoryInStream in(bytes({1, 2, 3}));
  in.exceptions(mask);
  EXPECT_THAT([&in] { in.readInt(); },
              ThrowsMessage<std::runtime_error>(StrEq("stream ended while reading an int")));
  EXPECT_EQ(in.exceptions(), mask);
  EXPECT_TRUE(in.fail());
  EXPECT_THROW(in.readInt(), std::runtime_error);
}

TEST(TypedRead, SucceedsUnderAnExceptionsMask) {
  iMemoryInStream in(int_bytes(8));
  in.exceptions(std::ios::failbit | std::ios::eofbit);
  EXPECT_EQ(in.readInt(), 8);
}

TEST(TypedRead, FollowsTheReadingPosition) {
  iMemoryInStream in(int_bytes(10) + int_bytes(20) + int_bytes(30));
  EXPECT_EQ(in.readInt(), 10);
  EXPECT_EQ(in.tellg(), std::streampos(4));
  in.seekg(4, std::ios::cur);
  EXPECT_EQ(in.readInt(), 30);
  in.seekg(-8, std::ios::end);
  EXPECT_EQ(in.readInt(), 20);
  in.seekg(0);
  EXPECT_EQ(in.readInt(), 10);
}

// Spaces are bytes like others, also where the stream is set to skip them.
TEST(TypedRead, SkipsNoSpaces) {
  iMemoryInStream in(bytes({' ', '\n', '\t', ' '}));
  in.setf(std::ios::skipws);
  EXPECT_EQ(in.readInt(), 0x20090A20);
}

// An int fits into 10 bytes twice, the third one not.
TEST(TypedWrite, SaysWhatCouldNotBeStored) {
  NarrowStream out(10);
  out.writeInt(1);
  out.writeInt(2);
  EXPECT_THAT([&out] { out.writeInt(3); },
              ThrowsMessage<std::runtime_error>(StrEq("stream failed at writing an int")));
  NarrowStream none(0);
  EXPECT_THAT([&none] { none.writeDouble(1); },
              ThrowsMessage<std::runtime_error>(StrEq("stream failed at writing a double")));
  NarrowStream nothing(0);
  EXPECT_THAT([&nothing] { nothing.writeBool(true); },
              ThrowsMessage<std::runtime_error>(StrEq("stream failed at writing a bool")));
  NarrowStream length(7);
  EXPECT_THAT(
      [&length] { length.writeString("ab"); },
      ThrowsMessage<std::runtime_error>(StrEq("stream failed at writing the length of a string")));
  NarrowStream text(9);
  EXPECT_THAT(
      [&text] { text.writeString("ab"); },
      ThrowsMessage<std::runtime_error>(StrEq("stream failed at writing a string of 2 bytes")));
  NarrowStream raw(2);
  EXPECT_THAT([&raw] { raw.writeBytes("abc", 3); },
              ThrowsMessage<std::runtime_error>(StrEq("stream failed at writing 3 bytes")));
}

TEST(TypedWrite, ThrowsOnAStreamThatFailedBefore) {
  iMemoryOutStream out;
  out.setstate(std::ios::failbit);
  EXPECT_THROW(out.writeInt(1), std::runtime_error);
  EXPECT_THROW(out.writeString(""), std::runtime_error);
  EXPECT_THROW(out.writeBytes(nullptr, 0), std::runtime_error);
  EXPECT_EQ(out.bytes(), "");
  StreamWithoutTarget nowhere;
  EXPECT_THROW(nowhere.writeInt(1), std::runtime_error);
}

// The end of a stream stops a standard stream from writing without any sign of it.
TEST(TypedWrite, ThrowsOnAStreamThatStandsAtItsEnd) {
  iMemoryOutStream out;
  out.setstate(std::ios::eofbit);
  EXPECT_THROW(out.writeInt(1), std::runtime_error);
}

TEST(TypedWrite, ThrowsItsOwnExceptionUnderAnExceptionsMaskAndKeepsTheMask) {
  NarrowStream out(2);
  out.exceptions(std::ios::badbit | std::ios::failbit);
  EXPECT_THAT([&out] { out.writeInt(3); },
              ThrowsMessage<std::runtime_error>(StrEq("stream failed at writing an int")));
  EXPECT_EQ(out.exceptions(), std::ios::badbit | std::ios::failbit);
}

TEST(TypedWrite, IgnoresWhatFormatsText) {
  iMemoryOutStream out;
  out.width(12);
  out.setf(std::ios::hex | std::ios::showbase);
  out.writeInt(1);
  EXPECT_EQ(out.bytes(), bytes({1, 0, 0, 0}));
}

}  // namespace
