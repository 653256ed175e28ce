#pragma once
/// @file  Whether the ground of a project stands along the whole wall. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "problems.h"
#include "project.h"

#include <ostrel/soil_layer.h>

#include <optional>

namespace ostrel::host {

/// Where a layer begins and ends at the wall, as elevations [mm].
struct LayerSpan {
  double top = 0.0;
  double bottom = 0.0;
};

/// The span at the wall of a layer; nothing where its polygons do not reach across the wall's line.
/// They are cut just inside the retained side, where the library cuts them.
std::optional<LayerSpan> span_at_wall(const xBoundSoilLayer& layer);

/// Tells where layers miss the wall, leave gaps or stand in the wrong order, and where the ground
/// ends too high or too low. The numbers of the project are sound.
void check_ground(const Project& project, Problems& problems);

}  // namespace ostrel::host
