#pragma once
/// @file  A non-linear solution by the dense matrix in every pass, for tests
// SPDX-License-Identifier: Apache-2.0
//
// A solver takes the dense matrix for the first pass and a band for the others. Here each pass goes
// the way the interface states: springs, a copy of the matrix, supports, equations, comparison.
//
// The equations of a wall lose digits: of 16, some 6 with 80 elements and 8 with 400. So that two ways
// to solve them can be compared, what is left over of the right-hand side is worked out with more
// digits and solved for again.

#include "support/spring_beam.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace ostrel::testing {

struct DensePasses {
  std::vector<std::vector<double>> d;  ///< the displacements of each pass, by dof
  OstrelErrorType code = ostrel::ok;   ///< of the pass after the last of `d`, or of success
};

/// The sum of the loads of all conditions, by dof.
inline std::vector<double> total_load(const xFemSolver& solver) {
  std::vector<double> total(solver.getNp(), 0.0);
  for (const auto& load : solver.loads) {
    std::transform(load.begin(), load.end(), total.begin(), total.begin(), std::plus<>{});
  }
  return total;
}

/// Solves by `xFemSolver::solveEQ`, to all the digits of a double or nearly so.
inline OstrelErrorType solve_exactly(const arma::Mat<double>& K, std::vector<double>& rhs) {
  std::vector<double> d = rhs;
  auto code = xFemSolver{}.solveEQ(K, d);
  for (int step = 0; step < 2 && code == ostrel::ok; ++step) {
    std::vector<double> left(rhs.size());
    for (std::size_t i = 0; i < rhs.size(); ++i) {
      long double sum = rhs[i];
      for (std::size_t j = 0; j < rhs.size(); ++j) {
        sum -= static_cast<long double>(K(i, j)) * d[j];
      }
      left[i] = static_cast<double>(sum);
    }
    code = xFemSolver{}.solveEQ(K, left);
    if (code == ostrel::ok)
      std::transform(d.begin(), d.end(), left.begin(), d.begin(), std::plus<>{});
  }
  if (code == ostrel::ok) rhs = d;
  return code;
}

/// Compares two passes at the springs.
/// @param code  becomes `errNonLinearNotConverged` where all of them are beyond their limits
/// @return true when the passes agree
inline bool passes_agree(const SpringBeam& beam, const std::vector<double>& before,
                         const std::vector<double>& d, OstrelErrorType& code) {
  double sum = 0.0;
  std::size_t yielded = 0;
  for (const auto& [node, law] : beam.springs) {
    const auto dof = 3 * static_cast<std::size_t>(node) + 1;
    sum += std::abs(d[dof] - before[dof]);
    yielded += std::abs(d[dof]) > law.getDyLim() ? 1 : 0;
  }
  if (yielded == beam.springs.size()) code = errNonLinearNotConverged;
  return sum <= beam.options.tolerance;
}

/// All passes of a beam that has loads and supports on its own nodes.
inline DensePasses dense_passes(const SpringBeam& beam) {
  DensePasses passes;
  xFemSolver solver;
  solver.takeSizes(beam.data, beam.conditions.size());
  EXPECT_EQ(solver.buildTopologyMat(), ostrel::ok);
  EXPECT_EQ(solver.buildLoadMat(beam.data, beam.conditions), ostrel::ok);
  EXPECT_EQ(solver.buildBStif(beam.data), ostrel::ok);
  std::vector<double> before(solver.getNp(), 0.0);
  for (int pass = 0; pass < beam.options.maxIterations; ++pass) {
    std::map<int, double> springs;
    EXPECT_EQ(solver.build_SkSpring(beam.data, beam.springs, beam.spacing, &before, springs),
              ostrel::ok);
    arma::Mat<double> K = solver.K;
    std::vector<double> d = total_load(solver);
    EXPECT_EQ(solver.appBoundCond(beam.anchors, beam.data, springs, K, d), ostrel::ok);
    passes.code = solve_exactly(K, d);
    if (passes.code != ostrel::ok) return passes;
    const bool agree = passes_agree(beam, before, d, passes.code);
    if (passes.code != ostrel::ok) return passes;
    passes.d.push_back(d);
    if (agree) return passes;
    before = d;
  }
  return passes;
}

/// `result` has the displacements `d` to ten digits. The largest of each of the three dofs is compared
/// by itself: rotations are small numbers.
inline void expect_displacements(const xCombRes& result, const std::vector<double>& d,
                                 const std::string& where) {
  ASSERT_EQ(3 * result.displacements.size(), d.size());
  for (std::size_t k = 0; k < 3; ++k) {
    double largest = 0.0;
    double difference = 0.0;
    for (std::size_t n = 0; n < result.displacements.size(); ++n) {
      const xFemNodeData& at = result.displacements[n];
      const double found = k == 0 ? at.x : k == 1 ? at.y : at.r;
      largest = std::max(largest, std::abs(d[3 * n + k]));
      difference = std::max(difference, std::abs(found - d[3 * n + k]));
    }
    EXPECT_LE(difference, 1e-10 * largest) << where << ", dof " << k;
  }
}

}  // namespace ostrel::testing
