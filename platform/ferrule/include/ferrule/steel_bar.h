#pragma once
/// @file  A reinforcing bar of a section. Library: ferrule
// SPDX-License-Identifier: Apache-2.0

namespace Ferrule {

/// A round bar, thought of as a point with an area.
class SteelBar {
public:
  SteelBar() = default;

  /// Puts the bar's axis at (x, y) and gives it a radius, all [mm].
  void setPosR(double x, double y, double radius) {
    x_ = x;
    y_ = y;
    radius_ = radius;
  }

  double getX() const { return x_; }
  double getY() const { return y_; }
  double getRadius() const { return radius_; }

private:
  double x_ = 0.0;       ///< [mm]
  double y_ = 0.0;       ///< [mm]
  double radius_ = 0.0;  ///< [mm]; a bar whose radius is not positive does not count
};

}  // namespace Ferrule
