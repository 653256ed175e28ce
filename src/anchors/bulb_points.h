#pragma once
/// @file  Where the borders of the layers cut a bonded length. Room: anchors
// SPDX-License-Identifier: Apache-2.0
//
// Axes: x into the retained ground, y up, the wall on x = 0 and its head on y = 0 [mm].

#include "ostrel/anchor.h"
#include "ostrel/soil_layer.h"

#include <sorrel/polygon.h>

#include <vector>

namespace ostrel::anchors {

/// The bonded length of an anchor.
struct BondedLength {
  sorrel::Point start;  ///< at the end of the free length [mm]
  sorrel::Point end;    ///< [mm]
};

/// From the head (0, -z) along (cos(alpha), -sin(alpha)), first the free length, then the bonded.
BondedLength bonded_length(const xAnchor& anchor);

/// The start, the crossings with the first layer, with the second, and so on, and the end, without
/// repetitions.
///
/// @oddity The points stand in the order of the layers and not along the anchor. Where layers are
/// not entered in the order in which the anchor meets them, stretches run back and forth and the
/// bond counts more than once. Stored results depend on it.
std::vector<sorrel::Point> bulb_points(const BondedLength& bonded,
                                       const std::vector<xBoundSoilLayer>& layers);

/// Deletes each point that repeats the one before it, in one pass.
///
/// @oddity What counts is the distance from the origin of the axes, not that of the two points: a
/// point as far from the wall's head as the one before it is deleted wherever it lies. And the
/// pass steps on after a deletion, so of three points at one place two stay. Stored results depend
/// on both.
///
/// @param tol  largest difference of two distances that are the same [mm]
void delete_repetitions(std::vector<sorrel::Point>& points, double tol);

}  // namespace ostrel::anchors
