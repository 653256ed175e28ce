#pragma once
/// @file  The section through ground and wall, drawn to scale. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"
#include "project.h"

#include <string>

namespace ostrel::host {

/// Layers, water on both sides, wall and cap beam, excavation, anchors with their bonds, supports,
/// loads, dimensions, and the slip circle with the smallest factor of all combinations with its
/// slices. As SVG; the page gives its colours.
std::string section_drawing(const Project& project, const Job& job, const Outcome& outcome);

}  // namespace ostrel::host
