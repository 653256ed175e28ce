#pragma once
/// @file  The one entry of an analysis. Room: driver
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/fem_load.h"
#include "ostrel/fem_solver.h"
#include "ostrel/load_pressure.h"
#include "ostrel/results.h"
#include "ostrel/serviceability.h"
#include "ostrel/sheetpiling_data.h"
#include "ostrel/sheetpiling_model.h"
#include "ostrel/ultimate_limit_states.h"

#include <cstddef>
#include <map>
#include <vector>

/// Runs a whole analysis: ground and beam once, then every combination, then the verifications.
///
/// A run stays on the caller's thread; a solver is not shared between threads during a run.
class OSTREL_API xSolver {
public:
  /// Resets `model`, then `data`; `femOptions` stay.
  virtual void reset();
  virtual ~xSolver() = default;
  xSolver();
  xSolver(const xSolver&) = default;
  xSolver(xSolver&&) = default;
  xSolver& operator=(const xSolver&) = default;
  xSolver& operator=(xSolver&&) = default;

  /// The run. Nothing that is handed in is emptied first: results and messages are appended. Nor is
  /// `model`: the ground is appended to its layers, so that a second run on one solver begins with
  /// `model.reset()`.
  ///
  /// A combination that fails is reported with its name and the next one runs, but then no
  /// verification does; any other failure ends the run.
  ///
  /// @oddity The vertical seismic coefficient of every combination changes its sign in `data` and
  /// stays so, and the constraint of the foot stays in `data`: a second run on the same `data`
  /// analyses the opposite sign.
  ///
  /// @return 0 when the run went through, 3 when it did not; warnings do not change it
  xVeldErrorsType solve(xSheetpilingRes& results, xUltimateLimitStates& uls,
                        xServiceabilityLimitStates& sls, std::vector<xVeldError>& errors);

  /// Analyses one combination on the beam of `model`; the springs stand in `result` already.
  /// @retval errNoWall  no pile wall
  /// @retval errCondListMismatch  no combination, or one without exactly three actions more than
  ///         there are load conditions
  /// @retval errLoadUndefined  a load has no pressure diagram or no place on the wall
  OstrelErrorType solveForCombination(xLoadComb* comb, xCombResults& result);

  /// The verifications of the ultimate limit states in their order: wall, global stability, tendons
  /// and bulbs of the anchors, vertical load on the piles, motion as a rigid body, cap beam, uplift
  /// and piping. All are entered every time, and which combinations take part in each stands in
  /// their tables of verifications. The first code ends the sequence; what earlier ones stored stays.
  /// @param errors  receives the warnings of single verifications
  /// @retval errNoWall  no pile wall; the forces are collected then
  /// @retval errInvalidSection  no reinforcement settings that suit the wall's section
  /// @retval other  that of the verification that could not be carried out
  OstrelErrorType checkULS(const xSheetpilingRes& results, xUltimateLimitStates& uls,
                           std::vector<xVeldError>& errors);

  /// The verification of the displacements.
  OstrelErrorType checkSLS(const xSheetpilingRes& results, xServiceabilityLimitStates& sls);

  /// @name Physical loads as loads on the beam
  /// A pressure counts positive towards the excavation on its diagram and goes into the beam with a
  /// negative sign; a positive force along the wall acts downwards.
  ///@{

  /// The weight of the wall along all elements, and at the head the cap beam on one bay less what
  /// the wall section already counts, never less than nothing. A weight that is not a number stays
  /// so, and the equations are then refused.
  /// @param w        unit weight with its factor [N/mm³]
  /// @param spacing  distance between pile axes [mm]
  /// @retval errNoWall  no pile wall; `pressures` are filled then
  /// @retval errFemNodeNotFound  an element names a node that the beam does not have
  /// @retval errNoFemElements  no beam
  OstrelErrorType applyDeadLoad_new(xFemData* fem, double& w, double spacing,
                                    std::map<int, PressAtEnds>& pressures,
                                    std::map<int, xFemNodeData>& nodal_forces);

  /// The weight of the wall as forces on the nodes; no analysis calls it.
  /// @retval errNoFemElements  no beam
  OstrelErrorType applyDeadLoad_old(xFemData* fem, double& w,
                                    std::map<int, xFemNodeData>& nodal_forces);

  /// Adds pressure diagrams, one segment for each element from the head down.
  ///
  /// @oddity Elements are counted from the head whatever the depth of the first diagram: the `s` of
  /// the points is not read. A water diagram, which begins at the water level, therefore loads the
  /// wall from the head on.
  ///
  /// @oddity Onto an element that carries a pressure already, the new one is not added: it takes
  /// its place less the old one, with the sign of the whole turned. One diagram p gives -p, two
  /// give p1 + p2, three give p3 - (p1 + p2).
  ///
  /// @return always success
  OstrelErrorType applyPress(const std::vector<xLayerPress>& press,
                             std::map<int, PressAtEnds>& pressures);

  /// Places one load of the wall on the nodes of the element that holds it; exactly on a node it
  /// belongs to the element above.
  /// @retval errLoadUndefined  a load deeper than the foot by more than 0.001 mm, of an unknown
  ///         class or none, or no beam; `nodal_forces` are as before
  OstrelErrorType applyShpileLoads(double spacing, xAction& action, xFemData* fem,
                                   xShpileLoad* load, std::map<int, xFemNodeData>& nodal_forces);

  /// The pressure of one load on the ground; without any diagram for an unknown class, no load or
  /// no combination.
  xLoadPress computeLoadPress(xAction& action, xLoadComb* comb, xSoilLoad* load, double spacing);
  ///@}

  xSheetpilingData data;         ///< the input; a run changes this copy
  xSheetpilingModel model;       ///< ground, beam and anchor links of the run
  xFemSolverOptions femOptions;  ///< of the non-linear solution

private:
  bool solveCombinations(xSheetpilingRes& results, std::vector<xVeldError>& errors);
  OstrelErrorType solveOne(xLoadComb& comb, xCombResults& result, xFemSolver& beam);
  OstrelErrorType solveOnBeam(xLoadComb* comb, xCombResults& result, xFemSolver& beam);
  OstrelErrorType addWeight(const xLoadComb& comb, xCombResults& result);
  OstrelErrorType addEarthPressure(const xLoadComb& comb, xCombResults& result);
  OstrelErrorType addWaterPressure(const xLoadComb& comb, xCombResults& result);
  OstrelErrorType addLoadCondition(std::size_t i, xLoadComb& comb, xCombResults& result);
};
