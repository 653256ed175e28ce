#pragma once
/// @file  The tolerances of the process as they were, at the end of a test
// SPDX-License-Identifier: Apache-2.0

#include <ostrel/tolerances.h>

namespace ostrel::testing {

class TolerancesGuard {
public:
  TolerancesGuard() = default;
  ~TolerancesGuard() { setTolerances(before_); }
  TolerancesGuard(const TolerancesGuard&) = delete;
  TolerancesGuard& operator=(const TolerancesGuard&) = delete;

private:
  xTolerances before_ = *getTolerances();
};

}  // namespace ostrel::testing
