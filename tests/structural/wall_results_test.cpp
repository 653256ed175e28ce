// SPDX-License-Identifier: Apache-2.0
#include "ostrel/wall_check.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::read_stored;
using ostrel::testing::stored;
using ostrel::testing::through_memory;

xSectionCheck section(double shear_factor, double bending_factor, double z = 0.0) {
  xSectionCheck check;
  check.shear.setVd(1.0);
  check.shear.setVRd(shear_factor);
  check.flex.Md = 1.0;
  check.flex.Mrd = bending_factor;
  check.abscissa = z;
  return check;
}

xBendShearCombResults combination(const std::vector<xSectionCheck>& sections) {
  xBendShearCombResults results;
  results.setCheckID(7, 3, "A1");
  results.sections = sections;
  return results;
}

template <class T>
void expect_refused(int version) {
  T object;
  try {
    read_stored(object, frame_bytes(version, ""));
    FAIL() << object.getIOClass() << " of version " << version << " was read";
  } catch (int refused) {
    EXPECT_EQ(refused, version);
  }
}

TEST(SollVector, GivesItsEntriesByPosition) {
  xSollVector forces(1.0, 2.0, 3.0, 4.0);
  EXPECT_EQ(forces.xsize(), 4);
  for (int i = 0; i < 4; ++i) {
    EXPECT_DOUBLE_EQ(forces[i], i + 1.0);
  }
  forces[3] = 9.0;
  EXPECT_DOUBLE_EQ(forces.M, 9.0);
}

TEST(SollVector, HasNowhereToWriteAtABadPosition) {
  xSollVector forces(1.0, 2.0, 3.0, 4.0);
  forces[4] = 5.0;
  forces[-1] = 6.0;
  EXPECT_DOUBLE_EQ(forces[4], 0.0);
  double& nowhere = forces[4];
  nowhere = 7.0;
  EXPECT_DOUBLE_EQ(forces[0], 1.0);  // a good position clears it too
  EXPECT_DOUBLE_EQ(nowhere, 0.0);
  EXPECT_EQ(stored(forces), stored(xSollVector(1.0, 2.0, 3.0, 4.0)));
}

TEST(BendShearCombResults, ListTheSuccessiveMinima) {
  auto results = combination({section(5.0, 0.9, 1.0), section(0.95, 3.0, 2.0),
                              section(0.8, 0.85, 3.0), section(2.0, 2.0, 4.0)});
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  EXPECT_DOUBLE_EQ(results.getSfMin(&failures), 0.8);
  EXPECT_DOUBLE_EQ(results.getIndex(), 2.0);
  ASSERT_EQ(failures.size(), 2U);
  const auto& first = dynamic_cast<const concreteCheckInfo&>(*failures[0]);
  EXPECT_FALSE(first.isShear);
  EXPECT_DOUBLE_EQ(first.abscissa, 1.0);
  EXPECT_DOUBLE_EQ(first.sf, 0.9);
  const auto& second = dynamic_cast<const concreteCheckInfo&>(*failures[1]);
  EXPECT_TRUE(second.isShear);
  EXPECT_EQ(second.combName, "A1");
  EXPECT_EQ(second.combIndex, 3);
  EXPECT_EQ(second.idObj, 7);
}

TEST(BendShearCombResults, TakeEqualFactorsForBending) {
  auto results = combination({section(0.5, 0.5)});
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  results.getSfMin(&failures);
  ASSERT_EQ(failures.size(), 1U);
  EXPECT_FALSE(dynamic_cast<const concreteCheckInfo&>(*failures[0]).isShear);
}

TEST(BendShearCombResults, TellAFailureBesideAFactorThatIsNoNumber) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  auto results = combination({section(none, 0.5), section(0.25, none), section(none, none)});
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  EXPECT_DOUBLE_EQ(results.getSfMin(&failures), 0.25);
  EXPECT_DOUBLE_EQ(results.getIndex(), 1.0);
  EXPECT_EQ(failures.size(), 2U);
}

TEST(BendShearResults, GiveATieToTheLaterCombination) {
  xBendShearResults results;
  results.combinations = {combination({section(0.5, 1.0)}), combination({section(1.0, 0.5)}),
                          combination({section(0.6, 1.0)})};
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  EXPECT_DOUBLE_EQ(results.getSfMin(&failures), 0.5);
  EXPECT_DOUBLE_EQ(results.getIndex(), 1.0);
  EXPECT_EQ(failures.size(), 3U);
  results.reset();
  EXPECT_DOUBLE_EQ(results.getSfMin(nullptr), 1e10);
}

TEST(WallResults, ForgetAllAtAReset) {
  xBendShearCombResults bending = combination({section(0.5, 1.0)});
  bending.setSf(0.5);
  bending.reset();
  EXPECT_EQ(stored(bending), stored(xBendShearCombResults{}));
  xShearCombResults shear;
  shear.setCheckID(7, 3, "A1");
  shear.sections.resize(2);
  shear.setIndex(1);
  shear.reset();
  EXPECT_EQ(stored(shear), stored(xShearCombResults{}));
  xShearResults all;
  all.combinations.resize(2);
  all.reset();
  EXPECT_EQ(stored(all), stored(xShearResults{}));
  xStructCombRes forces;
  forces.setCheckID(7, 3, "A1");
  forces.stresses.emplace_back(1.0, 2.0, 3.0, 4.0);
  forces.reset();
  EXPECT_TRUE(forces.stresses.empty());
}

TEST(ShearResults, LeaveThePositionAtZero) {
  xShear weak;
  weak.setVd(2.0);
  weak.setVRd(1.0);
  weak.abscissa = 4.0;
  xShearResults results;
  results.combinations.resize(2);
  results.combinations[1].setCheckID(1, 2, "B");
  results.combinations[1].sections = {weak};
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  EXPECT_DOUBLE_EQ(results.getSfMin(&failures), 0.5);
  EXPECT_DOUBLE_EQ(results.getIndex(), 0.0);
  ASSERT_EQ(failures.size(), 1U);
  EXPECT_TRUE(dynamic_cast<const concreteCheckInfo&>(*failures[0]).isShear);
  EXPECT_DOUBLE_EQ(dynamic_cast<const concreteCheckInfo&>(*failures[0]).abscissa, 4.0);
  EXPECT_EQ(stored(through_memory(results)), stored(results));
}

TEST(BendShearCombResults, AreStoredAfterTheirTwoBases) {
  auto results = combination({section(0.5, 1.0)});
  results.getSfMin(nullptr);
  EXPECT_EQ(stored(results), frame_bytes(2, bytes_of([&results](outstream& out) {
                                           xBaseResults base;
                                           base.setSf(0.5);
                                           base.pub_write(out);
                                           xCheckCombID id;
                                           id.setCheckID(7, 3, "A1");
                                           id.pub_write(out);
                                           out << 1;
                                           results.sections[0].pub_write(out);
                                         })));
  EXPECT_EQ(stored(through_memory(results)), stored(results));
}

TEST(BendShearResults, AreStoredAfterTheirBase) {
  xBendShearResults results;
  results.combinations = {combination({section(0.5, 1.0)})};
  results.getSfMin(nullptr);
  EXPECT_EQ(stored(results), frame_bytes(1, bytes_of([&results](outstream& out) {
                                           xBaseResults base;
                                           base.setSf(0.5);
                                           base.pub_write(out);
                                           out << 1;
                                           results.combinations[0].pub_write(out);
                                         })));
  EXPECT_EQ(stored(through_memory(results)), stored(results));
}

xShearCombResults weak_in_shear() {
  xShear weak;
  weak.setVd(2.0);
  weak.setVRd(1.0);
  xShearCombResults results;
  results.setCheckID(7, 3, "A1");
  results.sections = {weak};
  results.getSfMin(nullptr);
  return results;
}

TEST(ShearCombResults, AreStoredAfterTheirTwoBases) {
  const xShearCombResults results = weak_in_shear();
  EXPECT_EQ(results.getIOClass(), "xShearCombResults");
  EXPECT_EQ(stored(results), frame_bytes(1, bytes_of([&results](outstream& out) {
                                           xBaseResults base;
                                           base.setSf(0.5);
                                           base.pub_write(out);
                                           xCheckCombID id;
                                           id.setCheckID(7, 3, "A1");
                                           id.pub_write(out);
                                           out << 1;
                                           results.sections[0].pub_write(out);
                                         })));
}

TEST(ShearResults, AreStoredAfterTheirBase) {
  xShearResults results;
  results.combinations = {weak_in_shear()};
  results.getSfMin(nullptr);
  EXPECT_EQ(results.getIOClass(), "xShearResults");
  EXPECT_EQ(stored(results), frame_bytes(1, bytes_of([](outstream& out) {
                                           xBaseResults base;
                                           base.setSf(0.5);
                                           base.pub_write(out);
                                           out << 1;
                                           weak_in_shear().pub_write(out);
                                         })));
}

TEST(StructCombRes, IsStoredAsItsForcesAlone) {
  xStructCombRes results;
  results.setCheckID(1, 2, "A");
  results.stresses.emplace_back(1.0, 2.0, 3.0, 4.0);
  EXPECT_EQ(stored(results), frame_bytes(5, bytes_of([](outstream& out) {
                                           out << 1;
                                           xSollVector(1.0, 2.0, 3.0, 4.0).pub_write(out);
                                         })));
  results.reset();
  EXPECT_EQ(results.getIdObj(), -1);
  EXPECT_TRUE(results.stresses.empty());
}

TEST(WallResults, OfOlderVersionsAreRefused) {
  expect_refused<xStructCombRes>(4);
  expect_refused<xBendShearCombResults>(1);
  expect_refused<xStructuralDesign>(2);
}

}  // namespace
