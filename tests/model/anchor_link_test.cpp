// SPDX-License-Identifier: Apache-2.0
#include "model/anchor_link.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace ostrel::model {
namespace {

using std::numbers::pi;

// d = 40: 400 pi mm². With E = 200 000, 3 anchors, a free length of 10 000 mm and 2 piles:
// 400 pi * 600 000 / 10 000 / 2 = 12 000 pi N/mm.
xAnchor three_anchors() {
  xAnchor anchor;
  anchor.setcableDiam(40.0);
  anchor.material.setElasticityModulus(200'000.0);
  anchor.setNumber(3);
  anchor.setFreeLength(10'000.0);
  anchor.z = 2500.0;
  return anchor;
}

TEST(AnchorStiffness, IsThatOfAllAnchorsSpreadOverThePiles) {
  EXPECT_DOUBLE_EQ(anchor_stiffness(three_anchors(), 2), 12'000.0 * pi);
}

// 400 pi * 600 000 / 10 000 / 7 = 24 000 pi / 7, which no division of whole numbers gives.
TEST(AnchorStiffness, DividesByThePilesAsAReal) {
  EXPECT_DOUBLE_EQ(anchor_stiffness(three_anchors(), 7), 24'000.0 * pi / 7.0);
}

TEST(AnchorStiffness, IsNothingForNoAnchors) {
  xAnchor anchor = three_anchors();
  anchor.setNumber(0);
  EXPECT_EQ(anchor_stiffness(anchor, 2), 0.0);
  anchor.setFreeLength(0.0);
  EXPECT_EQ(anchor_stiffness(anchor, 0), 0.0);
}

TEST(AnchorStiffness, IsNotFiniteWithoutAFreeLengthOrPiles) {
  EXPECT_FALSE(std::isfinite(anchor_stiffness(three_anchors(), 0)));
  xAnchor anchor = three_anchors();
  anchor.setFreeLength(0.0);
  EXPECT_FALSE(std::isfinite(anchor_stiffness(anchor, 2)));
}

TEST(AnchorForceShare, DividesPilesByAnchorsAsReals) {
  EXPECT_DOUBLE_EQ(anchor_force_share(three_anchors(), 2), 2.0 / 3.0);
  EXPECT_EQ(anchor_force_share(three_anchors(), 6), 2.0);
  EXPECT_EQ(anchor_force_share(three_anchors(), 0), 0.0);
}

TEST(AnchorForceShare, IsOneWithoutAnchors) {
  xAnchor anchor = three_anchors();
  anchor.setNumber(0);
  EXPECT_EQ(anchor_force_share(anchor, 2), 1.0);
  anchor.setNumber(-4);
  EXPECT_EQ(anchor_force_share(anchor, 2), 1.0);
}

// At 30 degrees sin² = 1/4, cos² = 3/4, sin cos = sqrt(3) / 4.
TEST(AnchorLink, SplitsTheStiffnessByTheInclination) {
  xAnchor anchor = three_anchors();
  anchor.setAngleRad(pi / 6.0);
  anchor.modeFlag = true;
  const info_Fem_anchor link = anchor_link(anchor, 4, 2);
  EXPECT_EQ(link.level, -2500.0);
  EXPECT_EQ(link.id, 4);
  EXPECT_EQ(link.node, -1);
  EXPECT_TRUE(link.modeFlag);
  EXPECT_NEAR(link.kSS, 3'000.0 * pi, 1e-9);
  EXPECT_NEAR(link.kCC, 9'000.0 * pi, 1e-9);
  EXPECT_NEAR(link.kSC, 3'000.0 * std::sqrt(3.0) * pi, 1e-9);
  EXPECT_NEAR(link.cosA, std::sqrt(3.0) / 2.0, 1e-15);
  EXPECT_NEAR(link.sinA, 0.5, 1e-15);
  EXPECT_DOUBLE_EQ(link.share, 2.0 / 3.0);
}

TEST(AnchorLink, OfALevelAnchorActsAcrossAlone) {
  const info_Fem_anchor link = anchor_link(three_anchors(), 0, 2);
  EXPECT_EQ(link.kSS, 0.0);
  EXPECT_EQ(link.kSC, 0.0);
  EXPECT_DOUBLE_EQ(link.kCC, 12'000.0 * pi);
}

}  // namespace
}  // namespace ostrel::model
