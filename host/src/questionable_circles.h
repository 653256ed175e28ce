#pragma once
/// @file  Slip circles that may well be meant, but look odd. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "problems.h"
#include "project.h"

namespace ostrel::host {

/// Remarks upon stripes wider than the wall is long, circles of which none passes below the foot or
/// some leave the ground, and the method "bishop" on cohesive soils of little friction. Only where a combination
/// searches circles. The numbers of the project are sound.
void remark_upon_circles(const Project& project, Problems& problems);

}  // namespace ostrel::host
