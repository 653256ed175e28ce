// SPDX-License-Identifier: Apache-2.0
#include "structural/whole_numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ostrel::structural {

std::uint32_t rounded_up(double quotient) {
  if (!(quotient > 0.0)) return 0;
  constexpr std::uint32_t largest = std::numeric_limits<std::uint32_t>::max();
  const double slack = std::max(1e-9, 4.0 * std::numeric_limits<double>::epsilon() * quotient);
  const double nearest = std::round(quotient);
  const double whole = std::abs(quotient - nearest) <= slack ? nearest : std::ceil(quotient);
  if (!(whole < static_cast<double>(largest))) return largest;
  return static_cast<std::uint32_t>(whole);
}

int truncated(double value) {
  if (std::isnan(value)) return 0;
  constexpr double lowest = std::numeric_limits<int>::min();
  constexpr double largest = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(value, lowest, largest));
}

}  // namespace ostrel::structural
