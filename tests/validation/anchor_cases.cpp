// SPDX-License-Identifier: Apache-2.0
#include "support/slope_ground.h"
#include "validation/chapters.h"
#include "validation/units.h"

#include <ostrel/geotechnical_anchor_check.h>

#include <stdexcept>

namespace ostrel::validation {
namespace {

/// 20 ft dry on 40 ft below the water; the submerged weight is that of the source.
std::vector<xBoundSoilLayer> layers_of_das() {
  constexpr double phi = 20 * degree;
  constexpr double wide = 10 * metre;
  std::vector<xBoundSoilLayer> layers{
      testing::ground(testing::box(-wide, -20 * foot, wide, 0.0), 118 * pcf, 118 * pcf, 0.0, phi),
      testing::ground(testing::box(-wide, -80 * foot, wide, -20 * foot), 118 * pcf,
                      60 * pcf + 10 * kN_m3, 0.0, phi)};
  for (xBoundSoilLayer& layer : layers) {
    layer.soil.setInterfaceFriction(phi);
    layer.soil.setOCR(1.0);
  }
  return layers;
}

Case shaft_of_a_pile() {
  xAnchor anchor;
  anchor.setAngleRad(90 * degree);
  anchor.setBulbLength(60 * foot);
  anchor.setbulbDiam(64 * inch / std::numbers::pi);
  anchor.settings.setCsi3(1.0);
  xAnchorPartialFactors factors;
  factors.gammaR = 1.0;
  xGeoAnchorCombRes outcome;
  if (outcome.buildBulb(anchor, testing::water_at(-20 * foot, -20 * foot), layers_of_das(), factors)
          != ostrel::ok
      || outcome._check(1.0, anchor, factors) != ostrel::ok || outcome.bulbs.size() != 2) {
    throw std::runtime_error("no anchor");
  }
  const auto bond = [&outcome](std::size_t i) {
    return outcome.bulbs[i].anchorageStrength() / outcome.bulbs[i].getArea() / psf;
  };
  const Tolerance digits{.relative = 1e-3};
  return {.id = "AN-01",
          .subject = "Bond over two layers with water",
          .source = "Das, Principles of Foundation Engineering (6th edition), problem 11.10 (c)",
          .inputs = "perimeter 64 in, 60 ft, phi 20, 118 pcf down to 20 ft, 60 pcf submerged below",
          .figures = {{"bond in the upper layer", "psf", 282.6, bond(0), digits},
                      {"bond in the lower layer", "psf", 852.6, bond(1), digits},
                      {"resistance", "kip", 212, outcome.getRd() / kip, digits}},
          .reason =
              "The source treats the shaft of a pile by the beta method. A vertical anchor "
              "without free length, with as much friction on the bulb as in the soil and the "
              "pressure at rest, has the same formula. The soil is entered so that its "
              "submerged weight under water of 10 kN/m³ is that of the source."};
}

}  // namespace

Chapter anchor_bond() {
  return {
      "Bond of anchors",
      "No worked example of a ground anchor with this formula was found: the usual manuals take "
      "the bond from experience.",
      {shaft_of_a_pile()}};
}

}  // namespace ostrel::validation
