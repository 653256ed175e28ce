#pragma once
/// @file  Expectations in a process of their own, for what is made once in a process; for tests
// SPDX-License-Identifier: Apache-2.0
//
// Label tables and the list of load families keep what they hold from their first use to the end of
// the process. What they do at that first use is tested where nothing else has run before.

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <iostream>

namespace ostrel::testing {

/// Ends the process, well if no expectation has failed in it and else with the failures on stderr.
[[noreturn]] inline void exit_with_expectations() {
  const auto& result = *::testing::UnitTest::GetInstance()->current_test_info()->result();
  for (int i = 0; i < result.total_part_count(); ++i) {
    const auto& part = result.GetTestPartResult(i);
    if (part.failed())
      std::cerr << part.file_name() << ':' << part.line_number() << '\n' << part.message() << '\n';
  }
  std::exit(result.Failed() ? EXIT_FAILURE : EXIT_SUCCESS);
}

/// Runs `body` in a new process of this program, and expects its expectations to hold. A test calls
/// it before it touches what is to be fresh.
inline void expect_in_fresh_process(const std::function<void()>& body) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        body();
        exit_with_expectations();
      },
      ::testing::ExitedWithCode(EXIT_SUCCESS), "");
}

}  // namespace ostrel::testing
