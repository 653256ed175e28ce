// SPDX-License-Identifier: Apache-2.0
#include "ostrel/concrete_section.h"

#include "support/concrete_walls.h"

#include <gtest/gtest.h>

namespace {

using ostrel::testing::circle;
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

TEST(ConcreteSection, BeforeItIsBuiltResistsNothingAndTakesNoRecord) {
  const Settings settings = common_settings<xCircularReinfSettings>(24.0, 60.0).get();
  const osg::ref_ptr<circ_ConcreteSection> section = new circ_ConcreteSection(800.0, settings);
  EXPECT_DOUBLE_EQ(section->getAbsMresist(0.0, true), 0.0);
  EXPECT_FALSE(section->setReinforcement(new xReinfCircSection));
}

}  // namespace
