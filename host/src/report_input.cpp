// SPDX-License-Identifier: Apache-2.0
#include "report_input.h"

#include "report_block.h"
#include "report_combinations.h"
#include "report_ground.h"
#include "report_wall.h"

#include <array>
#include <cstddef>
#include <string>
#include <utility>

namespace ostrel::host {

namespace {

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

// A note is in the language that the project was read in.
Both note_in_both(const std::string& note) {
  for (const Text text : {Text::seismic_line_ntc2008, Text::seismic_line_en1998,
                          Text::standard_expanded, Text::standard_unconfirmed}) {
    if (const auto both = retold(note, text)) return *both;
  }
  return same(note);
}

}  // namespace

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
  if (!project.anchors.empty()) {
    add(anchor_table(project));
    add(bond_table(project));
  }
  if (!project.fixed_supports.empty() || !project.elastic_supports.empty()) {
    add(support_table(project));
  }
  if (!project.spring_intervals.empty()) add(spring_table(project));
  add(ground_load_table(project));
  add(wall_load_table(project));
  add(combination_table(project));
  for (const std::string& note : project.notes) {
    add(note_block(note_in_both(note)));
  }
  add(action_table(project));
  add(soil_factor_table(project));
  add(resistance_factor_table(project));
  add(check_table(project));
  return blocks;
}

}  // namespace ostrel::host
