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

Verification slope_of(const xSlopeStabilityDesign& design) {
  Verification worst{.check = Check::slope};
  for (const xSlopeStability& result : design.getResults()) {
    consider(worst, result.getSf(), result.getCombName(), [&] {
      return fmt::format("({}, {}) R {}", number_text(m_of_mm(result.getXC()), 1),
                         number_text(m_of_mm(result.getYC()), 1),
                         number_text(m_of_mm(result.getRadius()), 1));
    });
  }
  return worst;
}

// Of the tendons and of their bond alike.
template <class Design>
Verification anchors_of(Check check, const Design& design) {
  Verification worst{.check = check};
  for (const auto& anchor : design.anchors) {
    for (const xAnchorResults& result : anchor.combinations) {
      consider(worst, result.getSf(), result.getCombName(),
               [&] { return number_text(m_of_mm(result.depth), 2) + " m"; });
    }
  }
  return worst;
}

Verification bearing_of(const xGeotechnicalPileDesign& design) {
  Verification worst{.check = Check::bearing};
  for (const xBearCapacityPile& result : design.results)
    consider(worst, result.getSf(), result.getCombName(), [] { return std::string(); });
  return worst;
}

Verification rigid_body_of(const xrigidBodyDesign& design, const Texts& texts) {
  Verification worst{.check = Check::rigid_body};
  for (const rigidBodyMotionCheck& result : design.results) {
    const auto part = [&](double factor, Text place) {
      consider(worst, factor, result.getCombName(), [&] { return std::string(texts(place)); });
    };
    part(result.SFTrasl(), Text::by_sliding);
    part(result.SfRot(), Text::by_rotation);
  }
  return worst;
}

Verification cap_beam_of(const TraveResults& beam, const Texts& texts) {
  Verification worst{.check = Check::cap_beam};
  for (const xBendShearCombResults& combination : beam.bendShear.combinations) {
    for (const xSectionCheck& section : combination.sections) {
      consider(worst, section.getSf(), combination.getCombName(), [&] {
        return std::string(texts(shear_governs(section) ? Text::in_shear : Text::in_bending));
      });
    }
  }
  return worst;
}

// Of uplift and of piping alike.
template <class Result>
Verification hydraulic_of(Check check, const std::vector<Result>& results) {
  Verification worst{.check = check};
  for (const Result& result : results)
    consider(worst, result.getSf(), result.getCombName(), [] { return std::string(); });
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
  return {wall_of(ultimate.structuralDesign, texts),
          cap_beam_of(ultimate.traveResults, texts),
          anchors_of(Check::anchor_tendon, ultimate.structuralAnchorDesign),
          anchors_of(Check::anchor_pullout, ultimate.geotechnicalAnchorDesign),
          bearing_of(ultimate.geotechnicalPileDesign),
          rigid_body_of(ultimate.rigidBodyDesign, texts),
          slope_of(ultimate.slopeStabilityDesign),
          hydraulic_of(Check::uplift, ultimate.hydraulicChecks.uplift),
          hydraulic_of(Check::piping, ultimate.hydraulicChecks.piping),
          displacements_of(serviceability, texts)};
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
