// SPDX-License-Identifier: Apache-2.0
#include "structural/whole_numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using ostrel::structural::rounded_up;
using ostrel::structural::truncated;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

TEST(RoundedUp, GivesTheNextWholeNumber) {
  EXPECT_EQ(rounded_up(2.01), 3U);
  EXPECT_EQ(rounded_up(2.99), 3U);
  EXPECT_EQ(rounded_up(0.5), 1U);
}

TEST(RoundedUp, KeepsAWholeNumber) {
  EXPECT_EQ(rounded_up(1.0), 1U);
  EXPECT_EQ(rounded_up(3.0), 3U);
}

TEST(RoundedUp, TakesAQuotientWithinABillionthAsWhole) {
  EXPECT_EQ(rounded_up(3.0 + 0.9e-9), 3U);
  EXPECT_EQ(rounded_up(3.0 + 1.1e-9), 4U);
  EXPECT_EQ(rounded_up(3.0 - 0.9e-9), 3U);
}

TEST(RoundedUp, KeepsALargeMultipleThatRoundingMoved) {
  const double millions = 30'000'000.0;
  EXPECT_EQ(rounded_up(std::nextafter(millions, infinity)), 30'000'000U);
  EXPECT_EQ(rounded_up(millions + 0.001), 30'000'001U);
}

TEST(RoundedUp, GivesNothingForWhatIsNotPositive) {
  for (const double quotient : {0.0, -0.0, -1.0, -infinity, not_a_number}) {
    EXPECT_EQ(rounded_up(quotient), 0U) << quotient;
  }
}

TEST(RoundedUp, StopsAtTheLargestNumber) {
  EXPECT_EQ(rounded_up(4294967294.0), 4294967294U);
  for (const double quotient : {4294967295.0, 4294967296.0, 1e300, infinity}) {
    EXPECT_EQ(rounded_up(quotient), 4294967295U) << quotient;
  }
}

TEST(Truncated, DropsTheDecimals) {
  EXPECT_EQ(truncated(19.999), 19);
  EXPECT_EQ(truncated(20.0), 20);
  EXPECT_EQ(truncated(-1.9), -1);
}

TEST(Truncated, StaysWithinTheRangeOfAnInt) {
  EXPECT_EQ(truncated(1e300), std::numeric_limits<int>::max());
  EXPECT_EQ(truncated(infinity), std::numeric_limits<int>::max());
  EXPECT_EQ(truncated(-infinity), std::numeric_limits<int>::min());
  EXPECT_EQ(truncated(not_a_number), 0);
}

}  // namespace
