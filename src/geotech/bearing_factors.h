#pragma once
/// @file  The factors of the bearing capacity formula, family by family. Room: geotech
// SPDX-License-Identifier: Apache-2.0
//
// Notation
//
//     phi    friction angle of the soil; exactly 0 is a soil without friction [rad]
//     t      tan(phi)
//     c      cohesion [N/mm²]
//     B, L   width and length of the foundation [mm]
//     D      depth of its base below the ground [mm]
//     alpha  inclination of the base to the horizontal [rad]
//     beta   inclination of the ground, falling away from the foundation [rad]
//     H, V   load along and across the base [N]
//     N      bearing factors, by which the others refer to the term of the cohesion
//
// Each family has a factor for each of the three terms: c cohesion, q overburden, g weight [-]. For
// a soil with friction most take the one of the cohesion from the one of the overburden, by the
// theorem of corresponding states:  Xc = Xq - (1 - Xq) / (t Nc).
//
// Two formulations: "terzaghi" is Terzaghi's sum of three terms with the factors as Vesic (1973)
// chose them, "eurocode7" takes those of EN 1997-1:2004, annex D. Families that both share carry no
// such name. Angles beyond their meaning, lengths of 0 and the like give what the formulas give,
// infinities and NaN among it.

#include "ostrel/foundation_bearing.h"

namespace ostrel::geotech {

/// Nc without friction, 2 + pi. @source Prandtl (1920)
inline constexpr double nc_without_friction = 5.141592653589793;

/// @name Bearing factors
///@{
/// Bearing factors:
///
///     Nq = exp(pi t) (1 + sin(phi)) / (1 - sin(phi))
///     Nc = (Nq - 1) / t           2 + pi without friction
///     Ng = 2 (Nq + 1) t
///
/// @source Prandtl (1920), Reissner (1924); Ng by Vesic (1973)
TermFactors bearing_terzaghi(double phi);

/// Bearing factors:
///
///     Nq = exp(pi t) tan²(pi/4 + phi/2)
///     Nc = (Nq - 1) / t           2 + pi without friction
///     Ng = 2 (Nq - 1) t
///
/// @source EN 1997-1:2004, D.3 and D.4
TermFactors bearing_eurocode7(double phi);
///@}

/// A load that is not at right angles to the base.
struct InclinedLoad {
  double H = 0.0;     ///< along the base [N], or [N/mm] of a strip
  double V = 0.0;     ///< across it, likewise
  double area = 0.0;  ///< A, of the base [mm²], or [mm] of a strip
  double m = 2.0;     ///< exponent [-]
};

/// The load on a rectangle, A = B L and m = (B/L + 2) / (B/L + 1).
InclinedLoad load_on_rectangle(double H, double V, double B, double L);

/// The load on a strip, A = B and m = 2.
InclinedLoad load_on_strip(double H, double V, double B);

/// @name Inclination of the load
///@{
/// Inclination factors:
///
///     Iq = (1 - H / (A c / t + V))^m,  Ig = (1 - H / (A c / t + V))^(m + 1),
///     Ic = Iq - (1 - Iq) / (t Nc)
///
/// and without friction Iq = 1, Ig = 0, Ic = 1 - m H / (A c Nc).
/// @source Vesic (1975)
TermFactors inclination_terzaghi(double phi, double c, const InclinedLoad& load, double Nc);

/// As `inclination_terzaghi`, but without friction
///
///     Ic = 0.5 (1 + sqrt(1 - H / (A c)))      0.5 for H > A c
///
/// @source EN 1997-1:2004, D.3 and D.4
/// @oddity A load along the base beyond its strength A c gets 0.5 and is not refused. Stored results
/// depend on it.
TermFactors inclination_eurocode7(double phi, double c, const InclinedLoad& load, double Nc);
///@}

/// Factors of an inclined base:
///
///     Bq = Bg = (1 - t alpha)²,  Bc = Bq - (1 - Bq) / (t Nc)    1 - 2 alpha / (2 + pi) without
///                                                              friction
///
/// @source Vesic (1975); EN 1997-1:2004, D.3 and D.4
TermFactors base_factors(double phi, double alpha, double Nc);

/// @name Shape of the base
///@{
/// Shape factors:
///
///     Sc = 1 + (Nq / Nc) (B / L),  Sq = 1 + t B / L,  Sg = 1 - 0.4 B / L
///
/// @source De Beer (1970), as modified by Vesic (1973)
TermFactors shape_terzaghi(double phi, double B, double L, const TermFactors& N);

/// Shape factors of a rectangle:
///
///     Sq = 1 + sin(phi) B / L,  Sg = 1 - 0.3 B / L,
///     Sc = (Nq Sq - 1) / (Nq - 1)      1 + 0.2 B / L without friction
///
/// @source EN 1997-1:2004, D.3 and D.4
TermFactors shape_eurocode7(double phi, double B, double L, double Nq);
///@}

/// Depth factors; with k = D / B, or atan(D / B) for D > B,
///
///     Dq = 1 + 2 t (1 - sin(phi))² k,  Dc = Dq - (1 - Dq) / (t Nc)     1 + 0.4 k without friction
///
/// @return Dc and Dq, and 1 for the term of the weight
/// @source Brinch Hansen (1970); Dc with friction by corresponding states
TermFactors depth_factors(double phi, double D, double B, double Nc);

/// Factors of an inclined ground:
///
///     Gq = cos(beta) (1 - tan(beta))²,  Gg = Gq / cos(beta),
///     Gc = Gq - (1 - Gq) / (t Nc)     1 - 2 beta / (2 + pi) without friction
///
/// @source Vesic (1975), with the overburden taken across the slope
TermFactors ground_factors(double phi, double beta, double Nc);

/// @name Punching
///@{
/// The rigidity index below which the soil is punched [-]:
///
///     Irc = 0.5 exp((3.3 - 0.45 B / L) / tan(pi/4 - phi/2))
///
/// @source Vesic (1973)
double critical_rigidity_index(double phi, double B, double L);

/// The rigidity index of the soil [-]:
///
///     Ir = G / (c + sigma t)
///
/// @param G      shear modulus [N/mm²]
/// @param sigma  stress in the wedge [N/mm²]
/// @source Vesic (1973)
double rigidity_index(double phi, double c, double G, double sigma);

/// Factors of a soil that is punched:
///
///     PSIq = PSIg = exp((0.6 B / L - 4.4) t + 3.07 sin(phi) log10(2 Ir) / (1 + sin(phi))),
///     PSIc = PSIq - (1 - PSIq) / (t Nq)
///
/// and without friction PSIq = PSIg = 1, PSIc = 0.32 + 0.12 B / L + 0.6 log10(Ir).
///
/// @source Vesic (1973)
/// @oddity The factor of the cohesion refers to Nq, where Vesic's refers to Nc. Stored results
/// depend on it.
TermFactors punching_factors(double phi, double B, double L, double Ir, double Nq);
///@}

/// Factors of the soil's own inertia:
///
///     Zq = Zg = (1 - k / t)^0.35 for t > k, else 1;  Zc = 1 - 0.32 k
///
/// @param k  horizontal seismic coefficient [-]
/// @source Paolucci and Pecker (1997)
/// @oddity A soil that the inertia alone brings to failure (t <= k) gets 1, the factor of one at
/// rest. Stored results depend on it.
TermFactors inertia_factors(double phi, double k);

}  // namespace ostrel::geotech
