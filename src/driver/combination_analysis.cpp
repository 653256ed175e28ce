// SPDX-License-Identifier: Apache-2.0
// One combination: its actions become loads of the beam, the beam is solved, the diagrams are kept.
#include "driver/soil_limit_forces.h"
#include "fem/finite_results.h"
#include "model/pile_wall.h"
#include "ostrel/solver.h"

#include <cstddef>
#include <tuple>
#include <utility>

using ostrel::model::vertical_back;

namespace {

constexpr auto pressure_factors = geoFactorPressure;

// The fixed head of a combination's actions; load condition i goes with action 3 + i.
constexpr std::size_t weight_action = 0;
constexpr std::size_t earth_action = 1;
constexpr std::size_t water_action = 2;
constexpr std::size_t first_condition_action = 3;

formulType pressure_formula(const xCalcSettings& settings, const xLoadComb& comb) {
  return settings.get_EpFormuls(comb.getCombType() == combSeismic);
}

}  // namespace

OstrelErrorType xSolver::addWeight(const xLoadComb& comb, xCombResults& result) {
  const xAction& action = comb.actions[weight_action];
  if (!action.getIsActive()) return ostrel::ok;
  const xPile_Sheetpiling& wall = *ostrel::model::pile_wall(data);
  xFemLoadCond cond(action.getCondName());
  const double kv = comb.seismic.coefficients[1];
  double w = wall.material.getUnitWeight() * action.getFactor(actFirst) * (1.0 - kv);
  const auto code =
      applyDeadLoad_new(&model.fem, w, wall.getSpacing(), cond.pressures, cond.nodalForces);
  if (code != ostrel::ok) return code;
  result.femLoadConds.push_back(std::move(cond));
  return ostrel::ok;
}

OstrelErrorType xSolver::addEarthPressure(const xLoadComb& comb, xCombResults& result) {
  const xAction& action = comb.actions[earth_action];
  if (!action.getIsActive()) return ostrel::ok;
  const xPile_Sheetpiling& wall = *ostrel::model::pile_wall(data);
  xFemLoadCond cond(action.getCondName());
  auto code = result.earthPress.computeActiveEarthPress(
      pressure_factors, comb.geoFactors, action.getFactor(actSecond),
      pressure_formula(data.calcSettings, comb), vertical_back, model.layers,
      comb.seismic.coefficients, wall.getDepth(), wall.getSpacing());
  if (code == ostrel::ok) code = applyPress(result.earthPress.diagrams, cond.pressures);
  if (code != ostrel::ok) return code;
  result.femLoadConds.push_back(std::move(cond));
  return ostrel::ok;
}

OstrelErrorType xSolver::addWaterPressure(const xLoadComb& comb, xCombResults& result) {
  const xAction& action = comb.actions[water_action];
  if (!data.waterTable.getIsDefined() || !action.getIsActive()) return ostrel::ok;
  const xPile_Sheetpiling& wall = *ostrel::model::pile_wall(data);
  xFemLoadCond cond(action.getCondName());
  std::ignore = result.hydroPress.computeHydroPress(
      -data.waterTable.getLivelloMonte(), action.getFactor(actSecond), model.layers,
      wall.getDepth(), wall.getSpacing());  // ignored by rule
  const auto code = applyPress(result.hydroPress.diagrams, cond.pressures);
  if (code != ostrel::ok) return code;
  result.femLoadConds.push_back(std::move(cond));
  return ostrel::ok;
}

OstrelErrorType xSolver::addLoadCondition(std::size_t i, xLoadComb& comb, xCombResults& result) {
  xAction& action = comb.actions[first_condition_action + i];
  if (!action.getIsActive()) return ostrel::ok;
  const double spacing = ostrel::model::pile_wall(data)->getSpacing();
  const xLoadCond& loads = data.loadConds[i];
  xFemLoadCond cond(action.getCondName());
  xLoadCondPress pressures;
  pressures.setObjectID(loads.id, loads.name);
  for (const auto& load : loads.soilLoads) {
    xLoadPress press = computeLoadPress(action, &comb, load.get(), spacing);
    if (press.diagrams.empty()) return errLoadUndefined;
    pressures.loads.push_back(std::move(press));
    const auto code = applyPress(pressures.loads.back().diagrams, cond.pressures);
    if (code != ostrel::ok) return code;
  }
  result.loadCondPress.push_back(std::move(pressures));
  for (const auto& load : loads.shpileLoads) {
    const auto code = applyShpileLoads(spacing, action, &model.fem, load.get(), cond.nodalForces);
    if (code != ostrel::ok) return code;
  }
  result.femLoadConds.push_back(std::move(cond));
  return ostrel::ok;
}

OstrelErrorType xSolver::solveForCombination(xLoadComb* comb, xCombResults& result) {
  xFemSolver beam;
  return solveOnBeam(comb, result, beam);
}

OstrelErrorType xSolver::solveOnBeam(xLoadComb* comb, xCombResults& result, xFemSolver& beam) {
  const xPile_Sheetpiling* wall = ostrel::model::pile_wall(data);
  if (!wall) return errNoWall;
  if (!comb || comb->actions.size() != first_condition_action + data.loadConds.size()) {
    return errCondListMismatch;
  }
  auto code = addWeight(*comb, result);
  if (code == ostrel::ok) code = addEarthPressure(*comb, result);
  if (code == ostrel::ok) code = addWaterPressure(*comb, result);
  for (std::size_t i = 0; i < data.loadConds.size() && code == ostrel::ok; ++i) {
    code = addLoadCondition(i, *comb, result);
  }
  if (code != ostrel::ok) return code;

  const auto& springs = result.subgradeModulus.springs;
  xCombRes raw;
  code = beam.solve(femOptions, model.anchors, model.fem, springs, result.femLoadConds, raw,
                    wall->getSpacing());
  if (code == ostrel::ok) code = result.femResults.getData(data, model.anchors, model.fem, raw);
  if (code != ostrel::ok) return code;
  auto& soil_forces = result.femResults.soilForces;
  ostrel::driver::add_soil_limit_forces(springs, wall->getSpacing(), soil_forces);
  return ostrel::fem::is_finite(soil_forces) ? ostrel::ok : errEquationSolve;
}

xLoadPress xSolver::computeLoadPress(xAction& action, xLoadComb* comb, xSoilLoad* load,
                                     double spacing) {
  if (!comb) return {};
  const double gamma = action.getFactor(actSecond);
  const auto acc = comb->seismic.coefficients;
  const double depth = data.props ? data.props->getDepth() : 0.0;
  if (auto* uniform = dynamic_cast<xUniformLoad*>(load)) {
    return xUniform{}.compute_LoadPress(uniform, pressure_factors, comb->geoFactors, gamma,
                                        pressure_formula(data.calcSettings, *comb), vertical_back,
                                        model.layers, acc, depth, spacing);
  }
  if (auto* strip = dynamic_cast<xNastriformLoad*>(load)) {
    return xNastriform{}.computeLoadPress(strip, gamma, vertical_back, model.layers, acc, depth,
                                          spacing);
  }
  if (auto* line = dynamic_cast<xLinearLoad*>(load)) {
    return xLinear{}.computeLoadPress(line, gamma, vertical_back, model.layers, acc, depth,
                                      spacing);
  }
  if (auto* point = dynamic_cast<xPuntiformLoad*>(load)) {
    return xPuntiform{}.computeLoadPress(point, gamma, vertical_back, model.layers, acc, depth,
                                         spacing);
  }
  return {};
}
