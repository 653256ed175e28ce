// SPDX-License-Identifier: Apache-2.0
#include "ostrel/section_check.h"

#include "support/hostile_stream.h"
#include "support/random_bits.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <numbers>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::expect_cuts_refused;
using ostrel::testing::frame_bytes;
using ostrel::testing::RandomBits;
using ostrel::testing::read_stored;
using ostrel::testing::refused_mutations;
using ostrel::testing::stored;
using ostrel::testing::through_memory;
using std::numbers::pi;
using std::numbers::sqrt2;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

/// Concrete of the design strength `fcd` and steel of 400, both in N/mm² and without factors.
xMaterialProps material(double fcd) {
  xMaterialProps props;
  props.concrete.setRck(fcd / 0.83);
  props.concrete.setAlfaCC(1.0);
  props.concrete.setGammaC(1.0);
  props.steel.setFyk(400.0);
  props.steel.setGammaS(1.0);
  return props;
}

/// Four arms of 10 mm, 100 pi mm² together.
xBracket stirrups(double step) {
  xBracket stirrup;
  stirrup.setDiameter(10.0);
  stirrup.setNArms(4);
  stirrup.setStep(step);
  return stirrup;
}

// At a step of 100 pi there is 1 mm²/mm of stirrups, sn = sqrt(2 * 400 / (400 * 8)) = 0.5 and
// ct = sqrt(2); z = 900. Stirrups: 900 * 400 sqrt(2); struts: 900 * 400 * 0.5 * 8 sqrt(2) / 3.
TEST(Shear, MeetsTheHandCalculation) {
  xShear shear;
  shear.calcShearStrength(400.0, 1050.0, 50.0, material(8.0), stirrups(100.0 * pi));
  EXPECT_NEAR(shear.getVRds(), 360'000.0 * sqrt2, 1e-8);
  EXPECT_NEAR(shear.getVRdmax(), 480'000.0 * sqrt2, 1e-8);
  EXPECT_DOUBLE_EQ(shear.getVRd(), shear.getVRds());
  EXPECT_DOUBLE_EQ(shear.getVd(), 0.0);
}

// Twice 0.75² * 4 mm²/mm brings sn to 0.75 and ct to 1: stirrups 2.25 * 900 * 400 = 810 000, struts
// 900 * 400 * 0.5 * 8 / 2 = 720 000.
TEST(Shear, IsLimitedByTheStrutsUnderHeavyStirrups) {
  xShear shear;
  shear.calcShearStrength(400.0, 1050.0, 50.0, material(8.0), stirrups(100.0 * pi / 2.25));
  EXPECT_NEAR(shear.getVRds(), 810'000.0, 1e-8);
  EXPECT_NEAR(shear.getVRdmax(), 720'000.0, 1e-8);
  EXPECT_DOUBLE_EQ(shear.getVRd(), shear.getVRdmax());
}

TEST(Shear, WithoutAStepHasOnlyStruts) {
  xShear shear;
  shear.calcShearStrength(400.0, 1050.0, 50.0, material(8.0), stirrups(0.0));
  EXPECT_TRUE(std::isinf(shear.getVRds()));
  EXPECT_NEAR(shear.getVRd(), 720'000.0, 1e-8);
}

TEST(Shear, OfSteelWithoutPartialFactorIsNotFinite) {
  xMaterialProps props = material(8.0);
  props.steel.setGammaS(0.0);
  xShear shear;
  shear.calcShearStrength(400.0, 1050.0, 50.0, props, stirrups(200.0));
  EXPECT_TRUE(std::isinf(shear.getVRds()));
}

TEST(Shear, HasTheFactorOfItsStrength) {
  xShear shear;
  EXPECT_DOUBLE_EQ(shear.getSf(), 1e10);
  shear.setVRd(300.0);
  shear.setVd(-200.0);
  EXPECT_DOUBLE_EQ(shear.getSf(), 1.5);
}

TEST(Shear, ResetsToZero) {
  xRectShear shear;
  shear.abscissa = 1.0;
  shear.setVRds(2.0);
  shear.setVRdmax(3.0);
  shear.setVRd(4.0);
  shear.setVd(5.0);
  shear.reset();
  EXPECT_EQ(stored(shear), stored(xRectShear{}));
  EXPECT_DOUBLE_EQ(shear.getVRd(), 0.0);
}

TEST(Shear, ClonesWithItsClass) {
  xRectShear rectangular;
  rectangular.setVd(5.0);
  const std::unique_ptr<xShear> first(static_cast<const xShear&>(rectangular).clone());
  EXPECT_EQ(first->getIOClass(), "xRectShear");
  EXPECT_DOUBLE_EQ(first->getVd(), 5.0);
  const xCircShear circular;
  const std::unique_ptr<xShear> second(static_cast<const xShear&>(circular).clone());
  EXPECT_EQ(second->getIOClass(), "xCircShear");
  const std::unique_ptr<xShear> third(xShear{}.clone());
  EXPECT_EQ(third->getIOClass(), "xShear");
}

TEST(Shear, IsStoredInTheOrderOfItsFields) {
  const std::string fields =
      bytes_of([](outstream& out) { out << 1.0 << 2.0 << 3.0 << 4.0 << 5.0; });
  xShear shear;
  read_stored(shear, frame_bytes(1, fields));
  EXPECT_DOUBLE_EQ(shear.abscissa, 1.0);
  EXPECT_DOUBLE_EQ(shear.getVRds(), 2.0);
  EXPECT_DOUBLE_EQ(shear.getVRdmax(), 3.0);
  EXPECT_DOUBLE_EQ(shear.getVRd(), 4.0);
  EXPECT_DOUBLE_EQ(shear.getVd(), 5.0);
  EXPECT_EQ(stored(shear), frame_bytes(1, fields));
  EXPECT_EQ(shear.getIOClass(), "xShear");
}

TEST(Shear, OfAShapeIsStoredAsItsBase) {
  xRectShear rectangular;
  rectangular.setVRd(4.0);
  xCircShear circular;
  circular.setVRd(4.0);
  xShear base;
  base.setVRd(4.0);
  EXPECT_EQ(stored(rectangular), frame_bytes(1, stored(base)));
  EXPECT_EQ(stored(circular), frame_bytes(1, stored(base)));
}

TEST(RectShear, ChecksAgainstTheStrengthOfTheRectangle) {
  xRectShear shear;
  shear.check(-720'000.0, 400.0, 1050.0, 50.0, material(8.0), stirrups(100.0 * pi));
  EXPECT_DOUBLE_EQ(shear.getVd(), -720'000.0);
  EXPECT_NEAR(shear.getSf(), sqrt2 / 2.0, 1e-12);
}

// c = R: a rectangle of height 2 R = 2000 and width pi R / 4 = 250 pi, z = 0.9 * 1000 = 900. With
// 1 mm²/mm of stirrups and fcd = 3200 / 250 pi, sn² = 2 * 400 / 3200 = 0.25 and ct = sqrt(2):
// stirrups 900 * 400 sqrt(2), struts 900 * 3200 * 0.5 sqrt(2) / 3.
TEST(CircShear, TakesTheEquivalentRectangle) {
  const xMaterialProps props = material(3200.0 / (250.0 * pi));
  xCircShear shear;
  shear.check(100.0, 2000.0, 1000.0, props, stirrups(100.0 * pi));
  EXPECT_NEAR(shear.getVRds(), 360'000.0 * sqrt2, 1e-7);
  EXPECT_NEAR(shear.getVRdmax(), 480'000.0 * sqrt2, 1e-7);
  EXPECT_DOUBLE_EQ(shear.getVRd(), shear.getVRds());
  EXPECT_DOUBLE_EQ(shear.getVd(), 100.0);
}

void fill_stirrup_settings(xReinforcement_Settings& settings) {
  settings.setCover(50.0);
  settings.material = material(80.0);
  settings.bracket.bar.setDiameter(10.0);
  settings.bracket.setNArms(4);
  settings.bracket.setMaxStep(300.0);
  settings.bracket.setMinStep(100.0);
  settings.bracket.setStepIncr(50.0);
}

xRectReinfSettings rectangle_settings() {
  xRectReinfSettings settings;
  fill_stirrup_settings(settings);
  return settings;
}

xBracket designed(double V, const xRectReinfSettings& settings) {
  xRectShear shear;
  return shear.reinforcementDesign(400.0, 1050.0, V, &settings);
}

// sn² = 2 * 400 * (100 pi / step) / (400 * 80) stays below 0.08 down to 100 mm, so ct = 2.5 and the
// stirrups carry 100 pi / step * 900 * 400 * 2.5 = 9e7 pi / step: 942 kN at 300, 1131 kN at 250,
// 1414 kN at 200, 2827 kN at 100; the struts 900 * 400 * 0.5 * 80 * 2.5 / 7.25 = 4966 kN.
TEST(RectShear, DesignsTheWidestStirrupsThatCarryTheShear) {
  EXPECT_DOUBLE_EQ(designed(900e3, rectangle_settings()).getStep(), 300.0);
  EXPECT_DOUBLE_EQ(designed(1000e3, rectangle_settings()).getStep(), 250.0);
  EXPECT_DOUBLE_EQ(designed(-1200e3, rectangle_settings()).getStep(), 200.0);
  EXPECT_DOUBLE_EQ(designed(2800e3, rectangle_settings()).getStep(), 100.0);
  const xBracket stirrup = designed(1200e3, rectangle_settings());
  EXPECT_DOUBLE_EQ(stirrup.getDiameter(), 10.0);
  EXPECT_EQ(stirrup.getNArms(), 4);
}

TEST(RectShear, KeepsTheStrengthOfItsLastTry) {
  const auto settings = rectangle_settings();
  xRectShear shear;
  shear.reinforcementDesign(400.0, 1050.0, 1200e3, &settings);
  EXPECT_DOUBLE_EQ(shear.getVd(), 1200e3);
  EXPECT_NEAR(shear.getVRd(), 9e7 * pi / 200.0, 1e-6);
  EXPECT_NEAR(shear.getVRdmax(), 900.0 * 400.0 * 40.0 * 2.5 / 7.25, 1e-6);
}

TEST(RectShear, EndsAtTheLastStepWhereNoneSuffices) {
  auto settings = rectangle_settings();
  EXPECT_DOUBLE_EQ(designed(6000e3, settings).getStep(), 100.0);
  settings.bracket.setMinStep(120.0);
  EXPECT_DOUBLE_EQ(designed(6000e3, settings).getStep(), 150.0);
  xRectShear shear;
  shear.reinforcementDesign(400.0, 1050.0, 6000e3, &settings);
  EXPECT_LT(shear.getSf(), 1.0);
}

TEST(RectShear, NeedsOnlyTheWidestStirrupsWithoutShear) {
  const auto settings = rectangle_settings();
  xRectShear shear;
  EXPECT_DOUBLE_EQ(shear.reinforcementDesign(400.0, 1050.0, 0.0, &settings).getStep(), 300.0);
  EXPECT_DOUBLE_EQ(shear.getVRd(), 0.0);  // nothing was computed
}

TEST(RectShear, TrustsTheStrengthItHolds) {
  const auto settings = rectangle_settings();
  xRectShear shear;
  shear.setVRd(2000e3);
  EXPECT_DOUBLE_EQ(shear.reinforcementDesign(400.0, 1050.0, 1200e3, &settings).getStep(), 300.0);
  EXPECT_DOUBLE_EQ(shear.getVRd(), 2000e3);
}

TEST(RectShear, ComputesNoStrengthWithoutARangeOfSteps) {
  auto settings = rectangle_settings();
  settings.bracket.setMinStep(400.0);
  xRectShear shear;
  EXPECT_DOUBLE_EQ(shear.reinforcementDesign(400.0, 1050.0, 1200e3, &settings).getStep(), 300.0);
  EXPECT_DOUBLE_EQ(shear.getVRd(), 0.0);
  EXPECT_DOUBLE_EQ(shear.getSf(), 0.0);
}

TEST(RectShear, EndsWhereItStandsWhenItCannotCloseUp) {
  auto settings = rectangle_settings();
  for (const double increment : {0.0, -10.0, not_a_number}) {
    settings.bracket.setStepIncr(increment);
    EXPECT_DOUBLE_EQ(designed(1200e3, settings).getStep(), 300.0) << increment;
  }
}

TEST(RectShear, TakesTheDensestStirrupsForAShearThatIsNoNumber) {
  EXPECT_DOUBLE_EQ(designed(not_a_number, rectangle_settings()).getStep(), 100.0);
  EXPECT_DOUBLE_EQ(designed(infinity, rectangle_settings()).getStep(), 100.0);
}

TEST(RectShear, ReachesAStepOfZeroOnlyWhereTheSettingsAllowIt) {
  auto settings = rectangle_settings();
  settings.bracket.setMinStep(0.0);
  EXPECT_DOUBLE_EQ(designed(20'000e3, settings).getStep(), 0.0);  // 300, 250, ..., 50, 0
}

TEST(RectShear, DesignsNothingWithoutSettings) {
  xRectShear shear;
  EXPECT_EQ(stored(shear.reinforcementDesign(400.0, 1050.0, 1200e3, nullptr)), stored(xBracket{}));
  EXPECT_DOUBLE_EQ(shear.getVd(), 1200e3);
}

// D = 2000, c = 1000: z = 900, b = 250 pi. Two arms of 10 mm have 50 pi: ct = 2.5 as sn² =
// 2 * 400 * (50 pi / step) / (250 pi * 80) = 2 / step, and the stirrups carry
// 50 pi / step * 900 * 400 * 2.5 = 4.5e7 pi / step: 565 kN at 250, 707 kN at 200.
TEST(CircShear, DesignsStirrupsOfTwoArms) {
  xCircularReinfSettings settings;
  fill_stirrup_settings(settings);
  settings.setCover(1000.0);
  xCircShear shear;
  const xBracket stirrup = shear.reinforcementDesign(2000.0, 600e3, &settings);
  EXPECT_DOUBLE_EQ(stirrup.getStep(), 200.0);
  EXPECT_EQ(stirrup.getNArms(), 2);
  EXPECT_DOUBLE_EQ(stirrup.getDiameter(), 10.0);
  EXPECT_NEAR(shear.getVRd(), 4.5e7 * pi / 200.0, 1e-6);
  EXPECT_DOUBLE_EQ(shear.getVd(), 600e3);
}

TEST(CircShear, DesignsNothingWithoutSettings) {
  xCircShear shear;
  EXPECT_EQ(stored(shear.reinforcementDesign(2000.0, 600e3, nullptr)), stored(xBracket{}));
}

TEST(FlexCheck, HasTheFactorOfItsMoments) {
  xFlexCheck flex;
  EXPECT_DOUBLE_EQ(flex.getSf(), 1e10);
  flex.Nd = -1000.0;
  flex.Md = -40.0;
  flex.Mrd = 30.0;
  EXPECT_DOUBLE_EQ(flex.getSf(), 0.75);
  flex.reset();
  EXPECT_EQ(stored(flex), stored(xFlexCheck{}));
}

TEST(FlexCheck, IsStoredAxialForceFirst) {
  xFlexCheck flex;
  flex.Nd = 1.0;
  flex.Md = 2.0;
  flex.Mrd = 3.0;
  const std::string fields = bytes_of([](outstream& out) { out << 1.0 << 2.0 << 3.0; });
  EXPECT_EQ(stored(flex), frame_bytes(1, fields));
  EXPECT_EQ(flex.getIOClass(), "xFlexCheck");
}

xSectionCheck section_check(double shear_factor, double bending_factor) {
  xSectionCheck section;
  section.shear.setVd(1.0);
  section.shear.setVRd(shear_factor);
  section.flex.Md = 1.0;
  section.flex.Mrd = bending_factor;
  return section;
}

TEST(SectionCheck, HasTheSmallerFactor) {
  EXPECT_DOUBLE_EQ(section_check(0.8, 1.2).getSf(), 0.8);
  EXPECT_DOUBLE_EQ(section_check(1.3, 1.2).getSf(), 1.2);
}

TEST(SectionCheck, WithoutDemandsIsUnlimited) {
  EXPECT_DOUBLE_EQ(xSectionCheck{}.getSf(), 1e10);
}

TEST(SectionCheck, DoesNotHideAFactorThatIsNoNumber) {
  EXPECT_TRUE(std::isnan(section_check(not_a_number, 1.2).getSf()));
  EXPECT_TRUE(std::isnan(section_check(1.2, not_a_number).getSf()));
}

TEST(SectionCheck, IsStoredAbscissaFirst) {
  xSectionCheck section = section_check(0.8, 1.2);
  section.abscissa = 1500.0;
  const std::string abscissa = bytes_of([](outstream& out) { out << 1500.0; });
  EXPECT_EQ(stored(section),
            frame_bytes(1, abscissa + stored(section.shear) + stored(section.flex)));
  EXPECT_EQ(section.getIOClass(), "xSectionCheck");
  section.reset();
  EXPECT_EQ(stored(section), stored(xSectionCheck{}));
}

TEST(SectionChecks, ComeBackAsTheyWereStored) {
  RandomBits random(17);
  for (int i = 0; i < 200; ++i) {
    xSectionCheck section;
    section.abscissa = random.number();
    section.shear.abscissa = random.number();
    section.shear.setVRds(random.number());
    section.shear.setVRdmax(random.number());
    section.shear.setVRd(random.number());
    section.shear.setVd(random.number());
    section.flex.Nd = random.number();
    section.flex.Md = random.number();
    section.flex.Mrd = random.number();
    EXPECT_EQ(stored(through_memory(section)), stored(section));
    xRectShear rectangular;
    rectangular.setVd(random.number());
    EXPECT_EQ(stored(through_memory(rectangular)), stored(rectangular));
    xCircShear circular;
    circular.setVRdmax(random.number());
    EXPECT_EQ(stored(through_memory(circular)), stored(circular));
  }
}

TEST(SectionChecks, RefuseDamagedStreams) {
  expect_cuts_refused(xSectionCheck{});
  expect_cuts_refused(xRectShear{});
  expect_cuts_refused(xCircShear{});
  EXPECT_GT(refused_mutations(xSectionCheck{}, 500), 0);
}

}  // namespace
