#pragma once
/// @file  Compares two result trees block by block. Room: golden tests
// SPDX-License-Identifier: Apache-2.0

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace ostrel::testing {

/// How near a number has to come: relative to itself, or to the largest number of its column where
/// that is larger.
struct Nearness {
  double before_solving = 1e-10;
  double after_solving = 1e-6;
};

/// The differences of the fields named in `blocks`, as "sls" or "uls/wall", a line for each, at most
/// 20. A field that the actual tree lacks is a difference; fields that only the actual one has are
/// not. The worst of some sections is compared by its abscissa, a list of failures without its
/// repetitions.
std::vector<std::string> differences(const nlohmann::json& expected, const nlohmann::json& actual,
                                     const std::vector<std::string>& blocks,
                                     const Nearness& nearness = {});

}  // namespace ostrel::testing
