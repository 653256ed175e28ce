// SPDX-License-Identifier: Apache-2.0
#include "fem/banded_beam.h"

#include "ostrel/fem_solver.h"
#include "support/random_contents.h"
#include "support/spring_beam.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <vector>

namespace {

using ostrel::fem::BandedBeam;
using ostrel::testing::reference_diaphragm;
using ostrel::testing::SpringBeam;
using ostrel::testing::straight_beam;
using ::testing::DoubleNear;
using ::testing::Each;
using ::testing::Pointwise;

constexpr double infinite = std::numeric_limits<double>::infinity();

// The matrix of the beam alone.
arma::Mat<double> matrix_of(const xFemData& data) {
  xFemSolver solver;
  solver.takeSizes(data, 0);
  EXPECT_EQ(solver.buildTopologyMat(), ostrel::ok);
  EXPECT_EQ(solver.buildBStif(data), ostrel::ok);
  return solver.K;
}

BandedBeam band_of(const SpringBeam& beam) {
  return {matrix_of(beam.data), beam.anchors, beam.data};
}

// Elements of 2 mm with E J = 60 N mm² and E A = 200 N, clamped at the foot. On the head of one the
// stiffness is E A / L = 100 along and 3 E J / L³ = 22.5 across; a displacement of 1 across turns it
// by -3 / (2 L) = -0.75.
SpringBeam cantilever(int elements) {
  SpringBeam beam = straight_beam(elements, 2.0, 10.0, 20.0, 6.0);
  beam.clamp(elements);
  return beam;
}

TEST(BandedBeam, BendsACantilever) {
  BandedBeam band = band_of(cantilever(1));
  std::vector<double> d{100.0, 22.5, 0.0, 0.0, 0.0, 0.0};
  ASSERT_TRUE(band.solve({}, {}, d));
  const std::vector<double> expected{1.0, 1.0, -0.75, 0.0, 0.0, 0.0};
  EXPECT_THAT(d, Pointwise(DoubleNear(1e-14), expected));
}

// A spring as stiff as the cantilever takes half of the force. It is gone in the next solution.
TEST(BandedBeam, TakesSpringsForOneSolution) {
  BandedBeam band = band_of(cantilever(1));
  std::vector<double> d{0.0, 22.5, 0.0, 0.0, 0.0, 0.0};
  ASSERT_TRUE(band.solve({0}, {22.5}, d));
  EXPECT_NEAR(d[1], 0.5, 1e-14);
  EXPECT_NEAR(d[2], -0.375, 1e-14);
  d = {0.0, 22.5, 0.0, 0.0, 0.0, 0.0};
  ASSERT_TRUE(band.solve({}, {}, d));
  EXPECT_NEAR(d[1], 1.0, 1e-14);
}

// The head is moved by 2 and turns freely, whatever spring stands there.
TEST(BandedBeam, LetsAConstraintWinOverASpring) {
  SpringBeam beam = cantilever(1);
  beam.data.constrDof1[0] = 2.0;
  BandedBeam band = band_of(beam);
  std::vector<double> d{0.0, 2.0, 0.0, 0.0, 0.0, 0.0};
  ASSERT_TRUE(band.solve({0}, {1000.0}, d));
  EXPECT_NEAR(d[1], 2.0, 1e-14);
  EXPECT_NEAR(d[2], -1.5, 1e-14);
}

// Concentrated springs: 100 + 300 = 400 along, 22.5 + 67.5 = 90 across.
TEST(BandedBeam, HoldsTheConcentratedSprings) {
  SpringBeam beam = cantilever(1);
  beam.data.springDof0[0] = 300.0;
  beam.data.springDof1[0] = 67.5;
  BandedBeam band = band_of(beam);
  std::vector<double> d{400.0, 90.0, 0.0, 0.0, 0.0, 0.0};
  ASSERT_TRUE(band.solve({}, {}, d));
  const std::vector<double> expected{1.0, 1.0, -0.75, 0.0, 0.0, 0.0};
  EXPECT_THAT(d, Pointwise(DoubleNear(1e-14), expected));
}

// The rotation at the head: 4 E J / L = 120, of which a cantilever keeps E J / L = 30 where the head
// can also move. A spring of 30 doubles it: 60 * 1 = 60; the head moves by -L / 2 = -1.
TEST(BandedBeam, HoldsASpringAgainstRotation) {
  SpringBeam beam = cantilever(1);
  beam.data.springDof2[0] = 30.0;
  BandedBeam band = band_of(beam);
  std::vector<double> d{0.0, 0.0, 60.0, 0.0, 0.0, 0.0};
  ASSERT_TRUE(band.solve({}, {}, d));
  EXPECT_NEAR(d[2], 1.0, 1e-14);
  EXPECT_NEAR(d[1], -1.0, 1e-14);
}

// With the anchor the head has 100 + 100 = 200 along, 22.5 + 77.5 = 100 across and 50 between them:
// the displacements (1, 2) take 200 + 100 = 300 and 50 + 200 = 250.
TEST(BandedBeam, HoldsAnAnchor) {
  SpringBeam beam = cantilever(1);
  info_Fem_anchor anchor;
  anchor.node = 0;
  anchor.kSS = 100.0;
  anchor.kSC = 50.0;
  anchor.kCC = 77.5;
  beam.anchors.push_back(anchor);
  BandedBeam band = band_of(beam);
  std::vector<double> d{300.0, 250.0, 0.0, 0.0, 0.0, 0.0};
  ASSERT_TRUE(band.solve({}, {}, d));
  EXPECT_NEAR(d[0], 1.0, 1e-13);
  EXPECT_NEAR(d[1], 2.0, 1e-13);
}

// A stiffness that stands for a rigid support beside ordinary ones: the head of a cantilever of two
// elements held at 1e18 N/mm, loaded between. Propped, the middle moves by 7 P L³ / (768 E J) with
// L = 4: P = 768 * 60 / (7 * 64) gives 1.
TEST(BandedBeam, BearsASpringAsStiffAsASupport) {
  SpringBeam beam = cantilever(2);
  beam.data.springDof1[0] = 1e18;
  BandedBeam band = band_of(beam);
  std::vector<double> d(9, 0.0);
  d[4] = 768.0 * 60.0 / (7.0 * 64.0);
  ASSERT_TRUE(band.solve({}, {}, d));
  EXPECT_NEAR(d[4], 1.0, 1e-13);
  EXPECT_NEAR(d[1], 0.0, 1e-15);
}

class MechanismOf : public ::testing::TestWithParam<int> {};

void expect_refused(const SpringBeam& beam, const std::vector<double>& load) {
  BandedBeam band = band_of(beam);
  std::vector<double> d = load;
  EXPECT_FALSE(band.solve({}, {}, d));
  EXPECT_EQ(d, load);
}

TEST_P(MechanismOf, WithoutASupportIsLeftToTheDenseForm) {
  const int elements = GetParam();
  const SpringBeam beam = straight_beam(elements, 250.0, 30'000.0, 5e5, 2e10);
  expect_refused(beam, std::vector<double>(3 * static_cast<std::size_t>(elements) + 3, 1.0));
}

TEST_P(MechanismOf, OnOneHingeIsLeftToTheDenseForm) {
  const int elements = GetParam();
  SpringBeam beam = straight_beam(elements, 250.0, 30'000.0, 5e5, 2e10);
  beam.data.constrDof0[elements / 2] = beam.data.constrDof1[elements / 2] = 0.0;
  expect_refused(beam, std::vector<double>(3 * static_cast<std::size_t>(elements) + 3, 1.0));
}

// Only the hinge itself is loaded, so that nothing would have to turn.
TEST_P(MechanismOf, ThatTheLoadDoesNotMoveIsSeenAllTheSame) {
  const int elements = GetParam();
  SpringBeam beam = straight_beam(elements, 250.0, 30'000.0, 5e5, 2e10);
  beam.data.constrDof0[elements] = 0.0;
  beam.data.springDof1[0] = 1e6;
  std::vector<double> load(3 * static_cast<std::size_t>(elements) + 3, 0.0);
  load[1] = 1000.0;
  expect_refused(beam, load);
}

TEST_P(MechanismOf, WithSpringsThatAreAllButGoneIsLeftToTheDenseForm) {
  const int elements = GetParam();
  SpringBeam beam = straight_beam(elements, 250.0, 30'000.0, 5e5, 2e10);
  beam.data.constrDof0[elements] = 0.0;
  BandedBeam band = band_of(beam);
  const std::vector<double> load(3 * static_cast<std::size_t>(elements) + 3, 1.0);
  std::vector<double> d = load;
  EXPECT_FALSE(band.solve({0, 1}, {1e-9, 1e-9}, d));
  EXPECT_EQ(d, load);
}

INSTANTIATE_TEST_SUITE_P(Elements, MechanismOf, ::testing::Values(1, 2, 9, 10, 80, 400, 1000));

TEST(BandedBeam, LeavesNumbersThatAreNoneToTheDenseForm) {
  for (const double bad : {std::nan(""), infinite, -infinite}) {
    BandedBeam band = band_of(cantilever(2));
    const std::vector<double> load{0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0};
    std::vector<double> d = load;
    EXPECT_FALSE(band.solve({0}, {bad}, d)) << bad;
    EXPECT_EQ(d, load);
    d[1] = bad;
    EXPECT_FALSE(band.solve({}, {}, d)) << bad;
    arma::Mat<double> matrix = matrix_of(cantilever(2).data);
    matrix(4, 4) = bad;
    BandedBeam broken(matrix, {}, cantilever(2).data);
    d = load;
    EXPECT_FALSE(broken.solve({}, {}, d)) << bad;
    EXPECT_EQ(d, load);
  }
}

// Springs at both ends hold the beam; without the lower one it turns about the upper one, though the
// load, which stands there, does not move it. Found good once, the equations are looked at again.
TEST(BandedBeam, LooksAgainWhereASpringHasSoftened) {
  SpringBeam beam = straight_beam(10, 250.0, 30'000.0, 5e5, 2e10);
  beam.data.constrDof0[10] = 0.0;
  BandedBeam band = band_of(beam);
  std::vector<double> load(33, 0.0);
  load[1] = 1000.0;
  std::vector<double> d = load;
  ASSERT_TRUE(band.solve({0, 10}, {1e4, 1e4}, d));
  EXPECT_NEAR(d[1], 0.1, 1e-12);
  d = load;
  EXPECT_FALSE(band.solve({0, 10}, {1e4, 0.0}, d));
  EXPECT_EQ(d, load);
  EXPECT_FALSE(band.solve({0, 10}, {1e4, 1e-10}, d));
  ASSERT_TRUE(band.solve({0, 10}, {1e4, 1e4}, d));
  EXPECT_NEAR(d[1], 0.1, 1e-12);
}

// The head of a cantilever under 22.5 moves by 1 and turns by -0.75.
TEST(BandedBeam, BringsASolutionNearerToTheExactOne) {
  BandedBeam band = band_of(cantilever(1));
  const std::vector<double> load{0.0, 22.5, 0.0, 0.0, 0.0, 0.0};
  std::vector<double> d{0.0, 1.0 + 1e-5, -0.75 + 1e-5, 0.0, 0.0, 0.0};
  ASSERT_TRUE(band.improve({}, {}, load, d));
  EXPECT_NEAR(d[1], 1.0, 1e-15);
  EXPECT_NEAR(d[2], -0.75, 1e-15);
}

TEST(BandedBeam, DoesNotTouchWhatItCannotImprove) {
  BandedBeam band = band_of(cantilever(1));
  const std::vector<double> load{0.0, 22.5, 0.0, 0.0, 0.0, 0.0};
  const std::vector<double> far{0.0, 2.0, -0.75, 0.0, 0.0, 0.0};
  std::vector<double> d = far;
  EXPECT_FALSE(band.improve({}, {}, load, d));
  EXPECT_FALSE(band.improve({0}, {infinite}, load, d));
  EXPECT_FALSE(band.improve({}, {}, {1.0}, d));
  EXPECT_EQ(d, far);
  d.resize(3);
  EXPECT_FALSE(band.improve({}, {}, load, d));
}

TEST(BandedBeam, RefusesARightHandSideOfAnotherSize) {
  BandedBeam band = band_of(cantilever(1));
  std::vector<double> d(9, 1.0);
  EXPECT_FALSE(band.solve({}, {}, d));
  EXPECT_THAT(d, Each(1.0));
}

// P L³ / (3 E J) at the head of a long cantilever, and P L² / (2 E J): with L = 20 m they are
// 1e4 * 8e12 / (3 * 30 000 * 2e10) = 44.44 mm and 1e4 * 4e8 / (2 * 30 000 * 2e10) = 1/300.
// The condition of 400 elements is of the order 1e11 to 1e12, and what is lost of the 16 digits of
// a number stays well below that.
TEST(BandedBeam, KeepsItsDigitsInALongBeam) {
  for (const int elements : {1, 10, 80, 400}) {
    SpringBeam beam = straight_beam(elements, 20'000.0 / elements, 30'000.0, 5e5, 2e10);
    beam.clamp(elements);
    BandedBeam band = band_of(beam);
    std::vector<double> d(3 * static_cast<std::size_t>(elements) + 3, 0.0);
    d[1] = 1e4;
    ASSERT_TRUE(band.solve({}, {}, d)) << elements;
    EXPECT_NEAR(d[1], 400.0 / 9.0, 1e-6) << elements;
    EXPECT_NEAR(d[2], -1.0 / 300.0, 1e-10) << elements;
  }
}

// A fine mesh of a stiff wall is not taken for a mechanism.
TEST(BandedBeam, SolvesAThickDiaphragmOfAThousandElements) {
  const SpringBeam wall = reference_diaphragm(1000, 3000.0);
  BandedBeam band = band_of(wall);
  std::vector<int> nodes;
  for (const auto& entry : wall.springs) {
    nodes.push_back(entry.first);
  }
  std::vector<double> d(3003, 0.0);
  d[1] = 1e4;
  EXPECT_TRUE(band.solve(nodes, std::vector<double>(nodes.size(), 500.0), d));
}

// Any beam with any supports: the dense form gives the same.
TEST(BandedBeam, AgreesWithTheDenseForm) {
  ostrel::testing::RandomContents random(20240707);
  for (int run = 0; run < 40; ++run) {
    const int elements = 1 + run;
    SpringBeam beam = straight_beam(elements, 250.0, 30'000.0, 5e5, 2e10);
    for (xElemData& element : beam.data.elements) {
      element.setL(random.on_grid(100.0, 400.0));
      element.setJ(random.on_grid(1e8, 4e8));
    }
    const auto node = [&] {
      return static_cast<int>(random.below(static_cast<unsigned>(elements) + 1U));
    };
    beam.data.springDof0[node()] = random.on_grid(1.0, 1e6);
    beam.data.springDof1[node()] = random.on_grid(1.0, 1e6);
    beam.data.springDof2[node()] = random.on_grid(1.0, 1e6);
    beam.data.constrDof0[node()] = random.on_grid(-5.0, 5.0);
    beam.data.constrDof1[node()] = random.on_grid(-5.0, 5.0);
    beam.data.constrDof2[node()] = 0.001;
    info_Fem_anchor anchor;
    anchor.node = node();
    anchor.kSS = anchor.kSC = anchor.kCC = random.on_grid(1.0, 1e5);
    beam.anchors.push_back(anchor);

    std::map<int, double> soil;
    std::vector<int> nodes;
    std::vector<double> stiffness;
    std::vector<double> dense(3 * static_cast<std::size_t>(elements) + 3);
    for (int n = 0; n <= elements; ++n) {
      nodes.push_back(n);
      stiffness.push_back(random.on_grid(1.0, 1e4));
      soil[n] = stiffness.back();
    }
    for (double& load : dense) {
      load = random.on_grid(-1e5, 1e5);
    }
    xFemSolver solver;
    arma::Mat<double> K = matrix_of(beam.data);
    ASSERT_EQ(solver.appBoundCond(beam.anchors, beam.data, soil, K, dense), ostrel::ok);
    std::vector<double> d = dense;
    ASSERT_EQ(solver.solveEQ(K, dense), ostrel::ok);
    BandedBeam band = band_of(beam);
    ASSERT_TRUE(band.solve(nodes, stiffness, d));
    double largest = 0.0;
    for (const double x : dense) {
      largest = std::max(largest, std::abs(x));
    }
    EXPECT_THAT(d, Pointwise(DoubleNear(1e-10 * largest), dense)) << elements;
  }
}

}  // namespace
