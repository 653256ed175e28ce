// SPDX-License-Identifier: Apache-2.0
#include "ostrel/serviceability.h"

void xServiceabilityLimitStates::reset() {}
