// SPDX-License-Identifier: Apache-2.0
//
// Design and verification of a whole pile wall, 800 mm: 160 sections (80 elements, two ends each)
// under 6 combinations, each with a moment of its own. Items are sections by combinations.
#include "ostrel/results.h"
#include "ostrel/wall_check.h"
#include "support/concrete_walls.h"
#include "support/wall_builder.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <numbers>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using ostrel::testing::circle;
using ostrel::testing::common_settings;
using ostrel::testing::unfactored;

/// Moments of half a wave down the wall: from 250 kNm in the middle up to 500 kNm in the last of
/// the combinations, however many they are.
xCombResults forces(int combination, int combinations, std::int64_t elements) {
  const double largest_moment = 250e6 * (1.0 + (combination + 1.0) / combinations);
  xCombResults result;
  result.setCombName("combination " + std::to_string(combination));
  const double length = 20'000.0 / static_cast<double>(elements);
  for (std::int64_t e = 0; e < elements; ++e) {
    for (const double z : {length * static_cast<double>(e), length * static_cast<double>(e + 1)}) {
      const double wave = std::sin(std::numbers::pi * z / 20'000.0);
      result.femResults.axial.points.emplace_back(z, -200e3 - 5.0 * z);
      result.femResults.shear.points.emplace_back(z, 100e3 * std::cos(z / 5'000.0));
      result.femResults.moment.points.emplace_back(z, wave * largest_moment);
    }
  }
  return result;
}

struct Wall {
  Wall(std::int64_t elements, int combinations) {
    auto ring = common_settings<xCircularReinfSettings>(20.0, 60.0);
    ring->setMinRatio(0.5);
    ring->setMaxRatio(4.0);
    settings = ring.get();
    xLoadComb comb = unfactored("all");
    comb.checks[checkWallStructure] = true;
    std::vector<xCombResults> results;
    for (int i = 0; i < combinations; ++i)
      results.push_back(forces(i, combinations, elements));
    require(wall.collectStress(
        7, std::vector<xLoadComb>(static_cast<std::size_t>(combinations), comb), results));
  }

  static void require(OstrelErrorType code) {
    if (code != ostrel::ok) throw std::runtime_error("the wall cannot be designed");
  }
  void design() { require(wall.design(section.get(), settings)); }
  void check() { require(wall.check(section.get(), settings)); }

  xStructuralDesign wall;
  osg::ref_ptr<xCrossSecProp> section = circle(800.0).get();
  osg::ref_ptr<xReinforcement_Settings> settings;
};

void count(benchmark::State& state) {
  state.SetItemsProcessed(state.iterations() * 2 * state.range(0) * state.range(1));
}

void design_and_check(benchmark::State& state) {
  const Wall loaded(state.range(0), static_cast<int>(state.range(1)));
  for ([[maybe_unused]] const auto _ : state) {
    Wall wall = loaded;
    wall.design();
    wall.check();
    benchmark::DoNotOptimize(wall.wall.getSfMin(nullptr));
  }
  count(state);
}
BENCHMARK(design_and_check)
    ->Args({80, 6})
    ->Args({20, 6})
    ->Args({320, 6})
    ->Args({80, 1})
    ->Args({80, 24})
    ->Unit(benchmark::kMillisecond);

void check_alone(benchmark::State& state) {
  Wall wall(state.range(0), static_cast<int>(state.range(1)));
  wall.design();
  for ([[maybe_unused]] const auto _ : state) {
    wall.check();
    benchmark::DoNotOptimize(wall.wall.getSfMin(nullptr));
  }
  count(state);
}
BENCHMARK(check_alone)->Args({80, 6})->Unit(benchmark::kMillisecond);

}  // namespace
