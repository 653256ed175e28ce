// SPDX-License-Identifier: Apache-2.0
#include "slope/slice_sums.h"

#include "ostrel/slope_stability.h"

#include <cmath>

namespace ostrel::slope {

namespace {

/// What all slices of one circle share.
struct CircleInput {
  Place center;
  double spacing;
  double gamma_water;
  SliceSeismic seismic;
  const xAction& weight;
  const xLoadComb& comb;
};

/// Fills strength, inclination and water pressure of the base.
void fill_base(const CircleInput& circle, const xWaterTable& water, xClipData& base) {
  xSoilProps soil = base.soil.soil;
  soil.applyGeoFactors(geoFactorResistance, circle.comb.geoFactors);
  base.phi = soil.getInternalFriction();
  base.cohesion = soil.getCohesion();
  base.alpha =
      -std::atan((circle.center.x - base.baseMid[0]) / (circle.center.y - base.baseMid[1]));
  base.porePressure = 0.0;
  if (base.belowWater) {
    base.porePressure =
        (water_level(water, base.baseMid[0]) - base.baseMid[1]) * circle.gamma_water;
  }
}

/// Fills weight and inertia of a piece and adds them.
void add_piece(const CircleInput& circle, double weight_factor, xClipData& piece,
               StripeSums& sums) {
  xSoilProps soil = piece.soil.soil;
  soil.applyGeoFactors(geoFactorPressure, circle.comb.geoFactors);
  const double gamma =
      piece.belowWater ? soil.getSaturatedUnitWeight() - circle.gamma_water : soil.getUnitWeight();
  piece.volume = circle.spacing * piece.area;
  const double raw = gamma * piece.volume;
  piece.weight = raw * weight_factor;
  piece.seismicForce = raw * circle.seismic.kh * circle.weight.getFactor(actSecond);
  piece.verticalWeight = (1.0 - circle.seismic.kv) * piece.weight;
  piece.armY = circle.center.y - piece.baricenter[1];
  sums.weight += piece.weight;
  sums.seismic += piece.seismicForce;
  sums.moment += piece.weight * (circle.center.x - piece.baricenter[0]);
}

}  // namespace

SliceSeismic slice_seismic(const xLoadComb& comb) {
  const xSeismicAction& seismic = comb.seismic;
  return {.kh = seismic.getSt() * seismic.coefficients[0] * comb.getSeismFact(),
          .kv = seismic.getSt() * seismic.coefficients[1] * comb.getSeismFact()};
}

const xAction& weight_action(const xLoadComb& comb) {
  static const xAction without_factors;
  return comb.actions.empty() ? without_factors : comb.actions.front();
}

double base_resistance(const BaseResistance& base, const StripeSums& sums, double loads, double kv,
                       double spacing, double trial, bool bishop) {
  const double normal = ((1.0 - kv) * sums.weight + loads) * base.cos_alpha
                      - base.sin_alpha * sums.seismic - base.length * base.pore_pressure;
  const double m =
      bishop ? (1.0 + base.tan_abs_alpha * base.tan_phi / trial) * base.cos_alpha : 1.0;
  double resistance = base.length * base.cohesion * spacing / m;
  if (normal > 0.0) resistance += base.tan_phi * normal / m;
  return resistance;
}

}  // namespace ostrel::slope

double xSlopeStability::calc_sfslope(const Center& center, double R, double spacing, double gammaW,
                                     double F, bool bishop, const std::vector<xLoadCond>& conds,
                                     const xLoadComb& comb, const xWaterTable& water,
                                     Stripes& stripes, double& Mstab, double& Mdestab) {
  namespace slope = ostrel::slope;
  const slope::CircleInput circle{.center = slope::place(center),
                                  .spacing = spacing,
                                  .gamma_water = gammaW,
                                  .seismic = slope::slice_seismic(comb),
                                  .weight = slope::weight_action(comb),
                                  .comb = comb};
  Mstab = 0.0;
  Mdestab = 0.0;
  for (auto& stripe : stripes) {
    if (stripe.empty()) continue;
    xClipData& base = stripe.front()->clip;
    slope::fill_base(circle, water, base);
    const actType act = center[0] - base.baseMid[0] > 0.0 ? actFirst : actSecond;
    slope::StripeSums sums;
    for (const osg::ref_ptr<sliceSeg>& piece : stripe) {
      slope::add_piece(circle, circle.weight.getFactor(act), piece->clip, sums);
    }
    sums.moment -= (base.baseMid[0] - center[0])
                 * soil_LoadEffect_new(spacing, conds, comb, stripe.front(), act);
    const double loads = soil_LoadEffect_new(spacing, conds, comb, stripe.front(), actFirst);
    const slope::BaseResistance resistance{.length = base.baseLength,
                                           .pore_pressure = base.porePressure,
                                           .cohesion = base.cohesion,
                                           .tan_phi = std::tan(base.phi),
                                           .sin_alpha = std::sin(base.alpha),
                                           .cos_alpha = std::cos(base.alpha),
                                           .tan_abs_alpha = std::tan(std::abs(base.alpha))};
    Mdestab += sums.moment;
    Mstab +=
        slope::base_resistance(resistance, sums, loads, circle.seismic.kv, spacing, F, bishop) * R;
  }
  double stab = 0.0;
  double destab = 0.0;
  shpileLoadLoadEffect(center, spacing, conds, comb, stab, destab);
  Mdestab -= destab;
  Mstab += stab;
  return CalculateSF(Mdestab, Mstab);
}

double xSlopeStability::fellenius_new(const Center& center, double R, double spacing, double gammaW,
                                      const std::vector<xLoadCond>& conds, const xLoadComb& comb,
                                      const xWaterTable& water, Stripes& stripes, double& Mstab,
                                      double& Mdestab) {
  return calc_sfslope(center, R, spacing, gammaW, 1.0, false, conds, comb, water, stripes, Mstab,
                      Mdestab);
}

double xSlopeStability::bishop_new(const Center& center, double R, double spacing, double gammaW,
                                   const std::vector<xLoadCond>& conds, const xLoadComb& comb,
                                   const xWaterTable& water, Stripes& stripes, double& Mstab,
                                   double& Mdestab) {
  return calc_sfslope(center, R, spacing, gammaW, 1.0, true, conds, comb, water, stripes, Mstab,
                      Mdestab);
}

double xSlopeStability::calcSafetyFactor_new(int formulation, Center center, double R,
                                             double spacing, double gammaW,
                                             const std::vector<xLoadCond>& conds,
                                             const xLoadComb& comb, const xWaterTable& water,
                                             Stripes& stripes, OstrelErrorType& err, double& Mstab,
                                             double& Mdestab) {
  err = ostrel::ok;
  if (formulation != 0 && formulation != 1) {
    err = errStabilityFormula;
    return 0.0;
  }
  return formulation == 0
           ? fellenius_new(center, R, spacing, gammaW, conds, comb, water, stripes, Mstab, Mdestab)
           : bishop_new(center, R, spacing, gammaW, conds, comb, water, stripes, Mstab, Mdestab);
}
