#pragma once
/// @file  How loads on the ground spread to the wall. Room: soil
// SPDX-License-Identifier: Apache-2.0
//
// Notation. The wall stands at x = 0, z is the depth below its head.
//
//     p  distance of the load from the wall, for a strip of its nearer edge [mm]
//     e  width of a strip [mm]
//     H  height of the wall above the excavation level [mm]
//     m  p / H [-]
//     n  z / H [-]
//
// The laws give the pressure of a load of 1. They hold for a wall that does not yield; the line and
// the point load were fitted to measurements.

namespace ostrel::soil {

/// Pressure from a strip, divided by 2 / pi of its load [-].
///
///     b - cos(2 m) sin(b),   b = a2 - a1,   m = a1 + b / 2
///
/// with a1 and a2 the angles between the wall and the lines from the level to the strip's edges.
/// An edge within 1e-4 mm of the wall is seen at the angle 0; from the level of the load (|z| below
/// 1e-4 mm) every other edge is seen at pi / 2.
///
/// @source Boussinesq's solution of the strip, doubled by reflection at a rigid wall (Terzaghi
/// 1954)
double strip_influence(double position, double extension, double z);

/// Pressure from a line load, divided by the load [1/mm].
///
///     m < 0.4   0.203 n / (H (n² + 0.16)²)
///     else      4 / (pi H) m² n / (n² + m²)²
///
/// @source Terzaghi (1954); NAVFAC DM-7.02, figure 11
double line_influence(double position, double height, double z);

/// Pressure from a point load opposite to it, times H² and divided by the load [-].
///
///     m < 0.4   0.28 n² / (n² + 0.16)³
///     else      1.77 m² n² / (m² + n²)³
///
/// @source Terzaghi (1954); NAVFAC DM-7.02, figure 11
double point_influence(double position, double height, double z);

/// The width of wall that carries the pressure opposite to a point load: the sum of
/// cos²(1.1 alpha) along the wall, where alpha is the angle at which the load sees a place beside
/// it [mm].
///
/// The sum goes to half the spacing on either side, or to where the pressure has fallen to zero
/// (alpha = pi / 2.2), in 100 steps taken at their middles.
///
/// @param position  p, greater than 0; at 0 the width is not a number [mm]
/// @param spacing   of the wall [mm]
/// @source Terzaghi (1954); NAVFAC DM-7.02, figure 11
double point_spread(double position, double spacing);

}  // namespace ostrel::soil
