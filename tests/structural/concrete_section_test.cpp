// SPDX-License-Identifier: Apache-2.0
#include "ostrel/concrete_section.h"

#include "support/concrete_walls.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <numbers>

namespace {

using ostrel::testing::circle;
using ostrel::testing::common_materials;
using ostrel::testing::common_settings;
using ostrel::testing::rectangle_section;

using Settings = osg::ref_ptr<xReinforcement_Settings>;

osg::ref_ptr<ConcreteSection> section_of(const xCrossSecProp* prop, Settings settings) {
  return ConcreteSection::createClsSection(prop, settings);
}

TEST(CreateClsSection, SuitsTheShapeToItsSettings) {
  const Settings ring = common_settings<xCircularReinfSettings>(24.0, 60.0).get();
  const Settings rows = common_settings<xRectReinfSettings>(20.0, 50.0).get();
  EXPECT_TRUE(dynamic_cast<circ_ConcreteSection*>(section_of(circle(800.0), ring).get()));
  EXPECT_TRUE(dynamic_cast<rect_ConcreteSection*>(
      section_of(rectangle_section(600.0, 1000.0), rows).get()));
  EXPECT_FALSE(section_of(circle(800.0), rows).valid());
  EXPECT_FALSE(section_of(rectangle_section(600.0, 1000.0), ring).valid());
  EXPECT_FALSE(section_of(circle(800.0), nullptr).valid());
  EXPECT_FALSE(section_of(nullptr, ring).valid());
}

// 16 bars of 24 mm on a radius of 340 mm in 800 mm under N = -500 kN: 907.3966 kNm, worked out
// independently with the outline of 40 corners.
TEST(ConcreteSection, ResistsTheMomentOfAnEvenRingOnEitherSide) {
  const auto section =
      section_of(circle(800.0), common_settings<xCircularReinfSettings>(24.0, 60.0).get());
  osg::ref_ptr<xReinfCircSection> record = new xReinfCircSection;
  record->AValleEff().setNumber(16);
  record->AValleEff().setDiameter(24.0);
  ASSERT_TRUE(section->setReinforcement(record.get()));
  EXPECT_NEAR(section->getAbsMresist(-500e3, true), 907.3966e6, 50.0);
  EXPECT_NEAR(section->getAbsMresist(-500e3, false), 907.3966e6, 50.0);
  // 907.3966 / 453.6983 = 2, on either side
  EXPECT_NEAR(section->getsf(-500e3, 453.6983e6), 2.0, 1e-6);
  EXPECT_NEAR(section->getsf(-500e3, -453.6983e6), 2.0, 1e-6);
}

TEST(ConcreteSection, ResistsNothingWhereItCannotCarryTheAxialForce) {
  const auto section =
      section_of(circle(800.0), common_settings<xCircularReinfSettings>(24.0, 60.0).get());
  EXPECT_DOUBLE_EQ(section->getAbsMresist(-1e9, true), 0.0);
  EXPECT_DOUBLE_EQ(section->getsf(-1e9, 5.0), 0.0);
  EXPECT_DOUBLE_EQ(section->getsf(-1e9, 0.0), 1e10);
}

TEST(ConcreteSection, WithoutPartialFactorsResistsNothing) {
  auto settings = common_settings<xCircularReinfSettings>(24.0, 60.0);
  settings->material.steel.setGammaS(0.0);
  const auto section = section_of(circle(800.0), settings.get());
  ASSERT_TRUE(section.valid());
  EXPECT_DOUBLE_EQ(section->getAbsMresist(-500e3, true), 0.0);
}

// One row of bars in a panel 600 mm deep and 1000 mm wide, 550 mm below its compressed face.
constexpr double bar = 100.0 * std::numbers::pi;         // of 20 mm [mm²]
constexpr double common_fyd = 450.0 / 1.15;              // [N/mm²]
constexpr double common_fcd = 0.83 * 30.0 * 0.85 / 1.5;  // 14.11 N/mm²

double resisted_by_a_row(const xMaterialProps& material, std::uint32_t bars, double N) {
  auto settings = common_settings<xRectReinfSettings>(20.0, 50.0);
  settings->material = material;
  const auto section = section_of(rectangle_section(600.0, 1000.0), settings.get());
  osg::ref_ptr<xReinfRectSection> record = new xReinfRectSection;
  record->vertexBars = false;
  record->AValleEff().setNumber(bars);
  record->AValleEff().setDiameter(20.0);
  EXPECT_TRUE(section->setReinforcement(record.get()));
  return section->getAbsMresist(N, true);
}

// Five yielding bars pull T = 614 661 N. The concrete pushes with `area` x 1000 fcd, `centroid` x
// from its face, and in pure bending T (550 - `centroid` x) is left. With p = ec2 / ecu the parabola
// lacks p / 3 of the rectangle x fcd, and what it lacks has its centroid at p / 4 of x from the
// neutral axis: `area` is 1 - p / 3, and `area` times `centroid` is 1 / 2 - p / 3 (1 - p / 4).
void expect_balance(const xMaterialProps& material, double fcd, double area, double centroid) {
  const double pull = 5.0 * bar * common_fyd;
  const double x = pull / (area * 1000.0 * fcd);
  const double moment = pull * (550.0 - centroid * x);
  EXPECT_NEAR(resisted_by_a_row(material, 5, 0.0), moment, 1e-9 * moment);
}

// p = 4 / 7: 1 - 4 / 21 = 17 / 21; 1 / 2 - 4 / 21 * 6 / 7 = 33 / 98, by 17 / 21 it is 99 / 238.
// Without a long-term reduction fcd = 0.83 * 30 / 1.5 = 16.6; x = 45.7 mm, and the bars stretch by
// 0.0035 * 504.3 / 45.7 = 0.0386, less than 0.0675.
TEST(ConcreteSection, TakesTheLongTermCoefficientOfItsConcrete) {
  xMaterialProps material = common_materials();
  material.concrete.setAlfaCC(1.0);
  expect_balance(material, 16.6, 17.0 / 21.0, 99.0 / 238.0);
}

// fcd = 0.83 * 30 * 0.85 / 1.2 = 17.6375; x = 43.0 mm, 0.0035 * 507 / 43 = 0.0413 in the bars.
TEST(ConcreteSection, TakesThePartialFactorOfItsConcrete) {
  xMaterialProps material = common_materials();
  material.concrete.setGammaC(1.2);
  expect_balance(material, 17.6375, 17.0 / 21.0, 99.0 / 238.0);
}

// p = 2 / 7: 1 - 2 / 21 = 19 / 21; 1 / 2 - 2 / 21 * 13 / 14 = 121 / 294, by 19 / 21 it is
// 121 / 266. x = 48.1 mm, 0.0035 * 501.9 / 48.1 = 0.0365 in the bars.
TEST(ConcreteSection, TakesTheStrainOfItsConcreteAtTheEndOfTheParabola) {
  xMaterialProps material = common_materials();
  material.concrete.setEc2(0.001);
  expect_balance(material, common_fcd, 19.0 / 21.0, 121.0 / 266.0);
}

// p = 2 / 5: 1 - 2 / 15 = 13 / 15; 1 / 2 - 2 / 15 * 9 / 10 = 19 / 50, by 13 / 15 it is 57 / 130.
// x = 50.3 mm, 0.005 * 499.7 / 50.3 = 0.0497 in the bars.
TEST(ConcreteSection, TakesTheUltimateStrainOfItsConcrete) {
  xMaterialProps material = common_materials();
  material.concrete.setEcu(0.005);
  expect_balance(material, common_fcd, 13.0 / 15.0, 57.0 / 130.0);
}

// fyd = 420 at 0.002; the slope is (1.5 - 1) 420 / (0.9 * 0.08 - 0.002) = 3000. With x = 70 mm five
// bars stretch by 0.0035 * 480 / 70 = 0.024: 420 + 3000 * 0.022 = 486 N/mm². They pull 763 kN, the
// concrete pushes with 17 / 21 * 70 * 1000 * 14.11 = 800 kN, and the axial force is the difference.
// Moments about half the depth: 250 mm to the bars, 300 - 99 / 238 * 70 mm to the concrete.
TEST(ConcreteSection, TakesTheSlopeOfItsSteelAfterYielding) {
  xMaterialProps material = common_materials();
  material.steel.setFyk(420.0);
  material.steel.setGammaS(1.0);
  material.steel.setEuk(0.08);
  material.steel.setK(1.5);
  const double pull = 5.0 * bar * 486.0;
  const double push = 17.0 / 21.0 * 70.0 * 1000.0 * common_fcd;
  const double moment = pull * 250.0 + push * (300.0 - 99.0 / 238.0 * 70.0);
  EXPECT_NEAR(resisted_by_a_row(material, 5, pull - push), moment, 1e-9 * moment);
}

// The bars tear at 0.9 * 0.02 = 0.018. With x = 55 mm the face has 0.018 * 55 / 495 = 0.002 then: a
// whole parabola and no rectangle, 2 / 3 of 55 * 1000 * 14.11 = 517 kN at 3 / 8 of x from the face,
// against 492 kN of four bars.
TEST(ConcreteSection, TakesNineTenthsOfTheUltimateStrainOfItsSteel) {
  xMaterialProps material = common_materials();
  material.steel.setEuk(0.02);
  const double pull = 4.0 * bar * common_fyd;
  const double push = 2.0 / 3.0 * 55.0 * 1000.0 * common_fcd;
  const double moment = pull * 250.0 + push * (300.0 - 3.0 / 8.0 * 55.0);
  EXPECT_NEAR(resisted_by_a_row(material, 4, pull - push), moment, 1e-9 * moment);
}

TEST(ConcreteSection, BeforeItIsBuiltResistsNothingAndTakesNoRecord) {
  const Settings settings = common_settings<xCircularReinfSettings>(24.0, 60.0).get();
  const osg::ref_ptr<circ_ConcreteSection> section = new circ_ConcreteSection(800.0, settings);
  EXPECT_DOUBLE_EQ(section->getAbsMresist(0.0, true), 0.0);
  EXPECT_FALSE(section->setReinforcement(new xReinfCircSection));
}

}  // namespace
