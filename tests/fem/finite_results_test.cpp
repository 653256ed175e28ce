// SPDX-License-Identifier: Apache-2.0
#include "fem/finite_results.h"

#include "support/spring_beam.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <vector>

namespace ostrel::fem {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();

xCombRes filled() {
  xCombRes results;
  results.displacements.resize(2);
  results.nodalForces[1] = xFemNodeData(1.0, 2.0, 3.0);
  results.soilReactions[1].reaction = 4.0;
  results.beamStress.resize(1);
  results.beamStress[0].points.resize(2);
  results.soilForces[1].springForce = 5.0;
  results.appliedForces[0] = xFemNodeData(6.0, 7.0, 8.0);
  return results;
}

TEST(FiniteResults, AreThoseWithoutAnInfiniteNumberAnywhere) {
  EXPECT_TRUE(is_finite(xCombRes{}));
  EXPECT_TRUE(is_finite(filled()));
  const std::vector<std::function<void(xCombRes&, double)>> places = {
      [](xCombRes& results, double bad) { results.displacements[1].r = bad; },
      [](xCombRes& results, double bad) { results.nodalForces[1].x = bad; },
      [](xCombRes& results, double bad) { results.soilReactions[1].limited = bad; },
      [](xCombRes& results, double bad) { results.beamStress[0].points[1].M = bad; },
      [](xCombRes& results, double bad) { results.soilForces[1].springForce = bad; },
      [](xCombRes& results, double bad) { results.soilForces[1].limitMoment = bad; },
      [](xCombRes& results, double bad) { results.appliedForces[0].y = bad; },
  };
  for (const auto& place : places) {
    for (const double bad : {infinite, -infinite, std::numeric_limits<double>::quiet_NaN()}) {
      xCombRes results = filled();
      place(results, bad);
      EXPECT_FALSE(is_finite(results));
    }
  }
}

// A beam of 1000 mm between two supports that move apart by 1e300 mm: E A / L = 30 000 * 1e9 / 1000 =
// 3e10 N for each of them is beyond the largest double, though no displacement is.
TEST(FiniteResults, AreAskedOfASolution) {
  testing::SpringBeam beam = testing::straight_beam(1, 1000.0, 30'000.0, 1e9, 1e9);
  beam.options.linear = true;
  beam.clamp(0);
  beam.data.constrDof0[1] = 1e300;
  xCombRes result;
  EXPECT_EQ(beam.solve(result), errEquationSolve);
  beam.data.constrDof0[1] = 1.0;
  beam.data.constrDof1[1] = beam.data.constrDof2[1] = 0.0;
  EXPECT_EQ(beam.solve(result), ostrel::ok);
}

}  // namespace
}  // namespace ostrel::fem
