// SPDX-License-Identifier: Apache-2.0
#include "simple_parts.h"

#include "polygon_testing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <string>
#include <vector>

namespace {

using sorrel::Geometry;
using sorrel::Polygon;
using sorrel::simple_parts;
using sorrel::testing::box;
using sorrel::testing::Pairs;
using sorrel::testing::pairs;
using testing::ElementsAre;
using testing::IsEmpty;

Geometry geometry(const std::string& text) {
  GEOSContextHandle_t geos = sorrel::geos_context();
  GEOSWKTReader* reader = GEOSWKTReader_create_r(geos);
  Geometry made(GEOSWKTReader_read_r(geos, reader, text.c_str()));
  GEOSWKTReader_destroy_r(geos, reader);
  EXPECT_TRUE(made) << text;
  return made;
}

std::vector<Pairs> parts(const std::string& text) {
  const std::optional<std::vector<Polygon>> found = simple_parts(geometry(text));
  EXPECT_TRUE(found) << text;
  return pairs(found.value_or(std::vector<Polygon>{}));
}

TEST(SimpleParts, RunCounterClockwiseFromTheirHighestLeftmostVertex) {
  const Pairs expected = {{0, 2}, {0, 0}, {2, 0}, {2, 2}, {0, 2}};
  EXPECT_THAT(parts("POLYGON ((2 0, 0 0, 0 2, 2 2, 2 0))"), ElementsAre(expected));
  EXPECT_THAT(parts("POLYGON ((2 0, 2 2, 0 2, 0 0, 2 0))"), ElementsAre(expected));
}

TEST(SimpleParts, LeaveOutLinesAndPoints) {
  const Pairs triangle = {{0, 1}, {0, 0}, {1, 0}, {0, 1}};
  EXPECT_THAT(parts("GEOMETRYCOLLECTION (POINT (5 5), LINESTRING (0 0, 9 9), "
                    "GEOMETRYCOLLECTION (MULTIPOLYGON (((0 0, 0 1, 1 0, 0 0))), POINT (1 1)))"),
              ElementsAre(triangle));
  EXPECT_THAT(parts("POINT (1 1)"), IsEmpty());
  EXPECT_THAT(parts("MULTIPOINT (1 1, 2 2)"), IsEmpty());
  EXPECT_THAT(parts("MULTILINESTRING ((1 1, 2 2), (3 3, 4 4))"), IsEmpty());
}

TEST(SimpleParts, AreNoneOfWhatIsEmpty) {
  EXPECT_THAT(parts("POLYGON EMPTY"), IsEmpty());
  EXPECT_THAT(parts("MULTIPOLYGON EMPTY"), IsEmpty());
  EXPECT_THAT(parts("GEOMETRYCOLLECTION EMPTY"), IsEmpty());
}

TEST(SimpleParts, AreUnknownWhereGeosFailed) {
  EXPECT_FALSE(simple_parts(nullptr));
}

// A triangular hole from y = 1 to 3: the level 2 cuts its sides at x = 1.5 and 2.5.
TEST(SimpleParts, OpenAHoleAtItsMiddle) {
  EXPECT_THAT(
      parts("POLYGON ((0 0, 4 0, 4 4, 0 4, 0 0), (1 1, 3 1, 2 3, 1 1))"),
      ElementsAre(
          Pairs{{0, 4}, {0, 2}, {1.5, 2}, {2, 3}, {2.5, 2}, {4, 2}, {4, 4}, {0, 4}},
          Pairs{{0, 2}, {0, 0}, {4, 0}, {4, 2}, {2.5, 2}, {3, 1}, {1, 1}, {1.5, 2}, {0, 2}}));
}

// Holes one above the other, each opened at its own level: four pieces, 8 * 40 less 3 * 4.
TEST(SimpleParts, OpenHolesThatNoLevelSharesOneByOne) {
  const std::vector<Pairs> found = parts(
      "POLYGON ((0 0, 8 0, 8 40, 0 40, 0 0), (1 1, 3 1, 3 3, 1 3, 1 1), "
      "(4 11, 6 11, 6 13, 4 13, 4 11), (1 31, 3 31, 3 33, 1 33, 1 31))");
  ASSERT_EQ(found.size(), 4U);
  double area = 0.0;
  for (const Pairs& each : found)
    area += polyArea(sorrel::testing::polygon(each));
  EXPECT_EQ(area, 308.0);
  EXPECT_EQ(found[0].front().second, 40);  // begins at x = 0 as the others do, and is the highest
  EXPECT_EQ(found[1].front().second, 32);
  EXPECT_EQ(found[2].front().second, 12);
  EXPECT_EQ(found[3].front().second, 2);
}

// No double lies between 1 and the next one above: such a hole cannot be opened by a level.
TEST(SimpleParts, FillAHoleThatNoLevelPassesThrough) {
  const double next = std::nextafter(1.0, 2.0);
  const auto outline = [](const Pairs& vertices) {
    return sorrel::outline_of(sorrel::testing::polygon(vertices)).value();
  };
  const Geometry whole = sorrel::polygon_geometry(outline({{0, 0}, {4, 0}, {4, 4}, {0, 4}}));
  const Geometry hole = sorrel::polygon_geometry(outline({{1, 1}, {3, 1}, {3, next}, {1, next}}));
  Geometry ring(GEOSDifference_r(sorrel::geos_context(), whole.get(), hole.get()));
  ASSERT_EQ(GEOSGetNumInteriorRings_r(sorrel::geos_context(), ring.get()), 1);
  const auto found = simple_parts(std::move(ring));
  ASSERT_TRUE(found);
  EXPECT_THAT(pairs(*found), ElementsAre(Pairs{{0, 4}, {0, 0}, {4, 0}, {4, 4}, {0, 4}}));
}

TEST(SimpleParts, StandFromLeftToRightAndFromTopToBottom) {
  std::vector<Polygon> polygons = {sorrel::arranged(*sorrel::outline_of(box(5, 0, 6, 1))),
                                   sorrel::arranged(*sorrel::outline_of(box(1, 0, 9, 1))),
                                   sorrel::arranged(*sorrel::outline_of(box(1, 2, 2, 3))),
                                   sorrel::arranged(*sorrel::outline_of(box(-1, -9, 0, -8)))};
  sorrel::sort_from_left(polygons);
  EXPECT_THAT(pairs(polygons), ElementsAre(Pairs{{-1, -8}, {-1, -9}, {0, -9}, {0, -8}, {-1, -8}},
                                           Pairs{{1, 3}, {1, 2}, {2, 2}, {2, 3}, {1, 3}},
                                           Pairs{{1, 1}, {1, 0}, {9, 0}, {9, 1}, {1, 1}},
                                           Pairs{{5, 1}, {5, 0}, {6, 0}, {6, 1}, {5, 1}}));
}

}  // namespace
