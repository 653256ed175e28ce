// SPDX-License-Identifier: Apache-2.0
// The passes after the first are solved as a band. Here every pass is solved as the interface states
// it, by the dense matrix, and a solution has to come to the same displacements in each of them, to
// as many passes and to the same code.
#include "support/dense_passes.h"

#include "ostrel/fem_solver.h"
#include "support/spring_beam.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

namespace {

using ostrel::testing::dense_passes;
using ostrel::testing::DensePasses;
using ostrel::testing::expect_displacements;
using ostrel::testing::reference_diaphragm;
using ostrel::testing::reference_piles;
using ostrel::testing::spring;
using ostrel::testing::SpringBeam;
using ostrel::testing::straight_beam;

// Ends the solution after each of its passes in turn; `step` leaves some out.
void expect_dense_form(SpringBeam beam, std::size_t step = 1) {
  const DensePasses passes = dense_passes(beam);
  const std::size_t last = passes.d.size();
  for (std::size_t pass = 1; pass <= last; pass += pass == 1 ? 1 : step) {
    beam.options.maxIterations = static_cast<std::int32_t>(pass);
    xCombRes result;
    ASSERT_EQ(beam.solve(result), ostrel::ok) << "pass " << pass << " of " << last;
    expect_displacements(result, passes.d[pass - 1], "pass " + std::to_string(pass));
  }
  beam.options.maxIterations = 100;
  xCombRes result;
  ASSERT_EQ(beam.solve(result), passes.code) << last << " passes";
  if (passes.code == ostrel::ok) expect_displacements(result, passes.d.back(), "the end");
}

SpringBeam pushed_harder(SpringBeam wall, double factor) {
  for (auto& entry : wall.conditions.front().pressures) {
    entry.second.pStart *= factor;
    entry.second.pEnd *= factor;
  }
  return wall;
}

// An anchor 2 m below the head, 30° below the horizontal: k = 20 000 N/mm, sin² = 1/4, cos² = 3/4.
SpringBeam anchored(SpringBeam wall) {
  info_Fem_anchor& anchor = wall.anchors.emplace_back();
  anchor.node = static_cast<std::int32_t>(wall.data.elements.size() / 10);
  anchor.kSS = 5'000.0;
  anchor.kCC = 15'000.0;
  anchor.kSC = 20'000.0 * std::sqrt(3.0) / 4.0;
  return wall;
}

// Only the upper 2 m of the springs are there, and the wall ends there.
SpringBeam shallow(const SpringBeam& whole) {
  SpringBeam wall = whole;
  const auto elements = wall.data.elements.size() / 2;
  wall.data.elements.resize(elements);
  wall.data.nodes.resize(elements + 1);
  const auto foot = static_cast<std::int32_t>(elements);
  wall.springs.erase(wall.springs.upper_bound(foot), wall.springs.end());
  wall.data.constrDof0 = {{foot, 0.0}};
  for (xFemLoadCond& condition : wall.conditions) {
    condition.pressures.erase(condition.pressures.lower_bound(foot), condition.pressures.end());
  }
  return wall;
}

TEST(DensePasses, MeetTheBandOnTheReferencePiles) {
  expect_dense_form(reference_piles(20));
  expect_dense_form(reference_piles(80));
}

TEST(DensePasses, MeetTheBandOnAFineMesh) {
  expect_dense_form(reference_piles(400), 9);
}

TEST(DensePasses, MeetTheBandOnDiaphragms) {
  expect_dense_form(reference_diaphragm(80, 600.0));
  expect_dense_form(reference_diaphragm(80, 1200.0));
  expect_dense_form(reference_diaphragm(80, 3000.0));
  expect_dense_form(reference_diaphragm(400, 1200.0), 7);
}

// Systems of less than 32 equations are not taken for a band by the dense form.
TEST(DensePasses, MeetTheBandOnCoarseMeshes) {
  for (const int elements : {5, 8, 9, 10, 11}) {
    expect_dense_form(reference_piles(elements));
  }
}

TEST(DensePasses, MeetTheBandOnAnAnchoredWall) {
  expect_dense_form(anchored(reference_piles(80)));
  expect_dense_form(anchored(reference_diaphragm(80, 600.0)));
}

TEST(DensePasses, MeetTheBandOnEverySupport) {
  SpringBeam wall = anchored(reference_piles(80));
  wall.data.constrDof1[2] = 12.5;
  wall.data.constrDof2[0] = 0.01;
  wall.data.constrDof1[50] = 3.0;  // where a spring of the soil stands
  wall.data.springDof0[5] = 1e5;
  wall.data.springDof1[20] = 1e4;
  wall.data.springDof2[25] = 1e12;
  expect_dense_form(wall);
}

// A stiffness that stands for a rigid support.
TEST(DensePasses, MeetTheBandOnAVeryStiffSpring) {
  SpringBeam wall = reference_piles(80);
  wall.data.springDof1[10] = 1e15;
  expect_dense_form(wall);
}

// Ever more springs give in and the displacements go into metres; from some push on a hundred passes
// are not enough.
TEST(DensePasses, MeetTheBandTowardsCollapse) {
  for (const double factor : {1.5, 2.0, 3.0, 4.0}) {
    expect_dense_form(pushed_harder(reference_piles(80), factor), 7);
  }
  expect_dense_form(pushed_harder(reference_piles(80), 20.0), 20);
}

// The foot of an anchored wall with little depth is pushed out, and every spring gives in: in the
// first pass or in a later one.
TEST(DensePasses, MeetTheBandWhereEverySpringGivesIn) {
  std::map<OstrelErrorType, int> codes;
  for (const double factor : {0.1, 0.3, 0.5, 0.6, 0.7, 0.8, 0.9, 1.0, 1.5, 3.0}) {
    const SpringBeam wall = pushed_harder(shallow(anchored(reference_piles(80))), factor);
    ++codes[dense_passes(wall).code];
    expect_dense_form(wall);
  }
  EXPECT_GT(codes[ostrel::ok], 0);
  EXPECT_GT(codes[errNonLinearNotConverged], 0);
}

// A beam that rests on its springs alone, none with any strength but the last, which is soft: in the
// second pass it holds the beam or does not. Where the equations are next to singular only the codes
// can be compared.
TEST(DensePasses, SeeAMechanismInThePassInWhichTheBandDoes) {
  std::map<OstrelErrorType, int> codes;
  for (const double modulus : {1e-2, 1e-4, 1e-6, 1e-8, 1e-10, 1e-12, 1e-14, 0.0}) {
    SpringBeam beam = straight_beam(40, 250.0, 30'000.0, 5e5, 2e10);
    beam.spacing = 1000.0;
    beam.data.constrDof0[40] = 0.0;
    for (int n = 0; n < 40; ++n) {
      beam.springs[n] = spring(0.01, 0.0);
    }
    beam.springs[40] = spring(modulus, 1e12);
    beam.push(0, 1e4);
    beam.options.maxIterations = 4;
    const DensePasses passes = dense_passes(beam);
    ++codes[passes.code];
    xCombRes result;
    EXPECT_EQ(beam.solve(result), passes.code) << modulus;
    beam.options.maxIterations = static_cast<std::int32_t>(passes.d.size());
    EXPECT_EQ(beam.solve(result), ostrel::ok) << modulus;
  }
  EXPECT_GT(codes[ostrel::ok], 0);
  EXPECT_GT(codes[errEquationSolve], 0);
}

}  // namespace
