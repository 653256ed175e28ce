#pragma once
/// @file  The moments of the slices of one circle. Room: slope
// SPDX-License-Identifier: Apache-2.0
//
//     W, H        weight and horizontal inertia force of a piece [N]
//     u, c, phi   pore pressure, cohesion and friction at the base of a stripe [N/mm²], [rad]
//     l, alpha    length [mm] and inclination [rad] of the base
//     Q           vertical loads on a stripe [N]
//     N           normal force on the base [N]
//     m           divisor of the form of Bishop [-]
//
// The moments are taken about the centre of the circle, positive for a weight to its left. Slices on
// both sides offset each other: with the retained ground on the right the driving sum is negative,
// and its sign is lost in the factor.

#include "ostrel/load_combination.h"
#include "ostrel/soil_layer.h"
#include "slope/place.h"

namespace ostrel::slope {

/// The pair of seismic coefficients as the slices take it.
struct SliceSeismic {
  double kh = 0.0;  ///< [-]
  double kv = 0.0;  ///< [-]
};

SliceSeismic slice_seismic(const xLoadComb& comb);

/// The action of self weight; factors of 1 where the combination has no actions.
const xAction& weight_action(const xLoadComb& comb);

/// The level of the water over a place [mm].
inline double water_level(const xWaterTable& water, double x) {
  return x >= 0.0 ? water.getLivelloMonte() : water.getLivelloValle();
}

/// What the base of a stripe resists with.
struct BaseResistance {
  double length = 0.0;         ///< l [mm]
  double pore_pressure = 0.0;  ///< u [N/mm²]
  double cohesion = 0.0;       ///< c [N/mm²]
  double tan_phi = 0.0;        ///< [-]
  double sin_alpha = 0.0;      ///< [-]
  double cos_alpha = 0.0;      ///< [-]
  double tan_abs_alpha = 0.0;  ///< tan |alpha| [-]
};

/// Sums over the pieces of one stripe.
struct StripeSums {
  double weight = 0.0;   ///< sum of W [N]
  double seismic = 0.0;  ///< sum of H [N]
  double moment = 0.0;   ///< sum of W by its arm [N mm]
};

/// Resistance along the base of a stripe [N].
///
///     N = ((1 - kv) sum W + Q) cos(alpha) - sum H sin(alpha) - u l
///     m = (1 + tan|alpha| tan(phi) / F) cos(alpha)  or 1
///     T = c l spacing / m + max(N, 0) tan(phi) / m
///
/// @oddity The inertia force enters the normal force alone: it has no moment of its own, so
/// seismic action lowers the resistance and nothing else. Stored results depend on it.
/// @oddity The pore pressure acts on the base without the spacing, unlike weight and cohesion: it
/// counts as if the slice were 1 mm long, at a spacing of 1 m as a thousandth of its force. Still
/// water is in the weights already, which are effective ones below the level; what the term could
/// add to that is as good as absent. Stored results depend on it.
/// @oddity The divisor takes |alpha|, so that slices on both sides of the centre have the same one.
/// Stored results depend on it.
///
/// @oddity The loads in the normal force take the first factors of their actions on both sides of
/// the centre, while the weights and the driving moment take those of the slice's own side: right of
/// the centre a load may press with 1.5 and drive with 1. Stored results depend on it.
///
/// @param loads    Q, with the first factors of the actions [N]
/// @param kv       vertical seismic coefficient [-]
/// @param spacing  extent of the slice along the wall [mm]
/// @param trial    F [-]
double base_resistance(const BaseResistance& base, const StripeSums& sums, double loads, double kv,
                       double spacing, double trial, bool bishop);

}  // namespace ostrel::slope
