#pragma once
/// @file  Small pieces of ground and plain combinations for slip circles, for tests
// SPDX-License-Identifier: Apache-2.0

#include <ostrel/load_combination.h>
#include <ostrel/slip_circle.h>
#include <ostrel/soil_layer.h>

#include <armadillo>

#include <vector>

namespace ostrel::testing {

using Outline = std::vector<arma::Col<double>::fixed<2>>;

/// An upright rectangle, counter-clockwise from its upper left corner.
inline Outline box(double left, double bottom, double right, double top) {
  return {{left, top}, {left, bottom}, {right, bottom}, {right, top}, {left, top}};
}

/// A layer of one polygon. @param gamma, saturated  unit weights  @param cohesion, friction [rad]
inline xBoundSoilLayer ground(const Outline& outline, double gamma, double saturated = 0.0,
                              double cohesion = 0.0, double friction = 0.0) {
  xBoundSoilLayer layer;
  layer.polygons.push_back(outline);
  layer.soil.setUnitWeight(gamma);
  layer.soil.setSaturatedUnitWeight(saturated);
  layer.soil.setCohesion(cohesion);
  layer.soil.set_InternalFriction(friction);
  return layer;
}

/// Three actions with factors of 1, and `conditions` more for load conditions; the factor of
/// resistance is 1 and the verification of global stability is wanted.
inline xLoadComb plain_combination(int conditions = 0) {
  xLoadComb comb;
  comb.ulsFactors[factorGlobalStability] = 1.0;
  comb.checks[checkGlobalStability] = true;
  comb.actions.resize(static_cast<std::size_t>(3 + conditions));
  for (xAction& action : comb.actions) {
    action.set("", true, 1.0, 1.0);
  }
  return comb;
}

inline xWaterTable water_at(double retained, double excavated) {
  xWaterTable water;
  water.setIsDefined(true);
  water.setLivelloMonte(retained);
  water.setLivelloValle(excavated);
  return water;
}

}  // namespace ostrel::testing
