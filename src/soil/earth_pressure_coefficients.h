#pragma once
/// @file  Earth pressure coefficients at rest and in the two limit states. Room: soil
// SPDX-License-Identifier: Apache-2.0
//
// Notation. A coefficient K turns the vertical effective stress in the soil into the pressure on
// the back of the wall.
//
//     phi    friction angle of the soil
//     delta  friction angle between soil and wall
//     theta  inclination of the wall's back to the vertical, positive where the soil lies above
//            the back (0 for a vertical wall)
//     beta   slope of the ground, positive where it rises away from the wall
//     psi    inclination of the body forces of an earthquake to the vertical, atan(kh / (1 + kv))
//     kh, kv seismic coefficients; kv with the sign that the formulas use, the opposite of the one
//            that a host enters
//
// All angles in [rad]. "Active" is the wall giving way to the soil, "passive" the wall pressing
// into it. A soil whose |phi| is below a small number has no friction and a K of 1.

namespace ostrel::soil {

/// The angles between soil, wall and ground, as in the notation above.
struct WallAngles {
  double phi = 0.0;    ///< [rad]
  double delta = 0.0;  ///< [rad]
  double theta = 0.0;  ///< [rad]
  double beta = 0.0;   ///< [rad]
};

/// Below this friction angle a soil counts as having none [rad].
inline constexpr double no_friction = 1e-6;

/// Coefficient at rest.
///
///     K0 = (1 - sin(phi)) sqrt(OCR)       nu / (1 - nu) for a soil without friction
///     Kb = K0 (1 + sin(beta))
///     K  = sqrt(Kb² cos²(theta) + sin²(theta))
///
/// @param phi            friction angle [rad]
/// @param poisson_ratio  nu [-]
/// @param ocr            overconsolidation ratio OCR [-]
/// @param theta          inclination of the wall's back [rad]
/// @param beta           slope of the ground [rad]
/// @return K [-]
/// @source Jaky (1944); EN 1997-1:2004, 9.5.2, (9.1) and (9.2); without friction the laterally
///         confined elastic body
double at_rest(double phi, double poisson_ratio, double ocr, double theta, double beta);

/// Coefficient on a vertical wall, the pressure parallel to the ground.
///
///     active   K = c (c - r) / (c + r)
///     passive  K = c (c + r) / (c - r),   c = cos(beta), r = sqrt(cos²(beta) - cos²(phi))
///
/// @return K [-]
/// @source Rankine (1857)
/// @oddity A ground steeper than the friction angle gives NaN instead of a limit. The pressures
/// that follow are cut at 0 and so vanish; whoever chooses this formula keeps the slope below phi.
double rankine(bool active, double phi, double beta);

/// Coefficient of a plane wedge that slides on a rough wall.
///
///     active   K = cos²(phi - theta) / (cos²(theta) C (1 + r)²),   C = cos(delta + theta),
///              r = sqrt(sin(delta + phi) sin(phi - beta) / (cos(theta - beta) C)),
///              r = 0 for phi <= beta
///     passive  K = cos²(phi + theta) / (cos²(theta) C (1 - r)²),   C = cos(theta - delta),
///              r = sqrt(sin(delta + phi) sin(phi + beta) / (cos(theta - beta) C))
///
/// @param zero_friction  |phi| below this is no friction [rad]
/// @return K [-]; 1 without friction
/// @source Coulomb (1776), in the form of Müller-Breslau (1906)
/// @oddity The zero of the friction angle is an argument, for which `xDesignSoil` takes the
/// process-wide tolerance; the three other formulas take the fixed `no_friction`.
double coulomb(bool active, const WallAngles& angles, double zero_friction);

/// Inclination psi of the body forces [rad], atan(kh / (1 + kv)).
double seismic_inclination(double kh, double kv);

/// Coefficient of a plane wedge under body forces inclined by `psi` [rad].
///
///     active   K = N / (cos(psi) cos²(theta) C (1 + r)²),
///              N = cos²(phi - theta - psi),   C = cos(delta + theta + psi),
///              r = sqrt(sin(phi - beta - psi) sin(phi + delta) / (cos(theta - beta) C)),
///              r = 0 for phi - psi <= beta
///     passive  K = N / (cos(psi) cos²(theta) C (1 - r)²),
///              N = cos²(phi + theta - psi),   C = cos(delta - theta + psi),
///              r = sqrt(sin(phi + beta - psi) sin(phi + delta) / (cos(beta - theta) C))
///
/// @return K [-]; 1 without friction. With psi = 0 the value of `coulomb`.
/// @source Okabe (1926), Mononobe and Matsuo (1929); EN 1998-5:2004, annex E
double mononobe_okabe(bool active, const WallAngles& angles, double psi);

}  // namespace ostrel::soil
