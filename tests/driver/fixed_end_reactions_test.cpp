// SPDX-License-Identifier: Apache-2.0
#include "driver/fixed_end_reactions.h"

#include <gtest/gtest.h>

namespace {

using ostrel::driver::EndReactions;
using ostrel::driver::fixed_end_force;
using ostrel::driver::fixed_end_moment;

void expect_node(const xFemNodeData& node, double x, double y, double r) {
  EXPECT_DOUBLE_EQ(node.x, x);
  EXPECT_DOUBLE_EQ(node.y, y);
  EXPECT_DOUBLE_EQ(node.r, r);
}

// At mid-length of L = 400: half the forces at each end, moments P L / 8 = 8 * 400 / 8 = 400.
TEST(FixedEndForce, AtMidLengthSharesEqually) {
  const EndReactions ends = fixed_end_force(6.0, 8.0, 200.0, 400.0);
  expect_node(ends.start, 3.0, 4.0, 400.0);
  expect_node(ends.end, 3.0, 4.0, -400.0);
}

// a = 100, b = 300, L = 400, P = 64: y = 64 * 300² * 600 / 400³ = 54 and 64 * 100² * 1000 / 400³
// = 10; r = P a b² / L² = 64 * 100 * 90000 / 160000 = 3600 and -P a² b / L² = -1200;
// x = 3/4 and 1/4 of 4.
TEST(FixedEndForce, NearTheStartFallsMostlyToIt) {
  const EndReactions ends = fixed_end_force(4.0, 64.0, 100.0, 400.0);
  expect_node(ends.start, 3.0, 54.0, 3600.0);
  expect_node(ends.end, 1.0, 10.0, -1200.0);
}

TEST(FixedEndForce, AtTheStartFallsWhollyToItWithoutAMoment) {
  const EndReactions ends = fixed_end_force(4.0, 64.0, 0.0, 400.0);
  expect_node(ends.start, 4.0, 64.0, 0.0);
  expect_node(ends.end, 0.0, 0.0, 0.0);
}

TEST(FixedEndForce, AtTheEndFallsWhollyToItWithoutAMoment) {
  const EndReactions ends = fixed_end_force(4.0, 64.0, 400.0, 400.0);
  expect_node(ends.start, 0.0, 0.0, 0.0);
  expect_node(ends.end, 4.0, 64.0, 0.0);
}

// At mid-length: shears 3 M / (2 L) = 3 * 800 / 800 = 3, opposite; moments M / 4 at both ends:
// (4 * 400 * 800 * 200 - 400² * 800 - 3 * 800 * 200²) / 400² = (2.56e8 - 1.28e8 - 0.96e8) / 1.6e5.
TEST(FixedEndMoment, AtMidLengthGivesOppositeShears) {
  const EndReactions ends = fixed_end_moment(800.0, 200.0, 400.0);
  expect_node(ends.start, 0.0, 3.0, 200.0);
  expect_node(ends.end, 0.0, -3.0, 200.0);
}

// At the start: the whole moment with its sign turned, -M: (0 - L² M - 0) / L².
TEST(FixedEndMoment, AtTheStartIsThatNodesAlone) {
  const EndReactions ends = fixed_end_moment(800.0, 0.0, 400.0);
  expect_node(ends.start, 0.0, 0.0, -800.0);
  expect_node(ends.end, 0.0, 0.0, 0.0);
}

// Static balance of a force about the start node, for any place: y_end L - r sum = P a.
TEST(FixedEndForce, BalancesTheLoad) {
  for (const double a : {10.0, 120.0, 333.0}) {
    const EndReactions ends = fixed_end_force(0.0, 7.0, a, 400.0);
    EXPECT_NEAR(ends.start.y + ends.end.y, 7.0, 1e-12);
    EXPECT_NEAR(ends.end.y * 400.0 + ends.start.r + ends.end.r, 7.0 * a, 1e-9) << a;
  }
}

}  // namespace
