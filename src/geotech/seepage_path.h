#pragma once
/// @file  The way of the water under the foot of the wall. Room: geotech
// SPDX-License-Identifier: Apache-2.0
//
// Notation
//
//     s      distance along the path, from the water uphill [mm]: down the retained side of the
//            wall, around the foot, up to the water or the ground of the excavation
//     sToe   where the path rounds the foot [mm]
//     s0, s1 where a layer begins and ends along the path [mm]
//     k      permeability [mm/s]
//     gamma  saturated unit weight, gammaW that of water [N/mm³]
//     h      head, as an elevation of the plane [mm]
//     D      height of the ground before the wall above the foot [mm]
//
// By continuity the same flow q = k dh/ds passes every layer, so a layer takes its share of the
// head by its length over its permeability.

#include "ostrel/error.h"
#include "ostrel/load_combination.h"
#include "ostrel/soil_layer.h"

#include <vector>

namespace ostrel::geotech {

/// One layer on the path, or in a column beside the wall: there s0 and s1 are depths.
struct SeepageSegment {
  double s0 = 0.0;     ///< [mm]
  double s1 = 0.0;     ///< [mm]
  double k = 0.0;      ///< design permeability [mm/s]
  double gamma = 0.0;  ///< design saturated unit weight [N/mm³]
};

/// The path of one combination.
struct SeepagePath {
  double head_up = 0.0;                  ///< elevation of the water uphill [mm]
  double head_down = 0.0;                ///< elevation of the water downhill [mm]
  double s_toe = 0.0;                    ///< sToe [mm]
  std::vector<SeepageSegment> segments;  ///< in the order of the path
};

/// The head at the two ends of a segment [mm].
struct HeadDrop {
  double h0 = 0.0;
  double h1 = 0.0;
};

/// The layers on a plumb line, from the water or the ground down to the foot.
///
/// @oddity The layers are looked at in the order of the input, and the first that begins under the
/// foot ends the search, whatever comes after. Ground above the water counts nowhere, so that its
/// weight is lost. Stored results depend on both.
///
/// @param x        abscissa of the line [mm]
/// @param level    elevation of the water [mm]; ground above it does not count
/// @param toe      elevation of the foot [mm]
/// @param layers   the ground
/// @param comb     its factors: the pressure factor of the permeability and the resistance factor
///                 of the unit weights
/// @param column   receives one segment by layer, by depths, from the top down
/// @retval errNoLayerIntersection  no layer lies between water and foot; always for a foot that is
///                                 not a number
OstrelErrorType column_of_layers(double x, double level, double toe,
                                 const std::vector<xBoundSoilLayer>& layers, const xLoadComb& comb,
                                 std::vector<SeepageSegment>& column);

/// The path under the foot, through the columns 1 mm behind and 1 mm before the wall.
/// @retval errHydroNoWater  no water, or a level of it that is no finite number
/// @retval errNoLayerIntersection  as for either column
OstrelErrorType build_seepage_path(const xWaterTable& water,
                                   const std::vector<xBoundSoilLayer>& layers,
                                   const xLoadComb& comb, double toe, SeepagePath& path);

/// The heads along the path:
///
///     q = (h_up - h_down) / sum((s1 - s0) / k),    h1 = h0 - q (s1 - s0) / k
///
/// The last is the downhill water itself, so that no rounding is left over. Not numbers from the
/// first segment on that lets no water through.
/// @source Darcy's law and continuity, as in Terzaghi, Peck (1967), art. 23
std::vector<HeadDrop> heads_along(const SeepagePath& path);

/// The head at the foot, linear within its segment [mm].
///
/// @oddity On a path that does not reach the foot it is the difference of the two levels, which is
/// no elevation. The gradients that follow from it are required so.
double head_at_toe(const SeepagePath& path);

/// The submerged weight of the ground that the path passes after `s`, over `width` [mm], by the mm
/// along the wall:
///
///     sum((gamma - gammaW) (length beyond s)) width
///
/// @return [N/mm]
double weight_beyond(const SeepagePath& path, double s, double width);

/// D, what is left of the path after the foot [mm].
double downhill_height(const SeepagePath& path);

}  // namespace ostrel::geotech
