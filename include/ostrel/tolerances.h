#pragma once
/// @file  The small numbers below which two values count as the same. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"

#include <array>

/// Eight tolerances, read by their position.
class OSTREL_API xTolerances {
public:
  /// Positions with a reader; 0 and 2 have none.
  enum Position : unsigned {
    partial_factor = 1,     ///< zero of a partial factor [-]; also intersections of the slices
    tendon_section = 3,     ///< zero of a tendon's section [mm²]
    position_identity = 4,  ///< two positions that are the same [mm]
    line_ends = 5,          ///< how far beyond its ends a line still crosses
    crossing_distance = 6,  ///< two crossings that are one [mm]
    friction_angle = 7,     ///< zero of a friction angle [rad]
  };

  double operator[](unsigned position) const { return values.at(position); }

  std::array<double, 8> values{1e-6, 1e-6, 1e-6, 1e-6, 1e-6, 1e-6, 1e-6, 1e-6};
};

/// The tolerances of the process. They are read by the thread of the analysis, and no lock guards
/// them: set them before a run.
OSTREL_API const xTolerances* getTolerances();

/// Replaces the tolerances of the process.
OSTREL_API void setTolerances(const xTolerances& tolerances);
