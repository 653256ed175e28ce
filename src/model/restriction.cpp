// SPDX-License-Identifier: Apache-2.0
#include "ostrel/restriction.h"

void xNodeConstraint::reset() {
  *this = xNodeConstraint{};
}

void xConstraint::reset() {
  *this = xConstraint{};
}

void xRestriction::reset() {
  *this = xRestriction{};
}
