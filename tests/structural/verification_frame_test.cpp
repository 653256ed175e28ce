// SPDX-License-Identifier: Apache-2.0
#include "structural/verification_frame.h"

#include <gtest/gtest.h>

namespace {

using ostrel::structural::Failures;
using ostrel::structural::identify;
using ostrel::structural::scan_groups;
using ostrel::structural::scan_records;

double scan(xBaseResults& level, std::vector<double> factors, Failures* failures) {
  scan_records(
      level, factors, failures, [](double factor) { return factor; },
      [](double, double factor) {
        osg::ref_ptr<concreteCheckInfo> failure = new concreteCheckInfo;
        failure->sf = factor;
        return osg::ref_ptr<xCheckInfo>(failure.get());
      });
  return level.getSf();
}

TEST(ScanRecords, ListsTheSuccessiveMinimaBelowOne) {
  xBaseResults level;
  Failures failures;
  EXPECT_DOUBLE_EQ(scan(level, {0.9, 0.95, 0.8}, &failures), 0.8);
  EXPECT_DOUBLE_EQ(level.getIndex(), 2.0);
  ASSERT_EQ(failures.size(), 2U);
  EXPECT_DOUBLE_EQ(failures[0]->sf, 0.9);
  EXPECT_DOUBLE_EQ(failures[1]->sf, 0.8);
}

TEST(ScanRecords, TakesTheFirstOfEqualFactorsAndDoesNotListOne) {
  xBaseResults level;
  Failures failures;
  EXPECT_DOUBLE_EQ(scan(level, {2.0, 1.0, 1.0}, &failures), 1.0);
  EXPECT_DOUBLE_EQ(level.getIndex(), 1.0);
  EXPECT_TRUE(failures.empty());
}

TEST(FailureText, TellsOpeningCombinationAndFactorThenThePlace) {
  concreteCheckInfo failure;
  failure.combName = "SLU";
  failure.sf = 0.5;
  EXPECT_EQ(ostrel::structural::failure_text("x: ", failure), "x: SLU, sf=0.5");
  EXPECT_EQ(ostrel::structural::failure_text("x: ", failure, ", z=", 3.0), "x: SLU, sf=0.5, z=3");
}

TEST(ScanRecords, OfNothingIsUnlimited) {
  xBaseResults level;
  level.setSf(0.5);
  level.setIndex(3);
  EXPECT_DOUBLE_EQ(scan(level, {}, nullptr), 1e10);
  EXPECT_DOUBLE_EQ(level.getIndex(), 0.0);
}

struct Group {
  double factor;
  double getSfMin(Failures* /*failures*/) const { return factor; }
};

TEST(ScanGroups, GivesATieToTheLaterGroup) {
  xBaseResults level;
  std::vector<Group> groups{{0.7}, {0.5}, {0.5}, {0.6}};
  scan_groups(level, groups, nullptr);
  EXPECT_DOUBLE_EQ(level.getSf(), 0.5);
  EXPECT_DOUBLE_EQ(level.getIndex(), 2.0);
}

TEST(ScanGroups, OfNothingIsUnlimited) {
  xBaseResults level;
  std::vector<Group> none;
  scan_groups(level, none, nullptr);
  EXPECT_DOUBLE_EQ(level.getSf(), 1e10);
}

TEST(Identify, TellsObjectCombinationAndFactor) {
  xCheckCombID id;
  id.setCheckID(4, 5, "A");
  concreteCheckInfo failure;
  identify(failure, id, 0.25);
  EXPECT_DOUBLE_EQ(failure.sf, 0.25);
  EXPECT_EQ(failure.idObj, 4);
  EXPECT_EQ(failure.combIndex, 5);
  EXPECT_EQ(failure.combName, "A");
}

}  // namespace
