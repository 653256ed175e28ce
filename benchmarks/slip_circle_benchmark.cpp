// SPDX-License-Identifier: Apache-2.0
//
// The search of slip circles. Reference: 60 m x 25 m of ground, 6 wavy layers of 40 vertices a side,
// water on both sides, 120 stripes, 20 x 20 centres x 20 radii. Items are circles; the counter says
// how many stripes a circle cuts on average.
#include "in_turns.h"
#include "ostrel/slope_stability.h"
#include "slope/circle_trial.h"
#include "slope/stripes.h"
#include "support/wavy_ground.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <stdexcept>
#include <vector>

#define GEOS_USE_ONLY_R_API
#include <geos_c.h>

namespace {

using ostrel::slope::Stripes;
using ostrel::testing::WavyGround;

constexpr double spacing = 1'000.0;
constexpr double gamma_water = 1e-5;

/// trunc(60 m / width + 1) stripes.
void ask_for_stripes(WavyGround& ground, std::int64_t stripes) {
  ground.settings.setWidthstripe(60'000.0 / (static_cast<double>(stripes) - 0.5));
}

/// 20 x 20 centres over the wall, each with radii from the depth of the wall's foot down.
void ask_for_circles(WavyGround& ground, int radii, int formulation) {
  xCentersGrid& grid = ground.settings.grid;
  grid.origin = {-10'000.0, 1'000.0};
  grid.setStep(600.0);
  grid.setXsteps(19);
  grid.setYsteps(19);
  grid.buildCentersGrid();
  for (xGridPoint& point : grid.points) {
    point.setMinRadius(point.center[1] + 12'000.0);
    point.setMaxRadius(point.center[1] + 22'000.0);
  }
  ground.settings.setStepradius(10'000.0 / (radii - 0.5));
  ground.settings.setFormulation(formulation);
}

Stripes cut(const WavyGround& ground) {
  Stripes stripes;
  if (ostrel::slope::buildStripes(ground.water, ground.settings, ground.layers, {}, stripes)
      != ostrel::ok)
    throw std::runtime_error("the ground cannot be cut");
  return stripes;
}

/// The whole search over ground that is cut already, as for every combination but the first.
void search(benchmark::State& state, int layers, std::int64_t stripe_count, int radii,
            int formulation) {
  WavyGround ground(layers);
  ask_for_stripes(ground, stripe_count);
  ask_for_circles(ground, radii, formulation);
  Stripes stripes = cut(ground);
  for (auto _ : state) {
    xSlopeStability stability;
    std::vector<err_circle> ignored;
    if (stability.check(spacing, gamma_water, ground.settings, ground.layers, {}, ground.conds,
                        ground.comb, ground.water, stripes, ignored)
        != ostrel::ok)
      throw std::runtime_error("the search failed");
    benchmark::DoNotOptimize(stability.getSf());
  }
  const auto circles = static_cast<std::int64_t>(ground.settings.grid.points.size()) * radii;
  state.SetItemsProcessed(state.iterations() * circles);
}

void BM_SearchOrdinary(benchmark::State& state) {
  search(state, 6, state.range(0), 20, 0);
}
BENCHMARK(BM_SearchOrdinary)->Arg(60)->Arg(120)->Arg(240)->Unit(benchmark::kMillisecond);

void BM_SearchBishop(benchmark::State& state) {
  search(state, 6, state.range(0), 20, 1);
}
BENCHMARK(BM_SearchBishop)->Arg(60)->Arg(120)->Arg(240)->Unit(benchmark::kMillisecond);

void BM_SearchByLayers(benchmark::State& state) {
  search(state, static_cast<int>(state.range(0)), 120, 20, 0);
}
BENCHMARK(BM_SearchByLayers)->Arg(1)->Arg(3)->Arg(12)->Unit(benchmark::kMillisecond);

void BM_SearchByRadii(benchmark::State& state) {
  search(state, 6, 120, static_cast<int>(state.range(0)), 0);
}
BENCHMARK(BM_SearchByRadii)->Arg(5)->Arg(80)->Unit(benchmark::kMillisecond);

/// One circle that cuts `range` of the stripes, all sixty in the target.
void BM_OneCircle(benchmark::State& state) {
  WavyGround ground;
  ask_for_stripes(ground, 120);
  const Stripes stripes = cut(ground);
  ostrel::slope::CircleTrial trial(stripes, spacing, gamma_water, ground.conds, ground.comb,
                                   ground.water);
  const double radius = static_cast<double>(state.range(0));
  Stripes slices;
  ostrel::slope::intersectStripes({0.0, 4'000.0}, radius, stripes, slices);
  state.counters["stripes"] = static_cast<double>(slices.size());
  for (auto _ : state) {
    benchmark::DoNotOptimize(trial.cut({.x = 0.0, .y = 4'000.0}, radius));
    benchmark::DoNotOptimize(trial.moments(false).stab);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_OneCircle)->Arg(12'000)->Arg(16'000)->Arg(20'000);

/// The same by way of pieces, as for the governing circle.
void BM_OneCircleWithPieces(benchmark::State& state) {
  WavyGround ground;
  ask_for_stripes(ground, 120);
  const Stripes stripes = cut(ground);
  Stripes slices;
  xSlopeStability stability;
  for (auto _ : state) {
    const xSlopeStability::Center center{0.0, 4'000.0};
    ostrel::slope::intersectStripes(center, 16'000.0, stripes, slices);
    double stab = 0.0;
    double destab = 0.0;
    stability.fellenius_new(center, 16'000.0, spacing, gamma_water, ground.conds, ground.comb,
                            ground.water, slices, stab, destab);
    benchmark::DoNotOptimize(stab);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_OneCircleWithPieces);

/// The general overlay of GEOS: every layer with the rectangle of every stripe, and nothing else.
class Overlay {
public:
  Overlay(const WavyGround& ground, std::int64_t stripes) {
    for (const xBoundSoilLayer& layer : ground.layers)
      soils_.push_back(geometry(layer.polygons[0]));
    const double width = 60'000.0 / static_cast<double>(stripes);
    for (std::int64_t k = 0; k < stripes; ++k) {
      const double left = -30'000.0 + width * static_cast<double>(k);
      const double right = left + width;
      rectangles_.push_back(
          geometry({{left, 1e5}, {left, -1e5}, {right, -1e5}, {right, 1e5}, {left, 1e5}}));
    }
  }
  Overlay(const Overlay&) = delete;
  Overlay& operator=(const Overlay&) = delete;
  ~Overlay() {
    for (const auto& list : {soils_, rectangles_}) {
      for (GEOSGeometry* each : list)
        GEOSGeom_destroy_r(geos_, each);
    }
    GEOS_finish_r(geos_);
  }

  void run() const {
    for (const GEOSGeometry* rectangle : rectangles_) {
      for (const GEOSGeometry* soil : soils_)
        GEOSGeom_destroy_r(geos_, GEOSIntersection_r(geos_, soil, rectangle));
    }
  }

private:
  GEOSGeometry* geometry(const ostrel::slope::Polygon& polygon) const {
    const auto size = static_cast<unsigned int>(polygon.size());
    GEOSCoordSequence* sequence = GEOSCoordSeq_create_r(geos_, size, 2);
    for (unsigned int i = 0; i < size; ++i)
      GEOSCoordSeq_setXY_r(geos_, sequence, i, polygon[i][0], polygon[i][1]);
    return GEOSGeom_createPolygon_r(geos_, GEOSGeom_createLinearRing_r(geos_, sequence), nullptr,
                                    0);
  }

  GEOSContextHandle_t geos_ = GEOS_init_r();
  std::vector<GEOSGeometry*> soils_;
  std::vector<GEOSGeometry*> rectangles_;
};

/// Cutting the ground, with owners, areas, centroids and the split at the water, beside the overlay
/// alone; items are stripes.
void BM_Stripes(benchmark::State& state) {
  WavyGround ground(static_cast<int>(state.range(1)));
  ask_for_stripes(ground, state.range(0));
  const Overlay overlay(ground, state.range(0));
  ostrel::benchmarks::run_beside(
      state, [&ground] { benchmark::DoNotOptimize(cut(ground)); }, [&overlay] { overlay.run(); });
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_Stripes)
    ->Args({60, 6})
    ->Args({120, 6})
    ->Args({240, 6})
    ->Args({120, 12})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
