// SPDX-License-Identifier: Apache-2.0
#include "ostrel/spring_interval.h"

#include "support/fresh_process.h"
#include "support/label_table_testing.h"

#include <gtest/gtest.h>

using namespace ostrel::testing;

namespace {

TEST(SpringInterval, IsTheWholeLengthWithTheSmallerLimitWhenNew) {
  const xSpringInterval interval;
  EXPECT_EQ(interval.type, static_cast<xSpringInterval::QlimSpring>(2));
  EXPECT_EQ(interval.start, 0.0);
  EXPECT_EQ(interval.end, 1.0);
  EXPECT_EQ(interval.factor, 1.0);
}

TEST(SpringInterval, TakesItsEndsThenLimitThenMultiplier) {
  const xSpringInterval interval(0.25, 0.75, xSpringInterval::limitPassive, 1.5);
  EXPECT_EQ(interval.start, 0.25);
  EXPECT_EQ(interval.end, 0.75);
  EXPECT_EQ(interval.type, xSpringInterval::limitPassive);
  EXPECT_EQ(interval.factor, 1.5);
}

TEST(SpringInterval, NamesTheLimitsOfASpring) {
  expect_in_fresh_process([] {
    expect_labels(xSpringInterval::QlimSpringypeMap,
                  {"Ultima", "Passiva", "Minimo tra Passiva e Ultima"});
  });
}

TEST(SpringInterval, HasTheNumbersThatAreStored) {
  EXPECT_EQ(static_cast<int>(xSpringInterval::limitUltimate), 0);
  EXPECT_EQ(static_cast<int>(xSpringInterval::limitPassive), 1);
  EXPECT_EQ(static_cast<int>(xSpringInterval::limitSmaller), 2);
}

TEST(SpringInterval, KeepsTheLanguageOfTheFirstUse) {
  expect_in_fresh_process(
      [] { expect_kept_language(xSpringInterval::QlimSpringypeMap, "Ultima"); });
}

}  // namespace
