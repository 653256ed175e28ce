// SPDX-License-Identifier: Apache-2.0
// The verifications of a run, one after the other on the results of all combinations.
#include "model/pile_wall.h"
#include "ostrel/solver.h"

#include <cstdint>
#include <vector>

namespace {

// The forces are collected before the wall is missed.
OstrelErrorType verify_wall(const xSheetpilingData& data,
                            const std::vector<xCombResults>& combinations,
                            xStructuralDesign& design) {
  const xPile_Sheetpiling* wall = ostrel::model::pile_wall(data);
  const std::int64_t id_obj = wall ? wall->getIdObj() : -1;
  auto code = design.collectStress(id_obj, data.loadCombs, combinations);
  if (code != ostrel::ok) return code;
  if (!wall) return errNoWall;
  osg::ref_ptr<xReinforcement_Settings> settings = wall->checkSettings.reinforcementSettings;
  code = design.design(wall->section.get(), settings);
  if (code == ostrel::ok) code = design.check(wall->section.get(), settings);
  return code;
}

// Elevations count from the head of the wall upwards.
OstrelErrorType verify_seepage(const xSheetpilingData& data, verificheIdrauliche& checks) {
  const xPile_Sheetpiling* wall = ostrel::model::pile_wall(data);
  if (!wall) return errNoWall;
  return hyDroCheck(wall->getIdObj(), data.waterTable, data.soilLayers, data.loadCombs,
                    -wall->getLength(), -wall->getDepth(), checks);
}

}  // namespace

OstrelErrorType xSolver::checkULS(const xSheetpilingRes& results, xUltimateLimitStates& uls,
                                  std::vector<xVeldError>& errors) {
  const std::vector<xCombResults>& combinations = results.combResults;
  auto code = verify_wall(data, combinations, uls.structuralDesign);
  if (code == ostrel::ok) code = uls.slopeStabilityDesign.check(data, errors);
  if (code == ostrel::ok) {
    code = uls.structuralAnchorDesign.check(data, model.anchors, combinations);
  }
  if (code == ostrel::ok) {
    code = uls.geotechnicalAnchorDesign.check(data, model.anchors, combinations);
  }
  if (code == ostrel::ok) {
    code = uls.geotechnicalPileDesign.check(model.fem.nodes, data, model.layers, combinations);
  }
  if (code == ostrel::ok) code = uls.rigidBodyDesign.check(model, data, combinations);
  if (code == ostrel::ok) {
    // The forces of the anchors come from their verification.
    code = designTrave(combinations, data.loadCombs, uls.structuralAnchorDesign, data,
                       uls.traveResults);
  }
  if (code == ostrel::ok) code = verify_seepage(data, uls.hydraulicChecks);
  return code;
}

OstrelErrorType xSolver::checkSLS(const xSheetpilingRes& results, xServiceabilityLimitStates& sls) {
  const auto excavation = static_cast<unsigned>(model.fem.getJtsoil());
  return sls.displacements.check(excavation, data, results.combResults);
}
