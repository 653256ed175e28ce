// SPDX-License-Identifier: Apache-2.0
// What is recovered from displacements that are given. No solution is made but in the last tests.
#include "ostrel/fem_solver.h"
#include "support/spring_beam.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <vector>

namespace {

using ostrel::testing::reference_piles;
using ostrel::testing::spring;
using ostrel::testing::SpringBeam;
using ostrel::testing::straight_beam;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Key;
using ::testing::SizeIs;

// Elements of 2 mm with E = 10, A = 20, J = 6: along 100, across 90, 6 E J / L² = 90, 4 E J / L =
// 120, 2 E J / L = 60.
SpringBeam chain(int elements) {
  return straight_beam(elements, 2.0, 10.0, 20.0, 6.0);
}

xFemSolver assembled(const SpringBeam& beam) {
  xFemSolver solver;
  solver.takeSizes(beam.data, 0);
  EXPECT_EQ(solver.buildTopologyMat(), ostrel::ok);
  EXPECT_EQ(solver.buildBStif(beam.data), ostrel::ok);
  return solver;
}

std::vector<arma::Col<double>> unloaded(std::size_t elements) {
  return {elements, arma::Col<double>(6, arma::fill::zeros)};
}

void expect_node(const xFemNodeData& node, double x, double y, double r) {
  EXPECT_DOUBLE_EQ(node.x, x);
  EXPECT_DOUBLE_EQ(node.y, y);
  EXPECT_DOUBLE_EQ(node.r, r);
}

void expect_forces(const xPointStress& point, double N, double T, double M) {
  EXPECT_DOUBLE_EQ(point.N, N);
  EXPECT_DOUBLE_EQ(point.T, T);
  EXPECT_DOUBLE_EQ(point.M, M);
}

TEST(GetDisplacements, TakesThreeDofsANode) {
  std::vector<xFemNodeData> out(7);
  EXPECT_EQ(assembled(chain(1)).getDisplacements({1, 2, 3, 4, 5, 6}, out), ostrel::ok);
  ASSERT_THAT(out, SizeIs(2));
  expect_node(out[0], 1.0, 2.0, 3.0);
  expect_node(out[1], 4.0, 5.0, 6.0);
}

TEST(GetDisplacements, LeavesANodeWithoutDofsAtRest) {
  std::vector<xFemNodeData> out;
  EXPECT_EQ(assembled(chain(1)).getDisplacements({1, 2, 3, 4, 5}, out), ostrel::ok);
  ASSERT_THAT(out, SizeIs(2));
  expect_node(out[1], 0.0, 0.0, 0.0);
}

TEST(GetAppliedNodalForces, LeavesOutNodesWithoutALoad) {
  std::map<int, xFemNodeData> out{{7, {}}};
  EXPECT_EQ(assembled(chain(2)).getAppliedNodalForces({1, 2, 3, 0, 0, 0, 0, 0, -4}, out),
            ostrel::ok);
  EXPECT_THAT(out, ElementsAre(Key(0), Key(2)));
  expect_node(out[0], 1.0, 2.0, 3.0);
  expect_node(out[2], 0.0, 0.0, -4.0);
}

// The size mixes forces and moment: sqrt(3² + 4² + 12²) = 13. The square root of a square is exact.
TEST(GetAppliedNodalForces, NeedsMoreThanTheThreshold) {
  const double above = std::nextafter(0.0001, 1.0);
  std::map<int, xFemNodeData> out;
  xFemSolver solver = assembled(chain(2));
  EXPECT_EQ(solver.getAppliedNodalForces({0.0001, 0, 0, 0, -0.0001, 0, 0, 0, 0.0001}, out),
            ostrel::ok);
  EXPECT_THAT(out, IsEmpty());
  EXPECT_EQ(solver.getAppliedNodalForces({above, 0, 0, 0, -above, 0, 3e-5, 4e-5, 12e-5}, out),
            ostrel::ok);
  EXPECT_THAT(out, ElementsAre(Key(0), Key(1), Key(2)));
  EXPECT_EQ(solver.getAppliedNodalForces({3e-6, 4e-6, 12e-6, 0, 0, 0, 0, 0, 0}, out), ostrel::ok);
  EXPECT_THAT(out, IsEmpty());
}

// Springs of modulus 2 with a limit of 1.5 mm.
struct Reaction {
  double u;
  double linear;   // - 2 u
  double limited;  // - 2 u, at most 3 in size
};

class SoilReaction : public ::testing::TestWithParam<Reaction> {};

TEST_P(SoilReaction, HasALimitUnlessLinear) {
  const auto [u, linear, limited] = GetParam();
  const std::vector<double> d{0.0, u, 0.0, 9.0, 9.0, 9.0};
  const std::map<int, NodeModulus> springs{{0, spring(2.0, 1.5)}};
  std::map<int, reacTerr> out{{7, {}}};
  xFemSolver solver = assembled(chain(1));
  EXPECT_EQ(solver.getSoilReaction(true, springs, d, out), ostrel::ok);
  ASSERT_THAT(out, ElementsAre(Key(0)));
  EXPECT_EQ(out[0].reaction, linear);
  EXPECT_EQ(out[0].limited, limited);
  EXPECT_EQ(solver.getSoilReaction(false, springs, d, out), ostrel::ok);
  EXPECT_EQ(out[0].reaction, limited);
  EXPECT_EQ(out[0].limited, limited);
}

INSTANTIATE_TEST_SUITE_P(Displacements, SoilReaction,
                         ::testing::Values(Reaction{0.0, 0.0, 0.0}, Reaction{1.0, -2.0, -2.0},
                                           Reaction{-1.0, 2.0, 2.0}, Reaction{1.5, -3.0, -3.0},
                                           Reaction{-1.5, 3.0, 3.0}, Reaction{2.0, -4.0, -3.0},
                                           Reaction{-2.0, 4.0, 3.0}));

// Without strength the limit is 0 and the displacement 0 is not below it.
TEST(GetSoilReaction, OfASpringWithoutStrengthIsNothing) {
  std::map<int, reacTerr> out;
  EXPECT_EQ(assembled(chain(1)).getSoilReaction(false, {{0, spring(2.0, 0.0)}},
                                                {0.0, 5.0, 0.0, 0.0, 0.0, 0.0}, out),
            ostrel::ok);
  EXPECT_EQ(out[0].reaction, 0.0);
}

TEST(GetSoilReaction, TakesANodeBeyondTheEndAsAtRest) {
  std::map<int, reacTerr> out;
  EXPECT_EQ(
      assembled(chain(1)).getSoilReaction(true, {{-1, spring(2.0, 1.5)}, {5, spring(2.0, 1.5)}},
                                          {1.0, 1.0, 1.0, 1.0, 1.0, 1.0}, out),
      ostrel::ok);
  EXPECT_THAT(out, ElementsAre(Key(-1), Key(5)));
  EXPECT_EQ(out[5].reaction, 0.0);
}

// The head moves down by 1: the element is shorter and presses with 100.
TEST(GetBeamStress, CountsTensionAsPositive) {
  const SpringBeam beam = chain(1);
  std::vector<xBeamStress> out(7);
  EXPECT_EQ(assembled(beam).getBeamStress(beam.data, {1, 0, 0, 0, 0, 0}, unloaded(1), out),
            ostrel::ok);
  ASSERT_THAT(out, SizeIs(1));
  EXPECT_EQ(out[0].getStartNode(), 0);
  EXPECT_EQ(out[0].getEndNode(), 1);
  ASSERT_THAT(out[0].points, SizeIs(2));
  expect_forces(out[0].points[0], -100.0, 0.0, 0.0);
  expect_forces(out[0].points[1], -100.0, 0.0, 0.0);
}

// The head moves by 1 across: the forces on the element are 90 and 90 there, -90 and 90 at the end.
TEST(GetBeamStress, TurnsTheForcesOfTheEndsIntoThoseOfACut) {
  const SpringBeam beam = chain(1);
  std::vector<xBeamStress> out;
  EXPECT_EQ(assembled(beam).getBeamStress(beam.data, {0, 1, 0, 0, 0, 0}, unloaded(1), out),
            ostrel::ok);
  expect_forces(out[0].points[0], 0.0, 90.0, -90.0);
  expect_forces(out[0].points[1], 0.0, 90.0, 90.0);
}

TEST(GetBeamStress, TakesOffTheLoadsOfTheElement) {
  const SpringBeam beam = chain(2);
  std::vector<arma::Col<double>> loads = unloaded(2);
  loads[1] = {1.0, 2.0, 3.0, 4.0, 5.0, 6.0};
  std::vector<xBeamStress> out;
  EXPECT_EQ(assembled(beam).getBeamStress(beam.data, std::vector<double>(9, 0.0), loads, out),
            ostrel::ok);
  expect_forces(out[0].points[0], 0.0, 0.0, 0.0);
  EXPECT_EQ(out[1].getStartNode(), 1);
  EXPECT_EQ(out[1].getEndNode(), 2);
  expect_forces(out[1].points[0], 1.0, -2.0, 3.0);
  expect_forces(out[1].points[1], -4.0, 5.0, -6.0);
}

// The displacements come from the nodes that the element names.
TEST(GetBeamStress, FollowsTheNodesOfTheElement) {
  SpringBeam beam = chain(2);
  beam.data.elements[0].setStartNode(1);
  beam.data.elements[0].setEndNode(2);
  std::vector<xBeamStress> out;
  EXPECT_EQ(assembled(beam).getBeamStress(beam.data, {9, 9, 9, 1, 0, 0, 0, 0, 0}, unloaded(2), out),
            ostrel::ok);
  expect_forces(out[0].points[0], -100.0, 0.0, 0.0);
}

TEST(GetBeamStress, RefusesANodeThatTheDisplacementsDoNotHave) {
  for (const int node : {-1, 2, std::numeric_limits<int>::max()}) {
    SpringBeam beam = chain(1);
    beam.data.elements[0].setEndNode(node);
    std::vector<xBeamStress> out;
    EXPECT_EQ(assembled(beam).getBeamStress(beam.data, {1, 0, 0, 0, 0, 0}, unloaded(1), out),
              errFemNodeNotFound);
    EXPECT_THAT(out, SizeIs(1));
  }
}

TEST(GetBeamStress, RefusesAnotherBeamThanTheOneAssembled) {
  std::vector<xBeamStress> out;
  xFemSolver solver = assembled(chain(2));
  EXPECT_EQ(solver.getBeamStress(chain(1).data, std::vector<double>(9, 0.0), unloaded(2), out),
            errNodeCountModel);
  EXPECT_EQ(solver.getBeamStress(chain(2).data, std::vector<double>(9, 0.0), unloaded(1), out),
            errNodeCountModel);
}

// The head moves down by 1 under 100; the foot has to be held by 100 upwards.
TEST(GetNodalForce, IsWhatSupportsExertReversed) {
  xFemSolver solver = assembled(chain(1));
  std::vector<double> total{100.0, 0.0, 0.0, 0.0, 0.0, 0.0};
  std::vector<double> d{1.0, 0.0, 0.0, 0.0, 0.0, 0.0};
  std::map<int, xFemNodeData> out;
  EXPECT_EQ(solver.getNodalForce(total, d, out), ostrel::ok);
  EXPECT_THAT(out, ElementsAre(Key(1)));
  expect_node(out[1], -100.0, 0.0, 0.0);
  // What is left of the loads stands in place of the displacements.
  EXPECT_THAT(d, ElementsAre(0.0, 0.0, 0.0, 100.0, 0.0, 0.0));
  EXPECT_THAT(total, ElementsAre(100.0, 0.0, 0.0, 0.0, 0.0, 0.0));
}

// With the head moved across by 1 all six entries of the column of the beam are there.
TEST(GetNodalForce, TakesTheWholeBand) {
  xFemSolver solver = assembled(chain(3));
  std::vector<double> total(12, 0.0);
  std::vector<double> d(12, 0.0);
  d[4] = 1.0;
  std::map<int, xFemNodeData> out;
  EXPECT_EQ(solver.getNodalForce(total, d, out), ostrel::ok);
  EXPECT_THAT(out, ElementsAre(Key(0), Key(1), Key(2)));
  expect_node(out[0], 0.0, -90.0, -90.0);
  expect_node(out[1], 0.0, 180.0, 0.0);
  expect_node(out[2], 0.0, -90.0, 90.0);
}

TEST(GetNodalForce, NeedsMoreThanTheThresholdAndKeepsWhatIsThere) {
  const double above = std::nextafter(0.0001, 1.0);
  xFemSolver solver = assembled(chain(1));
  std::vector<double> total{0.0001, 0.0, 0.0, 0.0, 0.0, -above};
  std::vector<double> d(6, 0.0);
  std::map<int, xFemNodeData> out{{7, {}}};
  EXPECT_EQ(solver.getNodalForce(total, d, out), ostrel::ok);
  EXPECT_THAT(out, ElementsAre(Key(1), Key(7)));
  expect_node(out[1], 0.0, 0.0, above);
}

TEST(GetNodalForce, RefusesLoadsOfAnotherSize) {
  xFemSolver solver = assembled(chain(1));
  std::vector<double> total(3, 0.0);
  std::vector<double> d(6, 1.0);
  std::map<int, xFemNodeData> out;
  EXPECT_EQ(solver.getNodalForce(total, d, out), errNodeCountModel);
  EXPECT_THAT(d, ::testing::Each(1.0));
}

// On a wall whose only other support is that of the foot along it, the force at a node with a spring
// is that of the spring. The terms of a force are as large as 12 E J / L³ times 138 mm or 6e10 N,
// of which 16 digits are kept.
TEST(Recovery, FindsTheForceOfASpringInTheBeam) {
  SpringBeam wall = reference_piles(80);
  xCombRes result;
  ASSERT_EQ(wall.solve(result), ostrel::ok);
  for (const auto& [node, force] : result.soilForces) {
    EXPECT_NEAR(result.nodalForces[node].y, force.springForce, 1e-3) << node;
  }
  // Above the excavation nothing holds the wall; rounding may still leave more than the threshold.
  EXPECT_NEAR(result.nodalForces[3].y, 0.0, 1e-3);
}

// Soil and loads across the wall sum to zero, and so do weight and support along it.
TEST(Recovery, KeepsTheWallInEquilibrium) {
  SpringBeam wall = reference_piles(80);
  xCombRes result;
  ASSERT_EQ(wall.solve(result), ostrel::ok);
  xFemNodeData sum;
  double turning = 0.0;
  double push = 0.0;
  for (const auto& [node, force] : result.appliedForces) {
    sum += force;
    push += force.y;
    turning += force.r - force.y * (20'000.0 - 250.0 * node);
  }
  for (const auto& entry : result.soilForces) {
    sum.y += entry.second.springForce;
    turning -= entry.second.springForce * (20'000.0 + entry.second.elevation);
  }
  sum.x += result.nodalForces[80].x;
  // 0.4 * 2e-5 * 8000² / 2 * 1000 and 502 655 * 2.5e-5 * 20 000.
  EXPECT_NEAR(push, 256'000.0, 1e-6);
  EXPECT_NEAR(result.nodalForces[80].x, -251'327.5, 1e-3);
  EXPECT_NEAR(sum.x, 0.0, 1e-3);
  EXPECT_NEAR(sum.y, 0.0, 1e-3);
  EXPECT_NEAR(turning, 0.0, 10.0);  // of about 4e9 Nmm on either side
}

// At a node between elements the cut forces differ by the force that stands there alone.
TEST(Recovery, LetsShearJumpByTheForceOfANode) {
  SpringBeam wall = reference_piles(80);
  wall.push(10, 12'345.0);
  xCombRes result;
  ASSERT_EQ(wall.solve(result), ostrel::ok);
  for (const int n : {5, 10, 40, 60}) {
    const auto node = static_cast<std::size_t>(n);
    const xPointStress& above = result.beamStress[node - 1].points[1];
    const xPointStress& below = result.beamStress[node].points[0];
    const double held = result.soilForces.count(n) != 0 ? result.soilForces[n].springForce : 0.0;
    EXPECT_NEAR(below.T - above.T, (n == 10 ? 12'345.0 : 0.0) + held, 1e-3) << n;
    EXPECT_NEAR(below.M - above.M, 0.0, 1.0) << n;
  }
}

}  // namespace
