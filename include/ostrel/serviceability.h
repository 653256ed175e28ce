#pragma once
/// @file  The outcome of the serviceability limit state verification. Room: geotech
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"

/// What the verification of the displacements produced.
class OSTREL_API xServiceabilityLimitStates {
public:
  virtual void reset();
  virtual ~xServiceabilityLimitStates() = default;
};
