// SPDX-License-Identifier: Apache-2.0
#include "texts.h"

#include "texts_testing.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <set>
#include <string>

namespace ostrel::host {
namespace {

std::multiset<std::string> places(std::string_view text) {
  std::multiset<std::string> found;
  for (std::size_t i = 0; i + 2 < text.size(); ++i) {
    if (text[i] == '{' && text[i + 2] == '}') found.insert(std::string(text.substr(i, 3)));
  }
  return found;
}

TEST(Texts, AreThereInBothLanguagesWithTheSamePlaces) {
  for (std::int32_t i = 0; i < static_cast<std::int32_t>(Text::count_); ++i) {
    const auto text = static_cast<Text>(i);
    EXPECT_FALSE(italian(text).empty()) << i;
    EXPECT_FALSE(english(text).empty()) << i;
    EXPECT_EQ(places(italian(text)), places(english(text))) << english(text);
  }
}

TEST(Texts, PutNumbersInTheirPlaces) {
  EXPECT_EQ(Texts(Language::italian)(Text::at_most, 2.5), "non maggiore di 2.5");
  EXPECT_EQ(Texts(Language::english)(Text::at_most, 2.5), "not above 2.5");
}

class Environment : public ::testing::Test {
protected:
  void SetUp() override {
    for (const char* name : names) {
      const char* value = std::getenv(name);
      if (value != nullptr) kept_[name] = value;
      unsetenv(name);
    }
  }
  void TearDown() override {
    for (const char* name : names)
      unsetenv(name);
    for (const auto& [name, value] : kept_)
      setenv(name.c_str(), value.c_str(), 1);
  }

  static constexpr const char* names[] = {"LC_ALL", "LC_MESSAGES", "LANG"};
  std::map<std::string, std::string> kept_;
};

TEST_F(Environment, AsksForItalianOrElseGetsEnglish) {
  EXPECT_EQ(language_of_environment(), Language::english);
  setenv("LANG", "it_IT.UTF-8", 1);
  EXPECT_EQ(language_of_environment(), Language::italian);
  setenv("LC_MESSAGES", "de_DE.UTF-8", 1);
  EXPECT_EQ(language_of_environment(), Language::english);
  setenv("LC_ALL", "it", 1);
  EXPECT_EQ(language_of_environment(), Language::italian);
}

TEST(Languages, HaveCodes) {
  EXPECT_EQ(language_of("it", Language::english), Language::italian);
  EXPECT_EQ(language_of("en", Language::italian), Language::english);
  EXPECT_EQ(language_of("fr", Language::italian), Language::italian);
  EXPECT_STREQ(code_of(Language::italian), "it");
  EXPECT_STREQ(code_of(Language::english), "en");
}

}  // namespace
}  // namespace ostrel::host
