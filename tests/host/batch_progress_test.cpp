// SPDX-License-Identifier: Apache-2.0
#include "batch_progress.h"

#include "texts_testing.h"

#include <gmock/gmock.h>

#include <sstream>

namespace ostrel::host {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

BatchResult satisfied(const std::string& file) {
  return {.file = file,
          .verdict = BatchVerdict::satisfied,
          .factor = "1.25",
          .governs = "Wall",
          .seconds = 0.44,
          .messages = ""};
}

// 12 of 40 in 4 s are 3 a second, and the other 28 take 9.3 s; 24 * 12 / 40 = 7 marks of the bar.
TEST(BatchBar, TellsCountRateAndTimeLeft) {
  EXPECT_EQ(bar_line({.done = 12, .total = 40, .failed = 1, .seconds = 4.0}, english),
            "[#######-----------------] 12/40  3.0/s  0:10 left  1 failed");
}

// 1 of 181 in 1 s: three minutes for the others.
TEST(BatchBar, TellsMinutes) {
  EXPECT_THAT(bar_line({.done = 1, .total = 181, .seconds = 1.0}, Texts(Language::italian)),
              EndsWith("1/181  1.0/s  restano 3:00"));
}

TEST(BatchBar, TellsNoRateBeforeTheFirstOne) {
  EXPECT_EQ(bar_line({.done = 0, .total = 2, .seconds = 5.0}, english),
            "[------------------------] 0/2");
  EXPECT_EQ(bar_line({}, english), "[------------------------] 0/0");
}

TEST(BatchProgress, WritesALineForEachProject) {
  std::ostringstream stream;
  BatchProgress progress(ProgressForm::plain, english, stream);
  progress.begin(1, 1);
  progress.tell(satisfied("a.json"));
  progress.end(false);
  EXPECT_EQ(stream.str(), "[1/1] a.json: satisfied, 1.25 (Wall), 0.4 s\n");
}

TEST(BatchProgress, ClearsTheBarBeforeMessagesAndAtTheEnd) {
  std::ostringstream stream;
  BatchProgress progress(ProgressForm::bar, english, stream);
  progress.begin(1, 1);
  BatchResult result = satisfied("a.json");
  result.messages = "a.json: warning\n";
  progress.tell(result);
  progress.end(false);
  EXPECT_THAT(stream.str(), HasSubstr("\r\x1b[Ka.json: warning\n"));
  EXPECT_THAT(stream.str(), EndsWith("\r\x1b[K"));
}

TEST(BatchProgress, SaysNothingButMessagesWhereNothingIsAsked) {
  std::ostringstream stream;
  BatchProgress progress(ProgressForm::none, english, stream);
  progress.begin(1, 1);
  progress.tell(satisfied("a.json"));
  progress.refresh();
  progress.end(false);
  EXPECT_THAT(stream.str(), IsEmpty());
}

TEST(BatchProgress, LetsNoFileNameMoveTheCursor) {
  std::ostringstream stream;
  BatchProgress progress(ProgressForm::plain, english, stream);
  progress.begin(1, 1);
  progress.tell(satisfied("a\x1b[2Jb.json"));
  EXPECT_THAT(stream.str(), Not(HasSubstr("\x1b")));
}

TEST(BatchProgress, TellsHowMuchIsDoneWhenInterrupted) {
  std::ostringstream stream;
  BatchProgress progress(ProgressForm::plain, english, stream);
  progress.begin(3, 1);
  progress.tell(satisfied("a.json"));
  progress.end(true);
  EXPECT_THAT(stream.str(), EndsWith("Interrupted: 1 of 3 projects finished\n"));
}

}  // namespace
}  // namespace ostrel::host
