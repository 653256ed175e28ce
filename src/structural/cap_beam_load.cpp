// SPDX-License-Identifier: Apache-2.0
#include "structural/cap_beam_load.h"

#include <cmath>

namespace ostrel::structural {

double midspan_moment(const CapBeamLoad& load, double L) {
  return L * load.q * L * 0.125 + L * load.P * 0.25;
}

double support_shear(const CapBeamLoad& load, double L) {
  return L * load.q * 0.5 + load.P * 0.5;
}

double head_reaction(const std::vector<xFemNodeData_pos>& applied, double ref) {
  double moment = 0.0;
  for (const xFemNodeData_pos& load : applied) {
    moment += (ref - load.pos) * load.data.y;
  }
  return std::abs(moment) / ref;
}

}  // namespace ostrel::structural
