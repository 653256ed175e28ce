#pragma once
/// @file  The data of a job, for its report. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "bilingual.h"
#include "project.h"

namespace ostrel::host {

/// Blocks with all that the project says: wall, ground, water, anchors, supports, loads,
/// combinations with their factors, reinforcement, search of slip circles, calculation.
OrderedJson input_blocks(const Project& project);

}  // namespace ostrel::host
