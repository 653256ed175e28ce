// SPDX-License-Identifier: Apache-2.0
#include "ostrel/ultimate_limit_states.h"

void xUltimateLimitStates::reset() {}
