#pragma once
/// @file  The beam on springs: its matrices and load vectors. Room: fem
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/anchor.h"
#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/fem_data.h"
#include "ostrel/fem_load.h"
#include "ostrel/fem_results.h"
#include "ostrel/soil_spring.h"

#include <armadillo>

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// How the non-linear solution proceeds.
struct OSTREL_API xFemSolverOptions {
  bool linear = false;               ///< one pass only; soil reactions have no limit
  double tolerance = 0.001;          ///< sum of the changes of dof 1 that counts as none [mm]
  std::int32_t maxIterations = 100;  ///< most passes
  std::string label;                 ///< read by nothing in the analysis
};

/// The equations of one combination. A solver may serve again: each solution begins anew, in the
/// memory of the one before.
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
  // Not noexcept: a matrix may allocate when it moves. NOLINTNEXTLINE(bugprone-exception-escape)
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
  /// @retval errNodeCountModel  `data` is not the beam of `takeSizes`, there is no topology yet, or
  ///         there are more than 5000 elements: the dense matrix would not fit the memory
  OstrelErrorType buildBStif(const xFemData& data);

  /// Adds the addition `getDembinc` to `Dembin` and spreads that length evenly over the elements
  /// below the excavation: `Dembin` / (Nn - `Jtsoil` - 1) for each. Without such elements no length
  /// changes. Always returns success. An analysis does not call it.
  OstrelErrorType reviseElemLength(const xFemData& data);
  ///@}

  /// @name The non-linear solution
  ///@{
  /// Finds the displacements of the beam under the sum of all conditions and recovers the results.
  ///
  /// A secant iteration: each pass takes every soil spring with its stiffness at the displacement
  /// of the pass before and solves anew. It ends when the sum of the absolute changes of dof 1 over
  /// the spring nodes is at most the tolerance, or after `maxIterations` passes (100 000 at most),
  /// of which there is always one; its solution then stands without an error. `K` is there
  /// unchanged in the end.
  ///
  /// @oddity The sum is absolute, in mm, and grows with the number of nodes. Stored results depend
  /// on it.
  ///
  /// @oddity Code 16 speaks of an iteration that does not converge, but what raises it is that every
  /// spring has moved beyond its limit; this counts in the first pass already, also when the sum is
  /// within the tolerance, and always where there is no spring.
  ///
  /// @param anchors  springs of the anchors; a prestress puts no force on the beam
  /// @param modulus  the soil springs by node, per unit of wall width
  /// @param result   filled in the end
  /// @param spacing  width of the wall that the beam stands for [mm]
  /// @retval errNonLinearNotConverged  all springs beyond their limits, or none at all
  /// @retval errFemNodeNotFound  a spring lacks a neighbour, or a load, support or anchor stands on
  ///         a node or an element that the beam does not have
  /// @retval errEquationSolve  a mechanism, or numbers that are not finite, in what is given or in
  ///         what comes of it
  /// @retval errNodeCountModel  more than 5000 elements: the dense matrix would not fit the memory
  OstrelErrorType solve(xFemSolverOptions& options, const std::vector<info_Fem_anchor>& anchors,
                        const xFemData& data, const std::map<int, NodeModulus>& modulus,
                        const std::vector<xFemLoadCond>& loadConds, xCombRes& result,
                        double spacing);

  /// Lumps the pressures of the soil springs at the nodes, as stiffnesses [N/mm]. With k' the secant
  /// modulus, L the length of the element below the node (above it at the foot) and s the spacing:
  ///
  ///     at the excavation   (7 k'(i) + 6 k'(i+1) - k'(i+2)) Redfac L(i) s / 24
  ///     at the foot         (7 k'(i) + 6 k'(i-1) - k'(i-2)) L(i-1) s / 24
  ///     else                (k'(i-1) + 10 k'(i) + k'(i+1)) L(i) s / 12
  ///
  /// @oddity The lengths of the two elements at a node are not averaged. Stored results depend on it.
  ///
  /// @param displacements  by dof [mm]; null, or a dof beyond the end, reads as no displacement
  /// @param springs        by node; emptied first
  /// @retval errFemNodeNotFound  a neighbour has no spring, or a spring no element; `springs` hold
  ///         those before it
  OstrelErrorType build_SkSpring(const xFemData& data, const std::map<int, NodeModulus>& modulus,
                                 double spacing, std::vector<double>* displacements,
                                 std::map<int, double>& springs);

  /// Puts anchors, springs and constraints into the equations, in the order that decides where a
  /// support and a spring share a dof: anchors; springs and constraints of dof 0; springs, soil and
  /// constraints of dof 1; springs and constraints of dof 2.
  /// @retval errFemNodeNotFound  a node beyond `K`
  OstrelErrorType appBoundCond(const std::vector<info_Fem_anchor>& anchors, const xFemData& data,
                               const std::map<int, double>& springs, arma::Mat<double>& K,
                               std::vector<double>& rhs);

  /// Adds stiffnesses to the diagonal entries of dof `dof` (0 to 2) of the nodes.
  /// @retval errFemNodeNotFound  a node beyond `K`
  OstrelErrorType appNodalSprings(int dof, const std::map<int, double>& springs,
                                  arma::Mat<double>& K);

  /// Prescribes the displacement of dof `dof` (0 to 2) of the nodes: the row becomes that of the
  /// identity, the column stays, so that `K` is not symmetric any more.
  /// @retval errFemNodeNotFound  a node beyond `K`
  OstrelErrorType appNodalConstr(int dof, const std::map<int, double>& values, arma::Mat<double>& K,
                                 std::vector<double>& rhs);

  /// Solves the square system with its rows and columns scaled; the solution replaces `rhs`.
  /// @retval errEquationSolve  singular to working precision, sizes that do not fit, or numbers
  ///         that are not finite; nothing is thrown
  OstrelErrorType solveEQ(const arma::Mat<double>& K, std::vector<double>& rhs);
  ///@}

  /// @name Recovery of the results, from the displacements `d` by dof
  ///@{
  /// One entry for each node. Always returns success.
  OstrelErrorType getDisplacements(const std::vector<double>& d, std::vector<xFemNodeData>& out);

  /// The total load of each node where its size, forces and moment mixed, is above 0.0001.
  OstrelErrorType getAppliedNodalForces(const std::vector<double>& total,
                                        std::map<int, xFemNodeData>& out);

  /// The pressure of the soil on the wall at each spring node [N/mm²], against its displacement.
  /// @param linear  the reaction in use has no limit
  OstrelErrorType getSoilReaction(bool linear, const std::map<int, NodeModulus>& modulus,
                                  const std::vector<double>& d, std::map<int, reacTerr>& out);

  /// The forces at both ends of each element: the stiffness of the element times its displacements,
  /// less the nodal loads of its pressures.
  /// @param total_elem_loads  of each element, summed over the conditions [N], [Nmm]
  /// @retval errFemNodeNotFound  an element names a node without displacements
  /// @retval errNodeCountModel  `data` is not the beam assembled
  OstrelErrorType getBeamStress(const xFemData& data, const std::vector<double>& d,
                                const std::vector<arma::Col<double>>& total_elem_loads,
                                std::vector<xBeamStress>& out);

  /// `K` d less the total load at each node where its size is above 0.0001: what supports, springs
  /// and anchors exert there, reversed. `d` becomes the total load less `K` d; `out` is not emptied.
  /// @retval errNodeCountModel  `total` and `d` differ in size
  OstrelErrorType getNodalForce(std::vector<double>& total, std::vector<double>& d,
                                std::map<int, xFemNodeData>& out);
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
  OstrelErrorType assemble(const xFemData& data, const std::vector<xFemLoadCond>& conditions);
};
