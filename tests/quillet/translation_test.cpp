// SPDX-License-Identifier: Apache-2.0
#include "quillet/translation.h"

#include <gtest/gtest.h>

#include <atomic>
#include <clocale>
#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace {

// The one text of the domain "quillet_test", which has an English and a German catalogue.
constexpr const char* italian = quillet::translatable("Piede della paratia");
constexpr const char* english = "Foot of the wall";
constexpr const char* german = "Fuß der Wand über Gelände";

std::optional<std::string> language_variable() {
  const char* value = std::getenv("LANGUAGE");
  return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

void set_language_variable(const std::optional<std::string>& value) {
  if (value) {
    setenv("LANGUAGE", value->c_str(), 1);
  } else {
    unsetenv("LANGUAGE");
  }
}

std::string locale_of(int category) {
  return std::setlocale(category, nullptr);
}

/// Begins each test in the locale "C" without LANGUAGE, with the tests' domain bound, and leaves
/// the process as it was.
class Translation : public testing::Test {
protected:
  void SetUp() override {
    language_ = language_variable();
    locale_ = locale_of(LC_ALL);
    set_language_variable(std::nullopt);
    std::setlocale(LC_ALL, "C");
    quillet::set_language("");
    iBindLocale("quillet_test");
  }

  void TearDown() override {
    quillet::set_language("");
    iBindLocale(nullptr);
    set_language_variable(language_);
    std::setlocale(LC_ALL, locale_.c_str());
  }

private:
  std::optional<std::string> language_;
  std::string locale_;
};

TEST_F(Translation, GivesTheSourceTextInThePlainLocale) {
  EXPECT_EQ(iTranslate(italian), italian);
}

TEST_F(Translation, ComesInTheChosenLanguage) {
  EXPECT_TRUE(quillet::set_language("en"));
  EXPECT_STREQ(iTranslate(italian), english);
}

TEST_F(Translation, FollowsEachChangeOfLanguage) {
  EXPECT_TRUE(quillet::set_language("en"));
  EXPECT_STREQ(iTranslate(italian), english);
  EXPECT_TRUE(quillet::set_language("de"));
  EXPECT_STREQ(iTranslate(italian), german);
  EXPECT_TRUE(quillet::set_language("it"));
  EXPECT_EQ(iTranslate(italian), italian);
  EXPECT_TRUE(quillet::set_language("en"));
  EXPECT_STREQ(iTranslate(italian), english);
}

TEST_F(Translation, TakesACountryAndACharacterSetInTheLanguage) {
  EXPECT_TRUE(quillet::set_language("en_GB.UTF-8"));
  EXPECT_STREQ(iTranslate(italian), english);
}

TEST_F(Translation, KnowsTheSourceLanguageOfAnyCountry) {
  quillet::set_language("en");
  EXPECT_TRUE(quillet::set_language("it_CH.UTF-8"));
  EXPECT_EQ(iTranslate(italian), italian);
  EXPECT_FALSE(quillet::set_language("ita"));
}

TEST_F(Translation, GivesTheSourceTextInALanguageWithoutCatalogue) {
  quillet::set_language("en");
  EXPECT_FALSE(quillet::set_language("fr"));
  EXPECT_EQ(iTranslate(italian), italian);
}

// The catalogue says UTF-8 and so does what comes out, although the characters of the locale "C"
// end at 127.
TEST_F(Translation, KeepsUmlautsInUtf8WhateverTheCharactersOfTheLocale) {
  ASSERT_EQ(locale_of(LC_CTYPE), "C");
  quillet::set_language("de");
  EXPECT_STREQ(iTranslate(italian), german);
}

TEST_F(Translation, ReturnsATextWithoutTranslationItself) {
  quillet::set_language("en");
  const std::string unknown = "Testa della paratia";
  EXPECT_EQ(iTranslate(unknown.c_str()), unknown.c_str());
}

// gettext keeps the header of a catalogue as the translation of the empty text.
TEST_F(Translation, OfAnEmptyOrNullTextIsEmpty) {
  quillet::set_language("en");
  EXPECT_STREQ(iTranslate(""), "");
  EXPECT_STREQ(iTranslate(nullptr), "");
}

TEST_F(Translation, NeedsNoChoiceWhereTheHostHasALocale) {
  set_language_variable("en");
  ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
  EXPECT_STREQ(iTranslate(italian), english);
}

TEST_F(Translation, GoesBackToWhatTheEnvironmentAsksFor) {
  set_language_variable("de");
  ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
  quillet::set_language("it");
  quillet::set_language("en");
  EXPECT_STREQ(iTranslate(italian), english);
  EXPECT_TRUE(quillet::set_language(""));
  EXPECT_STREQ(iTranslate(italian), german);
  EXPECT_EQ(language_variable(), "de");
  EXPECT_EQ(locale_of(LC_ALL), "C.UTF-8");
}

TEST_F(Translation, GoesBackToThePlainLocale) {
  quillet::set_language("en");
  quillet::set_language("de");
  EXPECT_TRUE(quillet::set_language(""));
  EXPECT_EQ(iTranslate(italian), italian);
  EXPECT_EQ(language_variable(), std::nullopt);
  EXPECT_EQ(locale_of(LC_ALL), "C");
}

TEST_F(Translation, GoesBackOnlyOnce) {
  quillet::set_language("en");
  quillet::set_language("");
  set_language_variable("de");
  quillet::set_language("");
  EXPECT_EQ(language_variable(), "de");
}

TEST_F(Translation, LeavesALocaleThatTheHostHasChosenMeanwhile) {
  quillet::set_language("en");
  ASSERT_NE(std::setlocale(LC_MESSAGES, "C.utf8"), nullptr);
  quillet::set_language("");
  EXPECT_EQ(locale_of(LC_MESSAGES), "C.utf8");
}

TEST_F(Translation, LeavesTheOtherCategoriesOfTheLocaleAlone) {
  quillet::set_language("de");
  EXPECT_EQ(locale_of(LC_MESSAGES), "C.UTF-8");
  for (const int category : {LC_CTYPE, LC_NUMERIC, LC_TIME, LC_COLLATE, LC_MONETARY, LC_PAPER}) {
    EXPECT_EQ(locale_of(category), "C") << "category " << category;
  }
}

TEST_F(Translation, LeavesALocaleThatIsNotPlainAlone) {
  ASSERT_NE(std::setlocale(LC_ALL, "C.utf8"), nullptr);
  EXPECT_TRUE(quillet::set_language("en"));
  EXPECT_EQ(locale_of(LC_ALL), "C.utf8");
}

TEST_F(Translation, RefusesWhatNoLanguageIsCalledBy) {
  quillet::set_language("en");
  const std::string with_zero("de\0x", 4);
  for (const std::string& refused :
       {std::string("/de"), std::string("../de"), std::string("de/.."), std::string("."),
        std::string(".."), std::string("de:en"), std::string(" "), std::string("de "),
        std::string("_"), std::string("1"), std::string("d\xC3\xA9"), with_zero}) {
    EXPECT_FALSE(quillet::set_language(refused)) << '"' << refused << '"';
    EXPECT_EQ(language_variable(), "en") << '"' << refused << '"';
    EXPECT_STREQ(iTranslate(italian), english) << '"' << refused << '"';
  }
}

// gettext copies the name onto the stack: ten million characters would end the process.
TEST_F(Translation, RefusesALanguageLongerThanSixtyFourCharacters) {
  quillet::set_language("en");
  EXPECT_FALSE(quillet::set_language(std::string(65, 'd')));
  EXPECT_FALSE(quillet::set_language(std::string(10'000'000, 'd')));
  EXPECT_STREQ(iTranslate(italian), english);
  EXPECT_FALSE(quillet::set_language(std::string(64, 'd')));
  EXPECT_EQ(iTranslate(italian), italian) << "a name of 64 characters counts";
}

TEST_F(Translation, StaysInTheSourceLanguageWithoutADomain) {
  quillet::set_language("en");
  for (const char* domain : {static_cast<const char*>(nullptr), ""}) {
    iBindLocale(domain);
    EXPECT_EQ(iTranslate(italian), italian);
    EXPECT_STREQ(iTranslate(nullptr), "");
    EXPECT_FALSE(quillet::set_language("en"));
    EXPECT_TRUE(quillet::set_language("it"));
    quillet::set_language("en");
    iBindLocale("quillet_test");
    EXPECT_STREQ(iTranslate(italian), english);
  }
}

TEST_F(Translation, StaysInTheSourceLanguageInADomainWithoutCatalogues) {
  iBindLocale("quillet_absent");
  EXPECT_FALSE(quillet::set_language("en"));
  EXPECT_EQ(iTranslate(italian), italian);
}

TEST_F(Translation, NeedsTheNameOfTheDomainOnlyDuringTheCall) {
  std::string domain = "quillet_test";
  iBindLocale(domain.c_str());
  domain.assign(domain.size(), '?');
  EXPECT_TRUE(quillet::set_language("en"));
  EXPECT_STREQ(iTranslate(italian), english);
}

TEST_F(Translation, IsTheSameInManyThreadsWhileTheDomainIsBoundAgain) {
  quillet::set_language("en");
  std::atomic<int> wrong{0};
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 4; ++thread) {
    threads.emplace_back([&wrong] {
      for (int turn = 0; turn < 500; ++turn) {
        if (turn % 50 == 0) iBindLocale("quillet_test");
        if (std::string(iTranslate(italian)) != english) ++wrong;
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(wrong, 0);
}

TEST_F(Translation, FindsTheCataloguesOfTheLibrary) {
  iBindLocale("Gorm");
  EXPECT_TRUE(quillet::set_language("en"));
  EXPECT_STREQ(iTranslate("Errore: "), "Error: ");
}

TEST(CatalogueFolder, OfAProgramIsThatOfItsBuildTree) {
  EXPECT_TRUE(std::filesystem::equivalent(quillet::catalogue_folder(), QUILLET_TEST_LOCALE_FOLDER))
      << quillet::catalogue_folder();
}

TEST(CatalogueFolder, OfALoadedModuleIsThatOfTheModule) {
  void* module = dlopen(QUILLET_TEST_MODULE, RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(module, nullptr) << dlerror();
  using FolderFunction = const char* (*)();
  const auto folder = reinterpret_cast<FolderFunction>(dlsym(module, "module_catalogue_folder"));
  ASSERT_NE(folder, nullptr) << dlerror();
  EXPECT_TRUE(std::filesystem::equivalent(folder(), QUILLET_TEST_MODULE_LOCALE_FOLDER)) << folder();
  dlclose(module);
}

}  // namespace
