// SPDX-License-Identifier: Apache-2.0
//
// The springs of a wall 20 m long with 8 m of excavation, whose embedded part has 80, 400 and 2000
// nodes in three layers, the passive bearing capacity of one node, and the spring law. Items are
// nodes.
#include "ostrel/soil_spring.h"

#include "ostrel/foundation_bearing.h"
#include "support/wall_builder.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <tuple>
#include <vector>

namespace {

using ostrel::testing::clay;
using ostrel::testing::sand;

constexpr double excavation = 8'000.0;    // [mm]
constexpr double wall_length = 20'000.0;  // [mm]
constexpr double spacing = 1'000.0;       // [mm]
constexpr double displacement = 25.4;     // at the limit load [mm]
constexpr int embedded_layers = 3;

// Sand, clay under water, sand under water, and what lies below the foot.
std::vector<xSoilLayer> layers_with(std::int64_t nodes) {
  const double thickness = (wall_length - excavation) / embedded_layers;
  std::vector<xSoilLayer> layers(embedded_layers + 1);
  for (int i = 0; i <= embedded_layers; ++i) {
    xSoilLayer& layer = layers[static_cast<std::size_t>(i)];
    layer.soil = i == 1 ? clay() : sand();
    layer.setDepth(excavation + i * thickness);
    layer.setThickness(thickness);
    layer.setUnderWater(i > 0);
    layer.setStepSize((wall_length - excavation) / static_cast<double>(nodes - 1));
    layer.discretize();
  }
  return layers;
}

OstrelErrorType fill(xSubgradeReactionModulus& subgrade, const std::vector<xSoilLayer>& layers) {
  const std::vector<GeoCombFactor> factors{{1.0, 1.25}, {1.0, 1.25}, {1.0, 1.25},
                                           {1.0, 1.4},  {1.0, 1.0},  {1.0, 1.0}};
  return subgrade.compute_SkSpring(0, formulaCoulomb, 0.0, {xSpringInterval{}}, geoFactorResistance,
                                   factors, layers, excavation, wall_length, spacing, displacement);
}

void springs_of_the_wall(benchmark::State& state) {
  const std::vector<xSoilLayer> layers = layers_with(state.range(0));
  xSubgradeReactionModulus subgrade;
  for ([[maybe_unused]] const auto _ : state) {
    std::ignore = fill(subgrade, layers);
    benchmark::DoNotOptimize(subgrade.springs);
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(subgrade.springs.size()));
}
BENCHMARK(springs_of_the_wall)->Arg(80)->Arg(400)->Arg(2000);

void bearing_capacity(benchmark::State& state) {
  xBearCapacityData data;
  data.soil = sand();
  data.geometry.setWidth(spacing);
  data.setDepthStress(0.1);
  xBearCapacityFound found;
  for ([[maybe_unused]] const auto _ : state) {
    std::ignore = found.compute_BearCapacity(data);
    benchmark::DoNotOptimize(found);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(bearing_capacity);

// What one pass of the solution asks of every spring.
void secant_moduli(benchmark::State& state) {
  xSubgradeReactionModulus subgrade;
  std::ignore = fill(subgrade, layers_with(state.range(0)));
  for ([[maybe_unused]] const auto _ : state) {
    double sum = 0.0;
    for (const auto& [node, spring] : subgrade.springs)
      sum += spring.getKmolla(0.5 * node);
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(subgrade.springs.size()));
}
BENCHMARK(secant_moduli)->Arg(80)->Arg(400)->Arg(2000);

}  // namespace
