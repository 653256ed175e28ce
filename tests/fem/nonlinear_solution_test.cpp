// SPDX-License-Identifier: Apache-2.0
// The whole of a solution. Its steps are in equation_steps_test.cpp, the dense form of every pass in
// dense_passes_test.cpp, closed forms in beam_closed_forms_test.cpp.
#include "ostrel/fem_solver.h"
#include "support/spring_beam.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace {

using ostrel::testing::reference_diaphragm;
using ostrel::testing::reference_piles;
using ostrel::testing::spring;
using ostrel::testing::SpringBeam;
using ostrel::testing::straight_beam;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double unlimited = 1e6;

// Three nodes 2 mm apart that move across the wall alone and without one another, as the beam has no
// stiffness. Of springs of modulus 16 they get
//
//     node 0  (7 * 16 + 6 * 16 - 16) 2 / 24 = 16     node 1  12 * 16 * 2 / 12 = 32     node 2  16
SpringBeam three_springs(double limit0, double limit1, double limit2) {
  SpringBeam beam = straight_beam(2, 2.0, 1.0, 0.0, 0.0);
  beam.data.setRedfac(1.0);
  for (const int n : {0, 1, 2}) {
    beam.data.constrDof0[n] = beam.data.constrDof2[n] = 0.0;
  }
  beam.springs = {{0, spring(16.0, limit0)}, {1, spring(16.0, limit1)}, {2, spring(16.0, limit2)}};
  return beam;
}

SpringBeam pushed(SpringBeam beam, double force0, double force1, double force2) {
  beam.push(0, force0);
  beam.push(1, force1);
  beam.push(2, force2);
  return beam;
}

// The head beyond its limit of 1 mm. In the first pass it moves by 32 / 16 = 2, the middle by
// 32 / 32 = 1.
SpringBeam yielding_head() {
  return pushed(three_springs(1.0, unlimited, unlimited), 32.0, 32.0, 0.0);
}

double across(const xCombRes& result, std::size_t node) {
  return result.displacements.at(node).y;
}

OstrelErrorType code_of(SpringBeam beam) {
  xCombRes result;
  return beam.solve(result);
}

// What the solution prints on the way.
std::string printed_by_solving(const SpringBeam& beam) {
  ::testing::internal::CaptureStdout();
  ::testing::internal::CaptureStderr();
  std::ignore = code_of(beam);
  return ::testing::internal::GetCapturedStdout() + ::testing::internal::GetCapturedStderr();
}

TEST(Solve, LeavesSpringsWithinTheirLimitsLinear) {
  SpringBeam beam = pushed(three_springs(2.0, 2.0, 2.0), 32.0, -32.0, 16.0);
  xCombRes result;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  ASSERT_THAT(result.displacements, SizeIs(3));
  EXPECT_DOUBLE_EQ(across(result, 0), 2.0);
  EXPECT_DOUBLE_EQ(across(result, 1), -1.0);
  EXPECT_DOUBLE_EQ(across(result, 2), 1.0);
  EXPECT_EQ(result.displacements[0].x, 0.0);
  EXPECT_EQ(result.displacements[0].r, 0.0);
}

TEST(Solve, RecoversTheForcesOfTheSprings) {
  SpringBeam beam = pushed(three_springs(2.0, 2.0, 2.0), 32.0, -32.0, 16.0);
  xCombRes result;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  ASSERT_THAT(result.soilForces, SizeIs(3));
  EXPECT_DOUBLE_EQ(result.soilForces[0].springForce, -32.0);
  EXPECT_DOUBLE_EQ(result.soilForces[1].springForce, 32.0);
  EXPECT_DOUBLE_EQ(result.soilForces[2].springForce, -16.0);
  EXPECT_EQ(result.soilForces[0].elevation, 0.0);
  EXPECT_EQ(result.soilForces[1].elevation, -2.0);
  EXPECT_EQ(result.soilForces[2].elevation, -4.0);
  EXPECT_EQ(result.soilForces[1].limitForce, 0.0);
  EXPECT_EQ(result.soilForces[1].limitMoment, 0.0);
}

TEST(Solve, FillsEveryResult) {
  SpringBeam beam = pushed(three_springs(2.0, 2.0, 2.0), 32.0, -32.0, 16.0);
  xCombRes result;
  result.soilForces[7];
  result.appliedForces[7];
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_THAT(result.soilForces, SizeIs(3));
  EXPECT_THAT(result.appliedForces, SizeIs(3));
  EXPECT_THAT(result.soilReactions, SizeIs(3));
  EXPECT_THAT(result.beamStress, SizeIs(2));
  EXPECT_THAT(result.nodalForces, SizeIs(3));
  EXPECT_TRUE(result.resName.empty());
  EXPECT_EQ(result.appliedForces[1].y, -32.0);
  EXPECT_DOUBLE_EQ(result.soilReactions[0].reaction, -32.0);  // 16 * 2
  EXPECT_DOUBLE_EQ(result.nodalForces[0].y, -32.0);           // no beam: 0 - 32
}

// Pass 1: 2 and 1. Pass 2: k'(0) = 16 * 1 / 2 = 8;
//     node 0  (56 + 96 - 16) / 12 = 34 / 3, 32 / that = 48 / 17
//     node 1  (8 + 160 + 16) / 6 = 92 / 3, 32 / that = 24 / 23
// Pass 3: k'(0) = 16 * 17 / 48 = 17 / 3, node 0 (119 / 3 + 80) / 12 = 359 / 36, 1152 / 359.
TEST(Solve, TakesTheStiffnessOfEachPassFromThePassBefore) {
  SpringBeam beam = yielding_head();
  beam.options.tolerance = 0.0;
  xCombRes result;
  beam.options.maxIterations = 2;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_DOUBLE_EQ(across(result, 0), 48.0 / 17.0);
  EXPECT_DOUBLE_EQ(across(result, 1), 24.0 / 23.0);
  // The force is that of the stiffness in use, here in balance with the push.
  EXPECT_DOUBLE_EQ(result.soilForces[0].springForce, -32.0);
  EXPECT_DOUBLE_EQ(result.soilReactions[0].reaction, -16.0);
  beam.options.maxIterations = 3;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_DOUBLE_EQ(across(result, 0), 1152.0 / 359.0);
}

// In the end k'(0) = 16 / u, with u (7 * 16 / u + 80) / 12 = 32: u = (384 - 112) / 80 = 3.4, and the
// middle moves by 192 / (16 / 3.4 + 176) = 1.0625.
TEST(Solve, EndsWhereStiffnessAndDisplacementAgree) {
  SpringBeam beam = yielding_head();
  beam.options.tolerance = 1e-13;
  xCombRes result;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_NEAR(across(result, 0), 3.4, 1e-12);
  EXPECT_NEAR(across(result, 1), 1.0625, 1e-12);
}

class FewPasses : public ::testing::TestWithParam<std::int32_t> {};

TEST_P(FewPasses, MakeOnePassAtLeastAndNoError) {
  SpringBeam beam = yielding_head();
  beam.options.maxIterations = GetParam();
  xCombRes result;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_DOUBLE_EQ(across(result, 0), 2.0);
  EXPECT_DOUBLE_EQ(across(result, 1), 1.0);
}

INSTANTIATE_TEST_SUITE_P(Counts, FewPasses,
                         ::testing::Values(1, 0, -1, std::numeric_limits<std::int32_t>::min()));

// The changes of the first pass are 2 + 1 + 0 = 3, those of the second 14 / 17 + 1 / 23 < 1.
TEST(Solve, EndsWhenTheSumOfTheChangesIsTheTolerance) {
  SpringBeam beam = yielding_head();
  beam.options.tolerance = 3.0;
  xCombRes result;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_DOUBLE_EQ(across(result, 0), 2.0);
  beam.options.tolerance = 2.999;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_DOUBLE_EQ(across(result, 0), 48.0 / 17.0);
}

TEST(Solve, NeverEndsEarlyByAToleranceThatCannotBeReached) {
  for (const double tolerance : {-1.0, std::nan("")}) {
    SpringBeam beam = yielding_head();
    beam.options.tolerance = tolerance;
    beam.options.maxIterations = 3;
    xCombRes result;
    ASSERT_EQ(beam.solve(result), ostrel::ok);
    EXPECT_DOUBLE_EQ(across(result, 0), 1152.0 / 359.0);
    // Once more than enough: the passes repeat themselves.
    beam.options.maxIterations = 200;
    ASSERT_EQ(beam.solve(result), ostrel::ok);
    EXPECT_NEAR(across(result, 0), 3.4, 1e-12);
  }
}

// Without a bound the passes would be 2^31.
TEST(Solve, EndsHoweverManyPassesAreAllowed) {
  for (const double tolerance : {-1.0, std::nan("")}) {
    SpringBeam beam = yielding_head();
    beam.options.tolerance = tolerance;
    beam.options.maxIterations = std::numeric_limits<std::int32_t>::max();
    xCombRes result;
    ASSERT_EQ(beam.solve(result), ostrel::ok);
    EXPECT_NEAR(across(result, 0), 3.4, 1e-12);
  }
}

// A node above the excavation moves by 1000, and the head of the springs by 500 along the wall: of
// the changes only the 3 of dof 1 at the springs count.
TEST(Solve, ComparesThePassesAtTheSpringsAlone) {
  SpringBeam beam = straight_beam(3, 2.0, 1.0, 0.0, 0.0);
  beam.data.setRedfac(1.0);
  beam.data.setJtsoil(1);
  for (const int n : {0, 1, 2, 3}) {
    beam.data.constrDof0[n] = beam.data.constrDof2[n] = 0.0;
  }
  beam.springs = {
      {1, spring(16.0, 1.0)}, {2, spring(16.0, unlimited)}, {3, spring(16.0, unlimited)}};
  beam.data.springDof1[0] = 1.0;
  beam.push(0, 1000.0);
  beam.data.constrDof0[1] = 500.0;
  beam.push(1, 32.0);
  beam.push(2, 32.0);
  beam.options.tolerance = 3.0;
  xCombRes result;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_DOUBLE_EQ(across(result, 0), 1000.0);
  EXPECT_DOUBLE_EQ(across(result, 1), 2.0);
}

TEST(Solve, FailsInTheFirstPassWhereEverySpringIsBeyondItsLimit) {
  SpringBeam beam = pushed(three_springs(1.5, 0.5, 0.5), 32.0, -32.0, 16.0);
  xCombRes result;
  EXPECT_EQ(beam.solve(result), errNonLinearNotConverged);
  EXPECT_THAT(result.displacements, IsEmpty());
  EXPECT_THAT(result.soilForces, IsEmpty());
}

// 2 + 1 + 1 = 4 is within the tolerance, and one pass would be enough.
TEST(Solve, FailsWhereEverySpringIsBeyondItsLimitAlsoWhenConverged) {
  SpringBeam beam = pushed(three_springs(1.5, 0.5, 0.5), 32.0, -32.0, 16.0);
  beam.options.tolerance = 100.0;
  EXPECT_EQ(code_of(beam), errNonLinearNotConverged);
  beam.options.maxIterations = 1;
  EXPECT_EQ(code_of(beam), errNonLinearNotConverged);
}

TEST(Solve, DoesNotCountASpringThatReachesItsLimit) {
  EXPECT_EQ(code_of(pushed(three_springs(2.0, 1.0, 1.0), 32.0, -32.0, 16.0)), ostrel::ok);
  SpringBeam beam = pushed(three_springs(1.5, 1.0, 0.5), 32.0, -32.0, 16.0);
  beam.options.maxIterations = 1;
  EXPECT_EQ(code_of(beam), ostrel::ok);
  beam.springs[1].ultimate_limit = 0.999;
  EXPECT_EQ(code_of(beam), errNonLinearNotConverged);
}

// Pass 1: 2, 1 and 1, the middle below 1.02. Pass 2: k' is 8, 16 and 8, the middle takes
// (8 + 160 + 8) / 6 = 88 / 3 and moves by 12 / 11 > 1.02.
TEST(Solve, FailsInALaterPassWhereTheLastSpringGivesIn) {
  SpringBeam beam = pushed(three_springs(1.0, 1.02, 0.5), 32.0, 32.0, 16.0);
  EXPECT_EQ(code_of(beam), errNonLinearNotConverged);
  beam.options.maxIterations = 1;
  EXPECT_EQ(code_of(beam), ostrel::ok);
}

TEST(Solve, KnowsNoLimitWhenLinear) {
  SpringBeam beam = pushed(three_springs(1.0, 0.5, 0.5), 32.0, 32.0, 16.0);
  beam.options.linear = true;
  xCombRes result;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_DOUBLE_EQ(across(result, 0), 2.0);
  EXPECT_DOUBLE_EQ(result.soilReactions[0].reaction, -32.0);
  EXPECT_DOUBLE_EQ(result.soilReactions[0].limited, -16.0);
}

TEST(Solve, FailsWithoutSpringsUnlessLinear) {
  SpringBeam beam = straight_beam(1, 2.0, 10.0, 20.0, 6.0);
  beam.clamp(1);
  beam.push(0, 22.5);  // P L³ / (3 E J) = 22.5 * 8 / 180 = 1
  EXPECT_EQ(code_of(beam), errNonLinearNotConverged);
  beam.options.tolerance = 1e9;
  EXPECT_EQ(code_of(beam), errNonLinearNotConverged);
  beam.options.linear = true;
  xCombRes result;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_NEAR(across(result, 0), 1.0, 1e-14);
  EXPECT_THAT(result.soilForces, IsEmpty());
  EXPECT_THAT(result.soilReactions, IsEmpty());
}

TEST(Solve, FailsWhereASpringLacksANeighbour) {
  for (const bool linear : {true, false}) {
    SpringBeam beam = yielding_head();
    beam.springs.erase(1);
    beam.options.linear = linear;
    xCombRes result;
    EXPECT_EQ(beam.solve(result), errFemNodeNotFound);
    EXPECT_THAT(result.displacements, IsEmpty());
  }
}

TEST(Solve, FailsWithTheExcavationAtTheFootOrNextToIt) {
  for (const int excavation : {1, 2}) {
    SpringBeam beam = yielding_head();
    beam.springs.erase(beam.springs.begin(), beam.springs.find(excavation));
    beam.data.setJtsoil(excavation);
    EXPECT_EQ(code_of(beam), errFemNodeNotFound) << excavation;
  }
}

TEST(Solve, FailsWhereALoadASupportOrAnAnchorHasNoNode) {
  SpringBeam beam = yielding_head();
  beam.push(3, 1.0);
  EXPECT_EQ(code_of(beam), errFemNodeNotFound);
  beam = yielding_head();
  beam.data.springDof2[3] = 1.0;
  EXPECT_EQ(code_of(beam), errFemNodeNotFound);
  beam = yielding_head();
  beam.anchors.emplace_back().node = 3;
  EXPECT_EQ(code_of(beam), errFemNodeNotFound);
}

class WithoutSupport : public ::testing::TestWithParam<int> {};

TEST_P(WithoutSupport, ABeamIsRefusedAsAMechanismInSilence) {
  SpringBeam beam = straight_beam(GetParam(), 250.0, 30'000.0, 5e5, 2e10);
  beam.push(0, 1000.0);
  for (const bool linear : {true, false}) {
    beam.options.linear = linear;
    xCombRes result;
    EXPECT_EQ(beam.solve(result), errEquationSolve);
    EXPECT_THAT(result.displacements, IsEmpty());
    EXPECT_EQ(printed_by_solving(beam), "");
  }
}

// Held along the wall and at one point across it, it turns freely.
TEST_P(WithoutSupport, ABeamOnAHingeIsRefusedAsAMechanismInSilence) {
  SpringBeam beam = straight_beam(GetParam(), 250.0, 30'000.0, 5e5, 2e10);
  beam.data.constrDof0[0] = beam.data.constrDof1[0] = 0.0;
  beam.push(1, 1000.0);
  beam.options.linear = true;
  EXPECT_EQ(code_of(beam), errEquationSolve);
  EXPECT_EQ(printed_by_solving(beam), "");
}

INSTANTIATE_TEST_SUITE_P(Elements, WithoutSupport, ::testing::Values(1, 2, 9, 10, 11, 80, 400));

// Moduli 16, 16 and 96 and no strength at the head: (112 + 96 - 96) / 12 = 28 / 3 holds it in the
// first pass, 3 = 28 / that; then (0 + 96 - 96) is left.
TEST(Solve, RefusesAMechanismThatALaterPassMakes) {
  SpringBeam beam = pushed(three_springs(0.0, unlimited, unlimited), 28.0, 0.0, 0.0);
  beam.springs[2].modulus = 96.0;
  xCombRes result;
  EXPECT_EQ(beam.solve(result), errEquationSolve);
  EXPECT_THAT(result.displacements, IsEmpty());
  EXPECT_EQ(printed_by_solving(beam), "");
  beam.options.maxIterations = 1;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_NEAR(across(result, 0), 3.0, 1e-14);
}

class NotANumber : public ::testing::TestWithParam<double> {};

TEST_P(NotANumber, AnywhereInTheEquationsIsRefused) {
  const double bad = GetParam();
  std::vector<SpringBeam> beams(9, reference_piles(80));
  beams.resize(18, yielding_head());
  for (std::size_t i = 0; i < beams.size(); i += 9) {
    beams[i].spacing = bad;
    beams[i + 1].springs.rbegin()->second.modulus = bad;
    beams[i + 2].data.elements[1].setE(bad);
    beams[i + 3].data.springDof1[0] = bad;
    beams[i + 4].anchors.emplace_back().kCC = bad;
    beams[i + 5].push(1, bad);
    beams[i + 6].data.constrDof2[1] = bad;
    beams[i + 7].data.elements[1].setL(bad);
    beams[i + 8].conditions[0].pressures[1].pEnd = bad;
  }
  for (std::size_t i = 0; i < beams.size(); ++i) {
    EXPECT_EQ(code_of(beams[i]), errEquationSolve) << i;
    EXPECT_EQ(printed_by_solving(beams[i]), "") << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Numbers, NotANumber, ::testing::Values(std::nan(""), infinite, -infinite));

TEST(Solve, RefusesALimitThatIsNoLimit) {
  for (const double limit : {std::nan(""), -1.0}) {
    EXPECT_EQ(code_of(pushed(three_springs(limit, 1.0, 1.0), 32.0, 0.0, 0.0)), errEquationSolve);
  }
}

TEST(Solve, RefusesElementsWithoutLengthOrStiffness) {
  SpringBeam beam = reference_piles(80);
  beam.data.elements[3].setL(0.0);
  EXPECT_EQ(code_of(beam), errEquationSolve);
  EXPECT_EQ(printed_by_solving(beam), "");
  beam = reference_piles(80);
  for (xElemData& element : beam.data.elements) {
    element.setArea(0.0);
    element.setJ(0.0);
  }
  EXPECT_EQ(code_of(beam), errEquationSolve);
  EXPECT_EQ(printed_by_solving(beam), "");
}

TEST(Solve, TakesABeamWithoutLoadsAsUnloaded) {
  SpringBeam beam = three_springs(1.0, 1.0, 1.0);
  beam.conditions.clear();
  beam.data.constrDof1[1] = 0.5;
  xCombRes result;
  xFemSolver solver;
  ASSERT_EQ(solver.solve(beam.options, {}, beam.data, beam.springs, {}, result, 1.0), ostrel::ok);
  EXPECT_EQ(solver.getNlc(), 0U);
  EXPECT_EQ(across(result, 0), 0.0);
  EXPECT_EQ(across(result, 1), 0.5);
  EXPECT_THAT(result.appliedForces, IsEmpty());
  ASSERT_THAT(result.beamStress, SizeIs(2));
  EXPECT_EQ(result.beamStress[0].points[1].T, 0.0);
}

TEST(Solve, AddsUpTheConditions) {
  SpringBeam beam = pushed(three_springs(unlimited, unlimited, unlimited), 16.0, 0.0, 16.0);
  xFemLoadCond second("second");
  second.nodalForces[0] = xFemNodeData(0.0, 16.0, 0.0);
  second.pressures[1] = PressAtEnds(3.0, 3.0);  // 3 at both nodes
  beam.conditions.push_back(second);
  beam.conditions.push_back(second);
  xCombRes result;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_DOUBLE_EQ(across(result, 0), 3.0);  // 48 / 16
  EXPECT_DOUBLE_EQ(across(result, 2), 22.0 / 16.0);
  EXPECT_EQ(result.appliedForces[2].y, 22.0);
  // The beam has no stiffness, so its end forces are those of the pressures, 2 * 3, reversed.
  EXPECT_DOUBLE_EQ(result.beamStress[1].points[0].T, -6.0);
  EXPECT_DOUBLE_EQ(result.beamStress[1].points[1].T, 6.0);
}

TEST(Solve, LetsAConstraintWinOverTheSoil) {
  SpringBeam beam = yielding_head();
  beam.data.constrDof1[0] = 5.0;
  xCombRes result;
  beam.options.maxIterations = 1;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_EQ(across(result, 0), 5.0);
  EXPECT_DOUBLE_EQ(result.soilForces[0].springForce, -80.0);  // 5 * 16, reported all the same
  beam.options.maxIterations = 100;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_EQ(across(result, 0), 5.0);
}

// The anchor's 16 beside the 16 of the spring at the head halve its displacement.
TEST(Solve, HoldsTheBeamByItsAnchors) {
  SpringBeam beam = pushed(three_springs(unlimited, unlimited, unlimited), 32.0, 32.0, 0.0);
  beam.anchors.emplace_back().node = -1;
  beam.anchors.back().kCC = 1e9;
  beam.anchors.emplace_back().node = 0;
  beam.anchors.back().kCC = 16.0;
  xCombRes result;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_DOUBLE_EQ(across(result, 0), 1.0);
  EXPECT_DOUBLE_EQ(across(result, 1), 1.0);
}

TEST(Solve, GivesTheBeamsMatrixBackWithoutSupports) {
  SpringBeam wall = reference_piles(80);
  wall.data.springDof2[3] = 1e9;
  wall.anchors.emplace_back().node = 10;
  wall.anchors.back().kSC = 1e5;
  xFemSolver solver;
  xCombRes result;
  ASSERT_EQ(solver.solve(wall.options, wall.anchors, wall.data, wall.springs, wall.conditions,
                         result, wall.spacing),
            ostrel::ok);
  xFemSolver fresh;
  fresh.takeSizes(wall.data, 0);
  ASSERT_EQ(fresh.buildTopologyMat(), ostrel::ok);
  ASSERT_EQ(fresh.buildBStif(wall.data), ostrel::ok);
  EXPECT_TRUE(arma::approx_equal(solver.K, fresh.K, "absdiff", 0.0));
}

TEST(Solve, KeepsNothingOfABeamSolvedBefore) {
  xFemSolver solver;
  SpringBeam other = reference_diaphragm(80, 1200.0);
  xCombRes result;
  ASSERT_EQ(solver.solve(other.options, {}, other.data, other.springs, other.conditions, result,
                         other.spacing),
            ostrel::ok);
  SpringBeam wall = reference_piles(80);
  xCombRes again;
  ASSERT_EQ(
      solver.solve(wall.options, {}, wall.data, wall.springs, wall.conditions, again, wall.spacing),
      ostrel::ok);
  xCombRes fresh;
  ASSERT_EQ(wall.solve(fresh), ostrel::ok);
  for (std::size_t n = 0; n < fresh.displacements.size(); ++n) {
    EXPECT_EQ(again.displacements[n].y, fresh.displacements[n].y);
    EXPECT_EQ(again.displacements[n].r, fresh.displacements[n].r);
  }
}

TEST(Solve, TakesASplitElementWithTheLengthItKept) {
  SpringBeam beam = straight_beam(2, 2.0, 10.0, 20.0, 6.0);
  beam.data.nodes[1].y = 1.0;  // halves of one element of 2 mm
  beam.data.nodes[2].y = 2.0;
  beam.clamp(2);
  beam.push(0, 22.5);
  beam.options.linear = true;
  xCombRes result;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_NEAR(across(result, 0), 8.0, 1e-13);  // of a cantilever of 4 mm: 22.5 * 64 / 180
}

// 18 N/mm on the outer half: q s² (12 - s) / 360 from s = 2 to 4 mm off the clamp, together
// q (4 s³ - s⁴ / 4) / 360 = 18 (192 - 28) / 360.
TEST(Solve, LoadsASplitElementByTheLengthItKept) {
  SpringBeam beam = straight_beam(2, 2.0, 10.0, 20.0, 6.0);
  beam.data.nodes[1].y = 1.0;
  beam.data.nodes[2].y = 2.0;
  beam.clamp(2);
  beam.conditions.emplace_back("soil").pressures[0] = PressAtEnds(18.0, 18.0);
  beam.options.linear = true;
  xCombRes result;
  ASSERT_EQ(beam.solve(result), ostrel::ok);
  EXPECT_NEAR(across(result, 0), 8.2, 1e-12);
}

class OrdinaryWall : public ::testing::TestWithParam<std::pair<int, double>> {};

TEST_P(OrdinaryWall, IsNotTakenForAMechanism) {
  const auto [elements, thickness] = GetParam();
  const SpringBeam wall = reference_diaphragm(elements, thickness);
  EXPECT_EQ(code_of(wall), ostrel::ok);
  EXPECT_EQ(printed_by_solving(wall), "");
}

INSTANTIATE_TEST_SUITE_P(Walls, OrdinaryWall,
                         ::testing::Values(std::pair{20, 600.0}, std::pair{80, 600.0},
                                           std::pair{80, 1200.0}, std::pair{400, 1200.0},
                                           std::pair{80, 3000.0}, std::pair{1000, 3000.0}));

TEST(Solve, RefusesABeamWhoseMatrixWouldNotFitTheMemory) {
  EXPECT_EQ(code_of(straight_beam(5001, 1.0, 1.0, 1.0, 1.0)), errNodeCountModel);
}

TEST(Solve, RefusesABeamWithoutElementsAsAMechanism) {
  SpringBeam beam;
  EXPECT_EQ(code_of(beam), errEquationSolve);
}

}  // namespace
