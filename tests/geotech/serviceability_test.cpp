// SPDX-License-Identifier: Apache-2.0
#include "ostrel/serviceability.h"

#include "ostrel/language.h"
#include "ostrel/results.h"
#include "support/stream_round_trip.h"
#include "support/wall_builder.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::stored;
using ostrel::testing::through_memory;
using ostrel::testing::unfactored;
using ostrel::testing::WallBuilder;

// Three nodes at 0, 3000 and 6000 mm with the given displacements across the wall.
xCombResults moved(const std::vector<double>& across) {
  xCombResults result;
  for (std::size_t i = 0; i < across.size(); ++i) {
    const double depth = 3000.0 * static_cast<double>(i);
    result.femResults.dispAxial.points.emplace_back(depth, 0.0);
    result.femResults.dispTrans.points.emplace_back(depth, across[i]);
  }
  return result;
}

xLoadComb combination(const std::string& name, bool wanted) {
  xLoadComb comb = unfactored(name);
  comb.checks[checkDisplacements] = wanted;
  comb.setcombIndex(8);
  return comb;
}

class Displacements : public ::testing::Test {
protected:
  Displacements() {
    data = WallBuilder{}.combination(combination("SLE", true)).build();
    data.props->checkSettings.setHeadDispLim(50.0);
    data.props->checkSettings.setJtsDispLim(20.0);
  }
  void SetUp() override { ASSERT_TRUE(ostrel::set_language("it")); }
  void TearDown() override { ostrel::set_language(""); }

  xSheetpilingData data;
  std::vector<xCombResults> results{moved({-25.0, 40.0, 3.0})};
  xServiceLimitDisplacements verification;
};

TEST_F(Displacements, AreTakenAtTheHeadAndAtTheExcavation) {
  ASSERT_EQ(verification.check(1, data, results), ostrel::ok);
  ASSERT_EQ(verification.results.size(), 1U);
  const xServiceLimitDispCombRes& result = verification.results[0];
  EXPECT_DOUBLE_EQ(result.getHeadPos(), 0.0);
  EXPECT_DOUBLE_EQ(result.getHeaddisp(), -25.0);
  EXPECT_DOUBLE_EQ(result.getJtsPos(), 3000.0);
  EXPECT_DOUBLE_EQ(result.getJtsdisp(), 40.0);
  EXPECT_DOUBLE_EQ(result.getHeadLim(), 50.0);
  EXPECT_DOUBLE_EQ(result.getJtsLim(), 20.0);
  EXPECT_EQ(result.getIdObj(), 7);
  EXPECT_EQ(result.getCombIndex(), 8);
  EXPECT_EQ(result.getCombName(), "SLE");
  EXPECT_DOUBLE_EQ(result.getSfHead(), 2.0);  // |50 / -25|
  EXPECT_DOUBLE_EQ(result.getSfJts(), 0.5);   // |20 / 40|
}

TEST_F(Displacements, MayBeAskedAtTheLastNode) {
  ASSERT_EQ(verification.check(2, data, results), ostrel::ok);
  EXPECT_DOUBLE_EQ(verification.results[0].getJtsdisp(), 3.0);
}

TEST_F(Displacements, AtANodeBeyondTheBeamFailEvenWhereNobodyAsks) {
  data.loadCombs[0] = combination("A", false);
  EXPECT_EQ(verification.check(3, data, results), errNodeCountModel);
}

// Two nodes of three in one of the two diagrams: node 1 is there, node 2 is not.
TEST_F(Displacements, NeedTheNodeInBothDiagrams) {
  for (const auto diagram : {&xFemResults::dispAxial, &xFemResults::dispTrans}) {
    std::vector<xCombResults> cut = results;
    (cut[0].femResults.*diagram).points.pop_back();
    EXPECT_EQ(verification.collectDispl(7, 1, data.loadCombs, cut), ostrel::ok);
    EXPECT_EQ(verification.collectDispl(7, 2, data.loadCombs, cut), errNodeCountModel);
  }
  EXPECT_EQ(verification.results.size(), 2U);
}

TEST_F(Displacements, NeedAWall) {
  data.props = nullptr;
  EXPECT_EQ(verification.check(1, data, results), errNoWall);
}

TEST_F(Displacements, NeedAResultForEachCombination) {
  results.clear();
  EXPECT_EQ(verification.check(1, data, results), errResultCount);
  data.loadCombs.clear();
  EXPECT_EQ(verification.check(1, data, results), ostrel::ok);
  EXPECT_DOUBLE_EQ(verification.getSfMin(nullptr), 1e10);
}

TEST_F(Displacements, NeedATableOfVerifications) {
  data.loadCombs[0].checks.clear();
  EXPECT_EQ(verification.check(1, data, results), errNoCheckEnabled);
}

TEST_F(Displacements, OfACombinationThatDoesNotAskLeaveNoRecord) {
  data.loadCombs = {combination("A", false), combination("B", true)};
  results = {moved({1.0, 1.0}), moved({2.0, 2.0})};
  ASSERT_EQ(verification.check(1, data, results), ostrel::ok);
  ASSERT_EQ(verification.results.size(), 1U);
  EXPECT_EQ(verification.results[0].getCombName(), "B");
}

TEST_F(Displacements, ListTheFailuresThatLowerTheMinimum) {
  data.loadCombs.assign(4, combination("C", true));
  // Factors at the excavation: 20/25 = 0.8, 20/22 > 0.8, 20/40 = 0.5, 20/10 = 2; the heads stay.
  results = {moved({0.0, 25.0}), moved({0.0, 22.0}), moved({0.0, 40.0}), moved({0.0, 10.0})};
  ASSERT_EQ(verification.check(1, data, results), ostrel::ok);
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  EXPECT_DOUBLE_EQ(verification.getSfMin(&failures), 0.5);
  EXPECT_DOUBLE_EQ(verification.getIndex(), 2.0);
  ASSERT_EQ(failures.size(), 2U);
  EXPECT_DOUBLE_EQ(failures[0]->sf, 0.8);
  EXPECT_DOUBLE_EQ(failures[1]->sf, 0.5);
  EXPECT_EQ(failures[1]->getString(),
            "Verifica a degli spostamenti non soddisfatta: comb=C, sf=0.5, sezione=3000");
}

TEST_F(Displacements, GovernedByTheHeadAreReportedThere) {
  results = {moved({100.0, 20.0, 0.0})};  // 50/100 = 0.5 at the head, 20/20 = 1 below
  ASSERT_EQ(verification.check(1, data, results), ostrel::ok);
  const auto failure = verification.results[0].getCheckInfo();
  EXPECT_DOUBLE_EQ(failure->sf, 0.5);
  EXPECT_DOUBLE_EQ(failure->section, 0.0);
  EXPECT_EQ(failure->idObj, 7);
  EXPECT_EQ(failure->combIndex, 8);
  const osg::ref_ptr<slsCheckInfo> copy = failure->clone();
  EXPECT_EQ(copy->getString(), failure->getString());
  EXPECT_DOUBLE_EQ(copy->section, 0.0);
}

TEST_F(Displacements, WithEqualFactorsAreReportedAtTheExcavation) {
  results = {moved({100.0, 40.0, 0.0})};  // 0.5 and 0.5
  ASSERT_EQ(verification.check(1, data, results), ostrel::ok);
  EXPECT_DOUBLE_EQ(verification.results[0].getCheckInfo()->section, 3000.0);
}

// 10 mm against a limit of 1 mm at one place, and against none that is a number at the other.
TEST_F(Displacements, WithoutALimitAtOnePlaceGoByTheOther) {
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  results = {moved({10.0, 10.0, 0.0})};
  for (const auto& [excavation, head, place] :
       {std::tuple{none, 1.0, 0.0}, std::tuple{1.0, none, 3000.0}}) {
    data.props->checkSettings.setJtsDispLim(excavation);
    data.props->checkSettings.setHeadDispLim(head);
    xServiceLimitDisplacements found;
    ASSERT_EQ(found.check(1, data, results), ostrel::ok);
    std::vector<osg::ref_ptr<xCheckInfo>> failures;
    EXPECT_DOUBLE_EQ(found.getSfMin(&failures), 0.1);
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_DOUBLE_EQ(failures[0]->sf, 0.1);
    EXPECT_EQ(dynamic_cast<const slsCheckInfo&>(*failures[0]).section, place);
  }
}

TEST_F(Displacements, OfNothingAreUnlimitedAndALimitOfZeroAllowsNone) {
  data.props->checkSettings.setJtsDispLim(0.0);
  results = {moved({0.0, 0.0}), moved({0.0, 0.1})};
  data.loadCombs.assign(2, combination("C", true));
  ASSERT_EQ(verification.check(1, data, results), ostrel::ok);
  EXPECT_DOUBLE_EQ(verification.results[0].getSfJts(), 1e10);
  EXPECT_DOUBLE_EQ(verification.results[1].getSfJts(), 0.0);
}

xServiceLimitDispCombRes filled_record() {
  xServiceLimitDispCombRes record;
  record.setCheckID(7, 8, "SLE");
  record.setHeadPos(1.0);
  record.setJtsPos(2.0);
  record.setJtsdisp(3.0);
  record.setHeaddisp(4.0);
  record.check(5.0, 6.0);
  return record;
}

TEST(ServiceLimitDispCombRes, IsStoredAfterItsBaseInItsOwnOrder) {
  const xServiceLimitDispCombRes record = filled_record();
  EXPECT_EQ(stored(record), frame_bytes(1, bytes_of([](outstream& out) {
                                          xCheckCombID base;
                                          base.setCheckID(7, 8, "SLE");
                                          base.pub_write(out);
                                          out << 3.0 << 4.0 << 1.0 << 2.0 << 5.0 << 6.0;
                                        })));
  EXPECT_EQ(stored(through_memory(record)), stored(record));
  xServiceLimitDispCombRes emptied = record;
  emptied.reset();
  EXPECT_EQ(stored(emptied), stored(xServiceLimitDispCombRes{}));
}

TEST(ServiceabilityLimitStates, AreStoredWithoutTheFactorOfTheVerification) {
  xServiceabilityLimitStates states;
  states.displacements.results.push_back(filled_record());
  // |6 / 4| = 1.5 at the head, |5 / 3| at the excavation.
  EXPECT_DOUBLE_EQ(states.getSfMin(nullptr), 1.5);
  EXPECT_EQ(stored(states), frame_bytes(1, frame_bytes(1, bytes_of([](outstream& out) {
                                                         out << 1;
                                                         filled_record().pub_write(out);
                                                       }))));
  xServiceabilityLimitStates read = through_memory(states);
  EXPECT_DOUBLE_EQ(read.displacements.getSf(), 1e10);
  EXPECT_DOUBLE_EQ(read.getSfMin(nullptr), 1.5);
  read.reset();
  EXPECT_TRUE(read.displacements.results.empty());
}

}  // namespace
