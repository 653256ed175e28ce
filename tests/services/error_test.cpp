// SPDX-License-Identifier: Apache-2.0
#include "ostrel/error.h"

#include "ostrel/language.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace {

using ::testing::EndsWith;
using ::testing::StartsWith;

constexpr auto unknown_type = static_cast<xVeldError::typeErr>(5);

// The texts below are the source texts; another language of the machine must not reach them.
class ErrorMessages : public ::testing::Test {
protected:
  void SetUp() override { ASSERT_TRUE(ostrel::set_language("it")); }
  void TearDown() override { ostrel::set_language(""); }
};

using VeldError = ErrorMessages;

TEST_F(VeldError, IsAnEmptyFreeTextWhenNew) {
  const xVeldError item;
  EXPECT_EQ(item.getID(), errFreeText);
  EXPECT_EQ(static_cast<int>(item.getID()), -1);
  EXPECT_EQ(item.getErr(), veldError);
  EXPECT_EQ(item.GetErrorStr(), "");
  EXPECT_EQ(item.getIdObj(), -1);
}

TEST_F(VeldError, OfACodePutsThePrefixBeforeItsMessage) {
  const xVeldError item(errNonLinearNotConverged, 7, "Combinazione 'A': ");
  EXPECT_EQ(static_cast<int>(item.getID()), 16);
  EXPECT_EQ(item.getErr(), veldError);
  EXPECT_EQ(item.getIdObj(), 7);
  EXPECT_THAT(item.GetErrorStr(), StartsWith("Combinazione 'A': "));
  EXPECT_THAT(item.GetErrorStr(),
              EndsWith("Calcolo non lineare non convergente, controllare i parametri del solutore "
                       "non lineare (iterazioni, tolleranza)"));
}

TEST_F(VeldError, OfAnUnknownCodeIsUndefined) {
  for (const int code : {99, 0, 1, 36, -1}) {
    const xVeldError item(static_cast<OstrelErrorType>(code), 7, nullptr);
    EXPECT_EQ(item.getID(), errUndefined) << code;
    EXPECT_EQ(item.GetErrorStr(), "Errore non definito") << code;
    EXPECT_EQ(item.getIdObj(), 7) << code;
  }
}

TEST_F(VeldError, OfAFreeTextHasNoCode) {
  const xVeldError item(std::string("cerchio ignorato"), 4, xVeldError::typeWarning);
  EXPECT_EQ(item.getID(), errFreeText);
  EXPECT_EQ(item.getErr(), veldWarning);
  EXPECT_EQ(item.GetErrorStr(), "cerchio ignorato");
  EXPECT_EQ(item.getIdObj(), 4);
}

TEST_F(VeldError, KeepsATextOfOnesOwnUnderACode) {
  const xVeldError from_literal(errNoWall, "testo", 2, xVeldError::typeInformation);
  EXPECT_EQ(from_literal.getID(), errNoWall);
  EXPECT_EQ(from_literal.GetErrorStr(), "testo");
  EXPECT_EQ(from_literal.getErr(), veldInformation);
  const xVeldError from_string(errNoWall, std::string("testo"), 2, xVeldError::typeInformation);
  EXPECT_TRUE(from_literal == from_string);
  EXPECT_EQ(from_string.GetErrorStr(), "testo");
  // A code without a row stays as it is in this form.
  const xVeldError unknown(static_cast<OstrelErrorType>(99), std::string("testo"), 2,
                           xVeldError::typeError);
  EXPECT_EQ(static_cast<int>(unknown.getID()), 99);
}

TEST_F(VeldError, SetErrOverwritesAllFourMembers) {
  xVeldError item(errNoWall, 3, "davanti: ");
  item.SetErr(errNoBulb, std::string("bulbo"), 5, xVeldError::typeWarning);
  EXPECT_EQ(item.getID(), errNoBulb);
  EXPECT_EQ(item.GetErrorStr(), "bulbo");
  EXPECT_EQ(item.getIdObj(), 5);
  EXPECT_EQ(item.getErr(), veldWarning);

  item.SetErr(errNoWall, static_cast<const char*>(nullptr), 6, xVeldError::typeError);
  EXPECT_EQ(item.getID(), errNoWall);
  EXPECT_EQ(item.GetErrorStr(), "");
  EXPECT_EQ(item.getIdObj(), 6);
  EXPECT_EQ(item.getErr(), veldError);

  item.SetErr("libero", xVeldError::typeInformation, 8);
  EXPECT_EQ(item.getID(), errFreeText);
  EXPECT_EQ(item.GetErrorStr(), "libero");
  EXPECT_EQ(item.getIdObj(), 8);
  EXPECT_EQ(item.getErr(), veldInformation);
}

TEST_F(VeldError, SeverityFollowsTheType) {
  const auto severity = [](xVeldError::typeErr type) { return xVeldError("", 0, type).getErr(); };
  EXPECT_EQ(severity(xVeldError::typeError), 3);
  EXPECT_EQ(severity(xVeldError::typeWarning), 2);
  EXPECT_EQ(severity(xVeldError::typeInformation), 1);
  EXPECT_EQ(severity(unknown_type), 0);
}

TEST_F(VeldError, MakeErrStrBeginsWithTheSeverityWord) {
  const auto text = [](xVeldError::typeErr type) { return xVeldError("m", 0, type).MakeErrStr(); };
  EXPECT_EQ(text(xVeldError::typeError), "Errore: m");
  EXPECT_EQ(text(xVeldError::typeWarning), "Attenzione: m");
  EXPECT_EQ(text(xVeldError::typeInformation), "Informazione: m");
  // An unknown type reads as an error although its severity is none.
  EXPECT_EQ(text(unknown_type), "Errore: m");
}

TEST_F(VeldError, MakeErrStrDoesNotTranslateTheMessageAgain) {
  const xVeldError item("Nessuna paratia di pali definita", 0, xVeldError::typeError);
  ASSERT_TRUE(ostrel::set_language("en"));
  EXPECT_EQ(item.MakeErrStr(), "Error: Nessuna paratia di pali definita");
}

TEST_F(VeldError, HoldsTheLanguageItWasMadeIn) {
  ASSERT_TRUE(ostrel::set_language("en"));
  const xVeldError english(errNoFemNodes, 1, nullptr);
  ASSERT_TRUE(ostrel::set_language("it"));
  const xVeldError italian(errNoFemNodes, 1, nullptr);
  EXPECT_EQ(italian.GetErrorStr(), "Nessun nodo FEM presente");
  EXPECT_NE(english.GetErrorStr(), italian.GetErrorStr());
}

std::vector<xVeldError> items(const std::vector<int>& types) {
  std::vector<xVeldError> list;
  for (const int type : types)
    list.emplace_back("", 0, static_cast<xVeldError::typeErr>(type));
  return list;
}

TEST_F(VeldError, WorstOfAListIsItsLargestSeverity) {
  EXPECT_EQ(xVeldError::getWorstErr(items({2, 1, 2})), veldWarning);
  EXPECT_EQ(xVeldError::getWorstErr(items({1, 0})), veldError);
  EXPECT_EQ(xVeldError::getWorstErr(items({0, 1})), veldError);
  EXPECT_EQ(xVeldError::getWorstErr(items({2})), veldInformation);
  EXPECT_EQ(xVeldError::getWorstErr(items({5})), veldNothing);
  EXPECT_EQ(xVeldError::getWorstErr({}), veldNothing);
}

TEST_F(VeldError, DiffersByTypeAndByObject) {
  const xVeldError item("m", 1, xVeldError::typeError);
  EXPECT_FALSE(item == xVeldError("m", 1, xVeldError::typeWarning));
  EXPECT_FALSE(item == xVeldError("m", 2, xVeldError::typeError));
  EXPECT_TRUE(item == xVeldError("m", 1, xVeldError::typeError));
  EXPECT_FALSE(item == xVeldError("n", 1, xVeldError::typeError));
}

TEST_F(VeldError, ComparesTextsOrCodesByTheLeftItem) {
  const xVeldError free_text("Nessun nodo FEM presente", 1, xVeldError::typeError);
  const xVeldError coded(errNoFemNodes, 1, nullptr);
  ASSERT_EQ(free_text.GetErrorStr(), coded.GetErrorStr());
  EXPECT_TRUE(free_text == coded);
  EXPECT_FALSE(coded == free_text);
  // Two coded items are equal by their codes, whatever they say.
  EXPECT_TRUE(coded == xVeldError(errNoFemNodes, 1, "altro: "));
  EXPECT_FALSE(coded == xVeldError(errNoFemElements, 1, nullptr));
}

TEST_F(ErrorMessages, PredefinedErrIsTheUndefinedRowWhenNew) {
  const predefinedErr row;
  EXPECT_EQ(row.code, errUndefined);
  EXPECT_EQ(row.type, xVeldError::typeError);
  EXPECT_EQ(row.message, "Errore non definito");
}

TEST_F(ErrorMessages, GetpredefinedErrFillsARow) {
  predefinedErr row;
  getpredefinedErr(errHydroNoWater, row);
  EXPECT_EQ(row.code, errHydroNoWater);
  EXPECT_EQ(row.message, "Verifica idraulica richiesta in assenza di falda");
  getpredefinedErr(static_cast<OstrelErrorType>(1000), row);
  EXPECT_EQ(row.code, errUndefined);
}

TEST_F(ErrorMessages, AreTranslatedToEnglish) {
  ASSERT_TRUE(ostrel::set_language("en"));
  const xVeldError item(errNoWall, 1, nullptr);
  EXPECT_THAT(item.MakeErrStr(), StartsWith("Error: "));
  EXPECT_NE(item.GetErrorStr(), "Nessuna paratia di pali definita");
}

}  // namespace
