// SPDX-License-Identifier: Apache-2.0
#include "report_combinations.h"

#include "report_block.h"

#include <array>
#include <cstddef>
#include <utility>
#include <vector>

namespace ostrel::host {

namespace {

constexpr int given = digits_as_given;

std::vector<ReportColumn> by_combination(const Project& project, const Both& first, int digits) {
  std::vector<ReportColumn> columns{{first}};
  for (const CombinationInput& combination : project.combinations) {
    columns.push_back({same(combination.name), "", digits});
  }
  return columns;
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
        cells.push_back(pair_cell(action->favourable, action->unfavourable));
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
      cells.push_back(pair_cell(pressing, resisting));
    }
    table.add(std::move(cells));
  }
  return table.block();
}

OrderedJson resistance_factor_table(const Project& project) {
  static const std::array<Both, 8> names{
      {{"Terreno a valle (nessuna molla lo legge)", "Soil in front (no spring reads it)"},
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
      for (const pCheckTypes entry : combination.checks) {
        asked = asked || entry == check;
      }
      any = any || asked;
      cells.emplace_back(asked ? "●" : "–");
    }
    if (any) table.add(std::move(cells));
  }
  return table.empty() ? OrderedJson() : table.block();
}

}  // namespace ostrel::host
