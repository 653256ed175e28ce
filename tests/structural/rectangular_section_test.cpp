// SPDX-License-Identifier: Apache-2.0
#include "ostrel/concrete_section.h"
#include "support/concrete_walls.h"

#include <ferrule/ultimate_section.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

using ostrel::testing::common_settings;
using ostrel::testing::rectangle_section;

// A panel 600 mm deep and 1000 mm wide with bars of 20 mm, 314.159 mm² each, at 50 mm.
class Rectangle : public ::testing::Test {
protected:
  Rectangle() {
    settings->maxValle = 4.0;
    settings->maxMonte = 4.0;
  }
  void build() {
    osg::ref_ptr<xReinforcement_Settings> kind = settings.get();
    section = ConcreteSection::createClsSection(rectangle_section(600.0, 1000.0), kind);
    ASSERT_TRUE(section.valid());
    section->beginDesign(0.0);
  }
  std::uint32_t valley() { return section->getReinforcement()->AValleEff().getNumber(); }
  std::uint32_t uphill() { return section->getReinforcement()->AMonteEff().getNumber(); }
  std::uint32_t vertex() { return section->getReinforcement()->AVerticeEff().getNumber(); }

  osg::ref_ptr<xRectReinfSettings> settings = common_settings<xRectReinfSettings>(20.0, 50.0);
  osg::ref_ptr<ConcreteSection> section;
};

// Valley 0.2 % of 600 000 = 1200 mm² less 628.3 of two corners: 571.7 / 314.2 = 1.8, so 2 bars.
// Uphill 0.1 % = 600 mm², which the corners give already.
TEST_F(Rectangle, BeginsWithTheLeastRowsBesideItsCorners) {
  settings->minValle = 0.2;
  settings->minMonte = 0.1;
  settings->bracket.setNArms(4);
  build();
  EXPECT_EQ(vertex(), 4U);
  EXPECT_EQ(valley(), 2U);
  EXPECT_EQ(uphill(), 0U);
  EXPECT_EQ(section->getReinforcement()->getBracket().getNArms(), 4);
  EXPECT_DOUBLE_EQ(section->getReinforcement()->getBracket().getStep(), 300.0);
}

TEST_F(Rectangle, ClonesWithItsRecord) {
  settings->minValle = 0.2;
  build();
  const osg::ref_ptr<designSection> copy = section->clone();
  ASSERT_TRUE(section->setReinforcement(new xReinfRectSection));
  EXPECT_EQ(valley(), 0U);
  EXPECT_EQ(copy->getReinforcement()->AValleEff().getNumber(), 2U);
}

// Without corners 1200 / 314.2 = 3.8 and 600 / 314.2 = 1.9.
TEST_F(Rectangle, HoldsAllSteelInItsRowsWithoutCorners) {
  settings->useVertexBars = false;
  settings->minValle = 0.2;
  settings->minMonte = 0.1;
  build();
  const auto record = section->getReinforcement();
  EXPECT_FALSE(dynamic_cast<xReinfRectSection&>(*record).vertexBars);
  EXPECT_DOUBLE_EQ(record->AVerticeEff().getDiameter(), 0.0);
  EXPECT_EQ(valley(), 4U);
  EXPECT_EQ(uphill(), 2U);
}

TEST_F(Rectangle, BeginsWithoutBarsWhereNoneAreAsked) {
  settings->useVertexBars = false;
  build();
  EXPECT_EQ(vertex() + valley() + uphill(), 0U);
}

// The library section counts a positive moment as stretching y > 0, the valley side.
TEST_F(Rectangle, GrowsOnTheMoreStrainedSide) {
  settings->useVertexBars = false;
  settings->ratio = 0.0;
  build();
  ASSERT_TRUE(section->AxialDesign(-50e3, 300e6));
  EXPECT_GT(valley(), 0U);
  EXPECT_EQ(uphill(), 0U);
  EXPECT_GE(section->getsf(-50e3, 300e6), 1.0);
  section->beginDesign(1.0);
  ASSERT_TRUE(section->AxialDesign(-50e3, -300e6));
  EXPECT_EQ(valley(), 0U);
  EXPECT_GT(uphill(), 0U);
}

// By hand, one row of area As in pure bending with d = 550: As fyd (d - As fyd / (2 0.8 b fcd...));
// the parabola-rectangle at full use has the resultant 0.80952 x b fcd at 0.41597 x. With
// fcd = 0.83 * 30 * 0.85 / 1.5 = 14.11 and fyd = 391.304: five bars, As = 1570.8, T = 614 661 N,
// x = T / (0.80952 * 1000 * 14.11) = 53.81 mm, M = T (550 - 0.41597 * 53.81) = 324.30 kNm. Their
// strain, 0.0035 (550 - 53.81) / 53.81 = 0.0323, is below 0.0675.
TEST_F(Rectangle, CarriesWhatTheBalanceOfForcesGives) {
  settings->useVertexBars = false;
  settings->ratio = 0.0;
  build();
  osg::ref_ptr<xReinfRectSection> record = new xReinfRectSection;
  record->vertexBars = false;
  record->AValleEff().setNumber(5);
  record->AValleEff().setDiameter(20.0);
  ASSERT_TRUE(section->setReinforcement(record.get()));
  const double as = 5.0 * std::numbers::pi * 100.0;
  const double tension = as * 450.0 / 1.15;
  const double fcd = 0.83 * 30.0 * 0.85 / 1.5;
  // Parabola up to 2/3.5 of x: area 17/21, centroid 99/238 of x from the face.
  const double x = tension / (17.0 / 21.0 * 1000.0 * fcd);
  const double moment = tension * (550.0 - 99.0 / 238.0 * x);
  EXPECT_NEAR(section->getAbsMresist(0.0, true), moment, 1e-9 * moment);
}

TEST_F(Rectangle, GrowsByAStepFromNoBarsAtAll) {
  settings->useVertexBars = false;
  settings->ratio = 0.0;
  settings->setStep(3);
  settings->maxValle = 0.0;  // one step of growth alone
  build();
  ASSERT_TRUE(section->AxialDesign(-50e3, 300e6));
  EXPECT_EQ(valley(), 3U);
  EXPECT_EQ(uphill(), 0U);
  section->beginDesign(1.0);
  ASSERT_TRUE(section->AxialDesign(-50e3, -300e6));
  EXPECT_EQ(valley(), 0U);
  EXPECT_EQ(uphill(), 3U);
}

// A step adds a fifth bar of 20 mm on the valley side: 5 * 314.16 = 1570.8 mm². Bars of 16 mm have
// 201.06 mm² each, 1570.8 / 201.06 = 7.8, so 8 of them uphill.
TEST_F(Rectangle, KeepsItsRowsEqualInAreaAndNotInNumber) {
  settings->useVertexBars = false;
  settings->ratio = 100.0;
  settings->maxValle = 0.0;  // one step of growth alone
  build();
  osg::ref_ptr<xReinfRectSection> record = new xReinfRectSection;
  record->vertexBars = false;
  record->AValleEff().setNumber(4);
  record->AValleEff().setDiameter(20.0);
  record->AMonteEff().setDiameter(16.0);
  ASSERT_TRUE(section->setReinforcement(record.get()));
  ASSERT_TRUE(section->AxialDesign(0.0, 5e9));
  EXPECT_EQ(valley(), 5U);
  EXPECT_EQ(uphill(), 8U);
}

// Concrete alone carries 14.11 * 600 * 1000 = 8466 kN. 1000 kN leave 1.6667 N/mm², on the parabola
// at 0.002 (1 - sqrt(1 - 1.6667 / 14.11)) = 0.00012183 all over the section.
TEST_F(Rectangle, FindsTheStrainPlaneOfForcesItCanCarry) {
  const osg::ref_ptr<rect_ConcreteSection> panel =
      new rect_ConcreteSection(1000.0, 600.0, settings.get());
  Ferrule::Deform deform;
  EXPECT_FALSE(panel->mySolve(-1000e3, 0.0, 0.0, deform, 1e-4, 20));
  ASSERT_TRUE(panel->build());
  EXPECT_TRUE(panel->mySolve(-1000e3, 0.0, 0.0, deform, 1e-4, 20));
  EXPECT_NEAR(deform.d0, -0.00012183, 1e-8);
  EXPECT_NEAR(deform.d1, 0.0, 1e-9);
  EXPECT_FALSE(panel->mySolve(-8500e3, 0.0, 0.0, deform, 1e-4, 20));
}

TEST_F(Rectangle, KeepsItsRowsEqualAtAFullRatio) {
  settings->useVertexBars = false;
  settings->ratio = 100.0;
  build();
  ASSERT_TRUE(section->AxialDesign(0.0, 300e6));
  EXPECT_GT(valley(), 1U);
  EXPECT_EQ(valley(), uphill());
}

// Half the valley bars, rounded up, and never fewer than there were.
TEST_F(Rectangle, LetsTheUphillRowFollowByTheRatio) {
  settings->useVertexBars = false;
  settings->ratio = 50.0;
  build();
  ASSERT_TRUE(section->AxialDesign(0.0, 300e6));
  ASSERT_GT(valley(), 1U);
  EXPECT_EQ(uphill(), (valley() + 1) / 2);
}

// All bars have 20 mm, and two of the corners stand on each side. A step adds a seventh bar on the
// valley side: half of 7 + 2 bars less the two of the uphill side, 4.5 - 2 = 2.5, are 3 bars. Four
// that were there already stay.
TEST_F(Rectangle, CountsTheCornersOfEachSideInTheRatio) {
  settings->ratio = 50.0;
  settings->maxValle = 0.0;  // one step of growth alone
  build();
  osg::ref_ptr<xReinfRectSection> record = new xReinfRectSection;
  record->AVerticeEff().setNumber(4);
  record->AVerticeEff().setDiameter(20.0);
  record->AValleEff().setNumber(6);
  record->AValleEff().setDiameter(20.0);
  record->AMonteEff().setDiameter(20.0);
  for (const std::uint32_t before : {1U, 4U}) {
    record->AMonteEff().setNumber(before);
    ASSERT_TRUE(section->setReinforcement(record.get()));
    ASSERT_TRUE(section->AxialDesign(0.0, 5e9));
    EXPECT_EQ(valley(), 7U);
    EXPECT_EQ(uphill(), before == 1U ? 3U : 4U);
  }
}

// A moment that stretches the uphill side grows that row alone: nothing bounds the valley side.
TEST_F(Rectangle, DoesNotLetTheValleyRowFollow) {
  settings->useVertexBars = false;
  settings->ratio = 50.0;
  build();
  ASSERT_TRUE(section->AxialDesign(-50e3, -300e6));
  EXPECT_GT(uphill(), 1U);
  EXPECT_EQ(valley(), 0U);
}

// 0.3 % of 600 000 are 1800 mm²: the sixth bar, 1885 mm², reaches it.
TEST_F(Rectangle, StopsAtTheLargestRatioOfASide) {
  settings->useVertexBars = false;
  settings->ratio = 0.0;
  settings->maxValle = 0.3;
  build();
  ASSERT_TRUE(section->AxialDesign(0.0, 5e9));
  EXPECT_EQ(valley(), 6U);
}

TEST_F(Rectangle, StopsAtTheLargestRatioOfTheUphillSide) {
  settings->useVertexBars = false;
  settings->ratio = 0.0;
  settings->maxMonte = 0.3;
  build();
  ASSERT_TRUE(section->AxialDesign(-50e3, -5e9));
  EXPECT_EQ(uphill(), 6U);
  EXPECT_EQ(valley(), 0U);
}

TEST_F(Rectangle, EndsWhereItStandsWithoutAStep) {
  settings->setStep(0);
  settings->minValle = 0.2;
  settings->ratio = 0.0;
  build();
  EXPECT_TRUE(section->AxialDesign(0.0, 5e9));
  EXPECT_EQ(valley(), 2U);
}

TEST_F(Rectangle, EndsWithoutASectionOfItsBars) {
  settings->useVertexBars = false;
  settings->setBarDiam(0.0);
  settings->ratio = 0.0;
  settings->setStep(1500);
  build();
  EXPECT_TRUE(section->AxialDesign(0.0, 5e9));
  EXPECT_EQ(valley(), 3000U);  // the first step beyond 2000
}

TEST_F(Rectangle, AddsNothingForForcesThatAreNotFinite) {
  build();
  EXPECT_TRUE(section->AxialDesign(std::numeric_limits<double>::quiet_NaN(), 1e9));
  EXPECT_EQ(valley(), 0U);
}

TEST_F(Rectangle, GivesTheCornersTheirBarsFirst) {
  build();
  osg::ref_ptr<xReinfRectSection> record = new xReinfRectSection;
  record->AVerticeEff().setDiameter(20.0);
  record->AValleEff().setDiameter(20.0);
  record->AMonteEff().setDiameter(20.0);
  ASSERT_TRUE(section->setReinforcement(record.get()));
  settings->maxValle = 0.0;  // one step of growth alone
  ASSERT_TRUE(section->AxialDesign(0.0, 5e9));
  EXPECT_EQ(vertex(), 4U);
  EXPECT_EQ(valley() + uphill(), 0U);
}

TEST_F(Rectangle, StandsFourBarsInItsCornersWhateverTheRecordSays) {
  build();
  osg::ref_ptr<xReinfRectSection> record = new xReinfRectSection;
  record->AVerticeEff().setDiameter(20.0);
  record->AVerticeEff().setNumber(4);
  ASSERT_TRUE(section->setReinforcement(record.get()));
  const double four = section->getAbsMresist(0.0, true);
  record->AVerticeEff().setNumber(1);
  ASSERT_TRUE(section->setReinforcement(record.get()));
  EXPECT_DOUBLE_EQ(section->getAbsMresist(0.0, true), four);
}

// By the flag alone: the bars of the corners are in the record all the same. T = 5 * 314.159 *
// 391.304 = 614 661 N, x = T / (17 / 21 * 1000 * 14.11), M = T (550 - 99 / 238 x).
TEST_F(Rectangle, LeavesOutItsCornersWhereTheRecordHasNone) {
  build();
  osg::ref_ptr<xReinfRectSection> record = new xReinfRectSection;
  record->vertexBars = false;
  record->AVerticeEff().setNumber(4);
  record->AVerticeEff().setDiameter(20.0);
  record->AValleEff().setNumber(5);
  record->AValleEff().setDiameter(20.0);
  ASSERT_TRUE(section->setReinforcement(record.get()));
  const double tension = 500.0 * std::numbers::pi * 450.0 / 1.15;
  const double x = tension / (17.0 / 21.0 * 1000.0 * 14.11);
  const double moment = tension * (550.0 - 99.0 / 238.0 * x);
  EXPECT_NEAR(section->getAbsMresist(0.0, true), moment, 1e-9 * moment);
  record->vertexBars = true;
  ASSERT_TRUE(section->setReinforcement(record.get()));
  EXPECT_GT(section->getAbsMresist(0.0, true), 1.2 * moment);  // 7 bars for 5
}

TEST_F(Rectangle, IsVerifiedInShearByItsOwnStrengths) {
  build();
  xShear by_section;
  ASSERT_TRUE(section->ShearChek(120e3, by_section));
  xRectShear direct;
  direct.check(120e3, 1000.0, 600.0, 50.0, settings->material,
               section->getReinforcement()->getBracket());
  EXPECT_DOUBLE_EQ(by_section.getVRds(), direct.getVRds());
  EXPECT_DOUBLE_EQ(by_section.getVRd(), direct.getVRd());
}

TEST_F(Rectangle, RefusesRecordsOfAnotherShapeAndOfTooManyBars) {
  build();
  EXPECT_FALSE(section->setReinforcement(new xReinfCircSection));
  osg::ref_ptr<xReinfRectSection> record = new xReinfRectSection;
  record->AMonteEff().setNumber(2001);
  EXPECT_FALSE(section->setReinforcement(record.get()));
}

}  // namespace
