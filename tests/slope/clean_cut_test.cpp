// SPDX-License-Identifier: Apache-2.0
#include "slope/clean_cut.h"

#include "support/random_contents.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using ostrel::slope::CleanCut;
using ostrel::slope::CutBuffers;
using ostrel::slope::CutKind;
using ostrel::slope::Outline;
using ostrel::slope::Place;
using ostrel::testing::RandomContents;

constexpr double tol = 1e-6;

const Outline block{{4'000, 4'000}, {-4'000, 4'000}, {-4'000, 0}, {4'000, 0}, {4'000, 4'000}};

bool cut(const Outline& outline, Place center, double radius, CutKind& kind, CleanCut& result) {
  return ostrel::slope::cut_cleanly(outline, {0, 2'000}, ostrel::slope::rim_of(center, radius, tol),
                                    kind, result);
}

// 4000² + 3000² = 5000²: the circle leaves through the two upright sides at the level 6000 - 3000.
TEST(CleanCut, LeavesWhatLiesAboveTheChord) {
  CutKind kind = CutKind::none;
  CleanCut result;
  ASSERT_TRUE(cut(block, {0, 6'000}, 5'000, kind, result));
  EXPECT_EQ(kind, CutKind::part);
  EXPECT_DOUBLE_EQ(result.chord_length, 8'000.0);
  EXPECT_DOUBLE_EQ(result.chord_mid.y, 3'000.0);
  const Outline part{
      {4'000, 4'000}, {-4'000, 4'000}, {-4'000, 3'000}, {4'000, 3'000}, {4'000, 4'000}};
  ASSERT_EQ(result.part().size(), part.size());
  for (std::size_t i = 0; i < part.size(); ++i) {
    EXPECT_DOUBLE_EQ(result.part()[i].x, part[i].x);
    EXPECT_DOUBLE_EQ(result.part()[i].y, part[i].y);
  }
}

// The corners lie 5000 from (0, 1000).
TEST(CleanCut, RefusesACircleThroughAVertex) {
  CutKind kind = CutKind::none;
  CleanCut result;
  EXPECT_FALSE(cut(block, {0, 1'000}, 5'000, kind, result));
}

// At the level 4000 the circle is 6000 wide: it cuts the upper side twice.
TEST(CleanCut, RefusesASideThatTheCircleMayCutTwice) {
  CutKind kind = CutKind::none;
  CleanCut result;
  EXPECT_FALSE(cut(block, {0, 8'000}, 5'000, kind, result));
}

// The circle about (0, -2000) meets the upright sides at 1000, above its centre.
TEST(CleanCut, TellsCrossingsAboveTheCentre) {
  CutKind kind = CutKind::none;
  CleanCut result;
  ASSERT_TRUE(cut(block, {0, -2'000}, 5'000, kind, result));
  EXPECT_EQ(kind, CutKind::above_centre);
}

TEST(CleanCut, GoesByTheCentroidWithoutACrossing) {
  CutKind kind = CutKind::part;
  CleanCut result;
  ASSERT_TRUE(cut(block, {0, 2'000}, 9'000, kind, result));
  EXPECT_EQ(kind, CutKind::whole);
  ASSERT_TRUE(cut(block, {0, 12'000}, 5'000, kind, result));
  EXPECT_EQ(kind, CutKind::none);
}

TEST(CleanOutline, HasNoSidesThatTouchOrCross) {
  EXPECT_TRUE(ostrel::slope::is_clean(block));
  EXPECT_FALSE(ostrel::slope::is_clean(Outline{{0, 0}, {9, -9}, {9, 0}, {0, -9}, {0, 0}}));
  // The angle at (0, 0) has the sine 0.005.
  EXPECT_FALSE(ostrel::slope::is_clean(Outline{{0, 0}, {900, -4.5}, {900, 0}, {0, 0}}));
  // The notch comes within 0.005 of the far side.
  EXPECT_FALSE(ostrel::slope::is_clean(
      Outline{{0, 100}, {0, 60}, {99.995, 50}, {0, 40}, {0, 0}, {100, 0}, {100, 100}, {0, 100}}));
  Outline many;
  for (int i = 0; i < 16; ++i)
    many.push_back({i < 8 ? -10.0 * i : -10.0 * (15 - i), i < 8 ? 0.0 : -100.0});
  EXPECT_FALSE(ostrel::slope::is_clean(Outline{{0, 0}}));
  many.push_back(many.front());
  EXPECT_FALSE(ostrel::slope::is_clean(many));  // 17 vertices
}

/// Every case that it settles is the same to the last bit as by the plain way.
void expect_plain_result(const Outline& outline, Place center, double radius, CutKind kind,
                         const CleanCut& cut) {
  CutBuffers plain;
  ASSERT_EQ(kind,
            ostrel::slope::cut_by_circle(outline, {0, 2'000}, center, radius, tol, false, plain));
  if (kind != CutKind::part) return;
  EXPECT_EQ(cut.chord_length, plain.chord_length);
  EXPECT_EQ(cut.chord_mid.x, plain.chord_mid.x);
  EXPECT_EQ(cut.chord_mid.y, plain.chord_mid.y);
  ASSERT_EQ(cut.size, plain.part.size());
  for (std::size_t i = 0; i < cut.size; ++i) {
    EXPECT_EQ(cut.vertices[i].x, plain.part[i].x);
    EXPECT_EQ(cut.vertices[i].y, plain.part[i].y);
  }
}

// Pieces with five to seven vertices, bent in or out, under circles from all sides.
TEST(CleanCut, IsThePlainCutToTheLastBit) {
  RandomContents random(11);
  const auto draw = [&](double low, double high) { return random.on_grid(low, high); };
  int parts = 0;
  for (int i = 0; i < 20'000; ++i) {
    const double half = draw(200, 3'000);
    Outline outline{{-half, draw(3'000, 4'000)}, {-half, draw(0, 1'000)}};
    if (random.yes()) outline.push_back({0, draw(-800, 1'800)});
    outline.push_back({half, draw(0, 1'000)});
    outline.push_back({half, draw(3'000, 3'900)});
    if (random.yes()) outline.push_back({0, draw(2'200, 3'900)});
    outline.push_back(outline.front());
    if (!ostrel::slope::is_clean(outline)) continue;
    const Place center{.x = draw(-9'000, 9'000), .y = draw(-3'000, 12'000)};
    const double radius = draw(500, 12'000);
    CutKind kind = CutKind::none;
    CleanCut result;
    if (!cut(outline, center, radius, kind, result)) continue;
    parts += kind == CutKind::part ? 1 : 0;
    expect_plain_result(outline, center, radius, kind, result);
  }
  EXPECT_GT(parts, 1'000);
}

}  // namespace
