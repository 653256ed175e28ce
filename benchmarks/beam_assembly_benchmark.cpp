// SPDX-License-Identifier: Apache-2.0
//
// Stiffness and load vectors of beams of 80, 400 and 2000 elements. Items are elements; the dense
// matrix is what the bytes are counted of.
#include "fem/beam_assembly.h"

#include "ostrel/fem_solver.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <tuple>
#include <vector>

namespace {

// A wall 20 m long of 800 mm piles.
xFemData beam_of(std::int64_t elements) {
  xFemData data;
  for (std::int64_t e = 0; e < elements; ++e) {
    xElemData element;
    element.setStartNode(static_cast<std::int32_t>(e));
    element.setEndNode(static_cast<std::int32_t>(e + 1));
    element.setL(20'000.0 / static_cast<double>(elements));
    element.setE(30'000.0);
    element.setArea(502'655.0);
    element.setJ(2.0106e10);
    data.elements.push_back(element);
  }
  return data;
}

// Weight, earth, water and one load condition, each on all elements.
std::vector<xFemLoadCond> four_conditions(std::int64_t elements) {
  std::vector<xFemLoadCond> conditions(4);
  for (xFemLoadCond& condition : conditions) {
    for (std::int64_t e = 0; e < elements; ++e)
      condition.pressures[static_cast<std::int32_t>(e)] = PressAtEnds(-10.0, -11.0);
  }
  return conditions;
}

void stiffness_of_one_element(benchmark::State& state) {
  ostrel::fem::BeamElement element{
      .elastic_modulus = 30'000.0, .area = 502'655.0, .second_moment = 2.0106e10, .length = 250.0};
  for ([[maybe_unused]] const auto _ : state) {
    benchmark::DoNotOptimize(element);
    benchmark::DoNotOptimize(ostrel::fem::element_stiffness(element).memptr());
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(stiffness_of_one_element);

void stiffness_of_the_beam(benchmark::State& state) {
  const xFemData data = beam_of(state.range(0));
  xFemSolver solver;
  solver.takeSizes(data, 0);
  for ([[maybe_unused]] const auto _ : state) {
    std::ignore = solver.buildTopologyMat();
    std::ignore = solver.buildBStif(data);
    benchmark::DoNotOptimize(solver.K.memptr());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(8 * solver.K.n_elem));
}
BENCHMARK(stiffness_of_the_beam)->Arg(80)->Arg(400)->Arg(2000)->Unit(benchmark::kMicrosecond);

void four_load_vectors(benchmark::State& state) {
  const xFemData data = beam_of(state.range(0));
  const std::vector<xFemLoadCond> conditions = four_conditions(state.range(0));
  xFemSolver solver;
  solver.takeSizes(data, conditions.size());
  for ([[maybe_unused]] const auto _ : state) {
    std::ignore = solver.buildLoadMat(data, conditions);
    benchmark::DoNotOptimize(solver.loads.data());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(four_load_vectors)->Arg(80)->Arg(400)->Arg(2000)->Unit(benchmark::kMicrosecond);

}  // namespace
