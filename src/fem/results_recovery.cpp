// SPDX-License-Identifier: Apache-2.0
// From the displacements of the beam back to forces and reactions.
#include "fem/beam_assembly.h"
#include "fem/beam_supports.h"
#include "ostrel/fem_solver.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace {

// Forces of a node below this are not reported [N], mixed with [Nmm].
constexpr double report_threshold = 0.0001;

std::array<double, 3> at_node(const std::vector<double>& by_dof, std::size_t node) {
  return {by_dof[3 * node], by_dof[3 * node + 1], by_dof[3 * node + 2]};
}

bool is_reported(const std::array<double, 3>& force) {
  const auto& [x, y, r] = force;
  return std::sqrt(x * x + y * y + r * r) > report_threshold;
}

// How many whole nodes the vector holds, at most as many as the beam has.
std::size_t nodes_in(const std::vector<double>& by_dof, std::size_t nodes) {
  return std::min(by_dof.size() / 3, nodes);
}

// K d, reading the band of K alone: the beam has nothing beyond it.
std::vector<double> times_beam(const arma::Mat<double>& K, const std::vector<double>& d) {
  const std::size_t size = std::min<std::size_t>({K.n_rows, K.n_cols, d.size()});
  std::vector<double> product(d.size(), 0.0);
  for (std::size_t j = 0; j < size; ++j) {
    const auto rows = ostrel::fem::band_rows(j, size);
    for (std::size_t i = rows.first; i < rows.end; ++i) {
      product[i] += K.at(i, j) * d[j];
    }
  }
  return product;
}

}  // namespace

OstrelErrorType xFemSolver::getDisplacements(const std::vector<double>& d,
                                             std::vector<xFemNodeData>& out) {
  out.assign(Nn, xFemNodeData{});
  for (std::size_t n = 0; n < nodes_in(d, Nn); ++n) {
    const auto [x, y, r] = at_node(d, n);
    out[n] = xFemNodeData(x, y, r);
  }
  return ostrel::ok;
}

OstrelErrorType xFemSolver::getAppliedNodalForces(const std::vector<double>& total,
                                                  std::map<int, xFemNodeData>& out) {
  out.clear();
  for (std::size_t n = 0; n < nodes_in(total, Nn); ++n) {
    const auto force = at_node(total, n);
    if (!is_reported(force)) continue;
    out[static_cast<int>(n)] = xFemNodeData(force[0], force[1], force[2]);
  }
  return ostrel::ok;
}

OstrelErrorType xFemSolver::getSoilReaction(bool linear, const std::map<int, NodeModulus>& modulus,
                                            const std::vector<double>& d,
                                            std::map<int, reacTerr>& out) {
  out.clear();
  for (const auto& [node, spring] : modulus) {
    const std::size_t dof = ostrel::fem::dof_within(d.size(), node, 1);
    const double u = dof < d.size() ? d[dof] : 0.0;
    const double limit = spring.getDyLim();
    const double c = std::abs(u) < limit ? u : u >= 0.0 ? limit : -limit;
    reacTerr& reaction = out[node];
    reaction.limited = -spring.modulus * c;
    reaction.reaction = linear ? -spring.modulus * u : reaction.limited;
  }
  return ostrel::ok;
}

OstrelErrorType xFemSolver::getBeamStress(const xFemData& data, const std::vector<double>& d,
                                          const std::vector<arma::Col<double>>& total_elem_loads,
                                          std::vector<xBeamStress>& out) {
  out.assign(Ne, xBeamStress{});
  if (!fits(data) || elemK.size() != Ne || total_elem_loads.size() != Ne) return errNodeCountModel;
  for (std::size_t e = 0; e < Ne; ++e) {
    const xElemData& element = data.elements[e];
    arma::Col<double>::fixed<6> at_dofs(arma::fill::zeros);
    for (const int end : {0, 1}) {
      const int node = end == 0 ? element.getStartNode() : element.getEndNode();
      const std::size_t first = ostrel::fem::dof_within(d.size(), node, 0);
      if (!(first + 2 < d.size())) return errFemNodeNotFound;
      for (std::size_t k = 0; k < 3; ++k) {
        at_dofs[3 * static_cast<std::size_t>(end) + k] = d[first + k];
      }
    }
    const arma::Col<double>::fixed<6> f = elemK[e] * at_dofs - total_elem_loads[e];
    xBeamStress& stress = out[e];
    stress.setStartNode(element.getStartNode());
    stress.setEndNode(element.getEndNode());
    stress.points.resize(2);
    stress.points[0].N = -f[0];
    stress.points[0].T = f[1];
    stress.points[0].M = -f[2];
    stress.points[1].N = f[3];
    stress.points[1].T = -f[4];
    stress.points[1].M = f[5];
  }
  return ostrel::ok;
}

OstrelErrorType xFemSolver::getNodalForce(std::vector<double>& total, std::vector<double>& d,
                                          std::map<int, xFemNodeData>& out) {
  if (total.size() != d.size()) return errNodeCountModel;
  d = times_beam(K, d);
  for (std::size_t i = 0; i < d.size(); ++i) {
    d[i] = -(d[i] - total[i]);
  }
  for (std::size_t n = 0; n < nodes_in(d, Nn); ++n) {
    const auto force = at_node(d, n);
    if (!is_reported(force)) continue;
    out[static_cast<int>(n)] = xFemNodeData(-force[0], -force[1], -force[2]);
  }
  return ostrel::ok;
}
