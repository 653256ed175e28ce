// SPDX-License-Identifier: Apache-2.0
#include "anchors/anchor_demand.h"

#include <gtest/gtest.h>

namespace {

using ostrel::anchors::design_force;
using ostrel::anchors::failed_anchor;

info_Fem_anchor link_to(int node) {
  info_Fem_anchor link;
  link.node = node;
  link.kSS = 360.0;
  link.kCC = 640.0;
  link.sinA = 0.6;
  link.cosA = 0.8;
  link.share = 0.5;
  return link;
}

// The first node stays, the second goes 10 mm down and 20 mm towards the excavation.
xFemResults moved() {
  xFemResults results;
  results.dispAxial.points = {{0.0, 0.0}, {100.0, 10.0}};
  results.dispTrans.points = {{0.0, 0.0}, {100.0, -20.0}};
  results.rotation.points = {{0.0, 0.0}, {100.0, 3.0}};
  return results;
}

// -(10 · 0.6 - 20 · 0.8) · 1000 · 0.5 = 5000 N, with 1500 N of prestress 6500 N.
TEST(DesignForce, AddsThePrestressToTheForceOfTheAnalysis) {
  xAnchor anchor;
  EXPECT_DOUBLE_EQ(design_force(anchor, link_to(1), moved()).value(), 5000.0);
  anchor.setPreStress(1500.0);
  EXPECT_DOUBLE_EQ(design_force(anchor, link_to(1), moved()).value(), 6500.0);
}

TEST(DesignForce, IsZeroAtANodeThatStays) {
  EXPECT_EQ(design_force(xAnchor{}, link_to(0), moved()).value(), 0.0);
}

TEST(DesignForce, IsNoneWithoutANode) {
  EXPECT_EQ(design_force(xAnchor{}, link_to(-1), moved()), std::nullopt);
  EXPECT_EQ(design_force(xAnchor{}, link_to(2), moved()), std::nullopt);
  EXPECT_EQ(design_force(xAnchor{}, link_to(0), xFemResults{}), std::nullopt);
}

TEST(AnchorRecord, SpeaksOfItsAnchorAndCombination) {
  xAnchor anchor;
  anchor.setIdObj(1LL << 40);
  anchor.z = 1500.0;
  xCombResults results;
  results.setCombName("A1");
  results.setcombIndex(4);
  xAnchorResults record;
  ostrel::anchors::identify(record, anchor, results);
  EXPECT_EQ(record.getIdObj(), 1LL << 40);
  EXPECT_EQ(record.getCombIndex(), 4);
  EXPECT_EQ(record.getCombName(), "A1");
  EXPECT_EQ(record.depth, 1500.0);
}

TEST(FailedAnchor, TellsOfTheRecord) {
  xAnchorResults record;
  record.setCheckID(101, 4, "A1");
  record.depth = 1500.0;
  record.setSf(0.75);
  for (const bool is_resistance : {false, true}) {
    const auto failure = failed_anchor(record, is_resistance);
    EXPECT_EQ(failure->idObj, 101);
    EXPECT_EQ(failure->combIndex, 4);
    EXPECT_EQ(failure->combName, "A1");
    EXPECT_EQ(failure->sf, 0.75);
    EXPECT_EQ(failure->depth, 1500.0);
    EXPECT_EQ(failure->isResistance, is_resistance);
  }
}

}  // namespace
