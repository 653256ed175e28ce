// SPDX-License-Identifier: Apache-2.0
#include "box_cut.h"

#include "polygon_testing.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using sorrel::Box;
using sorrel::Outline;
using sorrel::Vertex;
using sorrel::testing::Pairs;
using sorrel::testing::RandomPolygons;

constexpr Box unit{.xmin = 0, .ymin = 0, .xmax = 1, .ymax = 1};

Pairs cut(const Pairs& vertices, const Box& box) {
  Outline outline;
  for (const auto& [x, y] : vertices)
    outline.push_back({.x = x, .y = y});
  Pairs all;
  for (const Vertex each : cut_to_box(outline, box))
    all.emplace_back(each.x, each.y);
  return all;
}

TEST(BoxCut, LeavesWhatLiesWithin) {
  const Pairs inside = {{0, 0}, {1, 0}, {0.5, 1}};
  EXPECT_EQ(cut(inside, unit), inside);
}

TEST(BoxCut, LeavesNothingOfWhatLiesApart) {
  for (const double shift : {-5.0, 5.0}) {
    EXPECT_EQ(cut({{shift, 0}, {shift + 1, 0}, {shift, 1}}, unit), Pairs{});
    EXPECT_EQ(cut({{0, shift}, {1, shift}, {0, shift + 1}}, unit), Pairs{});
  }
  EXPECT_EQ(cut({}, unit), Pairs{});
}

// The side from (-1, 0) to (2, 3) meets x = 0 in y = 1, the side from (-1, 0) to (2, -3) in y = -1.
TEST(BoxCut, CutsAlongOneBorder) {
  EXPECT_EQ(cut({{-1, 0}, {2, -3}, {2, 3}}, {.xmin = 0, .ymin = -9, .xmax = 9, .ymax = 9}),
            (Pairs{{0, -1}, {2, -3}, {2, 3}, {0, 1}}));
}

// |x| + |y| <= 1.5 leaves a square of half-width 1 its corners cut off at 0.5.
TEST(BoxCut, CutsAlongAllBorders) {
  EXPECT_EQ(
      cut({{1.5, 0}, {0, 1.5}, {-1.5, 0}, {0, -1.5}},
          {.xmin = -1, .ymin = -1, .xmax = 1, .ymax = 1}),
      (Pairs{
          {1, 0.5}, {0.5, 1}, {-0.5, 1}, {-1, 0.5}, {-1, -0.5}, {-0.5, -1}, {0.5, -1}, {1, -0.5}}));
}

TEST(BoxCut, LeavesTheBoxOfWhatLiesAround) {
  EXPECT_EQ(cut({{-5, -5}, {5, -5}, {5, 5}, {-5, 5}}, unit),
            (Pairs{{1, 0}, {1, 1}, {0, 1}, {0, 0}}));
}

TEST(BoxCut, KeepsAVertexOnTheBorderOnce) {
  EXPECT_EQ(cut({{0, 0.5}, {2, -2}, {2, 3}}, {.xmin = 0, .ymin = -9, .xmax = 9, .ymax = 9}),
            (Pairs{{0, 0.5}, {2, -2}, {2, 3}}));
  EXPECT_EQ(cut({{0, 0.5}, {-2, -2}, {-2, 3}}, {.xmin = 0, .ymin = -9, .xmax = 9, .ymax = 9}),
            (Pairs{{0, 0.5}}));
}

TEST(BoxCut, MeetsASideAtOnePointWhicheverWayItRuns) {
  RandomPolygons random(41);
  for (int trial = 0; trial < 1000; ++trial) {
    const double left = random.number(-1000, -10);
    const double right = random.number(10, 1000);
    const double y = random.number(-500, 500);
    const double z = random.number(-500, 500);
    const double border = random.number(-10, 10);
    const Box box{.xmin = border, .ymin = -1e6, .xmax = 1e6, .ymax = 1e6};
    const Pairs there = cut({{left, y}, {right, z}, {right, 9e5}}, box);
    const Pairs back = cut({{right, z}, {left, y}, {right, -9e5}}, box);
    ASSERT_EQ(there.size(), 4U);
    EXPECT_EQ(there[0].first, border);
    EXPECT_NE(std::find(back.begin(), back.end(), there[0]), back.end()) << trial;
  }
}

}  // namespace
