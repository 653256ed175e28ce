// SPDX-License-Identifier: Apache-2.0
#include "report_input.h"

#include "report_block.h"

#include <fmt/format.h>

#include <array>
#include <cstddef>
#include <utility>

namespace ostrel::host {

namespace {

constexpr int given = digits_as_given;

OrderedJson given_or_null(const std::optional<double>& value) {
  return value ? OrderedJson(*value) : OrderedJson();
}

template <std::size_t count>
const Both& entry(const std::array<Both, count>& names, std::size_t place) {
  static const Both unknown = same("?");
  return place < count ? names[place] : unknown;
}

OrderedJson wall_facts(const Project& project) {
  const WallInput& wall = project.wall;
  ReportFacts facts({"Paratia", "Wall"});
  if (wall.is_diaphragm) {
    facts.add({"Tipo", "Type"}, Both{"Diaframma", "Diaphragm wall"});
    facts.add({"Spessore", "Thickness"}, wall.thickness_mm, "mm");
    facts.add({"Larghezza di un pannello", "Width of a panel"}, wall.spacing_m, "m");
    facts.add({"Pannelli considerati", "Panels considered"}, wall.count);
  } else {
    facts.add({"Tipo", "Type"}, Both{"Pali accostati o intervallati", "Row of piles"});
    facts.add({"Diametro dei pali", "Diameter of the piles"}, wall.diameter_mm, "mm");
    facts.add({"Interasse", "Distance between axes"}, wall.spacing_m, "m");
    facts.add({"Pali considerati", "Piles considered"}, wall.count);
  }
  facts.add({"Lunghezza", "Length"}, wall.length_m, "m");
  facts.add({"Profondità di scavo", "Depth of the excavation"}, project.excavation_depth_m, "m");
  facts.add({"Modulo elastico", "Elastic modulus"}, wall.E_GPa, "GPa");
  facts.add({"Coefficiente di Poisson", "Poisson's ratio"}, wall.poisson_ratio);
  facts.add({"Peso dell'unità di volume", "Unit weight"}, wall.unit_weight_kN_m3, "kN/m³");
  if (wall.cap_beam_height_m > 0.0) {
    facts.add({"Trave di coronamento, altezza", "Cap beam, height"}, wall.cap_beam_height_m, "m");
    facts.add({"Trave di coronamento, larghezza", "Cap beam, width"}, wall.cap_beam_width_m, "m");
  }
  if (wall.head_limit_mm > 0.0) {
    facts.add({"Spostamento limite in testa", "Limit of the displacement at the head"},
              wall.head_limit_mm, "mm");
  }
  if (wall.excavation_limit_mm > 0.0) {
    facts.add({"Spostamento limite a fondo scavo", "Limit of the displacement at the excavation"},
              wall.excavation_limit_mm, "mm");
  }
  return facts.block();
}

OrderedJson bearing_facts(const PileBearingInput& bearing) {
  static const std::array<Both, 3> technologies{
      {{"infissi", "driven"}, {"trivellati", "bored"}, {"a elica continua", "augered"}}};
  ReportFacts facts({"Capacità portante verticale", "Vertical bearing"});
  facts.add({"Tecnologia", "Technology"}, entry(technologies, bearing.technology));
  facts.add({"Efficienza del gruppo", "Efficiency of the group"}, bearing.group_efficiency);
  facts.add(same("ξ₃"), bearing.xi_3);
  facts.add(same("ξ₄"), bearing.xi_4);
  facts.add({"Valori minimi delle indagini", "Minimum values of the investigations"},
            bearing.minimum_values);
  facts.add({"Angolo di attrito ridotto", "Friction angle reduced"}, bearing.reduce_friction_angle);
  return facts.block();
}

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

std::string vertices_of(const LayerInput& layer) {
  std::string text;
  for (const PolygonInput& polygon : layer.polygons_m) {
    if (!text.empty()) text += "; ";
    for (const auto& [x, y] : polygon)
      text += fmt::format("{}({:g}, {:g})", text.empty() || text.back() == ' ' ? "" : " ", x, y);
  }
  return text;
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
    for (const LayerInput& layer : project.ground.layers)
      table.add({name_of_soil(layer), layer.surface_slope_deg, vertices_of(layer)});
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

OrderedJson anchor_table(const Project& project) {
  ReportTable table("anchors", {"Tiranti", "Anchors"},
                    {{{"Tirante", "Anchor"}},
                     {{"Quota", "Level"}, "m", 2},
                     {{"Inclinazione", "Inclination"}, "°", given},
                     {{"Numero", "Number"}, "", given},
                     {{"L libera", "Free length"}, "m", 2},
                     {{"L bulbo", "Bond length"}, "m", 2},
                     {{"Ø bulbo", "Ø bond"}, "mm", given},
                     {{"Sbulbatura", "Enlargement"}, "", given},
                     {{"Area", "Area"}, "mm²", given},
                     {{"E", "E"}, "GPa", given},
                     {{"Pretiro", "Prestress"}, "kN", given},
                     {{"fyk", "fyk"}, "MPa", given},
                     {{"γ acciaio", "γ steel"}, "", given},
                     {{"ξ₃", "ξ₃"}, "", given},
                     {{"ξ₄", "ξ₄"}, "", given}});
  for (std::size_t i = 0; i < project.anchors.size(); ++i) {
    const AnchorInput& anchor = project.anchors[i];
    table.add({anchor.name.empty() ? fmt::format("{}", i + 1) : anchor.name, anchor.level_m,
               anchor.inclination_deg, anchor.count, anchor.free_length_m, anchor.bond_length_m,
               anchor.bond_diameter_mm, anchor.bond_enlargement, anchor.tendon_area_mm2,
               anchor.E_GPa, anchor.prestress_kN, anchor.yield_strength_MPa, anchor.steel_factor,
               anchor.xi_3, anchor.xi_4});
  }
  return table.block();
}

OrderedJson support_table(const Project& project) {
  ReportTable table("supports", {"Appoggi", "Supports"},
                    {{{"Tipo", "Kind"}},
                     {{"Quota", "Level"}, "m", 2},
                     {{"Orizzontale", "Horizontal"}},
                     {{"Verticale", "Vertical"}},
                     {{"Rotazione", "Rotation"}}});
  const auto part = [](const std::optional<double>& value, const char* unit) {
    return value ? fmt::format("{:g} {}", *value, unit) : std::string("–");
  };
  for (const SupportInput& support : project.fixed_supports) {
    table.add({Both{"imposto", "imposed"}, support.level_m, part(support.horizontal, "mm"),
               part(support.vertical, "mm"), part(support.rotation, "mrad")});
  }
  for (const SupportInput& support : project.elastic_supports) {
    table.add({Both{"elastico", "elastic"}, support.level_m, part(support.horizontal, "kN/m"),
               part(support.vertical, "kN/m"), part(support.rotation, "kNm")});
  }
  return table.block();
}

OrderedJson spring_table(const Project& project) {
  static const std::array<Both, 3> limits{{{"carico limite", "bearing capacity"},
                                           {"spinta passiva", "passive pressure"},
                                           {"il minore", "the smaller"}}};
  ReportTable table("springs", {"Molle del terreno", "Soil springs"},
                    {{{"Da", "From"}, "", given},
                     {{"a (parte infissa)", "to (embedded part)"}, "", given},
                     {{"Limite", "Limit"}},
                     {{"Fattore di rigidezza", "Stiffness factor"}, "", given}});
  for (const SpringIntervalInput& interval : project.spring_intervals) {
    table.add({interval.start, interval.end,
               entry(limits, static_cast<std::size_t>(interval.limit)), interval.stiffness_factor});
  }
  return table.block();
}

OrderedJson ground_load_table(const Project& project) {
  static const std::array<Both, 4> kinds{{{"uniforme", "uniform"},
                                          {"nastriforme", "strip"},
                                          {"lineare", "line"},
                                          {"puntuale", "point"}}};
  static const std::array<const char*, 4> units{"kPa", "kPa", "kN/m", "kN"};
  ReportTable table("ground-loads", {"Carichi sul terreno", "Loads on the ground"},
                    {{{"Carico", "Load"}},
                     {{"Tipo", "Kind"}},
                     {{"Valore", "Value"}, "", given},
                     {{"Valore finale", "End value"}, "", given},
                     {{"Unità", "Unit"}},
                     {{"Distanza", "Distance"}, "m", given},
                     {{"Larghezza", "Width"}, "m", given}});
  for (const LoadInput& load : project.loads) {
    for (const GroundLoadInput& part : load.on_ground) {
      const auto kind = static_cast<std::size_t>(part.kind);
      const bool strip = part.kind == GroundLoadInput::Kind::strip;
      const bool uniform = part.kind == GroundLoadInput::Kind::uniform;
      table.add({load.name, entry(kinds, kind), part.value,
                 strip ? OrderedJson(part.end_value) : OrderedJson(),
                 kind < units.size() ? units[kind] : "",
                 uniform ? OrderedJson() : OrderedJson(part.distance_m),
                 strip ? OrderedJson(part.width_m) : OrderedJson()});
    }
  }
  return table.empty() ? OrderedJson() : table.block();
}

OrderedJson wall_load_table(const Project& project) {
  ReportTable table("wall-loads", {"Carichi sulla paratia", "Loads on the wall"},
                    {{{"Carico", "Load"}},
                     {{"Quota", "Level"}, "m", 2},
                     {{"Orizzontale", "Horizontal"}, "kN", given},
                     {{"Verticale", "Vertical"}, "kN", given},
                     {{"Momento", "Moment"}, "kNm", given},
                     {{"Per", "For"}}});
  for (const LoadInput& load : project.loads) {
    for (const WallLoadInput& part : load.on_wall) {
      table.add({load.name, part.level_m, part.horizontal_kN, part.vertical_kN, part.moment_kNm,
                 part.per_metre ? Both{"metro", "metre"} : Both{"elemento", "pile or panel"}});
    }
  }
  return table.empty() ? OrderedJson() : table.block();
}

OrderedJson combination_table(const Project& project) {
  ReportTable table("combinations", {"Combinazioni", "Combinations"},
                    {{{"n.", "No."}, "", given},
                     {{"Combinazione", "Combination"}},
                     {{"Tipo", "Type"}},
                     {{"kh", "kh"}, "", given},
                     {{"kv", "kv"}, "", given},
                     {{"Fattore pendio", "Slope factor"}, "", given},
                     {{"S topografico", "Topographic S"}, "", given}});
  for (std::size_t i = 0; i < project.combinations.size(); ++i) {
    const CombinationInput& combination = project.combinations[i];
    table.add({i + 1, combination.name, name_of(combination.kind), combination.kh, combination.kv,
               combination.slope_factor, combination.topographic_factor});
  }
  return table.block();
}

std::vector<ReportColumn> by_combination(const Project& project, const Both& first, int digits) {
  std::vector<ReportColumn> columns{{first}};
  for (const CombinationInput& combination : project.combinations)
    columns.push_back({same(combination.name), "", digits});
  return columns;
}

OrderedJson action_table(const Project& project) {
  ReportTable table("actions",
                    {"Coefficienti delle azioni, favorevole / sfavorevole",
                     "Factors of the actions, favourable / unfavourable"},
                    by_combination(project, {"Azione", "Action"}, no_digits));
  const auto row = [&](const Both& name, auto action_of) {
    std::vector<OrderedJson> cells{name};
    for (const CombinationInput& combination : project.combinations) {
      const ActionInput* action = action_of(combination);
      if (action == nullptr || !action->active) {
        cells.emplace_back("–");
      } else {
        cells.emplace_back(fmt::format("{:g} / {:g}", action->favourable, action->unfavourable));
      }
    }
    table.add(std::move(cells));
  };
  row({"Peso proprio", "Self-weight"}, [](const auto& c) { return &c.self_weight; });
  row({"Spinta del terreno", "Earth pressure"}, [](const auto& c) { return &c.earth_pressure; });
  row({"Spinta dell'acqua", "Water pressure"}, [](const auto& c) { return &c.water_pressure; });
  for (std::size_t i = 0; i < project.loads.size(); ++i) {
    row(same(project.loads[i].name),
        [i](const CombinationInput& c) { return i < c.loads.size() ? &c.loads[i] : nullptr; });
  }
  return table.block();
}

OrderedJson soil_factor_table(const Project& project) {
  static const std::array<Both, 6> names{{{"Attrito (tan φ′)", "Friction (tan φ′)"},
                                          {"Attrito paratia-terreno", "Wall friction"},
                                          {"Coesione efficace", "Effective cohesion"},
                                          {"Resistenza non drenata", "Undrained strength"},
                                          {"Peso", "Unit weight"},
                                          {"Permeabilità", "Permeability"}}};
  ReportTable table("soil-factors",
                    {"Coefficienti sui terreni, spinta / resistenza",
                     "Factors on the soils, pressing / resisting"},
                    by_combination(project, {"Parametro", "Property"}, no_digits));
  for (std::size_t i = 0; i < names.size(); ++i) {
    std::vector<OrderedJson> cells{names[i]};
    for (const CombinationInput& combination : project.combinations) {
      const auto& [pressing, resisting] = combination.soil_factors[i];
      cells.emplace_back(fmt::format("{:g} / {:g}", pressing, resisting));
    }
    table.add(std::move(cells));
  }
  return table.block();
}

OrderedJson resistance_factor_table(const Project& project) {
  static const std::array<Both, 8> names{{{"Terreno a valle", "Soil in front"},
                                          {"Stabilità globale", "Global stability"},
                                          {"Base dei pali", "Pile base"},
                                          {"Fusto, compressione", "Pile shaft, compression"},
                                          {"Fusto, trazione", "Pile shaft, tension"},
                                          {"Tiranti", "Anchors"},
                                          {"Sifonamento", "Piping"},
                                          {"Sollevamento", "Uplift"}}};
  ReportTable table("resistance-factors",
                    {"Coefficienti sulle resistenze", "Factors on resistances"},
                    by_combination(project, {"Resistenza", "Resistance"}, given));
  for (std::size_t i = 0; i < names.size(); ++i) {
    std::vector<OrderedJson> cells{names[i]};
    bool any = false;
    for (const CombinationInput& combination : project.combinations) {
      const auto found = combination.resistance_factors.find(static_cast<checkUlsFactors>(i));
      const bool has = found != combination.resistance_factors.end();
      any = any || has;
      cells.push_back(has ? OrderedJson(found->second) : OrderedJson());
    }
    if (any) table.add(std::move(cells));
  }
  return table.empty() ? OrderedJson() : table.block();
}

OrderedJson check_table(const Project& project) {
  ReportTable table("checks", {"Verifiche chieste", "Verifications asked for"},
                    by_combination(project, {"Verifica", "Verification"}, no_digits));
  for (int check = checkRigidMotion; check <= checkDisplacements; ++check) {
    std::vector<OrderedJson> cells{name_of(static_cast<pCheckTypes>(check))};
    bool any = false;
    for (const CombinationInput& combination : project.combinations) {
      bool asked = false;
      for (const pCheckTypes entry : combination.checks)
        asked = asked || entry == check;
      any = any || asked;
      cells.emplace_back(asked ? "●" : "–");
    }
    if (any) table.add(std::move(cells));
  }
  return table.empty() ? OrderedJson() : table.block();
}

void add_stirrups(const StirrupsInput& stirrups, ReportFacts& facts) {
  facts.add({"Staffe, diametro", "Stirrups, diameter"}, stirrups.diameter_mm, "mm");
  facts.add({"Staffe, passo minimo", "Stirrups, least spacing"}, stirrups.least_spacing_mm, "mm");
  facts.add({"Staffe, passo massimo", "Stirrups, largest spacing"}, stirrups.largest_spacing_mm,
            "mm");
  facts.add({"Staffe, bracci", "Stirrups, legs"}, stirrups.legs);
}

OrderedJson material_facts(const ReinforcementInput& input) {
  ReportFacts facts({"Calcestruzzo e acciaio", "Concrete and steel"});
  facts.add({"Resistenza cubica Rck", "Cube strength Rck"}, input.concrete.cube_strength_MPa,
            "MPa");
  facts.add(same("αcc"), input.concrete.alpha_cc);
  facts.add(same("γc"), input.concrete.partial_factor);
  facts.add(same("εc2"), input.concrete.strain_at_peak);
  facts.add(same("εcu"), input.concrete.ultimate_strain);
  facts.add({"Acciaio fyk", "Steel fyk"}, input.steel.yield_strength_MPa, "MPa");
  facts.add(same("γs"), input.steel.partial_factor);
  facts.add(same("Es"), input.steel.E_GPa, "GPa");
  facts.add(same("εuk"), input.steel.ultimate_strain);
  facts.add(same("k = ft/fy"), input.steel.hardening_ratio);
  return facts.block();
}

OrderedJson reinforcement_facts(const ReinforcementInput& input, bool rectangle) {
  ReportFacts facts({"Regole dell'armatura", "Rules of the reinforcement"});
  facts.add({"Distanza degli assi delle barre dal bordo", "Axes of the bars from the face"},
            input.cover_mm, "mm");
  facts.add({"Diametro delle barre", "Diameter of the bars"}, input.bar_diameter_mm, "mm");
  if (rectangle) {
    facts.add({"Lato scavo, minimo", "Excavation side, least"},
              input.least_excavation_ratio_percent, "%");
    facts.add({"Lato scavo, massimo", "Excavation side, largest"},
              input.largest_excavation_ratio_percent, "%");
    facts.add({"Lato terra, minimo", "Retained side, least"}, input.least_retained_ratio_percent,
              "%");
    facts.add({"Lato terra, massimo", "Retained side, largest"},
              input.largest_retained_ratio_percent, "%");
    facts.add({"Rapporto lato terra / lato scavo", "Retained to excavation side"},
              input.retained_to_excavation_percent, "%");
    facts.add({"Barre negli angoli", "Corner bars"}, input.corner_bars);
  } else {
    facts.add({"Armatura minima", "Least reinforcement"}, input.least_ratio_percent, "%");
    facts.add({"Armatura massima", "Largest reinforcement"}, input.largest_ratio_percent, "%");
  }
  add_stirrups(input.stirrups, facts);
  return facts.block();
}

OrderedJson slope_facts(const SlopeInput& slope) {
  ReportFacts facts({"Ricerca dei cerchi di scorrimento", "Search of slip circles"});
  facts.add({"Formulazione", "Formulation"}, slope.formulation == 0 ? "Fellenius" : "Bishop");
  facts.add({"Larghezza delle strisce", "Width of the stripes"}, slope.stripe_width_m, "m");
  facts.add({"Passo dei raggi", "Step of the radii"}, slope.radius_step_m, "m");
  facts.add({"Centri", "Centres"}, slope.centres.size());
  return facts.block();
}

OrderedJson calculation_facts(const CalculationInput& calculation) {
  static const std::array<Both, 5> formulas{{{"a riposo", "at rest"},
                                             same("Rankine"),
                                             same("Coulomb"),
                                             same("Mononobe-Okabe"),
                                             same("Wood")}};
  ReportFacts facts({"Calcolo", "Calculation"});
  facts.add({"Spinta statica", "Static earth pressure"},
            entry(formulas, static_cast<std::size_t>(calculation.earth_pressure)));
  facts.add({"Spinta sismica", "Seismic earth pressure"},
            entry(formulas, static_cast<std::size_t>(calculation.seismic_earth_pressure)));
  facts.add({"Passo dei nodi", "Spacing of the nodes"}, calculation.node_spacing_mm, "mm");
  facts.add({"Spostamento al carico limite", "Displacement at the limit load"},
            calculation.spring_limit_mm, "mm");
  facts.add({"Molle lineari", "Linear springs"}, calculation.linear);
  facts.add({"Tolleranza", "Tolerance"}, calculation.tolerance_mm, "mm");
  facts.add({"Iterazioni al massimo", "Iterations at most"}, calculation.max_iterations);
  return facts.block();
}

}  // namespace

const Both& name_of(pCombinationTypes kind) {
  static const std::array<Both, 6> names{{{"Stato limite ultimo", "Ultimate limit state"},
                                          {"Sismica", "Seismic"},
                                          {"Rara", "Rare"},
                                          {"Frequente", "Frequent"},
                                          {"Quasi permanente", "Quasi-permanent"},
                                          {"Eccezionale", "Accidental"}}};
  return entry(names, static_cast<std::size_t>(kind));
}

const Both& name_of(pCheckTypes check) {
  static const std::array<Both, 10> names{{{"Moto rigido", "Rigid body motion"},
                                           {"Carico limite verticale", "Vertical bearing"},
                                           {"Sfilamento dei tiranti", "Pull-out of the anchors"},
                                           {"Stabilità globale", "Global stability"},
                                           {"Resistenza dei tiranti", "Strength of the anchors"},
                                           {"Resistenza della paratia", "Strength of the wall"},
                                           {"Trave di coronamento", "Cap beam"},
                                           {"Sifonamento", "Piping"},
                                           {"Sollevamento", "Uplift"},
                                           {"Spostamenti", "Displacements"}}};
  return entry(names, static_cast<std::size_t>(check));
}

OrderedJson input_blocks(const Project& project) {
  OrderedJson blocks = OrderedJson::array();
  const auto add = [&](OrderedJson block) {
    if (!block.is_null()) blocks.push_back(std::move(block));
  };
  add(wall_facts(project));
  add(calculation_facts(project.calculation));
  if (project.water) add(water_facts(*project.water));
  if (project.wall.reinforcement) {
    add(material_facts(*project.wall.reinforcement));
    add(reinforcement_facts(*project.wall.reinforcement, project.wall.is_diaphragm));
  }
  if (project.wall.bearing) add(bearing_facts(*project.wall.bearing));
  if (project.slope) add(slope_facts(*project.slope));
  add(soil_table(project));
  add(layer_table(project));
  if (!project.anchors.empty()) add(anchor_table(project));
  if (!project.fixed_supports.empty() || !project.elastic_supports.empty())
    add(support_table(project));
  if (!project.spring_intervals.empty()) add(spring_table(project));
  add(ground_load_table(project));
  add(wall_load_table(project));
  add(combination_table(project));
  for (const std::string& note : project.notes)
    add(note_block(same(note)));
  add(action_table(project));
  add(soil_factor_table(project));
  add(resistance_factor_table(project));
  add(check_table(project));
  return blocks;
}

}  // namespace ostrel::host
