#pragma once
/// @file  The strain plane that balances given forces. Library: ferrule
// SPDX-License-Identifier: Apache-2.0

#include "moment_slice.h"

namespace Ferrule::internal {

/// The strain plane with the forces (axial, moment), whatever its strains.
///
/// With E the convex function of (d1, d2) whose gradient is the moment at this axial force, it is
/// the minimum of E - Mx d1 - My d2. Along every direction less than a right angle away from that
/// of (moment - uniform.moment) the minimum is a root of a growing function, and the slope across
/// the direction at these minima changes its sign between the two right angles. Each of the three
/// nested searches therefore has a bracket.
///
/// Where no plane has the forces, the result is some plane; its forces tell.
///
/// @param uniform  the plane without a gradient that has the axial force
StrainState balanced_state(SectionModel& model, double axial, Moment moment,
                           const StrainState& uniform);

}  // namespace Ferrule::internal
