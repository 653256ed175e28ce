#pragma once
/// @file  Given slip circles and the frictionless slopes of Taylor, for the validation
// SPDX-License-Identifier: Apache-2.0

#include "support/slope_ground.h"
#include "validation/units.h"

#include <ostrel/slope_stability.h>

#include <cmath>
#include <stdexcept>
#include <vector>

namespace ostrel::validation {

struct Circle {
  double x = 0.0;
  double y = 0.0;
  double radius = 0.0;
};

/// The smallest factor of the ordinary method over some circles, with stripes of the given width
/// [mm].
/// @throws std::runtime_error  a circle was left out
inline double smallest_factor(const xBoundSoilLayer& layer, double stripe_width,
                              const std::vector<Circle>& circles) {
  xSlopeStabilitySettings settings;
  settings.setWidthstripe(stripe_width);
  settings.setStepradius(1.0);
  for (const Circle& each : circles) {
    xGridPoint point;
    point.center = {each.x, each.y};
    point.setMinRadius(each.radius);
    point.setMaxRadius(each.radius);
    settings.grid.points.push_back(point);
  }
  xSlopeStability stability;
  xSlopeStability::Stripes stripes;
  std::vector<err_circle> ignored;
  const auto code = stability.check(1 * metre, 1e-5, settings, {layer}, {}, {},
                                    testing::plain_combination(), {}, stripes, ignored);
  if (code != ostrel::ok || !ignored.empty()) throw std::runtime_error("a circle was left out");
  return stability.getSf();
}

/// Taylor (1937), Stability of earth slopes: frictionless slopes 10 m high of 20 kN/m³ with the
/// cohesion at which the critical circle through the toe is in equilibrium. The crest is at
/// (H / tan(slope), 0) and the toe at (0, -H). His circles end at the toe, and so does the ground
/// here.
struct TaylorSlope {
  double slope;       ///< [rad]
  double chord;       ///< inclination of the chord of the critical circle [rad]
  double half_angle;  ///< half its central angle [rad]
  double stability;   ///< c / (gamma H) [-]

  static constexpr double height = 10'000.0;  // [mm]
  static constexpr double gamma = 2e-5;       // [N/mm³]

  xBoundSoilLayer soil() const {
    const double crest = height / std::tan(slope);
    return testing::ground(
        {{crest, 0}, {0, -height}, {0, -30'000}, {40'000, -30'000}, {40'000, 0}, {crest, 0}}, gamma,
        gamma, stability * gamma * height);
  }

  Circle critical_circle() const {
    const double radius = height / std::sin(chord) / (2.0 * std::sin(half_angle));
    return {height / (2.0 * std::tan(chord)) - radius * std::cos(half_angle) * std::sin(chord),
            -0.5 * height + radius * std::cos(half_angle) * std::cos(chord), radius};
  }
};

inline constexpr TaylorSlope steep_slope{75 * degree, 41.8 * degree, 25.9 * degree, 0.219};
inline constexpr TaylorSlope flat_slope{45 * degree, 28.2 * degree, 44.7 * degree, 0.170};

}  // namespace ostrel::validation
