// SPDX-License-Identifier: Apache-2.0
#include "validation/validation_page.h"

#include "validation/chapters.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace ostrel::validation {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

std::string contents(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST(Number, HasSignificantDigitsAndNoTrailingZeros) {
  EXPECT_EQ(number(117.946321, 5), "117.95");
  EXPECT_EQ(number(20.0, 5), "20");
  EXPECT_EQ(number(0.0202424914, 5), "0.020242");
}

TEST(ToldDifference, IsInPerCentOfWhatWasPublished) {
  EXPECT_EQ(told_difference({"", "mm", 200, 201, {.relative = 0.01}}), "+0.5 %");
  EXPECT_EQ(told_difference({"", "mm", -200, -201, {.relative = 0.01}}), "-0.5 %");
  EXPECT_EQ(told_difference({"", "mm", 200, 200 + 1e-8, {.relative = 0.01}}), "0");
}

// A tenth of 1 % is 0.1 %; 0.101 of 200 is 0.0505 %, nearer to that than to 0, and 0.09 is 0.045 %. A
// tenth of 0.1 mm is 0.01 mm.
TEST(ToldDifference, IsRoundedToATenthOfTheTolerance) {
  EXPECT_EQ(told_difference({"", "mm", 200, 200.101, {.relative = 0.01}}), "+0.1 %");
  EXPECT_EQ(told_difference({"", "mm", 200, 200.09, {.relative = 0.01}}), "0");
  EXPECT_EQ(told_difference({"", "mm", 200, 199.979, {.absolute = 0.1}}), "-0.02 mm");
}

TEST(ToldDifference, IsAbsoluteWhereTheToleranceIs) {
  EXPECT_EQ(told_difference({"", "mm", 200, 199.75, {.absolute = 0.5}}), "-0.25 mm");
  EXPECT_EQ(told_difference({"", "", 200, 201, {.absolute = 2.0}}), "+1");
}

// A tolerance of 1 % shows five digits, one of 1e-6 seven.
TEST(ValidationPage, HasARowForEachFigure) {
  const Case plain{.id = "X-01",
                   .subject = "Plain case",
                   .source = "Somebody (1900)",
                   .inputs = "one",
                   .figures = {{"load", "kN", 200, 201.23456, {.relative = 0.01}},
                               {"angle", "", 0.3, 0.300000149, {.relative = 1e-6}}}};
  const std::string page = validation_page({{"Subject", "All about it.", {plain}}});
  EXPECT_THAT(page, HasSubstr("| X-01 | Plain case | A | 2 of 2 |\n"));
  EXPECT_THAT(page, HasSubstr("\n## Subject\n\nAll about it.\n\n### X-01: Plain case\n\n"
                              "Class A. Source: Somebody (1900).\nInputs: one.\n"));
  EXPECT_THAT(page, HasSubstr("| load | kN | 200 | 201.23 | +0.6 % | 1 % |\n"));
  EXPECT_THAT(page, HasSubstr("| angle |  | 0.3 | 0.3000001 | +5e-05 % | 0.0001 % |\n"));
  EXPECT_THAT(page, Not(HasSubstr("by our rule")));
}

TEST(ValidationPage, TellsWhatARuleGivesAndWhy) {
  const Case ruled{.id = "X-02",
                   .subject = "Ruled case",
                   .source = "Somebody",
                   .inputs = "two",
                   .likeness = Likeness::same_physics,
                   .figures = {{"load", "kN", 200, 150, {.relative = 0.01}, 150.5},
                               {"angle", "", 1, 3, {.absolute = 1}}},
                   .reason = "Because."};
  const std::string page = validation_page({{"Subject", "All.", {ruled}}});
  EXPECT_THAT(page, HasSubstr("| X-02 | Ruled case | B | 1 of 2, 1 by a rule of this system |\n"));
  EXPECT_THAT(page, HasSubstr("| load | kN | 200 | 150.5 | 150 | -25 % | 1 % |\n"));
  EXPECT_THAT(page, HasSubstr("| angle |  | 1 |  | 3 | +2 | 1 |\n\nBecause.\n"));
}

/// All figures a little larger or smaller, by much less than any tolerance.
std::vector<Chapter> nudged(std::vector<Chapter> chapters, double sign) {
  for (Chapter& chapter : chapters) {
    for (Case& each : chapter.cases) {
      for (Figure& figure : each.figures)
        figure.ours += sign * std::min(1e-9 * std::abs(figure.ours), figure.allowed() / 1e4);
    }
  }
  return chapters;
}

// What libraries and compilers change in the last digits changes no word of the page.
TEST(ValidationPage, IsTheSameWhereTheLastDigitsDiffer) {
  const std::vector<Chapter> chapters = all_chapters();
  const std::string page = validation_page(chapters);
  EXPECT_EQ(validation_page(nudged(chapters, 1.0)), page);
  EXPECT_EQ(validation_page(nudged(chapters, -1.0)), page);
}

TEST(ValidationPage, InTheDocumentsIsWhatTheRunWrites) {
  EXPECT_EQ(validation_page(all_chapters()), contents(OSTREL_VALIDATION_PAGE))
      << "script/validation writes the page anew";
}

}  // namespace
}  // namespace ostrel::validation
