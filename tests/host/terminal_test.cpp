// SPDX-License-Identifier: Apache-2.0
#include "terminal.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ostrel::host {
namespace {

TEST(Terminal, IsNoneWhereATextIsCollected) {
  const std::ostringstream stream;
  EXPECT_FALSE(is_terminal(stream));
  EXPECT_FALSE(wants_colour(stream));
}

// ECMA-48, 8.3.117: 31 red, 32 green, 33 yellow, 0 as before.
TEST(Terminal, ColoursByTheCodesOfTheStandard) {
  EXPECT_EQ(coloured("a", Colour::red), "\x1b[31ma\x1b[0m");
  EXPECT_EQ(coloured("b", Colour::green), "\x1b[32mb\x1b[0m");
  EXPECT_EQ(coloured("c", Colour::yellow), "\x1b[33mc\x1b[0m");
}

}  // namespace
}  // namespace ostrel::host
