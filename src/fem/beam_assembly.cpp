// SPDX-License-Identifier: Apache-2.0
#include "fem/beam_assembly.h"

namespace ostrel::fem {

std::vector<std::uint32_t> element_dofs(std::uint32_t element) {
  std::vector<std::uint32_t> dofs(dofs_per_element);
  for (std::uint32_t k = 0; k < dofs_per_element; ++k) {
    dofs[k] = dofs_per_node * element + k;
  }
  return dofs;
}

ElementMatrix element_stiffness(const BeamElement& element) {
  const double E = element.elastic_modulus;
  const double J = element.second_moment;
  const double L = element.length;
  const double along = E * element.area / L;
  const double across = 12.0 * E * J / (L * L * L);
  const double coupling = 6.0 * E * J / (L * L);
  const double near_end = 4.0 * E * J / L;
  const double far_end = 2.0 * E * J / L;

  ElementMatrix k(arma::fill::zeros);
  k(0, 0) = k(3, 3) = along;
  k(0, 3) = k(3, 0) = -along;
  k(1, 1) = k(4, 4) = across;
  k(1, 4) = k(4, 1) = -across;
  k(1, 2) = k(2, 1) = k(1, 5) = k(5, 1) = coupling;
  k(2, 4) = k(4, 2) = k(4, 5) = k(5, 4) = -coupling;
  k(2, 2) = k(5, 5) = near_end;
  k(2, 5) = k(5, 2) = far_end;
  return k;
}

arma::Col<double> equivalent_nodal_loads(const PressAtEnds& load, double length) {
  const double L = length;
  arma::Col<double> q(dofs_per_element, arma::fill::zeros);
  q[0] = (7.0 * load.aStart + 3.0 * load.aEnd) * L / 20.0;
  q[1] = (7.0 * load.pStart + 3.0 * load.pEnd) * L / 20.0;
  q[2] = (load.pStart / 2.0 + load.pEnd / 3.0) * L * L / 10.0;
  q[3] = (3.0 * load.aStart + 7.0 * load.aEnd) * L / 20.0;
  q[4] = (3.0 * load.pStart + 7.0 * load.pEnd) * L / 20.0;
  q[5] = (load.pStart / 3.0 + load.pEnd / 2.0) * L * L / -10.0;
  return q;
}

void add_at_dofs(const arma::Mat<double>& element_matrix, const std::vector<std::uint32_t>& dofs,
                 arma::Mat<double>& beam_matrix) {
  for (std::uint32_t j = 0; j < dofs_per_element; ++j) {
    for (std::uint32_t i = 0; i < dofs_per_element; ++i) {
      beam_matrix(dofs[i], dofs[j]) += element_matrix(i, j);
    }
  }
}

}  // namespace ostrel::fem
