// SPDX-License-Identifier: Apache-2.0
#include "system_reason.h"

#include "texts_testing.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace ostrel::host {
namespace {

TEST(SystemReason, IsToldInTheLanguageOfTheProgram) {
  const auto missing = make_error_code(std::errc::no_such_file_or_directory);
  EXPECT_EQ(reason_of(missing, english), "no such file or folder");
  EXPECT_EQ(reason_of(missing, italian), "il file o la cartella non esiste");
}

TEST(SystemReason, OfASeldomKindIsEnglish) {
  EXPECT_EQ(reason_of(make_error_code(std::errc::broken_pipe), italian), "Broken pipe");
}

TEST(SystemReason, OfAnUnknownNumberIsThatNumber) {
  EXPECT_EQ(reason_of({12345, std::generic_category()}, english), "error 12345");
}

TEST(SystemReason, IsEmptyForNoError) {
  EXPECT_EQ(reason_of({}, english), "");
}

TEST(LastError, IsNeverNone) {
  errno = 0;
  EXPECT_EQ(last_error(), std::errc::io_error);
  errno = ENOENT;
  EXPECT_EQ(last_error(), std::errc::no_such_file_or_directory);
}

}  // namespace
}  // namespace ostrel::host
