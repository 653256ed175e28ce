#pragma once
/// @file  The equations of the beam as a band, for the passes after the first. Room: fem
// SPDX-License-Identifier: Apache-2.0
//
// From pass to pass only the springs of the soil change, and they stand on the diagonal. The band
// of the dense matrix is therefore taken once, with all supports but the soil in it, and each pass
// adds the soil to a copy and factorises that.
//
// Displacements and rotations differ in scale by nine powers of ten. Rows and columns are scaled by
// powers of two, which costs no accuracy and keeps three digits that a long beam would lose.

#include "ostrel/anchor.h"
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
  ///
  /// @return false, and `d` unchanged, where numbers are not finite or the equations come so near to
  ///         being singular that the dense form has to decide
  bool solve(const std::vector<int>& nodes, const std::vector<double>& stiffness,
             std::vector<double>& d);

  /// Brings a solution `d` for the right-hand side `rhs` that the dense form has found nearer to the
  /// exact one; as `solve` does with its own.
  ///
  /// @return false, and `d` unchanged, where that is not possible
  bool improve(const std::vector<int>& nodes, const std::vector<double>& stiffness,
               const std::vector<double>& rhs, std::vector<double>& d);

private:
  class Band;

  void scale();
  bool take_soil(const std::vector<int>& nodes, const std::vector<double>& stiffness);
  bool factorise();
  void substitute(double* column);
  bool is_well_conditioned(const std::vector<double>& stiffness);
  double softening_since_probe(const std::vector<double>& stiffness) const;
  void probe(double enough);
  bool correct(double* solution);
  bool hand_out(const double* solution, std::vector<double>& d);

  std::size_t size_ = 0;
  std::vector<double> base_;       // the band without the soil, scaled
  double base_norm_ = 0.0;         // its largest column sum
  std::vector<double> row_scale_;  // powers of two
  std::vector<double> column_scale_;
  std::vector<bool> is_unit_row_;
  std::vector<double> signs_;  // a fixed pattern of 1 and -1

  // Of the last probe of the condition.
  double growth_;                         // of the pattern, where the norm of the equations is 1
  std::vector<double> probed_stiffness_;  // of the springs

  // Of one pass.
  std::vector<double> work_;      // the band with the soil, then its factors
  std::vector<double> diagonal_;  // of the band with the soil
  std::vector<double> rhs_;       // scaled
  double norm_ = 0.0;             // not below the largest column sum
  std::vector<double> columns_;   // the solution and one more
  std::vector<int> pivots_;
};

}  // namespace ostrel::fem
