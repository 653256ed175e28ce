// SPDX-License-Identifier: Apache-2.0
#include "model/pile_wall.h"
#include "model/water_weight.h"
#include "ostrel/slope_stability.h"
#include "ostrel/tolerances.h"
#include "slope/circle_cut.h"
#include "slope/circle_trial.h"
#include "slope/ignored_circles.h"
#include "slope/stripes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace {

namespace slope = ostrel::slope;

/// The radii to try at one centre.
struct Radii {
  std::int32_t count = 0;
  double step = 0.0;  ///< [mm]
};

/// The radii of a centre; one radius needs no step, and against the range there may be none.
///
/// @oddity The largest radius is not tried unless it is also the smallest: the range is divided
/// into as many steps as there are radii. Stored results depend on it.
OstrelErrorType radii_of(const xGridPoint& point, double wanted_step, Radii& radii) {
  const double range = point.getMaxRadius() - point.getMinRadius();
  if (!(range >= 0.0)) return errCircleBounds;
  const double steps = range > 0.0 ? range / wanted_step : 0.0;
  if (!(std::isfinite(steps) && steps < slope::most_steps)) return errCircleBounds;
  const double count = std::max(std::trunc(steps) + 1.0, 0.0);
  radii.count = static_cast<std::int32_t>(count);
  radii.step = range / count;
  return ostrel::ok;
}

/// The factor of resistance of a combination, 0 where it has none [-].
double resistance_factor(const xLoadComb& comb) {
  const auto factor = comb.ulsFactors.find(factorGlobalStability);
  return factor == comb.ulsFactors.end() ? 0.0 : factor->second;
}

/// What the combination and the settings must be for a circle to have a factor.
OstrelErrorType formulation_error(int formulation, double gamma_r) {
  if (formulation != 0 && formulation != 1) return errStabilityFormula;
  const double zero = (*getTolerances())[xTolerances::partial_factor];
  if (!(gamma_r >= zero)) return errStabilityFactors;
  return ostrel::ok;
}

/// What all circles of one combination share.
struct SearchInput {
  double spacing;
  double gamma_water;
  const std::vector<xLoadCond>& conds;
  const xLoadComb& comb;
  const xWaterTable& water;
  slope::Stripes& stripes;
};

/// Tries the circles of one centre after the other and keeps the best of all in a result.
class CircleSearch {
public:
  CircleSearch(const SearchInput& input, const xSlopeStabilitySettings& settings,
               xSlopeStability& result, std::vector<err_circle>& ignored)
      : input_(input),
        settings_(settings),
        result_(result),
        ignored_(ignored),
        gamma_r_(resistance_factor(input.comb)),
        wrong_input_(formulation_error(settings.getFormulation(), gamma_r_)),
        trial_(input.stripes, input.spacing, input.gamma_water, input.conds, input.comb,
               input.water) {}

  OstrelErrorType try_centre(const xGridPoint& point) {
    Radii radii;
    const auto code = radii_of(point, settings_.getStepradius(), radii);
    if (code != ostrel::ok) return code;
    xGridPointResults best;
    best.center = xPoint2d(point.center[0], point.center[1]);
    bool any_valid = false;
    slope::IgnoredAtCentre ignored_here(ignored_, point.center[0], point.center[1]);
    double radius = point.getMinRadius();
    for (std::int32_t i = 0; i < radii.count; ++i, radius += radii.step) {
      if (!trial_.cut(slope::place(point.center), radius)) {
        ignored_here.add(radius);
        continue;
      }
      any_valid = true;
      if (wrong_input_ != ostrel::ok) return wrong_input_;
      if (improves(radius, best) && result_.getSf() > best.sf) keep(best, point.center);
    }
    if (any_valid) result_.get_gridPointRes().push_back(best);
    return ostrel::ok;
  }

private:
  /// Whether the circle cut last is better than the best of its centre; it then takes its place.
  bool improves(double radius, xGridPointResults& best) {
    const slope::CircleMoments moments = trial_.moments(settings_.getFormulation() == 1);
    const double factor = CalculateSF(moments.destab, moments.stab) / gamma_r_;
    if (!(best.sf > factor)) return false;
    best.sf = factor;
    best.radius = radius;
    best.Mstab = moments.stab / gamma_r_;
    best.Mdestab = moments.destab;
    return true;
  }

  /// Keeps a circle and a copy of its slices.
  void keep(const xGridPointResults& best, const xSlopeStability::Center& center) {
    result_.getstabChekData() = {.xc = best.center.x,
                                 .yc = best.center.y,
                                 .sf = best.sf,
                                 .radius = best.radius,
                                 .Mstab = best.Mstab,
                                 .Mdestab = best.Mdestab};
    slope::intersectStripes(center, best.radius, input_.stripes, slices_);
    auto code = ostrel::ok;
    double stab = 0.0;
    double destab = 0.0;
    result_.calcSafetyFactor_new(settings_.getFormulation(), center, best.radius, input_.spacing,
                                 input_.gamma_water, input_.conds, input_.comb, input_.water,
                                 slices_, code, stab, destab);
    slope::copyStripes(slices_, result_.getStripesMin());
  }

  SearchInput input_;
  const xSlopeStabilitySettings& settings_;
  xSlopeStability& result_;
  std::vector<err_circle>& ignored_;
  double gamma_r_;
  OstrelErrorType wrong_input_;  ///< raised by the first circle that could be reckoned
  slope::CircleTrial trial_;
  slope::Stripes slices_;
};

}  // namespace

OstrelErrorType xSlopeStability::check(double spacing, double gammaW,
                                       const xSlopeStabilitySettings& settings,
                                       const std::vector<xBoundSoilLayer>& layers,
                                       const xBoundSoilLayer& boundary,
                                       const std::vector<xLoadCond>& conds, const xLoadComb& comb,
                                       const xWaterTable& water, Stripes& stripes,
                                       std::vector<err_circle>& ignored) {
  if (stripes.empty()) {
    const auto code = slope::buildStripes(water, settings, layers, boundary, stripes);
    if (code != ostrel::ok) return code;
  }
  data.sf = stabChekData{}.sf;
  data.radius = 0.0;
  StripesMin.clear();
  CircleSearch search({.spacing = spacing,
                       .gamma_water = gammaW,
                       .conds = conds,
                       .comb = comb,
                       .water = water,
                       .stripes = stripes},
                      settings, *this, ignored);
  for (const xGridPoint& point : settings.grid.points) {
    const auto code = search.try_centre(point);
    if (code != ostrel::ok) return code;
  }
  return gridPointRes.empty() ? errEmptyCentersGrid : ostrel::ok;
}

OstrelErrorType xSlopeStabilityDesign::check(const xSheetpilingData& data,
                                             std::vector<xVeldError>& errors) {
  const xPile_Sheetpiling* wall = ostrel::model::pile_wall(data);
  if (!wall) return errNoWall;
  xSlopeStability::Stripes stripes;
  std::vector<err_circle> ignored;
  for (const xLoadComb& comb : data.loadCombs) {
    if (!comb.checkActive(checkGlobalStability)) continue;
    xSlopeStability result;
    result.setCheckID(wall->getIdObj(), comb.getcombIndex(), comb.getCombName());
    const auto code = result.check(wall->getSpacing(), ostrel::model::water_unit_weight,
                                   data.calcSettings.slope, data.soilLayers, data.boundLayer,
                                   data.loadConds, comb, data.waterTable, stripes, ignored);
    if (code != ostrel::ok) return code;
    results.push_back(std::move(result));
  }
  slope::reportIgnoredCircles(ignored, errors);
  computeSfMin();
  return ostrel::ok;
}
