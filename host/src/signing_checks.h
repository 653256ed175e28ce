#pragma once
/// @file  What a project asks for that an engineer has to look at before signing. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// The library keeps forms that are on the unsafe side in some walls. The page "Before you sign" says
// by how much; what of its short list a project meets is told here. Not told is what holds of every
// wall.

#include "problems.h"
#include "project.h"

namespace ostrel::host {

/// Remarks upon each form that the project meets, once, with the combinations that meet it. The
/// numbers of the project are sound.
void check_before_signing(const Project& project, Problems& problems);

}  // namespace ostrel::host
