// SPDX-License-Identifier: Apache-2.0
#include "ostrel/language.h"

#include "ostrel/error.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(SetLanguage, SwitchesTheMessagesOfTheLibrary) {
  ASSERT_TRUE(ostrel::set_language("en"));
  EXPECT_EQ(xVeldError("", 0, xVeldError::typeWarning).MakeErrStr(), "Warning: ");
  ASSERT_TRUE(ostrel::set_language("it"));
  EXPECT_EQ(xVeldError("", 0, xVeldError::typeWarning).MakeErrStr(), "Attenzione: ");
  ostrel::set_language("");
}

TEST(SetLanguage, ToOneWithoutACatalogueKeepsTheSourceTexts) {
  EXPECT_FALSE(ostrel::set_language("tlh"));
  EXPECT_EQ(xVeldError("", 0, xVeldError::typeWarning).MakeErrStr(), "Attenzione: ");
  ostrel::set_language("");
}

}  // namespace
