// SPDX-License-Identifier: Apache-2.0
//
// What holds of polygons in common whatever the polygons are, tried on random ones: simple and
// crossing themselves, in general position and on whole numbers, where sides lie on each other and
// outlines touch.
#include "geos_geometry.h"
#include "outline.h"
#include "polygon_testing.h"
#include "sorrel/polygon_boolean.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <set>
#include <utility>
#include <vector>

namespace {

using sorrel::Outline;
using sorrel::Point;
using sorrel::Polygon;
using sorrel::testing::box;
using sorrel::testing::closed;
using sorrel::testing::five_sided_box;
using sorrel::testing::is_arranged;
using sorrel::testing::on_whole_numbers;
using sorrel::testing::Pairs;
using sorrel::testing::pairs;
using sorrel::testing::RandomPolygons;
using sorrel::testing::total_area;
using Polygons = std::vector<Polygon>;

constexpr double reach = 10.0;                      // all random vertices lie between -10 and 10
constexpr double rounding = 1e-12 * reach * reach;  // a few hundred ulps of the greatest area

Polygons combined(const Polygon& a, const Polygon& b, iPolyOp::iPolyOperation operation) {
  Polygons result;
  EXPECT_TRUE(PolyBoolean(a, b, result, 1'000'000, operation));
  return result;
}

Polygons common(const Polygon& a, const Polygon& b) {
  return combined(a, b, iPolyOp::Intersection);
}

double covered_area(const Polygon& polygon) {
  return total_area(common(polygon, box(-2 * reach, -2 * reach, 2 * reach, 2 * reach)));
}

/// Arranged, and without a place where the outline meets itself.
void expect_well_made(const Polygons& polygons) {
  for (const Polygon& each : polygons) {
    EXPECT_TRUE(is_arranged(each));
    const auto outline = sorrel::outline_of(each);
    ASSERT_TRUE(outline);
    EXPECT_EQ(outline->size() + 1, each.size());
    const sorrel::Geometry geometry = sorrel::polygon_geometry(*outline);
    ASSERT_TRUE(geometry);
    EXPECT_TRUE(sorrel::is_simple(*geometry));
  }
}

bool in_any(const Point& point, const Polygons& polygons) {
  return std::any_of(polygons.begin(), polygons.end(),
                     [&](const Polygon& each) { return pointInPolygon(point, each); });
}

/// The polygons of one trial: kind 0 to 5.
Polygon random_polygon(RandomPolygons& random, int kind) {
  const int vertices = random.integer(3, 14);
  const Polygon made = kind % 3 == 0 ? random.star(vertices, reach)
                     : kind % 3 == 1 ? random.tangle(vertices, reach)
                                     : random.rectangle(reach);
  return kind < 3 ? made : on_whole_numbers(made);
}

class TwoPolygons : public testing::TestWithParam<std::pair<int, int>> {
protected:
  static constexpr int trials = 60;
  RandomPolygons random{static_cast<std::uint64_t>(10 * GetParam().first + GetParam().second)};
  Polygon first() { return random_polygon(random, GetParam().first); }
  Polygon second() { return random_polygon(random, GetParam().second); }
};

TEST_P(TwoPolygons, HaveAreasThatAddUp) {
  for (int trial = 0; trial < trials; ++trial) {
    const Polygon a = first();
    const Polygon b = second();
    const double both = total_area(common(a, b));
    const double area_a = covered_area(a);
    const double area_b = covered_area(b);
    const double only_a = total_area(combined(a, b, iPolyOp::Difference));
    const double only_b = total_area(combined(b, a, iPolyOp::Difference));
    const double either = total_area(combined(a, b, iPolyOp::Union));
    EXPECT_NEAR(both + only_a, area_a, rounding) << trial;
    EXPECT_NEAR(both + only_b, area_b, rounding) << trial;
    EXPECT_NEAR(both + either, area_a + area_b, rounding) << trial;
    EXPECT_NEAR(total_area(common(b, a)), both, rounding) << trial;
  }
}

TEST_P(TwoPolygons, GiveWellMadePolygonsFromLeftToRight) {
  for (int trial = 0; trial < trials; ++trial) {
    const Polygon a = first();
    const Polygon b = second();
    for (const auto operation : {iPolyOp::Intersection, iPolyOp::Union, iPolyOp::Difference}) {
      const Polygons result = combined(a, b, operation);
      expect_well_made(result);
      double left = -reach;
      for (const Polygon& each : result) {
        Point min;
        Point max;
        polyBBox(each, min, max);
        EXPECT_LE(left, min[0]);
        left = min[0];
      }
    }
  }
}

TEST_P(TwoPolygons, ShareThePlacesThatAreInBothAndNoOthers) {
  for (int trial = 0; trial < trials; ++trial) {
    const Polygon a = first();
    const Polygon b = second();
    const Polygons shared = common(a, b);
    const Polygons only_a = combined(a, b, iPolyOp::Difference);
    for (int i = 0; i < 50; ++i) {
      const Point place{random.number(-reach, reach), random.number(-reach, reach)};
      const bool in_a = pointInPolygon(place, a);
      const bool in_b = pointInPolygon(place, b);
      EXPECT_EQ(in_any(place, shared), in_a && in_b) << trial;
      EXPECT_EQ(in_any(place, only_a), in_a && !in_b) << trial;
    }
  }
}

TEST_P(TwoPolygons, ShareTheSameAfterSharingOnce) {
  for (int trial = 0; trial < trials; ++trial) {
    const Polygon a = first();
    const Polygon b = second();
    for (const Polygon& part : common(a, b)) {
      EXPECT_NEAR(total_area(common(a, part)), polyArea(part), rounding) << trial;
      EXPECT_NEAR(total_area(common(part, b)), polyArea(part), rounding) << trial;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(PolygonOverlay, TwoPolygons,
                         testing::Values(std::pair(0, 0), std::pair(0, 1), std::pair(1, 1),
                                         std::pair(0, 2), std::pair(2, 1), std::pair(2, 2),
                                         std::pair(3, 3), std::pair(3, 4), std::pair(4, 4),
                                         std::pair(3, 5), std::pair(5, 4), std::pair(5, 5)));

// A box is cut along its borders, a box with a fifth vertex is overlaid. Where its arithmetic comes
// to nothing, the overlay snaps vertices by 1e-12 of the greatest coordinate, here 1e-11; the border
// of the common ground is not longer than twice that of the box, 72.
TEST(PolygonOverlay, GivesWithABoxWhatItGivesWithoutLookingForOne) {
  RandomPolygons random(7);
  for (int trial = 0; trial < 2000; ++trial) {
    const Polygon soil = random_polygon(random, trial % 2 == 0 ? 3 : 4);
    const int x = random.integer(-9, 8);
    const int y = random.integer(-9, 8);
    const int width = random.integer(1, 9);
    const int height = random.integer(1, 9);
    const Polygons cut = common(box(x, y, x + width, y + height), soil);
    const Polygons overlaid = common(five_sided_box(x, y, x + width, y + height), soil);
    EXPECT_EQ(cut.size(), overlaid.size()) << trial;
    EXPECT_NEAR(total_area(cut), total_area(overlaid), rounding + 1e-11 * 72) << trial;
  }
}

TEST(PolygonOverlay, LeavesWhatLiesInABoxAsItIs) {
  RandomPolygons random(8);
  for (int trial = 0; trial < 500; ++trial) {
    const Polygon clip = random.rectangle(reach);
    for (const Polygon& part : common(clip, random_polygon(random, trial % 5))) {
      const Polygons again = common(clip, part);
      ASSERT_EQ(again.size(), 1U) << trial;
      EXPECT_EQ(pairs(again[0]), pairs(part)) << trial;
    }
  }
}

/// The vertices of polygons that neither operand has.
Pairs made_vertices(const Polygons& result, const Polygon& a, const Polygon& b) {
  std::set<std::pair<double, double>> known;
  for (const Polygon& operand : {a, b}) {
    const Pairs all = pairs(operand);
    known.insert(all.begin(), all.end());
  }
  Pairs made;
  for (const Polygon& each : result) {
    for (const auto& vertex : pairs(each)) {
      if (!known.contains(vertex)) made.push_back(vertex);
    }
  }
  return made;
}

/// How a level may be drawn through the ground.
enum class Clip { box_above, box_below, trapezium };

Polygon half_plane(Clip clip, double level) {
  switch (clip) {
    case Clip::box_above:
      return box(-1e6, level, 1e6, 1e6);
    case Clip::box_below:
      return box(-1e6, -1e6, 1e6, level);
    case Clip::trapezium:
      break;
  }
  return closed({{-1e6, level}, {1e6, level}, {2e6, 1e6}, {-3e6, 1e6}});
}

class Level : public testing::TestWithParam<Clip> {};

// Ground of 20 m round any place up to 100 m away, cut at any level, in general position: every
// vertex that is made lies on the level.
TEST_P(Level, IsMetInTheSameDouble) {
  RandomPolygons random(9);
  std::size_t cut = 0;
  for (int trial = 0; trial < 500; ++trial) {
    const double x = random.number(-1e5, 1e5);
    const double y = random.number(-1e5, 1e5);
    const Polygon soil = random.star(random.integer(3, 40), 2e4, x, y);
    const double level = y + random.number(-1e4, 1e4);
    const Polygon clip = half_plane(GetParam(), level);
    for (const auto& vertex : made_vertices(common(clip, soil), soil, clip)) {
      ++cut;
      EXPECT_EQ(vertex.second, level) << trial;
    }
  }
  EXPECT_GT(cut, 1000U);
}

// The same with the axes exchanged: the border of a stripe.
TEST_P(Level, IsMetInTheSameDoubleAsAPlumbLine) {
  RandomPolygons random(10);
  const auto turned = [](Polygon polygon) {
    for (Point& each : polygon)
      each = Point{each[1], each[0]};
    return polygon;
  };
  for (int trial = 0; trial < 500; ++trial) {
    const Polygon soil = random.star(random.integer(3, 40), 2e4);
    const double x = random.number(-1e4, 1e4);
    const Polygon clip = turned(half_plane(GetParam(), x));
    for (const auto& vertex : made_vertices(common(clip, soil), soil, clip))
      EXPECT_EQ(vertex.first, x) << trial;
  }
}

INSTANTIATE_TEST_SUITE_P(PolygonOverlay, Level,
                         testing::Values(Clip::box_above, Clip::box_below, Clip::trapezium));

/// A line from left to right with a vertex every metre, anywhere between -2 m and 2 m.
Pairs random_border(RandomPolygons& random) {
  Pairs line;
  for (int i = 0; i <= 20; ++i)
    line.emplace_back(1000.0 * i + random.number(-300.0, 300.0), random.number(-2000.0, 2000.0));
  return line;
}

// Two soils, one on the other: along their border each stripe and each level cuts them at the same
// points, so that no place is left between the pieces.
TEST(PolygonOverlay, CutsTwoSoilsAtTheSamePointsOfTheirBorder) {
  RandomPolygons random(11);
  std::size_t shared = 0;
  for (int trial = 0; trial < 500; ++trial) {
    const Pairs border = random_border(random);
    Pairs upper = border;
    upper.insert(upper.end(), {{2e4, 5e3}, {0, 5e3}});
    Pairs lower(border.rbegin(), border.rend());
    lower.insert(lower.end(), {{0, -5e3}, {2e4, -5e3}});
    const double x = random.number(2e3, 1.7e4);
    const Polygon stripe = box(x, -1e5, x + 500.0, 1e5);
    const Pairs above = made_vertices(common(stripe, closed(upper)), closed(upper), stripe);
    const Pairs below = made_vertices(common(stripe, closed(lower)), closed(lower), stripe);
    std::set<std::pair<double, double>> points(above.begin(), above.end());
    for (const auto& each : below) {
      if (each.second > -5e3) {
        EXPECT_TRUE(points.contains(each)) << trial;
        ++shared;
      }
    }
  }
  EXPECT_GE(shared, 1000U);
}

}  // namespace
