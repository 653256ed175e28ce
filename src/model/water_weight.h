#pragma once
/// @file  The unit weight of water. Room: model
// SPDX-License-Identifier: Apache-2.0

namespace ostrel::model {

/// Unit weight of water in all pressures and effective weights [N/mm³].
inline constexpr double water_unit_weight = 1e-5;

}  // namespace ostrel::model
