// SPDX-License-Identifier: Apache-2.0
#include "outline.h"

#include "polygon_testing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

namespace {

using sorrel::Box;
using sorrel::Outline;
using sorrel::Vertex;
using sorrel::testing::closed;
using sorrel::testing::infinity;
using sorrel::testing::nan;
using sorrel::testing::Pairs;
using sorrel::testing::pairs;
using sorrel::testing::polygon;

Pairs vertices(const Outline& outline) {
  Pairs all;
  for (const Vertex each : outline)
    all.emplace_back(each.x, each.y);
  return all;
}

Outline outline(const Pairs& vertices) {
  Outline made;
  for (const auto& [x, y] : vertices)
    made.push_back({.x = x, .y = y});
  return made;
}

Pairs corners(const std::optional<Box>& box) {
  return box ? Pairs{{box->xmin, box->ymin}, {box->xmax, box->ymax}} : Pairs{};
}

TEST(Outline, DropsRepeatedVerticesAndTheClosingOnes) {
  const auto made = sorrel::outline_of(
      polygon({{0, 0}, {0, 0}, {4, 0}, {4, 4}, {4, 4}, {4, 4}, {0, 0}, {-0.0, 0}}));
  ASSERT_TRUE(made);
  EXPECT_EQ(vertices(*made), (Pairs{{0, 0}, {4, 0}, {4, 4}}));
}

TEST(Outline, KeepsAVertexThatComesBackLater) {
  const auto made = sorrel::outline_of(closed({{0, 0}, {1, 1}, {2, 0}, {1, 1}, {1, 5}}));
  ASSERT_TRUE(made);
  EXPECT_EQ(made->size(), 5U);
}

TEST(Outline, HasOneVertexForAPlaceAndNoneForAnEmptyPolygon) {
  EXPECT_EQ(sorrel::outline_of({})->size(), 0U);
  EXPECT_EQ(sorrel::outline_of(polygon({{1, 2}, {1, 2}, {1, 2}}))->size(), 1U);
}

TEST(Outline, IsNoneWithoutAPlace) {
  for (const double bad : {nan, infinity, -infinity, std::nextafter(1e15, infinity)}) {
    EXPECT_FALSE(sorrel::outline_of(polygon({{0, 0}, {bad, 0}})));
    EXPECT_FALSE(sorrel::outline_of(polygon({{0, 0}, {0, -bad}})));
  }
  EXPECT_TRUE(sorrel::outline_of(polygon({{1e15, -1e15}})));
}

TEST(Outline, LooksForABoxEitherWayRoundFromAnyCorner) {
  Pairs around = {{1, 2}, {5, 2}, {5, 9}, {1, 9}};
  const Pairs expected = {{1, 2}, {5, 9}};
  for (int turn = 0; turn < 4; ++turn) {
    EXPECT_EQ(corners(sorrel::as_box(outline(around))), expected);
    EXPECT_EQ(corners(sorrel::as_box(outline(Pairs(around.rbegin(), around.rend())))), expected);
    std::rotate(around.begin(), around.begin() + 1, around.end());
  }
}

TEST(Outline, IsNoBoxOtherwise) {
  EXPECT_FALSE(sorrel::as_box(outline({{0, 0}, {4, 0}, {4, 4}})));
  EXPECT_FALSE(sorrel::as_box(outline({{0, 0}, {4, 0}, {4, 4}, {0, 4.0000001}})));
  EXPECT_FALSE(sorrel::as_box(outline({{0, 0}, {4, 4}, {4, 0}, {0, 4}})));
  EXPECT_FALSE(sorrel::as_box(outline({{0, 0}, {4, 0}, {2, 0}, {3, 0}})));
  EXPECT_FALSE(sorrel::as_box(outline({{0, 0}, {4, 0}, {0, 0}, {0, 4}})));
  EXPECT_FALSE(sorrel::as_box(outline({{0, 0}, {2, 0}, {4, 0}, {4, 4}, {0, 4}})));
}

TEST(Outline, HasAnExtentOnlyBothWays) {
  EXPECT_TRUE(sorrel::has_extent({.xmin = 0, .ymin = 0, .xmax = 1, .ymax = 1}));
  EXPECT_FALSE(sorrel::has_extent({.xmin = 0, .ymin = 0, .xmax = 0, .ymax = 1}));
  EXPECT_FALSE(sorrel::has_extent({.xmin = 0, .ymin = 1, .xmax = 1, .ymax = 1}));
}

TEST(Outline, BecomesAPolygonFromItsHighestLeftmostVertex) {
  EXPECT_EQ(pairs(sorrel::polygon_from_top(outline({{0, 0}, {4, 0}, {4, 4}, {2, 4}, {1, 3}}))),
            (Pairs{{2, 4}, {1, 3}, {0, 0}, {4, 0}, {4, 4}, {2, 4}}));
  EXPECT_EQ(pairs(sorrel::polygon_from_top({})), Pairs{});
}

TEST(Outline, GoesRoundABoxCounterClockwise) {
  EXPECT_EQ(vertices(sorrel::box_outline({.xmin = 1, .ymin = 2, .xmax = 5, .ymax = 9})),
            (Pairs{{1, 2}, {5, 2}, {5, 9}, {1, 9}}));
}

}  // namespace
