// SPDX-License-Identifier: Apache-2.0
#include "services/label_table.h"

#include "ostrel/language.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

using ostrel::services::fill_once;

TEST(FillOnce, KeepsTheLanguageOfTheFirstCall) {
  std::map<int, std::string> table;
  ASSERT_TRUE(ostrel::set_language("en"));
  auto* const first = fill_once(table, {{0, "Attenzione: "}});
  EXPECT_EQ(table.at(0), "Warning: ");
  ASSERT_TRUE(ostrel::set_language("it"));
  auto* const second = fill_once(table, {{0, "Attenzione: "}});
  EXPECT_EQ(table.at(0), "Warning: ");
  EXPECT_EQ(first, second);
  ostrel::set_language("");
}

TEST(FillOnce, LeavesATableThatHoldsSomethingAsItStands) {
  std::map<int, std::string> table{{5, "own"}};
  fill_once(table, {{0, "Rara"}});
  EXPECT_EQ(table.size(), 1U);
}

TEST(FillOnce, HasNothingForAValueOutsideTheTable) {
  std::map<int, std::string> table;
  fill_once(table, {{0, "Rara"}, {1, "Frequente"}});
  EXPECT_EQ(table.count(2), 0U);
}

}  // namespace
