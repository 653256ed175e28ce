#pragma once
/// @file  Whether a project holds what its verifications read. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "problems.h"
#include "project.h"

#include <string>

namespace ostrel::host {

/// Tells every field that a verification of the combination reads and that is not there.
/// @param path  of the combination
void check_verifications(const Project& project, const CombinationInput& combination,
                         const std::string& path, Problems& problems);

}  // namespace ostrel::host
