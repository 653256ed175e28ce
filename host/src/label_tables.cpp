// SPDX-License-Identifier: Apache-2.0
#include "label_tables.h"

#include <ostrel/load_combination.h>
#include <ostrel/spring_interval.h>
#include <ostrel/vocabulary.h>

#include <tuple>

namespace ostrel::host {

void fill_label_tables() {
  std::ignore = xGetChecksTypeMap();
  std::ignore = xGetCombTypeMap();
  std::ignore = xSoilCoeffKTypeMap();
  std::ignore = xcheckUlsFactorsMap();
  std::ignore = xAnchorCsiDataMap();
  std::ignore = xformulType_Map();
  std::ignore = xSpringInterval::QlimSpringypeMap();
  std::ignore = getPredefined_CondName(0);
  std::ignore = getSupportedCarchiTerrenoClass();
}

}  // namespace ostrel::host
