#pragma once
/// @file  A section across the wall with its reinforcement, drawn to scale. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "project.h"

#include <ostrel/reinforcement.h>

#include <string>

namespace ostrel::host {

/// Outline, bars and stirrup of one record, the excavation side downwards. As SVG.
/// @param input  the cover: axes of the bars from the face
std::string wall_section_drawing(const WallInput& wall, const ReinforcementInput& input,
                                 xReinfCrossSection& section);

}  // namespace ostrel::host
