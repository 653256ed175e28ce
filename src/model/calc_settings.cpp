// SPDX-License-Identifier: Apache-2.0
#include "ostrel/calc_settings.h"

void xCalcSettings::reset() {
  *this = xCalcSettings{};
}
