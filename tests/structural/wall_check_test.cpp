// SPDX-License-Identifier: Apache-2.0
#include "ostrel/wall_check.h"

#include "ostrel/results.h"
#include "support/concrete_walls.h"
#include "support/stream_round_trip.h"
#include "support/wall_builder.h"

#include <gtest/gtest.h>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::circle;
using ostrel::testing::common_settings;
using ostrel::testing::frame_bytes;
using ostrel::testing::read_stored;
using ostrel::testing::rectangle_section;
using ostrel::testing::stored;
using ostrel::testing::unfactored;

// Forces at the two ends of each element; M in kNm, N = -200 kN, T = 10 kN.
xCombResults forces(const std::string& name, const std::vector<std::pair<double, double>>& at) {
  xCombResults result;
  result.setCombName(name);
  result.setcombIndex(static_cast<int>(name.size()));
  for (const auto& [z, moment] : at) {
    result.femResults.axial.points.emplace_back(z, -200e3);
    result.femResults.shear.points.emplace_back(z, 10e3);
    result.femResults.moment.points.emplace_back(z, moment * 1e6);
  }
  return result;
}

xLoadComb combination(bool wanted) {
  xLoadComb comb = unfactored("unused");
  comb.checks[checkWallStructure] = wanted;
  return comb;
}

class WallDesign : public ::testing::Test {
protected:
  WallDesign() {
    auto ring = common_settings<xCircularReinfSettings>(20.0, 60.0);
    ring->setMinRatio(0.5);
    ring->setMaxRatio(4.0);
    settings = ring.get();
  }
  OstrelErrorType collect(const std::vector<xCombResults>& results) {
    return wall.collectStress(7, std::vector<xLoadComb>(results.size(), combination(true)),
                              results);
  }
  OstrelErrorType design() { return wall.design(section.get(), settings); }
  OstrelErrorType check() { return wall.check(section.get(), settings); }
  // Five bars of 20 mm at the head, on the valley side alone, 50 mm from the face of a panel 600 mm
  // deep and 1000 mm wide.
  void reinforce_the_valley_side() {
    section = rectangle_section(600.0, 1000.0).get();
    settings = common_settings<xRectReinfSettings>(20.0, 50.0).get();
    osg::ref_ptr<xReinfRectSection> record = new xReinfRectSection;
    record->vertexBars = false;
    record->AValleEff().setNumber(5);
    record->AValleEff().setDiameter(20.0);
    wall.checkedReinforcement.sections.emplace_back(record.get());
  }

  xStructuralDesign wall;
  osg::ref_ptr<xCrossSecProp> section = circle(800.0).get();
  osg::ref_ptr<xReinforcement_Settings> settings;
};

TEST_F(WallDesign, CollectsTheForcesOfActiveCombinations) {
  const std::vector<xCombResults> results{forces("A", {{0.0, 1.0}, {500.0, 2.0}}),
                                          forces("BB", {{0.0, 3.0}, {500.0, 4.0}})};
  ASSERT_EQ(wall.collectStress(7, {combination(false), combination(true)}, results), ostrel::ok);
  ASSERT_EQ(wall.combResults.size(), 1U);
  EXPECT_EQ(wall.combResults[0].getCombName(), "BB");
  EXPECT_EQ(wall.combResults[0].getCombIndex(), 2);
  EXPECT_EQ(wall.combResults[0].getIdObj(), 7);
  const xSollVector& second = wall.combResults[0].stresses.at(1);
  EXPECT_DOUBLE_EQ(second.z, 500.0);
  EXPECT_DOUBLE_EQ(second.N, -200e3);
  EXPECT_DOUBLE_EQ(second.T, 10e3);
  EXPECT_DOUBLE_EQ(second.M, 4e6);
}

TEST_F(WallDesign, RefusesNumbersThatDoNotAgree) {
  EXPECT_EQ(wall.collectStress(7, {combination(true)}, {}), errResultCount);
  xLoadComb without_table = combination(false);
  without_table.checks.clear();
  EXPECT_EQ(wall.collectStress(7, {without_table}, {forces("A", {})}), errNoCheckEnabled);
  EXPECT_EQ(wall.collectStress(7, {}, {}), ostrel::ok);
}

// Whichever diagram is short, whether or not the combination asks, and before its table is missed.
TEST_F(WallDesign, RefusesDiagramsOfDifferentLength) {
  xLoadComb without_table = combination(false);
  without_table.checks.clear();
  for (const auto diagram : {&xFemResults::axial, &xFemResults::shear, &xFemResults::moment}) {
    xCombResults ragged = forces("A", {{0.0, 1.0}});
    (ragged.femResults.*diagram).points.clear();
    EXPECT_EQ(collect({ragged}), errResultCount);
    EXPECT_EQ(wall.collectStress(7, {combination(false)}, {ragged}), errResultCount);
    EXPECT_EQ(wall.collectStress(7, {without_table}, {ragged}), errResultCount);
  }
  EXPECT_TRUE(wall.combResults.empty());
}

TEST_F(WallDesign, WithoutAnActiveCombinationKeepsTheLeastReinforcement) {
  ASSERT_EQ(design(), ostrel::ok);
  ASSERT_EQ(wall.designedReinforcement.sections.size(), 1U);
  EXPECT_DOUBLE_EQ(wall.designedReinforcement.sections[0]->getAbscissa(), 0.0);
  EXPECT_EQ(wall.designedReinforcement.sections[0]->AValleEff().getNumber(), 8U);
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_DOUBLE_EQ(wall.getSfMin(nullptr), 1e10);
}

TEST_F(WallDesign, SizesEachAbscissaForTheWorstCombination) {
  ASSERT_EQ(collect({forces("A", {{0.0, 0.0}, {500.0, 600.0}}),
                     forces("B", {{0.0, 600.0}, {500.0, 0.0}})}),
            ostrel::ok);
  ASSERT_EQ(design(), ostrel::ok);
  ASSERT_EQ(wall.designedReinforcement.sections.size(), 2U);
  const auto& records = wall.designedReinforcement.sections;
  EXPECT_GT(records[0]->AValleEff().getNumber(), 8U);
  EXPECT_EQ(records[0]->AValleEff().getNumber(), records[1]->AValleEff().getNumber());
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_GE(wall.getSfMin(nullptr), 1.0);
}

TEST_F(WallDesign, BeginsItsRecordsAnewEachTime) {
  ASSERT_EQ(collect({forces("A", {{0.0, 1.0}, {500.0, 2.0}})}), ostrel::ok);
  ASSERT_EQ(design(), ostrel::ok);
  ASSERT_EQ(design(), ostrel::ok);
  ASSERT_EQ(wall.designedReinforcement.sections.size(), 2U);
  EXPECT_DOUBLE_EQ(wall.designedReinforcement.sections[0]->getAbscissa(), 0.0);
  EXPECT_DOUBLE_EQ(wall.designedReinforcement.sections[1]->getAbscissa(), 500.0);
  EXPECT_EQ(wall.checkedReinforcement.sections.size(), 2U);
}

// The node at 500 mm carries 100 kNm above and 600 kNm below: its record is that of the element
// above, and the section below falls short.
TEST_F(WallDesign, KeepsTheRecordOfTheElementAboveAnInnerNode) {
  ASSERT_EQ(collect({forces("A", {{0.0, 0.0}, {500.0, 100.0}, {500.0, 600.0}, {900.0, 0.0}})}),
            ostrel::ok);
  ASSERT_EQ(design(), ostrel::ok);
  ASSERT_EQ(wall.designedReinforcement.sections.size(), 3U);
  EXPECT_EQ(wall.designedReinforcement.sections[1]->AValleEff().getNumber(), 8U);
  ASSERT_EQ(check(), ostrel::ok);
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  EXPECT_LT(wall.getSfMin(&failures), 1.0);
  EXPECT_DOUBLE_EQ(wall.bendShear.combinations[0].getIndex(), 2.0);
  ASSERT_EQ(failures.size(), 1U);
  const auto& failure = dynamic_cast<const concreteCheckInfo&>(*failures[0]);
  EXPECT_FALSE(failure.isShear);
  EXPECT_DOUBLE_EQ(failure.abscissa, 500.0);
  EXPECT_EQ(failure.idObj, 7);
}

TEST_F(WallDesign, ChecksAgainWithAnotherReinforcement) {
  ASSERT_EQ(collect({forces("A", {{0.0, 300.0}})}), ostrel::ok);
  ASSERT_EQ(design(), ostrel::ok);
  ASSERT_EQ(check(), ostrel::ok);
  const double before = wall.getSfMin(nullptr);
  wall.checkedReinforcement.sections[0]->AValleEff().setNumber(30);
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_GT(wall.getSfMin(nullptr), before);
  EXPECT_EQ(wall.designedReinforcement.sections[0]->AValleEff().getNumber(), 8U);
  ASSERT_EQ(wall.bendShear.combinations.size(), 1U);
}

TEST_F(WallDesign, FindsNoRecordInAnEmptyList) {
  ASSERT_EQ(collect({forces("A", {{0.0, 1.0}})}), ostrel::ok);
  ASSERT_EQ(design(), ostrel::ok);
  wall.checkedReinforcement.reset();
  EXPECT_EQ(check(), errNoReinfAtAbscissa);
  wall.checkedReinforcement.sections.push_back(new xReinfRectSection);
  EXPECT_EQ(check(), errReinfForSection);
}

// 1e-6 mm apart in binary: 0 and exactly the tolerance.
TEST_F(WallDesign, TakesTwoAbscissaeAtTheToleranceForOneButDoesNotFindTheSecond) {
  const double tolerance = 1e-6;
  ASSERT_EQ(collect({forces("A", {{0.0, 1.0}, {tolerance, 1.0}})}), ostrel::ok);
  ASSERT_EQ(design(), ostrel::ok);
  EXPECT_EQ(wall.designedReinforcement.sections.size(), 1U);
  EXPECT_EQ(check(), errNoReinfAtAbscissa);
}

// The second combination has no record at its 700 mm; the first stays verified.
TEST_F(WallDesign, ReadsTheAbscissaeOfTheFirstCombinationAlone) {
  ASSERT_EQ(
      collect({forces("A", {{0.0, 1.0}, {500.0, 1.0}}), forces("B", {{0.0, 1.0}, {700.0, 1.0}})}),
      ostrel::ok);
  ASSERT_EQ(design(), ostrel::ok);
  ASSERT_EQ(wall.designedReinforcement.sections.size(), 2U);
  EXPECT_DOUBLE_EQ(wall.designedReinforcement.sections[1]->getAbscissa(), 500.0);
  EXPECT_EQ(check(), errNoReinfAtAbscissa);
  ASSERT_EQ(wall.bendShear.combinations.size(), 1U);
  EXPECT_EQ(wall.bendShear.combinations[0].getCombName(), "A");
}

// Bars stretched by a positive moment: T = 1570.8 * 391.304 = 614 661 N, the depth in compression
// x = T / (17/21 * 1000 * 14.11) = 53.81 mm, Mrd = T (550 - 99/238 * x) = 324.30 kNm.
// A negative moment has them at less than 50 mm from the compressed face: below T * 50 = 30.7 kNm.
TEST_F(WallDesign, CountsAMomentOfZeroAsPositive) {
  reinforce_the_valley_side();
  wall.combResults.emplace_back().stresses = {{0.0, 0.0, 0.0, 0.0}, {0.0, 0.0, 0.0, -1.0}};
  ASSERT_EQ(check(), ostrel::ok);
  const auto& sections = wall.bendShear.combinations.at(0).sections;
  EXPECT_NEAR(sections.at(0).flex.Mrd, 324.30e6, 0.01e6);
  EXPECT_LT(sections.at(1).flex.Mrd, 30.74e6);
}

// Without shear, and with Mrd = 324.30 kNm as above: 324.30 / 162.15 = 2 for the first
// combination, 324.30 / 108.10 = 3 for the second.
TEST_F(WallDesign, HoldsItsFactorBeforeAnybodyAsks) {
  reinforce_the_valley_side();
  wall.combResults.resize(2);
  wall.combResults[0].stresses = {{0.0, 0.0, 0.0, 0.0}, {0.0, 0.0, 0.0, 162.15e6}};
  wall.combResults[1].stresses = {{0.0, 0.0, 0.0, 108.10e6}};
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_NEAR(wall.bendShear.getSf(), 2.0, 1e-4);
  EXPECT_NEAR(wall.bendShear.combinations.at(0).getSf(), 2.0, 1e-4);
  EXPECT_EQ(wall.bendShear.combinations[0].getIndex(), 1.0);
  EXPECT_NEAR(wall.bendShear.combinations.at(1).getSf(), 3.0, 1e-4);
}

// The second combination has no record at its 700 mm; the first, 324.30 / 162.15, has its factor.
TEST_F(WallDesign, HoldsTheFactorOfACombinationBeforeTheOneThatFails) {
  reinforce_the_valley_side();
  wall.combResults.resize(2);
  wall.combResults[0].stresses = {{0.0, 0.0, 0.0, 162.15e6}};
  wall.combResults[1].stresses = {{700.0, 0.0, 0.0, 108.10e6}};
  EXPECT_EQ(check(), errNoReinfAtAbscissa);
  ASSERT_EQ(wall.bendShear.combinations.size(), 1U);
  EXPECT_NEAR(wall.bendShear.combinations[0].getSf(), 2.0, 1e-4);
}

TEST_F(WallDesign, NeedsASectionThatSuitsItsSettings) {
  section = rectangle_section(600.0, 1000.0).get();
  EXPECT_EQ(design(), errInvalidSection);
  EXPECT_EQ(check(), errInvalidSection);
  section = circle(800.0).get();
  settings = nullptr;
  EXPECT_EQ(design(), errInvalidSection);
  section = nullptr;
  EXPECT_EQ(check(), errInvalidSection);
}

TEST_F(WallDesign, AnswersForSectionsBeyondTheEnd) {
  EXPECT_EQ(wall.getNumSez(0), 1U);
  ASSERT_EQ(collect({forces("A", {{1.0, 2.0}, {3.0, 4.0}})}), ostrel::ok);
  EXPECT_EQ(wall.getNumSez(0), 2U);
  EXPECT_EQ(wall.getNumSez(1), 1U);
  EXPECT_DOUBLE_EQ(wall.getSoll(0, 1)->z, 3.0);
  for (const auto& [comb, sez] : {std::pair{0U, 2U}, {0U, 9U}, {1U, 0U}}) {
    EXPECT_DOUBLE_EQ(wall.getSoll(comb, sez)->N, 0.0);
  }
}

TEST_F(WallDesign, IsStoredWithoutTheIdentityOfItsForces) {
  ASSERT_EQ(collect({forces("A", {{0.0, 300.0}})}), ostrel::ok);
  ASSERT_EQ(design(), ostrel::ok);
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_EQ(stored(wall), frame_bytes(3, bytes_of([this](outstream& out) {
                                        out << 1;
                                        wall.combResults[0].pub_write(out);
                                        wall.bendShear.pub_write(out);
                                        wall.designedReinforcement.pub_write(out);
                                        wall.checkedReinforcement.pub_write(out);
                                      })));
  xStructuralDesign read;
  read_stored(read, stored(wall));
  EXPECT_EQ(stored(read), stored(wall));
  EXPECT_EQ(read.combResults[0].getIdObj(), -1);
  EXPECT_EQ(read.combResults[0].getCombName(), "");
  EXPECT_EQ(read.bendShear.combinations[0].getIdObj(), 7);
  ASSERT_EQ(read.check(section.get(), settings), ostrel::ok);
  EXPECT_EQ(read.bendShear.combinations.at(0).getIdObj(), -1);
  EXPECT_EQ(read.bendShear.combinations[0].getCombIndex(), 0);
  EXPECT_EQ(read.bendShear.combinations[0].getCombName(), "");
  read.reset();
  EXPECT_EQ(stored(read), stored(xStructuralDesign{}));
}

}  // namespace
