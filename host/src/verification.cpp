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

/// What came of one verification.
struct Found {
  Verification worst;
  std::vector<Verification> by_combination = {};  ///< in the order of the results
};

// Takes the place of the worst so far where `factor` is worse. `place` gives its words.
template <class Place>
void consider(Verification& worst, double factor, const xCheckCombID& id, const Place& place) {
  ++worst.places;
  if (!(factor >= 1.0)) ++worst.failing;
  if (worst.made && !is_worse(factor, worst.factor)) return;
  worst.made = true;
  worst.factor = factor;
  worst.combination = id.getCombName();
  worst.index = id.getCombIndex();
  worst.place = place();
}

template <class Place>
void consider(Found& found, double factor, const xCheckCombID& id, const Place& place) {
  consider(found.worst, factor, id, place);
  auto same = std::find_if(
      found.by_combination.begin(), found.by_combination.end(), [&](const Verification& one) {
        return one.index == id.getCombIndex() && one.combination == id.getCombName();
      });
  if (same == found.by_combination.end()) {
    same = found.by_combination.insert(same, Verification{.check = found.worst.check});
  }
  consider(*same, factor, id, place);
}

bool shear_governs(const xSectionCheck& section) {
  return is_worse(section.shear.getSf(), section.flex.getSf());
}

Found wall_of(const xStructuralDesign& design, const Texts& texts) {
  Found found{.worst = {.check = Check::wall}};
  for (const xBendShearCombResults& combination : design.bendShear.combinations) {
    for (const xSectionCheck& section : combination.sections) {
      consider(found, section.getSf(), combination, [&] {
        return texts(shear_governs(section) ? Text::place_shear : Text::place_bending,
                     number_text(m_of_mm(section.abscissa), 2));
      });
    }
  }
  return found;
}

Found slope_of(const xSlopeStabilityDesign& design) {
  Found found{.worst = {.check = Check::slope}};
  for (const xSlopeStability& result : design.getResults()) {
    consider(found, result.getSf(), result, [&] {
      return fmt::format("x {} y {} R {} m", number_text(m_of_mm(result.getXC()), 1),
                         number_text(m_of_mm(result.getYC()), 1),
                         number_text(m_of_mm(result.getRadius()), 1));
    });
  }
  return found;
}

// Of the tendons and of their bond alike.
template <class Design>
Found anchors_of(Check check, const Design& design) {
  Found found{.worst = {.check = check}};
  for (const auto& anchor : design.anchors) {
    for (const xAnchorResults& result : anchor.combinations) {
      consider(found, result.getSf(), result,
               [&] { return number_text(m_of_mm(result.depth), 2) + " m"; });
    }
  }
  return found;
}

Found bearing_of(const xGeotechnicalPileDesign& design) {
  Found found{.worst = {.check = Check::bearing}};
  for (const xBearCapacityPile& result : design.results) {
    consider(found, result.getSf(), result, [] { return std::string(); });
  }
  return found;
}

Found rigid_body_of(const xrigidBodyDesign& design, const Texts& texts) {
  Found found{.worst = {.check = Check::rigid_body}};
  for (const rigidBodyMotionCheck& result : design.results) {
    const auto part = [&](double factor, Text place) {
      consider(found, factor, result, [&] { return std::string(texts(place)); });
    };
    part(result.SFTrasl(), Text::by_sliding);
    part(result.SfRot(), Text::by_rotation);
  }
  return found;
}

Found cap_beam_of(const TraveResults& beam, const Texts& texts) {
  Found found{.worst = {.check = Check::cap_beam}};
  for (const xBendShearCombResults& combination : beam.bendShear.combinations) {
    for (const xSectionCheck& section : combination.sections) {
      consider(found, section.getSf(), combination, [&] {
        return std::string(texts(shear_governs(section) ? Text::in_shear : Text::in_bending));
      });
    }
  }
  return found;
}

// Of uplift and of piping alike.
template <class Result>
Found hydraulic_of(Check check, const std::vector<Result>& results) {
  Found found{.worst = {.check = check}};
  for (const Result& result : results) {
    consider(found, result.getSf(), result, [] { return std::string(); });
  }
  return found;
}

Found displacements_of(const xServiceabilityLimitStates& serviceability, const Texts& texts) {
  Found found{.worst = {.check = Check::displacements}};
  for (const xServiceLimitDispCombRes& result : serviceability.displacements.results) {
    const auto part = [&](double factor, Text place) {
      consider(found, factor, result, [&] { return std::string(texts(place)); });
    };
    part(result.getSfHead(), Text::at_head);
    part(result.getSfJts(), Text::at_excavation);
  }
  return found;
}

std::vector<Found> all_found(const xUltimateLimitStates& ultimate,
                             const xServiceabilityLimitStates& serviceability, const Texts& texts) {
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

}  // namespace

std::vector<Verification> verifications_of(const xUltimateLimitStates& ultimate,
                                           const xServiceabilityLimitStates& serviceability,
                                           const Texts& texts) {
  std::vector<Verification> list;
  for (const Found& found : all_found(ultimate, serviceability, texts)) {
    list.push_back(found.worst);
  }
  return list;
}

std::vector<Verification> verifications_by_combination(
    const xUltimateLimitStates& ultimate, const xServiceabilityLimitStates& serviceability,
    const Texts& texts) {
  std::vector<Verification> list;
  for (Found& found : all_found(ultimate, serviceability, texts)) {
    std::vector<Verification>& made = found.by_combination;
    std::stable_sort(made.begin(), made.end(), [](const Verification& a, const Verification& b) {
      return a.index < b.index;
    });
    list.insert(list.end(), made.begin(), made.end());
  }
  return list;
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
