#pragma once
/// @file  Shear strength by a truss with struts of variable slope. Room: structural
// SPDX-License-Identifier: Apache-2.0
//
// Notation
//
//     b, h    width and height of a rectangle, h in the direction of the shear [mm]
//     c       cover: distance of the bar axes from the face [mm]
//     z       lever arm, 0.9 (h - c) [mm]
//     asw_st  section of the stirrups by unit of length of the member [mm²/mm]
//     fyd     design strength of the stirrups [N/mm²]
//     fcd     design strength of the concrete [N/mm²]
//     ct      cotangent of the slope of the struts to the axis of the member [-]

#include "ostrel/reinforcement_bars.h"

#include <functional>

namespace ostrel::structural {

/// The strengths of the truss, each as a shear force [N].
struct TrussStrength {
  double stirrups = 0.0;
  double struts = 0.0;
};

/// A rectangle that stands for another shape.
struct EquivalentRectangle {
  double b = 0.0;  ///< width [mm]
  double h = 0.0;  ///< height [mm]
};

/// Load on the stirrups against that on the struts,
///
///     sn = min(1, sqrt(2 asw_st fyd / (b fcd)))
///
/// @return sn [-]; 1 where the root is not a number
double strut_utilisation(double asw_st, double b, double fyd, double fcd);

/// Cotangent of the struts when stirrups and struts reach their strength together, from 1 to 2.5:
///
///     ct = sqrt(1 - sn) / sn
///
/// @param sn  as from `strut_utilisation` [-]; 2.5 applies up to 2.220446049250313e-13
///
/// @oddity The root is of 1 - sn and not of 1 - sn², which the balance of stirrups and struts would
/// give: the struts stay steeper than they could be. Stored results depend on it.
double strut_cotangent(double sn);

/// Both strengths of a rectangle at the slope of `strut_cotangent`:
///
///     stirrups = asw_st z fyd ct
///     struts   = 0.5 fcd b z ct / (ct² + 1)
///
/// @source EN 1992-1-1 (2004), 6.2.3, equations (6.8) and (6.9)
TrussStrength truss_strength(const EquivalentRectangle& section, double c, double asw_st,
                             double fyd, double fcd);

/// The rectangle that stands for a circle with a ring of bars. Its effective depth h - c is that of
/// the centroid of the half ring in tension, at x R from the centre; its area is that of the circle
/// above this centroid,
///
///     x = 2 (R - c) / (pi R),  h = (x + 1) R + c,
///     b = (x sqrt(1 - x²) + asin(x) + pi / 2) R² / h,  R = D / 2
///
/// @param D  diameter [mm]
/// @return a width of NaN where the cover takes the centroid out of the circle
EquivalentRectangle equivalent_rectangle(double D, double c);

/// Searches a step of stirrups: sets the steps from the largest on, closing up by the increment,
/// until `suffices` or the next step would be below the smallest.
///
/// @param stirrup   is given each step that is tried; untouched where the largest step is below the
///                  smallest or either is NaN
/// @param suffices  called after each change of step
///
/// An increment that does not close up the stirrups ends the search after its first try, and so do
/// 100 000 tries.
void search_step(const xBracketSettings& settings, xBracket& stirrup,
                 const std::function<bool()>& suffices);

}  // namespace ostrel::structural
