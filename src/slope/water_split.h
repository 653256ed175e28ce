#pragma once
/// @file  Pieces of ground split at the water level. Room: slope
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/soil_layer.h"
#include "slope/stripes.h"

namespace ostrel::slope {

/// Where a piece lies. A piece that touches the level with its bottom lies above, one that touches
/// it with its top below: levels are compared without a tolerance.
enum class WaterClass { below = 0, above = 1, across = 2 };

/// @param level  of the water [mm]
WaterClass classifyAgainstWater(double level, const xClipData& clip);

/// Marks the pieces below the water and splits those that lie across.
///
/// @oddity The lowest piece decides for the whole stripe which side's level holds, and it does so
/// by its right edge: a stripe that only touches the wall from the excavated side takes the level
/// of the retained side. Stored results depend on it.
void splitAtWater(const xWaterTable& water, Stripe& stripe);

}  // namespace ostrel::slope
