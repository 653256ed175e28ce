// SPDX-License-Identifier: Apache-2.0
// A beam pushed from the other side moves the other way by as much: the springs do not tell sides.
#include "support/random_contents.h"
#include "support/spring_beam.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>

namespace ostrel::testing {
namespace {

// A diaphragm with forces, moments and an elastic support at random nodes, and a support that has
// moved.
SpringBeam random_beam(std::uint64_t seed) {
  RandomContents random(seed);
  SpringBeam beam = reference_diaphragm(40, random.on_grid(500.0, 1000.0));
  for (int i = 0; i < 3; ++i) {
    const auto node = static_cast<std::int32_t>(random.below(41));
    beam.conditions.front().nodalForces[node] +=
        xFemNodeData(0.0, random.on_grid(-20000.0, 20000.0), random.on_grid(-1e6, 1e6));
  }
  beam.data.springDof1[static_cast<int>(random.below(10))] = random.on_grid(100.0, 5000.0);
  beam.data.constrDof1[static_cast<int>(random.below(3))] = random.on_grid(-5.0, 5.0);
  return beam;
}

// All that acts across the wall, the other way; the weight along it stays.
void mirror(SpringBeam& beam) {
  for (xFemLoadCond& condition : beam.conditions) {
    for (auto& [element, pressure] : condition.pressures) {
      pressure.pStart = -pressure.pStart;
      pressure.pEnd = -pressure.pEnd;
    }
    for (auto& [node, force] : condition.nodalForces) {
      force.y = -force.y;
      force.r = -force.r;
    }
  }
  for (auto& [node, value] : beam.data.constrDof1)
    value = -value;
}

// Signs do not round, so that nothing differs but the sign.
TEST(MirroredBeam, MovesTheOtherWayByAsMuch) {
  for (std::uint64_t seed = 1; seed <= 30; ++seed) {
    SCOPED_TRACE(seed);
    SpringBeam beam = random_beam(seed);
    SpringBeam mirrored = beam;
    mirror(mirrored);
    xCombRes one;
    xCombRes two;
    ASSERT_EQ(beam.solve(one), ostrel::ok);
    ASSERT_EQ(mirrored.solve(two), ostrel::ok);
    ASSERT_EQ(one.displacements.size(), 41U);
    for (std::size_t node = 0; node < one.displacements.size(); ++node) {
      EXPECT_EQ(two.displacements.at(node).x, one.displacements[node].x);
      EXPECT_EQ(two.displacements.at(node).y, -one.displacements[node].y);
      EXPECT_EQ(two.displacements.at(node).r, -one.displacements[node].r);
    }
    for (const auto& [node, force] : one.soilForces)
      EXPECT_EQ(two.soilForces.at(node).springForce, -force.springForce);
  }
}

}  // namespace
}  // namespace ostrel::testing
