// SPDX-License-Identifier: Apache-2.0
#include "support/wall_builder.h"
#include "validation/chapters.h"
#include "validation/units.h"

#include <ostrel/hydraulic_check.h>

#include <stdexcept>

namespace ostrel::validation {
namespace {

/// Uplift and piping of a wall in one soil, excavated down to the lower water.
/// @param upper, lower, foot  elevations [mm]
verificheIdrauliche verified(double saturated, double upper, double lower, double foot,
                             double gamma_stb, double gamma_dst) {
  xSoilProps soil;
  soil.setKPerm(0.01);
  soil.setUnitWeight(saturated);
  soil.setSaturatedUnitWeight(saturated);
  xLoadComb comb = testing::unfactored("seepage");
  comb.checks[checkPiping] = true;
  comb.checks[checkUplift] = true;
  comb.actions[1].set("earth", true, gamma_stb, gamma_dst);
  const auto data = testing::WallBuilder{}.excavation(-lower).layer(soil).build();
  xWaterTable water;
  water.setIsDefined(true);
  water.setLivelloMonte(upper);
  water.setLivelloValle(lower);
  verificheIdrauliche found;
  if (hyDroCheck(1, water, data.soilLayers, {comb}, foot, lower, found) != ostrel::ok)
    throw std::runtime_error("the water was not verified");
  return found;
}

/// The gradient of the path, h / (h + 2 d) for a head of h above ground d above the foot, is the one
/// of the source with h = 2 i d / (1 - i).
Case weir() {
  constexpr double d = 3.2 * metre;
  constexpr double i = 0.2933;
  constexpr double saturated = 19.5 * kN_m3;
  constexpr double head = 2 * i * d / (1 - i);
  constexpr double ground = -head;
  const auto uplift = verified(saturated, 0.0, ground, ground - d, 0.9, 1.35).uplift.at(0);
  const double area = d / 2.0;  // of the prism, by mm of wall
  const double S = uplift.Udst / area / kPa;
  const double G = uplift.Gstb / area / kPa;
  const double S_rule = i * 10 * 3.2;
  const double G_rule = (19.5 - 10) * 3.2;
  const Tolerance exact{.relative = 1e-9};
  return {
      .id = "HY-01",
      .subject = "Heave of a prism before a cutoff",
      .source = "Bond and Harris, Decoding Eurocode 7, weir with a cutoff; EN 1997-1:2004, (2.9b)",
      .inputs = "3.2 m deep, 19.5 kN/m³, mean gradient 0.2933, factors 1.35 and 0.9",
      .likeness = Likeness::same_physics,
      .figures = {{"gradient", "", i, uplift.i, exact},
                  {"seepage by area", "kPa", 9.2, S, exact, S_rule},
                  {"submerged weight by area", "kPa", 31.0, G, exact, G_rule},
                  {"utilisation", "", 12.4 / 27.9, 1.0 / uplift.getSf(), exact,
                   1.35 * S_rule / (0.9 * G_rule)}},
      .reason =
          "The unit weight of water is 10 kN/m³ here and 9.81 in the source: more seepage and "
          "less submerged weight, 4 % on the utilisation. The gradient of the source belongs "
          "to a weir; here the head is chosen so that the path along the wall has it. The "
          "form (2.9a) of the same source has no counterpart here."};
}

Case path_along_the_wall() {
  const auto found =
      verified(20 * kN_m3, -1 * metre, -5 * metre, -10 * metre, 1.0, 1.0).piping.at(0);
  const Tolerance exact{.relative = 1e-9};
  return {.id = "HY-02",
          .subject = "Mean gradient along the wall in one soil, and piping",
          .source = "closed form h / (d1 + d2), for instance in the manuals of fine.cz",
          .inputs = "water at -1 and -5 m, foot at -10 m, 20 kN/m³ saturated",
          .figures = {{"gradient at the exit", "", 4.0 / 14.0, found.iE(), exact},
                      {"head at the foot", "m", 20.0 / 14.0, found.dH / metre, exact},
                      {"critical gradient", "", 1.0, found.iCrit, exact},
                      {"safety factor", "", 3.5, found.getSf(), exact}}};
}

}  // namespace

Chapter water_verifications() {
  return {"Piping and uplift",
          "Ground before the wall under seepage from below.",
          {weir(), path_along_the_wall()}};
}

}  // namespace ostrel::validation
