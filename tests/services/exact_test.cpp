// SPDX-License-Identifier: Apache-2.0
#include "services/exact.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

TEST(ExactlyEqual, TellsNeighbouringNumbersApart) {
  EXPECT_TRUE(ostrel::exactly_equal(0.5, 0.5));
  EXPECT_TRUE(ostrel::exactly_equal(0.0, -0.0));
  EXPECT_FALSE(ostrel::exactly_equal(1.0, 1.0 + std::numeric_limits<double>::epsilon()));
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(ostrel::exactly_equal(nan, nan));
}

}  // namespace
