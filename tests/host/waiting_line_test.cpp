// SPDX-License-Identifier: Apache-2.0
#include "waiting_line.h"

#include <gmock/gmock.h>

#include <sstream>

namespace ostrel::host {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(WaitingLine, SaysNothingOfAShortRun) {
  std::ostringstream stream;
  { const WaitingLine line(stream, Texts(Language::english), 3, true); }
  EXPECT_THAT(stream.str(), IsEmpty());
}

TEST(WaitingLine, TellsOfALongRunAndClearsItsLine) {
  std::ostringstream stream;
  {
    const WaitingLine line(stream, Texts(Language::english), 3, true);
    std::this_thread::sleep_for(std::chrono::milliseconds(1500));
  }
  EXPECT_THAT(stream.str(), HasSubstr("\rAnalysing for 1 s: combinations 3"));
  EXPECT_THAT(stream.str(), EndsWith("\r\x1b[K"));
}

TEST(WaitingLine, SaysNothingWhereNobodyLooksOn) {
  std::ostringstream stream;
  {
    const WaitingLine line(stream, Texts(Language::english), 3, false);
    std::this_thread::sleep_for(std::chrono::milliseconds(1200));
  }
  EXPECT_THAT(stream.str(), IsEmpty());
}

}  // namespace
}  // namespace ostrel::host
