#pragma once
/// @file  Whole runs of the library and what they are asked, for the validation
// SPDX-License-Identifier: Apache-2.0

#include "support/wall_builder.h"

#include <ostrel/results.h>
#include <ostrel/solver.h>

namespace ostrel::validation {

/// The run of an input with one combination.
struct WholeRun {
  xCombResults result;

  double displacement_at(double depth) const;  ///< of the node at this depth, across the wall [mm]
  double force_at(double depth) const;  ///< of what holds the wall at this node, across it [N]
  double largest_moment() const;        ///< by size [Nmm]
};

/// @throws std::runtime_error  the run does not go through
WholeRun run_wall(const xSheetpilingData& data);

}  // namespace ostrel::validation
