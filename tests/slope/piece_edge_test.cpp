// SPDX-License-Identifier: Apache-2.0
#include "slope/piece_edge.h"

#include "slope/stripes.h"
#include "support/slope_ground.h"

#include <gmock/gmock.h>

namespace {

using ostrel::testing::box;
using Line = ostrel::testing::Outline;
using ::testing::ElementsAre;

Line extended(const Line& line) {
  sliceSeg piece;
  // A level bottom at 0 from 0 to 10 with a dent to -2 at 8.
  const Line outline{{0, 10}, {0, 0}, {6, 0}, {8, -2}, {10, 0}, {10, 10}, {0, 10}};
  EXPECT_TRUE(ostrel::slope::initSlice(nullptr, outline, 10, 0, {0, 0}, piece));
  Line result = line;
  piece.make_poly_edge(result, 1e-3);
  return result;
}

TEST(PieceEdge, FollowsTheOutlineToBothSides) {
  const Line line = extended({{5, 0}, {3, 0}});
  ASSERT_EQ(line.size(), 6U);
  EXPECT_THAT(line[0], ElementsAre(0, 0));
  EXPECT_THAT(line[1], ElementsAre(3, 0));  // sorted by x
  EXPECT_THAT(line[2], ElementsAre(5, 0));
  EXPECT_THAT(line[3], ElementsAre(6, 0));
  EXPECT_THAT(line[4], ElementsAre(8, -2));
  EXPECT_THAT(line[5], ElementsAre(10, 0));
}

// On the top side increasing x is against the direction of the outline.
TEST(PieceEdge, RunsAgainstTheOutlineOnTop) {
  const Line line = extended({{5, 10}});
  ASSERT_EQ(line.size(), 3U);
  EXPECT_THAT(line[0], ElementsAre(0, 10));
  EXPECT_THAT(line[1], ElementsAre(5, 10));
  EXPECT_THAT(line[2], ElementsAre(10, 10));
}

TEST(PieceEdge, StaysAsItIsByTheSidesAndOffTheOutline) {
  EXPECT_EQ(extended({{0.0005, 4}, {9.9995, 4}}).size(), 2U);
  EXPECT_EQ(extended({{5, 5}}).size(), 1U);
  EXPECT_TRUE(extended({}).empty());
}

TEST(PieceEdge, OfAnEmptyPieceStaysAsItIs) {
  const sliceSeg piece;
  Line line{{5, 5}};
  piece.make_poly_edge(line, 1e-3);
  EXPECT_EQ(line.size(), 1U);
}

}  // namespace
