// SPDX-License-Identifier: Apache-2.0
#include "ferrule/slu_material.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using Ferrule::ClsSLUModel;
using Ferrule::ClsSLUParameters;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

/// In the order in which the designers fill them.
ClsSLUParameters usual() {
  return {210'000, 1.5,    1.15,   30,     0.85,
          450,     1.0,    0.002,  0.0035, 1'192,
          0,       0.0675, 0.0675, 0,      {0, 0.01, 0, 1.0000000000000002e-06, 1.5}};
}

bool makes_a_material(const ClsSLUParameters& parameters) {
  return ClsSLUModel(parameters).laws().has_value();
}

// fcd = 0.83 * 30 * 0.85 / 1.5 = 14.11; fyd = 450 / 1.15 = 391.304347826...
TEST(SluMaterial, DerivesDesignStrengthsFromTheCharacteristicOnes) {
  const auto laws = ClsSLUModel(usual()).laws();
  ASSERT_TRUE(laws);
  EXPECT_NEAR(laws->concrete.strength, 14.11, 1e-14);
  EXPECT_DOUBLE_EQ(laws->concrete.peak_strain, 0.002);
  EXPECT_DOUBLE_EQ(laws->concrete.ultimate_strain, 0.0035);
  EXPECT_DOUBLE_EQ(laws->steel.modulus, 210'000);
  EXPECT_NEAR(laws->steel.yield_stress, 391.30434782608695, 1e-12);
  EXPECT_DOUBLE_EQ(laws->steel.limit_strain, 0.0675);
}

TEST(SluMaterial, ScalesTheStrengthOfConcreteByEta) {
  ClsSLUParameters p = usual();
  p.Eta = 0.5;
  EXPECT_NEAR(ClsSLUModel(p).laws()->concrete.strength, 14.11 / 2, 1e-14);
}

TEST(SluMaterial, HardensOnlyWithoutThePlasticFlag) {
  ClsSLUParameters p = usual();
  EXPECT_DOUBLE_EQ(ClsSLUModel(p).laws()->steel.hardening, 1'192);
  p.Plastic = 1;
  EXPECT_DOUBLE_EQ(ClsSLUModel(p).laws()->steel.hardening, 0);
}

TEST(SluMaterial, DoesNotReadTheSlopeOfPlasticSteel) {
  ClsSLUParameters p = usual();
  p.Plastic = 1;
  p.Slope = nan;
  EXPECT_TRUE(makes_a_material(p));
}

TEST(SluMaterial, KeepsItsParameters) {
  ClsSLUModel model;
  EXPECT_DOUBLE_EQ(model.getParameters().Eta, 1);
  EXPECT_DOUBLE_EQ(model.getParameters().Spare[3], 1.0000000000000002e-06);
  model.setParameters(usual());
  EXPECT_DOUBLE_EQ(model.getParameters().Slope, 1'192);
  EXPECT_TRUE(model.laws());
}

TEST(SluMaterial, MakesNoneBeforeItsValuesAreGiven) {
  EXPECT_FALSE(ClsSLUModel().laws());
}

TEST(SluMaterial, MakesNoneOfAValueThatIsNotPositiveAndFinite) {
  for (double ClsSLUParameters::*member :
       {&ClsSLUParameters::Es, &ClsSLUParameters::GammaC, &ClsSLUParameters::GammaS,
        &ClsSLUParameters::Rck, &ClsSLUParameters::AlfaCC, &ClsSLUParameters::Fyk,
        &ClsSLUParameters::Eta, &ClsSLUParameters::Ec2, &ClsSLUParameters::Ecu,
        &ClsSLUParameters::EudTension}) {
    for (const double value : {0.0, -1.0, nan, infinite}) {
      ClsSLUParameters p = usual();
      p.*member = value;
      EXPECT_FALSE(makes_a_material(p)) << value;
    }
  }
}

TEST(SluMaterial, MakesNoneOfASofteningOrEndlessSlope) {
  for (const double slope : {-1.0, nan, infinite}) {
    ClsSLUParameters p = usual();
    p.Slope = slope;
    EXPECT_FALSE(makes_a_material(p)) << slope;
  }
}

TEST(SluMaterial, MakesNoneWithTensionInConcrete) {
  ClsSLUParameters p = usual();
  p.TensionLaw = 1;
  EXPECT_FALSE(makes_a_material(p));
}

// 450 / 1e-307 exceeds the largest double.
TEST(SluMaterial, MakesNoneOfAStrengthThatOverflows) {
  ClsSLUParameters p = usual();
  p.GammaS = 1e-307;
  EXPECT_FALSE(makes_a_material(p));
}

TEST(SluMaterial, PutsNoLimitOnTheShorteningOfBars) {
  ClsSLUParameters p = usual();
  p.EudCompression = 0;
  EXPECT_TRUE(makes_a_material(p));
}

}  // namespace
