// SPDX-License-Identifier: Apache-2.0
#include "slope_table.h"

#include "text_table.h"
#include "verification_testing.h"

#include <gmock/gmock.h>

#include <sstream>

namespace ostrel::host {
namespace {

using ::testing::HasSubstr;

xSlopeStability circle(const std::string& name) {
  xSlopeStability result;
  result.setCheckID(7, 1, name);
  stabChekData& data = result.getstabChekData();
  data.xc = -4000.0;
  data.yc = 4500.0;
  data.radius = 21000.0;
  data.sf = 2.0;
  data.Mstab = 6e10;
  data.Mdestab = -3e10;
  return result;
}

TEST(CircleTable, TellsCentreRadiusMomentsAndFactor) {
  xSlopeStabilityDesign design;
  design.getResults() = {circle("A")};
  const std::string table = circle_table(design, Texts(Language::english));
  EXPECT_THAT(squeezed(table), HasSubstr("\nA -4.00 4.50 21.00 60000.0 30000.0 2.00\n"));
  EXPECT_THAT(circle_table(design, Texts(Language::italian)), HasSubstr("Stabilità globale"));
}

TEST(CircleTable, IsEmptyWhereNoCircleWasSearched) {
  EXPECT_EQ(circle_table({}, Texts(Language::english)), "");
}

TEST(CircleTable, KeepsToTheWidthOfATerminal) {
  xSlopeStabilityDesign design;
  design.getResults() = {circle(std::string(90, 'c'))};
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
