// SPDX-License-Identifier: Apache-2.0
#include "ostrel/cap_beam.h"

#include "ostrel/concrete_section.h"
#include "ostrel/language.h"
#include "ostrel/results.h"
#include "ostrel/structural_anchor_check.h"
#include "ostrel/tolerances.h"
#include "support/concrete_walls.h"
#include "support/hostile_stream.h"
#include "support/relative.h"
#include "support/stream_round_trip.h"
#include "support/tolerances_guard.h"
#include "support/wall_builder.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

namespace {

using ostrel::testing::anchor_at;
using ostrel::testing::bytes_of;
using ostrel::testing::common_settings;
using ostrel::testing::expect_cuts_refused;
using ostrel::testing::expect_relative;
using ostrel::testing::frame_bytes;
using ostrel::testing::read_stored;
using ostrel::testing::refused_mutations;
using ostrel::testing::stored;
using ostrel::testing::through_memory;
using ostrel::testing::TolerancesGuard;
using ostrel::testing::unfactored;
using ostrel::testing::WallBuilder;

// 20 mm bars, cover 50 mm, one bar a step, 0.4 % to 4 % for both sides together; stirrups of 10 mm
// from 300 mm down to 100 mm by 50 mm.
void fill(xReinforcement_SettingsTrave& settings) {
  settings.Cover = 50.0;
  settings.Step = 1;
  settings.BarDiam = 20;
  settings.minRatio = 0.4;
  settings.maxRatio = 4.0;
  settings.bracket.bar.setDiameter(10.0);
  settings.bracket.setMinStep(100.0);
  settings.bracket.setMaxStep(300.0);
  settings.bracket.setStepIncr(50.0);
}

xLoadComb combination(const std::string& name, bool wanted) {
  xLoadComb comb = unfactored(name);
  comb.checks[checkCapBeamStructure] = wanted;
  return comb;
}

// A beam of 800 x 1000 mm (height x width) on a wall with 1000 mm between piles and 10 m of
// extension, 6 m of excavation; two anchors at 400 mm (101) and two at 3000 mm (102).
class CapBeam : public ::testing::Test {
protected:
  CapBeam() {
    data = WallBuilder{}.anchor(anchor_at(400.0)).anchor(anchor_at(3000.0)).build();
    auto settings = common_settings<xCircularReinfSettings>(20.0, 60.0);
    fill(settings->trave);
    wall().checkSettings.reinforcementSettings = settings.get();
    combs = {combination("unused", true)};
    results = {loaded("SLU", 3, 0.0)};
  }
  void SetUp() override { ASSERT_TRUE(ostrel::set_language("it")); }
  void TearDown() override { ostrel::set_language(""); }

  // A force at the head across the wall [N], all of which the head bears.
  static xCombResults loaded(const std::string& name, int index, double at_head) {
    xCombResults result;
    result.setCombName(name);
    result.setcombIndex(index);
    result.femResults.appliedForces.emplace_back().data = xFemNodeData(5.0, at_head, 6.0);
    return result;
  }

  void anchor_force(std::int64_t id, int index, double depth, double force) {
    xStrAnchorCombRes& result = anchors.anchors.emplace_back().combinations.emplace_back();
    result.setCheckID(id, index, "SLU");
    result.depth = depth;
    result.setFd(force);
  }

  OstrelErrorType design() { return designTrave(results, combs, anchors, data, beam); }
  // Five bars of 20 mm on the valley side, 950 mm below the other face, and no others. By hand:
  // T = 5 * 314.159 * 391.304 = 614 661 N, fcd = 0.83 * 30 * 0.85 / 1.5 = 14.11, x = T / (17 / 21 *
  // 800 * 14.11) = 67.3 mm, M = T (950 - 99 / 238 x); the bars stretch by 0.046.
  double check_valley_bars_alone() {
    beam.checked = new xReinfRectSection;
    beam.checked->vertexBars = false;
    beam.checked->AValleEff().setNumber(5);
    beam.checked->AValleEff().setDiameter(20.0);
    const double pull = 500.0 * std::numbers::pi * 450.0 / 1.15;
    return pull * (950.0 - 99.0 / 238.0 * pull / (17.0 / 21.0 * 800.0 * 14.11));
  }

  xPile_Sheetpiling& wall() { return dynamic_cast<xPile_Sheetpiling&>(*data.props); }
  const xSectionCheck& section(std::size_t comb) const {
    return beam.bendShear.combinations.at(comb).sections.at(0);
  }

  xSheetpilingData data;
  std::vector<xLoadComb> combs;
  std::vector<xCombResults> results;
  xStructuralAnchorDesign anchors;
  TraveResults beam;
};

// 300 kN every 10 000 / 2 mm are 60 N/mm; 60 * 2000² / 8 = 30e6, 60 * 1000 = 60 000.
TEST_F(CapBeam, CarriesTheAnchorsThatBearOnIt) {
  anchor_force(101, 3, 400.0, 300e3);
  results = {loaded("SLU", 3, 1e6)};
  ASSERT_EQ(design(), ostrel::ok);
  EXPECT_TRUE(beam.done);
  EXPECT_DOUBLE_EQ(beam.B, 1000.0);
  EXPECT_DOUBLE_EQ(beam.H, 800.0);
  EXPECT_EQ(stored(beam.settings), stored(wall().checkSettings.reinforcementSettings->trave));
  EXPECT_EQ(stored(beam.material), stored(wall().checkSettings.reinforcementSettings->material));
  ASSERT_EQ(beam.bendShear.combinations.size(), 1U);
  const xBendShearCombResults& combination = beam.bendShear.combinations[0];
  EXPECT_EQ(combination.getCombName(), "SLU");
  EXPECT_EQ(combination.getCombIndex(), 3);
  EXPECT_EQ(combination.getIdObj(), 7);
  ASSERT_EQ(combination.sections.size(), 1U);
  EXPECT_DOUBLE_EQ(section(0).flex.Nd, 0.0);
  expect_relative(section(0).flex.Md, 30e6);
  expect_relative(section(0).shear.getVd(), 60e3);
  EXPECT_DOUBLE_EQ(section(0).abscissa, 1000.0);
}

// (300 + 100) kN / 5000 mm = 80 N/mm: 80 * 2000² / 8 = 40e6. The other combination has its own
// force of 50 kN: 10 N/mm, 5e6.
TEST_F(CapBeam, AddsUpTheAnchorsOfEachCombination) {
  data.anchors[1].z = 800.0;
  anchor_force(101, 3, 400.0, 300e3);
  anchor_force(102, 3, 800.0, 100e3);
  anchor_force(101, 4, 400.0, 50e3);
  combs.push_back(combination("unused", true));
  results.push_back(loaded("SLE", 4, 0.0));
  ASSERT_EQ(design(), ostrel::ok);
  expect_relative(section(0).flex.Md, 40e6);
  expect_relative(section(1).flex.Md, 5e6);
  EXPECT_EQ(beam.bendShear.combinations[1].getCombName(), "SLE");
}

TEST_F(CapBeam, BearsAnchorsFromItsTopToItsBottom) {
  for (const double depth : {0.0, 800.0}) {
    anchors.reset();
    anchor_force(101, 3, depth, 300e3);
    ASSERT_EQ(design(), ostrel::ok);
    expect_relative(section(0).flex.Md, 30e6);
  }
}

// 120 kN at the head, all of it a reaction: 120 000 * 2000 / 4 = 60e6, 60 000.
TEST_F(CapBeam, WithoutAnAnchorOnItBearsTheHeadOfTheWall) {
  anchor_force(101, 3, 800.001, 300e3);
  anchor_force(101, 3, -0.001, 300e3);
  anchor_force(101, 3, std::nan(""), 300e3);
  anchor_force(101, 4, 400.0, 300e3);  // of another combination
  results = {loaded("SLU", 3, 120e3)};
  ASSERT_EQ(design(), ostrel::ok);
  expect_relative(section(0).flex.Md, 60e6);
  expect_relative(section(0).shear.getVd(), 60e3);
}

// A force of 120 kN at 200 mm. Excavation 6000: 120 (6000 - 200) / 6000 = 116 kN, 58e6. Excavation
// 500, the height governs: 120 (800 - 200) / 800 = 90 kN, 45e6.
TEST_F(CapBeam, RestsTheWallOnTheExcavationOrOnItsOwnBottom) {
  results = {loaded("SLU", 3, 120e3)};
  results[0].femResults.appliedForces[0].pos = 200.0;
  ASSERT_EQ(design(), ostrel::ok);
  expect_relative(section(0).flex.Md, 58e6);
  wall().setDepth(500.0);
  ASSERT_EQ(design(), ostrel::ok);
  expect_relative(section(0).flex.Md, 45e6);
}

// 0.2 % of 800 000 mm² are 1600 mm² a side; the two corners give 2 * 314.159 = 628.3, and 971.7
// more take 3.09 bars: 4.
TEST_F(CapBeam, HasItsLeastBarsAndStirrupsUnderALightLoad) {
  ASSERT_EQ(design(), ostrel::ok);
  ASSERT_TRUE(beam.designed.valid());
  EXPECT_TRUE(beam.designed->vertexBars);
  EXPECT_EQ(beam.designed->AVerticeEff().getNumber(), 4U);
  EXPECT_EQ(beam.designed->AValleEff().getNumber(), 4U);
  EXPECT_EQ(beam.designed->AMonteEff().getNumber(), 4U);
  EXPECT_DOUBLE_EQ(beam.designed->AValleEff().getDiameter(), 20.0);
  EXPECT_DOUBLE_EQ(beam.designed->getBracket().getDiameter(), 10.0);
  EXPECT_DOUBLE_EQ(beam.designed->getBracket().getStep(), 300.0);
  EXPECT_DOUBLE_EQ(beam.designed->getAbscissa(), 1000.0);
}

// Its depth in bending is the width B: lever arm 0.9 (1000 - 50) = 855, two arms of 25 pi mm² every
// 300 mm, 450 / 1.15 N/mm², cotangent 2.5.
TEST_F(CapBeam, BendsInTheHorizontalPlane) {
  results = {loaded("SLU", 3, 120e3)};
  ASSERT_EQ(design(), ostrel::ok);
  expect_relative(section(0).shear.getVRd(),
                  50.0 * std::numbers::pi / 300.0 * 855.0 * 450.0 / 1.15 * 2.5);
  auto settings = common_settings<xRectReinfSettings>(20.0, 50.0);
  const osg::ref_ptr<rect_ConcreteSection> upright =
      new rect_ConcreteSection(800.0, 1000.0, settings.get());
  upright->build();
  ASSERT_TRUE(upright->setReinforcement(beam.checked.get()));
  EXPECT_DOUBLE_EQ(section(0).flex.Mrd, upright->getAbsMresist(0.0, true));
  // Six bars of 314.159 mm² at 950 mm, at most 1 and at least 0.9 of it as the lever arm.
  const double pull = 6.0 * 100.0 * std::numbers::pi * 450.0 / 1.15;
  EXPECT_LT(section(0).flex.Mrd, pull * 950.0);
  EXPECT_GT(section(0).flex.Mrd, pull * 0.9 * 950.0);
}

// 2 MN: 1000 kNm and 1000 kN. Stirrups every 150 mm carry 157.08 / 150 * 855 * 391.3 * 2.5 = 876 kN;
// every 100 mm the cotangent is 2.48 and they carry 1.30 MN.
TEST_F(CapBeam, GrowsForTheWorstCombination) {
  combs.assign(3, combination("unused", true));
  results = {loaded("A", 1, 100e3), loaded("B", 2, 2e6), loaded("C", 3, 100e3)};
  ASSERT_EQ(design(), ostrel::ok);
  EXPECT_GT(beam.designed->AValleEff().getNumber(), 4U);
  EXPECT_EQ(beam.designed->AValleEff().getNumber(), beam.designed->AMonteEff().getNumber());
  EXPECT_DOUBLE_EQ(beam.designed->getBracket().getStep(), 100.0);
  expect_relative(section(1).flex.Md, 1e9);
  EXPECT_GE(section(1).flex.Mrd, 1e9);
  EXPECT_GE(beam.getSfMin(nullptr), 1.0);
  EXPECT_DOUBLE_EQ(beam.bendShear.getIndex(), 1.0);
}

// 4 % of 800 000 mm² in two rows of 16 000 mm², 51 bars each at most: 16 000 mm² at some 900 mm and
// 391 N/mm² are 5.6e9 N mm; 40 MN bring 20e9.
TEST_F(CapBeam, ThatCannotCarryItsLoadStopsAtTheMostBarsAndTellsSo) {
  results = {loaded("SLU", 3, 40e6)};
  ASSERT_EQ(design(), ostrel::ok);
  EXPECT_TRUE(beam.done);
  EXPECT_EQ(beam.designed->AValleEff().getNumber(), 49U);  // and two corners: 51 * 314.159 > 16 000
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  const double factor = beam.getSfMin(&failures);
  EXPECT_LT(factor, 1.0);
  ASSERT_EQ(failures.size(), 1U);
  const auto* failure = dynamic_cast<const concreteTraveCheckInfo*>(failures[0].get());
  ASSERT_NE(failure, nullptr);
  EXPECT_DOUBLE_EQ(failure->sf, factor);
  EXPECT_EQ(failure->idObj, 7);
  EXPECT_EQ(failure->combIndex, 3);
  EXPECT_EQ(failure->combName, "SLU");
  EXPECT_DOUBLE_EQ(failure->abscissa, 1000.0);
}

TEST_F(CapBeam, IsVerifiedAgainAfterAChangeOfWhatIsChecked) {
  results = {loaded("SLU", 3, 120e3)};
  ASSERT_EQ(design(), ostrel::ok);
  ASSERT_NE(beam.designed.get(), beam.checked.get());
  const double before = section(0).flex.Mrd;
  beam.checked->AValleEff().setNumber(0);
  beam.check();
  EXPECT_LT(section(0).flex.Mrd, 0.5 * before);  // 2 bars for 6
  EXPECT_EQ(beam.designed->AValleEff().getNumber(), 4U);
  EXPECT_DOUBLE_EQ(beam.bendShear.getSf(), section(0).getSf());
  beam.checked->AValleEff().setNumber(2001);  // more than any section takes
  beam.check();
  EXPECT_DOUBLE_EQ(beam.getSfMin(nullptr), 0.0);
  beam.checked = nullptr;
  beam.check();
  EXPECT_DOUBLE_EQ(section(0).flex.Mrd, 0.0);
  EXPECT_DOUBLE_EQ(section(0).shear.getVRd(), 0.0);
  EXPECT_DOUBLE_EQ(beam.getSfMin(nullptr), 0.0);
}

// A strut pushes: - 60 N/mm, resisted by the other side.
TEST_F(CapBeam, ResistsAStrutOnItsOtherSide) {
  anchor_force(101, 3, 400.0, -300e3);
  ASSERT_EQ(design(), ostrel::ok);
  expect_relative(section(0).flex.Md, -30e6);
  beam.checked->AMonteEff().setNumber(8);
  const double valley_side = section(0).flex.Mrd;
  beam.check();
  EXPECT_GT(section(0).flex.Mrd, 1.5 * valley_side);  // 10 bars for 6
}

TEST_F(CapBeam, WithoutAMomentResistsOnItsValleySide) {
  ASSERT_EQ(design(), ostrel::ok);
  ASSERT_DOUBLE_EQ(section(0).flex.Md, 0.0);
  const double moment = check_valley_bars_alone();
  beam.check();
  EXPECT_NEAR(section(0).flex.Mrd, moment, 1e-9 * moment);
}

TEST_F(CapBeam, IsVerifiedBeyondACombinationWithoutSections) {
  results = {loaded("SLU", 3, 120e3)};
  ASSERT_EQ(design(), ostrel::ok);
  beam.bendShear.combinations.insert(beam.bendShear.combinations.begin(), xBendShearCombResults{});
  const double moment = check_valley_bars_alone();
  beam.check();
  EXPECT_TRUE(beam.bendShear.combinations[0].sections.empty());
  EXPECT_NEAR(section(1).flex.Mrd, moment, 1e-9 * moment);
}

TEST_F(CapBeam, WithoutACombinationThatAsksIsDesignedAndNotVerified) {
  combs = {combination("unused", false)};
  results = {loaded("SLU", 3, 3e6)};
  ASSERT_EQ(design(), ostrel::ok);
  EXPECT_FALSE(beam.done);
  EXPECT_TRUE(beam.bendShear.combinations.empty());
  ASSERT_TRUE(beam.designed.valid());
  ASSERT_TRUE(beam.checked.valid());
  EXPECT_EQ(beam.designed->AValleEff().getNumber(), 4U);
  EXPECT_DOUBLE_EQ(beam.getSfMin(nullptr), 1e10);
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  EXPECT_DOUBLE_EQ(beam.getSfMin(&failures), 1e10);
  EXPECT_TRUE(failures.empty());
}

TEST_F(CapBeam, IsNoneWhereHeightAndExcavationAreNothing) {
  ASSERT_EQ(design(), ostrel::ok);
  wall().setHtrave(0.0);
  wall().setDepth(9e-7);  // below the tolerance of 1e-6
  ASSERT_EQ(design(), ostrel::ok);
  EXPECT_EQ(stored(beam), stored(TraveResults{}));
  EXPECT_FALSE(beam.done);
  EXPECT_DOUBLE_EQ(beam.getSfMin(nullptr), 1e10);
  const TolerancesGuard guard;
  xTolerances tolerances;
  tolerances.values[xTolerances::position_identity] = 9e-7;
  setTolerances(tolerances);
  ASSERT_EQ(design(), ostrel::ok);  // exactly the tolerance is a level
  EXPECT_TRUE(beam.done);
}

TEST_F(CapBeam, WithoutAHeightIsStillVerifiedAboveAnExcavation) {
  wall().setHtrave(0.0);
  results = {loaded("SLU", 3, 40e6)};
  ASSERT_EQ(design(), ostrel::ok);
  EXPECT_TRUE(beam.done);
  EXPECT_LT(beam.getSfMin(nullptr), 1.0);
}

TEST_F(CapBeam, NeedsAWallAndItsSettings) {
  ASSERT_EQ(design(), ostrel::ok);
  wall().checkSettings.reinforcementSettings = nullptr;
  EXPECT_EQ(design(), errInvalidSection);
  data.props = nullptr;
  EXPECT_EQ(design(), errNoWall);
  EXPECT_EQ(stored(beam), stored(TraveResults{}));
}

TEST_F(CapBeam, NeedsSizesThatAreNumbers) {
  wall().setBtrave(std::numeric_limits<double>::infinity());
  EXPECT_EQ(design(), errInvalidSection);
  wall().setBtrave(1000.0);
  wall().setHtrave(std::nan(""));
  EXPECT_EQ(design(), errInvalidSection);
}

TEST_F(CapBeam, NeedsACombinationForEachResult) {
  results.push_back(results[0]);
  EXPECT_EQ(design(), errResultCount);
}

TEST_F(CapBeam, NeedsTheAnchorThatLoadsItInTheInput) {
  anchor_force(101, 3, 400.0, 300e3);
  data.anchors.erase(data.anchors.begin());
  EXPECT_EQ(design(), errForceNotFound);
  EXPECT_FALSE(beam.done);
  EXPECT_FALSE(beam.designed.valid());
}

TEST_F(CapBeam, CannotSpreadTheForceOfNoAnchors) {
  anchor_force(101, 3, 400.0, 300e3);
  for (const int number : {0, -1}) {
    data.anchors[0].setNumber(number);
    EXPECT_EQ(design(), errForceNotFound);
  }
}

TEST_F(CapBeam, OfAWallWithoutExtensionFails) {
  anchor_force(101, 3, 400.0, 300e3);
  wall().setExtension(0.0);
  ASSERT_EQ(design(), ostrel::ok);  // an infinite load
  EXPECT_DOUBLE_EQ(beam.getSfMin(nullptr), 0.0);
}

TEST_F(CapBeam, WithAStepThatAddsNothingStops) {
  auto& settings = wall().checkSettings.reinforcementSettings->trave;
  results = {loaded("SLU", 3, 40e6)};
  for (const int step : {0, -5}) {
    settings.Step = step;
    ASSERT_EQ(design(), ostrel::ok);
    EXPECT_EQ(beam.designed->AValleEff().getNumber(), 4U);
  }
}

TEST_F(CapBeam, FailuresTellTheBeamWithoutItsSection) {
  concreteTraveCheckInfo failure;
  failure.combName = "SLU";
  failure.sf = 0.5;
  failure.abscissa = 1000.0;
  EXPECT_EQ(failure.getString(),
            "Verifica a pressoflessione della trave non soddisfatta: comb=SLU, sf0.5");
  failure.isShear = true;
  EXPECT_EQ(failure.getString(), "Verifica a taglio della trave non soddisfatta: comb=SLU, sf0.5");
  const osg::ref_ptr<xCheckInfo> copy = failure.clone();
  EXPECT_EQ(copy->getString(), failure.getString());
}

TEST_F(CapBeam, IsStoredUnderTheNameOfReinforcement) {
  anchor_force(101, 3, 400.0, 300e3);
  ASSERT_EQ(design(), ostrel::ok);
  beam.checked->AValleEff().setNumber(9);
  EXPECT_EQ(beam.getIOClass(), "xReinforcement");
  const std::string fields = bytes_of([this](outstream& out) {
    out << 1000.0 << 800.0 << true;
    beam.settings.pub_write(out);
    beam.material.pub_write(out);
    beam.bendShear.pub_write(out);
    for (const auto& record : {beam.designed, beam.checked}) {
      out << 0x01010101 << 2 << 1 << std::string("xReinfRectSection");
      record->pub_write(out);
      out << 0x02020202;
    }
  });
  EXPECT_EQ(stored(beam), frame_bytes(1, fields));
  TraveResults read = through_memory(beam);
  EXPECT_EQ(stored(read), stored(beam));
  EXPECT_EQ(read.checked->AValleEff().getNumber(), 9U);
  EXPECT_EQ(read.designed->AValleEff().getNumber(), 4U);
  read.check();
  EXPECT_GT(read.getSfMin(nullptr), 1.0);
  read_stored(read, frame_bytes(0, fields));  // no version is refused
  EXPECT_EQ(stored(read), stored(beam));
}

TEST(CapBeamStorage, HoldsNoReinforcementAsAnEmptyList) {
  TraveResults beam;
  beam.B = 5.0;
  const std::string none = frame_bytes(2, bytes_of([](outstream& out) { out << 0; }));
  EXPECT_EQ(stored(beam), frame_bytes(1, bytes_of([&beam](outstream& out) {
                                           out << 5.0 << 0.0 << false;
                                           beam.settings.pub_write(out);
                                           beam.material.pub_write(out);
                                           beam.bendShear.pub_write(out);
                                         }) + none
                                             + none));
  beam.designed = new xReinfRectSection;
  TraveResults read;
  read.designed = new xReinfRectSection;
  read.checked = new xReinfRectSection;
  read_stored(read, stored(beam));
  EXPECT_TRUE(read.designed.valid());
  EXPECT_FALSE(read.checked.valid());
  read.reset();
  EXPECT_EQ(stored(read), stored(TraveResults{}));
}

TEST(CapBeamStorage, TakesARecordOfAnotherShapeForNone) {
  const TraveResults beam;
  const std::string whole = stored(beam);
  const std::string none = frame_bytes(2, bytes_of([](outstream& out) { out << 0; }));
  xReinforcement ring;
  ring.sections.emplace_back(new xReinfCircSection);
  const std::size_t head = whole.size() - 2 * none.size() - sizeof(int);
  TraveResults read;
  read_stored(read, whole.substr(0, head) + stored(ring) + none + whole.substr(whole.size() - 4));
  EXPECT_FALSE(read.designed.valid());
}

TEST(CapBeamStorage, RefusesDamagedStreams) {
  TraveResults beam;
  beam.bendShear.combinations.emplace_back().sections.emplace_back();
  beam.designed = new xReinfRectSection;
  beam.checked = new xReinfRectSection;
  expect_cuts_refused(beam);
  EXPECT_GT(refused_mutations(beam, 300), 0);
}

}  // namespace
