// SPDX-License-Identifier: Apache-2.0
#include "batch_result.h"

#include "verification_testing.h"

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

// Two projects of one name; the third could not be read and has no folder.
TEST(BatchTable, TellsTheFolderOfEachWhereOneIsNotNamedAfterItsProject) {
  std::vector<BatchResult> results = two;
  results.insert(results.begin(), two[0]);
  results[0].file = "/walls/north/a.json";
  results[1].file = "/walls/south/a.json";
  results[2].file = "/walls/south/b.json";
  results[0].folder = "all/a";
  results[1].folder = "all/a-2";
  EXPECT_THAT(
      squeezed(batch_table(results, Texts(Language::english), false)),
      AllOf(HasSubstr("File Folder Outcome "), HasSubstr("\nnorth/a.json a satisfied 1.25 "),
            HasSubstr("\nsouth/a.json a-2 satisfied 1.25 "),
            HasSubstr("\nsouth/b.json wrong file ")));
  EXPECT_THAT(
      squeezed(batch_table(results, Texts(Language::italian), false)),
      AllOf(HasSubstr("File Cartella Esito "), HasSubstr("\nsouth/a.json a-2 soddisfatto 1.25 ")));
}

TEST(BatchTable, TellsNoFoldersThatAreNamedAfterTheirProjects) {
  std::vector<BatchResult> results = two;
  results[0].folder = "all/a";
  EXPECT_THAT(batch_table(results, Texts(Language::english), false), Not(HasSubstr("Folder")));
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
