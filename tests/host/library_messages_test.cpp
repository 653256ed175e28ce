// SPDX-License-Identifier: Apache-2.0
#include "library_messages.h"

#include <ostrel/language.h>

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <string>
#include <thread>
#include <vector>

namespace ostrel::host {
namespace {

using ::testing::HasSubstr;

// Both catalogues of this tree hold these words for the code of a mechanism.
constexpr const char* mechanism_it =
    "Soluzione del sistema di equazioni non effettuata, controllare la labilita'";
constexpr const char* mechanism_en =
    "The system of equations could not be solved, check whether the structure is a mechanism";

class LibraryMessages : public ::testing::Test {
protected:
  void SetUp() override { choose_language(Language::italian); }
  void TearDown() override { ostrel::set_language("it"); }
};

TEST_F(LibraryMessages, AreToldInBothLanguagesWhicheverTheyWereMadeIn) {
  for (const Language language : {Language::italian, Language::english}) {
    choose_language(language);
    const Both text = in_both(xVeldError(errEquationSolve, 1, nullptr));
    EXPECT_EQ(text.italian, mechanism_it);
    EXPECT_EQ(text.english, mechanism_en);
  }
}

TEST_F(LibraryMessages, KeepTheNameOfTheCombination) {
  const Both text = in_both(xVeldError(errEquationSolve, 1, "Combinazione 'A 1.3': "));
  EXPECT_EQ(text.italian, fmt::format("Combinazione 'A 1.3': {}", mechanism_it));
  EXPECT_EQ(text.english, fmt::format("Combination 'A 1.3': {}", mechanism_en));
}

TEST_F(LibraryMessages, HaveTwoTextsForEveryCode) {
  for (int code = errUndefined; code <= errHydroNoWater; ++code) {
    const Both text = in_both(xVeldError(static_cast<OstrelErrorType>(code), 1, nullptr));
    EXPECT_FALSE(text.italian.empty()) << code;
    EXPECT_NE(text.italian, text.english) << code;
  }
}

// As the search writes them, in either language.
TEST_F(LibraryMessages, TellOfCirclesThatWereLeftOut) {
  const auto warning = [](const char* text) {
    return in_both(xVeldError(text, -1, xVeldError::typeWarning));
  };
  for (const char* text :
       {"Il cerchio di centro (-2.50,3.00) di raggio R=5.25, e' ignorato perche' il centro e' al "
        "di "
        "sotto dell'intersezione con il profilo",
        "The circle with centre (-2.50,3.00) and radius R=5.25, is ignored because its centre is "
        "below the intersection with the ground profile"}) {
    const Both told = warning(text);
    EXPECT_THAT(told.italian, HasSubstr("Centro (-2,50; 3,00) m, raggio 5,25 m: cerchio escluso"));
    EXPECT_THAT(told.english, HasSubstr("Centre (-2.50, 3.00) m, radius 5.25 m: circle left out"));
  }
  const Both several = warning(
      "I cerchi di centro (1.00,-2.00) e raggi tra [4.00,6.50], sono stati ignorati perche' il "
      "centro e' al di sotto dell'intersezione con il profilo");
  EXPECT_THAT(several.italian, HasSubstr("raggi da 4,00 a 6,50 m: cerchi esclusi"));
  EXPECT_THAT(several.english, HasSubstr("Centre (1.00, -2.00) m, radii 4.00 to 6.50 m: circles"));
}

TEST_F(LibraryMessages, StayAsTheyAreWhereTheirFormIsNotKnown) {
  const Both free = in_both(xVeldError("altro", -1, xVeldError::typeWarning));
  EXPECT_EQ(free.italian, "altro");
  EXPECT_EQ(free.english, "altro");
  const Both own = in_both(xVeldError(errNoWall, "own words", 1, xVeldError::typeError));
  EXPECT_EQ(own.english, "own words");
}

TEST_F(LibraryMessages, ComeInTheLanguageChosenLast) {
  choose_language(Language::english);
  EXPECT_EQ(xVeldError(errEquationSolve, 1, nullptr).GetErrorStr(), mechanism_en);
  choose_language(Language::italian);
  EXPECT_EQ(xVeldError(errEquationSolve, 1, nullptr).GetErrorStr(), mechanism_it);
}

TEST_F(LibraryMessages, AreReadByThreads) {
  const xVeldError message(errEquationSolve, 1, nullptr);
  std::vector<std::string> told(4);
  std::vector<std::thread> readers;
  for (std::string& text : told)
    readers.emplace_back([&] { text = in_both(message).english; });
  for (std::thread& reader : readers)
    reader.join();
  for (const std::string& text : told)
    EXPECT_EQ(text, mechanism_en);
}

}  // namespace
}  // namespace ostrel::host
