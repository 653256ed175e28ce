// SPDX-License-Identifier: Apache-2.0
#include "checked_overlay.h"

#include <gtest/gtest.h>

namespace {

using sorrel::agrees;
using sorrel::checked_overlay;
using sorrel::covered_ground;
using sorrel::Geometry;
using sorrel::Outline;

double area(const Geometry& geometry) {
  double found = -1.0;
  EXPECT_TRUE(geometry);
  if (geometry) GEOSArea_r(sorrel::geos_context(), geometry.get(), &found);
  return found;
}

Geometry square(double corner, double side) {
  return sorrel::polygon_geometry({{corner, corner},
                                   {corner + side, corner},
                                   {corner + side, corner + side},
                                   {corner, corner + side}});
}

// 4 x 4 and 4 x 4 that overlap in 2 x 2.
TEST(CheckedOverlay, DoesWhatItIsAsked) {
  const Geometry a = square(0, 4);
  const Geometry b = square(2, 4);
  EXPECT_EQ(area(checked_overlay(*a, *b, iPolyOp::Intersection)), 4.0);
  EXPECT_EQ(area(checked_overlay(*a, *b, iPolyOp::Union)), 28.0);
  EXPECT_EQ(area(checked_overlay(*a, *b, iPolyOp::Difference)), 12.0);
  EXPECT_FALSE(checked_overlay(*a, *b, static_cast<iPolyOp::iPolyOperation>(3)));
}

// The middles (2, 2) and (5, 5) lie in one square each, the middle of what both share in both.
TEST(CheckedOverlay, AgreesWithTheRightResultOnly) {
  const Geometry a = square(0, 4);
  const Geometry b = square(3, 4);
  const Geometry both = square(3, 1);
  const Geometry nothing(GEOSGeom_createEmptyPolygon_r(sorrel::geos_context()));
  EXPECT_TRUE(agrees(*a, *b, *both, iPolyOp::Intersection));
  EXPECT_FALSE(agrees(*a, *b, *a, iPolyOp::Intersection));
  EXPECT_FALSE(agrees(*a, *b, *square(9, 1), iPolyOp::Intersection));
  EXPECT_FALSE(agrees(*a, *b, *nothing, iPolyOp::Union));
  EXPECT_FALSE(agrees(*a, *b, *a, iPolyOp::Union));
  EXPECT_TRUE(agrees(*a, *b, *square(0, 3), iPolyOp::Difference));
  EXPECT_FALSE(agrees(*a, *b, *b, iPolyOp::Difference));
  EXPECT_FALSE(agrees(*a, *both, *nothing, iPolyOp::Intersection));
  EXPECT_FALSE(agrees(*both, *a, *both, iPolyOp::Difference));
  EXPECT_TRUE(agrees(*both, *a, *nothing, iPolyOp::Difference));
}

// The point inside of a square is its middle, and here the border of the other runs through it.
TEST(CheckedOverlay, LearnsNothingFromAPointOnAnOutline) {
  const Geometry a = square(0, 4);
  const Geometry half = sorrel::polygon_geometry({{2, -9}, {9, -9}, {9, 9}, {2, 9}});
  const Geometry right = sorrel::polygon_geometry({{2, 0}, {4, 0}, {4, 4}, {2, 4}});
  EXPECT_TRUE(agrees(*a, *half, *right, iPolyOp::Intersection));
}

// A part of the intersection of two tangles, laid over one of them: its sides run along those of
// the tangle within the last digit, and the overlay at the first go takes them apart.
TEST(CheckedOverlay, FindsAPartInTheWholeItCameFrom) {
  const Outline part = {{6.3478260869565215, 0.043478260869565272},
                        {6.1304347826086953, -0.60869565217391308},
                        {6.7282608695652169, -0.065217391304347783}};
  const Outline whole = {{-5, 6}, {-7, 7},  {-2, 7},  {4, -7},  {8, 5},   {-10, -2}, {-1, 6},
                         {9, 2},  {-2, -8}, {-4, -8}, {-3, -3}, {-5, -1}, {-6, -5}};
  const Geometry a = covered_ground(whole);
  const Geometry b = sorrel::polygon_geometry(part);
  const double expected = area(b);
  EXPECT_NEAR(area(checked_overlay(*a, *b, iPolyOp::Intersection)), expected, 1e-12);
  EXPECT_NEAR(area(checked_overlay(*b, *a, iPolyOp::Intersection)), expected, 1e-12);
  EXPECT_NEAR(area(checked_overlay(*b, *a, iPolyOp::Difference)), 0.0, 1e-12);
  EXPECT_NEAR(area(checked_overlay(*a, *b, iPolyOp::Union)), area(a), 1e-12 * area(a));
}

}  // namespace
