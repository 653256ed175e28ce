// SPDX-License-Identifier: Apache-2.0
#include "sorrel/interpolation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

TEST(LinInterpol, FollowsTheStraightLineThroughTwoPoints) {
  // From (2, 10) to (6, 30): 5 upwards per unit.
  EXPECT_DOUBLE_EQ(linInterpol(3.0, 2.0, 6.0, 10.0, 30.0), 15.0);
  EXPECT_DOUBLE_EQ(linInterpol(4.0, 2.0, 6.0, 10.0, 30.0), 20.0);
  // From (0, 8) to (4, -8): 4 downwards per unit, 0 at 2.
  EXPECT_DOUBLE_EQ(linInterpol(1.0, 0.0, 4.0, 8.0, -8.0), 4.0);
  EXPECT_DOUBLE_EQ(linInterpol(2.0, 0.0, 4.0, 8.0, -8.0), 0.0);
}

TEST(LinInterpol, GoesOnBeyondBothPoints) {
  EXPECT_DOUBLE_EQ(linInterpol(0.0, 2.0, 6.0, 10.0, 30.0), 0.0);
  EXPECT_DOUBLE_EQ(linInterpol(8.0, 2.0, 6.0, 10.0, 30.0), 40.0);
}

TEST(LinInterpol, TakesThePointsInEitherOrder) {
  EXPECT_DOUBLE_EQ(linInterpol(3.0, 6.0, 2.0, 30.0, 10.0), 15.0);
}

TEST(LinInterpol, GivesTheTwoValuesThemselvesAtTheirPlaces) {
  // 0.1 and 0.7 have no exact binary form; the ends are met all the same.
  EXPECT_EQ(linInterpol(0.1, 0.1, 0.7, 0.3, 1.1), 0.3);
  EXPECT_EQ(linInterpol(0.7, 0.1, 0.7, 0.3, 1.1), 1.1);
}

TEST(LinInterpol, GivesTheFirstValueWhereThePlacesAreOne) {
  EXPECT_EQ(linInterpol(2.0, 2.0, 2.0, 10.0, 30.0), 10.0);
  EXPECT_EQ(linInterpol(5.0, 2.0, 2.0, 10.0, 30.0), 10.0);
}

TEST(LinInterpol, HandsOnWhatIsNotANumber) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(std::isnan(linInterpol(nan, 2.0, 6.0, 10.0, 30.0)));
  EXPECT_TRUE(std::isnan(linInterpol(3.0, 2.0, 6.0, nan, 30.0)));
}

}  // namespace
