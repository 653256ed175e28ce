// SPDX-License-Identifier: Apache-2.0
#include "slope/ignored_circles.h"

#include "services/exact.h"
#include "services/label_table.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

using ostrel::services::label;
using quillet::translatable;

namespace ostrel::slope {

namespace {

constexpr double same_centre = 1e-5;  // centres nearer than this in x and y are one [mm]
constexpr std::int64_t no_object = -1;

/// A length in metres with two decimals.
std::string metres(double length) {
  const double value = 0.001 * length;
  const int size = std::snprintf(nullptr, 0, "%.*lf", 2, value);
  std::string text(static_cast<std::size_t>(std::max(size, 0)) + 1, '\0');
  std::snprintf(text.data(), text.size(), "%.*lf", 2, value);
  text.pop_back();
  return text;
}

std::string warning(const err_circle& circle) {
  const std::string centre = metres(circle.x) + "," + metres(circle.y);
  if (exactly_equal(circle.Rmin, circle.Rmax)) {
    return label(translatable("Il cerchio di centro (")) + centre + label(translatable(") "))
         + label(translatable("di raggio R=")) + metres(circle.Rmin)
         + label(translatable(", e' ignorato perche' il centro e' al di sotto dell'intersezione "
                              "con il profilo"));
  }
  return label(translatable("I cerchi di centro (")) + centre + label(translatable(") "))
       + label(translatable("e raggi tra [")) + metres(circle.Rmin) + "," + metres(circle.Rmax)
       + label(translatable("], sono stati ignorati perche' il centro e' al di sotto "
                            "dell'intersezione con il profilo"));
}

}  // namespace

void IgnoredAtCentre::add(double radius) {
  if (!entry_) {
    const auto known = std::find_if(ignored_.begin(), ignored_.end(), [this](const auto& each) {
      return std::abs(each.x - x_) < same_centre && std::abs(each.y - y_) < same_centre;
    });
    entry_ = static_cast<std::size_t>(known - ignored_.begin());
    if (known == ignored_.end()) {
      ignored_.push_back({.x = x_, .y = y_, .Rmin = radius, .Rmax = radius});
      return;
    }
  }
  err_circle& circle = ignored_[*entry_];
  circle.Rmax = std::max(circle.Rmax, radius);
  circle.Rmin = std::min(circle.Rmin, radius);
}

void reportIgnoredCircles(const std::vector<err_circle>& ignored, std::vector<xVeldError>& errors) {
  for (const err_circle& each : ignored) {
    errors.emplace_back(warning(each), no_object, xVeldError::typeWarning);
  }
}

}  // namespace ostrel::slope
