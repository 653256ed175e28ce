// SPDX-License-Identifier: Apache-2.0
#include "ostrel/tolerances.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

TEST(Tolerances, AreEightMillionthsWhenNew) {
  const xTolerances tolerances;
  ASSERT_EQ(tolerances.values.size(), 8U);
  for (unsigned position = 0; position < 8; ++position) {
    EXPECT_DOUBLE_EQ(tolerances[position], 1e-6) << position;
  }
  EXPECT_THROW(std::ignore = tolerances[8], std::out_of_range);
}

TEST(Tolerances, OfTheProcessAreReplacedAsAWhole) {
  const xTolerances before = *getTolerances();
  xTolerances changed;
  changed.values[xTolerances::position_identity] = 0.5;
  setTolerances(changed);
  EXPECT_DOUBLE_EQ((*getTolerances())[4], 0.5);
  EXPECT_DOUBLE_EQ((*getTolerances())[7], 1e-6);
  setTolerances(before);
  EXPECT_DOUBLE_EQ((*getTolerances())[4], 1e-6);
}

}  // namespace
