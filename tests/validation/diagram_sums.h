#pragma once
/// @file  Sums over the pressure diagrams of a column of layers, for the validation
// SPDX-License-Identifier: Apache-2.0

#include "support/soil_column.h"

#include <ostrel/layer_pressure.h>

#include <cstddef>
#include <vector>

namespace ostrel::validation {

/// The force of diagrams, and its moment about the top of each one's own layer.
struct DiagramSum {
  double force = 0.0;   // [N] for a diagram in N/mm
  double moment = 0.0;  // [Nmm]
};

/// The pressure runs straight between the points of a diagram.
inline DiagramSum sum_of(const std::vector<xLayerPress>& diagrams) {
  DiagramSum sum;
  for (const xLayerPress& diagram : diagrams) {
    for (std::size_t i = 0; i + 1 < diagram.points.size(); ++i) {
      const diag_Point& a = diagram.points[i];
      const diag_Point& b = diagram.points[i + 1];
      const double L = b.s - a.s;
      sum.force += (a.value + b.value) * L / 2.0;
      sum.moment += (a.value * (2.0 * a.s + b.s) + b.value * (a.s + 2.0 * b.s)) * L / 6.0;
    }
  }
  return sum;
}

/// Levels from `top` to `bottom` [mm], `steps` equal steps apart.
inline std::vector<double> levels_between(double top, double bottom, int steps) {
  std::vector<double> levels;
  for (int i = 0; i <= steps; ++i)
    levels.push_back(top + (bottom - top) * i / steps);
  return levels;
}

}  // namespace ostrel::validation
