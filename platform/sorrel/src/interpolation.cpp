// SPDX-License-Identifier: Apache-2.0
#include "sorrel/interpolation.h"

#include <cmath>

double linInterpol(double x, double x0, double x1, double y0, double y1) {
  const double span = x1 - x0;
  if (!(std::abs(span) > 0.0)) return y0;
  // Measured from the nearer point, so that each point is met exactly. (std::lerp would do the
  // same, but gives y1 for an x that is not a number.)
  const double from_first = (x - x0) / span;
  if (from_first < 0.5) return y0 + from_first * (y1 - y0);
  return y1 - (x1 - x) / span * (y1 - y0);
}
