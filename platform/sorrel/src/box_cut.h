#pragma once
/// @file  What of an outline lies within a box. Library: sorrel
// SPDX-License-Identifier: Apache-2.0

#include "outline.h"

namespace sorrel {

/// Cuts an outline along the four borders of a box, one after another. What runs outside of a
/// border is laid onto it.
///
/// Every vertex that is made lies on its border exactly. The other coordinate follows from the two
/// ends of the side alone, whichever way the side runs, so that two polygons with a common side are
/// cut at one point.
///
/// The result winds round every place within the box as often as the outline does. Where the
/// outline leaves the box more than once, it meets itself in stretches of the border that are run
/// there and back.
Outline cut_to_box(const Outline& outline, const Box& box);

}  // namespace sorrel
