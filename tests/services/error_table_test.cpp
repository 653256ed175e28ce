// SPDX-License-Identifier: Apache-2.0
#include "services/error_table.h"

#include "ostrel/language.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using ostrel::services::error_rows;
using ostrel::services::find_error_row;

TEST(ErrorTable, HoldsThirtyFourRowsInTheirOrder) {
  const int codes[] = {2,  3,  4,  5,  6,  13, 14, 7,  8,  17, 18, 10, 11, 15, 12, 19, 20,
                       21, 23, 25, 26, 27, 28, 29, 30, 31, 32, 33, 9,  34, 24, 16, 22, 35};
  ASSERT_EQ(error_rows.size(), 34U);
  for (std::size_t i = 0; i < error_rows.size(); ++i)
    EXPECT_EQ(error_rows[i].code, codes[i]) << i;
}

TEST(ErrorTable, SaysSomethingElseForEachCode) {
  std::set<std::string> messages;
  for (const auto& row : error_rows)
    messages.insert(row.message);
  EXPECT_EQ(messages.size(), 34U);
}

TEST(ErrorTable, KeepsTheMisspeltTexts) {
  EXPECT_STREQ(find_error_row(errCondListMismatch).message,
               "Numero di condizioni e numero di liste di carchi inconsitenti");
}

TEST(ErrorTable, FindsARowByItsCode) {
  EXPECT_STREQ(find_error_row(errLoadTooInclined).message,
               "Carico troppo inclinato nella valutazione del carico limite");
  EXPECT_STREQ(find_error_row(errNoReinfAtAbscissa).message,
               "Armatura non presente per l'ascissa corrente");
}

TEST(ErrorTable, FallsThroughToTheUndefinedRow) {
  for (const int code : {-1, 0, 1, 36, 1 << 30}) {
    EXPECT_EQ(find_error_row(static_cast<OstrelErrorType>(code)).code, 1) << code;
  }
}

TEST(ErrorTable, HasAnEnglishTextForEveryRow) {
  ASSERT_TRUE(ostrel::set_language("en"));
  for (const auto& row : error_rows)
    EXPECT_STRNE(iTranslate(row.message), row.message);
  EXPECT_STRNE(iTranslate("Errore non definito"), "Errore non definito");
  ostrel::set_language("");
}

}  // namespace
