// SPDX-License-Identifier: Apache-2.0
#include "run_report.h"

#include "summary.h"
#include "text_table.h"

#include <ostrel/vocabulary.h>

#include <cstddef>
#include <utility>

namespace ostrel::host {

namespace {

using Side = TextTable::Side;

// A number with so many digits that what is left out does not matter to anybody on a site.
std::string number(double value) {
  return fmt::format("{:.1f}", value);
}

std::string depth(double metres) {
  return fmt::format("{:.2f}", metres);
}

class Report {
public:
  Report(const Project& project, const Job& job, const Outcome& outcome, const Texts& texts)
      : project_(project), job_(job), outcome_(outcome), texts_(texts) {}

  std::string text() {
    std::string report = head();
    for (std::size_t i = 0; i < project_.combinations.size(); ++i) {
      report += "\n" + combination(i);
    }
    return report;
  }

private:
  std::string head() const {
    const WallInput& wall = project_.wall;
    const std::string section =
        wall.is_diaphragm ? texts_(Text::diaphragm_line, wall.thickness_mm, depth(wall.spacing_m))
                          : texts_(Text::pile_row_line, wall.diameter_mm, depth(wall.spacing_m));
    const Text unit = wall.is_diaphragm ? Text::forces_of_a_panel : Text::forces_of_a_pile;
    return fitted(project_.name, terminal_width) + "\n" + section + "\n"
         + texts_(Text::geometry_line, depth(wall.length_m), depth(project_.excavation_depth_m))
         + "\n" + texts_(unit, depth(wall.spacing_m)) + "\n" + std::string(texts_(Text::signs_line))
         + "\n" + std::string(texts_(Text::moment_sign_line)) + "\n";
  }

  const xCombResults* result_of(std::size_t place) const {
    for (const xCombResults& result : outcome_.results.combResults) {
      if (result.getcombIndex() == static_cast<int>(place) + 1) return &result;
    }
    return nullptr;
  }

  std::string combination(std::size_t place) const {
    const CombinationInput& input = project_.combinations[place];
    const auto* kinds = xGetCombTypeMap();
    const auto kind = kinds->find(input.kind);
    const std::string title =
        input.name + (kind == kinds->end() ? std::string() : " - " + kind->second);
    const xCombResults* result = result_of(place);
    const std::string body = result == nullptr ? std::string(texts_(Text::no_result)) + "\n"
                                               : table(summary_of(job_, outcome_, *result));
    return fitted(title, terminal_width) + "\n" + body;
  }

  std::string table(const Summary& summary) const {
    TextTable table;
    table.add_column("", Side::left);
    table.add_column(std::string(texts_(Text::heading_value)), Side::right);
    table.add_column(std::string(texts_(Text::heading_unit)), Side::left);
    table.add_column(std::string(texts_(Text::heading_depth)), Side::right);
    const auto row = [&](Text label, const Extreme& extreme, const char* unit) {
      table.add_row(
          {std::string(texts_(label)), number(extreme.value), unit, depth(extreme.depth_m)});
    };
    row(Text::moment_row, summary.moment_kNm, "kNm");
    row(Text::shear_row, summary.shear_kN, "kN");
    row(Text::axial_row, summary.axial_kN, "kN");
    row(Text::displacement_row, summary.displacement_mm, "mm");
    row(Text::spring_row,
        {.value = 100.0 * summary.spring_use.value, .depth_m = summary.spring_use.depth_m}, "%");
    table.add_row(
        {texts_(Text::yielding_row, summary.springs.size()), fmt::format("{}", summary.yielding)});
    table.add_row(
        {std::string(texts_(Text::mobilised_row)), number(100.0 * summary.mobilised), "%"});
    for (std::size_t i = 0; i < summary.anchors.size(); ++i) {
      const AnchorState& anchor = summary.anchors[i];
      table.add_row({anchor_label(i), number(anchor.force_kN), "kN", depth(anchor.depth_m)});
    }
    for (const SupportState& support : summary.supports) {
      const auto part = [&](Text label, const std::optional<double>& value, const char* unit) {
        if (!value) return;
        table.add_row({std::string(texts_(label)), number(*value), unit, depth(support.depth_m)});
      };
      part(Text::support_horizontal_row, support.horizontal_kN, "kN");
      part(Text::support_vertical_row, support.vertical_kN, "kN");
      part(Text::support_moment_row, support.moment_kNm, "kNm");
    }
    return table.render();
  }

  std::string anchor_label(std::size_t place) const {
    const bool named = place < project_.anchors.size() && !project_.anchors[place].name.empty();
    return texts_(Text::anchor_row,
                  named ? project_.anchors[place].name : fmt::format("{}", place + 1));
  }

  const Project& project_;
  const Job& job_;
  const Outcome& outcome_;
  const Texts& texts_;
};

}  // namespace

std::string run_report(const Project& project, const Job& job, const Outcome& outcome,
                       const Texts& texts) {
  return Report(project, job, outcome, texts).text();
}

}  // namespace ostrel::host
