// SPDX-License-Identifier: Apache-2.0
#include "ostrel/calc_settings.h"

#include <gtest/gtest.h>

namespace {

void expect_defaults(const xCalcSettings& settings) {
  EXPECT_EQ(settings.getCalcName(), "");
  EXPECT_EQ(settings.get_EpFormuls(false), formulaAtRest);
  EXPECT_EQ(settings.get_EpFormuls(true), formulaMononobeOkabe);
  EXPECT_EQ(static_cast<int>(settings.get_EpFormuls(true)), 3);
  EXPECT_DOUBLE_EQ(settings.getStepMolle(), 250.0);
  EXPECT_DOUBLE_EQ(settings.getDispLim(), 25.4);
  EXPECT_EQ(settings.slope.getFormulation(), 0);
}

TEST(CalcSettings, HaveTheirDefaultsWhenNew) {
  expect_defaults(xCalcSettings{});
}

TEST(CalcSettings, ResetRestoresTheDefaults) {
  xCalcSettings settings;
  settings.setCalcName("A");
  settings.setEpFormuls(false, formulaRankine);
  settings.setEpFormuls(true, formulaWood);
  settings.setStepMolle(100.0);
  settings.setDispLim(10.0);
  settings.slope.setFormulation(1);
  EXPECT_EQ(settings.get_EpFormuls(false), formulaRankine);
  EXPECT_EQ(settings.get_EpFormuls(true), formulaWood);
  settings.reset();
  expect_defaults(settings);
}

}  // namespace
