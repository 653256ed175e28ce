// SPDX-License-Identifier: Apache-2.0
#include "ostrel/fem_data.h"

void xElemData::reset() {
  *this = xElemData{};
}

void xElemData::clear() {
  reset();
}

void xFemData::reset() {
  *this = xFemData{};
}
