#pragma once
/// @file  How many elements a beam may have to be solved. Room: fem
// SPDX-License-Identifier: Apache-2.0

#include <cstdint>

namespace ostrel::fem {

/// Largest number of elements whose stiffness is assembled: the matrix is full, and two of them
/// take 3.6 GB then.
inline constexpr std::uint32_t most_elements = 5000;

}  // namespace ostrel::fem
