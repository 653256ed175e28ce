#pragma once
/// @file  The wall of a section and what holds it. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "section_view.h"

namespace ostrel::host {

/// Wall, cap beam and the bottom of the excavation.
void draw_wall(const SectionView& view, const Project& project, Svg& svg);

/// Tendons, bonds and plates; along each bond its name, lengths and angle.
void draw_anchors(const SectionView& view, const Project& project, Svg& svg);

/// A triangle for each direction that is held, a square for the rotation; dashed where elastic.
void draw_supports(const SectionView& view, const Project& project, Svg& svg);

}  // namespace ostrel::host
