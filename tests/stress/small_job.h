#pragma once
/// @file  One small run with all it leaves. Programs: stress
// SPDX-License-Identifier: Apache-2.0

#include "support/random_walls.h"
#include "support/stream_round_trip.h"

#include <ostrel/ostrel.h>

#include <cstdint>
#include <string>
#include <vector>

namespace ostrel::testing {

/// A random wall with the verifications of wall, anchors, piles, rigid body, cap beam, piping, uplift
/// and displacements wanted, and slip circles of a small grid left out.
inline xSheetpilingData small_job(std::uint64_t seed) {
  xSheetpilingData data = random_wall(seed);
  data.calcSettings.setStepMolle(500.0);
  for (xLoadComb& comb : data.loadCombs) {
    xLoadComb::initChecks(comb.checks);
    for (auto& [check, wanted] : comb.checks)
      wanted = check != checkGlobalStability;
  }
  return data;
}

/// Runs `data` and tells everything: the results as they are stored, read back and stored again, and
/// the texts of all messages and failures.
inline std::string told_run(const xSheetpilingData& data) {
  xSolver solver;
  solver.data = data;
  xSheetpilingRes results;
  xUltimateLimitStates ultimate;
  xServiceabilityLimitStates serviceability;
  std::vector<xVeldError> errors;
  const xVeldErrorsType verdict = solver.solve(results, ultimate, serviceability, errors);
  std::string told = std::to_string(verdict);
  for (const xVeldError& error : errors)
    told += error.MakeErrStr() + "\n";
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  told += std::to_string(ultimate.getSfMin(&failures)) + "\n";
  for (const auto& failure : failures)
    told += failure->getString() + "\n";
  return told + stored(through_memory(results)) + stored(through_memory(ultimate))
       + stored(through_memory(serviceability));
}

}  // namespace ostrel::testing
