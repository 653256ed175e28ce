#pragma once
/// @file  Whether the combinations of a project name its loads and their factors soundly. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "problems.h"
#include "project.h"

namespace ostrel::host {

/// Remarks upon a load that no combination speaks of, a combination that leaves a load out without a
/// word (null is a word), and a favourable factor above the unfavourable one.
void check_actions(const Project& project, Problems& problems);

}  // namespace ostrel::host
