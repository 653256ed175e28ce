// SPDX-License-Identifier: Apache-2.0
#include "validation/runs.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <vector>

namespace ostrel::validation {
namespace {

double largest(const xDiagram& diagram) {
  double size = 0.0;
  for (const diag_Point& point : diagram.points)
    size = std::max(size, std::abs(point.value));
  return size;
}

/// The diagram of the displacements has a point for each node, from the head down.
std::size_t node_at(const std::vector<diag_Point>& nodes, double depth) {
  for (std::size_t n = 0; n < nodes.size(); ++n) {
    if (std::abs(nodes[n].s - depth) < 1e-6) return n;
  }
  throw std::runtime_error("no node at this depth");
}

}  // namespace

double WholeRun::displacement_at(double depth) const {
  const auto& nodes = result.femResults.dispTrans.points;
  return nodes[node_at(nodes, depth)].value;
}

double WholeRun::force_at(double depth) const {
  const auto node = node_at(result.femResults.dispTrans.points, depth);
  return result.femResults.nodalForces.at(static_cast<int>(node)).y;
}

double WholeRun::largest_moment() const {
  return largest(result.femResults.moment);
}

WholeRun run_wall(const xSheetpilingData& data) {
  xSolver solver;
  solver.data = data;
  xSheetpilingRes results;
  xUltimateLimitStates uls;
  xServiceabilityLimitStates sls;
  std::vector<xVeldError> errors;
  solver.solve(results, uls, sls, errors);
  if (!errors.empty()) throw std::runtime_error(errors.front().MakeErrStr());
  if (results.combResults.size() != 1) throw std::runtime_error("not one combination");
  return {results.combResults.front()};
}

}  // namespace ostrel::validation
