// SPDX-License-Identifier: Apache-2.0
#include "overlay_effort.h"

#include "polygon_testing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using sorrel::is_affordable;
using sorrel::Outline;
using sorrel::testing::RandomPolygons;

Outline tangle(int vertices) {
  return *sorrel::outline_of(RandomPolygons(51).tangle(vertices, 100.0));
}

/// A layer with a waving upper border.
Outline layer(int vertices) {
  Outline made = {{0, -5000}, {5.0 * vertices, -5000}};
  for (int i = vertices; i > 2; --i)
    made.push_back({5.0 * i, 1000.0 * std::sin(i * 0.01)});
  return made;
}

TEST(OverlayEffort, IsAlwaysAffordableForFewSides) {
  EXPECT_TRUE(is_affordable({}));
  EXPECT_TRUE(is_affordable(std::vector<Outline>{tangle(128)}));
  EXPECT_TRUE(is_affordable(std::vector<Outline>{tangle(64), tangle(64)}));
}

// Of two random sides the boxes meet with a probability of (2/3)² = 0.44 or so: 400 sides meet about
// 35 000 times, 2000 about 890 000 times.
TEST(OverlayEffort, IsNotForSidesThatMeetTooOften) {
  EXPECT_TRUE(is_affordable(std::vector<Outline>{tangle(400)}));
  EXPECT_FALSE(is_affordable(std::vector<Outline>{tangle(2000)}));
  EXPECT_FALSE(is_affordable(std::vector<Outline>{tangle(1000), tangle(1000)}));
}

TEST(OverlayEffort, IsAffordableForGround) {
  EXPECT_TRUE(is_affordable(std::vector<Outline>{layer(1000), layer(1000), layer(1000)}));
  EXPECT_TRUE(is_affordable(std::vector<Outline>{layer(100'000)}));
}

TEST(OverlayEffort, IsNotForMoreSidesThanAnyGroundHas) {
  EXPECT_FALSE(is_affordable(std::vector<Outline>{layer(100'001)}));
  EXPECT_FALSE(is_affordable(std::vector<Outline>{layer(60'000), layer(60'000)}));
}

}  // namespace
