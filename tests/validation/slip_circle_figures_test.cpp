// SPDX-License-Identifier: Apache-2.0
//
// Published factors of the ordinary method of slices.
#include "support/slope_ground.h"

#include <ostrel/slope_stability.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using ostrel::testing::ground;
using ostrel::testing::Outline;
using ostrel::testing::plain_combination;

constexpr double degree = std::numbers::pi / 180.0;
constexpr double spacing = 1'000.0;  // [mm]

struct Circle {
  double x = 0.0;
  double y = 0.0;
  double radius = 0.0;
};

/// The smallest factor of the ordinary method over some circles.
double smallest_factor(const xBoundSoilLayer& layer, double stripe_width,
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
  EXPECT_EQ(stability.check(spacing, 1e-5, settings, {layer}, {}, {}, plain_combination(), {},
                            stripes, ignored),
            ostrel::ok);
  EXPECT_TRUE(ignored.empty());
  return stability.getSf();
}

// Fredlund and Krahn (1977), Comparison of slope stability methods of analysis, case 1: a slope of
// 40 ft at 2:1, 120 pcf, 600 psf, 20 degrees, centre (120, 90) ft, radius 80 ft: 1.928.
TEST(OrdinaryMethod, GivesTheFactorOfFredlundAndKrahn) {
  constexpr double foot = 304.8;                        // [mm]
  constexpr double pound = 4.4482216152605;             // [N]
  constexpr double pcf = pound / (foot * foot * foot);  // [N/mm³]
  constexpr double psf = pound / (foot * foot);         // [N/mm²]
  Outline outline{{0, 60}, {0, -20}, {200, -20}, {200, 20}, {140, 20}, {60, 60}, {0, 60}};
  for (auto& vertex : outline) {
    vertex *= foot;
  }
  const xBoundSoilLayer layer = ground(outline, 120 * pcf, 120 * pcf, 600 * psf, 20 * degree);
  EXPECT_NEAR(smallest_factor(layer, 0.25 * foot, {{120 * foot, 90 * foot, 80 * foot}}), 1.928,
              5e-4);
}

/// Taylor (1937), Stability of earth slopes: frictionless slopes 10 m high of 20 kN/m³ with the
/// cohesion at which the critical circle through the toe is in equilibrium. The crest is at
/// (H / tan(slope), 0) and the toe at (0, -H). His circles end at the toe, and so does the ground here.
struct TaylorSlope {
  double slope;       ///< [rad]
  double chord;       ///< inclination of the chord of the critical circle [rad]
  double half_angle;  ///< half its central angle [rad]
  double stability;   ///< c / (gamma H) [-]

  static constexpr double height = 10'000.0;  // [mm]
  static constexpr double gamma = 2e-5;       // [N/mm³]

  xBoundSoilLayer soil() const {
    const double crest = height / std::tan(slope);
    return ground(
        {{crest, 0}, {0, -height}, {0, -30'000}, {40'000, -30'000}, {40'000, 0}, {crest, 0}}, gamma,
        gamma, stability * gamma * height);
  }

  Circle critical_circle() const {
    const double radius = height / std::sin(chord) / (2.0 * std::sin(half_angle));
    return {height / (2.0 * std::tan(chord)) - radius * std::cos(half_angle) * std::sin(chord),
            -0.5 * height + radius * std::cos(half_angle) * std::cos(chord), radius};
  }
};

constexpr TaylorSlope steep{75 * degree, 41.8 * degree, 25.9 * degree, 0.219};
constexpr TaylorSlope flat{45 * degree, 28.2 * degree, 44.7 * degree, 0.170};

// His numbers have three digits.
TEST(OrdinaryMethod, GivesTheCriticalCirclesOfTaylor) {
  for (const TaylorSlope& each : {steep, flat})
    EXPECT_NEAR(smallest_factor(each.soil(), 50.0, {each.critical_circle()}), 1.0, 3e-3);
}

// No circle through the toe is worse than the one that he gives as critical.
TEST(OrdinaryMethod, FindsTheMinimaOfTaylor) {
  for (const TaylorSlope& each : {steep, flat}) {
    const Circle critical = each.critical_circle();
    std::vector<Circle> circles;
    for (int i = -8; i <= 8; ++i) {
      for (int k = -8; k <= 8; ++k) {
        const Circle around{critical.x + 400.0 * i, critical.y + 400.0 * k, 0.0};
        if (!(around.y > 0.0)) continue;
        circles.push_back(
            {around.x, around.y, std::hypot(around.x, around.y + TaylorSlope::height)});
      }
    }
    EXPECT_NEAR(smallest_factor(each.soil(), 50.0, circles), 1.0, 3e-3);
  }
}

}  // namespace
