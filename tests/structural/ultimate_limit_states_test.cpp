// SPDX-License-Identifier: Apache-2.0
#include "ostrel/ultimate_limit_states.h"

#include <gtest/gtest.h>

namespace {

xUltimateLimitStates with_a_weak_wall() {
  xSectionCheck section;
  section.flex.Md = 2.0;
  section.flex.Mrd = 1.0;
  xUltimateLimitStates states;
  states.structuralDesign.bendShear.combinations.resize(1);
  states.structuralDesign.bendShear.combinations[0].sections = {section};
  return states;
}

TEST(UltimateLimitStates, WithoutAnyVerificationAreUnlimited) {
  EXPECT_DOUBLE_EQ(xUltimateLimitStates{}.getSfMin(nullptr), 1e10);
}

// |1 / 2| = 0.5 in bending.
TEST(UltimateLimitStates, TakeTheSmallestFactorAndTheFailures) {
  xUltimateLimitStates states = with_a_weak_wall();
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  EXPECT_DOUBLE_EQ(states.getSfMin(&failures), 0.5);
  ASSERT_EQ(failures.size(), 1U);
  EXPECT_DOUBLE_EQ(failures[0]->sf, 0.5);
}

TEST(UltimateLimitStates, ResetForgetsTheVerifications) {
  xUltimateLimitStates states = with_a_weak_wall();
  states.reset();
  EXPECT_DOUBLE_EQ(states.getSfMin(nullptr), 1e10);
}

}  // namespace
