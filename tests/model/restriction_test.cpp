// SPDX-License-Identifier: Apache-2.0
#include "ostrel/restriction.h"

#include <gtest/gtest.h>

namespace {

void expect_idle(const xNodeConstraint& part) {
  EXPECT_FALSE(part.getActive());
  EXPECT_EQ(part.getValue(), 0.0);
}

xConstraint filled_constraint() {
  xConstraint constraint;
  constraint.setPosition(3000.0);
  constraint.horizontal.setActive(true);
  constraint.horizontal.setValue(1.0);
  constraint.axial.setActive(true);
  constraint.axial.setValue(2.0);
  constraint.rotation.setActive(true);
  constraint.rotation.setValue(3.0);
  return constraint;
}

TEST(NodeConstraint, IsIdleWhenNewAndAfterReset) {
  xNodeConstraint part;
  expect_idle(part);
  part.setActive(true);
  part.setValue(7.0);
  EXPECT_TRUE(part.getActive());
  EXPECT_EQ(part.getValue(), 7.0);
  part.reset();
  expect_idle(part);
}

TEST(Constraint, ResetsItsThreePartsAndItsPosition) {
  xConstraint constraint = filled_constraint();
  EXPECT_EQ(constraint.getPosition(), 3000.0);
  EXPECT_EQ(constraint.horizontal.getValue(), 1.0);
  EXPECT_EQ(constraint.axial.getValue(), 2.0);
  EXPECT_EQ(constraint.rotation.getValue(), 3.0);
  constraint.reset();
  EXPECT_EQ(constraint.getPosition(), 0.0);
  expect_idle(constraint.horizontal);
  expect_idle(constraint.axial);
  expect_idle(constraint.rotation);
}

TEST(Restriction, KeepsTwoListsAndEmptiesBoth) {
  xRestriction restriction;
  EXPECT_TRUE(restriction.imposed.empty());
  EXPECT_TRUE(restriction.springs.empty());
  restriction.imposed.push_back(filled_constraint());
  restriction.springs.resize(2);
  const xRestriction copy = restriction;
  restriction.reset();
  EXPECT_TRUE(restriction.imposed.empty());
  EXPECT_TRUE(restriction.springs.empty());
  ASSERT_EQ(copy.imposed.size(), 1U);
  EXPECT_EQ(copy.imposed[0].rotation.getValue(), 3.0);
  EXPECT_EQ(copy.springs.size(), 2U);
}

}  // namespace
