// SPDX-License-Identifier: Apache-2.0
#include "geotech/pile_resistance.h"

#include "model/water_weight.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ostrel::geotech {

namespace {

constexpr double chart_begin = 20.0;      // friction angle at which the curves begin [°]
constexpr double large_diameter = 600.0;  // from which the curve of large piles holds [mm]

// Linear from `at_zero` at 0° to `at_begin` where the curves begin.
double below_the_curves(double phi, double at_zero, double at_begin) {
  return (at_begin - at_zero) * phi / chart_begin + at_zero;
}

double curve_of_large_piles(double phi, double r) {
  return (51.4769 + 1.038462 * r) - (4.233764 + 0.056078 * r) * phi
       + (0.094698 + 0.0006525 * r) * phi * phi;
}

double curve_of_small_piles(double phi, double r) {
  const double ln_r = std::log(r);
  return std::exp(0.14506501 * phi - 0.30822131 - 0.81038184 * ln_r + 0.016107 * phi * ln_r);
}

}  // namespace

double angle_after_installation(double phi, xtechPiles technology) {
  return technology == pileDriven ? (phi + 40.0) * 0.5 : phi - 3.0;
}

double tip_factor_overburden(double phi, double D, double L) {
  if (phi < chart_begin) {
    return below_the_curves(phi, 1.0, tip_factor_overburden(chart_begin, D, L));
  }
  const double r = std::max(4.0, L / D);
  return D >= large_diameter ? curve_of_large_piles(phi, r) : curve_of_small_piles(phi, r);
}

double tip_factor_cohesion(double phi, double D, double L) {
  if (phi < chart_begin) {
    return below_the_curves(phi, 9.0, tip_factor_cohesion(chart_begin, D, L));
  }
  return (tip_factor_overburden(phi, D, L) - 1.0) / std::tan(phi * std::numbers::pi / 180.0);
}

double shaft_pressure_coefficient(xtechPiles technology, bool dense) {
  switch (technology) {
    case pileDriven:
      return dense ? 3.0 : 1.0;
    case pileAugered:
      return dense ? 0.9 : 0.7;
    default:
      return dense ? 0.4 : 0.5;
  }
}

double adhesion_factor(double cohesion, xtechPiles technology) {
  const double cu = cohesion * 1000.0;  // [kN/m²]
  const bool driven = technology == pileDriven;
  if (cu <= 25.0) return driven ? 1.0 : 0.7;
  if (cu <= 70.0) return driven ? 1.0 - (cu - 25.0) * 0.011 : 0.7 - (cu - 25.0) * 0.008;
  return driven ? 0.5 : 0.35;
}

double effective_weight(const xSoilProps& soil, const xSoilLayer& layer) {
  return layer.getUnderWater() ? soil.getSaturatedUnitWeight() - model::water_unit_weight
                               : soil.getUnitWeight();
}

ShaftFriction shaft_friction(const xSoilLayer& layer, double perimeter, double coefficient,
                             double top_stress) {
  const double weight = effective_weight(layer.soil, layer);
  const double start = layer.getDepth();
  ShaftFriction shaft{.resistance = 0.0, .stress = top_stress};
  double previous = start;
  for (const double level : layer.levels) {
    const double dz = (level - start) - previous;
    const double ds = weight * dz;
    shaft.stress += ds;
    shaft.resistance += perimeter * 0.5 * coefficient * (2.0 * shaft.stress - ds) * dz;
    previous = level - start;
  }
  return shaft;
}

}  // namespace ostrel::geotech
