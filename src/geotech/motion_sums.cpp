// SPDX-License-Identifier: Apache-2.0
#include "geotech/motion_sums.h"

#include "ostrel/rigid_body_check.h"
#include "ostrel/structural_anchor_check.h"

#include <cstddef>

namespace ostrel::geotech {

namespace {

// Whether the displacements of its node stretch the anchor.
bool pulled(const info_Fem_anchor& link, const xFemResults& beam) {
  double along = 0.0;
  double across = 0.0;
  double rotation = 0.0;
  if (!beam.getDispNode(link.node, along, across, rotation)) return false;
  return link.modeFlag ? across < 0.0 : across > 0.0;
}

// What an anchor holds [N].
double resistance_of(const info_Fem_anchor& link, const std::vector<xAnchor>& anchors,
                     const xFemResults& beam) {
  const bool known = link.id >= 0 && static_cast<std::size_t>(link.id) < anchors.size();
  if (!(known && pulled(link, beam))) return 0.0;
  double strength = 0.0;
  const auto code = xStrAnchorCombRes::getStructaralResistance(
      anchors[static_cast<std::size_t>(link.id)], strength);
  return code == ok ? strength : 0.0;
}

}  // namespace

void add_loads(const std::vector<xFemNodeData_pos>& loads, rigidBodyMotionCheck& sums) {
  for (const xFemNodeData_pos& load : loads) {
    const double force = load.data.y;
    sums.Mdest += load.data.r - (-load.pos - sums.rotCenter) * force;
    sums.Hdest += force;
  }
}

void add_springs(const std::map<int, Fsoil>& springs, rigidBodyMotionCheck& sums) {
  for (const auto& [node, spring] : springs) {
    const double moment = (spring.elevation - sums.rotCenter) * spring.limitForce;
    if (spring.springForce > 0.0) {
      sums.Hres += spring.limitForce;
      sums.Mres += spring.limitMoment - moment;
    } else {
      sums.Hdest += spring.springForce;
      sums.Mres += moment + spring.limitMoment;
    }
  }
}

void add_anchors(const std::vector<info_Fem_anchor>& links, const std::vector<xAnchor>& anchors,
                 const xFemResults& beam, rigidBodyMotionCheck& sums) {
  for (const info_Fem_anchor& link : links) {
    const double resistance = resistance_of(link, anchors, beam);
    sums.Mres -= (link.level - sums.rotCenter) * resistance;
    sums.Hres += resistance;
  }
}

}  // namespace ostrel::geotech
