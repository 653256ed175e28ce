// SPDX-License-Identifier: Apache-2.0
//
// Published minima of the ordinary method of slices.
#include "validation/slope_circles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace ostrel::validation {
namespace {

// No circle through the toe is worse than the one that he gives as critical.
TEST(OrdinaryMethod, FindsTheMinimaOfTaylor) {
  for (const TaylorSlope& each : {steep_slope, flat_slope}) {
    const Circle critical = each.critical_circle();
    std::vector<Circle> circles;
    for (int i = -8; i <= 8; ++i) {
      for (int k = -8; k <= 8; ++k) {
        const Circle around{critical.x + 400.0 * i, critical.y + 400.0 * k, 0.0};
        if (!(around.y > 0.0)) continue;
        circles.push_back(
            {around.x, around.y, std::hypot(around.x, around.y + TaylorSlope::height)});
      }
    }
    EXPECT_NEAR(smallest_factor(each.soil(), 50.0, circles), 1.0, 3e-3);
  }
}

}  // namespace
}  // namespace ostrel::validation
