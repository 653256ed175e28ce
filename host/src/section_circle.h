#pragma once
/// @file  The governing slip circle of a section. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "section_view.h"

namespace ostrel::host {

/// The circle with the smallest factor of all combinations, null for none.
const xSlopeStability* worst_circle(const Outcome& outcome);

/// Its slices, and its arc within the ground.
void draw_slip_circle(const SectionView& view, const Job& job, const xSlopeStability& circle,
                      Svg& svg);

/// Its factor and combination, at the foot of the sheet.
void draw_factor_of_circle(const SectionView& view, const xSlopeStability& circle, Svg& svg);

}  // namespace ostrel::host
