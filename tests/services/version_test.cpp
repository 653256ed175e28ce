// SPDX-License-Identifier: Apache-2.0
#include "ostrel/version.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

TEST(Version, HasThreeNumbers) {
  std::istringstream text(ostrel::version());
  int major = -1;
  int minor = -1;
  int patch = -1;
  char first_dot = ' ';
  char second_dot = ' ';
  text >> major >> first_dot >> minor >> second_dot >> patch;
  EXPECT_FALSE(text.fail());
  EXPECT_GE(major, 0);
  EXPECT_GE(minor, 0);
  EXPECT_GE(patch, 0);
  EXPECT_EQ(first_dot, '.');
  EXPECT_EQ(second_dot, '.');
  EXPECT_TRUE(text.eof());
}

}  // namespace
