// SPDX-License-Identifier: Apache-2.0
#include "report_ground.h"

#include "report_block.h"

#include <fmt/format.h>

#include <array>
#include <cstddef>

namespace ostrel::host {

namespace {

constexpr int given = digits_as_given;

OrderedJson given_or_null(const std::optional<double>& value) {
  return value ? OrderedJson(*value) : OrderedJson();
}

// The vertices of one polygon behind those of another.
Both vertices_of(const LayerInput& layer) {
  Both text;
  for (const PolygonInput& polygon : layer.polygons_m) {
    if (!text.english.empty()) text = text + same(" | ");
    for (const auto& [x, y] : polygon) {
      const bool first = text.english.empty() || text.english.back() == ' ';
      text = text + same(first ? "(" : " (") + decimals(fmt::format("{:g}", x)) + Both{"; ", ", "}
           + decimals(fmt::format("{:g}", y)) + same(")");
    }
  }
  return text;
}

}  // namespace

OrderedJson soil_table(const Project& project) {
  ReportTable table("soils", {"Terreni", "Soils"},
                    {{{"Terreno", "Soil"}},
                     {{"γ", "γ"}, "kN/m³", given},
                     {{"γ sat", "γ sat"}, "kN/m³", given},
                     {{"φ′", "φ′"}, "°", given},
                     {{"δ", "δ"}, "°", given},
                     {{"c′", "c′"}, "kPa", given},
                     {{"Adesione", "Adhesion"}, "kPa", given},
                     {{"E", "E"}, "MPa", given},
                     {{"ν", "ν"}, "", given},
                     {{"E edom.", "E oed."}, "MPa", given},
                     {{"OCR", "OCR"}, "", given},
                     {{"k", "k"}, "m/s", given},
                     {{"Denso", "Dense"}}});
  for (const SoilInput& soil : project.soils) {
    table.add({soil.name, soil.unit_weight_kN_m3, soil.saturated_unit_weight_kN_m3,
               soil.friction_angle_deg, soil.wall_friction_angle_deg, soil.cohesion_kPa,
               soil.adhesion_kPa, soil.E_MPa, soil.poisson_ratio,
               given_or_null(soil.constrained_modulus_MPa), soil.overconsolidation_ratio,
               soil.permeability_m_s, soil.dense});
  }
  return table.block();
}

OrderedJson layer_table(const Project& project) {
  const auto name_of_soil = [&](const LayerInput& layer) {
    return layer.soil < project.soils.size() ? project.soils[layer.soil].name : std::string();
  };
  if (!project.ground.by_levels) {
    ReportTable table("layers", {"Strati, per poligoni", "Layers, by polygons"},
                      {{{"Terreno", "Soil"}},
                       {{"Pendenza della superficie", "Slope of the surface"}, "°", given},
                       {{"Vertici x, y [m]", "Vertices x, y [m]"}}});
    for (const LayerInput& layer : project.ground.layers) {
      table.add({name_of_soil(layer), layer.surface_slope_deg, vertices_of(layer)});
    }
    return table.block();
  }
  ReportTable table("layers", {"Strati alla paratia", "Layers at the wall"},
                    {{{"Terreno", "Soil"}},
                     {{"Quota superiore", "Top"}, "m", 2},
                     {{"Quota inferiore", "Bottom"}, "m", 2},
                     {{"Spessore", "Thickness"}, "m", 2}});
  const auto& layers = project.ground.layers;
  for (std::size_t i = 0; i < layers.size(); ++i) {
    const double bottom =
        i + 1 < layers.size() ? layers[i + 1].top_level_m : project.ground.bottom_level_m;
    table.add(
        {name_of_soil(layers[i]), layers[i].top_level_m, bottom, layers[i].top_level_m - bottom});
  }
  return table.block();
}

OrderedJson water_facts(const WaterInput& water) {
  ReportFacts facts({"Falda", "Water"});
  facts.add({"Quota a monte", "Level on the retained side"}, water.retained_level_m, "m", 2);
  facts.add({"Quota a valle", "Level on the excavation side"}, water.excavated_level_m, "m", 2);
  return facts.block();
}

OrderedJson spring_table(const Project& project) {
  static const std::array<Both, 3> limits{{{"carico limite", "bearing capacity"},
                                           {"spinta passiva", "passive pressure"},
                                           {"il minore", "the smaller"}}};
  ReportTable table("springs", {"Molle del terreno", "Soil springs"},
                    {{{"Da, frazione dell'infissione", "From, share of the embedment"}, "", given},
                     {{"a", "to"}, "", given},
                     {{"Limite", "Limit"}},
                     {{"Fattore di rigidezza", "Stiffness factor"}, "", given}});
  for (const SpringIntervalInput& interval : project.spring_intervals) {
    table.add({interval.start, interval.end,
               entry(limits, static_cast<std::size_t>(interval.limit)), interval.stiffness_factor});
  }
  return table.block();
}

}  // namespace ostrel::host
