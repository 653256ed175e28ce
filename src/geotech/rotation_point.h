#pragma once
/// @file  The point about which a wall may rotate as a rigid body. Room: geotech
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/anchor.h"
#include "ostrel/fem_results.h"

#include <map>
#include <optional>
#include <vector>

namespace ostrel::geotech {

/// The elevations of the anchors, each once; of levels within 0.0001 mm the first alone [mm].
std::vector<double> anchor_levels(const std::vector<info_Fem_anchor>& anchors);

/// Where the forces of the soil springs change their sign from one node to the next, linear in
/// between; the lowest node where they never do [mm].
///
/// @param springs  at least one, by node from the excavation down
/// @return the node itself where the first spring carries nothing, whatever follows; NaN from a
///         force that is none
double sign_change(const std::map<int, Fsoil>& springs);

/// The point of rotation as an elevation [mm]: the one level of the anchors or, without anchors,
/// where the soil springs change their sign. Nothing with two levels of anchors or more, which let
/// no wall move as a rigid body, and nothing with neither anchors nor springs.
std::optional<double> rotation_point(const std::vector<info_Fem_anchor>& anchors,
                                     const std::map<int, Fsoil>& springs);

}  // namespace ostrel::geotech
