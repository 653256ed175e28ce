// SPDX-License-Identifier: Apache-2.0
#include "geos_geometry.h"

#include <gtest/gtest.h>

#include <thread>
#include <utility>
#include <vector>

namespace {

using sorrel::Geometry;
using sorrel::Outline;

double area(const Geometry& geometry) {
  double found = -1.0;
  EXPECT_TRUE(geometry);
  if (geometry) GEOSArea_r(sorrel::geos_context(), geometry.get(), &found);
  return found;
}

Outline square(double corner, double side) {
  return {{corner, corner},
          {corner + side, corner},
          {corner + side, corner + side},
          {corner, corner + side}};
}

TEST(GeosGeometry, WorksWithOneContextInAThread) {
  GEOSContextHandle_t here = sorrel::geos_context();
  EXPECT_NE(here, nullptr);
  EXPECT_EQ(sorrel::geos_context(), here);
  GEOSContextHandle_t there = here;
  double area_there = 0.0;
  std::thread([&] {
    there = sorrel::geos_context();
    area_there = area(sorrel::polygon_geometry(square(0, 3)));
  }).join();
  EXPECT_NE(there, here);
  EXPECT_EQ(area_there, 9.0);
}

TEST(GeosGeometry, KeepsTheVerticesOfAnOutline) {
  const Outline triangle = {{0.1, 0.2}, {1.0 / 3.0, 0.7}, {-0.9, 1e15}};
  const Geometry polygon = sorrel::polygon_geometry(triangle);
  ASSERT_TRUE(polygon);
  const Outline ring =
      sorrel::outline_of_ring(*GEOSGetExteriorRing_r(sorrel::geos_context(), polygon.get()));
  ASSERT_EQ(ring.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i)
    EXPECT_TRUE(same_place(ring[i], triangle[i]));
}

TEST(GeosGeometry, TellsSimpleOutlinesFromThoseThatMeetThemselves) {
  EXPECT_TRUE(sorrel::is_simple(*sorrel::polygon_geometry(square(0, 1))));
  EXPECT_FALSE(sorrel::is_simple(*sorrel::polygon_geometry({{0, 0}, {2, 2}, {2, 0}, {0, 2}})));
  EXPECT_FALSE(
      sorrel::is_simple(*sorrel::polygon_geometry({{0, 0}, {4, 0}, {4, 4}, {2, 0}, {0, 4}})));
}

TEST(GeosGeometry, TellsTheWayThatAnOutlineRuns) {
  EXPECT_TRUE(sorrel::runs_counter_clockwise(square(0, 1)));
  EXPECT_FALSE(sorrel::runs_counter_clockwise({{0, 0}, {0, 1}, {1, 1}, {1, 0}}));
}

// A pentagram winds twice round its middle, and covers it; a slit that leads to a void does not.
TEST(GeosGeometry, CoversWhatAnOutlineWindsRound) {
  EXPECT_EQ(area(sorrel::covered_ground(square(0, 3))), 9.0);
  EXPECT_EQ(area(sorrel::covered_ground({{0, 0}, {2, 2}, {2, 0}, {0, 2}})), 2.0);
  Outline twice = square(0, 3);
  const Outline again = square(0, 3);
  twice.insert(twice.end(), again.begin(), again.end());
  EXPECT_EQ(area(sorrel::covered_ground(twice)), 9.0);
  Outline keyhole = square(0, 4);
  keyhole.insert(keyhole.end(), {{0, 0}, {1, 1}, {1, 2}, {2, 2}, {2, 1}, {1, 1}});
  EXPECT_EQ(area(sorrel::covered_ground(keyhole)), 15.0);
}

TEST(GeosGeometry, CoversNothingWithAFlatOutline) {
  EXPECT_EQ(area(sorrel::covered_ground({{0, 0}, {4, 4}, {2, 2}})), 0.0);
}

// 3 x 3 and 3 x 3 that overlap in 2 x 2, and 1 x 1 apart: 9 + 9 - 4 + 1.
TEST(GeosGeometry, CoversTogetherWhatAnyCovers) {
  std::vector<Geometry> grounds;
  grounds.push_back(sorrel::polygon_geometry(square(0, 3)));
  grounds.push_back(sorrel::polygon_geometry(square(1, 3)));
  grounds.push_back(sorrel::polygon_geometry(square(9, 1)));
  EXPECT_EQ(area(sorrel::covered_together(std::move(grounds))), 15.0);
  EXPECT_FALSE(sorrel::covered_together({}));
}

}  // namespace
