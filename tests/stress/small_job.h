#pragma once
/// @file  Small runs of all kinds, each with all it leaves. Programs: stress
// SPDX-License-Identifier: Apache-2.0

#include "support/random_walls.h"
#include "support/stream_round_trip.h"

#include <ostrel/ostrel.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace ostrel::testing {

/// One load of each kind, on the ground and on the wall, in a condition that every combination takes.
inline void load_it(xSheetpilingData& data) {
  xLoadCond& condition = data.loadConds.emplace_back();
  auto* everywhere = new xUniformLoad;
  everywhere->setValue(0.01);
  auto* strip = new xNastriformLoad;
  strip->setStartValue(0.02);
  strip->setEndValue(0.01);
  strip->setPosition(1000.0);
  strip->setExtension(3000.0);
  auto* line = new xLinearLoad;
  line->setPosition(2000.0);
  line->setValue(20.0);
  auto* point = new xPuntiformLoad;
  point->setPosition(3000.0);
  point->setValue(50e3);
  condition.soilLoads = {everywhere, strip, line, point};
  auto* force = new xConcenterdLoad;
  force->force = {1000.0, 10e3};
  auto* torque = new xTorqueLoad;
  torque->setPosition(500.0);
  torque->setValue(10e6);
  condition.shpileLoads = {force, torque};
  for (xLoadComb& comb : data.loadCombs)
    comb.actions.emplace_back().set("loads", true, 1.0, 1.0);
}

/// Four circles below the foot, and stripes of 2 m; the combinations ask for them.
inline void search_circles(xSheetpilingData& data, int formulation) {
  xSlopeStabilitySettings& slope = data.calcSettings.slope;
  slope.setFormulation(formulation);
  slope.setWidthstripe(2000.0);
  slope.setStepradius(1000.0);
  slope.grid.origin = {-4000.0, 4000.0};
  slope.grid.setStep(3000.0);
  slope.grid.setXsteps(1);
  slope.grid.setYsteps(1);
  slope.grid.buildCentersGrid();
  for (xGridPoint& centre : slope.grid.points) {
    centre.setMinRadius(22000.0);
    centre.setMaxRadius(22000.0);
  }
  for (xLoadComb& comb : data.loadCombs)
    comb.checks[checkGlobalStability] = true;
}

/// An earthquake on the first combination, its earth pressure by `formula`.
inline void shake(xSheetpilingData& data, formulType formula, double kh = 0.1) {
  data.calcSettings.setEpFormuls(true, formula);
  data.loadCombs[0].setCombType(combSeismic);
  data.loadCombs[0].seismic.coefficients = {kh, 0.05};
}

inline void take_panels(xSheetpilingData& data) {
  auto& wall = dynamic_cast<xPile_Sheetpiling&>(*data.props);
  wall.section = rectangle_section(800.0, 1000.0);
  wall.setSpacing(1000.0);
  wall.checkSettings.reinforcementSettings = rows_of_bars();
}

/// What turns an ordinary wall into one of another kind, also into one that is refused, at the
/// beginning, while a combination is solved, or by a verification.
inline constexpr std::array<void (*)(xSheetpilingData&), 14> changes = {
    load_it,
    take_panels,
    [](xSheetpilingData& data) { search_circles(data, 0); },
    [](xSheetpilingData& data) { search_circles(data, 1); },
    [](xSheetpilingData& data) { shake(data, formulaMononobeOkabe); },
    [](xSheetpilingData& data) { shake(data, formulaWood); },
    [](xSheetpilingData& data) { data.loadCombs.clear(); },
    [](xSheetpilingData& data) { data.props = nullptr; },
    [](xSheetpilingData& data) { data.calcSettings.setStepMolle(0.0); },
    [](xSheetpilingData& data) { data.soilLayers.clear(); },
    [](xSheetpilingData& data) { data.springIntervals.clear(); },
    [](xSheetpilingData& data) { shake(data, formulaMononobeOkabe, 0.9); },
    [](xSheetpilingData& data) { data.loadCombs[1].actions.pop_back(); },
    [](xSheetpilingData& data) {
      search_circles(data, 0);
      data.loadCombs[1].ulsFactors.clear();
    },
};

inline constexpr std::size_t plain_jobs = 10;
inline constexpr std::size_t small_jobs = plain_jobs + changes.size();

/// One of `small_jobs` runs: random walls with all verifications but global stability wanted, as they
/// are and then with one of the changes each.
inline xSheetpilingData small_job(std::size_t number) {
  xSheetpilingData data = random_wall(number);
  data.calcSettings.setStepMolle(500.0);
  for (xLoadComb& comb : data.loadCombs) {
    xLoadComb::initChecks(comb.checks);
    for (auto& [check, wanted] : comb.checks)
      wanted = check != checkGlobalStability;
    for (int factor = factorDownhillSoil; factor <= factorUplift; ++factor)
      comb.ulsFactors[static_cast<checkUlsFactors>(factor)] = 1.0;
  }
  if (number >= plain_jobs) changes[number - plain_jobs](data);
  return data;
}

/// What a run left: its verdict, and everything told of it.
struct ToldRun {
  xVeldErrorsType verdict = veldNothing;
  std::string messages;
  std::string all;
};

/// Runs `data` and tells everything: the results as they are stored, read back and stored again, and
/// the texts of all messages and failures.
inline ToldRun told_run(const xSheetpilingData& data) {
  xSolver solver;
  solver.data = data;
  xSheetpilingRes results;
  xUltimateLimitStates ultimate;
  xServiceabilityLimitStates serviceability;
  std::vector<xVeldError> errors;
  ToldRun told;
  told.verdict = solver.solve(results, ultimate, serviceability, errors);
  for (const xVeldError& error : errors)
    told.messages += error.MakeErrStr() + "\n";
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  told.all = std::to_string(told.verdict) + told.messages
           + std::to_string(ultimate.getSfMin(&failures)) + "\n";
  for (const auto& failure : failures)
    told.all += failure->getString() + "\n";
  told.all += stored(through_memory(results)) + stored(through_memory(ultimate))
            + stored(through_memory(serviceability));
  return told;
}

}  // namespace ostrel::testing
