// SPDX-License-Identifier: Apache-2.0
#include "report_results.h"

#include "equilibrium.h"
#include "report_block.h"
#include "report_combinations.h"
#include "run_data.h"
#include "summary.h"
#include "units.h"
#include "verification.h"
#include "wall_section_drawing.h"
#include "wall_tables.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <utility>

namespace ostrel::host {

namespace {

// Those of one combination but for the slip circles, which have a chapter of their own.
std::vector<std::string> ids_of(const std::vector<Figure>& figures, int combination) {
  std::vector<std::string> ids;
  for (const Figure& figure : figures) {
    const bool along =
        !figure.wide && !figure.id.ends_with("-bars") && !figure.id.ends_with("-stirrups");
    if (figure.combination == combination && along) ids.push_back(figure.id);
  }
  return ids;
}

std::vector<std::string> ids_ending(const std::vector<Figure>& figures,
                                    const std::vector<std::string>& ends) {
  std::vector<std::string> ids;
  for (const Figure& figure : figures) {
    for (const std::string& end : ends) {
      if (figure.id.ends_with(end)) ids.push_back(figure.id);
    }
  }
  return ids;
}

OrderedJson extreme_table(const Summary& summary) {
  ReportTable table(fmt::format("extremes-{:02}", summary.index),
                    {"Valori massimi", "Largest values"},
                    {{{"Grandezza", "Quantity"}},
                     {{"Valore", "Value"}, "", 1},
                     {{"Unità", "Unit"}},
                     {{"Profondità", "Depth"}, "m", 2}});
  const auto row = [&](const Both& name, const Extreme& extreme, const char* unit) {
    table.add({name, extreme.value, unit, extreme.depth_m});
  };
  row({"Momento flettente", "Bending moment"}, summary.moment_kNm, "kNm");
  row({"Taglio", "Shear"}, summary.shear_kN, "kN");
  row({"Sforzo normale (trazione positiva)", "Axial force (tension positive)"}, summary.axial_kN,
      "kN");
  row({"Spostamento (positivo verso lo scavo)", "Displacement (positive towards the excavation)"},
      summary.displacement_mm, "mm");
  row({"Molla più sfruttata", "Most used soil spring"},
      {.value = 100.0 * summary.spring_use.value, .depth_m = summary.spring_use.depth_m}, "%");
  table.add({Both{"Resistenza del terreno mobilitata", "Soil resistance mobilised"},
             100.0 * summary.mobilised, "%", OrderedJson()});
  return table.block();
}

// Down to two decimals, so that a factor below the limit never shows as the limit.
double shown(double factor) {
  return factor < unlimited ? std::floor(100.0 * factor) / 100.0 : factor;
}

// Resistance and factor, or two empty cells.
void add_check(const xAnchorResults* result, std::vector<OrderedJson>& cells) {
  if (result == nullptr) {
    cells.insert(cells.end(), 2, OrderedJson());
    return;
  }
  cells.emplace_back(kn_of_n(result->getRd()));
  cells.emplace_back(shown(result->getSf()));
}

OrderedJson anchor_force_table(const Project& project, const Outcome& outcome,
                               const Summary& summary) {
  ReportTable table(
      fmt::format("anchor-forces-{:02}", summary.index),
      {"Tiranti: forza in uno (trazione positiva, pretensione compresa), ciò che dà alla paratia, "
       "spostamento della paratia al tirante, resistenze",
       "Anchors: force in one (tension positive, prestress included), what it puts on the wall, "
       "displacement of the wall at the anchor, resistances"},
      {{{"Tirante", "Anchor"}},
       {{"Profondità", "Depth"}, "m", 2},
       {{"Forza", "Force"}, "kN", 1},
       {{"Orizzontale, verso terra", "Horizontal, towards the ground"}, "kN", 1},
       {{"Verticale, verso il basso", "Vertical, downwards"}, "kN", 1},
       {{"di cui pretensione", "of it prestress"}, "kN", 1},
       {{"Rigidezza su un palo o pannello", "Stiffness on one pile or panel"}, "kN/m", 0},
       {{"Spostamento verso lo scavo", "Displacement towards the excavation"}, "mm", 1},
       {{"Rd trefoli", "Rd of the tendon"}, "kN", 1},
       {{"F trefoli", "F of the tendon"}, "", 2},
       {{"Rd sfilamento", "Rd of the bond"}, "kN", 1},
       {{"F sfilamento", "F of the bond"}, "", 2}});
  for (const AnchorState& anchor : summary.anchors) {
    std::vector<OrderedJson> cells{name_of_anchor(project, anchor.place),
                                   anchor.depth_m,
                                   anchor.force_kN,
                                   anchor.horizontal_kN,
                                   anchor.vertical_kN,
                                   anchor.prestress_kN,
                                   anchor.stiffness_kN_m,
                                   anchor.head_displacement_mm};
    const xUltimateLimitStates& ultimate = outcome.ultimate;
    add_check(anchor_result(ultimate.structuralAnchorDesign.anchors, anchor.place, summary.index),
              cells);
    add_check(anchor_result(ultimate.geotechnicalAnchorDesign.anchors, anchor.place, summary.index),
              cells);
    table.add(std::move(cells));
  }
  return table.block();
}

// What is left over of the sum of all forces on the wall in each combination.
OrderedJson balance_table(const Job& job, const Outcome& outcome) {
  ReportTable table("balance",
                    {"Equilibrio globale: ciò che resta della somma delle forze sulla paratia",
                     "Global equilibrium: what is left of the sum of the forces on the wall"},
                    {{{"Combinazione", "Combination"}},
                     {{"Orizzontale, verso terra", "Horizontal, towards the ground"}, "kN"},
                     {{"Verticale, verso il basso", "Vertical, downwards"}, "kN"},
                     {{"Momento alla testa", "Moment about the head"}, "kNm"},
                     {{"rispetto ai carichi", "relative to the loads"}},
                     {{"Esito", "Outcome"}}});
  const auto powers = [](double value) { return fmt::format("{:.1e}", value); };
  for (const xCombResults& combination : outcome.results.combResults) {
    const Residual rest = summary_of(job, outcome, combination).residual;
    table.add({combination.getCombName(), powers(rest.towards_retained_kN),
               powers(rest.downwards_kN), powers(rest.moment_kNm), powers(rest.relative_to_loads),
               verdict_cell(rest.relative_to_loads <= small_residual)});
  }
  return table.block();
}

OrderedJson support_force_table(const Summary& summary) {
  const auto part = [](const std::optional<double>& value) {
    return value ? OrderedJson(*value) : OrderedJson();
  };
  ReportTable table(fmt::format("support-forces-{:02}", summary.index),
                    {"Appoggi, forze sulla paratia", "Supports, forces on the wall"},
                    {{{"Profondità", "Depth"}, "m", 2},
                     {{"Orizzontale, verso terra", "Horizontal, towards retained side"}, "kN", 1},
                     {{"Verticale, verso l'alto", "Vertical, upwards"}, "kN", 1},
                     {{"Momento", "Moment"}, "kNm", 1}});
  for (const SupportState& support : summary.supports) {
    table.add({support.depth_m, part(support.horizontal_kN), part(support.vertical_kN),
               part(support.moment_kNm)});
  }
  return table.block();
}

// What the reinforcement at one depth is called; equal texts are equal reinforcement.
struct Bars {
  std::string uphill;
  std::string valley;
  std::string stirrups;

  bool operator==(const Bars&) const = default;
};

Bars bars_of(const xReinfCrossSection& section) {
  Bars bars;
  section.getBarString("Ø", bars.uphill, bars.valley);
  const xBracket& bracket = section.getBracket();
  bars.stirrups = fmt::format("Ø{:g} / {:g} mm, {}", bracket.getDiameter(), bracket.getStep(),
                              bracket.getNArms());
  return bars;
}

OrderedJson stretch_table(const xReinforcement& reinforcement, bool rectangle) {
  std::vector<ReportColumn> columns{{{"Da", "From"}, "m", 2}, {{"a", "to"}, "m", 2}};
  if (rectangle) {
    columns.push_back({{"Lato terra", "Retained side"}});
    columns.push_back({{"Lato scavo", "Excavation side"}});
  } else {
    columns.push_back({{"Barre", "Bars"}});
  }
  columns.push_back({{"Area totale", "Total area"}, "cm²", 2});
  columns.push_back({{"Staffe, bracci", "Stirrups, legs"}});
  ReportTable table(
      "reinforcement",
      {"Armatura delle sezioni, dalla testa; tra due righe vale la maggiore",
       "Reinforcement of the sections, from the head; between two rows the stronger holds"},
      std::move(columns));
  const auto& sections = reinforcement.sections;
  for (std::size_t first = 0; first < sections.size();) {
    const Bars bars = bars_of(*sections[first]);
    std::size_t next = first + 1;
    while (next < sections.size() && bars_of(*sections[next]) == bars) {
      ++next;
    }
    const double end = m_of_mm(sections[next - 1]->getAbscissa());
    std::vector<OrderedJson> cells{m_of_mm(sections[first]->getAbscissa()), end, bars.uphill};
    if (rectangle) cells.emplace_back(bars.valley);
    cells.emplace_back(cm2_of_mm2(sections[first]->Atot()));
    cells.emplace_back(decimals(bars.stirrups));
    table.add(std::move(cells));
    first = next;
  }
  return table.block();
}

OrderedJson governing_sections(const xStructuralDesign& design) {
  ReportTable table(
      "governing-sections",
      {"Sezione determinante di ogni combinazione", "The governing section of each combination"},
      {{{"Combinazione", "Combination"}},
       {{"z", "z"}, "m", 2},
       {{"N (trazione positiva)", "N (tension positive)"}, "kN", 1},
       {{"M", "M"}, "kNm", 1},
       {{"MRd a questo N", "MRd at this N"}, "kNm", 1},
       {{"V", "V"}, "kN", 1},
       {{"VRd", "VRd"}, "kN", 1},
       {{"F", "F"}, "", 2},
       {{"Esito", "Outcome"}}});
  for (const xBendShearCombResults& combination : design.bendShear.combinations) {
    const xSectionCheck* section = governing_section(combination);
    if (section == nullptr) continue;
    table.add({combination.getCombName(), m_of_mm(section->abscissa), kn_of_n(section->flex.Nd),
               knm_of_nmm(section->flex.Md), knm_of_nmm(section->flex.Mrd),
               kn_of_n(section->shear.getVd()), kn_of_n(section->shear.getVRd()), section->getSf(),
               verdict_cell(section->getSf() >= 1.0)});
  }
  return table.block();
}

}  // namespace

OrderedJson overview_blocks(const Project& project, const Job& job, const Outcome& outcome,
                            const std::vector<Figure>& figures) {
  ReportTable table("overview",
                    {"Valori massimi di ogni combinazione", "Largest values of each combination"},
                    {{{"Combinazione", "Combination"}},
                     {{"Tipo", "Type"}},
                     {{"Momento", "Moment"}, "kNm", 1, true},
                     {{"Taglio", "Shear"}, "kN", 1, true},
                     {{"Sforzo normale", "Axial force"}, "kN", 1, true},
                     {{"Spostamento", "Displacement"}, "mm", 1, true},
                     {{"in testa", "at the head"}, "mm", 1, true},
                     {{"a fondo scavo", "at the excavation"}, "mm", 1, true},
                     {{"Molla più sfruttata", "Most used spring"}, "%", 1, true},
                     {{"Molle al limite", "Springs at their limit"}}});
  for (std::size_t i = 0; i < project.combinations.size(); ++i) {
    const CombinationInput& input = project.combinations[i];
    const xCombResults* result = result_of(outcome, i);
    if (result == nullptr) {
      table.add({input.name, name_of(input.kind), OrderedJson(), OrderedJson(), OrderedJson(),
                 OrderedJson(), OrderedJson(), OrderedJson(), OrderedJson(),
                 Both{"nessun risultato", "no result"}});
      continue;
    }
    const Summary summary = summary_of(job, outcome, *result);
    table.add({input.name, name_of(input.kind), summary.moment_kNm.value, summary.shear_kN.value,
               summary.axial_kN.value, summary.displacement_mm.value, summary.head_displacement_mm,
               summary.excavation_displacement_mm, 100.0 * summary.spring_use.value,
               fmt::format("{} / {}", summary.yielding, summary.springs.size())});
  }
  OrderedJson blocks = OrderedJson::array();
  blocks.push_back(table.block());
  if (!outcome.results.combResults.empty()) blocks.push_back(balance_table(job, outcome));
  const std::vector<std::string> ids = ids_of(figures, 0);
  if (!ids.empty()) blocks.push_back(figures_block(ids));
  return blocks;
}

OrderedJson combination_blocks(const Project& project, const Job& job, const Outcome& outcome,
                               const std::vector<Figure>& figures) {
  OrderedJson blocks = OrderedJson::array();
  for (std::size_t i = 0; i < project.combinations.size(); ++i) {
    const CombinationInput& input = project.combinations[i];
    const Both& kind = name_of(input.kind);
    const std::string title = fmt::format("{}. {}", i + 1, input.name);
    blocks.push_back(heading_block(fmt::format("combination-{:02}", i + 1),
                                   {title + " · " + kind.italian, title + " · " + kind.english}));
    const xCombResults* result = result_of(outcome, i);
    if (result == nullptr) {
      blocks.push_back(
          note_block({"Nessun risultato: vedere i messaggi.", "No result: see the messages."}));
      continue;
    }
    const Summary summary = summary_of(job, outcome, *result);
    blocks.push_back(extreme_table(summary));
    if (!summary.anchors.empty()) blocks.push_back(anchor_force_table(project, outcome, summary));
    if (!summary.supports.empty()) blocks.push_back(support_force_table(summary));
    blocks.push_back(figures_block(ids_of(figures, summary.index)));
  }
  return blocks;
}

OrderedJson reinforcement_blocks(const Project& project, const Outcome& outcome,
                                 const std::vector<Figure>& figures) {
  OrderedJson blocks = OrderedJson::array();
  const xReinforcement& reinforcement = outcome.ultimate.structuralDesign.checkedReinforcement;
  if (reinforcement.sections.empty() || !project.wall.reinforcement) return blocks;
  const auto heaviest =
      std::max_element(reinforcement.sections.begin(), reinforcement.sections.end(),
                       [](const auto& a, const auto& b) { return a->Atot() < b->Atot(); });
  const double depth = m_of_mm((*heaviest)->getAbscissa());
  blocks.push_back(drawing_block(
      "wall-section",
      Both{"Sezione più armata, a ", "The section with most reinforcement, "}
          + decimals(fmt::format("{:.2f} m", depth)) + Both{" dalla testa.", " below the head."},
      wall_section_drawing(project.wall, *project.wall.reinforcement, **heaviest)));
  blocks.push_back(governing_sections(outcome.ultimate.structuralDesign));
  blocks.push_back(stretch_table(reinforcement, project.wall.is_diaphragm));
  blocks.push_back(figures_block(ids_ending(figures, {"-bars", "-stirrups"})));
  return blocks;
}

OrderedJson stability_blocks(const Outcome& outcome, const std::vector<Figure>& figures) {
  OrderedJson blocks = OrderedJson::array();
  ReportTable table("slip-circles", {"Cerchi critici", "Governing circles"},
                    {{{"Combinazione", "Combination"}},
                     {{"F", "F"}, "", 3},
                     {{"x centro", "x of centre"}, "m", 2},
                     {{"y centro", "y of centre"}, "m", 2},
                     {{"Raggio", "Radius"}, "m", 2},
                     {{"M stabilizzante", "Stabilising M"}, "kNm", 0},
                     {{"M instabilizzante", "Destabilising M"}, "kNm", 0},
                     {{"Esito", "Outcome"}}});
  for (const xSlopeStability& result : slope_results(outcome)) {
    table.add({result.getCombName(), result.getSf(), m_of_mm(result.getXC()),
               m_of_mm(result.getYC()), m_of_mm(result.getRadius()), knm_of_nmm(result.getMstab()),
               knm_of_nmm(result.getMdestab()), verdict_cell(result.getSf() >= 1.0)});
  }
  if (table.empty()) return blocks;
  blocks.push_back(table.block());
  blocks.push_back(figures_block(ids_ending(figures, {"-slip-circles"})));
  return blocks;
}

}  // namespace ostrel::host
