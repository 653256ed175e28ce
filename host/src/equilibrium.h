#pragma once
/// @file  Whether what acts on the wall is in balance. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"
#include "texts.h"

#include <map>
#include <string>

namespace ostrel::host {

/// The sum of some forces on the wall, in the library's units and signs: across the wall positive
/// towards the retained side, along it downwards.
struct ForceSum {
  double across = 0.0;  ///< [N]
  double along = 0.0;   ///< [N]
  double moment = 0.0;  ///< about the head, as the rotations of the nodes count [Nmm]

  ForceSum& operator+=(const ForceSum& other);
};

/// All that acts on the wall in one combination, each from its own law: the soil from its springs,
/// the anchors from their forces, elastic supports from their stiffness. Only what a fixed support
/// gives is taken from the balance of its own node.
struct Balance {
  ForceSum loads = {};
  ForceSum soil = {};
  ForceSum anchors = {};
  ForceSum elastic_supports = {};
  ForceSum fixed_supports = {};
  ForceSum load_sizes = {};  ///< of the loads one by one, without their signs

  ForceSum residual() const;
  /// The residual by the size of the loads [-], of the forces or of the moments, whichever is more:
  ///
  ///     max(|R| / hypot(sum |across|, sum |along|), |M| / sum |moment|)
  ///
  /// @return infinite for a residual without loads; not a number where a part is none
  double relative_residual() const;
};

/// The largest relative residual of results that can be used: the equations are solved to about
/// 1e-7, and a thousandth of the loads moves no verdict.
inline constexpr double small_residual = 1e-3;

/// That the forces are not in balance, and by how much; empty for a small residual.
std::string balance_sentence(double relative_residual, const Texts& texts);

/// Forces by node: x along the wall, y across it, r the moment, as in `ForceSum`.
using NodeForces = std::map<int, xFemNodeData>;

/// @name What supports put on the wall
///@{
NodeForces elastic_support_forces(const Outcome& outcome, const xCombResults& combination);
/// The parts that are held at each node with a fixed support; the foot is held along the wall in
/// every run.
NodeForces fixed_support_forces(const Job& job, const Outcome& outcome,
                                const xCombResults& combination);
///@}

Balance balance_of(const Job& job, const Outcome& outcome, const xCombResults& combination);

}  // namespace ostrel::host
