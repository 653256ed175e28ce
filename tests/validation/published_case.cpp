// SPDX-License-Identifier: Apache-2.0
#include "validation/published_case.h"

#include <cmath>

namespace ostrel::validation {

double Figure::allowed() const {
  return tolerance.relative * std::abs(reference()) + tolerance.absolute;
}

double Figure::difference() const {
  return ours - published;
}

bool Figure::agrees() const {
  return std::abs(ours - reference()) <= allowed();
}

}  // namespace ostrel::validation
