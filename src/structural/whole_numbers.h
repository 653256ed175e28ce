#pragma once
/// @file  From a quotient or a length to a whole number. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include <cstdint>

namespace ostrel::structural {

/// `quotient` [-] rounded up to a number of bars. Within 1e-9 of a whole number it is that number,
/// so that an exact multiple gains no bar by rounding; a quotient so large that its own rounding
/// exceeds this has the slack of its last bits. What is not positive gives 0, and beyond the range
/// the largest number stands.
std::uint32_t rounded_up(double quotient);

/// `value` [any unit] without its decimals; the nearest int beyond the range, 0 for NaN.
int truncated(double value);

}  // namespace ostrel::structural
