// SPDX-License-Identifier: Apache-2.0
#include "ostrel/hydraulic_check.h"

#include "ostrel/language.h"
#include "support/hostile_stream.h"
#include "support/stream_round_trip.h"
#include "support/wall_builder.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::expect_cuts_refused;
using ostrel::testing::frame_bytes;
using ostrel::testing::refused_mutations;
using ostrel::testing::stored;
using ostrel::testing::through_memory;
using ostrel::testing::unfactored;
using ostrel::testing::WallBuilder;
using Failures = std::vector<osg::ref_ptr<xCheckInfo>>;

xSoilProps soil(double permeability, double saturated) {
  xSoilProps props;
  props.setKPerm(permeability);
  props.setSaturatedUnitWeight(saturated);
  return props;
}

xLoadComb seeping(const std::string& name, bool piping, bool uplift) {
  xLoadComb comb = unfactored(name);
  comb.checks[checkPiping] = piping;
  comb.checks[checkUplift] = uplift;
  comb.setcombIndex(8);
  return comb;
}

// 6 m of excavation before a wall of 12 m, water at -2000 and -6000 mm, and two layers that meet at
// -8000 mm. The path under the foot, by length and length over permeability:
//
//     behind  6000 / 0.01 = 600 000,  4000 / 0.005 = 800 000
//     before  4000 / 0.005 = 800 000,  2000 / 0.01 = 200 000
//
// So 4000 mm of head fall by 1/600 mm for each of 2 400 000 s: 1400/0.6 = 7000/3 mm behind the
// wall, 5000/3 mm before it.
class HydraulicCheck : public ::testing::Test {
protected:
  HydraulicCheck() {
    data = WallBuilder{}
               .layer(soil(0.01, 20e-6), 8000.0)
               .layer(soil(0.005, 21e-6))
               .water(-2000.0, -6000.0)
               .combination(seeping("A", true, true))
               .build();
  }
  void SetUp() override { ASSERT_TRUE(ostrel::set_language("it")); }
  void TearDown() override { ostrel::set_language(""); }

  OstrelErrorType check(double toe = -12'000.0, double excavation = -6000.0) {
    return hyDroCheck(7, data.waterTable, data.soilLayers, data.loadCombs, toe, excavation, found);
  }
  bool nothing_found() const { return found.piping.empty() && found.uplift.empty(); }

  xSheetpilingData data;
  verificheIdrauliche found;
};

TEST_F(HydraulicCheck, ComparesTheGradientAtTheExitWithTheCriticalOne) {
  data.loadCombs[0].ulsFactors[factorPiping] = 1.6;
  ASSERT_EQ(check(), ostrel::ok);
  ASSERT_EQ(found.piping.size(), 1U);
  const verificaSifonamento& piping = found.piping[0];
  EXPECT_NEAR(piping.dH, 5000.0 / 3.0, 1e-9);
  EXPECT_DOUBLE_EQ(piping.Ld, 6000.0);
  EXPECT_NEAR(piping.iE(), 5.0 / 18.0, 1e-12);
  // (2000 * 10e-6 + 4000 * 11e-6) / 1e-5 / 6000 = 0.064 / 0.06
  EXPECT_NEAR(piping.iCrit, 16.0 / 15.0, 1e-12);
  EXPECT_DOUBLE_EQ(piping.gammaR, 1.6);
  EXPECT_NEAR(piping.getSf(), 2.4, 1e-12);  // (16/15) / 1.6 = 2/3, over 5/18
  EXPECT_EQ(piping.getIdObj(), 7);
  EXPECT_EQ(piping.getCombIndex(), 8);
  EXPECT_EQ(piping.getCombName(), "A");
}

TEST_F(HydraulicCheck, ComparesTheWaterUnderThePrismWithItsWeight) {
  data.loadCombs[0].actions[1].set("earth", true, 0.9, 1.3);
  data.loadCombs[0].ulsFactors[factorUplift] = 3.0;
  ASSERT_EQ(check(), ostrel::ok);
  ASSERT_EQ(found.uplift.size(), 1U);
  const verificaSollevamento& uplift = found.uplift[0];
  EXPECT_NEAR(uplift.i, 5.0 / 18.0, 1e-12);
  EXPECT_NEAR(uplift.Udst, 50.0, 1e-9);   // 5/18 * 1e-5 * 6000² / 2
  EXPECT_NEAR(uplift.Gstb, 192.0, 1e-9);  // 0.064 * 6000 / 2
  EXPECT_NEAR(uplift.iCrit, 16.0 / 15.0, 1e-12);
  EXPECT_DOUBLE_EQ(uplift.gammaStb, 0.9);
  EXPECT_DOUBLE_EQ(uplift.gammaDst, 1.3);
  EXPECT_DOUBLE_EQ(uplift.gammaR, 3.0);
  EXPECT_DOUBLE_EQ(uplift.reserved, 0.0);
  EXPECT_NEAR(uplift.getSf(), 172.8 / 65.0, 1e-12);  // 0.9 * 192 / (1.3 * 50), without the 3
  EXPECT_EQ(uplift.getIdObj(), 7);
  EXPECT_EQ(uplift.getCombIndex(), 8);
  EXPECT_EQ(uplift.getCombName(), "A");
}

TEST_F(HydraulicCheck, TakesResistanceFactorsOfOneWhereThereAreNone) {
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_DOUBLE_EQ(found.piping[0].gammaR, 1.0);
  EXPECT_DOUBLE_EQ(found.uplift[0].gammaR, 1.0);
}

TEST_F(HydraulicCheck, ReadsTheFactorsOfTheSoil) {
  data.loadCombs[0].geoFactors[4] = {.first = 9.0, .second = 1.25};
  ASSERT_EQ(check(), ostrel::ok);
  // 2000 * (16 - 10)e-6 + 4000 * (16.8 - 10)e-6 = 0.012 + 0.0272
  EXPECT_NEAR(found.uplift[0].Gstb, 0.0392 * 3000.0, 1e-9);
  EXPECT_NEAR(found.uplift[0].Udst, 50.0, 1e-9);
}

TEST_F(HydraulicCheck, IsMadeForEachCombinationThatAsksForIt) {
  data.loadCombs = {seeping("A", true, false), seeping("B", false, false),
                    seeping("C", false, true), seeping("D", true, true)};
  data.loadCombs[1].checks.clear();
  ASSERT_EQ(check(), ostrel::ok);
  ASSERT_EQ(found.piping.size(), 2U);
  EXPECT_EQ(found.piping[0].getCombName(), "A");
  EXPECT_EQ(found.piping[1].getCombName(), "D");
  ASSERT_EQ(found.uplift.size(), 2U);
  EXPECT_EQ(found.uplift[0].getCombName(), "C");
  EXPECT_EQ(found.uplift[1].getCombName(), "D");
}

TEST_F(HydraulicCheck, DropsWhatWasFoundBefore) {
  ASSERT_EQ(check(), ostrel::ok);
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_EQ(found.piping.size(), 1U);
  data.waterTable.setIsDefined(false);
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_TRUE(nothing_found());
}

TEST_F(HydraulicCheck, SaysNothingWithoutWater) {
  data.waterTable.setIsDefined(false);
  data.soilLayers.clear();
  EXPECT_EQ(check(), ostrel::ok);
  EXPECT_TRUE(nothing_found());
}

TEST_F(HydraulicCheck, SaysNothingOfAFootAboveTheLowerWater) {
  data.soilLayers.clear();  // a path would end in a code
  EXPECT_EQ(check(-5999.0), ostrel::ok);
  EXPECT_EQ(check(-6000.0), errNoLayerIntersection);
}

TEST_F(HydraulicCheck, SaysNothingOfWatersNotAboveTheExcavation) {
  data.soilLayers.clear();
  EXPECT_EQ(check(-12'000.0, -2000.0), ostrel::ok);
  EXPECT_EQ(check(-12'000.0, -2001.0), errNoLayerIntersection);
}

TEST_F(HydraulicCheck, SaysNothingWithoutCombinations) {
  data.soilLayers.clear();
  data.loadCombs.clear();
  EXPECT_EQ(check(), ostrel::ok);
}

TEST_F(HydraulicCheck, FindsNothingWhereTheWaterDoesNotFlowToTheExcavation) {
  data.waterTable.setLivelloValle(-2000.0);
  EXPECT_EQ(check(), ostrel::ok);
  EXPECT_TRUE(nothing_found());
  data.waterTable.setLivelloValle(-1000.0);
  EXPECT_EQ(check(), ostrel::ok);
  EXPECT_TRUE(nothing_found());
}

TEST_F(HydraulicCheck, BuildsThePathEvenWhereNoWaterFlowsAndNobodyAsks) {
  data.waterTable.setLivelloValle(-2000.0);
  data.loadCombs[0] = seeping("A", false, false);
  data.soilLayers.clear();
  EXPECT_EQ(check(), errNoLayerIntersection);
}

TEST_F(HydraulicCheck, EndsAtTheFirstCodeAndKeepsWhatItHas) {
  data.loadCombs = {seeping("A", true, true), seeping("B", true, true), seeping("C", true, true)};
  data.loadCombs[1].actions.resize(1);
  EXPECT_EQ(check(), errCondListMismatch);
  EXPECT_EQ(found.uplift.size(), 1U);
  EXPECT_EQ(found.piping.size(), 2U);
}

TEST_F(HydraulicCheck, NeedsTwoActionsForUpliftAlone) {
  data.loadCombs = {seeping("A", true, false)};
  data.loadCombs[0].actions.clear();
  EXPECT_EQ(check(), ostrel::ok);
  data.loadCombs = {seeping("A", false, true)};
  data.loadCombs[0].actions.resize(2);
  EXPECT_EQ(check(), ostrel::ok);
  data.loadCombs[0].actions.resize(1);
  EXPECT_EQ(check(), errCondListMismatch);
}

TEST_F(HydraulicCheck, RefusesNumbersThatAreNone) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(check(nan), errNoLayerIntersection);
  data.waterTable.setLivelloMonte(nan);
  EXPECT_EQ(check(), errHydroNoWater);
  data.waterTable.setLivelloMonte(-2000.0);
  data.waterTable.setLivelloValle(nan);
  EXPECT_EQ(check(), errHydroNoWater);
  EXPECT_EQ(check(0.0), errHydroNoWater);
}

TEST_F(HydraulicCheck, TakesWaterAboveTheGroundAsItsHead) {
  // The path behind the wall still begins at the ground: 8000 / 0.01 + 800 000 + 1 000 000 =
  // 2 600 000 s share 7300 mm, of which the ground before the wall takes 10/26.
  data.waterTable.setLivelloMonte(1300.0);
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_NEAR(found.piping[0].dH, 7300.0 * 10.0 / 26.0, 1e-9);
  EXPECT_DOUBLE_EQ(found.piping[0].Ld, 6000.0);
}

TEST_F(HydraulicCheck, GivesNoFactorWhereALayerLetsNoWaterThrough) {
  data.soilLayers[1].soil.setKPerm(0.0);
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_TRUE(std::isnan(found.piping[0].getSf()));
  EXPECT_TRUE(std::isnan(found.uplift[0].getSf()));
  EXPECT_DOUBLE_EQ(found.getSfMin(nullptr), 1e10);
}

verificaSollevamento lifted(const std::string& name, double factor) {
  verificaSollevamento record;
  record.setCheckID(7, 8, name);
  record.Udst = 100.0;
  record.Gstb = 100.0 * factor;
  record.gammaStb = 1.0;
  record.gammaDst = 1.0;
  return record;
}

verificaSifonamento piped(const std::string& name, double factor) {
  verificaSifonamento record;
  record.setCheckID(9, 6, name);
  record.dH = 500.0;
  record.Ld = 1000.0;
  record.iCrit = 0.5 * factor;
  record.gammaR = 1.0;
  return record;
}

TEST_F(HydraulicCheck, ListsTheFailuresThatLowerTheMinimum) {
  found.uplift = {lifted("A", 0.875), lifted("B", 0.9), lifted("C", 0.75)};
  found.piping = {piped("D", 0.8), piped("E", 0.5), piped("F", 2.0)};
  Failures failed;
  EXPECT_DOUBLE_EQ(found.getSfMin(&failed), 0.5);
  ASSERT_EQ(failed.size(), 3U);
  EXPECT_EQ(failed[0]->combName, "A");
  EXPECT_EQ(failed[1]->getString(), "Verifica a sollevamento non soddisfatta comb=C, sf=0.75");
  EXPECT_EQ(failed[2]->getString(), "Verifica a sifonamento non soddisfatta comb=E, sf=0.5");
  EXPECT_DOUBLE_EQ(failed[2]->sf, 0.5);
  EXPECT_EQ(failed[2]->idObj, 9);
  EXPECT_EQ(failed[2]->combIndex, 6);
  EXPECT_DOUBLE_EQ(found.getSfMin(nullptr), 0.5);
}

TEST_F(HydraulicCheck, ThatJustHoldsIsNoFailure) {
  found.piping = {piped("A", 1.0)};
  Failures failed;
  EXPECT_DOUBLE_EQ(found.getSfMin(&failed), 1.0);
  EXPECT_TRUE(failed.empty());
}

TEST_F(HydraulicCheck, OfNothingIsUnlimited) {
  EXPECT_DOUBLE_EQ(found.getSfMin(nullptr), 1e10);
  found.piping = {verificaSifonamento{}};
  found.piping[0].Ld = 1000.0;  // no head, no gradient
  found.uplift = {verificaSollevamento{}};
  EXPECT_DOUBLE_EQ(found.piping[0].getSf(), 1e10);
  EXPECT_DOUBLE_EQ(found.uplift[0].getSf(), 1e10);
}

TEST_F(HydraulicCheck, SpeaksEnglish) {
  ASSERT_TRUE(ostrel::set_language("en"));
  osg::ref_ptr<HydroCheckInfo> info = new HydroCheckInfo;
  info->combName = "A";
  info->sf = 0.5;
  EXPECT_EQ(info->getString(), "Verification against piping not satisfied comb=A, sf=0.5");
  info->isUplift = true;
  EXPECT_EQ(info->getString(), "Verification against uplift not satisfied comb=A, sf=0.5");
}

TEST(HydroCheckInfo, IsClonedWhole) {
  const osg::ref_ptr<HydroCheckInfo> info = new HydroCheckInfo;
  info->isUplift = true;
  info->sf = 0.25;
  const osg::ref_ptr<HydroCheckInfo> copy = info->clone();
  EXPECT_NE(copy, info);
  EXPECT_TRUE(copy->isUplift);
  EXPECT_DOUBLE_EQ(copy->sf, 0.25);
}

std::string stored_id() {
  xCheckCombID id;
  id.setCheckID(7, 8, "SLU");
  return stored(id);
}

verificaSifonamento filled_piping() {
  verificaSifonamento record;
  record.setCheckID(7, 8, "SLU");
  record.dH = 1.0;
  record.Ld = 2.0;
  record.iCrit = 3.0;
  record.gammaR = 4.0;
  return record;
}

verificaSollevamento filled_uplift() {
  verificaSollevamento record;
  record.setCheckID(7, 8, "SLU");
  record.Udst = 1.0;
  record.Gstb = 2.0;
  record.reserved = 3.0;
  record.gammaStb = 4.0;
  record.gammaDst = 5.0;
  record.gammaR = 6.0;
  record.i = 7.0;
  record.iCrit = 8.0;
  return record;
}

TEST(PipingRecord, IsStoredBeforeItsBase) {
  const verificaSifonamento record = filled_piping();
  EXPECT_EQ(stored(record), frame_bytes(1, bytes_of([](outstream& out) {
                                             out << 1.0 << 2.0 << 3.0 << 4.0;
                                           }) + stored_id()));
  EXPECT_EQ(stored(through_memory(record)), stored(record));
  EXPECT_EQ(record.getIOClass(), "verificaSifonamento");
}

TEST(PipingRecord, KeepsItsBaseWhenReset) {
  verificaSifonamento record = filled_piping();
  record.reset();
  verificaSifonamento expected;
  expected.setCheckID(7, 8, "SLU");
  EXPECT_EQ(stored(record), stored(expected));
}

TEST(UpliftRecord, IsStoredBeforeItsBaseInItsOwnOrder) {
  const verificaSollevamento record = filled_uplift();
  EXPECT_EQ(stored(record), frame_bytes(1, bytes_of([](outstream& out) {
                                             out << 1.0 << 2.0 << 4.0 << 5.0 << 6.0 << 7.0 << 8.0
                                                 << 3.0;
                                           }) + stored_id()));
  EXPECT_EQ(stored(through_memory(record)), stored(record));
  EXPECT_EQ(record.getIOClass(), "verificaSollevamento");
}

TEST(UpliftRecord, KeepsItsBaseWhenReset) {
  verificaSollevamento record = filled_uplift();
  record.reset();
  verificaSollevamento expected;
  expected.setCheckID(7, 8, "SLU");
  EXPECT_EQ(stored(record), stored(expected));
}

verificheIdrauliche filled_checks() {
  verificheIdrauliche checks;
  checks.uplift = {filled_uplift()};
  checks.piping = {filled_piping(), filled_piping()};
  return checks;
}

TEST(HydraulicChecks, AreStoredUpliftFirst) {
  const verificheIdrauliche checks = filled_checks();
  EXPECT_EQ(stored(checks), frame_bytes(1, bytes_of([](outstream& out) {
                                          out << 1;
                                          filled_uplift().pub_write(out);
                                          out << 2;
                                          filled_piping().pub_write(out);
                                          filled_piping().pub_write(out);
                                        })));
  verificheIdrauliche read = through_memory(checks);
  EXPECT_EQ(stored(read), stored(checks));
  EXPECT_EQ(read.getIOClass(), "verificheIdrauliche");
  read.reset();
  EXPECT_EQ(stored(read), stored(verificheIdrauliche{}));
}

TEST(HydraulicChecks, SurviveDamagedStreams) {
  expect_cuts_refused(filled_checks());
  EXPECT_GT(refused_mutations(filled_checks(), 500), 50);
}

}  // namespace
