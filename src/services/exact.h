#pragma once
/// @file  The one place where doubles are compared exactly. Room: services
// SPDX-License-Identifier: Apache-2.0

namespace ostrel {

#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wfloat-equal"
#endif
/// True when both are the same number; 0.0 and -0.0 are, a NaN equals nothing.
constexpr bool exactly_equal(double a, double b) {
  return a == b;
}
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif

}  // namespace ostrel
