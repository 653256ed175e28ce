#pragma once
/// @file  What drives a rigid wall and what resists. Room: geotech
// SPDX-License-Identifier: Apache-2.0
//
// Forces act across the wall. Elevations are plane coordinates [mm]; z0 is that of the point of
// rotation.

#include "ostrel/fem_load.h"
#include "ostrel/fem_results.h"
#include "ostrel/sheetpiling_data.h"

#include <map>
#include <vector>

class rigidBodyMotionCheck;

namespace ostrel::geotech {

/// Adds the loads to the driving side:
///
///     Hdest += F,    Mdest += m - (z - z0) F
///
/// @param loads  by depth, which is -z
void add_loads(const std::vector<xFemNodeData_pos>& loads, rigidBodyMotionCheck& sums);

/// Adds the soil springs, f being the force of a spring and F and m what the soil can give there:
///
///     f > 0:     Hres  += F,    Mres += m - (z - z0) F
///     otherwise  Hdest += f,    Mres += m + (z - z0) F
///
/// @oddity A spring that does not push adds the force it has to the driving forces, but the moment
/// of the force that the soil can give to the resisting moments. Stored results depend on it.
void add_springs(const std::map<int, Fsoil>& springs, rigidBodyMotionCheck& sums);

/// Adds the anchors that the wall pulls, each with the yield force R of one tendon:
///
///     Hres += R,    Mres -= (z - z0) R
///
/// An anchor whose strength cannot be told, as for a partial factor of 0, has none.
void add_anchors(const std::vector<info_Fem_anchor>& links, const std::vector<xAnchor>& anchors,
                 const xFemResults& beam, rigidBodyMotionCheck& sums);

}  // namespace ostrel::geotech
