// SPDX-License-Identifier: Apache-2.0
#include "model/stratigraphy.h"

#include "model/level_limit.h"
#include "model/probe.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace ostrel::model {

namespace {

constexpr double probe_x = 0.1;          // just inside the retained side [mm]
constexpr double probe_reach = 1e7;      // up and down from the wall's head [mm]
constexpr double upright_dx = 1e-10;     // a side narrower than this is upright [mm]
constexpr double absent_layer = 1e-8;    // a layer thinner than this is none [mm]
constexpr double snaps_in_a_step = 100;  // the snap tolerance is this part of the step

std::vector<double> sorted_numbers(std::vector<double> values) {
  std::erase_if(values, [](double value) { return std::isnan(value); });
  std::sort(values.begin(), values.end());
  return values;
}

double elevation_at_wall(const Crossing& crossing) {
  const double dx = crossing.side.to[0] - crossing.side.from[0];
  const double dy = crossing.side.to[1] - crossing.side.from[1];
  const double elevation = crossing.point[1];
  if (std::abs(dx) < upright_dx) return elevation;
  return elevation - dy / dx * probe_x;
}

// At most this many levels come of `layer`: each piece rounds its steps up and has a level more
// than steps, and the cuts and the water make one piece more each.
double level_bound(const xSoilLayer& layer, const std::vector<double>& cuts) {
  const auto inside = [&layer](double depth) {
    return depth > layer.getDepth() && depth < layer.getDepth() + layer.getThickness();
  };
  const auto pieces = std::count_if(cuts.begin(), cuts.end(), inside) + 2;
  return layer.getThickness() / layer.getStepSize() + 2.0 * static_cast<double>(pieces);
}

// The upper piece of `layer`, down to `depth`.
xSoilLayer upper_piece(const xSoilLayer& layer, double depth) {
  xSoilLayer upper = layer;
  upper.setThickness(depth - layer.getDepth());
  return upper;
}

}  // namespace

std::vector<double> cut_depths(const std::vector<double>& levels) {
  return sorted_numbers(levels);
}

std::vector<double> snap_elevations(const std::vector<double>& levels, const xWaterTable& water) {
  std::vector<double> elevations;
  elevations.reserve(levels.size() + 2);
  for (const double depth : levels) {
    elevations.push_back(-depth);
  }
  elevations.push_back(0.0);
  elevations.push_back(water.getLivelloMonte());
  return sorted_numbers(elevations);
}

std::optional<Borders> borders_at_wall(const xBoundSoilLayer& layer) {
  const Segment probe{.from = {probe_x, probe_reach}, .to = {probe_x, -probe_reach}};
  const auto crossings = probe_crossings(probe, layer.polygons);
  if (crossings.size() < 2) return std::nullopt;
  return Borders{.top = elevation_at_wall(crossings.front()),
                 .bottom = elevation_at_wall(crossings.back())};
}

void snap(Borders& borders, const std::vector<double>& elevations, double tolerance) {
  for (const double elevation : elevations) {
    if (std::abs(elevation - borders.bottom) < tolerance) borders.bottom = elevation;
    if (std::abs(elevation - borders.top) < tolerance) borders.top = elevation;
  }
}

xSoilLayer uncut_layer(const xBoundSoilLayer& source, const Borders& borders, double step) {
  xSoilLayer layer;
  layer.setStepSize(step);
  layer.setDepth(std::abs(std::max(borders.top, borders.bottom)));
  layer.setThickness(std::abs(borders.bottom - borders.top));
  layer.set_Angle(source.getAngle());
  layer.soil = source.soil;
  return layer;
}

bool split_layer(double depth, const xWaterTable& water, xSoilLayer& layer,
                 std::vector<xSoilLayer>& column) {
  const double bottom = layer.getDepth() + layer.getThickness();
  if (!(depth > layer.getDepth() && depth < bottom)) return false;
  xSoilLayer upper = upper_piece(layer, depth);
  layer.setDepth(depth);
  layer.setThickness(bottom - depth);
  layer.set_Angle(0.0);
  insert_water_table(water, upper, column);  // last: `layer` may be one of the column
  return true;
}

void insert_water_table(const xWaterTable& water, xSoilLayer& layer,
                        std::vector<xSoilLayer>& column) {
  const double water_depth = -water.getLivelloMonte();
  std::optional<xSoilLayer> dry;
  if (water.getIsDefined() && layer.getDepth() + layer.getThickness() > water_depth) {
    layer.setUnderWater(true);
    if (water_depth > layer.getDepth()) {
      dry = upper_piece(layer, water_depth);
      dry->setUnderWater(false);
      dry->discretize();
      layer.setDepth(water_depth);
      layer.setThickness(layer.getThickness() - dry->getThickness());
      layer.set_Angle(0.0);
    }
  }
  layer.discretize();
  // A layer that is itself one of the column is lost as soon as the column grows.
  xSoilLayer finished = layer;
  if (dry) column.push_back(std::move(*dry));
  column.push_back(std::move(finished));
}

OstrelErrorType build_column(const std::vector<xBoundSoilLayer>& layers, const xWaterTable& water,
                             const std::vector<double>& levels, double step,
                             std::vector<xSoilLayer>& column) {
  if (!(step > 0.0 && std::isfinite(step))) return errStratigraphy;
  const auto cuts = cut_depths(levels);
  const auto snaps = snap_elevations(levels, water);
  double levels_taken = 0.0;
  for (const xBoundSoilLayer& source : layers) {
    auto borders = borders_at_wall(source);
    if (!borders) return errNoLayerIntersection;
    snap(*borders, snaps, step / snaps_in_a_step);
    if (std::abs(borders->bottom - borders->top) < absent_layer) continue;

    xSoilLayer layer = uncut_layer(source, *borders, step);
    levels_taken += level_bound(layer, cuts);
    if (!(levels_taken <= most_levels)) return errStratigraphy;
    for (const double depth : cuts) {
      split_layer(depth, water, layer, column);
    }
    insert_water_table(water, layer, column);
  }
  return ok;
}

}  // namespace ostrel::model
