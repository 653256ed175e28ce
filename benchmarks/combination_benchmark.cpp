// SPDX-License-Identifier: Apache-2.0
//
// One whole combination, and one whole run of it from the input, on a wall 20 m long with 80, 400
// and 2000 elements, that is with levels every 250, 50 and 10 mm. Items are combinations.
#include "ostrel/solver.h"
#include "support/wall_builder.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

using ostrel::testing::anchor_at;
using ostrel::testing::sand;
using ostrel::testing::unfactored;
using ostrel::testing::WallBuilder;

constexpr double wall_length = 20'000.0;  // [mm]

xSheetpilingData anchored_wall(std::int64_t elements) {
  return WallBuilder{}
      .pile(800.0, wall_length)
      .excavation(8'000.0)
      .step(wall_length / static_cast<double>(elements))
      .anchor(anchor_at(2'000.0))
      .layer(sand())
      .combination(unfactored("A1"))
      .build();
}

void whole_run(benchmark::State& state) {
  const xSheetpilingData data = anchored_wall(state.range(0));
  for ([[maybe_unused]] const auto _ : state) {
    xSolver solver;
    solver.data = data;
    xSheetpilingRes results;
    xUltimateLimitStates uls;
    xServiceabilityLimitStates sls;
    std::vector<xVeldError> errors;
    const xVeldErrorsType severity = solver.solve(results, uls, sls, errors);
    if (severity != veldNothing) state.SkipWithError("the wall does not stand");
    benchmark::DoNotOptimize(results.combResults.data());
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(whole_run)->Arg(80)->Arg(400)->Arg(2000)->Unit(benchmark::kMillisecond);

/// A wall of the size of the examples, 60 elements over 15 m, under `range` combinations.
void run_of_combinations(benchmark::State& state) {
  WallBuilder builder;
  builder.pile(800.0, 15'000.0).excavation(6'500.0).step(250.0).anchor(anchor_at(1'500.0));
  builder.layer(sand()).water(-1'000.0);
  for (std::int64_t i = 0; i < state.range(0); ++i)
    builder.combination(unfactored(std::to_string(i)));
  const xSheetpilingData data = builder.build();
  for ([[maybe_unused]] const auto _ : state) {
    xSolver solver;
    solver.data = data;
    xSheetpilingRes results;
    xUltimateLimitStates uls;
    xServiceabilityLimitStates sls;
    std::vector<xVeldError> errors;
    benchmark::DoNotOptimize(solver.solve(results, uls, sls, errors));
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(run_of_combinations)->Arg(1)->Arg(6)->Arg(24)->Arg(96)->Unit(benchmark::kMillisecond);

void one_combination(benchmark::State& state) {
  xSolver solver;
  solver.data = anchored_wall(state.range(0));
  xSheetpilingRes results;
  xUltimateLimitStates uls;
  xServiceabilityLimitStates sls;
  std::vector<xVeldError> errors;
  if (solver.solve(results, uls, sls, errors) != veldNothing) {
    state.SkipWithError("the wall does not stand");
    return;
  }
  for ([[maybe_unused]] const auto _ : state) {
    xCombResults result;
    result.subgradeModulus = results.combResults[0].subgradeModulus;
    if (solver.solveForCombination(&solver.data.loadCombs[0], result) != ostrel::ok) {
      state.SkipWithError("the combination does not hold");
    }
    benchmark::DoNotOptimize(result.femResults.moment.points.data());
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(one_combination)->Arg(80)->Arg(400)->Arg(2000)->Unit(benchmark::kMillisecond);

}  // namespace
