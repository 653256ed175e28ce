// SPDX-License-Identifier: Apache-2.0
// The steps of a pass, each on its own: springs, supports, equations.
#include "ostrel/fem_solver.h"
#include "support/spring_beam.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace {

using ostrel::testing::spring;
using ostrel::testing::SpringBeam;
using ostrel::testing::straight_beam;
using ::testing::DoubleEq;
using ::testing::DoubleNear;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::Pointwise;

constexpr double infinite = std::numeric_limits<double>::infinity();

// Elements of 2 mm, the excavation at node 1; springs of modulus 16 at the nodes 1 to 3 with a limit
// of 1 mm. Not displaced, with 0.9 on the first and a spacing of 3 mm:
//     node 1  12 * 16 * 0.9 * 2 * 3 / 24 = 43.2     node 2  12 * 16 * 2 * 3 / 12 = 96
//     node 3  12 * 16 * 2 * 3 / 24 = 48
SpringBeam embedded_beam() {
  SpringBeam beam = straight_beam(3, 2.0, 10.0, 20.0, 6.0);
  beam.data.setJtsoil(1);
  beam.springs = {{1, spring(16.0, 1.0)}, {2, spring(16.0, 1.0)}, {3, spring(16.0, 1.0)}};
  return beam;
}

xFemSolver sized(const SpringBeam& beam) {
  xFemSolver solver;
  solver.takeSizes(beam.data, 0);
  return solver;
}

TEST(BuildSkSpring, LumpsTheModuliOfABeamAtRestForANullPointer) {
  const SpringBeam beam = embedded_beam();
  std::map<int, double> springs{{7, 1.0}};
  EXPECT_EQ(sized(beam).build_SkSpring(beam.data, beam.springs, 3.0, nullptr, springs), ostrel::ok);
  EXPECT_THAT(springs, ElementsAre(Pair(1, DoubleEq(43.2)), Pair(2, DoubleEq(96.0)),
                                   Pair(3, DoubleEq(48.0))));
}

// At node 2 the displacement is twice the limit: k' = 8. The vector ends before node 3.
//     node 1  (112 + 48 - 16) 0.9 * 6 / 24 = 32.4     node 2  (16 + 80 + 16) 6 / 12 = 56
//     node 3  (112 + 48 - 16) 6 / 24 = 36
TEST(BuildSkSpring, TakesTheSecantModuliOfADisplacedBeam) {
  const SpringBeam beam = embedded_beam();
  std::vector<double> d(9, 0.0);
  d[3 * 2 + 1] = -2.0;
  std::map<int, double> springs;
  EXPECT_EQ(sized(beam).build_SkSpring(beam.data, beam.springs, 3.0, &d, springs), ostrel::ok);
  EXPECT_THAT(springs, ElementsAre(Pair(1, DoubleEq(32.4)), Pair(2, DoubleEq(56.0)),
                                   Pair(3, DoubleEq(36.0))));
}

TEST(BuildSkSpring, MakesNoSpringsOfNone) {
  const SpringBeam beam = embedded_beam();
  std::map<int, double> springs{{7, 1.0}};
  EXPECT_EQ(sized(beam).build_SkSpring(beam.data, {}, 3.0, nullptr, springs), ostrel::ok);
  EXPECT_THAT(springs, IsEmpty());
}

// Node 4 is below the foot, node 5 is missing: the nodes before stay.
TEST(BuildSkSpring, LeavesTheSpringsBeforeTheOneThatLacksANeighbour) {
  SpringBeam beam = straight_beam(6, 2.0, 10.0, 20.0, 6.0);
  for (const int n : {0, 1, 2, 3, 5, 6}) {
    beam.springs[n] = spring(16.0, 1.0);
  }
  std::map<int, double> springs{{7, 1.0}};
  EXPECT_EQ(sized(beam).build_SkSpring(beam.data, beam.springs, 3.0, nullptr, springs),
            errFemNodeNotFound);
  EXPECT_THAT(springs, ElementsAre(Pair(0, DoubleEq(43.2)), Pair(1, DoubleEq(96.0)),
                                   Pair(2, DoubleEq(96.0))));
}

// Everything on node 1 of two, in a matrix full of 1.
TEST(AppBoundCond, PutsAllSupportsInPlace) {
  xFemData data;
  data.springDof0[1] = 10.0;
  data.springDof1[1] = 20.0;
  data.springDof2[1] = 30.0;
  info_Fem_anchor anchor;
  anchor.node = 1;
  anchor.kSS = 2.0;
  anchor.kSC = 3.0;
  anchor.kCC = 4.0;
  info_Fem_anchor loose = anchor;
  loose.node = -1;
  arma::Mat<double> K(6, 6, arma::fill::ones);
  std::vector<double> rhs(6, 7.0);
  ASSERT_EQ(xFemSolver{}.appBoundCond({anchor, loose}, data, {{1, 100.0}}, K, rhs), ostrel::ok);
  arma::Mat<double> expected(6, 6, arma::fill::ones);
  expected(3, 3) = 1.0 + 2.0 + 10.0;
  expected(3, 4) = expected(4, 3) = 1.0 + 3.0;
  expected(4, 4) = 1.0 + 4.0 + 20.0 + 100.0;
  expected(5, 5) = 1.0 + 30.0;
  EXPECT_TRUE(arma::approx_equal(K, expected, "absdiff", 0.0));
  EXPECT_THAT(rhs, ::testing::Each(7.0));

  // With constraints on the same dofs only their rows of the identity are left.
  data.constrDof0[1] = 0.1;
  data.constrDof1[1] = 0.2;
  data.constrDof2[1] = 0.3;
  K.ones();
  ASSERT_EQ(xFemSolver{}.appBoundCond({anchor}, data, {{1, 100.0}}, K, rhs), ostrel::ok);
  expected.ones();
  expected.rows(3, 5).zeros();
  expected(3, 3) = expected(4, 4) = expected(5, 5) = 1.0;
  EXPECT_TRUE(arma::approx_equal(K, expected, "absdiff", 0.0));
  EXPECT_THAT(rhs, ElementsAre(7.0, 7.0, 7.0, 0.1, 0.2, 0.3));
}

// The coupling of an anchor reaches the row of the other dof also where one of them is held.
TEST(AppBoundCond, LeavesTheColumnOfAConstraint) {
  xFemData data;
  data.constrDof0[0] = 0.5;
  info_Fem_anchor anchor;
  anchor.node = 0;
  anchor.kSS = 2.0;
  anchor.kSC = 3.0;
  anchor.kCC = 4.0;
  arma::Mat<double> K(3, 3, arma::fill::zeros);
  std::vector<double> rhs(3, 0.0);
  ASSERT_EQ(xFemSolver{}.appBoundCond({anchor}, data, {}, K, rhs), ostrel::ok);
  const arma::Mat<double> expected{{1.0, 0.0, 0.0}, {3.0, 4.0, 0.0}, {0.0, 0.0, 0.0}};
  EXPECT_TRUE(arma::approx_equal(K, expected, "absdiff", 0.0));
}

TEST(AppBoundCond, RefusesASupportBeyondTheMatrix) {
  arma::Mat<double> K(6, 6, arma::fill::ones);
  std::vector<double> rhs(6, 7.0);
  EXPECT_EQ(xFemSolver{}.appBoundCond({}, {}, {{2, 1.0}}, K, rhs), errFemNodeNotFound);
  info_Fem_anchor anchor;
  anchor.node = 2;
  EXPECT_EQ(xFemSolver{}.appBoundCond({anchor}, {}, {}, K, rhs), errFemNodeNotFound);
  arma::Mat<double> none;
  anchor.node = 0;
  EXPECT_EQ(xFemSolver{}.appBoundCond({anchor}, {}, {}, none, rhs), errFemNodeNotFound);
}

TEST(AppNodalSprings, AddsToDiagonalEntries) {
  arma::Mat<double> K(6, 6, arma::fill::ones);
  EXPECT_EQ(xFemSolver{}.appNodalSprings(2, {{0, 5.0}, {1, 6.0}}, K), ostrel::ok);
  EXPECT_EQ(xFemSolver{}.appNodalSprings(2, {{0, 5.0}}, K), ostrel::ok);
  EXPECT_EQ(K(2, 2), 11.0);
  EXPECT_EQ(K(5, 5), 7.0);
  EXPECT_EQ(arma::accu(K), 36.0 + 16.0);
}

TEST(AppNodalConstr, TurnsARowIntoThatOfTheIdentity) {
  arma::Mat<double> K(6, 6, arma::fill::value(3.0));
  std::vector<double> rhs(6, 7.0);
  EXPECT_EQ(xFemSolver{}.appNodalConstr(1, {{1, -2.5}}, K, rhs), ostrel::ok);
  arma::Mat<double> expected(6, 6, arma::fill::value(3.0));
  expected.row(4).zeros();
  expected(4, 4) = 1.0;
  EXPECT_TRUE(arma::approx_equal(K, expected, "absdiff", 0.0));
  EXPECT_THAT(rhs, ElementsAre(7.0, 7.0, 7.0, 7.0, -2.5, 7.0));
}

TEST(AppNodalConstr, RefusesANodeOrADofThatIsNotThere) {
  arma::Mat<double> K(6, 6, arma::fill::ones);
  std::vector<double> rhs(6, 7.0);
  EXPECT_EQ(xFemSolver{}.appNodalConstr(1, {{2, 1.0}}, K, rhs), errFemNodeNotFound);
  EXPECT_EQ(xFemSolver{}.appNodalConstr(3, {{0, 1.0}}, K, rhs), errFemNodeNotFound);
  EXPECT_EQ(xFemSolver{}.appNodalConstr(-1, {{0, 1.0}}, K, rhs), errFemNodeNotFound);
  EXPECT_EQ(xFemSolver{}.appNodalSprings(3, {{0, 1.0}}, K), errFemNodeNotFound);
  EXPECT_EQ(arma::accu(K), 36.0);
}

// x = 1, 2 and 3: 2 + 2 + 0 = 4, 2 + 6 + 0 = 8, 1 + 0 + 6 = 7. Not symmetric.
TEST(SolveEq, PutsTheSolutionInPlaceOfTheRightHandSide) {
  const arma::Mat<double> K{{2.0, 1.0, 0.0}, {2.0, 3.0, 0.0}, {1.0, 0.0, 2.0}};
  std::vector<double> rhs{4.0, 8.0, 7.0};
  ASSERT_EQ(xFemSolver{}.solveEQ(K, rhs), ostrel::ok);
  EXPECT_THAT(rhs, Pointwise(DoubleNear(1e-14), {1.0, 2.0, 3.0}));
}

// A row with nothing on its diagonal needs another row in its place.
TEST(SolveEq, InterchangesRows) {
  const arma::Mat<double> K{{0.0, 1.0}, {1.0, 0.0}};
  std::vector<double> rhs{2.0, 3.0};
  ASSERT_EQ(xFemSolver{}.solveEQ(K, rhs), ostrel::ok);
  EXPECT_THAT(rhs, ElementsAre(3.0, 2.0));
}

// Twelve powers of ten between the rows, as between displacements and rotations, do not make a
// system singular.
TEST(SolveEq, BearsRowsOfVeryDifferentSize) {
  const arma::Mat<double> K{{2e12, 1e6}, {1e6, 1.0}};
  std::vector<double> rhs{3e12, 2e6};
  ASSERT_EQ(xFemSolver{}.solveEQ(K, rhs), ostrel::ok);
  // 2 x + y = 3 and x + y = 2 with the second unknown in units of 1e-6.
  EXPECT_NEAR(rhs[0], 1.0, 1e-14);
  EXPECT_NEAR(rhs[1], 1e6, 1e-8);
}

class SizesOfEquations : public ::testing::TestWithParam<arma::uword> {};

TEST_P(SizesOfEquations, AreSolvedOrRefusedInSilence) {
  const arma::uword n = GetParam();
  ::testing::internal::CaptureStdout();
  ::testing::internal::CaptureStderr();
  arma::Mat<double> K(n, n, arma::fill::eye);
  K *= 4.0;
  if (n > 1) K.diag(1).fill(-1.0);
  std::vector<double> rhs(n, 3.0);
  rhs.back() = 4.0;
  EXPECT_EQ(xFemSolver{}.solveEQ(K, rhs), ostrel::ok);
  EXPECT_THAT(rhs, ::testing::Each(DoubleNear(1.0, 1e-14)));

  const std::vector<double> load(n, 3.0);
  for (const double bad : {std::nan(""), infinite, -infinite}) {
    for (const arma::uword j : {arma::uword{0}, n / 2, n - 1}) {
      arma::Mat<double> broken = K;
      broken(n - 1 - j, j) = bad;
      rhs = load;
      EXPECT_EQ(xFemSolver{}.solveEQ(broken, rhs), errEquationSolve);
      EXPECT_EQ(rhs, load);
      rhs[j] = bad;
      EXPECT_EQ(xFemSolver{}.solveEQ(K, rhs), errEquationSolve);
    }
  }
  rhs = load;
  K.row(n / 2).zeros();
  EXPECT_EQ(xFemSolver{}.solveEQ(K, rhs), errEquationSolve);
  EXPECT_EQ(xFemSolver{}.solveEQ(arma::Mat<double>(n, n, arma::fill::ones), rhs),
            n == 1 ? ostrel::ok : errEquationSolve);
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

// From 32 on the solver looks for a band.
INSTANTIATE_TEST_SUITE_P(Equations, SizesOfEquations, ::testing::Values(1, 2, 6, 31, 32, 33, 243));

TEST(SolveEq, RefusesWhatIsNotASquareSystem) {
  std::vector<double> rhs(2, 1.0);
  EXPECT_EQ(xFemSolver{}.solveEQ(arma::Mat<double>(2, 3, arma::fill::ones), rhs), errEquationSolve);
  EXPECT_EQ(xFemSolver{}.solveEQ(arma::Mat<double>(3, 3, arma::fill::eye), rhs), errEquationSolve);
  std::vector<double> none;
  EXPECT_EQ(xFemSolver{}.solveEQ(arma::Mat<double>(), none), errEquationSolve);
  EXPECT_EQ(rhs, std::vector<double>(2, 1.0));
}

// 1e-17 is lost beside 1: the two rows are one to working precision.
TEST(SolveEq, RefusesWhatIsSingularToWorkingPrecision) {
  std::vector<double> rhs{1.0, 2.0};
  EXPECT_EQ(xFemSolver{}.solveEQ({{1.0, 1.0}, {1.0, 1.0 + 2.3e-16}}, rhs), errEquationSolve);
  EXPECT_THAT(rhs, ElementsAre(1.0, 2.0));
}

}  // namespace
