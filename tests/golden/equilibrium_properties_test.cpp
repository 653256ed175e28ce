// SPDX-License-Identifier: Apache-2.0
// What acts on the wall is in balance, whatever the wall.
#include "analysis.h"
#include "equilibrium.h"
#include "support/random_walls.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

namespace ostrel::host {
namespace {

// The residual against the size of what is summed: the equations are solved to about 1e-7.
TEST(RandomWalls, AreInBalanceInEachCombination) {
  for (std::uint64_t seed = 1; seed <= 24; ++seed) {
    SCOPED_TRACE(seed);
    Job job;
    job.data = testing::random_wall(seed);
    const Outcome outcome = analyse(job);
    ASSERT_EQ(outcome.results.combResults.size(), 2u);
    for (const xCombResults& combination : outcome.results.combResults) {
      const Balance balance = balance_of(job, outcome, combination);
      const ForceSum rest = balance.residual();
      EXPECT_GT(std::abs(balance.loads.across), 1000.0);
      EXPECT_NEAR(rest.across, 0.0, 1e-6 * std::abs(balance.loads.across));
      EXPECT_NEAR(rest.along, 0.0, 1e-6 * std::abs(balance.loads.along));
      EXPECT_NEAR(rest.moment, 0.0, 1e-6 * std::abs(balance.loads.moment));
    }
  }
}

}  // namespace
}  // namespace ostrel::host
