#pragma once
/// @file  Whether bars and cover fit into the sections of a project. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "problems.h"
#include "project.h"

namespace ostrel::host {

/// Tells a cover that leaves no room for the bars, and bars that do not fit beside one another, in
/// the wall and in its cap beam.
///
/// `cover_mm` reaches from the face to the axes of the bars. With d the diameter of a bar, s that of
/// the stirrup and h the smallest side or the diameter of the section:
///
///     s + d / 2 <= cover < (h - d) / 2
///
/// Below, stirrups would stand out of the concrete; from the upper bound on the bars of both faces
/// meet and have no lever arm. The bars of the least ratio have to fit beside one another on their
/// circle or row.
void check_sections(const Project& project, Problems& problems);

}  // namespace ostrel::host
