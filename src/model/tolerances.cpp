// SPDX-License-Identifier: Apache-2.0
#include "ostrel/tolerances.h"

namespace {

xTolerances& process_tolerances() {
  static xTolerances tolerances;
  return tolerances;
}

}  // namespace

const xTolerances* getTolerances() {
  return &process_tolerances();
}

void setTolerances(const xTolerances& tolerances) {
  process_tolerances() = tolerances;
}
