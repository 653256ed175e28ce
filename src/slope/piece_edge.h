#pragma once
/// @file  A line over a piece of ground continued along its outline. Room: slope
// SPDX-License-Identifier: Apache-2.0

#include "slope/place.h"

namespace ostrel::slope {

/// Continues `line` from its last point along `outline` towards increasing x, up to the first vertex
/// that has reached `xmax`. A line that ends by `xmax`, or off the outline, stays as it is.
/// @param tol  how near to `xmax` is near enough [mm]
void extendRight(double xmax, Outline& line, const Outline& outline, double tol);

/// The mirror image: continues `line` in front of its first point towards decreasing x.
void extendLeft(double xmin, Outline& line, const Outline& outline, double tol);

}  // namespace ostrel::slope
