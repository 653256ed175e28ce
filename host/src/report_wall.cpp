// SPDX-License-Identifier: Apache-2.0
#include "report_wall.h"

#include "report_block.h"

#include <fmt/format.h>

#include <array>
#include <cstddef>

namespace ostrel::host {

namespace {

constexpr int given = digits_as_given;

void add_stirrups(const StirrupsInput& stirrups, ReportFacts& facts) {
  facts.add({"Staffe, diametro", "Stirrups, diameter"}, stirrups.diameter_mm, "mm");
  facts.add({"Staffe, passo minimo", "Stirrups, least spacing"}, stirrups.least_spacing_mm, "mm");
  facts.add({"Staffe, passo massimo", "Stirrups, largest spacing"}, stirrups.largest_spacing_mm,
            "mm");
  facts.add({"Staffe, bracci", "Stirrups, legs"}, stirrups.legs);
}

}  // namespace

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

OrderedJson bond_table(const Project& project) {
  static const std::array<Both, 3> pressures{
      {{"a riposo", "at rest"}, {"attiva", "active"}, {"media delle due", "mean of both"}}};
  static const Both of_soil{"del terreno", "of the soil"};
  ReportTable table("bonds", {"Bulbi nel terreno", "Bonds in the ground"},
                    {{{"Tirante", "Anchor"}},
                     {{"Pressione sul bulbo", "Pressure on the bond"}},
                     {{"Adesione [kPa]", "Adhesion [kPa]"}},
                     {{"Angolo di attrito [°]", "Friction angle [°]"}},
                     {{"Valori minimi delle indagini", "Minimum values of the investigations"}}});
  const auto given_or_soil = [&](const std::optional<double>& value) {
    return value ? OrderedJson(decimals(fmt::format("{:g}", *value))) : OrderedJson(of_soil);
  };
  for (std::size_t i = 0; i < project.anchors.size(); ++i) {
    const AnchorInput& anchor = project.anchors[i];
    table.add({anchor.name.empty() ? fmt::format("{}", i + 1) : anchor.name,
               entry(pressures, anchor.pressure_coefficient),
               given_or_soil(anchor.bond_adhesion_kPa),
               given_or_soil(anchor.bond_friction_angle_deg), anchor.minimum_values});
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
    return value ? decimals(fmt::format("{:g} {}", *value, unit)) : same("–");
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

}  // namespace ostrel::host
