#pragma once
/// @file  The outcome of the ultimate limit state verifications. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"

/// What each verification of the ultimate limit states produced.
class OSTREL_API xUltimateLimitStates {
public:
  virtual void reset();
  virtual ~xUltimateLimitStates() = default;
};
