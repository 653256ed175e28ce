// SPDX-License-Identifier: Apache-2.0
#include "structural/reinforcement_text.h"

#include "structural/whole_numbers.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <limits>

namespace ostrel::structural {

namespace {

std::string diameter_text(double diameter) {
  return std::to_string(truncated(diameter + 0.001));
}

double truncated_to_hundredths(double value) {
  const double hundredths = value * 100.0;
  const double nearest = std::round(hundredths);
  const bool whole = std::abs(hundredths - nearest) <= 1e-9;
  return (whole ? nearest : std::trunc(hundredths)) / 100.0;
}

std::string number_text(double value) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%lg", value);
  return text.data();
}

}  // namespace

std::string bars_text(const xReinforcementBar& bars, const char* prefix) {
  if (!(bars.area() >= std::numeric_limits<double>::epsilon())) return {};
  return std::to_string(bars.getNumber()) + (prefix ? prefix : "")
       + diameter_text(bars.getDiameter());
}

std::string joined(const std::string& first, const std::string& second) {
  const bool both = !first.empty() && !second.empty();
  return first + (both ? "+" : "") + second;
}

std::string stirrup_text(const xBracket& stirrup, const char* prefix, double factor) {
  return std::string("1") + (prefix ? prefix : "") + diameter_text(stirrup.getDiameter()) + "/"
       + number_text(truncated_to_hundredths(stirrup.getStep() * factor));
}

}  // namespace ostrel::structural
