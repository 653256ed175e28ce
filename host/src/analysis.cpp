// SPDX-License-Identifier: Apache-2.0
#include "analysis.h"

#include <ostrel/solver.h>

#include <cstddef>
#include <utility>

namespace ostrel::host {

Outcome analyse(const Job& job) {
  xSolver solver;
  solver.data = job.data;
  solver.femOptions = job.fem;
  Outcome outcome;
  outcome.verdict =
      solver.solve(outcome.results, outcome.ultimate, outcome.serviceability, outcome.messages);
  const std::size_t combinations = solver.data.loadCombs.size();
  outcome.verified = outcome.verdict != veldError
                  || (combinations > 0 && outcome.results.combResults.size() == combinations);
  outcome.model = std::move(solver.model);
  return outcome;
}

const std::vector<xSlopeStability>& slope_results(const Outcome& outcome) {
  return outcome.ultimate.slopeStabilityDesign.getResults();
}

}  // namespace ostrel::host
