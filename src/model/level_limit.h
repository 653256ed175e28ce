#pragma once
/// @file  How many levels a soil column may have. Room: model
// SPDX-License-Identifier: Apache-2.0

namespace ostrel::model {

/// Largest number of levels along the wall. A step so small, or a layer so thick, that it would
/// take more is refused: such a column could never be solved and would only exhaust the memory.
inline constexpr int most_levels = 1'000'000;

}  // namespace ostrel::model
