// SPDX-License-Identifier: Apache-2.0
#include "ostrel/fem_solver.h"

#include "fem/beam_assembly.h"
#include "fem/beam_limit.h"

#include <algorithm>

namespace {

// True when every load of the condition stands on one of the elements and nodes.
bool stands_on_beam(const xFemLoadCond& condition, std::uint32_t nodes, std::uint32_t elements) {
  const auto below = [](const auto& entries, std::uint32_t count) {
    return std::all_of(entries.begin(), entries.end(), [count](const auto& entry) {
      return entry.first >= 0 && static_cast<std::uint32_t>(entry.first) < count;
    });
  };
  return below(condition.pressures, elements) && below(condition.nodalForces, nodes);
}

// Adds three numbers at the dofs of a node.
void add_at_node(const xFemNodeData& force, std::size_t node, std::vector<double>& loads) {
  const std::size_t first = ostrel::fem::dofs_per_node * node;
  loads[first] += force.x;
  loads[first + 1] += force.y;
  loads[first + 2] += force.r;
}

// The nodal loads of the pressures, by element; adds them to `loads`.
std::vector<arma::Col<double>> load_elements(const xFemData& data, const xFemLoadCond& condition,
                                             std::uint32_t elements, std::vector<double>& loads) {
  std::vector<arma::Col<double>> columns(
      elements, arma::Col<double>(ostrel::fem::dofs_per_element, arma::fill::zeros));
  for (const auto& [key, pressure] : condition.pressures) {
    const auto element = static_cast<std::uint32_t>(key);
    columns[element] = ostrel::fem::equivalent_nodal_loads(pressure, data.elements[element].getL());
    const std::size_t first = std::size_t{ostrel::fem::dofs_per_node} * element;
    for (std::size_t k = 0; k < ostrel::fem::dofs_per_element; ++k) {
      loads[first + k] += columns[element][k];
    }
  }
  return columns;
}

}  // namespace

void xFemSolver::reset() {
  *this = xFemSolver{};
}

void xFemSolver::takeSizes(const xFemData& data, std::size_t load_conditions) {
  Ne = static_cast<std::uint32_t>(data.elements.size());
  Nn = Ne + 1;
  Np = ostrel::fem::dofs_per_node * Nn;
  Nlc = static_cast<std::uint32_t>(load_conditions);
  Dembin = data.getDembin();
  elemLength.clear();
  for (const xElemData& element : data.elements) {
    elemLength.push_back(element.getL());
  }
}

OstrelErrorType xFemSolver::buildTopologyMat() {
  topology.clear();
  for (std::uint32_t e = 0; e < Ne; ++e) {
    topology.push_back(ostrel::fem::element_dofs(e));
  }
  return ostrel::ok;
}

OstrelErrorType xFemSolver::buildLoadMat(const xFemData& data,
                                         const std::vector<xFemLoadCond>& conditions) {
  loads.clear();
  elemLoads.clear();
  if (!fits(data)) return errNodeCountModel;
  for (const xFemLoadCond& condition : conditions) {
    if (!stands_on_beam(condition, Nn, Ne)) return errFemNodeNotFound;
  }
  for (const xFemLoadCond& condition : conditions) {
    std::vector<double>& sum = loads.emplace_back(Np, 0.0);
    elemLoads.push_back(load_elements(data, condition, Ne, sum));
    for (const auto& [node, force] : condition.nodalForces) {
      add_at_node(force, static_cast<std::size_t>(node), sum);
    }
  }
  return ostrel::ok;
}

OstrelErrorType xFemSolver::buildBStif(const xFemData& data) {
  elemK.clear();
  if (!fits(data) || topology.size() != Ne || Ne > ostrel::fem::most_elements) {
    K.reset();
    return errNodeCountModel;
  }
  K.zeros(Np, Np);  // in the memory of the beam before, where that was as large
  elemK.reserve(Ne);
  for (std::uint32_t e = 0; e < Ne; ++e) {
    const xElemData& element = data.elements[e];
    elemK.push_back(ostrel::fem::element_stiffness({.elastic_modulus = element.getE(),
                                                    .area = element.getArea(),
                                                    .second_moment = element.getJ(),
                                                    .length = elemLength[e]}));
    ostrel::fem::add_at_dofs(elemK.back(), topology[e], K);
  }
  return ostrel::ok;
}

OstrelErrorType xFemSolver::reviseElemLength(const xFemData& data) {
  Dembin += data.getDembinc();
  const std::int64_t first = data.getJtsoil();
  const std::int64_t count = std::int64_t{Nn} - first - 1;
  if (first < 0 || count <= 0 || elemLength.size() != Ne) return ostrel::ok;
  const double length = Dembin / static_cast<double>(count);
  for (std::size_t e = static_cast<std::size_t>(first); e < Ne; ++e) {
    elemLength[e] = length;
  }
  return ostrel::ok;
}

bool xFemSolver::fits(const xFemData& data) const {
  return data.elements.size() == Ne && elemLength.size() == Ne && Nn == Ne + 1 && Np == 3 * Nn;
}
