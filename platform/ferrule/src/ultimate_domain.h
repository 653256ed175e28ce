#pragma once
/// @file  The forces that a section carries, and the strain planes that show it. Library: ferrule
// SPDX-License-Identifier: Apache-2.0

#include "ferrule/deform.h"
#include "moment_slice.h"

#include <optional>

namespace Ferrule::internal {

/// The ultimate state at an axial force whose moment has the given direction and nothing beside it.
///
/// @param model  a usable section
/// @param axial  [N], finite
/// @return nothing when no moment of this direction goes with the axial force
std::optional<StrainState> resisting_state(SectionModel& model, double axial, Direction direction);

/// Whether forces lie within the ultimate domain.
///
/// @param model   a usable section
/// @param axial   [N], finite
/// @param moment  [N mm], finite
/// @param plane   result: when true, a plane within the limits that balances the forces; otherwise
///                the ultimate plane at this axial force on the side of the moment, or, where the
///                axial force is out of reach, the plane of the plain elastic section
bool find_equilibrium(SectionModel& model, double axial, Moment moment, Deform& plane);

}  // namespace Ferrule::internal
