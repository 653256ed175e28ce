// SPDX-License-Identifier: Apache-2.0
#include "ostrel/ultimate_limit_states.h"

#include "structural/verification_frame.h"

#include <algorithm>

void xUltimateLimitStates::reset() {
  structuralDesign.reset();
}

double xUltimateLimitStates::getSfMin(ostrel::structural::Failures* failures) {
  return std::min(ostrel::structural::unlimited_factor, structuralDesign.getSfMin(failures));
}
