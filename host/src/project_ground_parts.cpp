// SPDX-License-Identifier: Apache-2.0
// Readers of soils, ground and water.
#include "json_text.h"
#include "project_parts.h"

#include <utility>

namespace ostrel::host {

namespace {

constexpr double farthest_m = 1e4;  // of anything from the wall

const Range position = Range::between(-farthest_m, farthest_m);
const Range length = {.least = 0.0, .most = farthest_m, .least_included = false};

SoilInput read_soil(const ValueReader& value) {
  ObjectReader fields = value.object();
  SoilInput soil;
  if (const auto name = fields.required("name")) soil.name = name->text_not_empty();
  const Range weight = {.least = 0.0, .most = 100.0, .least_included = false};
  soil.unit_weight_kN_m3 = fields.number("unit_weight_kN_m3", weight);
  soil.saturated_unit_weight_kN_m3 = fields.number(
      "saturated_unit_weight_kN_m3", {.least = 10.0, .most = 100.0, .least_included = false});
  soil.friction_angle_deg = fields.number("friction_angle_deg", Range::from_below(0.0, 90.0));
  soil.wall_friction_angle_deg =
      fields.number("wall_friction_angle_deg", Range::from_below(0.0, 90.0));
  soil.cohesion_kPa = fields.number_or("cohesion_kPa", 0.0, Range::at_least(0.0));
  soil.adhesion_kPa = fields.number_or("adhesion_kPa", 0.0, Range::at_least(0.0));
  soil.E_MPa = fields.number("E_MPa", Range::above(0.0));
  soil.poisson_ratio = fields.number_or("poisson_ratio", 0.3, Range::from_below(0.0, 0.5));
  if (const auto modulus = fields.optional("constrained_modulus_MPa")) {
    soil.constrained_modulus_MPa = modulus->number(Range::above(0.0));
  }
  soil.overconsolidation_ratio =
      fields.number_or("overconsolidation_ratio", 1.0, Range::at_least(1.0));
  soil.permeability_m_s = fields.number_or("permeability_m_s", 0.0, Range::at_least(0.0));
  soil.dense = fields.flag_or("dense", false);
  return soil;
}

std::vector<PolygonInput> read_polygons(const ValueReader& value) {
  std::vector<PolygonInput> polygons;
  const std::vector<ValueReader> entries = value.items();
  if (value.json().is_array() && entries.empty()) {
    value.refuse(std::string(value.problems().texts()(Text::a_list_not_empty)));
  }
  for (const ValueReader& entry : entries) {
    PolygonInput polygon;
    for (const ValueReader& vertex : entry.items()) {
      const std::vector<ValueReader> xy = vertex.items(2);
      if (xy.size() == 2) polygon.push_back({xy[0].number(position), xy[1].number(position)});
    }
    if (entry.json().is_array() && polygon.size() < 3) {
      entry.refuse(std::string(value.problems().texts()(Text::three_vertices)));
    }
    polygons.push_back(std::move(polygon));
  }
  return polygons;
}

LayerInput read_layer(const ValueReader& value, const Names& soils, bool by_levels) {
  ObjectReader fields = value.object();
  LayerInput layer;
  if (const auto soil = fields.required("soil")) layer.soil = position_of(*soil, soils);
  if (by_levels) {
    layer.top_level_m = fields.number("top_level_m", position);
    return layer;
  }
  layer.surface_slope_deg = fields.number_or("surface_slope_deg", 0.0, Range::inside(-90.0, 90.0));
  if (const auto polygons = fields.required("polygons_m")) {
    layer.polygons_m = read_polygons(*polygons);
  }
  return layer;
}

}  // namespace

std::vector<SoilInput> read_soils(const ValueReader& value) {
  std::vector<SoilInput> soils;
  for (const ValueReader& entry : value.items()) {
    soils.push_back(read_soil(entry));
  }
  if (value.json().is_array() && soils.empty()) {
    value.refuse(std::string(value.problems().texts()(Text::a_list_not_empty)));
  }
  return soils;
}

GroundInput read_ground(const ValueReader& value, const Names& soils) {
  ObjectReader fields = value.object();
  GroundInput ground;
  ground.by_levels = fields.optional("bottom_level_m").has_value();
  if (ground.by_levels) {
    ground.bottom_level_m = fields.number("bottom_level_m", position);
    ground.retained_width_m = fields.number("retained_width_m", length);
    ground.excavated_width_m = fields.number("excavated_width_m", length);
  }
  const auto layers = fields.required("layers");
  if (!layers) return ground;
  for (const ValueReader& layer : layers->items()) {
    ground.layers.push_back(read_layer(layer, soils, ground.by_levels));
  }
  if (layers->json().is_array() && ground.layers.empty()) {
    layers->refuse(std::string(value.problems().texts()(Text::a_list_not_empty)));
  }
  return ground;
}

WaterInput read_water(const ValueReader& value) {
  ObjectReader fields = value.object();
  WaterInput water;
  water.retained_level_m = fields.number("retained_level_m", position);
  water.excavated_level_m = fields.number("excavated_level_m", position);
  return water;
}

}  // namespace ostrel::host
