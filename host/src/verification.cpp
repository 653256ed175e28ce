// SPDX-License-Identifier: Apache-2.0
#include "verification.h"

#include "text_table.h"
#include "units.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace ostrel::host {

namespace {

constexpr std::array<Text, 10> names{Text::check_wall,          Text::check_cap_beam,
                                     Text::check_anchor_tendon, Text::check_anchor_pullout,
                                     Text::check_bearing,       Text::check_rigid_body,
                                     Text::check_slope,         Text::check_uplift,
                                     Text::check_piping,        Text::check_displacements};

// Takes the place of the worst so far where `factor` is worse. `place` gives its words.
template <class Place>
void consider(Verification& worst, double factor, const std::string& combination,
              const Place& place) {
  if (worst.made && !is_worse(factor, worst.factor)) return;
  worst.made = true;
  worst.factor = factor;
  worst.combination = combination;
  worst.place = place();
}

bool shear_governs(const xSectionCheck& section) {
  return is_worse(section.shear.getSf(), section.flex.getSf());
}

Verification wall_of(const xStructuralDesign& design, const Texts& texts) {
  Verification worst{.check = Check::wall};
  for (const xBendShearCombResults& combination : design.bendShear.combinations) {
    for (const xSectionCheck& section : combination.sections) {
      consider(worst, section.getSf(), combination.getCombName(), [&] {
        return texts(shear_governs(section) ? Text::place_shear : Text::place_bending,
                     number_text(m_of_mm(section.abscissa), 2));
      });
    }
  }
  return worst;
}

Verification displacements_of(const xServiceabilityLimitStates& serviceability,
                              const Texts& texts) {
  Verification worst{.check = Check::displacements};
  for (const xServiceLimitDispCombRes& result : serviceability.displacements.results) {
    const auto part = [&](double factor, Text place) {
      consider(worst, factor, result.getCombName(), [&] { return std::string(texts(place)); });
    };
    part(result.getSfHead(), Text::at_head);
    part(result.getSfJts(), Text::at_excavation);
  }
  return worst;
}

}  // namespace

std::vector<Verification> verifications_of(const xUltimateLimitStates& ultimate,
                                           const xServiceabilityLimitStates& serviceability,
                                           const Texts& texts) {
  return {wall_of(ultimate.structuralDesign, texts),   Verification{.check = Check::cap_beam},
          Verification{.check = Check::anchor_tendon}, Verification{.check = Check::anchor_pullout},
          Verification{.check = Check::bearing},       Verification{.check = Check::rigid_body},
          Verification{.check = Check::slope},         Verification{.check = Check::uplift},
          Verification{.check = Check::piping},        displacements_of(serviceability, texts)};
}

std::string_view name_of(Check check, const Texts& texts) {
  return texts(names.at(static_cast<std::size_t>(check)));
}

bool is_below(const Verification& verification, double limit) {
  return verification.made && !(verification.factor >= limit);
}

bool is_worse(double factor, double other) {
  return !std::isnan(other) && !(factor >= other);
}

std::string factor_text(double factor) {
  if (std::isnan(factor)) return "?";
  if (factor >= unlimited) return "∞";
  if (factor >= 1000.0) return ">999";
  double hundredths = std::round(factor * 100.0);
  if (hundredths / 100.0 > factor) hundredths -= 1.0;
  return fmt::format("{:.2f}", hundredths / 100.0);
}

}  // namespace ostrel::host
