// SPDX-License-Identifier: Apache-2.0
#include "ostrel/embankment_surface.h"

#include <cmath>
#include <cstddef>

void xEmbankmentSurface::reset() {
  profile.clear();
}

double xEmbankmentSurface::_computeAngle(int i) const {
  if (!(i >= 0 && static_cast<std::size_t>(i) < profile.size())) return 0.0;
  const auto index = static_cast<std::size_t>(i);
  double dx = profile[index][0];
  double dy = profile[index][1];
  if (index > 0) {
    dx -= profile[index - 1][0];
    dy -= profile[index - 1][1];
  }
  return std::atan(dy / dx);
}

double xEmbankmentSurface::computeAngle() const {
  if (profile.empty()) return 0.0;
  double area = 0.0;
  double previous_x = 0.0;
  double previous_y = 0.0;
  for (const auto& point : profile) {
    area += (previous_y + point[1]) / 2.0 * (point[0] - previous_x);
    previous_x = point[0];
    previous_y = point[1];
  }
  return std::atan(2.0 * area / (previous_x * previous_x));
}
