#pragma once
/// @file  Soils and layers along the wall, for tests that need no whole wall
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/soil_layer.h"

#include <numbers>
#include <utility>
#include <vector>

namespace ostrel::testing {

/// A soil of 20 kN/m³, 22 kN/m³ saturated, with friction alone: 30°, so that the coefficient is 1/2
/// at rest, 1/3 active and 3 passive on a smooth wall and level ground.
inline xSoilProps smooth_soil() {
  xSoilProps soil;
  soil.setUnitWeight(2e-5);
  soil.setSaturatedUnitWeight(2.2e-5);
  soil.set_InternalFriction(std::numbers::pi / 6.0);
  soil.setOCR(1.0);
  return soil;
}

/// A dry layer below level ground, with the given levels [mm]; it reaches from the first level to
/// the last.
inline xSoilLayer layer_of(const xSoilProps& soil, std::vector<double> levels) {
  xSoilLayer layer;
  layer.soil = soil;
  layer.setDepth(levels.front());
  layer.setThickness(levels.back() - levels.front());
  layer.levels = std::move(levels);
  return layer;
}

/// The same under water.
inline xSoilLayer submerged_layer_of(const xSoilProps& soil, std::vector<double> levels) {
  xSoilLayer layer = layer_of(soil, std::move(levels));
  layer.setUnderWater(true);
  return layer;
}

/// The same below a slope [rad].
inline xSoilLayer sloping_layer_of(const xSoilProps& soil, std::vector<double> levels,
                                   double slope) {
  xSoilLayer layer = layer_of(soil, std::move(levels));
  layer.set_Angle(slope);
  return layer;
}

/// The values of a diagram's points.
template <class Diagram>
std::vector<double> values_of(const Diagram& diagram) {
  std::vector<double> values;
  for (const auto& point : diagram.points) {
    values.push_back(point.value);
  }
  return values;
}

/// The local positions of a diagram's points [mm].
template <class Diagram>
std::vector<double> positions_of(const Diagram& diagram) {
  std::vector<double> positions;
  for (const auto& point : diagram.points) {
    positions.push_back(point.s);
  }
  return positions;
}

}  // namespace ostrel::testing
