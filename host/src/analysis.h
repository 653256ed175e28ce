#pragma once
/// @file  One analysis, from its input to all that came of it. Room: host
// SPDX-License-Identifier: Apache-2.0

#include <ostrel/error.h>
#include <ostrel/fem_solver.h>
#include <ostrel/results.h>
#include <ostrel/serviceability.h>
#include <ostrel/sheetpiling_data.h>
#include <ostrel/sheetpiling_model.h>
#include <ostrel/slope_stability.h>
#include <ostrel/ultimate_limit_states.h>

#include <cstddef>
#include <string>
#include <vector>

namespace ostrel::host {

/// What the library needs for a run, in its own units.
struct Job {
  std::string name;
  xSheetpilingData data;
  xFemSolverOptions fem;
};

/// What a run left behind.
struct Outcome {
  xVeldErrorsType verdict = veldNothing;  ///< `veldError` when the run did not go through
  std::vector<xVeldError> messages;
  xSheetpilingModel model;  ///< ground and beam
  xSheetpilingRes results;  ///< of the combinations that were solved
  bool verified = true;     ///< the run got as far as the verifications, through them or not
  xUltimateLimitStates ultimate;
  xServiceabilityLimitStates serviceability;
};

/// Runs the analysis. The job stays as it is: the run works on a copy.
Outcome analyse(const Job& job);

/// The results of the combination at `place` in the project, from 0; null where it has none.
const xCombResults* result_of(const Outcome& outcome, std::size_t place);

/// The search of slip circles of each combination that asks for it.
const std::vector<xSlopeStability>& slope_results(const Outcome& outcome);

}  // namespace ostrel::host
