#pragma once
/// @file  The weight of the ground above a place. Room: anchors
// SPDX-License-Identifier: Apache-2.0
//
// Notation: gamma is the unit weight above water, gamma' that below it less the unit weight of
// water, both with the factors of the combination [N/mm³]; w is the level of the water [mm].

#include "ostrel/soil_layer.h"
#include "ostrel/soil_props.h"

#include <sorrel/polygon.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace ostrel::anchors {

/// What lies above a place, and where the place is.
struct Overburden {
  double stress = 0.0;               ///< effective vertical stress sigma'v [N/mm²]
  std::optional<std::size_t> layer;  ///< position of the layer that holds the place, if any
};

/// The layers with their design weights in one combination.
class DesignGround {
public:
  /// @param layers   from the top down; they must outlive this object
  /// @param water    its level on the retained side counts
  /// @param factors  on the soil, by position; those of resistance count
  DesignGround(const std::vector<xBoundSoilLayer>& layers, const xWaterTable& water,
               const std::vector<GeoCombFactor>& factors);

  /// Adds up the ground on the vertical above `place`, and finds the layer that holds it: of
  /// several the last. Loads on the ground do not count.
  ///
  /// @oddity A layer that the vertical does not meet hides all layers after it, also those that
  /// hold or cover the place. A layer counts from its lowest crossing with the vertical to its
  /// highest, with whatever void or other layer lies between; one that is left, met again and left
  /// again above the place does not hold it. Stored results depend on it.
  Overburden above(const sorrel::Point& place) const;

private:
  struct Weights {
    double dry = 0.0;        // gamma
    double submerged = 0.0;  // gamma'
  };

  double stress_of(const Weights& weights, double bottom, double low, double high) const;

  const std::vector<xBoundSoilLayer>& layers_;
  std::vector<Weights> weights_;  // of each layer
  double water_level_;            // w, far down without water
};

}  // namespace ostrel::anchors
