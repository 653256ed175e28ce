#pragma once
/// @file  The table of the governing slip circles. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "texts.h"

#include <ostrel/slope_stability.h>

#include <string>

namespace ostrel::host {

/// The worst circle of each combination with its moments; empty where none was searched.
std::string circle_table(const xSlopeStabilityDesign& design, const Texts& texts);

}  // namespace ostrel::host
