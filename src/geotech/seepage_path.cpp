// SPDX-License-Identifier: Apache-2.0
#include "geotech/seepage_path.h"

#include "model/geo_factor_list.h"
#include "model/water_weight.h"
#include "ostrel/tolerances.h"

#include <sorrel/line_polygon.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace ostrel::geotech {

namespace {

constexpr double beside_wall = 1.0;       // of the two columns from the wall [mm]
constexpr double probe_reach = 1e7;       // of a column up and down [mm]
constexpr double least_thickness = 1e-4;  // of a layer in a column [mm]

constexpr std::size_t unit_weight_factor = 4;   // position in a combination's list
constexpr std::size_t permeability_factor = 5;  // position in a combination's list

double length_of(const SeepageSegment& segment) {
  return segment.s1 - segment.s0;
}

double resistance_of(const SeepageSegment& segment) {
  return length_of(segment) / segment.k;
}

double length_beyond(const SeepageSegment& segment, double s) {
  if (s >= segment.s1) return 0.0;
  return s >= segment.s0 ? segment.s1 - s : length_of(segment);
}

// The points where the plumb line at `x` meets a layer, from the top down.
std::vector<sorrel::Point> cut(double x, const xBoundSoilLayer& layer) {
  const xTolerances& tolerances = *getTolerances();
  std::vector<sorrel::Point> points;
  linepolyIntersectSorted(sorrel::Point{x, probe_reach}, sorrel::Point{x, -probe_reach},
                          tolerances[xTolerances::line_ends],
                          tolerances[xTolerances::crossing_distance], layer.polygons, points);
  return points;
}

// A layer between two elevations with its design values.
SeepageSegment segment_of(const xSoilProps& soil, const xLoadComb& comb, double top,
                          double bottom) {
  const auto factor = [&comb](std::size_t position, geoFactorType type) {
    return model::geo_factor(comb.geoFactors, position, type);
  };
  return {.s0 = -top,
          .s1 = -bottom,
          .k = soil.getKPerm() / factor(permeability_factor, geoFactorPressure),
          .gamma = soil.getSaturatedUnitWeight() / factor(unit_weight_factor, geoFactorResistance)};
}

void append_length(SeepagePath& path, const SeepageSegment& part) {
  const double start = path.segments.empty() ? 0.0 : path.segments.back().s1;
  path.segments.push_back(
      {.s0 = start, .s1 = start + length_of(part), .k = part.k, .gamma = part.gamma});
}

}  // namespace

OstrelErrorType column_of_layers(double x, double level, double toe,
                                 const std::vector<xBoundSoilLayer>& layers, const xLoadComb& comb,
                                 std::vector<SeepageSegment>& column) {
  column.clear();
  for (const xBoundSoilLayer& layer : layers) {
    const std::vector<sorrel::Point> points = cut(x, layer);
    if (points.size() < 2) continue;
    double bottom = points.back()[1];
    if (bottom > level) continue;
    const double top = std::min(points.front()[1], level);
    if (!(toe <= top)) break;
    if (toe >= bottom) bottom = toe;
    if (std::abs(top - bottom) < least_thickness) continue;
    column.push_back(segment_of(layer.soil, comb, top, bottom));
  }
  std::stable_sort(column.begin(), column.end(),
                   [](const SeepageSegment& a, const SeepageSegment& b) {
                     return (a.s0 + a.s1) * 0.5 < (b.s0 + b.s1) * 0.5;
                   });
  return column.empty() ? errNoLayerIntersection : ok;
}

OstrelErrorType build_seepage_path(const xWaterTable& water,
                                   const std::vector<xBoundSoilLayer>& layers,
                                   const xLoadComb& comb, double toe, SeepagePath& path) {
  path = {.head_up = water.getLivelloMonte(),
          .head_down = water.getLivelloValle(),
          .s_toe = 0.0,
          .segments = {}};
  const bool levels_are_places = std::isfinite(path.head_up) && std::isfinite(path.head_down);
  if (!(water.getIsDefined() && levels_are_places)) return errHydroNoWater;
  std::vector<SeepageSegment> uphill;
  std::vector<SeepageSegment> downhill;
  auto code = column_of_layers(beside_wall, path.head_up, toe, layers, comb, uphill);
  if (code != ok) return code;
  code = column_of_layers(-beside_wall, path.head_down, toe, layers, comb, downhill);
  if (code != ok) return code;
  for (const SeepageSegment& part : uphill) {
    append_length(path, part);
  }
  path.s_toe = path.segments.back().s1;
  std::for_each(downhill.rbegin(), downhill.rend(),
                [&path](const SeepageSegment& part) { append_length(path, part); });
  return ok;
}

std::vector<HeadDrop> heads_along(const SeepagePath& path) {
  double resistance = 0.0;
  for (const SeepageSegment& segment : path.segments) {
    resistance += resistance_of(segment);
  }
  const double q = (path.head_up - path.head_down) / resistance;
  std::vector<HeadDrop> heads;
  double h = path.head_up;
  for (const SeepageSegment& segment : path.segments) {
    const double h1 = h - length_of(segment) * q / segment.k;
    heads.push_back({.h0 = h, .h1 = h1});
    h = h1;
  }
  if (!heads.empty()) heads.back().h1 = path.head_down;
  return heads;
}

double head_at_toe(const SeepagePath& path) {
  const std::vector<HeadDrop> heads = heads_along(path);
  for (std::size_t i = 0; i < heads.size(); ++i) {
    const SeepageSegment& segment = path.segments[i];
    if (!(segment.s0 <= path.s_toe && path.s_toe <= segment.s1)) continue;
    const double t = (path.s_toe - segment.s0) / length_of(segment);
    return t * heads[i].h1 + (1.0 - t) * heads[i].h0;
  }
  return path.head_up - path.head_down;
}

double weight_beyond(const SeepagePath& path, double s, double width) {
  double weight = 0.0;
  for (const SeepageSegment& segment : path.segments) {
    weight += (segment.gamma - model::water_unit_weight) * length_beyond(segment, s);
  }
  return weight * width;
}

double downhill_height(const SeepagePath& path) {
  return path.segments.empty() ? 0.0 : path.segments.back().s1 - path.s_toe;
}

}  // namespace ostrel::geotech
