#pragma once
/// @file  The beam on springs: its matrices and load vectors. Room: fem
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/fem_data.h"
#include "ostrel/fem_load.h"

#include <armadillo>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// How the non-linear solution proceeds.
struct OSTREL_API xFemSolverOptions {
  bool linear = false;               ///< one pass only; soil reactions have no limit
  double tolerance = 0.001;          ///< sum of the changes of dof 1 that counts as none [mm]
  std::int32_t maxIterations = 100;  ///< most passes
  std::string label;                 ///< read by nothing in the analysis
};

/// The equations of one combination. A solver serves once.
///
/// Degree of freedom k of node n has the number 3n + k; see `xFemData` for their meaning.
class OSTREL_API xFemSolver {
public:
  virtual void reset();
  virtual ~xFemSolver() = default;
  xFemSolver() = default;
  xFemSolver(const xFemSolver&) = default;
  xFemSolver(xFemSolver&&) = default;
  xFemSolver& operator=(const xFemSolver&) = default;
  xFemSolver& operator=(xFemSolver&&) = default;

  std::uint32_t getNn() const { return Nn; }
  std::uint32_t getNe() const { return Ne; }
  std::uint32_t getNp() const { return Np; }
  std::uint32_t getNlc() const { return Nlc; }

  /// Takes the sizes, the lengths of the elements and the embedded length from the beam. The nodes
  /// are not counted: there is one more than elements. Precedes the four operations below.
  /// @param load_conditions  how many there will be
  void takeSizes(const xFemData& data, std::size_t load_conditions);

  /// @name Assembly
  /// Each begins anew. With a beam other than the one whose sizes were taken nothing is assembled.
  ///@{
  /// Fills `topology`. Always returns success.
  OstrelErrorType buildTopologyMat();

  /// Fills `loads` and `elemLoads`. Forces on nodes go into `loads` alone.
  /// @retval errFemNodeNotFound  a load stands on a node or an element that the beam does not have
  /// @retval errNodeCountModel  `data` is not the beam of `takeSizes`
  OstrelErrorType buildLoadMat(const xFemData& data, const std::vector<xFemLoadCond>& conditions);

  /// Fills `K` and `elemK` from `topology`, `elemLength` and the sections of the elements; an
  /// element without length brings entries that are not finite.
  /// @retval errNodeCountModel  `data` is not the beam of `takeSizes`, or there is no topology yet
  OstrelErrorType buildBStif(const xFemData& data);

  /// Adds the addition `getDembinc` to `Dembin` and spreads that length evenly over the elements
  /// below the excavation: `Dembin` / (Nn - `Jtsoil` - 1) for each. Without such elements no length
  /// changes. Always returns success. An analysis does not call it.
  OstrelErrorType reviseElemLength(const xFemData& data);
  ///@}

  std::vector<double> elemLength;                    ///< of each element [mm]
  std::vector<std::vector<std::uint32_t>> topology;  ///< the six dofs of each element
  std::vector<std::vector<double>> loads;  ///< for each condition Np loads, by dof [N], [Nmm]
  arma::Mat<double> K;  ///< stiffness of the beam alone, Np x Np [N/mm], [N], [Nmm]
  std::vector<arma::Mat<double>> elemK;  ///< of each element, 6 x 6
  /// For each condition and element the six nodal loads of its pressures [N], [Nmm].
  std::vector<std::vector<arma::Col<double>>> elemLoads;
  std::uint32_t Nn = 0;   ///< nodes
  std::uint32_t Ne = 0;   ///< elements
  std::uint32_t Np = 0;   ///< degrees of freedom
  std::uint32_t Nlc = 0;  ///< load conditions
  double Dembin = 0.0;    ///< embedded length [mm]

private:
  bool fits(const xFemData& data) const;
};
