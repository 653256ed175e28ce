// SPDX-License-Identifier: Apache-2.0
#include "ostrel/materials.h"

#include "support/hostile_stream.h"
#include "support/random_bits.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
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

xConcreteProps concrete_of_cylinder_strength(double fck) {
  xConcreteProps concrete;
  concrete.setRck(fck / 0.83);
  return concrete;
}

void expect_defaults(const xConcreteProps& concrete) {
  EXPECT_DOUBLE_EQ(concrete.getRck(), 30.0);
  EXPECT_DOUBLE_EQ(concrete.getEc2(), 0.002);
  EXPECT_DOUBLE_EQ(concrete.getEcu(), 0.0035);
  EXPECT_DOUBLE_EQ(concrete.getAlfaCC(), 0.85);
  EXPECT_DOUBLE_EQ(concrete.getGammaC(), 1.5);
  EXPECT_DOUBLE_EQ(concrete.getEta(), 1.0);
}

xConcreteProps random_concrete(RandomBits& random) {
  xConcreteProps concrete;
  concrete.setRck(random.number());
  concrete.setEc2(random.number());
  concrete.setEcu(random.number());
  concrete.setAlfaCC(random.number());
  concrete.setGammaC(random.number());
  concrete.setEta(random.number());
  return concrete;
}

xSteelProps random_steel(RandomBits& random) {
  xSteelProps steel;
  steel.setFyk(random.number());
  steel.setEs(random.number());
  steel.setEuk(random.number());
  steel.setK(random.number());
  steel.setGammaS(random.number());
  return steel;
}

TEST(ConcreteProps, HaveTheirDefaultsWhenNewAndAfterReset) {
  xConcreteProps concrete;
  expect_defaults(concrete);
  RandomBits random(3);
  concrete = random_concrete(random);
  concrete.reset();
  expect_defaults(concrete);
}

// Rck 30: 0.83 * 30 = 24.9; 24.9 + 8 = 32.9; 24.9 * 0.85 / 1.5 = 14.11.
TEST(ConcreteProps, TakeTheCylinderStrengthFromTheCube) {
  const xConcreteProps concrete;
  EXPECT_DOUBLE_EQ(concrete.Fck(), 24.9);
  EXPECT_DOUBLE_EQ(concrete.Fcm(), 32.9);
  EXPECT_DOUBLE_EQ(concrete.Fcd(), 14.11);
}

// fck = 27: 27^(2/3) = 9, so fctm = 2.7, fctk = 1.89, fcfm = 3.24, fctd = 1.89 / 1.5 = 1.26;
// bond with eta 0.7: 2.25 * 0.7 * 1.89 = 2.97675, by 1.5 = 1.9845.
TEST(ConcreteProps, TakeTensionAndBondFromTheCubeRootUpToFifty) {
  xConcreteProps concrete = concrete_of_cylinder_strength(27.0);
  EXPECT_DOUBLE_EQ(concrete.Fctm(), 2.7);
  EXPECT_DOUBLE_EQ(concrete.Fctk(), 1.89);
  EXPECT_DOUBLE_EQ(concrete.Fcfm(), 3.24);
  EXPECT_DOUBLE_EQ(concrete.Fctd(), 1.26);
  EXPECT_DOUBLE_EQ(concrete.Fbk(), 4.2525);
  concrete.setEta(0.7);
  EXPECT_DOUBLE_EQ(concrete.Fbk(), 2.97675);
  EXPECT_DOUBLE_EQ(concrete.Fbd(), 1.9845);
}

// fck = 62: (62 + 8) / 10 + 1 = 8 and ln 8 = 3 ln 2, so fctm = 6.36 ln 2.
TEST(ConcreteProps, TakeTensionFromTheLogarithmAboveFifty) {
  EXPECT_NEAR(concrete_of_cylinder_strength(62.0).Fctm(), 6.36 * std::numbers::ln2, 1e-14);
}

// 100^(2/3) / 2^(2/3) = 50^(2/3); ln(58 / 10 + 1) = ln 6.8. The two branches differ there by
// 0.3 * 13.572 = 4.0716 against 2.12 * 1.91692 = 4.0639.
TEST(ConcreteProps, AtFiftyExactlyTakeTheCubeRoot) {
  xConcreteProps concrete;
  concrete.setRck(50.0 / 0.83);
  ASSERT_FALSE(concrete.Fck() > 50.0);
  EXPECT_NEAR(concrete.Fctm(), 0.3 * std::cbrt(2500.0), 1e-13);
  concrete.setRck(50.001 / 0.83);
  EXPECT_NEAR(concrete.Fctm(), 2.12 * std::log(6.8001), 1e-13);
}

// fck = 2 has fcm = 10, and fck = 10232 has fcm / 10 = 1024 with 1024^0.3 = 8.
TEST(ConcreteProps, TakeTheModulusFromTheMeanStrength) {
  EXPECT_DOUBLE_EQ(concrete_of_cylinder_strength(2.0).Ecm(), 22000.0);
  EXPECT_NEAR(concrete_of_cylinder_strength(10232.0).Ecm(), 176000.0, 1e-8);
}

TEST(ConcreteProps, WithoutPartialFactorAreInfinitelyStrong) {
  xConcreteProps concrete;
  concrete.setGammaC(0.0);
  EXPECT_TRUE(std::isinf(concrete.Fcd()));
  EXPECT_TRUE(std::isinf(concrete.Fctd()));
}

TEST(ConcreteProps, AreStoredInTheOrderOfTheirFields) {
  const std::string bytes = frame_bytes(
      1, bytes_of([](outstream& out) { out << 1.0 << 2.0 << 3.0 << 4.0 << 5.0 << 6.0; }));
  xConcreteProps concrete;
  read_stored(concrete, bytes);
  EXPECT_DOUBLE_EQ(concrete.getRck(), 1.0);
  EXPECT_DOUBLE_EQ(concrete.getEc2(), 2.0);
  EXPECT_DOUBLE_EQ(concrete.getEcu(), 3.0);
  EXPECT_DOUBLE_EQ(concrete.getAlfaCC(), 4.0);
  EXPECT_DOUBLE_EQ(concrete.getGammaC(), 5.0);
  EXPECT_DOUBLE_EQ(concrete.getEta(), 6.0);
  EXPECT_EQ(stored(concrete), bytes);
  EXPECT_EQ(concrete.getIOClass(), "xConcreteProps");
}

void expect_defaults(const xSteelProps& steel) {
  EXPECT_DOUBLE_EQ(steel.Fyk(), 450.0);
  EXPECT_DOUBLE_EQ(steel.Es(), 210000.0);
  EXPECT_DOUBLE_EQ(steel.Eud(), 0.0675);  // 0.9 * 0.075
  EXPECT_DOUBLE_EQ(steel.K(), 1.2);
  EXPECT_DOUBLE_EQ(steel.getGammaS(), 0.0);
}

TEST(SteelProps, HaveNoPartialFactorByDefault) {
  xSteelProps steel;
  expect_defaults(steel);
  RandomBits random(4);
  steel = random_steel(random);
  steel.reset();
  expect_defaults(steel);
}

// 450 / 1.15 = 9000 / 23; by 210000 it is 9 / 4830. The slope is (0.2 * 9000 / 23) divided by
// (0.0675 - 9 / 4830), both times 4830: 378000 / (326.025 - 9).
TEST(SteelProps, DeriveYieldAndHardening) {
  xSteelProps steel;
  steel.setGammaS(1.15);
  EXPECT_DOUBLE_EQ(steel.Fyd(), 9000.0 / 23.0);
  EXPECT_DOUBLE_EQ(steel.Eyd(), 9.0 / 4830.0);
  EXPECT_NEAR(steel.getEpostYeld(), 378000.0 / 317.025, 1e-9);
}

TEST(SteelProps, DoNotSoften) {
  xSteelProps steel;
  steel.setGammaS(1.15);
  steel.setK(1.0);
  EXPECT_DOUBLE_EQ(steel.getEpostYeld(), 0.0);
  steel.setK(0.9);
  EXPECT_DOUBLE_EQ(steel.getEpostYeld(), 0.0);
  steel.setK(1.2);
  steel.setEuk(0.001);  // ends before it yields
  EXPECT_DOUBLE_EQ(steel.getEpostYeld(), 0.0);
}

TEST(SteelProps, WithoutPartialFactorAreInfinitelyStrongAndPlastic) {
  const xSteelProps steel;
  EXPECT_TRUE(std::isinf(steel.Fyd()));
  EXPECT_DOUBLE_EQ(steel.getEpostYeld(), 0.0);
}

TEST(SteelProps, AreStoredWithThePartialFactorThird) {
  const std::string bytes =
      frame_bytes(1, bytes_of([](outstream& out) { out << 460.0 << 2e5 << 1.25 << 0.1 << 1.5; }));
  xSteelProps steel;
  read_stored(steel, bytes);
  EXPECT_DOUBLE_EQ(steel.Fyk(), 460.0);
  EXPECT_DOUBLE_EQ(steel.Es(), 2e5);
  EXPECT_DOUBLE_EQ(steel.getGammaS(), 1.25);
  EXPECT_DOUBLE_EQ(steel.Eud(), 0.09);
  EXPECT_DOUBLE_EQ(steel.K(), 1.5);
  EXPECT_EQ(stored(steel), bytes);
  EXPECT_EQ(steel.getIOClass(), "xSteelProps");
}

xMaterialProps random_material(RandomBits& random) {
  xMaterialProps material;
  material.setAlfaC(random.number());
  material.concrete = random_concrete(random);
  material.steel = random_steel(random);
  return material;
}

TEST(MaterialProps, ResetTheirParts) {
  RandomBits random(5);
  xMaterialProps material = random_material(random);
  material.reset();
  EXPECT_DOUBLE_EQ(material.getAlfaC(), 15.0);
  expect_defaults(material.concrete);
  expect_defaults(material.steel);
}

TEST(MaterialProps, AreStoredWithTheModularRatioFirst) {
  xMaterialProps material;
  material.setAlfaC(7.0);
  material.concrete.setRck(37.0);
  material.steel.setGammaS(1.15);
  const std::string ratio = bytes_of([](outstream& out) { out << 7.0; });
  EXPECT_EQ(stored(material),
            frame_bytes(1, ratio + stored(material.concrete) + stored(material.steel)));
  EXPECT_EQ(material.getIOClass(), "xMaterialProps");
}

TEST(MaterialProps, ComeBackAsTheyWereStored) {
  RandomBits random(6);
  for (int i = 0; i < 200; ++i) {
    const xMaterialProps material = random_material(random);
    EXPECT_EQ(stored(through_memory(material)), stored(material));
  }
}

TEST(MaterialProps, RefuseDamagedStreams) {
  expect_cuts_refused(xMaterialProps{});
  EXPECT_GT(refused_mutations(xMaterialProps{}, 500), 0);
}

}  // namespace
