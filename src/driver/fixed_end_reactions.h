#pragma once
/// @file  What a load inside an element brings to its two nodes. Room: driver
// SPDX-License-Identifier: Apache-2.0
//
// Notation: an element of length L from its start node down to its end node; the load stands at the
// distance a below the start node and b = L - a above the end node. Degrees of freedom as on the
// beam: x along the wall (down), y across it, r rotation. The results are the reactions of the
// element held at both ends, with the sign of the load.

#include "ostrel/fem_load.h"

namespace ostrel::driver {

/// What falls to the two nodes of an element.
struct EndReactions {
  xFemNodeData start;
  xFemNodeData end;
};

/// A force at `a` [mm] on an element of length `length` [mm].
///
///     x = b Fa / L                                  x = a Fa / L
///     y = P b² (2a + L) / L³                        y = P a² (3L - 2a) / L³
///     r = (P L² a - 2 P L a² + P a³) / L²           r = (P a³ - P L a²) / L²
///
/// @param along   Fa, along the wall [N]
/// @param across  P, across the wall [N]
/// @source fixed-end actions of a beam under a concentrated load, e.g. Young and Budynas, Roark's
///         Formulas for Stress and Strain, 7th ed. (2002), table 8.1, case 1d
EndReactions fixed_end_force(double along, double across, double a, double length);

/// A moment `m` [Nmm] at `a` [mm] on an element of length `length` [mm]. It counts positive against
/// the rotation of the nodes, so on a node it brings -m there.
///
///     y = 6 M a (L - a) / L³                        y = 6 M a (a - L) / L³
///     r = (4 L M a - L² M - 3 M a²) / L²            r = (2 L M a - 3 M a²) / L²
///
/// @source fixed-end actions of a beam under a concentrated moment, e.g. Young and Budynas, Roark's
///         Formulas for Stress and Strain, 7th ed. (2002), table 8.1, case 3d
EndReactions fixed_end_moment(double m, double a, double length);

}  // namespace ostrel::driver
