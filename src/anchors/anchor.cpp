// SPDX-License-Identifier: Apache-2.0
#include "ostrel/anchor.h"

#include <numbers>

void xAnchorSettings::reset() {
  *this = xAnchorSettings{};
}

void xAnchor::reset() {
  xAnchor fresh;
  fresh.setAlphaD(getAlphaD());
  *this = fresh;
}

double xAnchor::CableArea() const {
  return std::numbers::pi * cable_diameter_ * cable_diameter_ / 4.0;
}

double info_Fem_anchor::get_Force(double u, double v) const {
  return -(u * sinA + v * cosA) * (kSS + kCC) * share;
}
