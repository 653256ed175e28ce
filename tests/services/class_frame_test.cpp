// SPDX-License-Identifier: Apache-2.0
#include "services/class_frame.h"

#include "ostrel/diagram.h"
#include "ostrel/identity.h"
#include "support/stream_round_trip.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::read_stored;
using ostrel::testing::stored;

enum class Ground : std::int32_t { sand = 4, clay = 9 };

// A class with every kind of field, and a base in a frame of its own.
class Sample : public xDescription {
public:
  std::string getIOClass() const override { return "Sample"; }
  void pub_read(instream& in) override { ostrel::read_frame(in, *this); }
  void pub_write(outstream& out) const override { ostrel::write_frame(out, *this); }

  int version_read = 0;
  Ground ground = Ground::sand;
  arma::Col<double>::fixed<2> pair{arma::fill::zeros};
  xObjectID object;
  std::vector<diag_Point> points;
  std::map<int, xPoint2d> by_node;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 3; }
  void Read(instream& in, int version) {
    version_read = version;
    ostrel::refuse_older_than(2, version);
    ostrel::read_fields(in, ostrel::base_frame<xDescription>(*this), ground, pair, object, points,
                        by_node);
  }
  void Write(outstream& out) const {
    ostrel::write_fields(out, ostrel::base_frame<xDescription>(*this), ground, pair, object, points,
                         by_node);
  }
};

Sample filled_sample() {
  Sample sample;
  sample.set_Description("fill");
  sample.ground = Ground::clay;
  sample.pair = {1.0, 2.0};
  sample.object.setObjectID(8, "eight");
  sample.points = {{0.0, 5.0}, {1.0, 6.0}};
  sample.by_node[-3] = {7.0, 8.0};
  return sample;
}

std::string message_of(const std::function<void()>& action) {
  try {
    action();
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return "nothing thrown";
}

TEST(ClassFrame, LiesBetweenTwoMarkersWithItsVersion) {
  // begin marker, version 1, the length of the text and the text, end marker
  const std::string expected =
      bytes_of([](outstream& out) { out << 16843009 << 1 << "rock" << 33686018; });
  xDescription description;
  description.set_Description("rock");
  EXPECT_EQ(stored(description), expected);
}

TEST(ClassFrame, GivesEveryKindOfFieldBack) {
  const Sample read = ostrel::testing::through_memory(filled_sample());
  EXPECT_EQ(read.version_read, 3);
  EXPECT_EQ(read.get_Description(), "fill");
  EXPECT_EQ(read.ground, Ground::clay);
  EXPECT_DOUBLE_EQ(read.pair[1], 2.0);
  EXPECT_EQ(read.object.name, "eight");
  ASSERT_EQ(read.points.size(), 2U);
  EXPECT_DOUBLE_EQ(read.points[1].value, 6.0);
  ASSERT_EQ(read.by_node.size(), 1U);
  EXPECT_DOUBLE_EQ(read.by_node.at(-3).y, 8.0);
}

TEST(ClassFrame, OfABaseHasTheVersionOfTheBase) {
  xDescription description;
  description.set_Description("fill");
  const std::string bytes = stored(filled_sample());
  // The frame of the base follows the begin marker and the version of the derived class.
  EXPECT_EQ(bytes.substr(8, stored(description).size()), stored(description));
}

TEST(ClassFrame, ReplacesWhatTheContainersHeld) {
  Sample sample = filled_sample();
  read_stored(sample, stored(Sample{}));
  EXPECT_TRUE(sample.points.empty());
  EXPECT_TRUE(sample.by_node.empty());
}

TEST(ClassFrame, RefusesAWrongBeginMarker) {
  std::string bytes = stored(filled_sample());
  bytes[0] = 2;
  Sample sample;
  EXPECT_EQ(message_of([&] { read_stored(sample, bytes); }), "bad begin marker in Sample");
}

TEST(ClassFrame, RefusesAWrongEndMarkerAndKeepsWhatItRead) {
  std::string bytes = stored(filled_sample());
  bytes.back() = 3;
  Sample sample;
  EXPECT_EQ(message_of([&] { read_stored(sample, bytes); }), "bad end marker in Sample");
  EXPECT_EQ(sample.points.size(), 2U);
}

TEST(ClassFrame, WithoutAStreamHasNoBeginMarker) {
  instream in;
  xDescription description;
  EXPECT_EQ(message_of([&] { description.pub_read(in); }), "bad begin marker in xDescription");
}

TEST(ClassFrame, RefusesAnOldVersionByThrowingIt) {
  Sample sample;
  try {
    read_stored(sample, frame_bytes(1, ""));
    FAIL() << "an old version was read";
  } catch (int version) {
    EXPECT_EQ(version, 1);
  }
}

TEST(ClassFrame, ThrowsWhereverTheStreamEnds) {
  const std::string bytes = stored(filled_sample());
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    Sample sample;
    EXPECT_THROW(read_stored(sample, bytes.substr(0, length)), std::runtime_error) << length;
  }
}

TEST(ClassFrame, RefusesCountsThatCannotBe) {
  const auto diagram_with_count = [](int count) {
    return bytes_of([count](outstream& out) {
      out << 0x01010101 << 1;
      xPoint2d{}.pub_write(out);
      xPoint2d{}.pub_write(out);
      out << count;
    });
  };
  xDiagram diagram;
  EXPECT_THROW(read_stored(diagram, diagram_with_count(-1)), std::runtime_error);
  EXPECT_THROW(read_stored(diagram, diagram_with_count(std::numeric_limits<int>::max())),
               std::runtime_error);
  EXPECT_LT(diagram.points.capacity(), 100U);
}

}  // namespace
