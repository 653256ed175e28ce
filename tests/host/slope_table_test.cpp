// SPDX-License-Identifier: Apache-2.0
#include "slope_table.h"

#include "text_table.h"
#include "verification_testing.h"

#include <gmock/gmock.h>

#include <sstream>

namespace ostrel::host {
namespace {

using ::testing::HasSubstr;

TEST(CircleTable, TellsCentreRadiusMomentsAndFactor) {
  xSlopeStabilityDesign design;
  design.getResults() = {circle_of("A", 1)};
  const std::string table = circle_table(design, Texts(Language::english));
  EXPECT_THAT(squeezed(table), HasSubstr("\nA -4.00 4.50 21.00 60000.0 30000.0 2.00\n"));
  EXPECT_THAT(circle_table(design, Texts(Language::italian)), HasSubstr("Stabilità globale"));
}

TEST(CircleTable, IsEmptyWhereNoCircleWasSearched) {
  EXPECT_EQ(circle_table({}, Texts(Language::english)), "");
}

TEST(CircleTable, KeepsToTheWidthOfATerminal) {
  xSlopeStabilityDesign design;
  design.getResults() = {circle_of(std::string(90, 'c'), 1)};
  design.getResults()[0].setMstab(1e300);
  for (const Language language : {Language::english, Language::italian}) {
    std::istringstream lines(circle_table(design, Texts(language)));
    for (std::string line; std::getline(lines, line);) {
      EXPECT_LE(columns_of(line), terminal_width) << line;
    }
  }
}

}  // namespace
}  // namespace ostrel::host
