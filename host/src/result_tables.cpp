// SPDX-License-Identifier: Apache-2.0
#include "result_tables.h"

#include "csv.h"
#include "equilibrium.h"
#include "phrases.h"
#include "run_data.h"
#include "summary.h"
#include "units.h"
#include "verification.h"

#include <fmt/format.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

namespace ostrel::host {

namespace {

using Row = std::vector<TableCell>;

constexpr double same_level_mm = 1e-6;

// Names of the verifications for programs, in the order of the enumeration.
constexpr std::array<std::string_view, 10> check_codes{
    "wall",       "cap_beam", "anchor_tendon", "anchor_pullout", "bearing",
    "rigid_body", "slope",    "uplift",        "piping",         "displacements"};

TableCell number(double value) {
  if (!std::isfinite(value)) return std::monostate{};
  return value;
}

TableCell factor(double value) {
  return value >= unlimited ? TableCell() : number(value);
}

TableCell text(std::string_view words) {
  return std::string(words);
}

TableCell coded(std::string_view code, std::string_view words) {
  return CodedText{std::string(code), std::string(words)};
}

// Two rows for each element, at its two ends: the forces jump where something acts on a node.
ResultTable wall_table(const xCombResults& combination) {
  const xFemResults& results = combination.femResults;
  ResultTable table{.subject = "wall",
                    .columns = {"depth_m", "displacement_mm", "settlement_mm", "rotation_mrad",
                                "moment_kNm", "shear_kN", "axial_kN"}};
  for (std::size_t i = 0; i < results.moment.points.size(); ++i) {
    const std::size_t node = (i + 1) / 2;
    if (node >= results.dispTrans.points.size()) break;
    table.rows.push_back({number(m_of_mm(results.moment.points[i].s)),
                          number(-results.dispTrans.points[node].value),
                          number(results.dispAxial.points[node].value),
                          number(mrad_of_rad(results.rotation.points[node].value)),
                          number(knm_of_nmm(results.moment.points[i].value)),
                          number(kn_of_n(results.shear.points[i].value)),
                          number(kn_of_n(results.axial.points[i].value))});
  }
  return table;
}

// The soil that a spring takes its values from: at the border of two layers the lower one, but for
// the border at the lowest spring, below which no layer counts.
std::string soil_of_spring(double depth_m, double lowest_m, const std::vector<xSoilLayer>& layers) {
  std::string name;
  for (const xSoilLayer& layer : layers) {
    if (!(layer.getDepth() <= mm_of_m(depth_m) + same_level_mm)) break;
    if (!name.empty() && layer.getDepth() >= mm_of_m(lowest_m) - same_level_mm) break;
    name = layer.soil.getName();
  }
  return name;
}

ResultTable spring_table(const Summary& summary, const Outcome& outcome) {
  ResultTable table{
      .subject = "springs",
      .columns = {"depth_m", "modulus_kN_m3", "limit_mm", "limit_kPa", "displacement_mm",
                  "pressure_kPa", "use", "yields", "node", "soil"}};
  int node = outcome.model.fem.getJtsoil();  // of the first spring; the others follow downwards
  for (const SpringState& spring : summary.springs) {
    table.rows.push_back({number(spring.depth_m), number(spring.modulus_kN_m3),
                          number(spring.limit_mm), number(spring.limit_kPa),
                          number(spring.displacement_mm), number(spring.pressure_kPa),
                          number(spring.use), spring.yields, number(node),
                          text(soil_of_spring(spring.depth_m, summary.springs.back().depth_m,
                                              outcome.model.layers))});
    ++node;
  }
  return table;
}

void add_pressures(const TableCell& action, const std::vector<xLayerPress>& diagrams,
                   ResultTable& table) {
  for (const xLayerPress& diagram : diagrams) {
    for (const diag_Point& point : diagram.points) {
      table.rows.push_back(
          {action, number(m_of_mm(-diagram.start.y + point.s)), number(kn_m_of_n_mm(point.value))});
    }
  }
}

ResultTable pressure_table(const xCombResults& combination, const Texts& texts) {
  ResultTable table{.subject = "pressures", .columns = {"action", "depth_m", "pressure_kN_m"}};
  add_pressures(coded("earth", phrase::earth_pressure.in(texts)), combination.earthPress.diagrams,
                table);
  add_pressures(coded("water", phrase::water_pressure.in(texts)), combination.hydroPress.diagrams,
                table);
  for (const xLoadCondPress& condition : combination.loadCondPress) {
    for (const xLoadPress& load : condition.loads) {
      add_pressures(text(condition.name), load.diagrams, table);
    }
  }
  return table;
}

void add_summary(const Project& project, const Summary& summary, const Texts& texts,
                 ResultTable& table) {
  const auto row = [&](const std::string& code, std::string_view words, const char* unit,
                       const Extreme& extreme) {
    table.rows.push_back({text(summary.name), coded(code, fmt::format("{} [{}]", words, unit)),
                          number(extreme.value), number(extreme.depth_m)});
  };
  row("moment_kNm", texts(Text::moment_row), "kNm", summary.moment_kNm);
  row("shear_kN", texts(Text::shear_row), "kN", summary.shear_kN);
  row("axial_kN", texts(Text::axial_row), "kN", summary.axial_kN);
  row("displacement_mm", texts(Text::displacement_row), "mm", summary.displacement_mm);
  row("spring_use", texts(Text::spring_row), "-", summary.spring_use);
  for (std::size_t i = 0; i < summary.anchors.size(); ++i) {
    const AnchorState& anchor = summary.anchors[i];
    row(fmt::format("anchor_{}_kN", i + 1),
        texts(Text::anchor_row, name_of_anchor(project, anchor.place)), "kN",
        {.value = anchor.force_kN, .depth_m = anchor.depth_m});
  }
  for (const SupportState& support : summary.supports) {
    const auto part = [&](const char* code, Text words, const char* unit,
                          const std::optional<double>& value) {
      if (value) row(code, texts(words), unit, {.value = *value, .depth_m = support.depth_m});
    };
    part("support_horizontal_kN", Text::support_horizontal_row, "kN", support.horizontal_kN);
    part("support_vertical_kN", Text::support_vertical_row, "kN", support.vertical_kN);
    part("support_moment_kNm", Text::support_moment_row, "kNm", support.moment_kNm);
  }
}

ResultTable verification_rows(const Outcome& outcome, const Texts& texts) {
  ResultTable table{
      .subject = "verifications",
      .columns = {"verification", "made", "factor", "satisfied", "combination", "place"}};
  for (const Verification& each :
       verifications_of(outcome.ultimate, outcome.serviceability, texts)) {
    Row row{coded(check_codes.at(static_cast<std::size_t>(each.check)), name_of(each.check, texts)),
            each.made};
    if (each.made) {
      row.insert(row.end(), {factor(each.factor), each.factor >= 1.0, text(each.combination),
                             text(each.place)});
    }
    table.rows.push_back(std::move(row));
  }
  return table;
}

ResultTable section_rows(const Outcome& outcome) {
  ResultTable table{
      .subject = "sections",
      .columns = {"combination", "depth_m", "axial_kN", "moment_kNm", "resisting_moment_kNm",
                  "shear_kN", "resisting_shear_kN", "factor"}};
  for (const auto& combination : outcome.ultimate.structuralDesign.bendShear.combinations) {
    for (const xSectionCheck& section : combination.sections) {
      table.rows.push_back({text(combination.getCombName()), number(m_of_mm(section.abscissa)),
                            number(kn_of_n(section.flex.Nd)), number(knm_of_nmm(section.flex.Md)),
                            number(knm_of_nmm(section.flex.Mrd)),
                            number(kn_of_n(section.shear.getVd())),
                            number(kn_of_n(section.shear.getVRd())), factor(section.getSf())});
    }
  }
  return table;
}

// A group without bars has no diameter.
void add_bars(const xReinforcementBar& bars, Row& row) {
  row.push_back(number(static_cast<double>(bars.getNumber())));
  row.push_back(bars.getNumber() > 0 ? number(bars.getDiameter()) : TableCell());
}

Row reinforcement_row(xReinfCrossSection& record) {
  Row row{number(m_of_mm(record.getAbscissa()))};
  if (dynamic_cast<xReinfRectSection*>(&record) != nullptr) {
    row.insert(row.end(), 2, TableCell());
    add_bars(record.AVerticeEff(), row);
    add_bars(record.AValleEff(), row);
    add_bars(record.AMonteEff(), row);
  } else {
    add_bars(record.AVerticeEff(), row);
    row.insert(row.end(), 6, TableCell());
  }
  const xBracket& bracket = record.getBracket();
  row.insert(row.end(), {number(bracket.getDiameter()), number(bracket.getNArms()),
                         number(bracket.getStep())});
  return row;
}

// Where no section was verified the design holds nothing but the least reinforcement.
ResultTable reinforcement_rows(const Outcome& outcome, bool designed) {
  ResultTable table{.subject = "reinforcement",
                    .columns = {"depth_m", "ring_bars", "ring_diameter_mm", "corner_bars",
                                "corner_diameter_mm", "excavation_bars", "excavation_diameter_mm",
                                "retained_bars", "retained_diameter_mm", "stirrup_diameter_mm",
                                "stirrup_legs", "stirrup_spacing_mm"}};
  if (!designed) return table;
  for (const auto& record : outcome.ultimate.structuralDesign.checkedReinforcement.sections) {
    if (record) table.rows.push_back(reinforcement_row(*record));
  }
  return table;
}

void add_anchor_check(const xAnchorResults* result, Row& row) {
  if (result == nullptr) {
    row.insert(row.end(), 3, TableCell());
    return;
  }
  row.insert(row.end(), {number(kn_of_n(result->getFd())), number(kn_of_n(result->getRd())),
                         factor(result->getSf())});
}

void add_anchors(const Project& project, const Outcome& outcome, const Summary& summary,
                 ResultTable& table) {
  const xUltimateLimitStates& ultimate = outcome.ultimate;
  for (const AnchorState& anchor : summary.anchors) {
    const std::size_t place = anchor.place;
    const std::string name = place < project.anchors.size() ? project.anchors[place].name : "";
    Row row{text(summary.name), number(static_cast<double>(place + 1)), text(name)};
    for (const double value :
         {anchor.depth_m, anchor.force_kN, anchor.horizontal_kN, anchor.vertical_kN,
          anchor.prestress_kN, anchor.stiffness_kN_m, anchor.share, anchor.head_displacement_mm,
          anchor.head_settlement_mm}) {
      row.push_back(number(value));
    }
    add_anchor_check(anchor_result(ultimate.structuralAnchorDesign.anchors, place, summary.index),
                     row);
    add_anchor_check(anchor_result(ultimate.geotechnicalAnchorDesign.anchors, place, summary.index),
                     row);
    table.rows.push_back(std::move(row));
  }
}

void add_balance(const Summary& summary, const Balance& balance, const Texts& texts,
                 ResultTable& table) {
  const ForceSum residual = balance.residual();
  const auto row = [&](std::string_view code, const Phrase& words, const ForceSum& sum) {
    table.rows.push_back({text(summary.name), coded(code, words.in(texts)),
                          number(kn_of_n(sum.across)), number(kn_of_n(sum.along)),
                          number(knm_of_nmm(sum.moment))});
  };
  row("loads", phrase::part_loads, balance.loads);
  row("soil", phrase::part_soil, balance.soil);
  row("anchors", phrase::part_anchors, balance.anchors);
  row("elastic_supports", phrase::part_elastic_supports, balance.elastic_supports);
  row("fixed_supports", phrase::part_fixed_supports, balance.fixed_supports);
  row("residual", phrase::part_residual, residual);
  table.rows.back().push_back(number(summary.residual.relative_to_loads));
}

std::string csv_cell(const TableCell& cell) {
  if (const auto* words = std::get_if<std::string>(&cell)) return *words;
  if (const auto* one = std::get_if<CodedText>(&cell)) return one->code;
  if (const auto* value = std::get_if<double>(&cell)) return csv_number(*value);
  if (const auto* yes = std::get_if<bool>(&cell)) return *yes ? "1" : "0";
  return {};
}

}  // namespace

std::vector<ResultTable> result_tables(const Project& project, const Job& job,
                                       const Outcome& outcome, const Texts& texts) {
  ResultTable summaries{.subject = "summary",
                        .columns = {"combination", "quantity", "value", "depth_m"}};
  ResultTable anchors{
      .subject = "anchors",
      .columns = {"combination", "anchor", "name", "depth_m", "force_kN", "horizontal_kN",
                  "vertical_kN", "prestress_kN", "stiffness_kN_m", "share", "head_displacement_mm",
                  "head_settlement_mm", "tendon_force_kN", "tendon_resistance_kN", "tendon_factor",
                  "pullout_force_kN", "pullout_resistance_kN", "pullout_factor"}};
  ResultTable equilibrium{.subject = "equilibrium",
                          .columns = {"combination", "part", "towards_retained_kN", "downwards_kN",
                                      "moment_about_head_kNm", "relative_to_loads"}};
  std::vector<ResultTable> of_each;
  for (const xCombResults& combination : outcome.results.combResults) {
    const Summary summary = summary_of(job, outcome, combination);
    add_summary(project, summary, texts, summaries);
    add_anchors(project, outcome, summary, anchors);
    add_balance(summary, balance_of(job, outcome, combination), texts, equilibrium);
    for (ResultTable& table : std::array{wall_table(combination), spring_table(summary, outcome),
                                         pressure_table(combination, texts)}) {
      table.combination = summary.index;
      table.combination_name = summary.name;
      of_each.push_back(std::move(table));
    }
  }
  ResultTable sections = section_rows(outcome);
  ResultTable reinforcement = reinforcement_rows(outcome, !sections.rows.empty());
  std::vector<ResultTable> tables{std::move(summaries), verification_rows(outcome, texts),
                                  std::move(sections),  std::move(reinforcement),
                                  std::move(anchors),   std::move(equilibrium)};
  for (ResultTable& table : of_each) {
    tables.push_back(std::move(table));
  }
  for (ResultTable& table : tables) {
    for (Row& row : table.rows) {
      row.resize(table.columns.size());
    }
  }
  return tables;
}

std::string csv_of(const ResultTable& table) {
  CsvTable csv(std::vector<std::string>(table.columns.begin(), table.columns.end()));
  for (const Row& row : table.rows) {
    std::vector<std::string> cells;
    for (const TableCell& cell : row) {
      cells.push_back(csv_cell(cell));
    }
    csv.add(cells);
  }
  return csv.text();
}

}  // namespace ostrel::host
