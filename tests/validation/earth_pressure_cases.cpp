// SPDX-License-Identifier: Apache-2.0
#include "soil/earth_pressure_coefficients.h"
#include "validation/chapters.h"
#include "validation/units.h"

#include <ostrel/design_soil.h>
#include <ostrel/seismic_action.h>

#include <array>
#include <cmath>
#include <sstream>

namespace ostrel::validation {
namespace {

constexpr bool active = true;
constexpr bool passive = false;

/// A coefficient by one formula, from angles in degrees. kv has the sign that the formulas use.
struct Question {
  formulType formula;
  bool side;
  double phi;
  double delta = 0.0;
  double beta = 0.0;
  double kh = 0.0;
  double kv = 0.0;
  double ocr = 1.0;
};

double coefficient(const Question& ask) {
  xDesignSoil soil;
  soil.soil.set_InternalFriction(ask.phi * degree);
  soil.soil.setInterfaceFriction(ask.delta * degree);
  soil.soil.setOCR(ask.ocr);
  soil.compute_Coeff(ask.formula, 0.0, ask.beta * degree, {ask.kh, ask.kv}, ask.side);
  return soil.getK();
}

std::string angles(const Question& ask) {
  std::ostringstream text;
  text << (ask.side ? "Ka" : "Kp") << ", phi " << ask.phi;
  if (ask.delta > 0.0) text << ", delta " << ask.delta;
  if (std::abs(ask.beta) > 0.0) text << ", beta " << ask.beta;
  return text.str();
}

Figure row(const Question& ask, double published, const Tolerance& tolerance) {
  return {angles(ask), "", published, coefficient(ask), tolerance};
}

Case das_coulomb() {
  const Tolerance digits{.absolute = 6e-5};
  return {.id = "EP-01",
          .subject = "Active coefficient by Coulomb, vertical back, level ground",
          .source =
              "Das, Principles of Foundation Engineering, table of Ka; quoted in the tests of "
              "XC (test_coulomb.py)",
          .inputs = "three pairs of phi and delta",
          .figures = {row({formulaCoulomb, active, 28, 0}, 0.3610, digits),
                      row({formulaCoulomb, active, 30, 5}, 0.3189, digits),
                      row({formulaCoulomb, active, 32, 10}, 0.2853, digits)}};
}

Case smith_coulomb() {
  const Question ask{formulaCoulomb, active, 20, 10};
  const Tolerance digits{.absolute = 6e-5};
  const double K = coefficient(ask);
  return {.id = "EP-02",
          .subject = "Active coefficient by Coulomb and its horizontal part",
          .source = "Smith, Elements of Soil Mechanics, example 7.8",
          .inputs = "phi 20, delta 10",
          .figures = {{"Ka", "", 0.4467, K, digits},
                      {"Ka cos(delta)", "", 0.4400, K * std::cos(10 * degree), digits}}};
}

Case passive_coulomb() {
  const Tolerance digits{.relative = 1e-4};
  return {.id = "EP-03",
          .subject = "Passive coefficient by Coulomb with friction and slope",
          .source =
              "civilengineeringbible.com, subtopic 8; quoted in the tests of XC "
              "(test_coulomb.py)",
          .inputs = "four sets of phi, delta and beta",
          .figures = {row({formulaCoulomb, passive, 26}, 2.561, digits),
                      row({formulaCoulomb, passive, 30, 22}, 6.675, digits),
                      row({formulaCoulomb, passive, 32, 17, 10}, 10.492, digits),
                      row({formulaCoulomb, passive, 40, 16, -10}, 5.335, digits)}};
}

Case das_rankine() {
  constexpr std::array<std::array<double, 6>, 7> table{{
      {0.361, 0.366, 0.380, 0.409, 0.461, 0.573},  // phi 28, beta 0 to 25
      {0.333, 0.337, 0.350, 0.373, 0.414, 0.494},
      {0.307, 0.311, 0.321, 0.341, 0.374, 0.434},
      {0.283, 0.286, 0.294, 0.311, 0.338, 0.385},
      {0.260, 0.262, 0.270, 0.283, 0.306, 0.343},
      {0.238, 0.240, 0.246, 0.258, 0.277, 0.307},
      {0.217, 0.219, 0.225, 0.235, 0.250, 0.275},  // phi 40
  }};
  std::vector<Figure> figures;
  for (std::size_t i = 0; i < table.size(); ++i) {
    for (std::size_t k = 0; k < table[i].size(); ++k) {
      const double phi = 28.0 + 2.0 * static_cast<double>(i);
      const double beta = 5.0 * static_cast<double>(k);
      figures.push_back(
          row({formulaRankine, active, phi, 0, beta}, table[i][k], {.absolute = 1e-3}));
    }
  }
  return {.id = "EP-05",
          .subject = "Active coefficient by Rankine below a slope",
          .source =
              "Das, Principles of Foundation Engineering, table of Ka for inclined backfill; "
              "carried over from memory",
          .inputs = "phi 28 to 40, beta 0 to 25",
          .figures = figures};
}

Case jrc_slope() {
  const double K = coefficient({formulaRankine, active, 32.5, 0, 20});
  const Tolerance digits{.relative = 2e-3};
  return {.id = "EP-06",
          .subject = "Active coefficient by Rankine below a slope, and its thrust",
          .source =
              "JRC85029, Eurocode 7 worked examples (2013), A.4; quoted in the tests of XC "
              "(retaining_wall_test_03.py)",
          .inputs = "phi 32.5, beta 20, 19 kN/m³ over 7.62 m",
          .figures = {{"Ka", "", 0.365, K, digits},
                      {"thrust", "kN/m", 201, K * 19.0 * 7.62 * 7.62 / 2.0, digits}}};
}

/// kv enters as a host enters it and changes its sign as in a run.
Case eurocode_mononobe() {
  xSeismicAction action;
  action.coefficients = {0.24, -0.12};
  action.switchSign();
  const double kh = action.coefficients[0];
  const double kv = action.coefficients[1];
  const Tolerance digits{.relative = 1e-6};
  const Question ask{formulaMononobeOkabe, active, 30, 0, 0, kh, kv};
  const Question press{formulaMononobeOkabe, passive, 30, 0, 0, kh, kv};
  return {.id = "EP-07",
          .subject = "Mononobe-Okabe, earthquake upwards",
          .source =
              "eurocodeapplied.com, EN 1998-5 annex E; quoted in the tests of XC "
              "(test_mononobe_okabe_02.py)",
          .inputs = "phi 30, delta 0, kh 0.24, kv -0.12 as a host enters it",
          .figures = {{"psi", "rad", 0.21109333, soil::seismic_inclination(kh, kv), digits},
                      {"Ka", "", 0.48561773, coefficient(ask), digits},
                      {"Kp", "", 2.6, coefficient(press), {.relative = 2e-4}}}};
}

Case gec11_mononobe() {
  const double K = coefficient({formulaMononobeOkabe, active, 30, 30, 0, 0.206});
  const Tolerance digits{.relative = 1e-3};
  return {.id = "EP-09",
          .subject = "Mononobe-Okabe with as much friction on the wall as in the soil",
          .source = "FHWA GEC-11 (FHWA-NHI-10-025), volume 2, example E7",
          .inputs = "phi 30, delta 30, kh 0.206, kv 0, 0.125 kip/ft³ over 25.64 ft",
          .figures = {{"Kae", "", 0.4785, K, digits},
                      {"thrust", "kip/ft", 19.65, K * 0.125 * 25.64 * 25.64 / 2.0, digits}}};
}

/// The increment of the source is (K (1 + kv) - Ka) gamma H² / 2.
Case xc_mononobe() {
  const double K = coefficient({formulaMononobeOkabe, active, 30, 0, 0, 0.086, 0.043});
  const double Ka = coefficient({formulaRankine, active, 30});
  const double increment = (K * 1.043 - Ka) * 21e3 * 16.0 / 2.0;
  return {.id = "EP-11",
          .subject = "Mononobe-Okabe, increment of the thrust by the earthquake",
          .source = "XC, quake/mononobe_okabe_test_01.py",
          .inputs = "phi 30, kh 0.086, kv 0.043 with the sign of the formulas, 21 kN/m³ over 4 m",
          .figures = {{"increment", "N/m", 11391.9637, increment, {.relative = 1e-6}}},
          .reason =
              "Only the coefficient is compared: the source takes the weights times "
              "(1 + kv) with the angle atan(kh/(1 + kv)), this system takes them times "
              "(1 - kv). The weight of the source is used here."};
}

Case at_rest() {
  const Tolerance exact{.relative = 1e-12};
  const auto K0 = [](double ocr, double beta) {
    return coefficient({formulaAtRest, active, 30, 0, beta, 0, 0, ocr});
  };
  return {.id = "EP-12",
          .subject = "Pressure at rest",
          .source = "EN 1997-1:2004, 9.5.2, (9.1) and (9.2)",
          .inputs = "phi 30; OCR 1 and 4; slope 0 and 10",
          .figures = {{"K0, OCR 1", "", 0.5, K0(1, 0), exact},
                      {"K0, OCR 4", "", 1.0, K0(4, 0), exact},
                      {"K0, beta 10", "", 0.5 * (1.0 + std::sin(10 * degree)), K0(1, 10), exact}}};
}

Case design_angle() {
  const auto factored = [](double phi) {
    xSoilProps soil;
    soil.set_InternalFriction(phi * degree);
    soil.applyGeoFactors(geoFactorPressure, {GeoCombFactor{1.25, 1.0}});
    return soil.getInternalFriction() / degree;
  };
  const Tolerance digits{.absolute = 5e-3};
  return {.id = "EP-13",
          .subject = "Friction angle with a partial factor on its tangent",
          .source = "EN 1997-1:2004, table A.4; XC, test_frictional_soil_01.py",
          .inputs = "phi 32 and 30, factor 1.25",
          .figures = {{"phi 32", "°", 26.5603, factored(32), digits},
                      {"phi 30", "°", 24.79, factored(30), digits}}};
}

}  // namespace

Chapter earth_pressure_coefficients() {
  return {"Earth pressure coefficients",
          "Angles in degrees: phi of the soil, delta on the wall, beta of the ground.",
          {das_coulomb(), smith_coulomb(), passive_coulomb(), das_rankine(), jrc_slope(),
           eurocode_mononobe(), gec11_mononobe(), xc_mononobe(), at_rest(), design_angle()}};
}

}  // namespace ostrel::validation
