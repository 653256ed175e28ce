// SPDX-License-Identifier: Apache-2.0
#include "wall_tables.h"

#include "text_table.h"
#include "units.h"
#include "verification.h"

#include <fmt/format.h>

#include <cstddef>
#include <vector>

namespace ostrel::host {

namespace {

using Side = TextTable::Side;

bool has_sections(const xStructuralDesign& design) {
  for (const xBendShearCombResults& combination : design.bendShear.combinations) {
    if (!combination.sections.empty()) return true;
  }
  return false;
}

std::string bars_text(const xReinforcementBar& bars) {
  return fmt::format("{} Ø{:g}", bars.getNumber(), bars.getDiameter());
}

std::string stirrups_text(const xBracket& bracket, const Texts& texts) {
  if (!(bracket.getDiameter() > 0.0 && bracket.getStep() > 0.0)) {
    return std::string(texts(Text::no_stirrups));
  }
  return fmt::format("Ø{:g}/{:g}", bracket.getDiameter(), bracket.getStep());
}

std::string sides_text(xReinfRectSection& section, const Texts& texts) {
  std::string bars;
  const auto add = [&](Text side, const xReinforcementBar& group) {
    if (group.getNumber() == 0) return;
    bars += (bars.empty() ? "" : ", ") + texts(side, bars_text(group));
  };
  add(Text::excavation_bars, section.AValleEff());
  add(Text::retained_bars, section.AMonteEff());
  add(Text::corner_bars, section.AVerticeEff());
  const xBracket& bracket = section.getBracket();
  return texts(Text::sides_line, bars,
               texts(Text::stirrups_with_legs, stirrups_text(bracket, texts), bracket.getNArms()));
}

// Sections that follow one another with the same reinforcement.
struct Stretch {
  double from_m = 0.0;
  double to_m = 0.0;
  std::string reinforcement;
};

std::vector<Stretch> stretches_of(const xReinforcement& reinforcement, const Texts& texts) {
  std::vector<Stretch> stretches;
  for (const auto& record : reinforcement.sections) {
    if (!record) continue;
    const double depth = m_of_mm(record->getAbscissa());
    const std::string text = reinforcement_text(*record, texts);
    if (stretches.empty() || stretches.back().reinforcement != text) {
      stretches.push_back({.from_m = depth, .reinforcement = text});
    }
    stretches.back().to_m = depth;
  }
  return stretches;
}

}  // namespace

const xSectionCheck* governing_section(const xBendShearCombResults& combination) {
  const xSectionCheck* worst = nullptr;
  for (const xSectionCheck& section : combination.sections) {
    if (worst == nullptr || is_worse(section.getSf(), worst->getSf())) worst = &section;
  }
  return worst;
}

std::string section_table(const xStructuralDesign& design, const Texts& texts) {
  if (!has_sections(design)) return "";
  TextTable table;
  table.add_column(std::string(texts(Text::heading_combination)), Side::left);
  for (const char* heading : {"z [m]", "N [kN]", "M [kNm]", "MRd [kNm]", "V [kN]", "VRd [kN]"}) {
    table.add_column(heading, Side::right);
  }
  table.add_column(std::string(texts(Text::heading_factor)), Side::right);
  for (const xBendShearCombResults& combination : design.bendShear.combinations) {
    const xSectionCheck* worst = governing_section(combination);
    if (worst == nullptr) continue;
    table.add_row(
        {combination.getCombName(), number_text(m_of_mm(worst->abscissa), 2),
         number_text(kn_of_n(worst->flex.Nd), 1), number_text(knm_of_nmm(worst->flex.Md), 1),
         number_text(knm_of_nmm(worst->flex.Mrd), 1), number_text(kn_of_n(worst->shear.getVd()), 1),
         number_text(kn_of_n(worst->shear.getVRd()), 1), factor_text(worst->getSf())});
  }
  return std::string(texts(Text::sections_title)) + "\n" + table.render()
       + std::string(texts(Text::sections_note)) + "\n";
}

std::string reinforcement_table(const xStructuralDesign& design, const Texts& texts) {
  if (!has_sections(design)) return "";
  const std::vector<Stretch> stretches = stretches_of(design.checkedReinforcement, texts);
  std::string text = std::string(texts(Text::reinforcement_title)) + "\n";
  for (const Stretch& stretch : stretches) {
    const std::string depths =
        number_text(stretch.from_m, 2) + "-" + number_text(stretch.to_m, 2) + " m";
    text += wrapped(fmt::format("  {:<14}{}", depths, stretch.reinforcement), terminal_width, 16)
          + "\n";
  }
  if (stretches.size() > 1) text += std::string(texts(Text::reinforcement_note)) + "\n";
  return text;
}

std::string cap_beam_table(const TraveResults& beam, const Texts& texts) {
  if (!beam.done || !beam.checked) return "";
  const std::string bars =
      wrapped("  " + reinforcement_text(*beam.checked, texts), terminal_width, 4);
  return texts(Text::cap_beam_title, beam.B, beam.H) + "\n" + bars + "\n";
}

std::string reinforcement_text(xReinfCrossSection& record, const Texts& texts) {
  if (auto* rectangle = dynamic_cast<xReinfRectSection*>(&record)) {
    return sides_text(*rectangle, texts);
  }
  return texts(Text::ring_line, bars_text(record.AVerticeEff()),
               stirrups_text(record.getBracket(), texts));
}

}  // namespace ostrel::host
