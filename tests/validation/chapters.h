#pragma once
/// @file  The chapters of the validation; each runs its cases
// SPDX-License-Identifier: Apache-2.0

#include "validation/published_case.h"

#include <vector>

namespace ostrel::validation {

Chapter earth_pressure_coefficients();
Chapter pressure_diagrams();
Chapter surcharges();
Chapter beams_on_springs();
Chapter concrete_sections();
Chapter shear_strength();
Chapter bearing_capacity();
Chapter anchor_bond();
Chapter water_verifications();
Chapter slip_circles();
Chapter whole_walls();

/// All of them, in the order of the manual.
std::vector<Chapter> all_chapters();

}  // namespace ostrel::validation
