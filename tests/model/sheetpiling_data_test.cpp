// SPDX-License-Identifier: Apache-2.0
#include "ostrel/sheetpiling_data.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

xSheetpilingData filled_tree() {
  xSheetpilingData data;
  data.props = new xPile_Sheetpiling;
  data.springIntervals.emplace_back(0.0, 1.0, xSpringInterval::limitPassive, 2.0);
  data.soilLayers.resize(2);
  data.boundLayer.setAngle(0.1);
  data.embankment.profile.push_back({1000.0, 100.0});
  data.waterTable.setIsDefined(true);
  data.loadConds.resize(1);
  data.loadCombs.resize(3);
  data.restriction.imposed.resize(1);
  data.anchors.resize(2);
  data.calcSettings.setStepMolle(100.0);
  return data;
}

TEST(SheetpilingData, IsEmptyWhenNew) {
  const xSheetpilingData data;
  EXPECT_FALSE(data.props.valid());
  EXPECT_TRUE(data.springIntervals.empty());
  EXPECT_TRUE(data.loadCombs.empty());
  EXPECT_DOUBLE_EQ(data.calcSettings.getStepMolle(), 250.0);
}

TEST(SheetpilingData, ResetKeepsTheSpringIntervalsAndNothingElse) {
  xSheetpilingData data = filled_tree();
  data.reset();
  ASSERT_EQ(data.springIntervals.size(), 1U);
  EXPECT_DOUBLE_EQ(data.springIntervals[0].factor, 2.0);
  EXPECT_FALSE(data.props.valid());
  EXPECT_TRUE(data.soilLayers.empty());
  EXPECT_DOUBLE_EQ(data.boundLayer.getAngle(), 0.0);
  EXPECT_TRUE(data.embankment.profile.empty());
  EXPECT_FALSE(data.waterTable.getIsDefined());
  EXPECT_TRUE(data.loadConds.empty());
  EXPECT_TRUE(data.loadCombs.empty());
  EXPECT_TRUE(data.restriction.imposed.empty());
  EXPECT_TRUE(data.anchors.empty());
  EXPECT_DOUBLE_EQ(data.calcSettings.getStepMolle(), 250.0);
}

TEST(SheetpilingData, ReleasesTheWallAtReset) {
  const osg::ref_ptr<xPile_Sheetpiling> wall = new xPile_Sheetpiling;
  xSheetpilingData data;
  data.props = wall;
  EXPECT_EQ(wall->referenceCount(), 2);
  data.reset();
  EXPECT_EQ(wall->referenceCount(), 1);
}

TEST(SheetpilingData, SharesTheWallWithItsCopies) {
  const xSheetpilingData first = filled_tree();
  const xSheetpilingData second = first;
  xSheetpilingData third;
  third = first;
  EXPECT_EQ(first.props->referenceCount(), 3);
  first.props->setLength(12000.0);
  EXPECT_DOUBLE_EQ(second.props->getLength(), 12000.0);
  EXPECT_DOUBLE_EQ(third.props->getLength(), 12000.0);
}

TEST(SheetpilingData, OwnsAllButTheWall) {
  xSheetpilingData first = filled_tree();
  first.loadConds[0].soilLoads.push_back(new xUniformLoad);
  xSheetpilingData second = first;
  second.soilLayers[0].setAngle(0.5);
  second.loadCombs[0].setCombName("other");
  second.waterTable.setLivelloMonte(-1.0);
  dynamic_cast<xUniformLoad&>(*second.loadConds[0].soilLoads[0]).setValue(3.0);
  EXPECT_DOUBLE_EQ(first.soilLayers[0].getAngle(), 0.0);
  EXPECT_EQ(first.loadCombs[0].getCombName(), "");
  EXPECT_DOUBLE_EQ(first.waterTable.getLivelloMonte(), 0.0);
  EXPECT_DOUBLE_EQ(dynamic_cast<xUniformLoad&>(*first.loadConds[0].soilLoads[0]).getValue(), 0.0);
}

}  // namespace
