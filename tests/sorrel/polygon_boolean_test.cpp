// SPDX-License-Identifier: Apache-2.0
#include "sorrel/polygon_boolean.h"

#include "polygon_testing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <iterator>
#include <set>
#include <utility>
#include <vector>

namespace {

using sorrel::Point;
using sorrel::Polygon;
using sorrel::testing::box;
using sorrel::testing::closed;
using sorrel::testing::five_sided_box;
using sorrel::testing::infinity;
using sorrel::testing::is_arranged;
using sorrel::testing::nan;
using sorrel::testing::on_whole_numbers;
using sorrel::testing::Pairs;
using sorrel::testing::pairs;
using sorrel::testing::polygon;
using sorrel::testing::RandomPolygons;
using sorrel::testing::total_area;
using testing::ElementsAre;
using testing::IsEmpty;
using Polygons = std::vector<Polygon>;

constexpr std::uint64_t stripe_scale = 5'000'000'000'000;
constexpr std::uint64_t water_scale = 1'000'000;

Polygons combined(const Polygon& a, const Polygon& b, iPolyOp::iPolyOperation operation) {
  Polygons result;
  EXPECT_TRUE(PolyBoolean(a, b, result, stripe_scale, operation));
  return result;
}

Polygons common(const Polygon& a, const Polygon& b) {
  return combined(a, b, iPolyOp::Intersection);
}

Polygon reversed(Polygon polygon) {
  std::reverse(polygon.begin(), polygon.end());
  return polygon;
}

TEST(PolyBoolean, NumbersTheIntersectionZero) {
  EXPECT_EQ(static_cast<int>(iPolyOp::Intersection), 0);
}

// Two squares of side 4, one 2 right of and above the other, share the square from (2, 2) to (4, 4).
TEST(PolyBoolean, GivesWhatTwoSquaresShareFromItsTopCounterClockwise) {
  const Pairs shared = {{2, 4}, {2, 2}, {4, 2}, {4, 4}, {2, 4}};
  EXPECT_THAT(pairs(common(box(0, 0, 4, 4), box(2, 2, 6, 6))), ElementsAre(shared));
  EXPECT_THAT(pairs(common(five_sided_box(0, 0, 4, 4), five_sided_box(2, 2, 6, 6))),
              ElementsAre(shared));
}

// The side x + y = 4 meets y = 1 in (3, 1).
TEST(PolyBoolean, CutsASlantingSideWhereItMeetsTheBorder) {
  const Polygon triangle = closed({{0, 0}, {4, 0}, {0, 4}});
  const Pairs lower = {{0, 1}, {0, 0}, {4, 0}, {3, 1}, {0, 1}};
  EXPECT_THAT(pairs(common(box(-9, -9, 9, 1), triangle)), ElementsAre(lower));
  EXPECT_THAT(pairs(common(triangle, box(-9, -9, 9, 1))), ElementsAre(lower));
}

// A triangle with the top (2, 3) on a base of 4: at y = 1.5 it is 2 wide.
TEST(PolyBoolean, BeginsAtTheOnlyHighestVertex) {
  const Polygon triangle = closed({{0, 0}, {4, 0}, {2, 3}});
  EXPECT_THAT(pairs(common(box(-9, 1.5, 9, 9), triangle)),
              ElementsAre(Pairs{{2, 3}, {1, 1.5}, {3, 1.5}, {2, 3}}));
}

TEST(PolyBoolean, TakesOperandsEitherWayRoundAndStoredOpen) {
  const Polygon triangle = closed({{0, 0}, {4, 0}, {0, 4}});
  const Polygon square = box(1, 1, 5, 5);
  const auto expected = pairs(common(square, triangle));
  ASSERT_EQ(expected.size(), 1U);
  EXPECT_EQ(pairs(common(square, reversed(triangle))), expected);
  EXPECT_EQ(pairs(common(reversed(square), triangle)), expected);
  EXPECT_EQ(pairs(common(polygon({{1, 1}, {5, 1}, {5, 5}, {1, 5}}), triangle)), expected);
  EXPECT_EQ(pairs(common(square, polygon({{0, 0}, {4, 0}, {0, 4}}))), expected);
}

// A comb with teeth at x = 0 to 1, 2 to 3 and 4 to 5, cut above the level 1: teeth of height 2.
TEST(PolyBoolean, GivesSeveralPartsFromLeftToRight) {
  const Polygon comb = closed({{5, 3},
                               {4, 3},
                               {4, 1},
                               {3, 1},
                               {3, 3},
                               {2, 3},
                               {2, 1},
                               {1, 1},
                               {1, 3},
                               {0, 3},
                               {0, 0},
                               {5, 0}});
  const std::vector<Pairs> teeth = {{{0, 3}, {0, 2}, {1, 2}, {1, 3}, {0, 3}},
                                    {{2, 3}, {2, 2}, {3, 2}, {3, 3}, {2, 3}},
                                    {{4, 3}, {4, 2}, {5, 2}, {5, 3}, {4, 3}}};
  EXPECT_EQ(pairs(common(box(-9, 2, 9, 9), comb)), teeth);
  EXPECT_EQ(pairs(common(five_sided_box(-9, 2, 9, 9), comb)), teeth);
}

// Two steps that both begin at x = 0, at the levels 0 to 1 and 2 to 3.
TEST(PolyBoolean, GivesTheHigherOfTwoPartsThatBeginAtOneX) {
  const Polygon steps = closed({{0, 0}, {5, 0}, {5, 3}, {0, 3}, {0, 2}, {4, 2}, {4, 1}, {0, 1}});
  EXPECT_THAT(pairs(common(box(-1, -1, 3, 9), steps)),
              ElementsAre(Pairs{{0, 3}, {0, 2}, {3, 2}, {3, 3}, {0, 3}},
                          Pairs{{0, 1}, {0, 0}, {3, 0}, {3, 1}, {0, 1}}));
}

TEST(PolyBoolean, AppendsToWhatTheListHolds) {
  Polygons result = {box(7, 7, 8, 8)};
  EXPECT_TRUE(
      PolyBoolean(box(0, 0, 2, 2), box(1, 1, 3, 3), result, stripe_scale, iPolyOp::Intersection));
  ASSERT_EQ(result.size(), 2U);
  EXPECT_EQ(pairs(result[0]), pairs(box(7, 7, 8, 8)));
  EXPECT_EQ(pairs(result[1]), (Pairs{{1, 2}, {1, 1}, {2, 1}, {2, 2}, {1, 2}}));
}

// A third of a millimetre is on no grid of whole numbers.
TEST(PolyBoolean, SnapsNothingWhateverTheScale) {
  const Polygon soil = closed({{1.0 / 3.0, -1}, {2.0 / 3.0, -1}, {2.0 / 3.0, 1}, {1.0 / 3.0, 1}});
  const Pairs lower = {
      {1.0 / 3.0, 0.1}, {1.0 / 3.0, -1}, {2.0 / 3.0, -1}, {2.0 / 3.0, 0.1}, {1.0 / 3.0, 0.1}};
  for (const std::uint64_t scale : {std::uint64_t{0}, std::uint64_t{1}, water_scale, stripe_scale,
                                    std::numeric_limits<std::uint64_t>::max()}) {
    Polygons result;
    EXPECT_TRUE(PolyBoolean(box(-5, -5, 5, 0.1), soil, result, scale, iPolyOp::Intersection));
    EXPECT_THAT(pairs(result), ElementsAre(lower)) << scale;
  }
}

// 6 x 6 around 2 x 2: a level through the middle of the hole, y = 3, leaves two halves of 16.
TEST(PolyBoolean, OpensAHoleByALevelThroughItsMiddle) {
  const Polygons ring = combined(box(0, 0, 6, 6), box(2, 2, 4, 4), iPolyOp::Difference);
  EXPECT_THAT(
      pairs(ring),
      ElementsAre(Pairs{{0, 6}, {0, 3}, {2, 3}, {2, 4}, {4, 4}, {4, 3}, {6, 3}, {6, 6}, {0, 6}},
                  Pairs{{0, 3}, {0, 0}, {6, 0}, {6, 3}, {4, 3}, {4, 2}, {2, 2}, {2, 3}, {0, 3}}));
}

// 10 x 10 less nine holes of 1 x 1: 91.
TEST(PolyBoolean, OpensManyHoles) {
  Polygons holes;
  for (const int x : {1, 4, 7}) {
    for (const int y : {1, 4, 7})
      holes.push_back(box(x, y, x + 1, y + 1));
  }
  Polygons result;
  EXPECT_TRUE(PolyIntersect(box(0, 0, 10, 10), holes, result, water_scale, iPolyOp::Difference));
  EXPECT_DOUBLE_EQ(total_area(result), 91.0);
  for (const Polygon& each : result) {
    EXPECT_TRUE(is_arranged(each));
    for (const Polygon& hole : holes)
      EXPECT_THAT(common(each, hole), IsEmpty());
  }
}

// 4 x 4 with 4 x 4 that overlap in 2 x 2.
TEST(PolyBoolean, JoinsAndSubtracts) {
  const Polygon a = box(0, 0, 4, 4);
  const Polygon b = box(2, 2, 6, 6);
  EXPECT_THAT(
      pairs(combined(a, b, iPolyOp::Union)),
      ElementsAre(Pairs{{2, 6}, {2, 4}, {0, 4}, {0, 0}, {4, 0}, {4, 2}, {6, 2}, {6, 6}, {2, 6}}));
  EXPECT_THAT(pairs(combined(a, b, iPolyOp::Difference)),
              ElementsAre(Pairs{{0, 4}, {0, 0}, {4, 0}, {4, 2}, {2, 2}, {2, 4}, {0, 4}}));
}

TEST(PolyBoolean, FindsNothingWherePolygonsOnlyTouch) {
  EXPECT_THAT(common(box(0, 0, 1, 1), box(1, 0, 2, 1)), IsEmpty());
  EXPECT_THAT(common(box(0, 0, 1, 1), box(1, 1, 2, 2)), IsEmpty());
  EXPECT_THAT(common(five_sided_box(0, 0, 1, 1), five_sided_box(1, 0, 2, 1)), IsEmpty());
  EXPECT_THAT(common(box(0, 0, 1, 1), closed({{1, 0.5}, {2, 0}, {2, 1}})), IsEmpty());
  EXPECT_THAT(common(box(0, 0, 1, 1), box(5, 5, 6, 6)), IsEmpty());
}

// The two triangles of a bow tie meet in (1, 1).
TEST(PolyBoolean, TakesASelfCrossingOutlineForTheGroundItWindsRound) {
  const Polygon bow_tie = closed({{0, 0}, {2, 2}, {2, 0}, {0, 2}});
  EXPECT_THAT(
      pairs(common(box(-9, -9, 9, 9), bow_tie)),
      ElementsAre(Pairs{{0, 2}, {0, 0}, {1, 1}, {0, 2}}, Pairs{{2, 2}, {1, 1}, {2, 0}, {2, 2}}));
  EXPECT_THAT(pairs(common(box(-9, -9, 0.5, 9), bow_tie)),
              ElementsAre(Pairs{{0, 2}, {0, 0}, {0.5, 0.5}, {0.5, 1.5}, {0, 2}}));
}

// Run twice round, a square is still one square.
TEST(PolyBoolean, CountsGroundOnceHoweverOftenTheOutlineWindsRoundIt) {
  const Polygon twice = closed({{0, 0}, {4, 0}, {4, 4}, {0, 4}, {0, 0}, {4, 0}, {4, 4}, {0, 4}});
  EXPECT_THAT(pairs(common(box(-9, -9, 9, 9), twice)),
              ElementsAre(Pairs{{0, 4}, {0, 0}, {4, 0}, {4, 4}, {0, 4}}));
}

// 4 x 4 around a void of 1 x 1 that a slit from the corner leads to: 15.
TEST(PolyBoolean, LeavesAVoidThatASlitLeadsTo) {
  const Polygon keyhole =
      closed({{0, 0}, {4, 0}, {4, 4}, {0, 4}, {0, 0}, {1, 1}, {1, 2}, {2, 2}, {2, 1}, {1, 1}});
  const Polygons parts = common(box(-9, -9, 9, 9), keyhole);
  EXPECT_EQ(parts.size(), 2U);
  EXPECT_DOUBLE_EQ(total_area(parts), 15.0);
  EXPECT_THAT(common(box(1, 1, 2, 2), keyhole), IsEmpty());
}

// The notch comes down to (2, 0) on the base: two triangles of 4.
TEST(PolyBoolean, PartsAnOutlineThatTouchesItself) {
  const Polygon touching = closed({{0, 0}, {4, 0}, {4, 4}, {2, 0}, {0, 4}});
  EXPECT_THAT(
      pairs(common(box(-9, -9, 9, 9), touching)),
      ElementsAre(Pairs{{0, 4}, {0, 0}, {2, 0}, {0, 4}}, Pairs{{4, 4}, {2, 0}, {4, 0}, {4, 4}}));
}

TEST(PolyBoolean, CutsOffASpike) {
  const Polygon spiked = closed({{0, 0}, {4, 0}, {6, 0}, {4, 0}, {4, 4}, {0, 4}});
  EXPECT_DOUBLE_EQ(total_area(common(box(-9, -9, 9, 9), spiked)), 16.0);
  EXPECT_DOUBLE_EQ(total_area(common(box(-9, -9, 5, 9), spiked)), 16.0);
}

class NoGround : public testing::TestWithParam<Polygon> {};

TEST_P(NoGround, HasNothingInCommonAndAddsNothing) {
  const Polygon square = box(0, 0, 4, 4);
  const Pairs whole = {{0, 4}, {0, 0}, {4, 0}, {4, 4}, {0, 4}};
  EXPECT_THAT(common(square, GetParam()), IsEmpty());
  EXPECT_THAT(common(GetParam(), five_sided_box(0, 0, 4, 4)), IsEmpty());
  EXPECT_THAT(pairs(combined(square, GetParam(), iPolyOp::Union)), ElementsAre(whole));
  EXPECT_THAT(pairs(combined(square, GetParam(), iPolyOp::Difference)), ElementsAre(whole));
  EXPECT_THAT(combined(GetParam(), square, iPolyOp::Difference), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(PolyBoolean, NoGround,
                         testing::Values(Polygon{}, polygon({{1, 1}}), polygon({{1, 1}, {1, 1}}),
                                         closed({{1, 1}, {3, 2}}), closed({{1, 1}, {2, 1}, {3, 1}}),
                                         closed({{1, 1}, {2, 2}, {3, 3}}),
                                         polygon({{1, 1}, {1, 1}, {1, 1}, {1, 1}, {1, 1}}),
                                         closed({{1, 1}, {3, 1}, {2, 1}, {4, 1}})));

class NoPlace : public testing::TestWithParam<double> {};

TEST_P(NoPlace, IsRefusedAndLeavesTheListAlone) {
  const Polygon square = box(0, 0, 4, 4);
  const Polygon other = five_sided_box(1, 1, 5, 5);
  for (const Polygon& bad : {closed({{1, 1}, {GetParam(), 2}, {3, 3}}), polygon({{GetParam(), 0}}),
                             closed({{1, 1}, {3, 1}, {3, GetParam()}, {1, 3}})}) {
    for (const auto operation : {iPolyOp::Intersection, iPolyOp::Union, iPolyOp::Difference}) {
      Polygons result = {square};
      EXPECT_FALSE(PolyBoolean(square, bad, result, stripe_scale, operation));
      EXPECT_FALSE(PolyBoolean(bad, other, result, stripe_scale, operation));
      EXPECT_FALSE(PolyIntersect(square, {other, bad}, result, water_scale, operation));
      EXPECT_EQ(pairs(result), pairs(Polygons{square}));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(PolyBoolean, NoPlace,
                         testing::Values(nan, infinity, -infinity, 1.0000001e15, -1e300));

TEST(PolyBoolean, TakesPlacesUpToTheFarthest) {
  const Polygons halves = common(box(-1e15, -1e15, 0, 1e15), box(-1e15, -1e15, 1e15, 1e15));
  ASSERT_EQ(halves.size(), 1U);
  EXPECT_DOUBLE_EQ(polyArea(halves[0]), 2e30);
}

TEST(PolyBoolean, RefusesAnOperationOfNoKnownNumber) {
  for (const int number : {-1, 3, 99}) {
    Polygons result;
    EXPECT_FALSE(PolyBoolean(box(0, 0, 2, 2), box(1, 1, 3, 3), result, stripe_scale,
                             static_cast<iPolyOp::iPolyOperation>(number)));
    EXPECT_THAT(result, IsEmpty());
  }
}

// A comb of teeth 1 wide at a distance of 1, upright or lying.
Polygon comb(int teeth, bool lying) {
  const double reach = 2.0 * teeth + 2.0;
  Pairs made = {{-5, -1}};
  for (int i = 0; i < teeth; ++i) {
    const double x = 2.0 * i + 0.1;
    made.insert(made.end(), {{x, -1}, {x, reach}, {x + 1, reach}, {x + 1, -1}});
  }
  made.insert(made.end(), {{reach, -1}, {reach, -3}, {-5, -3}});
  if (lying) {
    for (auto& [x, y] : made)
      std::swap(x, y);
  }
  return closed(made);
}

// Twenty teeth over twenty: 400 crossings of 1 x 1, and the corner of the two backs. They are 2
// thick and begin at -3; the one reaches from -5 to 42, and so does the other: 2 x 2 of it shared
// at the corner, and each tooth of one from 0.1 + 2 i crosses the back of none.
TEST(PolyBoolean, FindsEachCrossingOfTwoCombs) {
  const Polygons parts = common(comb(20, false), comb(20, true));
  EXPECT_EQ(parts.size(), 401U);
  EXPECT_NEAR(total_area(parts), 404.0, 1e-9);
}

// 400 over 400 would be 160 000 parts.
TEST(PolyBoolean, RefusesOutlinesThatCrossTooOften) {
  Polygons result;
  EXPECT_FALSE(
      PolyBoolean(comb(400, false), comb(400, true), result, stripe_scale, iPolyOp::Intersection));
  EXPECT_FALSE(PolyBoolean(box(-9, -9, 9, 9), RandomPolygons(1).tangle(2000, 5.0), result,
                           stripe_scale, iPolyOp::Intersection));
  EXPECT_THAT(result, IsEmpty());
}

// A layer of 40 000 vertices on 200 m, 5 mm apart: the upper border waves by 1 m between -1000
// and 1000 and the lower lies at -5000. Above 0 there are its crests.
TEST(PolyBoolean, TakesALongOutlineOfGround) {
  Pairs vertices = {{0, -5000}, {200'000, -5000}};
  for (int i = 40'000; i >= 0; --i)
    vertices.emplace_back(5.0 * i, 1000.0 * std::sin(i * 0.01));
  const Polygon layer = closed(vertices);
  const Polygons above = common(box(-1e6, 0, 1e6, 1e6), layer);
  const Polygons below = common(box(-1e6, -1e6, 1e6, 0), layer);
  EXPECT_EQ(above.size(), 64U);  // 400 / (2 pi) = 63.7 waves
  EXPECT_EQ(below.size(), 1U);
  EXPECT_NEAR(total_area(above) + total_area(below), polyArea(layer), 1e-12 * polyArea(layer));
}

}  // namespace
