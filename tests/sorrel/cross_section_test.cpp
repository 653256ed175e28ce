// SPDX-License-Identifier: Apache-2.0
#include "sorrel/cross_section.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <osg/ref_ptr>

#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

namespace {

using std::numbers::pi;
using testing::Each;

osg::ref_ptr<xCircSecProp> circle(double radius) {
  osg::ref_ptr<xCircSecProp> section = new xCircSecProp;
  section->setRadius(radius);
  section->computeProp();
  return section;
}

osg::ref_ptr<xRectSecProp> rectangle(double first, double second) {
  osg::ref_ptr<xRectSecProp> section = new xRectSecProp;
  section->setFirst(first);
  section->setSecond(second);
  section->computeProp();
  return section;
}

std::vector<double> stored_values(const xCrossSecProp& s) {
  return {s.getArea(), s.getJy(), s.getJz(), s.getJp(), s.getJt(),
          s.getRy(),   s.getRz(), s.getWy(), s.getWz(), s.getBendingJ()};
}

std::vector<double> computed_values(const xCrossSecProp& s) {
  return {s.ComputeArea(), s.ComputeJy(), s.ComputeJz(), s.ComputeJp(), s.ComputeJt(),
          s.ComputeRy(),   s.ComputeRz(), s.ComputeWy(), s.ComputeWz(), s.ComputeJz()};
}

// r = 400: r² = 160 000, r³ = 6.4e7, r⁴ = 2.56e10.
TEST(CircularSection, HasTheValuesOfAFullCircle) {
  const auto pile = circle(400);
  EXPECT_DOUBLE_EQ(pile->getArea(), pi * 160'000);
  EXPECT_DOUBLE_EQ(pile->getJy(), pi * 6.4e9);
  EXPECT_DOUBLE_EQ(pile->getJz(), pi * 6.4e9);
  EXPECT_DOUBLE_EQ(pile->getJp(), pi * 1.28e10);
  EXPECT_DOUBLE_EQ(pile->getJt(), pi * 1.28e10);
  EXPECT_DOUBLE_EQ(pile->getRy(), 200);
  EXPECT_DOUBLE_EQ(pile->getRz(), 200);
  EXPECT_DOUBLE_EQ(pile->getWy(), pi * 1.6e7);
  EXPECT_DOUBLE_EQ(pile->getWz(), pi * 1.6e7);
}

// pi 400⁴ / 4 = 3.14159265 * 6.4e9 = 2.010619298e10.
TEST(CircularSection, BendsWithAQuarterOfPiTimesTheFourthPowerOfTheRadius) {
  EXPECT_NEAR(circle(400)->getBendingJ(), 2.010619298e10, 10.0);
}

// first 1000 along y, second 800 along z:
//   Jy = 1000 * 800³ / 12 = 5.12e11 / 12, Jz = 800 * 1000³ / 12 = 8e11 / 12, Jp = 13.12e11 / 12
//   Ry = 800 / sqrt(12), Rz = 1000 / sqrt(12)
//   Wy = 1000 * 800² / 6 = 6.4e8 / 6, Wz = 800 * 1000² / 6 = 8e8 / 6
TEST(RectangularSection, HasTheValuesOfAFullRectangle) {
  const auto panel = rectangle(1000, 800);
  EXPECT_DOUBLE_EQ(panel->getArea(), 800'000);
  EXPECT_DOUBLE_EQ(panel->getJy(), 5.12e11 / 12);
  EXPECT_DOUBLE_EQ(panel->getJz(), 8e11 / 12);
  EXPECT_DOUBLE_EQ(panel->getJp(), 13.12e11 / 12);
  EXPECT_DOUBLE_EQ(panel->getRy(), 800 / std::sqrt(12.0));
  EXPECT_DOUBLE_EQ(panel->getRz(), 1000 / std::sqrt(12.0));
  EXPECT_DOUBLE_EQ(panel->getWy(), 6.4e8 / 6);
  EXPECT_DOUBLE_EQ(panel->getWz(), 8e8 / 6);
}

// 800 * 1000³ / 12 = 6.666...e10; the other way about it would be 4.266...e10.
TEST(RectangularSection, BendsWithTheFirstDimensionAsItsDepth) {
  EXPECT_DOUBLE_EQ(rectangle(1000, 800)->getBendingJ(), 2e11 / 3);
}

// The table of k1 in Timoshenko, Goodier: Theory of Elasticity, art. 109: J = k1 l s³ for the full
// sides l >= s. Half a unit of the last printed digit is allowed. As the book's last line is for a
// strip without end, l / s = 10 000 stands for it: 1/3 - 0.63 / 3 * 1e-4 = 0.3333.
TEST(RectangularSection, HasThePublishedTorsionConstants) {
  struct Row {
    double ratio, k1, half_digit;
  };
  const std::vector<Row> table = {{1, 0.1406, 5e-5},    {1.2, 0.166, 5e-4}, {1.5, 0.196, 5e-4},
                                  {2, 0.229, 5e-4},     {2.5, 0.249, 5e-4}, {3, 0.263, 5e-4},
                                  {4, 0.281, 5e-4},     {5, 0.291, 5e-4},   {10, 0.312, 5e-4},
                                  {10'000, 0.333, 5e-4}};
  for (const Row& row : table) {
    const double s = 500;
    const double jt = rectangle(row.ratio * s, s)->getJt();
    EXPECT_NEAR(jt / (row.ratio * s * s * s * s), row.k1, row.half_digit) << "l/s " << row.ratio;
  }
}

/// The series summed plainly, 64/pi⁵ and tanh, with `s` as the side along which the stress function
/// is developed. Since the stress function is the same whichever side one takes, the sum also holds
/// for s > l, where it is a check independent of the order of the sides. Its tail after the last
/// term N is below 1 / (8 N⁴) = 5e-16.
double plain_series(double l, double s) {
  double sum = 0.0;
  for (int n = 4001; n >= 1; n -= 2) {
    sum += std::tanh(n * pi * l / (2 * s)) / std::pow(n, 5);
  }
  return l * s * s * s * (1.0 / 3.0 - 64.0 / std::pow(pi, 5) * (s / l) * sum);
}

TEST(RectangularSection, HasTheTorsionConstantOfTheSeriesToDoublePrecision) {
  for (const double ratio : {1.0, 1.1, 1.7, 3.0, 8.0, 50.0}) {
    const double expected = plain_series(ratio, 1);
    EXPECT_NEAR(rectangle(ratio, 1)->getJt() / expected, 1.0, 2e-15) << "l/s " << ratio;
  }
}

// Developed along the long side the bracket shrinks to k1 (s/l)², for l/s = 3 to 0.263 / 9 = 0.029.
// The tail, 64/pi⁵ * 3 * 5e-16 = 3e-16, is 1e-14 of that, and the rounding of 1/3 less than half
// so.
TEST(RectangularSection, HasTheSameTorsionConstantDevelopedAlongTheOtherSide) {
  for (const double ratio : {1.0, 1.1, 1.7, 3.0}) {
    const double expected = plain_series(1, ratio);
    EXPECT_NEAR(rectangle(ratio, 1)->getJt() / expected, 1.0, 2e-14) << "l/s " << ratio;
  }
}

TEST(RectangularSection, HasOneTorsionConstantWhicheverSideIsFirst) {
  EXPECT_DOUBLE_EQ(rectangle(1000, 800)->getJt(), rectangle(800, 1000)->getJt());
}

// s / l = 1e-100: the bracket is 1/3 to the last digit. J = 1e60 * (1e-40)³ / 3 = 1e-60 / 3.
TEST(RectangularSection, HasAThirdOfLengthTimesThicknessCubedAsAnEndlessStrip) {
  EXPECT_DOUBLE_EQ(rectangle(1e60, 1e-40)->getJt() / 1e-60, 1.0 / 3.0);
}

TEST(CrossSection, HasNoValuesBeforeTheyAreComputed) {
  const osg::ref_ptr<xCircSecProp> pile = new xCircSecProp;
  pile->setRadius(400);
  EXPECT_THAT(stored_values(*pile), Each(0.0));
  EXPECT_DOUBLE_EQ(pile->ComputeArea(), pi * 160'000);
}

// After the change of the radius from 400 to 100 the area stays pi 400² until computed anew.
TEST(CrossSection, KeepsItsValuesUntilTheyAreComputedAnew) {
  const auto pile = circle(400);
  pile->setRadius(100);
  EXPECT_DOUBLE_EQ(pile->getArea(), pi * 160'000);
  pile->computeProp();
  EXPECT_DOUBLE_EQ(pile->getArea(), pi * 10'000);
}

TEST(CrossSection, StoresWhatTheSingleOperationsGive) {
  const auto pile = circle(350);
  const auto panel = rectangle(600, 2500);
  EXPECT_EQ(stored_values(*pile), computed_values(*pile));
  EXPECT_EQ(stored_values(*panel), computed_values(*panel));
}

TEST(CrossSection, HasDimensionsOfZeroWhenNew) {
  const osg::ref_ptr<xCircSecProp> pile = new xCircSecProp;
  const osg::ref_ptr<xRectSecProp> panel = new xRectSecProp;
  pile->computeProp();
  panel->computeProp();
  EXPECT_EQ(pile->getRadius(), 0.0);
  EXPECT_EQ(panel->getFirst(), 0.0);
  EXPECT_EQ(panel->getSecond(), 0.0);
  EXPECT_THAT(stored_values(*pile), Each(0.0));
  EXPECT_THAT(stored_values(*panel), Each(0.0));
}

class BadDimension : public testing::TestWithParam<double> {};

TEST_P(BadDimension, MakesACircleOfNoValues) {
  EXPECT_THAT(stored_values(*circle(GetParam())), Each(0.0));
}

TEST_P(BadDimension, MakesARectangleOfNoValuesOnEitherSide) {
  EXPECT_THAT(stored_values(*rectangle(GetParam(), 800)), Each(0.0));
  EXPECT_THAT(stored_values(*rectangle(1000, GetParam())), Each(0.0));
  EXPECT_THAT(stored_values(*rectangle(GetParam(), GetParam())), Each(0.0));
}

TEST_P(BadDimension, ReplacesFormerValuesByZero) {
  const auto pile = circle(400);
  pile->setRadius(GetParam());
  pile->computeProp();
  EXPECT_THAT(stored_values(*pile), Each(0.0));
  EXPECT_THAT(computed_values(*pile), Each(0.0));
}

using Limits = std::numeric_limits<double>;
INSTANTIATE_TEST_SUITE_P(CrossSection, BadDimension,
                         testing::Values(0.0, -0.0, -400.0, Limits::quiet_NaN(), Limits::infinity(),
                                         -Limits::infinity(), Limits::max(), Limits::denorm_min(),
                                         1.0000001e60, 0.9999999e-60));

// At both ends of the range every value is a positive double.
TEST(CrossSection, HasOrdinaryValuesAtTheEndsOfTheRange) {
  const auto ordinary = Each(testing::AllOf(testing::Gt(0.0), testing::Le(Limits::max())));
  EXPECT_THAT(stored_values(*circle(1e60)), ordinary);
  EXPECT_THAT(stored_values(*circle(1e-60)), ordinary);
  EXPECT_THAT(stored_values(*rectangle(1e60, 1e-60)), ordinary);
  EXPECT_THAT(stored_values(*rectangle(1e-60, 1e60)), ordinary);
  EXPECT_THAT(stored_values(*rectangle(1e60, 1e60)), ordinary);
  EXPECT_THAT(stored_values(*rectangle(1e-60, 1e-60)), ordinary);
}

TEST(CrossSection, ClonesItsKindDimensionsAndValues) {
  const auto panel = rectangle(1000, 800);
  const osg::ref_ptr<xCrossSecProp> base = panel.get();
  const osg::ref_ptr<xCrossSecProp> copy = base->clone();
  auto* const copied_panel = dynamic_cast<xRectSecProp*>(copy.get());
  ASSERT_NE(copied_panel, nullptr);
  EXPECT_EQ(copied_panel->getFirst(), 1000.0);
  EXPECT_EQ(copied_panel->getSecond(), 800.0);
  EXPECT_EQ(stored_values(*copy), stored_values(*panel));

  const osg::ref_ptr<xCircSecProp> pile_copy = circle(400)->clone();
  EXPECT_EQ(pile_copy->getRadius(), 400.0);
  EXPECT_DOUBLE_EQ(pile_copy->getArea(), pi * 160'000);
}

TEST(CrossSection, LeavesItsCloneAloneWhenItChanges) {
  const auto pile = circle(400);
  const osg::ref_ptr<xCircSecProp> copy = pile->clone();
  EXPECT_EQ(copy->referenceCount(), 1);
  pile->setRadius(100);
  pile->computeProp();
  EXPECT_EQ(copy->getRadius(), 400.0);
  EXPECT_DOUBLE_EQ(copy->getArea(), pi * 160'000);
}

}  // namespace
