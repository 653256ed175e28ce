#pragma once
/// @file  Profile of the ground as a polyline, and its slopes. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"

#include <armadillo>

#include <vector>

/// Profile of the ground. The two slopes are calculators for hosts; no analysis calls them.
class OSTREL_API xEmbankmentSurface {
public:
  virtual void reset();
  virtual ~xEmbankmentSurface() = default;
  xEmbankmentSurface() = default;
  xEmbankmentSurface(const xEmbankmentSurface&) = default;
  xEmbankmentSurface(xEmbankmentSurface&&) = default;
  xEmbankmentSurface& operator=(const xEmbankmentSurface&) = default;
  xEmbankmentSurface& operator=(xEmbankmentSurface&&) = default;

  /// Slope of the segment that ends at point `i`; the first one begins at the origin.
  /// @return atan(dy / dx) [rad]: pi/2 with the sign of dy for a vertical segment, NaN for a
  ///         segment of no length; 0 where there is no point `i`
  double _computeAngle(int i) const;

  /// Slope of the straight line through the origin that has the area of the profile under it.
  ///
  ///     A = sum of (y_prev + y_i) / 2 * (x_i - x_prev),  the first previous point is (0, 0)
  ///
  /// @return atan(2 A / x_last²) [rad]; NaN or pi/2 with the sign of A for x_last = 0, as the
  ///         formula gives; 0 for a profile without points
  double computeAngle() const;

  std::vector<arma::Col<double>::fixed<2>> profile;  ///< points (x, y) [mm], in the order of x
};
