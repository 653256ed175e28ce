// SPDX-License-Identifier: Apache-2.0
//
// From the input to the beam of a wall 20 m long with 80, 400 and 2000 elements, that is with
// levels every 250, 50 and 10 mm. Items are elements.
#include "ostrel/sheetpiling_data.h"
#include "ostrel/sheetpiling_model.h"
#include "support/wall_builder.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <tuple>

namespace {

using ostrel::testing::anchor_at;
using ostrel::testing::sand;
using ostrel::testing::WallBuilder;

constexpr double wall_length = 20'000.0;  // [mm]

// Three anchors at levels of the layers.
WallBuilder anchored_wall(std::int64_t elements) {
  return WallBuilder{}
      .pile(800.0, wall_length)
      .excavation(10'000.0)
      .step(wall_length / static_cast<double>(elements))
      .anchor(anchor_at(2'000.0))
      .anchor(anchor_at(5'000.0))
      .anchor(anchor_at(8'000.0));
}

void count_elements(benchmark::State& state, const xSheetpilingModel& model) {
  state.SetItemsProcessed(state.iterations()
                          * static_cast<std::int64_t>(model.fem.elements.size()));
}

void layers_and_beam(benchmark::State& state) {
  xSheetpilingData data = anchored_wall(state.range(0)).layer(sand()).build();
  xSheetpilingModel model;
  for ([[maybe_unused]] const auto _ : state) {
    model.reset();
    std::ignore = model.create_Stratigraphy(&data);
    std::ignore = model.create_FemModel(&data);
    benchmark::DoNotOptimize(model.fem.elements.data());
  }
  count_elements(state, model);
}
BENCHMARK(layers_and_beam)->Arg(80)->Arg(400)->Arg(2000);

void beam_from_layers(benchmark::State& state) {
  xSheetpilingData data = anchored_wall(state.range(0)).layer(sand()).build();
  xSheetpilingModel model;
  std::ignore = model.create_Stratigraphy(&data);
  for ([[maybe_unused]] const auto _ : state) {
    std::ignore = model.create_FemModel(&data);
    benchmark::DoNotOptimize(model.fem.elements.data());
  }
  count_elements(state, model);
}
BENCHMARK(beam_from_layers)->Arg(80)->Arg(400)->Arg(2000);

// Eight nodes put one after another into the first element of a beam.
void eight_splits(benchmark::State& state) {
  xSheetpilingData data = anchored_wall(state.range(0)).layer(sand()).build();
  xSheetpilingModel whole;
  std::ignore = whole.create_Stratigraphy(&data);
  std::ignore = whole.create_FemModel(&data);
  for ([[maybe_unused]] const auto _ : state) {
    state.PauseTiming();
    xSheetpilingModel model = whole;
    state.ResumeTiming();
    for (int i = 8; i > 0; --i)
      model.splitBeam(0, i);
    benchmark::DoNotOptimize(model.fem.elements.data());
  }
  count_elements(state, whole);
}
BENCHMARK(eight_splits)->Arg(80)->Arg(400)->Arg(2000);

}  // namespace
