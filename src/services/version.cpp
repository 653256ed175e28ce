// SPDX-License-Identifier: Apache-2.0
#include "ostrel/version.h"

namespace ostrel {

const char* version() {
  return OSTREL_VERSION;
}

}  // namespace ostrel
