#pragma once
/// @file  A cutting in wavy layers under water and loads, for tests and benchmarks of slip circles
// SPDX-License-Identifier: Apache-2.0

#include "support/slope_ground.h"

#include <ostrel/slope_stability.h>

#include <cmath>
#include <cstddef>
#include <vector>

namespace ostrel::testing {

/// Ground 60 m wide and 25 m high with an excavation of 6 m on the left, in layers whose borders
/// are waves, with water 3 m below the head on the right and 5 m lower on the left. [mm, N]
struct WavyGround {
  /// @param layer_count  layers, one above the other
  /// @param vertices     of each border of a layer
  explicit WavyGround(int layer_count = 6, int vertices = 40) {
    Outline upper = border(0, layer_count, vertices);
    for (int i = 0; i < layer_count; ++i) {
      const Outline lower = border(i + 1, layer_count, vertices);
      Outline outline(upper.rbegin(), upper.rend());
      outline.insert(outline.end(), lower.begin(), lower.end());
      outline.push_back(outline.front());
      layers.push_back(ground(outline, 1.7e-5 + 0.03e-5 * i, 2.0e-5 + 0.02e-5 * i, 0.004 * (i % 3),
                              0.4 + 0.03 * (i % 4)));
      upper = lower;
    }
    water = water_at(-3'000, -8'000);
    settings.setStepradius(1e9);
    load();
    comb.geoFactors.assign(6, GeoCombFactor{.first = 1.0, .second = 1.25});
    comb.ulsFactors[factorGlobalStability] = 1.1;
    comb.actions[0].set("", true, 1.3, 1.0);
    comb.actions[3].set("", true, 1.5, 0.9);
    comb.seismic.setSt(1.2);
    comb.seismic.coefficients = {0.08, 0.04};
  }

  /// A border: 0 is the ground itself, which drops by 6 m at the wall.
  static Outline border(int index, int layer_count, int vertices) {
    Outline line;
    for (int k = 0; k < vertices; ++k) {
      const double x = -30'000.0 + 60'000.0 * k / (vertices - 1);
      const double top = x < 0.0 ? -6'000.0 : 0.0;
      const double share = static_cast<double>(index) / layer_count;
      const double wave = 200.0 * std::sin(1e-4 * x * (2 + index)) * (index < layer_count ? 1 : 0);
      line.push_back({x, top + share * (-25'000.0 - top) + wave});
    }
    return line;
  }

  void load() {
    conds.resize(1);
    auto* uniform = new xUniformLoad;
    uniform->setValue(0.01);
    auto* strip = new xNastriformLoad;
    strip->setPosition(3'000);
    strip->setExtension(4'000);
    strip->setStartValue(0.02);
    strip->setEndValue(0.05);
    auto* line = new xLinearLoad;
    line->setPosition(6'200);
    line->setValue(30);
    auto* point = new xPuntiformLoad;
    point->setPosition(8'100);
    point->setValue(50'000);
    for (xSoilLoad* each : {static_cast<xSoilLoad*>(uniform), static_cast<xSoilLoad*>(strip),
                            static_cast<xSoilLoad*>(line), static_cast<xSoilLoad*>(point)})
      conds[0].soilLoads.emplace_back(each);
    auto* force = new xDistribuitedLoad;
    force->force = {20, -30};
    force->setPosition(2'000);
    conds[0].shpileLoads.emplace_back(force);
  }

  std::vector<xBoundSoilLayer> layers;
  xWaterTable water;
  xSlopeStabilitySettings settings;
  std::vector<xLoadCond> conds;
  xLoadComb comb = plain_combination(1);
};

}  // namespace ostrel::testing
