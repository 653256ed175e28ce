// SPDX-License-Identifier: Apache-2.0
#include "ostrel/pile_bearing_settings.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

bool is_rectangular(const bearSecPile& section) {
  return section.type == 1 || section.type == 2;
}

}  // namespace

void bearSecPile::reset() {
  *this = bearSecPile{};
}

double bearSecPile::getArea() const {
  return is_rectangular(*this) ? d * h : d * 0.25 * d * std::numbers::pi;
}

double bearSecPile::getPerim() const {
  return is_rectangular(*this) ? 2.0 * (h + d) : d * std::numbers::pi;
}

double bearSecPile::getEqvDiam() const {
  if (!is_rectangular(*this)) return d;
  switch (method) {
    case diamSmallerSide:
      return std::min(d, h);
    case diamLargerSide:
      return std::max(d, h);
    default:
      return std::sqrt(h * d * 4.0 / std::numbers::pi);
  }
}

void xBearCapacityPileSettings::reset() {
  *this = xBearCapacityPileSettings{};
}
