// SPDX-License-Identifier: Apache-2.0
#include "batch_result.h"

#include <gmock/gmock.h>

namespace ostrel::host {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

const std::vector<BatchResult> two{{.file = "a.json",
                                    .verdict = BatchVerdict::satisfied,
                                    .factor = "1.25",
                                    .governs = "Wall",
                                    .seconds = 0.25,
                                    .messages = ""},
                                   {.file = "b.json",
                                    .verdict = BatchVerdict::wrong_file,
                                    .factor = "",
                                    .governs = "",
                                    .seconds = 0.0,
                                    .messages = ""}};

TEST(BatchTable, HasARowForEachProjectAndCountsOutcomes) {
  const std::string table = batch_table(two, Texts(Language::english), false);
  EXPECT_THAT(table, AllOf(HasSubstr("a.json  satisfied     1.25"), HasSubstr("b.json  wrong file"),
                           HasSubstr("satisfied: 1\n"), HasSubstr("wrong file: 1\n")));
  EXPECT_THAT(table, Not(HasSubstr("\x1b")));
}

TEST(BatchTable, LeavesOutTheFolderThatAllFilesShare) {
  std::vector<BatchResult> results = two;
  results[0].file = "/walls/north/a.json";
  results[1].file = "/walls/norway/b.json";
  const std::string table = batch_table(results, Texts(Language::english), false);
  EXPECT_THAT(table, AllOf(HasSubstr("\nnorth/a.json "), HasSubstr("\nnorway/b.json ")));
  results.resize(1);
  EXPECT_THAT(batch_table(results, Texts(Language::english), false), HasSubstr("\na.json "));
}

TEST(BatchTable, ColoursRowsWhereAsked) {
  const std::string table = batch_table(two, Texts(Language::english), true);
  EXPECT_THAT(table, AllOf(HasSubstr("\x1b[32ma.json"), HasSubstr("\x1b[31mb.json")));
}

TEST(BatchVerdict, FailsForWhatWasNotCarriedOutOrMissesTheLimit) {
  for (const BatchVerdict verdict : {BatchVerdict::below_limit, BatchVerdict::analysis_failed,
                                     BatchVerdict::wrong_file, BatchVerdict::not_written})
    EXPECT_TRUE(has_failed(verdict));
  for (const BatchVerdict verdict :
       {BatchVerdict::satisfied, BatchVerdict::not_satisfied, BatchVerdict::not_determined,
        BatchVerdict::nothing_verified, BatchVerdict::not_started})
    EXPECT_FALSE(has_failed(verdict));
}

}  // namespace
}  // namespace ostrel::host
