#pragma once
/// @file  The outcome of the ultimate limit state verifications. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/check_frame.h"
#include "ostrel/export.h"
#include "ostrel/wall_check.h"

#include <osg/ref_ptr>

#include <vector>

/// What each verification of the ultimate limit states produced. It holds ids, names and numbers
/// and outlives the solver.
class OSTREL_API xUltimateLimitStates {
public:
  virtual void reset();
  virtual ~xUltimateLimitStates() = default;
  xUltimateLimitStates() = default;
  xUltimateLimitStates(const xUltimateLimitStates&) = default;
  xUltimateLimitStates(xUltimateLimitStates&&) = default;
  xUltimateLimitStates& operator=(const xUltimateLimitStates&) = default;
  xUltimateLimitStates& operator=(xUltimateLimitStates&&) = default;

  /// Smallest safety factor over all verifications [-], 1e10 without any; every level appends its
  /// failures to `failures`, unless that is null.
  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failures);

  xStructuralDesign structuralDesign;  ///< the reinforced concrete wall
};
