#pragma once
/// @file  How verifications look for their smallest factor and tell of failures. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/check_frame.h"

#include <osg/ref_ptr>

#include <cstddef>
#include <string>
#include <vector>

namespace ostrel::structural {

/// The list of failures that a host may ask for.
using Failures = std::vector<osg::ref_ptr<xCheckInfo>>;

/// A verification with nothing to verify is unlimited [-].
inline constexpr double unlimited_factor = 1e10;

/// Stores the smallest factor of single records, and its position, in `level`. A record counts only
/// if it is strictly smaller than those before it; then, below 1, `make_failure(record, factor)` is
/// appended to `failures`, unless that is null. So the list holds the successive minima.
template <class Records, class FactorOf, class MakeFailure>
void scan_records(xBaseResults& level, Records& records, Failures* failures,
                  const FactorOf& factor_of, const MakeFailure& make_failure) {
  level.setSf(unlimited_factor);
  level.setIndex(0);
  for (std::size_t i = 0; i < records.size(); ++i) {
    const double factor = factor_of(records[i]);
    if (!(factor < level.getSf())) continue;
    level.setSf(factor);
    level.setIndex(static_cast<int>(i));
    if (factor < 1.0 && failures) failures->push_back(make_failure(records[i], factor));
  }
}

/// Stores the smallest factor of whole groups, and its position, in `level`; a tie goes to the
/// later group. Every group lists its own failures.
template <class Groups>
void scan_groups(xBaseResults& level, Groups& groups, Failures* failures) {
  level.setSf(unlimited_factor);
  level.setIndex(0);
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const double factor = groups[i].getSfMin(failures);
    if (!(level.getSf() >= factor)) continue;
    level.setSf(factor);
    level.setIndex(static_cast<int>(i));
  }
}

/// Tells a failure by object, combination and factor.
void identify(xCheckInfo& failure, const xCheckCombID& id, double factor);

/// Opening, combination, safety factor.
std::string failure_text(const char* opening, const xCheckInfo& failure);

/// Opening, combination, safety factor, and the place under the name `place_name`.
std::string failure_text(const char* opening, const xCheckInfo& failure, const char* place_name,
                         double place);

}  // namespace ostrel::structural
