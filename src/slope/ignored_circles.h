#pragma once
/// @file  Circles left out of the search. Room: slope
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/error.h"
#include "ostrel/slope_stability.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace ostrel::slope {

/// Notes the radii left out at one centre, in the entry that the list has for it or in a new one.
class IgnoredAtCentre {
public:
  IgnoredAtCentre(std::vector<err_circle>& ignored, double x, double y)
      : ignored_(ignored), x_(x), y_(y) {}

  void add(double radius);

private:
  std::vector<err_circle>& ignored_;
  double x_;
  double y_;
  std::optional<std::size_t> entry_;  ///< once it is found; entries are only ever appended
};

/// Appends one warning for every entry, its lengths in metres.
void reportIgnoredCircles(const std::vector<err_circle>& ignored, std::vector<xVeldError>& errors);

}  // namespace ostrel::slope
