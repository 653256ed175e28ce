// SPDX-License-Identifier: Apache-2.0
#include "run_report.h"

#include "equilibrium.h"
#include "phrases.h"
#include "slope_table.h"
#include "text_table.h"
#include "verification_table.h"
#include "wall_tables.h"

#include <ostrel/vocabulary.h>

#include <cstddef>
#include <vector>

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
  Report(const RunData& data, const Texts& texts) : data_(data), texts_(texts) {}

  std::string text() {
    std::string report = head();
    for (const CombinationData& combination : data_.combinations) {
      report += "\n" + text_of(combination);
    }
    const xUltimateLimitStates& ultimate = data_.ultimate;
    for (const std::string& table :
         {section_table(ultimate.structuralDesign, texts_),
          reinforcement_table(ultimate.structuralDesign, texts_),
          cap_beam_table(ultimate.traveResults, texts_),
          circle_table(ultimate.slopeStabilityDesign, texts_), verification_table(data_, texts_)}) {
      if (!table.empty()) report += "\n" + table;
    }
    return report;
  }

private:
  std::string head() const {
    const std::string section =
        data_.is_diaphragm
            ? texts_(Text::diaphragm_line, data_.thickness_mm, depth(data_.spacing_m))
            : texts_(Text::pile_row_line, data_.diameter_mm, depth(data_.spacing_m));
    const Text unit = data_.is_diaphragm ? Text::forces_of_a_panel : Text::forces_of_a_pile;
    return fitted(data_.name, terminal_width) + "\n" + section + "\n"
         + texts_(Text::geometry_line, depth(data_.length_m), depth(data_.excavation_depth_m))
         + "\n" + texts_(unit, depth(data_.spacing_m)) + "\n"
         + std::string(texts_(Text::signs_line)) + "\n"
         + std::string(texts_(Text::moment_sign_line)) + "\n";
  }

  std::string text_of(const CombinationData& combination) const {
    const auto* kinds = xGetCombTypeMap();
    const auto kind = kinds->find(combination.kind);
    const std::string title =
        combination.name + (kind == kinds->end() ? std::string() : " - " + kind->second);
    return fitted(title, terminal_width) + "\n"
         + (combination.summary ? table(*combination.summary)
                                : std::string(texts_(Text::no_result)) + "\n");
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
    for (const AnchorState& anchor : summary.anchors) {
      table.add_row(
          {anchor_label(anchor.place), number(anchor.force_kN), "kN", depth(anchor.depth_m)});
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
    const auto rest = [&](const Phrase& label, double value, const char* unit) {
      table.add_row({std::string(label.in(texts_)), fmt::format("{:.1e}", value), unit});
    };
    rest(phrase::residual_horizontal, summary.residual.towards_retained_kN, "kN");
    rest(phrase::residual_vertical, summary.residual.downwards_kN, "kN");
    rest(phrase::residual_moment, summary.residual.moment_kNm, "kNm");
    rest(phrase::residual_relative, summary.residual.relative_to_loads, "");
    const std::string sentence = balance_sentence(summary.residual.relative_to_loads, texts_);
    return table.render()
         + (sentence.empty() ? "" : wrapped("! " + sentence, terminal_width, 2) + "\n");
  }

  std::string anchor_label(std::size_t place) const {
    return texts_(Text::anchor_row, name_of_anchor(data_, place));
  }

  const RunData& data_;
  const Texts& texts_;
};

}  // namespace

std::string run_report(const RunData& data, const Texts& texts) {
  return Report(data, texts).text();
}

}  // namespace ostrel::host
