#pragma once
/// @file  The equations of the beam as a band, for the passes after the first. Room: fem
// SPDX-License-Identifier: Apache-2.0
//
// From pass to pass only the springs of the soil change, and they stand on the diagonal. The band
// of the dense matrix is therefore taken once, with all supports but the soil in it, and each pass
// adds the soil to a copy and factorises that. An element joins neighbouring nodes, so an entry
// lies at most five columns from the diagonal.
//
// Displacements and rotations differ in scale by nine powers of ten. Rows and columns are scaled by
// powers of two, which costs no accuracy and keeps three digits that a long beam would lose.

#include "ostrel/anchor.h"
#include "ostrel/error.h"
#include "ostrel/fem_data.h"

#include <armadillo>

#include <cstddef>
#include <vector>

namespace ostrel::fem {

/// The beam on supports, ready to take soil springs and to be solved.
class BandedBeam {
public:
  /// @param beam  stiffness of the beam alone
  /// The supports must stand on nodes of the beam.
  BandedBeam(const arma::Mat<double>& beam, const std::vector<info_Fem_anchor>& anchors,
             const xFemData& data);

  /// Adds `stiffness[i]` [N/mm] at dof 1 of `nodes[i]`, a constraint there winning, and solves for
  /// the right-hand side `d`, which the solution replaces. The springs are forgotten afterwards.
  /// @retval errEquationSolve  singular to working precision, or numbers that are not finite
  OstrelErrorType solve(const std::vector<int>& nodes, const std::vector<double>& stiffness,
                        std::vector<double>& d);

private:
  class Band;

  void scale();
  double largest_column_sum() const;
  bool is_singular(double norm) const;

  std::size_t size_ = 0;
  std::vector<double> base_;       // the band without the soil, scaled
  std::vector<double> work_;       // its factors
  std::vector<double> row_scale_;  // powers of two
  std::vector<double> column_scale_;
  std::vector<bool> is_unit_row_;
  std::vector<int> pivots_;
};

}  // namespace ostrel::fem
