// SPDX-License-Identifier: Apache-2.0
#include "validation/chapters.h"
#include "validation/diagram_sums.h"
#include "validation/units.h"

#include <ostrel/layer_pressure.h>
#include <ostrel/load_pressure.h>
#include <ostrel/soil_load.h>

#include <cmath>
#include <stdexcept>

namespace ostrel::validation {
namespace {

constexpr double deep = 1e6;  // below all layers [mm]

xSoilProps soil_of(double gamma, double saturated, double phi, double cohesion = 0.0) {
  xSoilProps soil;
  soil.setUnitWeight(gamma);
  soil.setSaturatedUnitWeight(saturated);
  soil.set_InternalFriction(phi * degree);
  soil.setCohesion(cohesion);
  return soil;
}

/// The active pressure by Rankine on 1 mm of wall, not factored [N/mm²].
std::vector<xLayerPress> active_pressure(const std::vector<xSoilLayer>& layers) {
  xEarthPress pressure;
  const auto code = pressure.computeActiveEarthPress(geoFactorPressure, {}, 1.0, formulaRankine,
                                                     0.0, layers, {0.0, 0.0}, deep, 1.0);
  if (code != ostrel::ok) throw std::runtime_error("no earth pressure");
  return pressure.diagrams;
}

/// The same from a load on the whole surface [N/mm²].
std::vector<xLayerPress> uniform_pressure(const std::vector<xSoilLayer>& layers, double value) {
  const osg::ref_ptr<xUniformLoad> load = new xUniformLoad;
  load->setValue(value);
  return xUniform{}
      .compute_LoadPress(load.get(), geoFactorPressure, {}, 1.0, formulaRankine, 0.0, layers,
                         {0.0, 0.0}, deep, 1.0)
      .diagrams;
}

Case caltrans_layers() {
  const double water_depth = 10 * foot;
  const double bottom = 30 * foot;
  const std::vector<xSoilLayer> layers{
      testing::layer_of(soil_of(130 * pcf, 130 * pcf, 37), {0.0, 4 * foot}),
      testing::layer_of(soil_of(102.4 * pcf, 102.4 * pcf, 30), {4 * foot, water_depth}),
      testing::submerged_layer_of(soil_of(102.4 * pcf, 40 * pcf + 10 * kN_m3, 30),
                                  {water_depth, bottom})};
  const auto earth = active_pressure(layers);
  xHydrostaticPress water;
  water.computeHydroPress(water_depth, 1.0, layers, bottom, 1.0);
  const double head = bottom - water_depth;
  const double line = pound / foot;  // pound by foot of wall
  const double u = 10 * kN_m3 * head;
  const double water_thrust = u * head / 2.0;
  const Tolerance digits{.relative = 2e-3};
  const Tolerance exact{.relative = 1e-9};
  return {
      .id = "PD-01",
      .subject = "Three layers, the lowest under water",
      .source = "Caltrans, Trenching and Shoring Manual (2025), example 7-2",
      .inputs =
          "4 ft of 130 pcf and 37°, 6 ft of 102.4 pcf and 30°, 20 ft under water of 40 pcf "
          "submerged and 30°; water at 10 ft",
      .figures =
          {{"soil at 4 ft, above", "psf", 129.48, earth[0].points.back().value / psf, digits},
           {"soil at 4 ft, below", "psf", 173.16, earth[1].points.front().value / psf, digits},
           {"soil at 10 ft", "psf", 377.76, earth[1].points.back().value / psf, digits},
           {"soil at 30 ft", "psf", 644.16, earth[2].points.back().value / psf, digits},
           {"thrust of the soil", "lb/ft", 24610.9 - 12480.0, sum_of(earth).force / line, digits},
           {"water at 30 ft", "psf", 1248, water.diagrams.back().points.back().value / psf, exact,
            u / psf},
           {"thrust of soil and water", "lb/ft", 24610.9,
            (sum_of(earth).force + sum_of(water.diagrams).force) / line, digits,
            24610.9 - 12480.0 + water_thrust / line}},
      .reason =
          "The unit weight of water is 10 kN/m³ here and 62.4 pcf (9.80 kN/m³) in the source: "
          "the water presses 2 % more. The soil is entered so that its submerged weight is "
          "that of the source."};
}

/// Active pressure with tension at the head: by the formula the surcharge closes part of the crack.
Case surcharge_on_cohesive_soil() {
  constexpr double H = 4 * metre;
  constexpr double q = 10 * kPa;
  constexpr double gamma = 15 * kN_m3;
  constexpr double c = 8 * kPa;
  const double Ka = std::pow(std::tan((45.0 - 13.0) * degree), 2);
  const double crack = 2 * c / (gamma * std::sqrt(Ka));  // depth of no pressure, without surcharge
  const xSoilLayer layer = testing::layer_of(soil_of(gamma, gamma, 26, c), {0.0, crack, H});
  const auto earth = active_pressure({layer});
  const auto load = uniform_pressure({layer}, q);
  const double at_base = earth[0].points.back().value + load[0].points.back().value;
  const double thrust = sum_of(earth).force + sum_of(load).force;
  const double by_rule = Ka * gamma * (H - crack) * (H - crack) / 2.0 + Ka * q * H;
  const Tolerance exact{.relative = 1e-9};
  return {.id = "PD-03",
          .subject = "Soil with friction and cohesion below a surcharge",
          .source =
              "King Saud University, CE 481, example 13.18, for the inputs; closed form "
              "Ka sigma - 2 c sqrt(Ka)",
          .inputs = "phi 26, c 8 kPa, 15 kN/m³, surcharge 10 kPa, 4 m",
          .likeness = Likeness::same_physics,
          .figures = {{"pressure at the base", "kPa", 17.33441, at_base / kPa, {.relative = 1e-6}},
                      {"thrust", "kN/m", 25.651834, thrust / kN * metre, exact, by_rule}},
          .reason =
              "The surcharge is a load of its own: the soil alone is cut at no pressure, down "
              "to 1.71 m, and the surcharge presses over the whole height. In the closed form "
              "it closes the crack from 1.71 m to 1.04 m first."};
}

Case gec4_surcharge() {
  const auto load =
      uniform_pressure({testing::layer_of(soil_of(2e-5, 2e-5, 33), {0.0, 4 * metre})}, 11 * kPa);
  return {.id = "PD-04",
          .subject = "Surcharge on the whole surface",
          .source = "FHWA GEC-4 (FHWA-IF-99-015), appendix A, example 1",
          .inputs = "11 kPa, phi 33",
          .figures = {
              {"pressure", "kPa", 3.2, load[0].points.front().value / kPa, {.absolute = 0.05}}}};
}

}  // namespace

Chapter pressure_diagrams() {
  return {"Pressure diagrams",
          "Active pressure by Rankine on a smooth vertical wall, without factors.",
          {caltrans_layers(), surcharge_on_cohesive_soil(), gec4_surcharge()}};
}

}  // namespace ostrel::validation
