#pragma once
/// @file  The loads of a job and how they are combined, for its report. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "bilingual.h"
#include "project.h"

namespace ostrel::host {

/// "Ultimate limit state", "Seismic" and so on.
const Both& name_of(pCombinationTypes kind);
const Both& name_of(pCheckTypes check);

/// Loads on the ground, null for none.
OrderedJson ground_load_table(const Project& project);
/// Loads on the wall, null for none.
OrderedJson wall_load_table(const Project& project);
/// Kinds, seismic coefficients and factors of the slope.
OrderedJson combination_table(const Project& project);
/// Favourable and unfavourable factor of each action in each combination.
OrderedJson action_table(const Project& project);
/// Factors of each soil property, for pressing and for resisting soil.
OrderedJson soil_factor_table(const Project& project);
/// Factors of those resistances that any combination has one for, null for none.
OrderedJson resistance_factor_table(const Project& project);
/// Verifications that any combination asks for, null for none.
OrderedJson check_table(const Project& project);

}  // namespace ostrel::host
