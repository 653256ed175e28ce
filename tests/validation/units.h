#pragma once
/// @file  Units of the sources in those of the library: mm, N, rad
// SPDX-License-Identifier: Apache-2.0

#include <numbers>

namespace ostrel::validation {

inline constexpr double degree = std::numbers::pi / 180.0;
inline constexpr double metre = 1000.0;
inline constexpr double kN = 1000.0;
inline constexpr double kNm = 1e6;
inline constexpr double kPa = 1e-3;
inline constexpr double kN_m3 = 1e-6;
inline constexpr double foot = 304.8;
inline constexpr double inch = 25.4;
inline constexpr double pound = 4.4482216152605;
inline constexpr double kip = 1000.0 * pound;
inline constexpr double psf = pound / (foot * foot);         // pound by square foot
inline constexpr double pcf = pound / (foot * foot * foot);  // pound by cubic foot

}  // namespace ostrel::validation
