#pragma once
/// @file  Anchors, springs and constraints in the equations of the beam. Room: fem
// SPDX-License-Identifier: Apache-2.0
//
// The equations stand either in the dense matrix of the interface or in the band of that matrix.
// What is done to them, and in which order, is written once: a matrix here is anything with
//
//     size()            number of equations
//     add(i, j, value)  adds to an entry
//     make_unit_row(i)  turns row i into that of the identity

#include "ostrel/anchor.h"
#include "ostrel/error.h"
#include "ostrel/fem_data.h"

#include <armadillo>

#include <algorithm>
#include <cstddef>
#include <map>
#include <vector>

namespace ostrel::fem {

/// The dense matrix of the interface, seen as such a matrix.
class DenseEquations {
public:
  explicit DenseEquations(arma::Mat<double>& matrix) : matrix_(matrix) {}

  std::size_t size() const { return std::min(matrix_.n_rows, matrix_.n_cols); }
  void add(std::size_t i, std::size_t j, double value) { matrix_.at(i, j) += value; }
  void make_unit_row(std::size_t i) {
    matrix_.row(i).zeros();
    matrix_.at(i, i) = 1.0;
  }

private:
  arma::Mat<double>& matrix_;
};

/// The dof `k` of `node`, or `size` where the equations do not reach it.
inline std::size_t dof_within(std::size_t size, int node, int k) {
  if (!(node >= 0 && k >= 0 && k < 3)) return size;
  const std::size_t dof = 3 * static_cast<std::size_t>(node) + static_cast<std::size_t>(k);
  return dof < size ? dof : size;
}

/// Adds the stiffness terms of the anchors that have a node.
/// @retval errFemNodeNotFound  a node beyond the equations
template <class Equations>
OstrelErrorType add_anchors(const std::vector<info_Fem_anchor>& anchors, Equations& equations) {
  for (const info_Fem_anchor& anchor : anchors) {
    if (anchor.node == -1) continue;
    const std::size_t along = dof_within(equations.size(), anchor.node, 0);
    const std::size_t across = dof_within(equations.size(), anchor.node, 1);
    if (!(across < equations.size())) return errFemNodeNotFound;
    equations.add(along, along, anchor.kSS);
    equations.add(along, across, anchor.kSC);
    equations.add(across, along, anchor.kSC);
    equations.add(across, across, anchor.kCC);
  }
  return ostrel::ok;
}

/// Adds stiffnesses by node to the diagonal entries of dof `k`.
/// @retval errFemNodeNotFound  a node beyond the equations
template <class Equations>
OstrelErrorType add_nodal_springs(int k, const std::map<int, double>& springs,
                                  Equations& equations) {
  for (const auto& [node, stiffness] : springs) {
    const std::size_t dof = dof_within(equations.size(), node, k);
    if (!(dof < equations.size())) return errFemNodeNotFound;
    equations.add(dof, dof, stiffness);
  }
  return ostrel::ok;
}

/// Turns the rows of dof `k` of the nodes into those of the identity.
/// @retval errFemNodeNotFound  a node beyond the equations
template <class Equations>
OstrelErrorType constrain_rows(int k, const std::map<int, double>& values, Equations& equations) {
  for (const auto& entry : values) {
    const std::size_t dof = dof_within(equations.size(), entry.first, k);
    if (!(dof < equations.size())) return errFemNodeNotFound;
    equations.make_unit_row(dof);
  }
  return ostrel::ok;
}

/// Puts the prescribed displacements of dof `k` of the nodes on the right-hand side; a node beyond
/// its end is left out.
inline void prescribe(int k, const std::map<int, double>& values, std::vector<double>& rhs) {
  for (const auto& [node, value] : values) {
    const std::size_t dof = dof_within(rhs.size(), node, k);
    if (dof < rhs.size()) rhs[dof] = value;
  }
}

/// Puts all prescribed displacements on the right-hand side.
inline void prescribe_all(const xFemData& data, std::vector<double>& rhs) {
  prescribe(0, data.constrDof0, rhs);
  prescribe(1, data.constrDof1, rhs);
  prescribe(2, data.constrDof2, rhs);
}

/// All supports in their order. `add_soil(equations)` adds the springs of the soil at its place:
/// after the concentrated springs of dof 1 and before its constraints, which therefore win.
template <class Equations, class AddSoil>
OstrelErrorType apply_supports(const std::vector<info_Fem_anchor>& anchors, const xFemData& data,
                               Equations& equations, const AddSoil& add_soil) {
  OstrelErrorType code = add_anchors(anchors, equations);
  if (code == ok) code = add_nodal_springs(0, data.springDof0, equations);
  if (code == ok) code = constrain_rows(0, data.constrDof0, equations);
  if (code == ok) code = add_nodal_springs(1, data.springDof1, equations);
  if (code == ok) code = add_soil(equations);
  if (code == ok) code = constrain_rows(1, data.constrDof1, equations);
  if (code == ok) code = add_nodal_springs(2, data.springDof2, equations);
  if (code == ok) code = constrain_rows(2, data.constrDof2, equations);
  return code;
}

}  // namespace ostrel::fem
