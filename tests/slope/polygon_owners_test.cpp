// SPDX-License-Identifier: Apache-2.0
#include "ostrel/slip_circle.h"
#include "support/slope_ground.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using ostrel::testing::box;
using ::testing::ElementsAre;
using Point = arma::Col<double>::fixed<2>;

TEST(PolygonOwners, RefuseAnEmptyPolygon) {
  xPolyClipHelper polygons;
  const xBoundSoilLayer layer;
  EXPECT_FALSE(polygons.pushPolygon({}, &layer, true));
  EXPECT_TRUE(polygons.polygons.empty());
  EXPECT_TRUE(polygons.owners.empty());
}

TEST(PolygonOwners, LetTheFirstOneOwnAnOverlap) {
  xPolyClipHelper polygons;
  const xBoundSoilLayer upper;
  const xBoundSoilLayer lower;
  ASSERT_TRUE(polygons.pushPolygon(box(0, 0, 10, 10), &upper, true));
  ASSERT_TRUE(polygons.pushPolygon(box(0, 0, 20, 10), &lower, false));
  bool flag = false;
  EXPECT_EQ(polygons.findPolygonOwner_fromPolyPoint({5, 5}, &flag), &upper);
  EXPECT_TRUE(flag);
  EXPECT_EQ(polygons.findPolygonOwner_fromPolyPoint({15, 5}, &flag), &lower);
  EXPECT_FALSE(flag);
  EXPECT_EQ(polygons.findPolygonOwner(box(11, 1, 12, 2), &flag), &lower);
  EXPECT_EQ(polygons.findPolygonOwner(box(11, 1, 12, 2), nullptr), &lower);
}

TEST(PolygonOwners, LeaveTheFlagWhereNobodyOwnsThePoint) {
  xPolyClipHelper polygons;
  const xBoundSoilLayer layer;
  ASSERT_TRUE(polygons.pushPolygon(box(0, 0, 10, 10), &layer, false));
  bool flag = true;
  EXPECT_EQ(polygons.findPolygonOwner_fromPolyPoint({50, 5}, &flag), nullptr);
  EXPECT_EQ(polygons.findPolygonOwner({}, &flag), nullptr);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(polygons.findPolygonOwner_fromPolyPoint({nan, 5}, &flag), nullptr);
  EXPECT_TRUE(flag);
}

TEST(PolygonOwners, HaveABoxAroundAllPolygons) {
  xPolyClipHelper polygons;
  Point min{1, 1};
  Point max{2, 2};
  polygons.getBBox(min, max);
  EXPECT_THAT(min, ElementsAre(0, 0));
  EXPECT_THAT(max, ElementsAre(0, 0));

  polygons.polygons.emplace_back();
  polygons.owners.emplace_back(nullptr, false);
  ASSERT_TRUE(polygons.pushPolygon(box(5, 6, 7, 8), nullptr, false));
  ASSERT_TRUE(polygons.pushPolygon(box(6, -3, 9, 7), nullptr, false));
  polygons.getBBox(min, max);
  EXPECT_THAT(min, ElementsAre(5, -3));
  EXPECT_THAT(max, ElementsAre(9, 8));

  polygons.clear();
  EXPECT_TRUE(polygons.polygons.empty() && polygons.owners.empty());
}

}  // namespace
