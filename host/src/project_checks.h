#pragma once
/// @file  Whether the parts of a project fit together. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "problems.h"
#include "project.h"

namespace ostrel::host {

/// Tells what contradicts something else, and remarks upon what looks odd. Fields that were told to
/// be wrong before (numbers that are NaN) cause nothing here.
void check_project(const Project& project, Problems& problems);

}  // namespace ostrel::host
