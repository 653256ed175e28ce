// SPDX-License-Identifier: Apache-2.0
#include "slope/ignored_circles.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using ostrel::slope::IgnoredAtCentre;

TEST(IgnoredCircles, OfOneCentreAreOneRange) {
  std::vector<err_circle> ignored;
  IgnoredAtCentre first(ignored, 1000, 2000);
  first.add(50);
  first.add(70);
  first.add(60);
  IgnoredAtCentre other(ignored, 1000, 2001);
  other.add(10);
  // The same centre in a later combination, nearer than 1e-5 in x and y.
  IgnoredAtCentre again(ignored, 1000 + 9e-6, 2000 - 9e-6);
  again.add(40);
  ASSERT_EQ(ignored.size(), 2U);
  EXPECT_DOUBLE_EQ(ignored[0].x, 1000.0);
  EXPECT_DOUBLE_EQ(ignored[0].Rmin, 40.0);
  EXPECT_DOUBLE_EQ(ignored[0].Rmax, 70.0);
  EXPECT_DOUBLE_EQ(ignored[1].y, 2001.0);
  EXPECT_DOUBLE_EQ(ignored[1].Rmin, 10.0);
  EXPECT_DOUBLE_EQ(ignored[1].Rmax, 10.0);
}

TEST(IgnoredCircles, BeyondTheToleranceAreAnotherCentre) {
  std::vector<err_circle> ignored;
  IgnoredAtCentre(ignored, 0, 0).add(1);
  IgnoredAtCentre(ignored, 2e-5, 0).add(1);
  EXPECT_EQ(ignored.size(), 2U);
}

TEST(IgnoredCircles, AreReportedInMetres) {
  std::vector<xVeldError> errors;
  ostrel::slope::reportIgnoredCircles({{.x = -2500, .y = 1234.6, .Rmin = 14'500, .Rmax = 14'500},
                                       {.x = 2000, .y = -1000, .Rmin = 14'000, .Rmax = 16'750}},
                                      errors);
  ASSERT_EQ(errors.size(), 2U);
  EXPECT_EQ(
      errors[0].GetErrorStr(),
      "Il cerchio di centro (-2.50,1.23) di raggio R=14.50, e' ignorato perche' il centro e' al "
      "di sotto dell'intersezione con il profilo");
  EXPECT_EQ(
      errors[1].GetErrorStr(),
      "I cerchi di centro (2.00,-1.00) e raggi tra [14.00,16.75], sono stati ignorati perche' "
      "il centro e' al di sotto dell'intersezione con il profilo");
  EXPECT_EQ(errors[0].getID(), -1);
  EXPECT_EQ(errors[0].getErr(), veldWarning);
  EXPECT_EQ(errors[0].getIdObj(), -1);
}

TEST(IgnoredCircles, OfAnySizeAreReported) {
  std::vector<xVeldError> errors;
  ostrel::slope::reportIgnoredCircles(
      {{.x = 1e300, .y = std::numeric_limits<double>::quiet_NaN(), .Rmin = 1, .Rmax = 2}}, errors);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_GT(errors[0].GetErrorStr().size(), 290U);
}

}  // namespace
