// SPDX-License-Identifier: Apache-2.0
#include "ostrel/structural_anchor_check.h"

#include "ostrel/results.h"
#include "ostrel/sheetpiling_data.h"
#include "ostrel/tolerances.h"
#include "support/hostile_stream.h"
#include "support/stream_round_trip.h"
#include "support/tolerances_guard.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

using ostrel::ok;
using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::read_stored;
using ostrel::testing::stored;
using ostrel::testing::through_memory;
using ostrel::testing::TolerancesGuard;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

// 100 pi mm² of 1150 N/mm², by 1.15.
constexpr double strength = 100e3 * std::numbers::pi;

xAnchor anchor(std::int64_t id = 101) {
  xAnchor tendon;
  tendon.setIdObj(id);
  tendon.z = 1500.0;
  tendon.setcableDiam(20.0);
  tendon.settings.setFyk(1150.0);
  tendon.settings.setGammaS(1.15);
  return tendon;
}

info_Fem_anchor link_to(int node) {
  info_Fem_anchor link;
  link.node = node;
  link.kCC = 1000.0;  // level: 1000 N for each millimetre
  return link;
}

xLoadComb combination(bool wanted) {
  xLoadComb comb;
  comb.checks[checkAnchorStructure] = wanted;
  return comb;
}

// One node that goes `across` towards the excavation [mm].
xCombResults moved(int index, double across) {
  xCombResults results;
  results.setcombIndex(index);
  results.setCombName("C" + std::to_string(index));
  results.femResults.dispAxial.points = {{0.0, 0.0}};
  results.femResults.dispTrans.points = {{0.0, -across}};
  return results;
}

xStrAnchorCombRes record(double factor) {
  xStrAnchorCombRes outcome;
  outcome.setCheckID(101, 3, "A1");
  outcome.depth = 1500.0;
  outcome.setSf(factor);
  return outcome;
}

xStrAnchorResults group(const std::vector<double>& factors) {
  xStrAnchorResults outcome;
  for (const double factor : factors) {
    outcome.combinations.push_back(record(factor));
  }
  return outcome;
}

TEST(TendonStrength, IsThatOfTheDesignYieldStrength) {
  double resistance = 0.0;
  EXPECT_EQ(xStrAnchorCombRes::getStructaralResistance(anchor(), resistance), ok);
  EXPECT_NEAR(resistance, strength, 1e-9 * strength);
}

TEST(TendonStrength, IsThatOfOneTendonHoweverManyThereAre) {
  xAnchor many = anchor();
  many.setNumber(12);
  double resistance = 0.0;
  EXPECT_EQ(xStrAnchorCombRes::getStructaralResistance(many, resistance), ok);
  EXPECT_NEAR(resistance, strength, 1e-9 * strength);
}

TEST(TendonStrength, IsRefusedWithoutAPartialFactor) {
  xAnchor bare = anchor();
  for (const double factor : {0.0, 0.9e-6, -0.9e-6, nan}) {
    bare.settings.setGammaS(factor);
    double resistance = 7.0;
    EXPECT_EQ(xStrAnchorCombRes::getStructaralResistance(bare, resistance), errSteelFactorZero);
    EXPECT_EQ(resistance, 0.0);
  }
  bare.settings.setGammaS(-1.15);
  double resistance = 0.0;
  EXPECT_EQ(xStrAnchorCombRes::getStructaralResistance(bare, resistance), ok);
  EXPECT_NEAR(resistance, -strength, 1e-9 * strength);
}

TEST(TendonStrength, IsRefusedWithoutASection) {
  xAnchor bare = anchor();
  for (const double diameter : {0.0, 1e-4, nan}) {  // 1e-4: 7.9e-9 mm²
    bare.setcableDiam(diameter);
    double resistance = 7.0;
    EXPECT_EQ(xStrAnchorCombRes::getStructaralResistance(bare, resistance), errAnchorSectionZero);
    EXPECT_EQ(resistance, 0.0);
  }
  bare.settings.setGammaS(0.0);  // the factor is asked for first
  double resistance = 7.0;
  EXPECT_EQ(xStrAnchorCombRes::getStructaralResistance(bare, resistance), errSteelFactorZero);
}

TEST(TendonStrength, AsksTheSecondAndTheFourthTolerance) {
  const TolerancesGuard guard;
  xTolerances tolerances;
  double resistance = 0.0;
  tolerances.values[1] = 1.15;
  tolerances.values[3] = 314.0;
  setTolerances(tolerances);
  EXPECT_EQ(xStrAnchorCombRes::getStructaralResistance(anchor(), resistance), ok);
  tolerances.values[3] = 315.0;
  setTolerances(tolerances);
  EXPECT_EQ(xStrAnchorCombRes::getStructaralResistance(anchor(), resistance), errAnchorSectionZero);
  tolerances.values[1] = 1.16;
  setTolerances(tolerances);
  EXPECT_EQ(xStrAnchorCombRes::getStructaralResistance(anchor(), resistance), errSteelFactorZero);
}

TEST(StrAnchorCombRes, GivesTheSameFactorForTensionAndCompression) {
  for (const double force : {strength / 2.0, -strength / 2.0}) {
    xStrAnchorCombRes outcome;
    EXPECT_EQ(outcome.check(force, anchor()), ok);
    EXPECT_NEAR(outcome.getSf(), 2.0, 1e-9);
    EXPECT_EQ(outcome.getFd(), force);
    EXPECT_NEAR(outcome.getRd(), strength, 1e-9 * strength);
    EXPECT_EQ(outcome.depth, 1500.0);
  }
}

TEST(StrAnchorCombRes, IsUnlimitedWithoutAForce) {
  xStrAnchorCombRes outcome;
  EXPECT_EQ(outcome.check(0.0, anchor()), ok);
  EXPECT_EQ(outcome.getSf(), 1e10);
}

TEST(StrAnchorCombRes, StoresWhatItReckonedAlsoWhereItIsRefused) {
  xAnchor bare = anchor();
  bare.settings.setGammaS(0.0);
  xStrAnchorCombRes outcome;
  EXPECT_EQ(outcome.check(5.0, bare), errSteelFactorZero);
  EXPECT_TRUE(std::isinf(outcome.getRd()));
  EXPECT_EQ(outcome.getFd(), 5.0);
  EXPECT_EQ(outcome.getSf(), 1e10);
  EXPECT_EQ(outcome.depth, 1500.0);

  bare = anchor();
  bare.setcableDiam(0.0);
  EXPECT_EQ(outcome.check(5.0, bare), errAnchorSectionZero);
  EXPECT_EQ(outcome.getRd(), 0.0);
  EXPECT_EQ(outcome.getSf(), 0.0);
}

TEST(StrAnchorCombRes, TellsOfAFailureInItsOwnStrength) {
  const auto failure = record(0.75).getCheckInfo();
  EXPECT_TRUE(failure->isResistance);
  EXPECT_EQ(failure->sf, 0.75);
  EXPECT_EQ(failure->depth, 1500.0);
  EXPECT_EQ(failure->idObj, 101);
}

TEST(StrAnchorResults, ListTheSuccessiveMinima) {
  xStrAnchorResults outcome = group({0.9, 0.95, 0.8, 0.8, 3.0});
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  EXPECT_EQ(outcome.getSfMin(&failures), 0.8);
  EXPECT_EQ(outcome.getSf(), 0.8);
  EXPECT_EQ(outcome.getIndex(), 2.0);
  ASSERT_EQ(failures.size(), 2U);
  EXPECT_EQ(failures[0]->sf, 0.9);
  EXPECT_EQ(failures[1]->sf, 0.8);
  EXPECT_TRUE(dynamic_cast<const anchorCheckInfo&>(*failures[1]).isResistance);
}

TEST(StrAnchorResults, DoNotFailAtOne) {
  xStrAnchorResults outcome = group({1.0});
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  EXPECT_EQ(outcome.getSfMin(&failures), 1.0);
  EXPECT_TRUE(failures.empty());
  outcome.combinations.clear();
  outcome.computeSfMin();
  EXPECT_EQ(outcome.getSf(), 1e10);
}

TEST(StructuralAnchorDesign, GivesATieToTheLaterAnchor) {
  xStructuralAnchorDesign design;
  EXPECT_EQ(design.getSfMin(nullptr), 1e10);
  design.anchors = {group({0.5}), group({2.0, 0.5}), group({0.75})};
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  EXPECT_EQ(design.getSfMin(&failures), 0.5);
  EXPECT_EQ(design.getIndex(), 1.0);
  EXPECT_EQ(failures.size(), 3U);
  design.reset();
  EXPECT_TRUE(design.anchors.empty());
  EXPECT_EQ(design.getSf(), 1e10);
}

// 2 and 5 mm at 1000 N/mm, and 500 N of prestress.
TEST(StructuralAnchorDesign, VerifiesEachAnchorInEachCombinationThatAsksForIt) {
  xSheetpilingData data;
  data.loadCombs = {combination(true), combination(false), combination(true)};
  data.anchors = {anchor(101), anchor(102)};
  data.anchors[1].setPreStress(500.0);
  const std::vector<xCombResults> results{moved(7, 2.0), moved(8, 100.0), moved(9, 5.0)};
  xStructuralAnchorDesign design;
  EXPECT_EQ(design.check(data, {link_to(0), link_to(0)}, results), ok);
  ASSERT_EQ(design.anchors.size(), 2U);
  const auto& first = design.anchors[0].combinations;
  const auto& second = design.anchors[1].combinations;
  ASSERT_EQ(first.size(), 2U);
  ASSERT_EQ(second.size(), 2U);
  EXPECT_EQ(first[0].getIdObj(), 101);
  EXPECT_EQ(first[0].getCombName(), "C7");
  EXPECT_EQ(first[0].getCombIndex(), 7);
  EXPECT_EQ(first[0].depth, 1500.0);
  EXPECT_DOUBLE_EQ(first[0].getFd(), 2000.0);
  EXPECT_EQ(first[1].getCombName(), "C9");
  EXPECT_DOUBLE_EQ(first[1].getFd(), 5000.0);
  EXPECT_EQ(second[0].getIdObj(), 102);
  EXPECT_DOUBLE_EQ(second[0].getFd(), 2500.0);
  EXPECT_DOUBLE_EQ(second[1].getFd(), 5500.0);
  EXPECT_NEAR(second[1].getSf(), strength / 5500.0, 1e-9);
  EXPECT_DOUBLE_EQ(design.anchors[1].getSf(), second[1].getSf());  // each anchor has its minimum
  EXPECT_EQ(design.anchors[1].getIndex(), 1.0);
  EXPECT_NEAR(design.getSfMin(nullptr), strength / 5500.0, 1e-9);
}

TEST(StructuralAnchorDesign, AppendsToWhatStands) {
  xSheetpilingData data;
  data.loadCombs = {combination(true)};
  data.anchors = {anchor()};
  xStructuralAnchorDesign design;
  EXPECT_EQ(design.check(data, {link_to(0)}, {moved(0, 1.0)}), ok);
  EXPECT_EQ(design.check(data, {link_to(0)}, {moved(0, 1.0)}), ok);
  EXPECT_EQ(design.anchors.size(), 2U);
}

TEST(StructuralAnchorDesign, LeavesOutAnAnchorThatNoCombinationAsksFor) {
  xSheetpilingData data;
  data.loadCombs = {combination(false), xLoadComb{}};
  data.loadCombs[1].checks.clear();
  data.anchors = {anchor()};
  xStructuralAnchorDesign design;
  EXPECT_EQ(design.check(data, {link_to(-1)}, {moved(0, 1.0), moved(1, 1.0)}), ok);
  EXPECT_TRUE(design.anchors.empty());
  EXPECT_EQ(design.getSfMin(nullptr), 1e10);
}

TEST(StructuralAnchorDesign, ComparesLinksWithAnchorsAndNotResultsWithCombinations) {
  xSheetpilingData data;
  xStructuralAnchorDesign design;
  EXPECT_EQ(design.check(data, {}, {moved(0, 1.0)}), ok);
  EXPECT_EQ(design.check(data, {link_to(0)}, {}), errAnchorNodeCount);
  data.anchors = {anchor()};
  EXPECT_EQ(design.check(data, {}, {}), errAnchorNodeCount);
  data.loadCombs = {combination(true), combination(true)};
  EXPECT_EQ(design.check(data, {link_to(0)}, {moved(0, 1.0)}), ok);
  EXPECT_EQ(design.anchors.at(0).combinations.size(), 1U);
}

TEST(StructuralAnchorDesign, LeavesOutResultsWithoutACombination) {
  xSheetpilingData data;
  data.loadCombs = {combination(true)};
  data.anchors = {anchor()};
  xStructuralAnchorDesign design;
  EXPECT_EQ(design.check(data, {link_to(0)}, {moved(0, 1.0), moved(1, 2.0)}), ok);
  EXPECT_EQ(design.anchors.at(0).combinations.size(), 1U);
}

TEST(StructuralAnchorDesign, EndsAtACodeAndKeepsTheAnchorsBefore) {
  xSheetpilingData data;
  data.loadCombs = {combination(true), combination(true)};
  data.anchors = {anchor(101), anchor(102)};
  const std::vector<xCombResults> results{moved(0, 1.0), moved(1, 1.0)};
  xStructuralAnchorDesign design;
  EXPECT_EQ(design.check(data, {link_to(0), link_to(5)}, results), errFemNodeNotFound);
  EXPECT_EQ(design.anchors.size(), 1U);

  design.reset();
  data.anchors[1].settings.setGammaS(0.0);
  EXPECT_EQ(design.check(data, {link_to(0), link_to(0)}, results), errSteelFactorZero);
  EXPECT_EQ(design.anchors.size(), 1U);

  design.reset();
  data.anchors[1] = anchor(102);
  data.anchors[1].setcableDiam(0.0);
  EXPECT_EQ(design.check(data, {link_to(0), link_to(0)}, results), errAnchorSectionZero);
  ASSERT_EQ(design.anchors.size(), 1U);
  EXPECT_EQ(design.anchors[0].combinations.at(0).getIdObj(), 101);
}

// The second anchor's node moves in the first combination and is missing in the second.
TEST(StructuralAnchorDesign, DropsAnAnchorThatEndsInItsSecondCombination) {
  xSheetpilingData data;
  data.loadCombs = {combination(true), combination(true)};
  data.anchors = {anchor(101), anchor(102)};
  std::vector<xCombResults> results{moved(0, 1.0), moved(1, 1.0)};
  results[0].femResults.dispAxial.points.emplace_back(1000.0, 0.0);
  results[0].femResults.dispTrans.points.emplace_back(1000.0, -3.0);
  xStructuralAnchorDesign design;
  EXPECT_EQ(design.check(data, {link_to(0), link_to(1)}, {results[0]}), ok);
  EXPECT_EQ(design.anchors.size(), 2U);  // in the first combination alone both are verified

  design.reset();
  EXPECT_EQ(design.check(data, {link_to(0), link_to(1)}, results), errFemNodeNotFound);
  ASSERT_EQ(design.anchors.size(), 1U);
  ASSERT_EQ(design.anchors[0].combinations.size(), 2U);
  EXPECT_EQ(design.anchors[0].combinations[0].getIdObj(), 101);
}

TEST(StrAnchorCombRes, IsStoredAsItsBaseInAFrame) {
  const xStrAnchorCombRes outcome = record(0.75);
  EXPECT_EQ(outcome.getIOClass(), "xStrAnchorCombRes");
  EXPECT_EQ(stored(outcome), frame_bytes(2, bytes_of([](outstream& out) {
                                           xAnchorResults base;
                                           base.setCheckID(101, 3, "A1");
                                           base.depth = 1500.0;
                                           base.setSf(0.75);
                                           base.pub_write(out);
                                         })));
  EXPECT_EQ(stored(through_memory(outcome)), stored(outcome));
  xStrAnchorCombRes emptied = outcome;
  emptied.reset();
  EXPECT_EQ(stored(emptied), stored(xStrAnchorCombRes{}));
}

TEST(StrAnchorCombRes, RefusesItsFirstVersion) {
  xStrAnchorCombRes outcome;
  try {
    read_stored(outcome, frame_bytes(1, stored(xAnchorResults{})));
    FAIL() << "version 1 was read";
  } catch (int refused) {
    EXPECT_EQ(refused, 1);
  }
}

TEST(StrAnchorResults, AreStoredAfterTheirBase) {
  xStrAnchorResults outcome = group({2.0, 0.5});
  outcome.computeSfMin();
  EXPECT_EQ(outcome.getIOClass(), "xStrAnchorResults");
  EXPECT_EQ(stored(outcome), frame_bytes(1, bytes_of([](outstream& out) {
                                           xBaseResults base;
                                           base.setSf(0.5);
                                           base.setIndex(1);
                                           base.pub_write(out);
                                           out << 2;
                                           record(2.0).pub_write(out);
                                           record(0.5).pub_write(out);
                                         })));
  EXPECT_EQ(stored(through_memory(outcome)), stored(outcome));
  outcome.reset();
  EXPECT_EQ(stored(outcome), stored(xStrAnchorResults{}));
}

TEST(StructuralAnchorDesign, IsStoredAfterItsBase) {
  xStructuralAnchorDesign design;
  design.anchors = {group({0.5})};
  design.getSfMin(nullptr);
  EXPECT_EQ(design.getIOClass(), "xStructuralAnchorDesign");
  EXPECT_EQ(stored(design), frame_bytes(1, bytes_of([&design](outstream& out) {
                                          xBaseResults base;
                                          base.setSf(0.5);
                                          base.pub_write(out);
                                          out << 1;
                                          design.anchors[0].pub_write(out);
                                        })));
  EXPECT_EQ(stored(through_memory(design)), stored(design));
}

TEST(StructuralAnchorDesign, RefusesDamagedStreams) {
  xStructuralAnchorDesign design;
  design.anchors = {group({0.5, 0.75}), group({})};
  ostrel::testing::expect_cuts_refused(design);
  EXPECT_GT(ostrel::testing::refused_mutations(design, 300), 0);
}

}  // namespace
