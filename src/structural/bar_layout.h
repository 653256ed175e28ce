#pragma once
/// @file  Limits of what a section designer lays out. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/reinforcement_bars.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace ostrel::structural {

/// More bars than this in one group are a slip of the input; they are not laid out, and growth ends
/// there.
inline constexpr std::uint32_t most_bars = 2000;

inline bool too_many(const xReinforcementBar& bars) {
  return bars.getNumber() > most_bars;
}

/// `step` bars, as `addBars` takes them.
inline int as_int(std::uint32_t step) {
  constexpr auto most = static_cast<std::uint32_t>(std::numeric_limits<int>::max());
  return static_cast<int>(std::min(step, most));
}

}  // namespace ostrel::structural
