#pragma once
/// @file  What a pile draws from the ground at its tip and along its shaft. Room: geotech
// SPDX-License-Identifier: Apache-2.0
//
// Notation
//
//     phi   friction angle of the soil at the tip: in the charts [°], along the shaft [rad]
//     c     its cohesion [N/mm²]
//     D     equivalent diameter of the pile [mm]
//     L     its embedded length [mm]
//     r     L / D, at least 4 [-]
//     K     earth pressure coefficient on the shaft [-]
//     s     vertical stress in the ground [N/mm²]
//
// A way of making piles that is none of the three is taken for the bored pile, which has the least
// of each.

#include "ostrel/pile_bearing_settings.h"
#include "ostrel/soil_layer.h"

namespace ostrel::geotech {

/// @name Tip
///@{
/// The friction angle after the pile was made [°]: (phi + 40) / 2 around a driven pile, phi - 3
/// below any other.
/// @param phi  before [°]
/// @source Kishida (1967)
double angle_after_installation(double phi, xtechPiles technology);

/// Bearing factor of the overburden at the tip [-], by a curve for D >= 600 mm,
///
///     Nq = (51.4769 + 1.038462 r) - (4.233764 + 0.056078 r) phi
///        + (0.094698 + 0.0006525 r) phi²
///
/// and another below,
///
///     Nq = exp(0.14506501 phi - 0.30822131 - 0.81038184 ln(r) + 0.016107 phi ln(r))
///
/// Below 20° it falls linearly to 1 at 0°.
///
/// @param phi  [°]; a negative angle follows the line on below 1
/// @param D    equivalent diameter [mm]
/// @param L    embedded length [mm]
/// @source curves fitted to the charts after Berezantzev (1961)
double tip_factor_overburden(double phi, double D, double L);

/// Bearing factor of the cohesion at the tip [-]: (Nq - 1) / tan(phi); below 20° it falls linearly
/// to 9 at 0°. Parameters as for `tip_factor_overburden`.
double tip_factor_cohesion(double phi, double D, double L);
///@}

/// @name Shaft
///@{
/// K on the shaft [-]:
///
///     pile     loose  dense
///     driven   1.0    3.0
///     bored    0.5    0.4
///     augered  0.7    0.9
///
/// @source Viggiani (1999)
double shaft_pressure_coefficient(xtechPiles technology, bool dense);

/// The share of the undrained cohesion that holds on the shaft [-]. Up to 25 kN/m² it is 1.0 for a
/// driven and 0.7 for any other pile; it falls by 0.011 or 0.008 for each kN/m² more, up to
/// 70 kN/m², and is 0.5 or 0.35 above.
/// @param cohesion  [N/mm²]
/// @source Viggiani (1999)
double adhesion_factor(double cohesion, xtechPiles technology);

/// Effective unit weight of a soil in a layer: buoyant where it is under water [N/mm³].
double effective_weight(const xSoilProps& soil, const xSoilLayer& layer);

/// What friction along a layer came to.
struct ShaftFriction {
  double resistance = 0.0;  ///< [N]
  double stress = 0.0;      ///< vertical stress reached [N/mm²]
};

/// The friction along the levels z of one layer, each step from the level before it:
///
///     dz = (z - z0) - prev,  s rises by ds = weight dz,
///     resistance rises by U K tan(phi) (s - ds / 2) dz
///
/// with z0 the start of the layer; prev is z0 at first and then the last z - z0.
///
/// @oddity The first step takes the start of the layer off twice, and a start counts from the
/// excavation while the levels count from the head of the wall. Stored results depend on it.
///
/// @param layer        start from the excavation [mm], levels from the head [mm]
/// @param perimeter    of the pile, U [mm]
/// @param coefficient  K tan(phi) [-]
/// @param top_stress   vertical stress before the first step [N/mm²]
ShaftFriction shaft_friction(const xSoilLayer& layer, double perimeter, double coefficient,
                             double top_stress);
///@}

}  // namespace ostrel::geotech
