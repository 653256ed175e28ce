#pragma once
/// @file  Whether anchors, supports, springs and loads of a project stand where they can act. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "problems.h"
#include "project.h"

namespace ostrel::host {

/// Tells nodes too far apart for springs below the excavation. Remarks upon anchors below the
/// excavation, supports that hold nothing, intervals of springs that overlap, and loads beyond the
/// ground.
void check_layout(const Project& project, Problems& problems);

/// Tells a bulb that leaves the ground where a combination verifies its pull-out, and remarks upon
/// it otherwise. The numbers of the project are sound.
void check_bulbs(const Project& project, Problems& problems);

}  // namespace ostrel::host
