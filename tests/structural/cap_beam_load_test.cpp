// SPDX-License-Identifier: Apache-2.0
#include "structural/cap_beam_load.h"

#include <gtest/gtest.h>

namespace {

using ostrel::structural::CapBeamLoad;
using ostrel::structural::head_reaction;
using ostrel::structural::midspan_moment;
using ostrel::structural::support_shear;

CapBeamLoad load(double q, double P) {
  CapBeamLoad load;
  load.q = q;
  load.P = P;
  return load;
}

// 12 * 2000² / 8 = 6e6 and 4000 * 2000 / 4 = 2e6; 12 * 1000 and 4000 / 2.
TEST(CapBeamLoad, BendsASimplySupportedBeam) {
  EXPECT_DOUBLE_EQ(midspan_moment(load(12.0, 0.0), 2000.0), 6e6);
  EXPECT_DOUBLE_EQ(midspan_moment(load(0.0, 4000.0), 2000.0), 2e6);
  EXPECT_DOUBLE_EQ(midspan_moment(load(12.0, 4000.0), 2000.0), 8e6);
  EXPECT_DOUBLE_EQ(support_shear(load(12.0, 0.0), 2000.0), 12'000.0);
  EXPECT_DOUBLE_EQ(support_shear(load(12.0, 4000.0), 2000.0), 14'000.0);
  EXPECT_DOUBLE_EQ(midspan_moment(CapBeamLoad{}, 2000.0), 0.0);
  EXPECT_DOUBLE_EQ(support_shear(CapBeamLoad{}, 2000.0), 0.0);
}

std::vector<xFemNodeData_pos> across(const std::vector<std::pair<double, double>>& forces) {
  std::vector<xFemNodeData_pos> applied;
  for (const auto& [depth, force] : forces) {
    xFemNodeData_pos& entry = applied.emplace_back();
    entry.pos = depth;
    entry.data = xFemNodeData(9e9, force, 9e9);
  }
  return applied;
}

// (6000 * 1000 - 3000 * 400 + 0 * 700 - 1500 * 100) / 6000 = 4 650 000 / 6000 = 775.
TEST(HeadReaction, IsThatOfAWallOnTwoSupports) {
  EXPECT_DOUBLE_EQ(
      head_reaction(across({{0.0, 1000.0}, {3000.0, -400.0}, {6000.0, 700.0}, {7500.0, 100.0}}),
                    6000.0),
      775.0);
  EXPECT_DOUBLE_EQ(
      head_reaction(across({{0.0, -1000.0}, {3000.0, 400.0}, {6000.0, -700.0}, {7500.0, -100.0}}),
                    6000.0),
      775.0);
  EXPECT_DOUBLE_EQ(head_reaction({}, 6000.0), 0.0);
}

}  // namespace
