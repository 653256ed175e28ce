// SPDX-License-Identifier: Apache-2.0
#include "ostrel/stream.h"

#include "ostrel/identity.h"
#include "support/stream_round_trip.h"

#include <gmock/gmock.h>
#include <osg/Referenced>

#include <bit>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using ostrel::testing::bytes_of;
using ::testing::ElementsAre;

using Point = arma::Col<double>::fixed<2>;

std::string bytes(std::initializer_list<int> values) {
  std::string result;
  for (const int value : values)
    result.push_back(static_cast<char>(value));
  return result;
}

template <class T>
T read_back(const std::string& stored) {
  iMemoryInStream stream(stored);
  instream in(&stream);
  T value{};
  in >> value;
  return value;
}

TEST(OutStream, PutsLittleEndianBytesOnTheWire) {
  EXPECT_EQ(bytes_of([](outstream& out) { out << 0x01020304; }), bytes({4, 3, 2, 1}));
  EXPECT_EQ(bytes_of([](outstream& out) { out << 0x01020304U; }), bytes({4, 3, 2, 1}));
  EXPECT_EQ(bytes_of([](outstream& out) { out << std::int64_t{-2}; }),
            bytes({0xfe, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff}));
  EXPECT_EQ(bytes_of([](outstream& out) { out << 1.0; }), bytes({0, 0, 0, 0, 0, 0, 0xf0, 0x3f}));
  EXPECT_EQ(bytes_of([](outstream& out) { out << true << false; }), bytes({1, 0}));
  EXPECT_EQ(bytes_of([](outstream& out) { out << std::string("ab"); }),
            bytes({2, 0, 0, 0, 0, 0, 0, 0, 'a', 'b'}));
}

TEST(OutStream, TakesALiteralAsAString) {
  EXPECT_EQ(bytes_of([](outstream& out) { out << "x"; }), bytes({1, 0, 0, 0, 0, 0, 0, 0, 'x'}));
}

TEST(InStream, GivesBackWhatWasWritten) {
  const auto stored_as = [](auto value) {
    return bytes_of([value](outstream& out) { out << value; });
  };
  EXPECT_EQ(read_back<int>(stored_as(-7)), -7);
  EXPECT_EQ(read_back<unsigned int>(stored_as(4'000'000'000U)), 4'000'000'000U);
  EXPECT_EQ(read_back<std::int64_t>(stored_as(std::numeric_limits<std::int64_t>::min())),
            std::numeric_limits<std::int64_t>::min());
  EXPECT_TRUE(read_back<bool>(stored_as(true)));
  EXPECT_EQ(read_back<std::string>(stored_as(std::string("a\0b", 3))), std::string("a\0b", 3));
  const auto payload = std::bit_cast<double>(std::uint64_t{0x7ff8000000001234});
  EXPECT_EQ(std::bit_cast<std::uint64_t>(read_back<double>(stored_as(payload))),
            0x7ff8000000001234U);
}

TEST(InStream, WithoutAStreamLeavesVariablesAlone) {
  instream in;
  int number = 3;
  unsigned int natural = 4;
  double real = 5.5;
  std::string text = "six";
  std::int64_t large = 7;
  bool flag = true;
  in >> number >> natural >> real >> text >> large >> flag;
  EXPECT_EQ(number, 3);
  EXPECT_EQ(natural, 4U);
  EXPECT_DOUBLE_EQ(real, 5.5);
  EXPECT_EQ(text, "six");
  EXPECT_EQ(large, 7);
  EXPECT_TRUE(flag);
  in.clear(0, false);
  in.seekg(std::streampos(9), 0);
  EXPECT_EQ(in.tellg(), std::streampos(0));
}

TEST(OutStream, WithoutAStreamWritesNothing) {
  outstream out;
  out << 1 << 2U << 3.0 << std::string("4") << "5" << std::int64_t{6} << false;
  out.seekp(std::streampos(9), 0);
  EXPECT_EQ(out.tellp(), std::streampos(0));
}

TEST(InStream, ThrowsWhereTheStreamEndsWithinAValue) {
  EXPECT_THROW(read_back<int>(bytes({1, 2, 3})), std::runtime_error);
  EXPECT_THROW(read_back<unsigned int>(bytes({1, 2, 3})), std::runtime_error);
  EXPECT_THROW(read_back<double>(bytes({1, 2, 3, 4, 5, 6, 7})), std::runtime_error);
  EXPECT_THROW(read_back<std::int64_t>(bytes({1, 2, 3, 4, 5, 6, 7})), std::runtime_error);
  EXPECT_THROW(read_back<bool>(""), std::runtime_error);
  EXPECT_THROW(read_back<std::string>(bytes({2, 0, 0, 0, 0, 0, 0, 0, 'a'})), std::runtime_error);
}

TEST(InStream, MovesToAPosition) {
  iMemoryInStream stream(bytes_of([](outstream& out) { out << 10 << 20 << 30; }));
  instream in(&stream);
  int value = 0;
  in.seekg(std::streampos(4), 0);
  in >> value;
  EXPECT_EQ(value, 20);
  EXPECT_EQ(in.tellg(), std::streampos(8));
  in.seekg(std::streampos(-8), 1);
  in >> value;
  EXPECT_EQ(value, 10);
  in.seekg(std::streampos(-4), 2);
  in >> value;
  EXPECT_EQ(value, 30);
  EXPECT_THROW(in.seekg(std::streampos(0), 3), std::invalid_argument);
}

TEST(OutStream, MovesToAPosition) {
  iMemoryOutStream stream;
  outstream out(&stream);
  out << 10 << 20;
  EXPECT_EQ(out.tellp(), std::streampos(8));
  out.seekp(std::streampos(0), 0);
  out << 30;
  EXPECT_EQ(stream.bytes(), bytes_of([](outstream& expected) { expected << 30 << 20; }));
  EXPECT_THROW(out.seekp(std::streampos(0), -1), std::invalid_argument);
}

TEST(InStream, ClearSetsTheStateOfTheStream) {
  iMemoryInStream stream("");
  instream in(&stream);
  in.clear(std::ios_base::failbit, false);
  EXPECT_TRUE(stream.fail());
  in.clear(std::ios_base::goodbit, false);
  EXPECT_FALSE(stream.fail());
}

TEST(InStream, ClearReraisesTheExceptionBeingHandled) {
  iMemoryInStream stream("");
  stream.exceptions(std::ios_base::badbit);
  instream in(&stream);
  const auto clear_while_handling = [&in](bool reraise) {
    try {
      throw std::out_of_range("the cause");
    } catch (const std::out_of_range&) {
      in.clear(std::ios_base::badbit, reraise);
    }
  };
  EXPECT_THROW(clear_while_handling(true), std::out_of_range);
  EXPECT_THROW(clear_while_handling(false), std::ios_base::failure);
}

TEST(WriteVec, OfAnEmptyPolygonWritesZeroAlone) {
  EXPECT_EQ(bytes_of([](outstream& out) { write_vec(std::vector<Point>{}, out); }),
            bytes({0, 0, 0, 0}));
}

TEST(ReadVec, ReplacesTheListByTheStoredPoints) {
  const std::vector<Point> polygon{{1.5, -2.0}, {3.0, 4.25}};
  const std::string stored = bytes_of([&polygon](outstream& out) { write_vec(polygon, out); });
  ASSERT_EQ(stored.size(), 4U + 2U * 16U);
  iMemoryInStream stream(stored);
  instream in(&stream);
  std::vector<Point> read{{9.0, 9.0}};
  read_vec(read, in);
  ASSERT_EQ(read.size(), 2U);
  EXPECT_THAT(read[0], ElementsAre(1.5, -2.0));
  EXPECT_THAT(read[1], ElementsAre(3.0, 4.25));
}

TEST(ReadVec, RefusesACountThatCannotBe) {
  std::vector<Point> points;
  const auto read = [&points](int count) {
    iMemoryInStream stream(bytes_of([count](outstream& out) { out << count << 1.0 << 2.0; }));
    instream in(&stream);
    read_vec(points, in);
  };
  EXPECT_THROW(read(-1), std::runtime_error);
  EXPECT_TRUE(points.empty());
  // The points that are there are read; nothing is set aside for the two thousand million others.
  EXPECT_THROW(read(std::numeric_limits<int>::max()), std::runtime_error);
  EXPECT_EQ(points.size(), 1U);
  EXPECT_LT(points.capacity(), 100U);
}

// A counted object with a class name, as the loads and the reinforcement are.
class Nail : public osg::Referenced, public xObjectID {
public:
  std::string getIOClass() const override { return "Nail"; }

protected:
  ~Nail() override = default;
};

Nail* make_nail(const std::string& name) {
  return name == "Nail" ? new Nail : nullptr;
}

TEST(ReadVecRefptr, MakesEachObjectByItsClassName) {
  std::vector<osg::ref_ptr<Nail>> nails{new Nail, new Nail};
  nails[0]->setObjectID(1, "upper");
  nails[1]->setObjectID(2, "lower");
  const std::string stored = bytes_of([&nails](outstream& out) { write_vec_refptr(nails, out); });
  iMemoryInStream stream(stored);
  instream in(&stream);
  std::vector<osg::ref_ptr<Nail>> read{new Nail, new Nail, new Nail};
  read_vec_refptr(read, in, make_nail);
  ASSERT_EQ(read.size(), 2U);
  EXPECT_EQ(read[0]->name, "upper");
  EXPECT_EQ(read[1]->id, 2);
  EXPECT_EQ(read[1]->referenceCount(), 1);
}

TEST(ReadVecRefptr, ThrowsForAnUnknownClass) {
  iMemoryInStream stream(bytes_of([](outstream& out) { out << 1 << "Screw"; }));
  instream in(&stream);
  std::vector<osg::ref_ptr<Nail>> read;
  try {
    read_vec_refptr(read, in, make_nail);
    FAIL() << "an unknown class was read";
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "unknown class in read_vec_refptr");
  }
}

TEST(ReadVecRefptr, RefusesANegativeCount) {
  iMemoryInStream stream(bytes_of([](outstream& out) { out << -5; }));
  instream in(&stream);
  std::vector<osg::ref_ptr<Nail>> read{new Nail};
  EXPECT_THROW(read_vec_refptr(read, in, make_nail), std::runtime_error);
  EXPECT_TRUE(read.empty());
}

TEST(WriteVecRefptr, LeavesAbsentObjectsOut) {
  const std::vector<osg::ref_ptr<Nail>> nails{nullptr, new Nail};
  const std::string stored = bytes_of([&nails](outstream& out) { write_vec_refptr(nails, out); });
  iMemoryInStream stream(stored);
  instream in(&stream);
  std::vector<osg::ref_ptr<Nail>> read;
  read_vec_refptr(read, in, make_nail);
  EXPECT_EQ(read.size(), 1U);
}

TEST(IoClassOf, NamesAnAbsentObjectToo) {
  const xDescription description;
  EXPECT_EQ(ostrel::io_class_of(&description), "xDescription");
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xDescription*>(nullptr)), "NullIoClass");
}

TEST(WriteCount, RefusesMoreThanA32BitIntegerHolds) {
  outstream out;
  EXPECT_THROW(ostrel::write_count(std::size_t{1} << 31U, out), std::runtime_error);
  EXPECT_EQ(bytes_of([](outstream& stream) { ostrel::write_count(3, stream); }),
            bytes({3, 0, 0, 0}));
}

}  // namespace
