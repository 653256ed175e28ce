#pragma once
/// @file  Whether the method of the slip circles suits the ground. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "problems.h"
#include "project.h"

namespace ostrel::host {

/// A cohesive soil with less friction than this is named where the method "bishop" meets it [°].
inline constexpr double little_friction_deg = 15.0;

/// Remarks that "bishop" meets cohesive layers of little friction, on which it gives factors up to
/// half more than the ordinary method.
void check_formulation(const Project& project, Problems& problems);

}  // namespace ostrel::host
