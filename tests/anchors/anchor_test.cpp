// SPDX-License-Identifier: Apache-2.0
#include "ostrel/anchor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

TEST(AnchorSettings, StartWithTheSoilsOwnBond) {
  const xAnchorSettings settings;
  EXPECT_TRUE(settings.getuse_soil());
  EXPECT_EQ(settings.getadesione(), 0.0);
  EXPECT_EQ(settings.getattrito(), 0.0);
  EXPECT_EQ(settings.getFyk(), 0.0);
  EXPECT_EQ(settings.getGammaS(), 0.0);
  EXPECT_EQ(settings.getCsi3(), 0.0);
  EXPECT_EQ(settings.getCsi4(), 0.0);
  EXPECT_EQ(settings.get_ValueType(), csiMeanValues);
  EXPECT_EQ(settings.getSoilCoeffType(), 0);
}

TEST(AnchorSettings, KeepEachValueUntilReset) {
  xAnchorSettings settings;
  settings.setuse_soil(false);
  settings.setadesione(1.0);
  settings.setattrito(2.0);
  settings.setFyk(3.0);
  settings.setGammaS(4.0);
  settings.setCsi3(5.0);
  settings.setCsi4(6.0);
  settings.set_ValueType(csiMinimumValues);
  settings.setSoilCoeffType(17);  // any number is kept
  EXPECT_FALSE(settings.getuse_soil());
  EXPECT_EQ(settings.getadesione(), 1.0);
  EXPECT_EQ(settings.getattrito(), 2.0);
  EXPECT_EQ(settings.getFyk(), 3.0);
  EXPECT_EQ(settings.getGammaS(), 4.0);
  EXPECT_EQ(settings.getCsi3(), 5.0);
  EXPECT_EQ(settings.getCsi4(), 6.0);
  EXPECT_EQ(settings.get_ValueType(), csiMinimumValues);
  EXPECT_EQ(settings.getSoilCoeffType(), 17);

  settings.reset();
  EXPECT_TRUE(settings.getuse_soil());
  EXPECT_EQ(settings.getadesione() + settings.getattrito() + settings.getFyk()
                + settings.getGammaS() + settings.getCsi3() + settings.getCsi4(),
            0.0);
  EXPECT_EQ(settings.get_ValueType(), csiMeanValues);
  EXPECT_EQ(settings.getSoilCoeffType(), 0);
}

void expect_default(const xAnchor& anchor) {
  EXPECT_EQ(anchor.z, 0.0);
  EXPECT_FALSE(anchor.modeFlag);
  EXPECT_EQ(anchor.getIdObj(), -1);
  EXPECT_EQ(anchor.getcableDiam(), 0.0);
  EXPECT_EQ(anchor.getbulbDiam(), 0.0);
  EXPECT_EQ(anchor.getAngleRad(), 0.0);
  EXPECT_EQ(anchor.getFreeLength(), 0.0);
  EXPECT_EQ(anchor.getBulbLength(), 0.0);
  EXPECT_EQ(anchor.getNumber(), 2);
  EXPECT_EQ(anchor.getPreStress(), 0.0);
  EXPECT_EQ(anchor.material.getElasticityModulus(), 0.0);
  EXPECT_EQ(anchor.settings.getFyk(), 0.0);
}

xAnchor filled_anchor() {
  xAnchor anchor;
  anchor.z = 1.0;
  anchor.modeFlag = true;
  anchor.setIdObj(std::int64_t{1} << 40);
  anchor.setcableDiam(2.0);
  anchor.setbulbDiam(3.0);
  anchor.setAlphaD(1.5);
  anchor.setAngleRad(0.4);
  anchor.setFreeLength(5.0);
  anchor.setBulbLength(6.0);
  anchor.setNumber(7);
  anchor.setPreStress(8.0);
  anchor.material.setElasticityModulus(9.0);
  anchor.settings.setFyk(10.0);
  return anchor;
}

TEST(Anchor, StartsAsAPairWithoutAnEnlargedBulb) {
  expect_default(xAnchor());
  EXPECT_EQ(xAnchor().getAlphaD(), 1.0);
}

TEST(Anchor, KeepsEachValue) {
  const xAnchor anchor = filled_anchor();
  EXPECT_EQ(anchor.getIdObj(), 1'099'511'627'776);
  EXPECT_EQ(anchor.getcableDiam(), 2.0);
  EXPECT_EQ(anchor.getbulbDiam(), 3.0);
  EXPECT_EQ(anchor.getAlphaD(), 1.5);
  EXPECT_EQ(anchor.getAngleRad(), 0.4);
  EXPECT_EQ(anchor.getFreeLength(), 5.0);
  EXPECT_EQ(anchor.getBulbLength(), 6.0);
  EXPECT_EQ(anchor.getNumber(), 7);
  EXPECT_EQ(anchor.getPreStress(), 8.0);
}

TEST(Anchor, ResetsAllButTheEnlargementOfTheBulb) {
  xAnchor anchor = filled_anchor();
  anchor.reset();
  expect_default(anchor);
  EXPECT_EQ(anchor.getAlphaD(), 1.5);
}

// pi 40² / 4 = 400 pi, of one tendon whatever their number.
TEST(Anchor, HasTheSectionOfOneTendon) {
  xAnchor anchor;
  anchor.setNumber(5);
  anchor.setcableDiam(40.0);
  EXPECT_DOUBLE_EQ(anchor.CableArea(), 400.0 * std::numbers::pi);
}

TEST(FemAnchor, StartsLevelAndWithoutStiffness) {
  const info_Fem_anchor link;
  EXPECT_EQ(link.level, 0.0);
  EXPECT_EQ(link.id, -1);
  EXPECT_EQ(link.node, 0);
  EXPECT_FALSE(link.modeFlag);
  EXPECT_EQ(link.kSS, 0.0);
  EXPECT_EQ(link.kCC, 0.0);
  EXPECT_EQ(link.kSC, 0.0);
  EXPECT_EQ(link.cosA, 1.0);
  EXPECT_EQ(link.sinA, 0.0);
  EXPECT_EQ(link.share, 1.0);
}

TEST(FemAnchor, CarriesNoForceAtAnUndisplacedNode) {
  info_Fem_anchor link;
  link.kCC = 1000.0;
  EXPECT_EQ(link.get_Force(0.0, 0.0), 0.0);
}

// sin = 0.6, cos = 0.8, k = 1000: kSS = 360, kCC = 640. The node moves 5 down and 10 across:
// 5 * 0.6 + 10 * 0.8 = 11 along the anchor, and a quarter of 11 000 N falls to one anchor.
TEST(FemAnchor, TurnsTheDisplacementOfItsNodeIntoTheForceOfOneAnchor) {
  info_Fem_anchor link;
  link.sinA = 0.6;
  link.cosA = 0.8;
  link.kSS = 360.0;
  link.kCC = 640.0;
  link.kSC = 480.0;
  link.share = 0.25;
  EXPECT_DOUBLE_EQ(link.get_Force(5.0, 10.0), -2750.0);
  EXPECT_DOUBLE_EQ(link.get_Force(0.0, -10.0), 2000.0);
}

}  // namespace
