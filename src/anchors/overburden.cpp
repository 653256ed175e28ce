// SPDX-License-Identifier: Apache-2.0
#include "anchors/overburden.h"

#include "model/geo_factor_list.h"
#include "model/water_weight.h"
#include "ostrel/tolerances.h"

#include <sorrel/line_polygon.h>

#include <algorithm>

namespace ostrel::anchors {

namespace {

constexpr double far_down = -1e99;         // level of water that is not there [mm]
constexpr double probe_length = 1e7;       // [mm]
constexpr double border_tolerance = 1e-6;  // how far outside of a layer a place still counts [mm]
constexpr std::size_t weight_factor = 4;   // position in the list of partial factors

// The stretch of a vertical between its lowest and its highest crossing with a layer [mm].
struct Stretch {
  double low;
  double high;
};

// A place with a single crossing above it lies inside, and the layer begins there.
std::optional<Stretch> stretch_above(const sorrel::Point& place, const xBoundSoilLayer& layer) {
  const xTolerances& tolerances = *getTolerances();
  const sorrel::Point top{place[0], place[1] + probe_length};
  std::vector<sorrel::Point> crossings;
  const bool any = linepolyIntersectSorted(place, top, tolerances[xTolerances::line_ends],
                                           tolerances[xTolerances::crossing_distance],
                                           layer.polygons, crossings);
  if (!any) return std::nullopt;
  const auto [low, high] = std::minmax_element(
      crossings.begin(), crossings.end(),
      [](const sorrel::Point& a, const sorrel::Point& b) { return a[1] < b[1]; });
  return Stretch{.low = crossings.size() > 1 ? (*low)[1] : place[1], .high = (*high)[1]};
}

// The border of dry and submerged ground in a layer. A level that is not a number lies above it.
double water_border(double water_level, double low, double high) {
  if (!(water_level < high)) return high;
  return std::max(water_level, low);
}

}  // namespace

DesignGround::DesignGround(const std::vector<xBoundSoilLayer>& layers, const xWaterTable& water,
                           const std::vector<GeoCombFactor>& factors)
    : layers_(layers), water_level_(water.getIsDefined() ? water.getLivelloMonte() : far_down) {
  const double factor = model::geo_factor(factors, weight_factor, geoFactorResistance);
  for (const xBoundSoilLayer& layer : layers) {
    weights_.push_back(
        {.dry = layer.soil.getUnitWeight() / factor,
         .submerged = layer.soil.getSaturatedUnitWeight() / factor - model::water_unit_weight});
  }
}

Overburden DesignGround::above(const sorrel::Point& place) const {
  const double y = place[1];
  Overburden found;
  for (std::size_t i = 0; i < layers_.size(); ++i) {
    const auto stretch = stretch_above(place, layers_[i]);
    if (!stretch) break;
    const auto [low, high] = *stretch;
    if (y >= low - border_tolerance && y <= high + border_tolerance) found.layer = i;
    if (high > y) found.stress += stress_of(weights_[i], std::max(y, low), low, high);
  }
  return found;
}

double DesignGround::stress_of(const Weights& weights, double bottom, double low,
                               double high) const {
  const double cut = std::max(water_border(water_level_, low, high), bottom);
  return (high - cut) * weights.dry + (cut - bottom) * weights.submerged;
}

}  // namespace ostrel::anchors
