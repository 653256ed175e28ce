// SPDX-License-Identifier: Apache-2.0
// Water that stands higher behind the wall never helps, in ground of one soil.
//
// In layered ground it can: water that reaches a layer of clay has to seep through it, and what is
// left of its head at the foot may be less than before.
#include "ostrel/hydraulic_check.h"
#include "support/random_contents.h"
#include "support/wall_builder.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace ostrel::testing {
namespace {

verificheIdrauliche checked(const xSoilProps& soil, double length, double dug, double level) {
  xLoadComb comb = unfactored("A");
  comb.checks[checkPiping] = comb.checks[checkUplift] = true;
  const xSheetpilingData data =
      WallBuilder{}.excavation(dug).layer(soil).water(level, -dug).combination(comb).build();
  verificheIdrauliche found;
  EXPECT_EQ(hyDroCheck(7, data.waterTable, data.soilLayers, data.loadCombs, -length, -dug, found),
            ostrel::ok);
  return found;
}

TEST(Seepage, IsNoSaferUnderHigherWater) {
  for (std::uint64_t seed = 1; seed <= 40; ++seed) {
    SCOPED_TRACE(seed);
    RandomContents random(seed);
    xSoilProps soil = sand();
    soil.setKPerm(random.on_grid(0.001, 1.0));
    soil.setSaturatedUnitWeight(random.on_grid(16.0, 22.0) * 1e-6);
    const double dug = random.on_grid(3000.0, 8000.0);
    const double length = dug + random.on_grid(2000.0, 8000.0);
    double piping = 1e10;
    double uplift = 1e10;
    for (double level = 256.0 - dug; level <= 0.0; level += 256.0) {
      const verificheIdrauliche found = checked(soil, length, dug, level);
      ASSERT_EQ(found.piping.size(), 1U);
      ASSERT_EQ(found.uplift.size(), 1U);
      EXPECT_LT(found.piping[0].getSf(), piping) << level;
      EXPECT_LT(found.uplift[0].getSf(), uplift) << level;
      piping = found.piping[0].getSf();
      uplift = found.uplift[0].getSf();
    }
    EXPECT_GT(piping, 0.0);
    EXPECT_LT(piping, 1e10);
  }
}

}  // namespace
}  // namespace ostrel::testing
