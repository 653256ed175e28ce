// SPDX-License-Identifier: Apache-2.0
// The verification of the bulbs, combination by combination; their records are in bulb_results.cpp.
#include "ostrel/geotechnical_anchor_check.h"

#include "anchors/anchor_demand.h"
#include "anchors/bulb_points.h"
#include "anchors/overburden.h"
#include "ostrel/results.h"
#include "ostrel/sheetpiling_data.h"
#include "ostrel/tolerances.h"

#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>

using ostrel::anchors::Overburden;

namespace {

// The soil around a bulb with the design values of its bond.
xSoilProps bond_soil(const xSoilProps& soil, const xAnchorSettings& settings,
                     const std::vector<GeoCombFactor>& factors) {
  xSoilProps design = soil;
  if (!settings.getuse_soil()) {
    design.setAdhesion(settings.getadesione());
    design.setInterfaceFriction(settings.getattrito());
  }
  design.applyGeoFactors(geoFactorResistance, factors);
  return design;
}

double distance(const sorrel::Point& a, const sorrel::Point& b) {
  return std::hypot(b[0] - a[0], b[1] - a[1]);
}

xAnchorPartialFactors factors_of(const xLoadComb& comb) {
  xAnchorPartialFactors factors;
  factors.geoFactors = comb.geoFactors;
  const auto entry = comb.ulsFactors.find(factorAnchors);
  factors.gammaR = entry != comb.ulsFactors.end() ? entry->second : 1.0;
  return factors;
}

double correlation_factor(const xAnchorSettings& settings) {
  return settings.get_ValueType() != csiMeanValues ? settings.getCsi4() : settings.getCsi3();
}

}  // namespace

OstrelErrorType xGeoAnchorCombRes::buildBulb(const xAnchor& anchor, const xWaterTable& water,
                                             const std::vector<xBoundSoilLayer>& layers,
                                             const xAnchorPartialFactors& factors) {
  bulbs.clear();
  const auto bonded = ostrel::anchors::bonded_length(anchor);
  const std::vector<sorrel::Point> points = ostrel::anchors::bulb_points(bonded, layers);
  const ostrel::anchors::DesignGround ground(layers, water, factors.geoFactors);
  for (std::size_t i = 1; i < points.size(); ++i) {
    const sorrel::Point middle = (points[i - 1] + points[i]) * 0.5;
    const Overburden over = ground.above(middle);
    if (!over.layer) return errNoLayerIntersection;
    xBulbAnchor& bulb = bulbs.emplace_back();
    bulb.soil = bond_soil(layers[*over.layer].soil, anchor.settings, factors.geoFactors);
    bulb.set_Area(std::numbers::pi * anchor.getbulbDiam() * distance(points[i - 1], points[i]));
    bulb.setAlphaD(anchor.getAlphaD());
    bulb.calcSoilCoeff(anchor.settings.getSoilCoeffType());
    bulb.setDepthStress(over.stress);
  }
  return ostrel::ok;
}

OstrelErrorType xGeoAnchorCombRes::_check(double force, const xAnchor& anchor,
                                          const xAnchorPartialFactors& factors) {
  depth = anchor.z;
  if (bulbs.empty()) return errNoBulb;
  const double zero = (*getTolerances())[xTolerances::partial_factor];
  if (!(std::abs(factors.gammaR) >= zero)) return errPulloutFactorZero;
  double strength = 0.0;
  for (const xBulbAnchor& bulb : bulbs) {
    strength += bulb.anchorageStrength();
  }
  Rd = strength / correlation_factor(anchor.settings) / factors.gammaR;
  Fd = force;
  Sf = CalculateSF(Fd, Rd);
  return ostrel::ok;
}

OstrelErrorType xGeotechnicalAnchorDesign::check(const xSheetpilingData& data,
                                                 const std::vector<info_Fem_anchor>& fem,
                                                 const std::vector<xCombResults>& results) {
  if (results.size() != data.loadCombs.size()) return errResultCount;
  for (std::size_t i = 0; i < data.anchors.size(); ++i) {
    const xAnchor& anchor = data.anchors[i];
    xGeoAnchorResults outcome;
    for (std::size_t j = 0; j < results.size(); ++j) {
      if (!data.loadCombs[j].checkActive(checkAnchorPullout)) continue;
      xGeoAnchorCombRes record;
      ostrel::anchors::identify(record, anchor, results[j]);
      const xAnchorPartialFactors factors = factors_of(data.loadCombs[j]);
      const auto built = record.buildBulb(anchor, data.waterTable, data.soilLayers, factors);
      if (built != ostrel::ok) return built;
      if (!(i < fem.size())) return errFemNodeNotFound;
      const auto force = ostrel::anchors::design_force(anchor, fem[i], results[j].femResults);
      if (!force) return errFemNodeNotFound;
      if (const auto code = record._check(*force, anchor, factors); code != ostrel::ok) return code;
      outcome.combinations.push_back(std::move(record));
    }
    outcome.computeSfMin();
    if (!outcome.combinations.empty()) anchors.push_back(std::move(outcome));
  }
  return ostrel::ok;
}
