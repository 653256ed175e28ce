#pragma once
/// @file  Straight lines through two values. Library: sorrel
// SPDX-License-Identifier: Apache-2.0

#include "sorrel/export.h"

/// The value at `x` of the straight line through (x0, y0) and (x1, y1), beyond the two points too.
///
///     y = y0 + (y1 - y0) (x - x0) / (x1 - x0)
///
/// @param x   where the value is wanted, in the unit of `x0` and `x1`
/// @param x0  where the value is `y0`
/// @param x1  where the value is `y1`; it may lie before `x0`
/// @param y0  value at `x0`, in any unit
/// @param y1  value at `x1`, in the unit of `y0`
/// @return exactly `y0` at `x0` and exactly `y1` at `x1`; `y0` where both abscissas are the same
SORREL_API double linInterpol(double x, double x0, double x1, double y0, double y1);
