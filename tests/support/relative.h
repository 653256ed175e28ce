#pragma once
/// @file  Numbers compared by their relative difference, for tests
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include <cmath>

namespace ostrel::testing {

/// `value` differs from a non-zero `expected` by no more than `tolerance` times it.
inline void expect_relative(double value, double expected, double tolerance = 1e-12) {
  EXPECT_NEAR(value, expected, tolerance * std::abs(expected));
}

}  // namespace ostrel::testing
