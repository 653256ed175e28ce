#pragma once
/// @file  The ground cut into upright stripes. Room: slope
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/error.h"
#include "ostrel/slip_circle.h"
#include "ostrel/slope_settings.h"
#include "slope/place.h"

#include <osg/ref_ptr>

#include <vector>

namespace ostrel::slope {

using Stripe = std::vector<osg::ref_ptr<sliceSeg>>;
using Stripes = std::vector<Stripe>;

/// More stripes, or more radii at one centre, than this are refused.
inline constexpr double most_steps = 1e6;

/// Coincident vertices of a piece are nearer than this [mm].
inline constexpr double coincidence = 1e-4;

/// Cuts the ground into stripes of equal width, none wider than wanted, and each at the water.
///
/// @param water     the water on the two sides
/// @param settings  the wanted width of a stripe
/// @param layers    the ground, one after the other; where soils overlap the earlier one is taken
/// @param boundary  a further body of soil, before the layers; its empty polygons are skipped
/// @param stripes   receives the stripes, from left to right
/// @retval errEmptyPolygons  a layer holds an empty polygon; the width is not positive or makes
///   more than a million stripes
OstrelErrorType buildStripes(const xWaterTable& water, const xSlopeStabilitySettings& settings,
                             const std::vector<xBoundSoilLayer>& layers,
                             const xBoundSoilLayer& boundary, Stripes& stripes);

/// Appends what the polygons have between `x0` and `x1` to `stripe`, from the lowest centroid up.
///
/// @oddity The rectangle of a stripe reaches from 2 (ymin - 1000) to 2 (ymax + 1000): the level
/// shifted by a metre is doubled, also a negative one. Ground whose highest level lies more than 2 m
/// below the wall's head loses what stands above 2 (ymax + 1000), and ground whose lowest level lies
/// more than 2 m above it what stands below 2 (ymin - 1000). Stored results depend on it.
///
/// @param ymin, ymax  lowest and highest level of all polygons [mm]
void clipStripe(const xPolyClipHelper& polygons, double x0, double x1, double ymin, double ymax,
                Stripe& stripe);

/// Makes a piece of a polygon.
///
/// @param polygons     where the owner is looked up by the centroid; null leaves the soil empty
/// @param width        width of the stripe [mm]
/// @param base_length  [mm]
/// @param base_mid     middle of the base [mm]
/// @return false for a piece below 0.01 mm² and for one that nobody owns
bool initSlice(const xPolyClipHelper* polygons, const Polygon& polygon, double width,
               double base_length, const Vector2& base_mid, sliceSeg& slice);

/// From the lowest centroid up; equal ones stay in their order.
void sort_by_level(Stripe& stripe);

/// Copies the data of all pieces, whose working fields the next circle overwrites.
void copyStripes(const Stripes& source, std::vector<std::vector<xClipData>>& target);

}  // namespace ostrel::slope
