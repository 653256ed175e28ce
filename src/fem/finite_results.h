#pragma once
/// @file  Whether results are numbers. Room: fem
// SPDX-License-Identifier: Apache-2.0
//
// Equations of finite numbers have finite displacements, and still a force recovered from them can
// be beyond all doubles. Such results are refused, or a NaN would go through every verification.

#include "ostrel/fem_results.h"

#include <map>

namespace ostrel::fem {

/// Whether every number of the springs is finite, the limits included.
bool is_finite(const std::map<int, Fsoil>& soil_forces);

/// Whether every number that a solution recovers is finite.
bool is_finite(const xCombRes& results);

}  // namespace ostrel::fem
