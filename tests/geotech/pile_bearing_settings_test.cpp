// SPDX-License-Identifier: Apache-2.0
#include "ostrel/pile_bearing_settings.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;

bearSecPile section(int type, bearSecPile::evalDiamMethod method) {
  bearSecPile pile;
  pile.type = type;
  pile.method = method;
  pile.d = 600.0;
  pile.h = 1500.0;
  return pile;
}

// 600² pi / 4 = 90 000 pi; 600 pi.
TEST(PileSection, OfACircleGoesByItsDiameter) {
  for (const int type : {0, 3, -1}) {
    const bearSecPile pile = section(type, bearSecPile::diamLargerSide);
    EXPECT_DOUBLE_EQ(pile.getArea(), 90'000.0 * pi);
    EXPECT_DOUBLE_EQ(pile.getPerim(), 600.0 * pi);
    EXPECT_DOUBLE_EQ(pile.getEqvDiam(), 600.0);
  }
}

// 600 * 1500 = 900 000; 2 * 2100 = 4200.
TEST(PileSection, OfARectangleGoesByItsSides) {
  for (const int type : {1, 2}) {
    const bearSecPile pile = section(type, bearSecPile::diamEqualArea);
    EXPECT_DOUBLE_EQ(pile.getArea(), 900'000.0);
    EXPECT_DOUBLE_EQ(pile.getPerim(), 4200.0);
  }
}

// Equal area: sqrt(900 000 * 4 / pi) = sqrt(3 600 000 / pi).
TEST(PileSection, OfARectangleHasADiameterByTheMethod) {
  EXPECT_DOUBLE_EQ(section(1, bearSecPile::diamSmallerSide).getEqvDiam(), 600.0);
  EXPECT_DOUBLE_EQ(section(2, bearSecPile::diamLargerSide).getEqvDiam(), 1500.0);
  const double equal_area = std::sqrt(3'600'000.0 / pi);
  EXPECT_DOUBLE_EQ(section(1, bearSecPile::diamEqualArea).getEqvDiam(), equal_area);
  const auto unknown = static_cast<bearSecPile::evalDiamMethod>(-5);
  EXPECT_DOUBLE_EQ(section(1, unknown).getEqvDiam(), equal_area);
}

TEST(PileSection, ResetsToACircleWithoutSize) {
  bearSecPile pile = section(2, bearSecPile::diamSmallerSide);
  pile.reset();
  EXPECT_EQ(pile.type, 0);
  EXPECT_EQ(static_cast<int>(pile.method), 2);
  EXPECT_DOUBLE_EQ(pile.d, 0.0);
  EXPECT_DOUBLE_EQ(pile.h, 0.0);
}

void expect_defaults(const xBearCapacityPileSettings& settings) {
  EXPECT_EQ(static_cast<int>(settings.getDiamMethod()), 2);
  EXPECT_EQ(static_cast<int>(settings.getTechnologyType()), 0);
  EXPECT_FALSE(settings.getApplyKishida());
  EXPECT_DOUBLE_EQ(settings.getEta(), 0.0);
  EXPECT_DOUBLE_EQ(settings.getCsi3(), 0.0);
  EXPECT_DOUBLE_EQ(settings.getCsi4(), 0.0);
  EXPECT_EQ(settings.getValueType(), 0);
}

TEST(PileSettings, HaveTheirDefaultsWhenNewAndAfterReset) {
  xBearCapacityPileSettings settings;
  expect_defaults(settings);
  settings.setDiamMethod(bearSecPile::diamLargerSide);
  settings.setTechnologyType(pileAugered);
  settings.setApplyKishida(true);
  settings.setEta(0.8);
  settings.setCsi3(1.7);
  settings.setCsi4(1.4);
  settings.setValueType(1);
  EXPECT_EQ(static_cast<int>(settings.getDiamMethod()), 1);
  EXPECT_EQ(static_cast<int>(settings.getTechnologyType()), 2);
  EXPECT_TRUE(settings.getApplyKishida());
  EXPECT_DOUBLE_EQ(settings.getEta(), 0.8);
  EXPECT_DOUBLE_EQ(settings.getCsi3(), 1.7);
  EXPECT_DOUBLE_EQ(settings.getCsi4(), 1.4);
  EXPECT_EQ(settings.getValueType(), 1);
  settings.reset();
  expect_defaults(settings);
}

}  // namespace
