#pragma once
/// @file  What a combination asks of an anchor, and how a failure of it is told. Room: anchors
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/anchor.h"
#include "ostrel/anchor_results.h"
#include "ostrel/check_frame.h"
#include "ostrel/results.h"

#include <osg/ref_ptr>

#include <optional>

namespace ostrel::anchors {

/// The design force of one anchor: its prestress and the force of the analysis.
///
/// @param link     of the anchor to the beam
/// @param results  of the beam in the combination
/// @return [N], positive in tension; nothing if the results do not hold the node of the link
std::optional<double> design_force(const xAnchor& anchor, const info_Fem_anchor& link,
                                   const xFemResults& results);

/// Notes in `record` of which anchor and combination it speaks, and the depth of the head.
void identify(xAnchorResults& record, const xAnchor& anchor, const xCombResults& results);

/// A failure of the anchor that `record` speaks of.
/// @param is_resistance  failed in its own strength, otherwise pulled out
osg::ref_ptr<anchorCheckInfo> failed_anchor(const xAnchorResults& record, bool is_resistance);

}  // namespace ostrel::anchors
