#pragma once
/// @file  The ground of a job, for its report. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "bilingual.h"
#include "project.h"

namespace ostrel::host {

/// Soils with their parameters.
OrderedJson soil_table(const Project& project);
/// Layers at the wall, or the vertices of their polygons.
OrderedJson layer_table(const Project& project);
/// Levels of the water on both sides.
OrderedJson water_facts(const WaterInput& water);
/// Intervals of the soil springs.
OrderedJson spring_table(const Project& project);

}  // namespace ostrel::host
