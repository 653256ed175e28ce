#pragma once
/// @file  The strain plane of a section. Library: ferrule
// SPDX-License-Identifier: Apache-2.0

namespace Ferrule {

/// Strains that vary linearly over a section, tension positive:
///
///     strain(x, y) = d0 + d1 y + d2 x
struct Deform {
  double d0 = 0.0;  ///< strain at (0, 0) [-]
  double d1 = 0.0;  ///< gradient along y [1/mm]
  double d2 = 0.0;  ///< gradient along x [1/mm]

  /// Strain at the point (x, y), both [mm].
  double strain(double x, double y) const { return d0 + d1 * y + d2 * x; }
};

}  // namespace Ferrule
