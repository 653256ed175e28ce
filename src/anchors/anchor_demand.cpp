// SPDX-License-Identifier: Apache-2.0
#include "anchors/anchor_demand.h"

#include "structural/verification_frame.h"

namespace ostrel::anchors {

std::optional<double> design_force(const xAnchor& anchor, const info_Fem_anchor& link,
                                   const xFemResults& results) {
  double along = 0.0;
  double across = 0.0;
  double turn = 0.0;
  if (!results.getDispNode(link.node, along, across, turn)) return std::nullopt;
  return anchor.getPreStress() + link.get_Force(along, across);
}

void identify(xAnchorResults& record, const xAnchor& anchor, const xCombResults& results) {
  record.setCheckID(anchor.getIdObj(), results.getcombIndex(), results.getCombName());
  record.depth = anchor.z;
}

osg::ref_ptr<anchorCheckInfo> failed_anchor(const xAnchorResults& record, bool is_resistance) {
  osg::ref_ptr<anchorCheckInfo> failure = new anchorCheckInfo;
  structural::identify(*failure, record, record.getSf());
  failure->isResistance = is_resistance;
  failure->depth = record.depth;
  return failure;
}

}  // namespace ostrel::anchors
