// SPDX-License-Identifier: Apache-2.0
#include "ostrel/version.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>

namespace {

TEST(Version, HasThreeNumbers) {
  EXPECT_TRUE(std::regex_match(ostrel::version(), std::regex("[0-9]+\\.[0-9]+\\.[0-9]+")));
}

}  // namespace
