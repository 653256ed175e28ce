#pragma once
/// @file  The worst result of each verification, and where it stands. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "texts.h"

#include <ostrel/serviceability.h>
#include <ostrel/ultimate_limit_states.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::host {

enum class Check : std::int32_t {
  wall,
  cap_beam,
  anchor_tendon,
  anchor_pullout,
  bearing,
  rigid_body,
  slope,
  uplift,
  piping,
  displacements
};

/// A factor from which on there is nothing to verify.
inline constexpr double unlimited = 1e10;

/// The worst of the results of one verification. A factor that is not a number is worse than any.
struct Verification {
  Check check = Check::wall;
  bool made = false;          ///< there is at least one result
  double factor = unlimited;  ///< safety factor [-]
  std::string combination{};
  std::string place{};  ///< in words; empty where the verification has but one place
  int index = 0;        ///< number of the combination
  int places = 0;       ///< results that it is the worst of
  int failing = 0;      ///< of these, how many are below 1 or no number
};

/// One entry for each verification, in the order of the enumeration, made or not.
std::vector<Verification> verifications_of(const xUltimateLimitStates& ultimate,
                                           const xServiceabilityLimitStates& serviceability,
                                           const Texts& texts);

/// The result of an anchor, by its place in the project, in a combination, by its number, of the
/// verification of the tendons or of their bond; null for one that was not verified.
template <class Anchor>
const xAnchorResults* anchor_result(const std::vector<Anchor>& anchors, std::size_t place,
                                    int combination) {
  if (place >= anchors.size()) return nullptr;
  for (const xAnchorResults& result : anchors[place].combinations) {
    if (result.getCombIndex() == combination) return &result;
  }
  return nullptr;
}

/// Likewise one entry for each combination that a verification was made in, the verifications in the
/// order of the enumeration and their combinations by number.
std::vector<Verification> verifications_by_combination(
    const xUltimateLimitStates& ultimate, const xServiceabilityLimitStates& serviceability,
    const Texts& texts);

std::string_view name_of(Check check, const Texts& texts);

/// Whether a verification that was made misses the limit; one without a number does.
bool is_below(const Verification& verification, double limit);

/// Whether `factor` is worse than `other`.
bool is_worse(double factor, double other);

/// Two decimals, rounded down so that a factor below a limit never shows as the limit; "∞" where
/// there is nothing to verify, ">999" for large ones, "?" for what is not a number.
std::string factor_text(double factor);

}  // namespace ostrel::host
