// SPDX-License-Identifier: Apache-2.0
//
// Coefficients of earth pressure, and the diagrams of soil, water and loads on a wall that retains
// 10 m of soil in four layers, with 40, 400 and 4000 steps. Items are coefficients, then steps.
#include "ostrel/design_soil.h"
#include "ostrel/layer_pressure.h"
#include "ostrel/load_pressure.h"
#include "support/wall_builder.h"

#include <benchmark/benchmark.h>
#include <osg/ref_ptr>

#include <cstdint>
#include <tuple>
#include <vector>

namespace {

using ostrel::testing::sand;

constexpr double retained = 10'000.0;  // [mm]
constexpr int layer_count = 4;
constexpr double spacing = 1'000.0;  // [mm]
const arma::Col<double>::fixed<2> quake{0.1, 0.05};

std::vector<xSoilLayer> layers_with(std::int64_t steps) {
  const double thickness = retained / layer_count;
  std::vector<xSoilLayer> layers(layer_count);
  for (int i = 0; i < layer_count; ++i) {
    xSoilLayer& layer = layers[static_cast<std::size_t>(i)];
    layer.soil = sand();
    layer.setDepth(i * thickness);
    layer.setThickness(thickness);
    layer.setUnderWater(i > 1);
    layer.setStepSize(retained / static_cast<double>(steps));
    layer.discretize();
  }
  return layers;
}

void coefficient(benchmark::State& state, formulType formula, bool active) {
  xDesignSoil soil;
  soil.soil = sand();
  double beta = 0.0;
  for ([[maybe_unused]] const auto _ : state) {
    soil.compute_Coeff(formula, 0.0, beta, quake, active);
    benchmark::DoNotOptimize(beta = 1e-3 * soil.getK());  // the next slope hangs on this value
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(coefficient, at_rest, formulaAtRest, true);
BENCHMARK_CAPTURE(coefficient, rankine_active, formulaRankine, true);
BENCHMARK_CAPTURE(coefficient, coulomb_active, formulaCoulomb, true);
BENCHMARK_CAPTURE(coefficient, coulomb_passive, formulaCoulomb, false);
BENCHMARK_CAPTURE(coefficient, mononobe_okabe_active, formulaMononobeOkabe, true);
BENCHMARK_CAPTURE(coefficient, mononobe_okabe_passive, formulaMononobeOkabe, false);

void soil_diagrams(benchmark::State& state) {
  const std::vector<xSoilLayer> layers = layers_with(state.range(0));
  const std::vector<GeoCombFactor> factors(6, GeoCombFactor{1.25, 1.0});
  xEarthPress press;
  for ([[maybe_unused]] const auto _ : state) {
    press.reset();
    std::ignore =
        press.computeActiveEarthPress(geoFactorPressure, factors, 1.3, formulaMononobeOkabe, 0.0,
                                      layers, quake, retained, spacing);
    benchmark::DoNotOptimize(press.diagrams.data());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(soil_diagrams)->Arg(40)->Arg(400)->Arg(4000);

void water_diagrams(benchmark::State& state) {
  const std::vector<xSoilLayer> layers = layers_with(state.range(0));
  xHydrostaticPress press;
  for ([[maybe_unused]] const auto _ : state) {
    press.reset();
    std::ignore = press.computeHydroPress(retained / 2.0, 1.3, layers, retained, spacing);
    benchmark::DoNotOptimize(press.diagrams.data());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0) / 2);  // half of it under water
}
BENCHMARK(water_diagrams)->Arg(40)->Arg(400)->Arg(4000);

void uniform_load_diagrams(benchmark::State& state) {
  const std::vector<xSoilLayer> layers = layers_with(state.range(0));
  const std::vector<GeoCombFactor> factors(6, GeoCombFactor{1.25, 1.0});
  const osg::ref_ptr<xUniformLoad> load = new xUniformLoad;
  load->setValue(0.01);
  for ([[maybe_unused]] const auto _ : state) {
    benchmark::DoNotOptimize(xUniform{}.compute_LoadPress(load.get(), geoFactorPressure, factors,
                                                          1.5, formulaMononobeOkabe, 0.0, layers,
                                                          quake, retained, spacing));
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(uniform_load_diagrams)->Arg(40)->Arg(400)->Arg(4000);

void strip_load_diagrams(benchmark::State& state) {
  const std::vector<xSoilLayer> layers = layers_with(state.range(0));
  const osg::ref_ptr<xNastriformLoad> load = new xNastriformLoad;
  load->setStartValue(0.01);
  load->setEndValue(0.02);
  load->setPosition(1'000.0);
  load->setExtension(3'000.0);
  for ([[maybe_unused]] const auto _ : state) {
    benchmark::DoNotOptimize(
        xNastriform{}.computeLoadPress(load.get(), 1.5, 0.0, layers, quake, retained, spacing));
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(strip_load_diagrams)->Arg(40)->Arg(400)->Arg(4000);

template <class Law, class Load>
void localized_load_diagrams(benchmark::State& state) {
  const std::vector<xSoilLayer> layers = layers_with(state.range(0));
  const osg::ref_ptr<Load> load = new Load;
  load->setPosition(2'000.0);
  load->setValue(1e4);
  for ([[maybe_unused]] const auto _ : state) {
    benchmark::DoNotOptimize(
        Law{}.computeLoadPress(load.get(), 1.5, 0.0, layers, quake, retained, spacing));
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK_TEMPLATE(localized_load_diagrams, xLinear, xLinearLoad)->Arg(40)->Arg(400)->Arg(4000);
BENCHMARK_TEMPLATE(localized_load_diagrams, xPuntiform, xPuntiformLoad)
    ->Arg(40)
    ->Arg(400)
    ->Arg(4000);

}  // namespace
