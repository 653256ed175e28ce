#pragma once
/// @file  The spring that an anchor is to the beam. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/anchor.h"

#include <cstdint>

namespace ostrel::model {

/// Axial stiffness of the anchors that fall to the wall's modelled width:
///
///     k = d² pi / 4 (n E) / FreeLength / piles
///
/// with d the diameter of the tendon, n the number of anchors and E their elastic modulus. No
/// anchors (n = 0) have no stiffness, whatever the rest. Without a free length or without piles the
/// stiffness is not finite: it spoils the beam's equations, which are then refused, instead of
/// letting an anchor vanish in silence.
///
/// @param piles  number of piles of the wall
/// @return k [N/mm]
double anchor_stiffness(const xAnchor& anchor, std::int32_t piles);

/// The part of the anchors' force that falls to one of them: piles / number, both taken as reals,
/// and 1 where the number is not above 0 [-].
double anchor_force_share(const xAnchor& anchor, std::int32_t piles);

/// The link of an anchor that has no node yet (node -1).
/// @param index  of the anchor in the input
info_Fem_anchor anchor_link(const xAnchor& anchor, std::int32_t index, std::int32_t piles);

}  // namespace ostrel::model
