// SPDX-License-Identifier: Apache-2.0
#include "verdict_colours.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace ostrel::host {
namespace {

TEST(VerdictColours, StandAtTheEndOfLinesAlone) {
  const Texts texts(Language::english);
  const auto satisfied = texts(Text::satisfied);
  const auto not_satisfied = texts(Text::not_satisfied);
  EXPECT_EQ(with_coloured_verdicts(fmt::format("Wall  1.20  {}\nSlope  0.90  {}\n{} is a word\n\n",
                                               satisfied, not_satisfied, satisfied),
                                   texts),
            fmt::format("Wall  1.20  \x1b[32m{}\x1b[0m\nSlope  0.90  \x1b[31m{}\x1b[0m\n"
                        "{} is a word\n\n",
                        satisfied, not_satisfied, satisfied));
}

}  // namespace
}  // namespace ostrel::host
