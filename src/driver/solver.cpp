// SPDX-License-Identifier: Apache-2.0
#include "ostrel/solver.h"

#include "model/pile_wall.h"

#include <cassert>
#include <cstdint>
#include <utility>

using ostrel::model::vertical_back;

namespace {

constexpr std::size_t fixed_actions = 3;  // weight, earth pressure, water pressure
constexpr auto spring_factors = geoFactorResistance;

// Holds the foot of the wall along it.
xConstraint held_foot(double length) {
  xConstraint foot;
  foot.setPosition(length);
  foot.axial.setActive(true);
  return foot;
}

// These words stay as they are in every language; only the message behind them is translated.
std::string named(const xLoadComb& comb) {
  return "Combinazione '" + comb.getCombName() + "': ";
}

}  // namespace

xSolver::xSolver() {
  xSolver::reset();
}

void xSolver::reset() {
  model.reset();
  data.reset();
}

xVeldErrorsType xSolver::solve(xSheetpilingRes& results, xUltimateLimitStates& uls,
                               xServiceabilityLimitStates& sls, std::vector<xVeldError>& errors) {
  const xPile_Sheetpiling* wall = ostrel::model::pile_wall(data);
  const std::int64_t id_obj = wall ? wall->getIdObj() : -1;
  const auto failed = [&errors, id_obj](OstrelErrorType code) {
    if (code == ostrel::ok) return false;
    errors.emplace_back(code, id_obj, nullptr);
    return true;
  };
  if (failed(model.create_Stratigraphy(&data))) return veldError;
  assert(wall);  // without a wall there is no stratigraphy
  data.restriction.imposed.push_back(held_foot(wall->getLength()));
  if (failed(model.create_FemModel(&data))) return veldError;
  if (!solveCombinations(results, errors)) return veldError;
  if (failed(checkULS(results, uls, errors))) return veldError;
  if (failed(checkSLS(results, sls))) return veldError;
  return veldNothing;
}

bool xSolver::solveCombinations(xSheetpilingRes& results, std::vector<xVeldError>& errors) {
  const std::int64_t id_obj = ostrel::model::pile_wall(data)->getIdObj();
  bool all_solved = true;
  xFemSolver beam;  // its matrices serve all combinations
  for (xLoadComb& comb : data.loadCombs) {
    if (comb.actions.size() != data.loadConds.size() + fixed_actions) {
      errors.emplace_back(errCondListMismatch, -1, nullptr);
      return false;
    }
    xCombResults result;
    if (const auto code = solveOne(comb, result, beam); code != ostrel::ok) {
      errors.emplace_back(code, id_obj, named(comb).c_str());
      all_solved = false;
      continue;
    }
    results.combResults.push_back(std::move(result));
  }
  return all_solved;
}

OstrelErrorType xSolver::solveOne(xLoadComb& comb, xCombResults& result, xFemSolver& beam) {
  const xPile_Sheetpiling& wall = *ostrel::model::pile_wall(data);
  const formulType formula = data.calcSettings.get_EpFormuls(comb.getCombType() == combSeismic);
  const auto code = result.subgradeModulus.compute_SkSpring(
      model.fem.getJtsoil(), formula, vertical_back, data.springIntervals, spring_factors,
      comb.geoFactors, model.layers, wall.getDepth(), wall.getLength(), wall.getSpacing(),
      data.calcSettings.getDispLim());
  if (code != ostrel::ok) return code;
  result.setCombName(comb.getCombName());
  result.setcombIndex(comb.getcombIndex());
  comb.seismic.switchSign();
  return solveOnBeam(&comb, result, beam);
}
