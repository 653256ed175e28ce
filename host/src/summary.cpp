// SPDX-License-Identifier: Apache-2.0
#include "summary.h"

#include "equilibrium.h"
#include "units.h"

#include <cmath>

namespace ostrel::host {

namespace {

Extreme largest(const xDiagram& diagram, double scale) {
  Extreme extreme;
  for (const diag_Point& point : diagram.points) {
    const double value = point.value * scale;
    if (!(std::abs(value) <= std::abs(extreme.value))) {
      extreme = {.value = value, .depth_m = m_of_mm(point.s)};
    }
  }
  return extreme;
}

struct NodeDisplacement {
  double towards_excavation = 0.0;  ///< [mm]
  double downwards = 0.0;           ///< [mm]
};

// Of no node, and of one without displacements, none.
NodeDisplacement displacement_of(const xFemResults& results, int node) {
  double along = 0.0;
  double across = 0.0;
  double rotation = 0.0;
  results.getDispNode(node, along, across, rotation);
  return {.towards_excavation = -across, .downwards = along};
}

SpringState state_of(const NodeModulus& spring, double pressure, double displacement) {
  const double limit = spring.modulus * spring.getDyLim();
  SpringState state;
  state.depth_m = m_of_mm(spring.position);
  state.modulus_kN_m3 = kn_m3_of_n_mm3(spring.modulus);
  state.limit_mm = spring.getDyLim();
  state.limit_kPa = kpa_of_n_mm2(limit);
  state.displacement_mm = displacement;
  state.pressure_kPa = kpa_of_n_mm2(pressure);
  state.use = limit > 0.0 ? std::abs(pressure) / limit : 0.0;
  state.yields = limit > 0.0 && std::abs(displacement) >= spring.getDyLim();
  return state;
}

void add_springs(const xCombResults& combination, const xSheetpilingModel& model,
                 Summary& summary) {
  const auto& reactions = combination.femResults.soilReaction.points;
  for (const auto& [node, spring] : combination.subgradeModulus.springs) {
    const int place = node - model.fem.getJtsoil();
    if (place < 0 || static_cast<std::size_t>(place) >= reactions.size()) continue;
    const SpringState state =
        state_of(spring, reactions[static_cast<std::size_t>(place)].value,
                 displacement_of(combination.femResults, node).towards_excavation);
    if (state.use > summary.spring_use.value) {
      summary.spring_use = {.value = state.use, .depth_m = state.depth_m};
    }
    if (state.yields) ++summary.yielding;
    summary.springs.push_back(state);
  }
  double used = 0.0;
  double limit = 0.0;
  for (const auto& [node, force] : combination.femResults.soilForces) {
    used += std::abs(force.springForce);
    limit += force.limitForce;
  }
  summary.mobilised = limit > 0.0 ? used / limit : 0.0;
}

void add_supports(const Job& job, const Outcome& outcome, const xCombResults& combination,
                  Summary& summary) {
  const xFemData& fem = outcome.model.fem;
  const NodeForces elastic = elastic_support_forces(outcome, combination);
  const NodeForces fixed = fixed_support_forces(job, outcome, combination);
  for (int node = 0; node < static_cast<int>(fem.nodes.size()); ++node) {
    const auto forces_at = [node](const NodeForces& forces) {
      const auto found = forces.find(node);
      return found == forces.end() ? xFemNodeData() : found->second;
    };
    xFemNodeData force = forces_at(elastic);
    force += forces_at(fixed);
    const bool is_foot = node + 1 == static_cast<int>(fem.nodes.size());
    SupportState state;
    state.depth_m = m_of_mm(fem.nodes[static_cast<std::size_t>(node)].y);
    if (fem.springDof1.contains(node) || fem.constrDof1.contains(node)) {
      state.horizontal_kN = kn_of_n(force.y);
    }
    if (fem.springDof0.contains(node) || (fem.constrDof0.contains(node) && !is_foot)) {
      state.vertical_kN = -kn_of_n(force.x);
    }
    if (fem.springDof2.contains(node) || fem.constrDof2.contains(node)) {
      state.moment_kNm = -knm_of_nmm(force.r);
    }
    if (state.horizontal_kN || state.vertical_kN || state.moment_kNm) {
      summary.supports.push_back(state);
    }
  }
}

void add_anchors(const Job& job, const Outcome& outcome, const xFemResults& results,
                 Summary& summary) {
  for (std::size_t i = 0; i < results.anchorSoll.size(); ++i) {
    const xDiagram& axial = results.anchorSoll[i].axial;
    AnchorState state{.place = i, .depth_m = m_of_mm(-axial.start.y)};
    if (!axial.points.empty()) state.force_kN = kn_of_n(axial.points.front().value);
    if (i < outcome.model.anchors.size()) {
      const info_Fem_anchor& link = outcome.model.anchors[i];
      state.place = static_cast<std::size_t>(link.id);
      state.horizontal_kN = state.force_kN * link.cosA;
      state.vertical_kN = state.force_kN * link.sinA;
      state.stiffness_kN_m = kn_m_of_n_mm(link.kSS + link.kCC);
      state.share = link.share;
      const NodeDisplacement head = displacement_of(results, link.node);
      state.head_displacement_mm = head.towards_excavation;
      state.head_settlement_mm = head.downwards;
    }
    if (state.place < job.data.anchors.size()) {
      state.prestress_kN = kn_of_n(job.data.anchors[state.place].getPreStress());
    }
    summary.anchors.push_back(state);
  }
}

Residual residual_of(const Balance& balance) {
  const ForceSum rest = balance.residual();
  return {.towards_retained_kN = kn_of_n(rest.across),
          .downwards_kN = kn_of_n(rest.along),
          .moment_kNm = knm_of_nmm(rest.moment),
          .relative_to_loads = balance.relative_residual()};
}

}  // namespace

Summary summary_of(const Job& job, const Outcome& outcome, const xCombResults& combination) {
  const xSheetpilingModel& model = outcome.model;
  const xFemResults& results = combination.femResults;
  Summary summary;
  summary.name = combination.getCombName();
  summary.index = combination.getcombIndex();
  summary.moment_kNm = largest(results.moment, knm_of_nmm(1.0));
  summary.shear_kN = largest(results.shear, kn_of_n(1.0));
  summary.axial_kN = largest(results.axial, kn_of_n(1.0));
  summary.displacement_mm = largest(results.dispTrans, -1.0);
  summary.head_displacement_mm = displacement_of(results, 0).towards_excavation;
  summary.excavation_displacement_mm =
      displacement_of(results, model.fem.getJtsoil()).towards_excavation;
  add_springs(combination, model, summary);
  add_supports(job, outcome, combination, summary);
  add_anchors(job, outcome, results, summary);
  summary.residual = residual_of(balance_of(job, outcome, combination));
  return summary;
}

}  // namespace ostrel::host
