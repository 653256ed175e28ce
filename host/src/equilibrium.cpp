// SPDX-License-Identifier: Apache-2.0
#include "equilibrium.h"

#include "phrases.h"

#include <fmt/format.h>

#include <cmath>
#include <cstddef>
#include <map>
#include <set>

namespace ostrel::host {

namespace {

ForceSum sum_of(const NodeForces& forces, const xFemData& fem) {
  ForceSum sum;
  for (const auto& [node, force] : forces) {
    if (node < 0 || static_cast<std::size_t>(node) >= fem.nodes.size()) continue;
    sum.across += force.y;
    sum.along += force.x;
    sum.moment += force.y * fem.nodes[static_cast<std::size_t>(node)].y + force.r;
  }
  return sum;
}

// The sizes of the loads one by one, which do not cancel each other.
ForceSum load_sizes_of(const xFemResults& results) {
  ForceSum sum;
  for (const xFemNodeData_pos& load : results.appliedForces) {
    sum += {.across = std::abs(load.data.y),
            .along = std::abs(load.data.x),
            .moment = std::abs(load.data.y * load.pos + load.data.r)};
  }
  return sum;
}

double ratio(double rest, double size) {
  return rest <= 0.0 ? 0.0 : rest / size;
}

ForceSum loads_of(const xFemResults& results) {
  ForceSum sum;
  for (const xFemNodeData_pos& load : results.appliedForces) {
    sum += {.across = load.data.y,
            .along = load.data.x,
            .moment = load.data.y * load.pos + load.data.r};
  }
  return sum;
}

NodeForces soil_forces(const xFemResults& results) {
  NodeForces forces;
  for (const auto& [node, force] : results.soilForces) {
    forces[node].y += force.springForce;
  }
  return forces;
}

// The prestress is no load of the beam: what acts on it is the rest.
NodeForces anchor_forces(const Job& job, const Outcome& outcome, const xFemResults& results) {
  NodeForces forces;
  for (std::size_t i = 0; i < results.anchorSoll.size() && i < outcome.model.anchors.size(); ++i) {
    const info_Fem_anchor& link = outcome.model.anchors[i];
    const auto& points = results.anchorSoll[i].axial.points;
    if (link.node < 0 || points.empty() || !(link.share > 0.0)) continue;
    const double prestress = job.data.anchors[static_cast<std::size_t>(link.id)].getPreStress();
    const double force = (points.front().value - prestress) / link.share;
    forces[link.node] += xFemNodeData(force * link.sinA, force * link.cosA, 0.0);
  }
  return forces;
}

double displacement(const xDiagram& diagram, int node) {
  const auto place = static_cast<std::size_t>(node);
  return node >= 0 && place < diagram.points.size() ? diagram.points[place].value : 0.0;
}

NodeForces elastic_forces(const xFemData& fem, const xFemResults& results) {
  NodeForces forces;
  for (const auto& [node, k] : fem.springDof0) {
    forces[node].x -= k * displacement(results.dispAxial, node);
  }
  for (const auto& [node, k] : fem.springDof1) {
    forces[node].y -= k * displacement(results.dispTrans, node);
  }
  for (const auto& [node, k] : fem.springDof2) {
    forces[node].r -= k * displacement(results.rotation, node);
  }
  return forces;
}

xFemNodeData force_at(const NodeForces& forces, int node) {
  const auto found = forces.find(node);
  return found == forces.end() ? xFemNodeData() : found->second;
}

// What the nodes with a fixed part need besides everything else, in that part alone.
NodeForces fixed_forces(const xFemData& fem, const xFemResults& results, const NodeForces& others) {
  NodeForces forces;
  for (const auto& [node, value] : fem.constrDof0) {
    forces[node].x = force_at(results.nodalForces, node).x - force_at(others, node).x;
  }
  for (const auto& [node, value] : fem.constrDof1) {
    forces[node].y = force_at(results.nodalForces, node).y - force_at(others, node).y;
  }
  for (const auto& [node, value] : fem.constrDof2) {
    forces[node].r = force_at(results.nodalForces, node).r - force_at(others, node).r;
  }
  return forces;
}

}  // namespace

ForceSum& ForceSum::operator+=(const ForceSum& other) {
  across += other.across;
  along += other.along;
  moment += other.moment;
  return *this;
}

ForceSum Balance::residual() const {
  ForceSum sum = loads;
  for (const ForceSum* part : {&soil, &anchors, &elastic_supports, &fixed_supports}) {
    sum += *part;
  }
  return sum;
}

double Balance::relative_residual() const {
  const ForceSum rest = residual();
  const double forces =
      ratio(std::hypot(rest.across, rest.along), std::hypot(load_sizes.across, load_sizes.along));
  const double moments = ratio(std::abs(rest.moment), load_sizes.moment);
  return std::isnan(forces) || forces > moments ? forces : moments;
}

std::string balance_sentence(double relative_residual, const Texts& texts) {
  if (relative_residual <= small_residual) return "";
  if (!std::isfinite(relative_residual)) {
    return std::string(phrase::residual_without_measure.in(texts));
  }
  return phrase::residual_not_small.in(texts, fmt::format("{:.2g}", 100.0 * relative_residual));
}

NodeForces elastic_support_forces(const Outcome& outcome, const xCombResults& combination) {
  return elastic_forces(outcome.model.fem, combination.femResults);
}

NodeForces fixed_support_forces(const Job& job, const Outcome& outcome,
                                const xCombResults& combination) {
  const xFemResults& results = combination.femResults;
  NodeForces others = soil_forces(results);
  for (const NodeForces& part :
       {anchor_forces(job, outcome, results), elastic_forces(outcome.model.fem, results)}) {
    for (const auto& [node, force] : part) {
      others[node] += force;
    }
  }
  return fixed_forces(outcome.model.fem, results, others);
}

Balance balance_of(const Job& job, const Outcome& outcome, const xCombResults& combination) {
  const xFemResults& results = combination.femResults;
  const xFemData& fem = outcome.model.fem;
  return {.loads = loads_of(results),
          .soil = sum_of(soil_forces(results), fem),
          .anchors = sum_of(anchor_forces(job, outcome, results), fem),
          .elastic_supports = sum_of(elastic_forces(fem, results), fem),
          .fixed_supports = sum_of(fixed_support_forces(job, outcome, combination), fem),
          .load_sizes = load_sizes_of(results)};
}

}  // namespace ostrel::host
