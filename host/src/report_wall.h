#pragma once
/// @file  The wall of a job and what holds it, for its report. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "bilingual.h"
#include "project.h"

namespace ostrel::host {

/// Kind and size of the wall, its material, cap beam and limits of displacement.
OrderedJson wall_facts(const Project& project);
/// Factors of the vertical bearing.
OrderedJson bearing_facts(const PileBearingInput& bearing);
OrderedJson anchor_table(const Project& project);
/// What the pull-out of each anchor is worked out from, beside its sizes.
OrderedJson bond_table(const Project& project);
/// Imposed and elastic supports.
OrderedJson support_table(const Project& project);
/// Concrete and steel.
OrderedJson material_facts(const ReinforcementInput& input);
/// Cover, diameters, least and largest amounts, stirrups.
/// @param rectangle  a diaphragm wall, whose two sides have rules of their own
OrderedJson reinforcement_facts(const ReinforcementInput& input, bool rectangle);

}  // namespace ostrel::host
