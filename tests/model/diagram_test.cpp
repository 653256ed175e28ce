// SPDX-License-Identifier: Apache-2.0
#include "ostrel/diagram.h"

#include "support/stream_round_trip.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::stored;
using ostrel::testing::through_memory;
using ::testing::ElementsAre;

TEST(Point2d, StartsAtTheOriginAndReturnsThere) {
  xPoint2d point;
  EXPECT_THAT(point.getVec(), ElementsAre(0.0, 0.0));
  point.set(3.0, -4.0);
  EXPECT_THAT(point.getVec(), ElementsAre(3.0, -4.0));
  point.zeros();
  EXPECT_THAT(point.getVec(), ElementsAre(0.0, 0.0));
}

TEST(Point2d, NegatesBothCoordinates) {
  EXPECT_THAT((-xPoint2d(3.0, -4.0)).getVec(), ElementsAre(-3.0, 4.0));
}

TEST(Point2d, IsTheSameOnlyStrictlyWithinTheTolerance) {
  // 0.5 and 0.25 are exact in binary, so the distance is exactly the tolerance.
  EXPECT_FALSE(xPoint2d::samePoint({0.5, 0.0}, {0.25, 0.0}, 0.25));
  EXPECT_FALSE(xPoint2d::samePoint({0.0, 0.25}, {0.0, 0.5}, 0.25));
  EXPECT_TRUE(xPoint2d::samePoint({0.5, 0.5}, {0.25, 0.25}, 0.2501));
  EXPECT_FALSE(xPoint2d::samePoint({0.5, 0.0}, {0.5, 9.0}, 0.2501));
  EXPECT_FALSE(xPoint2d::samePoint({1.0, 1.0}, {1.0, 1.0}, 0.0));
}

TEST(Point2d, IsStoredAsXThenY) {
  EXPECT_EQ(stored(xPoint2d(1.5, -2.5)),
            frame_bytes(1, bytes_of([](outstream& out) { out << 1.5 << -2.5; })));
  EXPECT_THAT(through_memory(xPoint2d(1.5, -2.5)).getVec(), ElementsAre(1.5, -2.5));
}

TEST(DiagramPoint, HoldsPositionAndValue) {
  diag_Point point(100.0, 7.0);
  EXPECT_THAT(point.getArmaVec(), ElementsAre(100.0, 7.0));
  EXPECT_EQ(stored(point), frame_bytes(1, bytes_of([](outstream& out) { out << 100.0 << 7.0; })));
  point.zeros();
  EXPECT_THAT(point.getArmaVec(), ElementsAre(0.0, 0.0));
}

TEST(Diagram, IsStoredAsItsEndsThenItsPoints) {
  xDiagram diagram;
  diagram.start.set(0.0, -1.0);
  diagram.end.set(0.0, -2.0);
  diagram.points = {{0.0, 3.0}, {1.0, 4.0}};
  EXPECT_EQ(stored(diagram), frame_bytes(1, bytes_of([&diagram](outstream& out) {
                                           diagram.start.pub_write(out);
                                           diagram.end.pub_write(out);
                                           out << 2;
                                           diagram.points[0].pub_write(out);
                                           diagram.points[1].pub_write(out);
                                         })));
  const xDiagram read = through_memory(diagram);
  EXPECT_DOUBLE_EQ(read.end.y, -2.0);
  ASSERT_EQ(read.points.size(), 2U);
  EXPECT_DOUBLE_EQ(read.points[1].value, 4.0);
}

TEST(Diagram, ResetEmptiesIt) {
  xDiagram diagram;
  diagram.start.set(1.0, 2.0);
  diagram.points = {{0.0, 3.0}};
  diagram.reset();
  EXPECT_THAT(diagram.start.getVec(), ElementsAre(0.0, 0.0));
  EXPECT_TRUE(diagram.points.empty());
}

}  // namespace
