// SPDX-License-Identifier: Apache-2.0
#include "slope/circle_cut.h"

#include "support/slope_ground.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace {

using ostrel::slope::Place;
using ostrel::slope::pointOnSegment;
using ostrel::slope::pointOnSegmentNoVertical;
using ostrel::testing::box;
using ::testing::ElementsAre;

constexpr double tol = 1e-6;
constexpr double eps = 1e-8;
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

MATCHER_P2(IsAt, x, y, "") {
  return std::abs(arg.x - x) < 1e-9 && std::abs(arg.y - y) < 1e-9;
}

std::vector<Place> crossings(Place p1, Place p2, Place center, double radius) {
  std::vector<Place> points;
  ostrel::slope::segCircleIntersect(p1, p2, center, radius, tol, points);
  return points;
}

// d = (20, 0), f = (-10, 0): a = 400, b = -200, c = 100, so the root is that of
// 40 000 - (100 - 25) 400 = 10 000, and t = (200 -+ 100) / 400 = 1/4 and 3/4.
TEST(SegmentAndCircle, MeetInTheOrderOfTheSegment) {
  EXPECT_THAT(crossings({-10, 0}, {10, 0}, {0, 0}, 5), ElementsAre(IsAt(-5, 0), IsAt(5, 0)));
  EXPECT_THAT(crossings({10, 0}, {-10, 0}, {0, 0}, 5), ElementsAre(IsAt(5, 0), IsAt(-5, 0)));
  EXPECT_THAT(crossings({0, 0}, {10, 0}, {0, 0}, 5), ElementsAre(IsAt(5, 0)));
  EXPECT_THAT(crossings({-10, 6}, {10, 6}, {0, 0}, 5), ElementsAre());
  EXPECT_THAT(crossings({6, 0}, {10, 0}, {0, 0}, 5), ElementsAre());
}

TEST(SegmentAndCircle, MeetTwiceAtATangentPoint) {
  EXPECT_THAT(crossings({-10, 5}, {10, 5}, {0, 0}, 5), ElementsAre(IsAt(0, 5), IsAt(0, 5)));
}

// The circle passes 1e-6 before the start, 5e-8 of the 20 long segment: it counts as the start. A
// tenth before it does not. The far end is treated alike.
TEST(SegmentAndCircle, MeetAtAnEndThatIsNearEnough) {
  std::vector<Place> points = crossings({-5 + 1e-6, 0}, {15, 0}, {0, 0}, 5);
  ASSERT_EQ(points.size(), 2U);
  EXPECT_DOUBLE_EQ(points[0].x, -5 + 1e-6);
  EXPECT_THAT(crossings({-4.9, 0}, {15, 0}, {0, 0}, 5), ElementsAre(IsAt(5, 0)));
  points = crossings({-15, 0}, {5 - 1e-6, 0}, {0, 0}, 5);
  ASSERT_EQ(points.size(), 2U);
  EXPECT_DOUBLE_EQ(points[1].x, 5 - 1e-6);
  EXPECT_THAT(crossings({-15, 0}, {4.9, 0}, {0, 0}, 5), ElementsAre(IsAt(-5, 0)));
}

TEST(SegmentAndCircle, OfNoSizeOrNoPlaceDoNotMeet) {
  EXPECT_THAT(crossings({5, 0}, {5, 0}, {0, 0}, 5), ElementsAre());
  EXPECT_THAT(crossings({nan, 0}, {5, 0}, {0, 0}, 5), ElementsAre());
  EXPECT_THAT(crossings({-10, 0}, {10, 0}, {0, 0}, nan), ElementsAre());
}

TEST(OutlineAndCircle, MeetSideBySide) {
  const auto outline = ostrel::slope::outline_of(box(0, 0, 10, 10));
  std::vector<Place> points;
  // 15² - 5² = 200 below the centre, on both plumb sides.
  const double y = 20.0 - std::sqrt(200.0);
  EXPECT_TRUE(ostrel::slope::circlePolyIntersections(outline, {5, 20}, 15, points, tol));
  EXPECT_THAT(points, ElementsAre(IsAt(0, y), IsAt(10, y)));
  points.clear();
  EXPECT_FALSE(ostrel::slope::circlePolyIntersections(outline, {50, 20}, 15, points, tol));
}

TEST(Crossings, AreSortedAndThoseOfOnePlaceAreOne) {
  std::vector<Place> filtered;
  const std::vector<Place> points{{5, 0}, {1, 0}, {1.00005, 1}, {1.00012, 2}};
  EXPECT_TRUE(ostrel::slope::filterIntersections(1e-4, {0, 9}, points, filtered));
  // The second is near the first and goes; the third is 1.2e-4 from the one kept.
  EXPECT_THAT(filtered, ElementsAre(IsAt(1, 0), IsAt(1.00012, 2), IsAt(5, 0)));
}

TEST(Crossings, AboveTheCentreAreAllKept) {
  std::vector<Place> filtered;
  EXPECT_FALSE(ostrel::slope::filterIntersections(1e-4, {0, 1}, {{1, 0}, {1, 2}}, filtered));
  EXPECT_EQ(filtered.size(), 2U);
  EXPECT_TRUE(ostrel::slope::filterIntersections(1e-4, {0, 1}, {{1, 1}}, filtered));
  EXPECT_FALSE(ostrel::slope::filterIntersections(1e-4, {0, 1}, {}, filtered));
  EXPECT_TRUE(filtered.empty());
}

TEST(PointOnSegment, TellsEndsFromTheInterior) {
  double t = 7.0;
  EXPECT_TRUE(pointOnSegment({3, 4}, {0, 0}, {6, 8}, eps, false, &t));
  EXPECT_DOUBLE_EQ(t, 0.5);
  EXPECT_TRUE(pointOnSegment({6, 8}, {0, 0}, {6, 8}, eps, true, &t));
  EXPECT_DOUBLE_EQ(t, 1.0);
  EXPECT_FALSE(pointOnSegment({6, 8}, {0, 0}, {6, 8}, eps, false, nullptr));
  EXPECT_TRUE(pointOnSegment({1e-8, 0}, {0, 0}, {10, 0}, eps, true, &t));  // 1e-9 along it
  EXPECT_DOUBLE_EQ(t, 0.0);
  EXPECT_FALSE(pointOnSegment({-1e-6, 0}, {0, 0}, {10, 0}, eps, true, nullptr));
}

// Off by 1e-6 on a segment of 10 is 1e-7 of its length; on one of 1000 it is 1e-9.
TEST(PointOnSegment, MeasuresTheDistanceInPartsOfTheLength) {
  EXPECT_FALSE(pointOnSegment({5, 1e-6}, {0, 0}, {10, 0}, eps, true, nullptr));
  EXPECT_TRUE(pointOnSegment({5, 1e-6}, {0, 0}, {1000, 0}, eps, true, nullptr));
}

TEST(PointOnSegment, OfASegmentWithoutLengthGoesByXAlone) {
  EXPECT_TRUE(pointOnSegment({0, 99}, {0, 0}, {0, 0}, eps, true, nullptr));
  EXPECT_FALSE(pointOnSegment({0, 0}, {0, 0}, {0, 0}, eps, false, nullptr));
  EXPECT_FALSE(pointOnSegment({1, 0}, {0, 0}, {0, 0}, eps, true, nullptr));
}

TEST(PointOnSegment, MayLeaveOutPlumbSegments) {
  EXPECT_TRUE(pointOnSegment({0, 5}, {0, 0}, {0, 10}, eps, true, nullptr));
  EXPECT_FALSE(pointOnSegmentNoVertical({0, 5}, {0, 0}, {0, 10}, eps, true, nullptr));
  EXPECT_TRUE(pointOnSegmentNoVertical({5, 5}, {0, 0}, {10, 10}, eps, true, nullptr));
}

TEST(PointOnSegment, IsFalseForWhatIsNoPlace) {
  EXPECT_FALSE(pointOnSegment({nan, 0}, {0, 0}, {10, 0}, eps, true, nullptr));
  EXPECT_FALSE(pointOnSegment({5, 0}, {nan, 0}, {10, 0}, eps, true, nullptr));
}

struct Cut {
  osg::ref_ptr<sliceSeg> piece = new sliceSeg;
  osg::ref_ptr<sliceSeg> out;
  bool accepted = false;
};

Cut cut(const ostrel::testing::Outline& outline, const arma::Col<double>::fixed<2>& center,
        double radius) {
  Cut result;
  EXPECT_TRUE(ostrel::slope::initSlice(nullptr, outline, 10, 0, {0, 0}, *result.piece));
  result.piece->clip.ownerFlag = true;
  result.piece->clip.hasLoad = {true, false};
  result.piece->clip.belowWater = true;
  result.piece->clip.soil.soil.setCohesion(3.0);
  result.accepted = result.piece->iIntersect(center, radius, result.out);
  return result;
}

TEST(CircleCut, LeavesNothingOfAPieceOutside) {
  const Cut outside = cut(box(0, 0, 10, 10), {5, 100}, 50);
  EXPECT_TRUE(outside.accepted);
  EXPECT_FALSE(outside.out.valid());
}

TEST(CircleCut, SharesAPieceInside) {
  const Cut inside = cut(box(0, 0, 10, 10), {5, 20}, 50);
  EXPECT_TRUE(inside.accepted);
  EXPECT_EQ(inside.out.get(), inside.piece.get());
  EXPECT_DOUBLE_EQ(inside.out->clip.baseLength, 0.0);
}

// The circle leaves the sides at y = 20 - sqrt(200) = 5.857864376: what stays is 10 wide.
TEST(CircleCut, PutsAChordInPlaceOfTheArc) {
  const double y = 20.0 - std::sqrt(200.0);
  const Cut part = cut(box(0, 0, 10, 10), {5, 20}, 15);
  ASSERT_TRUE(part.accepted && part.out.valid());
  EXPECT_NE(part.out.get(), part.piece.get());
  const xClipData& clip = part.out->clip;
  EXPECT_NEAR(clip.area, 10.0 * (10.0 - y), 1e-9);
  EXPECT_NEAR(clip.baseLength, 10.0, 1e-9);
  EXPECT_NEAR(clip.baseMid[0], 5.0, 1e-9);
  EXPECT_NEAR(clip.baseMid[1], y, 1e-9);
  EXPECT_DOUBLE_EQ(clip.width, 10.0);
  EXPECT_NEAR(part.out->ymin, y, 1e-9);
  EXPECT_TRUE(clip.ownerFlag && clip.belowWater && clip.hasLoad[0]);
  EXPECT_FALSE(clip.hasLoad[1]);
  EXPECT_DOUBLE_EQ(clip.soil.soil.getCohesion(), 3.0);
}

// Centre over the left edge: the circle meets the left side at y = 20 - 15 = 5 and the top at
// x = sqrt(225 - 100) = 11.18, beyond the piece, and the right side at 20 - sqrt(125) = 8.819660.
// Trapezoid with sides 5 and 10 - 8.819660 = 1.180340 over a width of 10.
TEST(CircleCut, MayBeSlanted) {
  const double right = 20.0 - std::sqrt(125.0);
  const Cut part = cut(box(0, 0, 10, 10), {0, 20}, 15);
  ASSERT_TRUE(part.accepted && part.out.valid());
  EXPECT_NEAR(part.out->clip.area, 10.0 * (5.0 + 10.0 - right) / 2.0, 1e-9);
  EXPECT_NEAR(part.out->clip.baseLength, std::hypot(10.0, right - 5.0), 1e-9);
  EXPECT_NEAR(part.out->clip.baseMid[1], 0.5 * (5.0 + right), 1e-9);
}

// The top is met at x = sqrt(36 - 25), five above the centre.
TEST(CircleCut, RejectsACircleThatMeetsTheGroundAboveItsCentre) {
  EXPECT_FALSE(cut(box(0, 0, 10, 10), {0, 5}, 6).accepted);
}

// The free corner of the triangle's box lies inside the circle, the triangle does not.
TEST(CircleCut, WithoutCrossingsGoesByTheCentroid) {
  const ostrel::testing::Outline triangle{{10, 10}, {0, 0}, {10, 0}, {10, 10}};
  const Cut none = cut(triangle, {0, 20}, 11);
  EXPECT_TRUE(none.accepted);
  EXPECT_FALSE(none.out.valid());
  // Its three corners are at most sqrt(148) = 12.2 away, the free corner of the box 17.
  const Cut all = cut(triangle, {12, -2}, 13);
  EXPECT_TRUE(all.accepted);
  EXPECT_EQ(all.out.get(), all.piece.get());
}

// The circle passes one corner and meets nothing else. The apex (5, 10) is 3 and 4 from the centre,
// the corner (0, 10) of the box lies within, the centroid (5, 3.33) is sqrt(9 + 113.8) = 11.1 off.
TEST(CircleCut, AtOnePointLeavesOutAPieceWhoseCentroidIsOutside) {
  const ostrel::testing::Outline triangle{{5, 10}, {0, 0}, {10, 0}, {5, 10}};
  const Cut touched = cut(triangle, {2, 14}, 5);
  EXPECT_TRUE(touched.accepted);
  EXPECT_FALSE(touched.out.valid());
}

// The corner (0, 0) is 5 and 12 from the centre, both others lie within, the corner (6, 0) of the box
// does not (16.3 off), and the centroid (2, 6.67) is sqrt(49 + 28.4) = 8.8 off.
TEST(CircleCut, AtOnePointKeepsAPieceWhoseCentroidIsInside) {
  const ostrel::testing::Outline triangle{{0, 10}, {0, 0}, {6, 10}, {0, 10}};
  const Cut touched = cut(triangle, {-5, 12}, 13);
  EXPECT_TRUE(touched.accepted);
  EXPECT_EQ(touched.out, touched.piece);
}

// 0.5e-3 deep and sqrt(10.0005² - 100) = 0.1 wide: 2.5e-5.
TEST(CircleCut, LetsTooSmallAPartVanish) {
  const Cut tiny = cut(box(0, 0, 10, 10), {0, 20}, 10.0005);
  EXPECT_TRUE(tiny.accepted);
  EXPECT_FALSE(tiny.out.valid());
}

// Two teeth reach down to 0: the circle, 10 below its centre, meets the outline at y = 10 - sqrt(...)
// four times. The chord joins the two leftmost crossings, across the first tooth alone.
TEST(CircleCut, JoinsTheTwoLeftmostCrossings) {
  const ostrel::testing::Outline teeth{{0, 6}, {0, 0},  {4, 0},  {4, 5}, {6, 5},
                                       {6, 0}, {10, 0}, {10, 6}, {0, 6}};
  const Cut part = cut(teeth, {5, 12}, 10);
  ASSERT_TRUE(part.accepted && part.out.valid());
  const double outer = 12.0 - std::sqrt(100.0 - 25.0);  // at x = 0 and 10: 3.3397
  const double inner = 12.0 - std::sqrt(100.0 - 1.0);   // at x = 4 and 6: 2.0501
  EXPECT_NEAR(part.out->clip.baseLength, std::hypot(4.0, outer - inner), 1e-9);
  EXPECT_NEAR(part.out->clip.baseMid[0], 2.0, 1e-9);
  EXPECT_NEAR(part.out->clip.baseMid[1], 0.5 * (outer + inner), 1e-9);
}

TEST(CircleCut, SurvivesWhatIsNoPlace) {
  for (const auto& [x, y, radius] :
       {std::array{nan, 20.0, 15.0}, std::array{5.0, nan, 15.0}, std::array{5.0, 20.0, nan}}) {
    const Cut none = cut(box(0, 0, 10, 10), {x, y}, radius);
    EXPECT_TRUE(none.accepted);
    EXPECT_FALSE(none.out.valid());
  }
  sliceSeg broken;
  broken.xmax = broken.ymax = 10.0;
  broken.clip.polygon = box(0, 0, 10, nan);
  osg::ref_ptr<sliceSeg> out;
  EXPECT_TRUE(broken.iIntersect({5, 20}, 15, out));
  sliceSeg empty;
  EXPECT_TRUE(empty.iIntersect({0, 0}, 15, out));  // its box is the centre
  EXPECT_FALSE(out.valid());
}

TEST(CutGround, HoldsOnlyTheStripesThatTheCircleReaches) {
  const auto piece_at = [](double x) {
    osg::ref_ptr<sliceSeg> piece = new sliceSeg;
    EXPECT_TRUE(ostrel::slope::initSlice(nullptr, box(x, 0, x + 10, 10), 10, 0, {0, 0}, *piece));
    return piece;
  };
  const ostrel::slope::Stripes stripes{{piece_at(-100)}, {piece_at(0)}, {}, {piece_at(100)}};
  ostrel::slope::Stripes result(7);
  EXPECT_TRUE(ostrel::slope::intersectStripes({5, 20}, 50, stripes, result));
  ASSERT_EQ(result.size(), 1U);
  ASSERT_EQ(result[0].size(), 1U);
  EXPECT_EQ(result[0][0].get(), stripes[1][0].get());
  EXPECT_FALSE(ostrel::slope::intersectStripes({0, 5}, 6, stripes, result));
}

}  // namespace
