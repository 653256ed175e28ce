#pragma once
/// @file  Reading a list of partial factors on the soil by position. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/soil_props.h"

#include <cstddef>
#include <vector>

namespace ostrel::model {

/// The factor at `position` of a combination's list, 1 where the list ends before it [-].
///
/// A combination comes into being with an empty list: the soil then keeps its characteristic
/// values.
inline double geo_factor(const std::vector<GeoCombFactor>& factors, std::size_t position,
                         geoFactorType type) {
  return position < factors.size() ? factors[position].getF(type) : 1.0;
}

}  // namespace ostrel::model
