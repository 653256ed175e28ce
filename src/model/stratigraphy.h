#pragma once
/// @file  From soil polygons to the column of layers along the wall. Room: model
// SPDX-License-Identifier: Apache-2.0
//
// Depths are positive downwards from the wall's head, elevations upwards: one is the other negated.
// Levels compare exactly, without a tolerance. What keeps slivers of layers away is the snapping of
// borders to the very doubles at which the layers are cut.

#include "ostrel/error.h"
#include "ostrel/soil_layer.h"

#include <optional>
#include <vector>

namespace ostrel::model {

/// Top and bottom of a layer at the wall, as elevations [mm].
struct Borders {
  double top = 0.0;
  double bottom = 0.0;
};

/// Depths at which layers are cut: `levels` in ascending order, without those that are no number
/// and could cut nothing [mm].
std::vector<double> cut_depths(const std::vector<double>& levels);

/// Elevations to which the borders of layers snap: every one of `levels` [mm, depths], the wall's
/// head and the water on the retained side, whether there is water or not. Ascending [mm].
std::vector<double> snap_elevations(const std::vector<double>& levels, const xWaterTable& water);

/// Where the highest and the lowest crossing of the probe at x = 0.1 mm lie, carried along the
/// crossed sides to the wall at x = 0. Nothing if there are fewer than two crossings.
std::optional<Borders> borders_at_wall(const xBoundSoilLayer& layer);

/// Moves each border to the elevation nearer to it than `tolerance` [mm], if there is one; of
/// several that are near in turn the highest counts.
void snap(Borders& borders, const std::vector<double>& elevations, double tolerance);

/// The layer between the borders, not yet cut, with the soil and the slope of `source`.
///
/// @oddity The depth of the top is taken without its sign, so that ground above the wall's head
/// counts as lying below it. Stored results depend on it.
///
/// @param step  wanted spacing of the levels [mm]
xSoilLayer uncut_layer(const xBoundSoilLayer& source, const Borders& borders, double step);

/// Cuts `layer` at `depth` [mm] if that lies strictly inside: the upper piece is finished into
/// `column`, `layer` becomes the lower one, without a slope. It may be one of the column.
/// @return whether it was cut
bool split_layer(double depth, const xWaterTable& water, xSoilLayer& layer,
                 std::vector<xSoilLayer>& column);

/// Finishes `layer`: splits it at the water on the retained side if that lies inside, gives it its
/// levels and appends it to `column`, of which it may itself be one. A layer is under water if its
/// bottom lies below the level.
void insert_water_table(const xWaterTable& water, xSoilLayer& layer,
                        std::vector<xSoilLayer>& column);

/// Appends to `column` the pieces of all layers, in the order of the input.
///
/// @param layers  the ground
/// @param water   the water table
/// @param levels  depths of excavation, wall foot, anchors and constraints, in any order [mm]
/// @param step    wanted spacing of the levels, `StepMolle` [mm]
/// @retval errNoLayerIntersection  the probe crosses a layer less than twice; the layers before it
///                                 are in the column
/// @retval errStratigraphy  the step is not a positive number, or the column would have more than
///                          a million levels; the layers before are in the column
OstrelErrorType build_column(const std::vector<xBoundSoilLayer>& layers, const xWaterTable& water,
                             const std::vector<double>& levels, double step,
                             std::vector<xSoilLayer>& column);

}  // namespace ostrel::model
