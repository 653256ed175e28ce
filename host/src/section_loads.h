#pragma once
/// @file  The loads of a section. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "section_view.h"

namespace ostrel::host {

/// Each load on the ground in a row of its own, with its name and value. Arrows of a strip show how
/// its value changes.
void draw_ground_loads(const SectionView& view, const Project& project, Svg& svg);

/// Arrows at the wall in the direction of the forces, a circle for a moment.
void draw_wall_loads(const SectionView& view, const Project& project, Svg& svg);

}  // namespace ostrel::host
