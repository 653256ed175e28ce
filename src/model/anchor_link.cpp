// SPDX-License-Identifier: Apache-2.0
#include "model/anchor_link.h"

#include <cmath>
#include <numbers>

namespace ostrel::model {

double anchor_stiffness(const xAnchor& anchor, std::int32_t piles) {
  if (anchor.getNumber() == 0) return 0.0;
  const double diameter = anchor.getcableDiam();
  const double section = diameter * diameter * std::numbers::pi * 0.25;
  return section * (anchor.getNumber() * anchor.material.getElasticityModulus())
       / anchor.getFreeLength() / piles;
}

double anchor_force_share(const xAnchor& anchor, std::int32_t piles) {
  if (!(anchor.getNumber() > 0)) return 1.0;
  return static_cast<double>(piles) / static_cast<double>(anchor.getNumber());
}

info_Fem_anchor anchor_link(const xAnchor& anchor, std::int32_t index, std::int32_t piles) {
  const double k = anchor_stiffness(anchor, piles);
  info_Fem_anchor link;
  link.level = -anchor.z;
  link.id = index;
  link.node = -1;
  link.modeFlag = anchor.modeFlag;
  link.cosA = std::cos(anchor.getAngleRad());
  link.sinA = std::sin(anchor.getAngleRad());
  link.kSS = k * link.sinA * link.sinA;
  link.kCC = k * link.cosA * link.cosA;
  link.kSC = k * link.sinA * link.cosA;
  link.share = anchor_force_share(anchor, piles);
  return link;
}

}  // namespace ostrel::model
