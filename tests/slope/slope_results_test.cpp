// SPDX-License-Identifier: Apache-2.0
#include "ostrel/slope_stability.h"
#include "support/hostile_stream.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::read_stored;
using ostrel::testing::stored;
using ostrel::testing::through_memory;

xGridPointResults grid_point() {
  xGridPointResults point;
  point.sf = 1;
  point.radius = 2;
  point.Mstab = 3;
  point.Mdestab = 4;
  point.center = xPoint2d(5, 6);
  return point;
}

std::string grid_point_bytes() {
  return frame_bytes(2, bytes_of([](outstream& out) {
                       for (const double field : {1.0, 2.0, 3.0, 4.0, 5.0, 6.0})
                         out << field;
                     }));
}

xSlopeStability stability(double factor = 0.9) {
  xSlopeStability result;
  result.setCheckID(7, 3, "A1");
  result.getstabChekData() = {
      .xc = 10, .yc = 20, .sf = factor, .radius = 30, .Mstab = 40, .Mdestab = 50};
  result.get_gridPointRes().push_back(grid_point());
  result.getStripesMin().resize(2);
  result.getStripesMin()[1].resize(1);
  result.getStripesMin()[1][0].width = 8;
  return result;
}

TEST(GridPointResults, AreStoredInTheirOrder) {
  EXPECT_EQ(stored(grid_point()), grid_point_bytes());
  EXPECT_EQ(stored(through_memory(grid_point())), grid_point_bytes());
  xGridPointResults point;
  EXPECT_THROW(read_stored(point, frame_bytes(1, "")), int);
  EXPECT_EQ(point.getIOClass(), "xGridPointResults");
}

TEST(GridPointResults, BeginUnlimited) {
  xGridPointResults point = grid_point();
  point.reset();
  EXPECT_DOUBLE_EQ(point.sf, 1e10);
  EXPECT_DOUBLE_EQ(point.radius, 0.0);
  EXPECT_DOUBLE_EQ(point.center.x, 0.0);
}

TEST(SlopeResults, AreStoredInTheirOrder) {
  const xSlopeStability result = stability();
  const std::string fields = bytes_of([&](outstream& out) {
                               xCheckCombID base;
                               base.setCheckID(result);
                               base.pub_write(out);
                               out << 1;
                             })
                           + grid_point_bytes() + bytes_of([&](outstream& out) {
                               out << 2 << 0 << 1;
                               result.getStripesMin()[1][0].pub_write(out);
                               for (const double field : {10.0, 20.0, 0.9, 30.0, 40.0, 50.0})
                                 out << field;
                             });
  EXPECT_EQ(stored(result), frame_bytes(1, fields));
  EXPECT_EQ(stored(through_memory(result)), stored(result));
  EXPECT_EQ(result.getIOClass(), "xSlopeStability");
}

TEST(SlopeResults, OfAllCombinationsAreStored) {
  xSlopeStabilityDesign design;
  design.getResults() = {stability(), stability(2)};
  design.computeSfMin();
  EXPECT_EQ(stored(design), frame_bytes(1, bytes_of([&design](outstream& out) {
                                          xBaseResults base;
                                          base.setSf(0.9);
                                          base.pub_write(out);
                                          out << 2;
                                          design.getResults()[0].pub_write(out);
                                          design.getResults()[1].pub_write(out);
                                        })));
  EXPECT_EQ(stored(through_memory(design)), stored(design));
  EXPECT_EQ(design.getIOClass(), "xSlopeStabilityDesign");
  design.reset();
  EXPECT_EQ(stored(design), stored(xSlopeStabilityDesign{}));
}

TEST(SlopeResults, SurviveDamagedStreams) {
  xSlopeStabilityDesign design;
  design.getResults() = {stability()};
  ostrel::testing::expect_cuts_refused(design);
  EXPECT_GT(ostrel::testing::refused_mutations(design, 300), 0);
}

TEST(SlopeResults, ResetToTheirDefaults) {
  xSlopeStability result = stability();
  result.reset();
  EXPECT_DOUBLE_EQ(result.getSf(), 1e10);
  EXPECT_DOUBLE_EQ(result.getRadius(), 0.0);
  EXPECT_DOUBLE_EQ(result.getXC(), 0.0);
  EXPECT_TRUE(result.get_gridPointRes().empty() && result.getStripesMin().empty());
  EXPECT_EQ(result.getIdObj(), -1);
}

TEST(SlopeFailure, SaysWhichCircleFails) {
  const osg::ref_ptr<slopeStabilityCheckInfo> info = stability(0.75).getCheckInfo();
  EXPECT_EQ(info->getString(),
            "Verifica a stabilita' non soddisfatta comb=A1, sf=0.75, R=30, (xc, yc)=(10,20)");
  EXPECT_DOUBLE_EQ(info->sf, 0.75);
  EXPECT_EQ(info->idObj, 7);
  EXPECT_EQ(info->combIndex, 3);
  EXPECT_DOUBLE_EQ(info->data.Mstab, 40.0);
  EXPECT_DOUBLE_EQ(info->data.Mdestab, 50.0);
  const osg::ref_ptr<xCheckInfo> copy = info->clone();
  EXPECT_EQ(copy->getString(), info->getString());
  EXPECT_DOUBLE_EQ(slopeStabilityCheckInfo{}.data.sf, 1e10);
}

// 0.9 is the first failure, 0.95 does not lower it, 0.8 does; 1.2 came before and is none.
TEST(SlopeMinimum, ListsOnlyFailuresThatLowerIt) {
  xSlopeStabilityDesign design;
  design.getResults() = {stability(1.2), stability(0.9), stability(0.95), stability(0.8)};
  std::vector<osg::ref_ptr<xCheckInfo>> failed;
  EXPECT_DOUBLE_EQ(design.getSfMin(&failed), 0.8);
  ASSERT_EQ(failed.size(), 2U);
  EXPECT_DOUBLE_EQ(failed[0]->sf, 0.9);
  EXPECT_DOUBLE_EQ(failed[1]->sf, 0.8);
  EXPECT_DOUBLE_EQ(design.getSf(), 0.8);
  EXPECT_DOUBLE_EQ(design.getIndex(), 3.0);
}

TEST(SlopeMinimum, OfExactlyOneIsNoFailure) {
  xSlopeStabilityDesign design;
  design.getResults() = {stability(1.0)};
  std::vector<osg::ref_ptr<xCheckInfo>> failed;
  EXPECT_DOUBLE_EQ(design.getSfMin(&failed), 1.0);
  EXPECT_TRUE(failed.empty());
}

TEST(SlopeMinimum, WithoutResultsIsUnlimited) {
  xSlopeStabilityDesign design;
  design.setSf(3.0);
  design.setIndex(5);
  design.computeSfMin();
  EXPECT_DOUBLE_EQ(design.getSf(), 1e10);
  EXPECT_DOUBLE_EQ(design.getIndex(), 0.0);
}

TEST(SlopeMinimum, GoesToTheFirstOfEqualFactors) {
  xSlopeStabilityDesign design;
  design.getResults() = {stability(1.2), stability(1.1), stability(1.1)};
  EXPECT_DOUBLE_EQ(design.getSfMin(nullptr), 1.1);
  EXPECT_DOUBLE_EQ(design.getIndex(), 1.0);
}

}  // namespace
