// SPDX-License-Identifier: Apache-2.0
#include "validation/chapters.h"
#include "validation/units.h"

#include <ostrel/foundation_bearing.h>

#include <array>
#include <sstream>
#include <stdexcept>

namespace ostrel::validation {
namespace {

constexpr int vesic = 0;
constexpr int eurocode7 = 1;

struct Footing {
  int formulation = vesic;
  double phi = 0.0;       // [°]
  double cohesion = 0.0;  // [N/mm²]
  double gamma = 0.0;     // [N/mm³]
  double stress = 0.0;    // vertical, at foundation level [N/mm²]
  double B = 1.0;         // [mm]
  double L = 0.0;         // 0 for a strip [mm]
  double D = 0.0;         // 0 for no depth factors [mm]
};

xBearCapacityFound capacity(const Footing& footing) {
  xBearCapacityData data;
  data.setFormulation(footing.formulation);
  data.soil.set_InternalFriction(footing.phi * degree);
  data.soil.setCohesion(footing.cohesion);
  data.soil.setUnitWeight(footing.gamma);
  data.setDepthStress(footing.stress);
  data.geometry.setWidth(footing.B);
  data.geometry.setLength(footing.L);
  data.geometry.setDepth(footing.D);
  data.setShapeFactIsActive(footing.L > 0.0);
  data.setDepthFactIsActive(footing.D > 0.0);
  xBearCapacityFound found;
  if (found.compute_BearCapacity(data) != ostrel::ok) throw std::runtime_error("no limit load");
  return found;
}

std::string at_angle(const char* what, double phi) {
  std::ostringstream text;
  text << what << ", phi " << phi;
  return text.str();
}

Case eurocode_factors() {
  constexpr std::array<std::array<double, 4>, 6> table{{{20, 6.4, 14.8, 3.9},
                                                        {25, 10.7, 20.7, 9.0},
                                                        {30, 18.4, 30.1, 20.1},
                                                        {35, 33.3, 46.1, 45.2},
                                                        {40, 64.2, 75.3, 106.1},
                                                        {45, 134.9, 133.9, 267.7}}};
  const Tolerance digits{.absolute = 0.06};
  std::vector<Figure> figures;
  for (const auto& [phi, Nq, Nc, Ng] : table) {
    const auto found = capacity({.formulation = eurocode7, .phi = phi});
    figures.push_back({at_angle("Nq", phi), "", Nq, found.getNq(), digits});
    figures.push_back({at_angle("Nc", phi), "", Nc, found.getNc(), digits});
    figures.push_back({at_angle("Ng", phi), "", Ng, found.getNg(), digits});
  }
  return {.id = "BC-01",
          .subject = "Bearing factors of EN 1997-1, annex D",
          .source =
              "Guía de cimentaciones en obras de carretera (Spain, 2002), table on page 101; "
              "quoted in the tests of XC (test_brinch_hansen_01.py)",
          .inputs = "phi 20 to 45",
          .figures = figures};
}

Case vesic_factors() {
  const Tolerance digits{.absolute = 0.01};
  std::vector<Figure> figures;
  for (const auto& [phi, Nc, Nq, Ng] :
       {std::array{25.0, 20.72, 10.66, 10.88}, std::array{26.0, 22.25, 11.85, 12.54}}) {
    const auto found = capacity({.phi = phi});
    figures.push_back({at_angle("Nc", phi), "", Nc, found.getNc(), digits});
    figures.push_back({at_angle("Nq", phi), "", Nq, found.getNq(), digits});
    figures.push_back({at_angle("Ng", phi), "", Ng, found.getNg(), digits});
  }
  const auto gec6 = capacity({.phi = 35});
  figures.push_back({at_angle("Nq", 35), "", 33.3, gec6.getNq(), digits});
  figures.push_back({at_angle("Ng", 35), "", 48.03, gec6.getNg(), digits});
  return {.id = "BC-02",
          .subject = "Bearing factors of Vesic",
          .source =
              "Das, Principles of Foundation Engineering (6th edition), solutions 3.4 and "
              "3.10; FHWA GEC-6 (FHWA-SA-02-054), example B-1",
          .inputs = "phi 25, 26 and 35",
          .figures = figures};
}

/// The factor 0.9 of the source on the weight is entered as 0.9 times the unit weight.
Case square_footing() {
  std::vector<Figure> figures;
  for (const auto& [B, published] :
       {std::pair{3.0, 3315.0}, std::pair{4.6, 3721.4}, std::pair{6.1, 4102.4}}) {
    const auto found = capacity({.phi = 35,
                                 .gamma = 0.9 * 19.6 * kN_m3,
                                 .stress = 45.1 * kPa,
                                 .B = B * metre,
                                 .L = B * metre});
    std::ostringstream what;
    what << "limit load, B " << B << " m";
    figures.push_back(
        {what.str(), "kPa", published, found.getLimitLoad_Nmmq() / kPa, {.relative = 1e-3}});
  }
  return {.id = "BC-03",
          .subject = "Square footing",
          .source = "FHWA GEC-6 (FHWA-SA-02-054), appendix B, example 1: 2553 + 254 B",
          .inputs = "phi 35, 45.1 kPa at the base, 19.6 kN/m³ with the factor 0.9 for the water",
          .figures = figures};
}

Case shape_and_depth() {
  const auto found = capacity({.phi = 25, .B = 5.5 * foot, .L = 5.5 * foot, .D = 4.0 * foot});
  const Tolerance digits{.absolute = 1e-3};
  return {.id = "BC-04",
          .subject = "Shape and depth factors",
          .source = "Das, Principles of Foundation Engineering (6th edition), problem 3.4",
          .inputs = "phi 25, 5.5 ft square, 4 ft deep",
          .figures = {{"Sc", "", 1.514, found.getSc(), digits},
                      {"Sq", "", 1.466, found.getSq(), digits},
                      {"Sg", "", 0.6, found.getSg(), digits},
                      {"Dq", "", 1.226, found.getDq(), digits},
                      {"Dc", "", 1.29, found.getDc(), {.absolute = 1e-6}, 1.2495152}},
          .reason =
              "Dc is 1 + 0.4 D/B in the source. Here, as by Vesic, it follows from Dq by "
              "corresponding states: Dq - (1 - Dq)/(Nc tan(phi))."};
}

/// Design value of the load: 1.35 (800 + 0.5 * 25 * 1.5 * 2.5) + 1.5 * 450 = 1818.28 kN.
Case pad_footing() {
  const auto found = capacity({.formulation = eurocode7,
                               .phi = 35,
                               .gamma = 18 * kN_m3,
                               .stress = 0.5 * 18 * kPa,
                               .B = 1.5 * metre,
                               .L = 2.5 * metre});
  const double resistance = found.getLimitLoad_Nmmq() / kPa * 1.5 * 2.5 / 1.4;
  const double load = 1.35 * (800 + 0.5 * 25 * 1.5 * 2.5) + 1.5 * 450;
  return {.id = "BC-06",
          .subject = "Pad footing",
          .source =
              "Bond and Harris, Decoding Eurocode 7, example 10.1, design approach 2; "
              "utilisation by the tests of XC (test_pad_footing_bearing_capacity.py)",
          .inputs = "1.5 x 2.5 m, 0.5 m deep, phi 35, 18 kN/m³, 800 and 450 kN, factor 1.4",
          .likeness = Likeness::same_physics,
          .figures = {{"utilisation", "", 0.752, load / resistance, {.relative = 2e-3}}},
          .reason = "The load of the source is put together here from its inputs."};
}

Case undrained() {
  const auto load = [](double length) {
    return capacity({.formulation = eurocode7, .cohesion = 10 * kPa, .B = 1000, .L = length})
               .getLimitLoad_Nmmq()
         / kPa;
  };
  const Tolerance exact{.relative = 1e-12};
  const double strip = 10 * (2 + std::numbers::pi);
  return {.id = "BC-08",
          .subject = "Soil without friction",
          .source = "EN 1997-1:2004, D.3, (D.1)",
          .inputs = "cu 10 kPa, a strip and a square",
          .figures = {{"limit load of the strip", "kPa", strip, load(0.0), exact},
                      {"limit load of the square", "kPa", 1.2 * strip, load(1000), exact}}};
}

}  // namespace

Chapter bearing_capacity() {
  return {"Bearing capacity",
          "No printed case was found for the inclination factors in the form in force, nor for the "
          "factors of punching and inertia.",
          {eurocode_factors(), vesic_factors(), square_footing(), shape_and_depth(), pad_footing(),
           undrained()}};
}

}  // namespace ostrel::validation
