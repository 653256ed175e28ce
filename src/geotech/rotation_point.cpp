// SPDX-License-Identifier: Apache-2.0
#include "geotech/rotation_point.h"

#include "services/exact.h"

#include <algorithm>
#include <cmath>

namespace ostrel::geotech {

namespace {

constexpr double same_level = 1e-4;  // [mm]

double zero_between(const Fsoil& above, const Fsoil& below) {
  const double f0 = above.springForce;
  const double f1 = below.springForce;
  if (exactly_equal(f0, f1)) return above.elevation;  // both are 0
  return above.elevation - (below.elevation - above.elevation) * f0 / (f1 - f0);
}

}  // namespace

std::vector<double> anchor_levels(const std::vector<info_Fem_anchor>& anchors) {
  std::vector<double> levels;
  for (const info_Fem_anchor& anchor : anchors) {
    const bool taken = std::any_of(levels.begin(), levels.end(), [&anchor](double level) {
      return std::abs(level - anchor.level) <= same_level;
    });
    if (!taken) levels.push_back(anchor.level);
  }
  return levels;
}

double sign_change(const std::map<int, Fsoil>& springs) {
  const Fsoil* previous = &springs.begin()->second;
  double lowest = previous->elevation;
  for (const auto& [node, spring] : springs) {
    if (!(previous->springForce * spring.springForce > 0.0)) return zero_between(*previous, spring);
    lowest = std::min(lowest, spring.elevation);
    previous = &spring;
  }
  return lowest;
}

std::optional<double> rotation_point(const std::vector<info_Fem_anchor>& anchors,
                                     const std::map<int, Fsoil>& springs) {
  const std::vector<double> levels = anchor_levels(anchors);
  if (levels.size() > 1) return std::nullopt;
  if (levels.size() == 1) return levels.front();
  if (springs.empty()) return std::nullopt;
  return sign_change(springs);
}

}  // namespace ostrel::geotech
