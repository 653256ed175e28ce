// SPDX-License-Identifier: Apache-2.0
#include "summary.h"

#include "outcome_testing.h"

#include <gmock/gmock.h>

namespace ostrel::host {
namespace {

using ::testing::SizeIs;

Summary summarised(const Outcome& outcome) {
  return summary_of(Job{}, outcome, outcome.results.combResults[0]);
}

TEST(Summary, TellsTheLargestInSizeWithSignAndDepth) {
  const Summary summary = summarised(small_outcome());
  EXPECT_EQ(summary.name, "C");
  EXPECT_EQ(summary.index, 2);
  EXPECT_EQ(summary.moment_kNm.value, -5.0);
  EXPECT_EQ(summary.moment_kNm.depth_m, 2.0);
  EXPECT_EQ(summary.shear_kN.value, -4.0);
  EXPECT_EQ(summary.shear_kN.depth_m, 1.0);
  EXPECT_EQ(summary.axial_kN.value, -7.0);
}

TEST(Summary, CountsDisplacementsTowardsTheExcavation) {
  const Summary summary = summarised(small_outcome());
  EXPECT_EQ(summary.displacement_mm.value, -9.0);
  EXPECT_EQ(summary.displacement_mm.depth_m, 2.0);
  EXPECT_EQ(summary.head_displacement_mm, 8.0);
  EXPECT_EQ(summary.excavation_displacement_mm, 4.0);
}

// The spring at the excavation has no strength (passive limit 0). The one below yields at 2 mm:
// 0.02 N/mm³ * 2 mm = 0.04 N/mm² = 40 kPa, all of it in use at 9 mm.
TEST(Summary, TellsHowFarTheSpringsAreUsed) {
  Outcome outcome = small_outcome();
  xCombResults& combination = outcome.results.combResults[0];
  NodeModulus spring;
  spring.type = xSpringInterval::limitPassive;
  spring.modulus = 0.02;
  spring.position = 1000.0;
  spring.passive_limit = 0.0;
  combination.subgradeModulus.springs[1] = spring;
  spring.position = 2000.0;
  spring.passive_limit = 2.0;
  combination.subgradeModulus.springs[2] = spring;
  combination.femResults.soilReaction.points = {{0.0, 0.0}, {1000.0, -0.04}};
  combination.femResults.soilForces[1].springForce = 10.0;
  combination.femResults.soilForces[2].springForce = -20.0;
  combination.femResults.soilForces[2].limitForce = 60.0;
  const Summary summary = summarised(outcome);
  ASSERT_THAT(summary.springs, SizeIs(2));
  EXPECT_EQ(summary.springs[0].use, 0.0);
  EXPECT_FALSE(summary.springs[0].yields);
  EXPECT_DOUBLE_EQ(summary.springs[1].limit_kPa, 40.0);
  EXPECT_DOUBLE_EQ(summary.springs[1].pressure_kPa, -40.0);
  EXPECT_DOUBLE_EQ(summary.springs[1].use, 1.0);
  EXPECT_TRUE(summary.springs[1].yields);
  EXPECT_EQ(summary.yielding, 1u);
  EXPECT_EQ(summary.spring_use.depth_m, 2.0);
  // (10 + 20) / 60
  EXPECT_DOUBLE_EQ(summary.mobilised, 0.5);
}

TEST(Summary, ListsAnchorsByTheirDepth) {
  Outcome outcome = small_outcome();
  AnchorSoll anchor;
  anchor.axial.start = xPoint2d(0.0, -1500.0);
  anchor.axial.points = {{0.0, 250e3}, {9000.0, 250e3}};
  outcome.results.combResults[0].femResults.anchorSoll = {anchor};
  const Summary summary = summarised(outcome);
  ASSERT_THAT(summary.anchors, SizeIs(1));
  EXPECT_EQ(summary.anchors[0].depth_m, 1.5);
  EXPECT_EQ(summary.anchors[0].force_kN, 250.0);
}

// The head moves 8 mm towards the excavation against 1000 N/mm: 8 kN towards the retained side. The
// foot is held along the wall in every run and is not listed.
TEST(Summary, ListsSupportsButNotTheFoot) {
  Outcome outcome = small_outcome();
  outcome.model.fem.springDof1[0] = 1000.0;
  const Summary summary = summarised(outcome);
  ASSERT_THAT(summary.supports, SizeIs(1));
  EXPECT_EQ(summary.supports[0].depth_m, 0.0);
  ASSERT_TRUE(summary.supports[0].horizontal_kN.has_value());
  EXPECT_EQ(*summary.supports[0].horizontal_kN, 8.0);
  EXPECT_FALSE(summary.supports[0].vertical_kN.has_value());
  EXPECT_FALSE(summary.supports[0].moment_kNm.has_value());
}

}  // namespace
}  // namespace ostrel::host
