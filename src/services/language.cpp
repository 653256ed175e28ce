// SPDX-License-Identifier: Apache-2.0
#include "ostrel/language.h"

#include <quillet/translation.h>

namespace ostrel {

bool set_language(const std::string& language) {
  return quillet::set_language(language);
}

}  // namespace ostrel
