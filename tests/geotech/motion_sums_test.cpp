// SPDX-License-Identifier: Apache-2.0
#include "geotech/motion_sums.h"

#include "ostrel/rigid_body_check.h"
#include "support/wall_builder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace ostrel::geotech {
namespace {

// Sums about the elevation -4000 mm.
rigidBodyMotionCheck about_4000() {
  rigidBodyMotionCheck sums;
  sums.rotCenter = -4000.0;
  return sums;
}

xFemNodeData_pos load(double depth, double force, double moment) {
  xFemNodeData_pos row;
  row.pos = depth;
  row.data = {99.0, force, moment};  // a force along the wall takes no part
  return row;
}

TEST(AddLoads, SumsThemOnTheDrivingSide) {
  rigidBodyMotionCheck sums = about_4000();
  add_loads({load(1000, 200, 5000), load(6000, -30, 100)}, sums);
  EXPECT_DOUBLE_EQ(sums.Hdest, 170.0);
  // 5000 - (-1000 + 4000) * 200 = -595 000; 100 - (-6000 + 4000) * -30 = 100 - 60 000.
  EXPECT_DOUBLE_EQ(sums.Mdest, -595'000.0 - 59'900.0);
  EXPECT_DOUBLE_EQ(sums.Hres, 0.0);
  EXPECT_DOUBLE_EQ(sums.Mres, 0.0);
}

// A spring at -6000 mm, 2000 mm below the point of rotation, where the soil can give 50 N.
std::map<int, Fsoil> spring_of(double force) {
  Fsoil spring;
  spring.elevation = -6000.0;
  spring.springForce = force;
  spring.limitForce = 50.0;
  spring.limitMoment = 300.0;
  return {{24, spring}};
}

TEST(AddSprings, TakesTheLimitForceWhereTheSoilPushes) {
  rigidBodyMotionCheck sums = about_4000();
  add_springs(spring_of(10.0), sums);
  EXPECT_DOUBLE_EQ(sums.Hres, 50.0);
  EXPECT_DOUBLE_EQ(sums.Mres, 100'300.0);  // 300 - (-2000) * 50
  EXPECT_DOUBLE_EQ(sums.Hdest, 0.0);
  EXPECT_DOUBLE_EQ(sums.Mdest, 0.0);
}

TEST(AddSprings, MixesTheUsedForceWithTheLimitMomentWhereTheSoilDoesNotPush) {
  rigidBodyMotionCheck sums = about_4000();
  add_springs(spring_of(-10.0), sums);
  EXPECT_DOUBLE_EQ(sums.Hdest, -10.0);
  EXPECT_DOUBLE_EQ(sums.Mres, -99'700.0);  // (-2000) * 50 + 300
  EXPECT_DOUBLE_EQ(sums.Hres, 0.0);
  EXPECT_DOUBLE_EQ(sums.Mdest, 0.0);
}

TEST(AddSprings, CountsAnIdleSpringAsNotPushing) {
  rigidBodyMotionCheck sums = about_4000();
  add_springs(spring_of(0.0), sums);
  EXPECT_DOUBLE_EQ(sums.Hdest, 0.0);
  EXPECT_DOUBLE_EQ(sums.Hres, 0.0);
  EXPECT_DOUBLE_EQ(sums.Mres, -99'700.0);
}

TEST(AddSprings, KeepsAForceThatIsNone) {
  rigidBodyMotionCheck sums = about_4000();
  add_springs(spring_of(std::numeric_limits<double>::quiet_NaN()), sums);
  EXPECT_TRUE(std::isnan(sums.Hdest));
}

// One anchor at -2000 mm on node 1, whose displacement across the wall is told; its tendon of
// 20 mm yields at pi * 20² / 4 * 1000 / 1.25 = 80 000 pi N.
class AddAnchors : public ::testing::Test {
protected:
  static constexpr double strength = 80e3 * std::numbers::pi;

  AddAnchors() {
    xAnchor& anchor = anchors.emplace_back();
    anchor.setcableDiam(20.0);
    anchor.settings.setFyk(1000.0);
    anchor.settings.setGammaS(1.25);
    link.level = -2000.0;
    link.id = 0;
    link.node = 1;
    for (xDiagram* diagram : {&beam.dispAxial, &beam.dispTrans, &beam.rotation}) {
      diagram->points.emplace_back(0.0, 0.0);
      diagram->points.emplace_back(2000.0, 0.0);
    }
  }

  // The resisting force, for a displacement of the anchor's node across the wall [mm].
  double resisting(double across) {
    beam.dispTrans.points[1].value = across;
    rigidBodyMotionCheck sums = about_4000();
    add_anchors({link}, anchors, beam, sums);
    EXPECT_DOUBLE_EQ(sums.Mres, -2000.0 * sums.Hres);  // -(-2000 + 4000) * R
    EXPECT_DOUBLE_EQ(sums.Hdest, 0.0);
    EXPECT_DOUBLE_EQ(sums.Mdest, 0.0);
    return sums.Hres;
  }

  info_Fem_anchor link;
  std::vector<xAnchor> anchors;
  xFemResults beam;
};

TEST_F(AddAnchors, TakesTheYieldForceOfAnAnchorThatIsPulled) {
  EXPECT_DOUBLE_EQ(resisting(5.0), strength);
  EXPECT_DOUBLE_EQ(resisting(-5.0), 0.0);
  EXPECT_DOUBLE_EQ(resisting(0.0), 0.0);
}

TEST_F(AddAnchors, TurnsTheSenseWithTheMode) {
  link.modeFlag = true;
  EXPECT_DOUBLE_EQ(resisting(-5.0), strength);
  EXPECT_DOUBLE_EQ(resisting(5.0), 0.0);
  EXPECT_DOUBLE_EQ(resisting(0.0), 0.0);
}

TEST_F(AddAnchors, TakesOneTendonOfALevel) {
  anchors[0].setNumber(5);
  link.share = 0.2;
  EXPECT_DOUBLE_EQ(resisting(5.0), strength);
}

TEST_F(AddAnchors, TakesNothingFromALinkWithoutAnAnchor) {
  link.id = -1;
  EXPECT_DOUBLE_EQ(resisting(5.0), 0.0);
  link.id = 1;
  EXPECT_DOUBLE_EQ(resisting(5.0), 0.0);
}

TEST_F(AddAnchors, TakesNothingFromALinkWithoutANode) {
  link.node = -1;
  EXPECT_DOUBLE_EQ(resisting(5.0), 0.0);
  link.node = 2;
  EXPECT_DOUBLE_EQ(resisting(5.0), 0.0);
}

TEST_F(AddAnchors, TakesNothingFromAnAnchorOfNoTellableStrength) {
  anchors[0].settings.setGammaS(0.0);
  EXPECT_DOUBLE_EQ(resisting(5.0), 0.0);
  anchors[0].settings.setGammaS(1.25);
  anchors[0].setcableDiam(0.0);
  EXPECT_DOUBLE_EQ(resisting(5.0), 0.0);
}

TEST_F(AddAnchors, TakesNothingForADisplacementThatIsNone) {
  EXPECT_DOUBLE_EQ(resisting(std::numeric_limits<double>::quiet_NaN()), 0.0);
}

}  // namespace
}  // namespace ostrel::geotech
