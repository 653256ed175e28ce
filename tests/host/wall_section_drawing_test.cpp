// SPDX-License-Identifier: Apache-2.0
#include "wall_section_drawing.h"

#include <gmock/gmock.h>

#include <string>

namespace ostrel::host {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

std::size_t count_of(const std::string& part, const std::string& text) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
    ++count;
  return count;
}

xReinforcementBar bars(unsigned number, double diameter) {
  xReinforcementBar group;
  group.setNumber(number);
  group.setDiameter(diameter);
  return group;
}

xBracket stirrup(double diameter) {
  xBracket bracket;
  bracket.setDiameter(diameter);
  bracket.setStep(150.0);
  return bracket;
}

// A sheet is 460 wide with margins of 56. A pile counts as 1.6 times as wide as it is, so 1 m takes
// 348 / 1.6 = 217.5 and its centre stands at (230, 56 + 217.5 / 2 = 164.75).
class PileSection : public ::testing::Test {
protected:
  PileSection() {
    wall_.diameter_mm = 1000.0;
    input_.cover_mm = 100.0;
    section_ = new xReinfCircSection;
    section_->SetAfVertex(bars(4, 24.0));
    section_->setBracket(stirrup(10.0));
  }
  std::string drawing() { return wall_section_drawing(wall_, input_, *section_); }

  WallInput wall_;
  ReinforcementInput input_;
  osg::ref_ptr<xReinfCircSection> section_;
};

TEST_F(PileSection, IsACircleOfItsDiameter) {
  EXPECT_THAT(drawing(),
              HasSubstr("<circle class=\"concrete\" cx=\"230.00\" cy=\"164.75\" r=\"108.75\"/>"));
  EXPECT_THAT(drawing(), HasSubstr(">1000 mm<"));
}

// The axes stand on a ring of 500 - 100 = 400 mm, 87 on the sheet, from the retained side around; a
// bar of 24 mm has a radius of 12 * 0.2175 = 2.61.
TEST_F(PileSection, HasItsBarsOnARing) {
  for (const char* place :
       {"cx=\"230.00\" cy=\"77.75\" r=\"2.61\"", "cx=\"317.00\" cy=\"164.75\" r=\"2.61\"",
        "cx=\"230.00\" cy=\"251.75\" r=\"2.61\"", "cx=\"143.00\" cy=\"164.75\" r=\"2.61\""}) {
    EXPECT_THAT(drawing(), HasSubstr(std::string("<circle class=\"bar\" ") + place));
  }
  EXPECT_EQ(count_of("class=\"bar\"", drawing()), 4u);
}

// Around the bars: (400 + 12) * 0.2175 = 89.61.
TEST_F(PileSection, HasItsSpiralAroundTheBars) {
  EXPECT_THAT(drawing(), HasSubstr("<circle class=\"stirrup\" cx=\"230.00\" cy=\"164.75\" "
                                   "r=\"89.61\"/>"));
  section_->setBracket(stirrup(0.0));
  EXPECT_THAT(drawing(), Not(HasSubstr("class=\"stirrup\"")));
}

// 10 mm would be a radius of 1.09.
TEST_F(PileSection, ShowsThinBarsLargerThanTheyAre) {
  section_->SetAfVertex(bars(4, 10.0));
  EXPECT_THAT(drawing(), HasSubstr("r=\"2.50\""));
}

TEST_F(PileSection, SaysWhichSideIsWhich) {
  const std::string svg = drawing();
  EXPECT_LT(svg.find(">retained side<"), svg.find(">excavation side<"));
  EXPECT_THAT(svg, HasSubstr("lang=\"it\" x=\"230.00\" y=\"16.00\" text-anchor=\"middle\">lato "
                             "terra<"));
}

// 2500 mm take 348: 0.1392 by millimetre. The panel begins at (56, 56), is 800 * 0.1392 = 111.36
// high and has its middle at 111.68.
class PanelSection : public ::testing::Test {
protected:
  PanelSection() {
    wall_.is_diaphragm = true;
    wall_.spacing_m = 2.5;
    wall_.thickness_mm = 800.0;
    input_.cover_mm = 75.0;
    section_ = new xReinfRectSection;
    section_->SetAfValle(bars(4, 26.0));
    section_->SetAfMonte(bars(1, 40.0));
    section_->setBracket(stirrup(10.0));
  }
  std::string drawing() { return wall_section_drawing(wall_, input_, *section_); }

  WallInput wall_;
  ReinforcementInput input_;
  osg::ref_ptr<xReinfRectSection> section_;
};

TEST_F(PanelSection, IsARectangleOfThePanel) {
  EXPECT_THAT(drawing(), HasSubstr("<rect class=\"concrete\" x=\"56.00\" y=\"56.00\" "
                                   "width=\"348.00\" height=\"111.36\"/>"));
  EXPECT_THAT(drawing(), HasSubstr(">2500 mm<"));
  EXPECT_THAT(drawing(), HasSubstr(">800 mm<"));
}

// Four bars divide 2 * 1175 mm into five: the first at -705 mm, 230 - 98.136 = 131.864. The
// excavation side is below, at 325 mm: 111.68 + 45.24 = 156.92; the retained side at 66.44.
TEST_F(PanelSection, HasARowOfBarsOnEitherSide) {
  EXPECT_THAT(drawing(), HasSubstr("<circle class=\"bar\" cx=\"131.86\" cy=\"156.92\""));
  EXPECT_THAT(drawing(), HasSubstr("<circle class=\"bar\" cx=\"230.00\" cy=\"66.44\" r=\"2.78\""));
  EXPECT_EQ(count_of("class=\"bar\"", drawing()), 5u);
}

// At 1175 mm from the middle: 230 - 163.56 = 66.44 and 393.56.
TEST_F(PanelSection, HasFourBarsInTheCornersWhereThereAreSoMany) {
  section_->SetAfVertex(bars(3, 26.0));
  EXPECT_EQ(count_of("class=\"bar\"", drawing()), 5u);
  section_->SetAfVertex(bars(4, 26.0));
  EXPECT_EQ(count_of("class=\"bar\"", drawing()), 9u);
  EXPECT_THAT(drawing(), HasSubstr("cx=\"66.44\" cy=\"66.44\""));
  EXPECT_THAT(drawing(), HasSubstr("cx=\"393.56\" cy=\"156.92\""));
}

}  // namespace
}  // namespace ostrel::host
