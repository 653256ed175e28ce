// SPDX-License-Identifier: Apache-2.0
#include "validation/published_case.h"

#include "validation/chapters.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <string>

namespace ostrel::validation {
namespace {

// 1 % of 200 and 0.5: 2.5.
TEST(Figure, AgreesWithinTheSumOfBothTolerances) {
  const Tolerance tolerance{.relative = 0.01, .absolute = 0.5};
  EXPECT_DOUBLE_EQ((Figure{"", "", -200, 0, tolerance}.allowed()), 2.5);
  EXPECT_TRUE((Figure{"", "", -200, -202.5, tolerance}.agrees()));
  EXPECT_FALSE((Figure{"", "", -200, -202.6, tolerance}.agrees()));
  EXPECT_FALSE((Figure{"", "", -200, 200, tolerance}.agrees()));
}

TEST(Figure, DoesNotAgreeWithoutANumber) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE((Figure{"", "", 1.0, nan, {.absolute = 10.0}}.agrees()));
}

TEST(Figure, RefersToTheRuleWhereThereIsOne) {
  const Figure figure{"", "", 100, 80, {.relative = 0.01}, 80.5};
  EXPECT_TRUE(figure.agrees());
  EXPECT_DOUBLE_EQ(figure.difference(), -20.0);
}

void expect_agreement(const Chapter& chapter) {
  EXPECT_FALSE(chapter.cases.empty());
  for (const Case& each : chapter.cases) {
    EXPECT_FALSE(each.figures.empty()) << each.id;
    for (const Figure& figure : each.figures)
      EXPECT_TRUE(figure.agrees())
          << each.id << ", " << figure.what << ": " << figure.ours << " against "
          << figure.reference() << ", allowed " << figure.allowed();
  }
}

TEST(PublishedCases, OfEarthPressureCoefficientsAgree) {
  expect_agreement(earth_pressure_coefficients());
}
TEST(PublishedCases, OfPressureDiagramsAgree) {
  expect_agreement(pressure_diagrams());
}
TEST(PublishedCases, OfLoadsOnTheGroundAgree) {
  expect_agreement(surcharges());
}
TEST(PublishedCases, OfBeamsOnSpringsAgree) {
  expect_agreement(beams_on_springs());
}
TEST(PublishedCases, OfConcreteSectionsAgree) {
  expect_agreement(concrete_sections());
}
TEST(PublishedCases, OfShearAgree) {
  expect_agreement(shear_strength());
}
TEST(PublishedCases, OfBearingCapacityAgree) {
  expect_agreement(bearing_capacity());
}
TEST(PublishedCases, OfAnchorBondAgree) {
  expect_agreement(anchor_bond());
}
TEST(PublishedCases, OfPipingAndUpliftAgree) {
  expect_agreement(water_verifications());
}
TEST(PublishedCases, OfSlipCirclesAgree) {
  expect_agreement(slip_circles());
}
TEST(PublishedCases, OfWholeWallsAgree) {
  expect_agreement(whole_walls());
}

TEST(PublishedCases, SayWhyTheyDiffer) {
  for (const Chapter& chapter : all_chapters()) {
    for (const Case& each : chapter.cases) {
      bool differs = each.likeness != Likeness::same_formula;
      for (const Figure& figure : each.figures)
        differs = differs || figure.by_rule.has_value();
      EXPECT_TRUE(!differs || !each.reason.empty()) << each.id;
    }
  }
}

TEST(PublishedCases, HaveASourceAndANameOfTheirOwn) {
  std::set<std::string> names;
  for (const Chapter& chapter : all_chapters()) {
    for (const Case& each : chapter.cases) {
      EXPECT_TRUE(names.insert(each.id).second) << each.id;
      EXPECT_FALSE(each.source.empty()) << each.id;
      EXPECT_FALSE(each.inputs.empty()) << each.id;
    }
  }
}

}  // namespace
}  // namespace ostrel::validation
