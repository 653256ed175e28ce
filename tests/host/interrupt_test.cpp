// SPDX-License-Identifier: Apache-2.0
#include "interrupt.h"

#include <gtest/gtest.h>

#include <csignal>

namespace ostrel::host {
namespace {

TEST(InterruptWatch, NotesTheFirstSignal) {
  const InterruptWatch watch;
  EXPECT_FALSE(InterruptWatch::interrupted());
  std::raise(SIGINT);
  EXPECT_TRUE(InterruptWatch::interrupted());
}

TEST(InterruptWatch, BeginsAnew) {
  {
    const InterruptWatch watch;
    std::raise(SIGINT);
  }
  const InterruptWatch watch;
  EXPECT_FALSE(InterruptWatch::interrupted());
}

TEST(InterruptWatchDeathTest, LetsTheSecondSignalEndTheProgram) {
  EXPECT_EXIT(
      {
        const InterruptWatch watch;
        std::raise(SIGINT);
        std::raise(SIGINT);
      },
      ::testing::KilledBySignal(SIGINT), "");
}

TEST(InterruptWatchDeathTest, LeavesAnIgnoredSignalIgnored) {
  EXPECT_EXIT(
      {
        std::signal(SIGINT, SIG_IGN);
        const InterruptWatch watch;
        std::raise(SIGINT);
        std::raise(SIGINT);
        std::_Exit(InterruptWatch::interrupted() ? 1 : 0);
      },
      ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace ostrel::host
