// SPDX-License-Identifier: Apache-2.0
#include "ferrule/concrete_domain.h"

#include "ferrule/sections_testing.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using Ferrule::ClsDomain;
using Ferrule::ClsSLUModel;
using Ferrule::SteelBar;
using Ferrule::testing::round_material;

constexpr std::array<double, 3> x{0, 400, 0};
constexpr std::array<double, 3> y{0, 0, 300};

std::array<SteelBar, 2> two_bars() {
  std::array<SteelBar, 2> bars;
  bars[0].setPosR(50, 60, 8);
  bars[1].setPosR(-50, -60, 10);
  return bars;
}

TEST(ConcreteDomain, KeepsItsOutlineInTheOrderGiven) {
  ClsDomain domain;
  domain.setExternBoundary(3, x.data(), y.data());
  const auto outline = domain.externBoundary();
  ASSERT_EQ(outline.size(), 3U);
  EXPECT_DOUBLE_EQ(outline[1].x, 400);
  EXPECT_DOUBLE_EQ(outline[2].y, 300);
}

TEST(ConcreteDomain, HasNoOutlineOfLessThanThreeVerticesOrWithoutCoordinates) {
  ClsDomain domain;
  domain.setExternBoundary(3, x.data(), y.data());
  domain.setExternBoundary(2, x.data(), y.data());
  EXPECT_TRUE(domain.externBoundary().empty());
  domain.setExternBoundary(3, nullptr, y.data());
  EXPECT_TRUE(domain.externBoundary().empty());
  domain.setExternBoundary(3, x.data(), nullptr);
  EXPECT_TRUE(domain.externBoundary().empty());
  domain.setExternBoundary(-3, x.data(), y.data());
  EXPECT_TRUE(domain.externBoundary().empty());
}

TEST(ConcreteDomain, CopiesTheLawsOfAModel) {
  ClsDomain domain;
  EXPECT_FALSE(domain.laws());
  {
    const ClsSLUModel model(round_material());
    domain.setMatModel(&model);
  }
  ASSERT_TRUE(domain.laws());
  EXPECT_DOUBLE_EQ(domain.laws()->steel.modulus, 200'000);
  domain.setMatModel(nullptr);
  EXPECT_FALSE(domain.laws());
}

TEST(ConcreteDomain, ReplacesItsBarsByACopy) {
  ClsDomain domain;
  auto bars = two_bars();
  domain.setBars(2, bars.data());
  bars[1].setPosR(0, 0, 0);
  ASSERT_EQ(domain.bars().size(), 2U);
  EXPECT_DOUBLE_EQ(domain.bars()[1].getX(), -50);
  EXPECT_DOUBLE_EQ(domain.bars()[1].getY(), -60);
  EXPECT_DOUBLE_EQ(domain.bars()[1].getRadius(), 10);
  domain.setBars(1, bars.data());
  EXPECT_EQ(domain.bars().size(), 1U);
}

TEST(ConcreteDomain, TakesBarsFromAmongItsOwn) {
  ClsDomain domain;
  const auto bars = two_bars();
  domain.setBars(2, bars.data());
  domain.setBars(1, domain.bars().data() + 1);
  ASSERT_EQ(domain.bars().size(), 1U);
  EXPECT_DOUBLE_EQ(domain.bars()[0].getX(), -50);
}

TEST(ConcreteDomain, HasNoBarsOfANullPointerOrANegativeCount) {
  ClsDomain domain;
  const auto bars = two_bars();
  domain.setBars(2, bars.data());
  domain.setBars(2, nullptr);
  EXPECT_TRUE(domain.bars().empty());
  domain.setBars(2, bars.data());
  domain.setBars(-2, bars.data());
  EXPECT_TRUE(domain.bars().empty());
}

TEST(ConcreteDomain, KeepsItsName) {
  ClsDomain domain;
  domain.setName("Esist.");
  EXPECT_EQ(domain.getName(), "Esist.");
  domain.setName(nullptr);
  EXPECT_EQ(domain.getName(), "");
}

TEST(ConcreteDomain, HasTheScaleCoefficientOneUntilItIsGivenAnother) {
  ClsDomain domain;
  EXPECT_DOUBLE_EQ(domain.getScaleCoefficient(), 1);
  domain.setScaleCoefficient(0.5);
  EXPECT_DOUBLE_EQ(domain.getScaleCoefficient(), 0.5);
}

TEST(ConcreteDomain, TellsNewBarsFromANewOutline) {
  ClsDomain domain;
  const auto revision = domain.revision();
  const auto outline_revision = domain.outlineRevision();
  domain.setBars(0, nullptr);
  EXPECT_NE(domain.revision(), revision);
  EXPECT_EQ(domain.outlineRevision(), outline_revision);
  domain.setExternBoundary(3, x.data(), y.data());
  EXPECT_NE(domain.outlineRevision(), outline_revision);
}

}  // namespace
