// SPDX-License-Identifier: Apache-2.0
#include "bilingual.h"

#include <gtest/gtest.h>

#include <array>

namespace ostrel::host {
namespace {

TEST(Both, IsReadInOneLanguage) {
  const Both text{"uno", "one"};
  EXPECT_EQ(text.in(Language::italian), "uno");
  EXPECT_EQ(text.in(Language::english), "one");
}

TEST(Both, IsPutTogether) {
  const Both text = Both{"quota ", "level "} + same("A");
  EXPECT_EQ(text.italian, "quota A");
  EXPECT_EQ(text.english, "level A");
}

TEST(Entry, IsUnknownBeyondTheTable) {
  static const std::array<Both, 1> texts{{{"uno", "one"}}};
  EXPECT_EQ(entry(texts, 0).english, "one");
  EXPECT_EQ(entry(texts, 1).english, "?");
}

TEST(Decimals, HaveACommaInItalian) {
  const Both text = decimals("x -4.0 y 4.5 R 21.05 m");
  EXPECT_EQ(text.italian, "x -4,0 y 4,5 R 21,05 m");
  EXPECT_EQ(text.english, "x -4.0 y 4.5 R 21.05 m");
}

TEST(Decimals, LeavePointsThatStandBetweenNoDigits) {
  EXPECT_EQ(decimals("max. 2 m.").italian, "max. 2 m.");
  EXPECT_EQ(decimals(".5 5.").italian, ".5 5.");
  EXPECT_EQ(decimals("").italian, "");
}

// "Norma {0}: combinazioni aggiunte {1}" is "Standard {0}: {1} combinations added".
TEST(Retold, GivesATextOfEitherLanguageInBoth) {
  for (const Language language : {Language::italian, Language::english}) {
    const auto text =
        retold(Texts(language)(Text::standard_expanded, "NTC2008", 6), Text::standard_expanded);
    ASSERT_TRUE(text.has_value());
    EXPECT_EQ(text->italian, "Norma NTC2008: combinazioni aggiunte 6");
    EXPECT_EQ(text->english, "Standard NTC2008: 6 combinations added");
  }
}

// What stands in a place may hold the words around it.
TEST(Retold, KeepsWhatWasPutIn) {
  const std::string name = "a: 1 combinations added";
  const auto text = retold(Texts(Language::english)(Text::standard_unconfirmed, name),
                           Text::standard_unconfirmed);
  ASSERT_TRUE(text.has_value());
  EXPECT_EQ(text->italian, "Nota: valori da confermare sulla norma: " + name);
}

TEST(Retold, IsNotThereForATextOfAnotherForm) {
  EXPECT_FALSE(retold("", Text::standard_expanded).has_value());
  EXPECT_FALSE(retold("Standard NTC2008", Text::standard_expanded).has_value());
  EXPECT_FALSE(retold("Norma NTC2008: altro", Text::standard_expanded).has_value());
}

TEST(Retold, TakesATextWithoutPlaces) {
  const auto text = retold("carattere mancante", Text::valid_json);
  EXPECT_FALSE(text.has_value());
  const std::string italian(Texts(Language::italian)(Text::satisfied));
  const auto same_form = retold(italian, Text::satisfied);
  ASSERT_TRUE(same_form.has_value());
  EXPECT_EQ(same_form->english, Texts(Language::english)(Text::satisfied));
}

}  // namespace
}  // namespace ostrel::host
