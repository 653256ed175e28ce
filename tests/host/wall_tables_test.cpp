// SPDX-License-Identifier: Apache-2.0
#include "wall_tables.h"

#include "text_table.h"
#include "texts_testing.h"
#include "verification_testing.h"

#include <gmock/gmock.h>

#include <sstream>

namespace ostrel::host {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

TEST(SectionTable, HoldsTheGoverningSectionOfEachCombination) {
  const std::string table = squeezed(section_table(verified_wall(), english));
  EXPECT_THAT(table, HasSubstr("\nA 4.00 -50.0 250.0 300.0 100.0 200.0 1.20\n"));
  EXPECT_THAT(table, HasSubstr("\nB 6.00 -50.0 60.0 300.0 250.0 200.0 0.80\n"));
}

TEST(SectionTable, IsEmptyWhereNothingWasVerified) {
  EXPECT_EQ(section_table({}, english), "");
  // The design without a combination leaves one record of the least reinforcement.
  xStructuralDesign design;
  design.checkedReinforcement.sections = {ring_at(0.0, 6)};
  EXPECT_EQ(section_table(design, english), "");
  EXPECT_EQ(reinforcement_table(design, english), "");
}

TEST(SectionTable, KeepsToTheWidthOfATerminal) {
  xStructuralDesign design;
  design.bendShear.combinations = {
      sections_of(std::string(90, 'c'), 1, {section_at(99'990.0, -99'999.9, -9'999.9)})};
  for (const Texts& texts : {english, italian}) {
    std::istringstream lines(section_table(design, texts));
    for (std::string line; std::getline(lines, line);) {
      EXPECT_LE(columns_of(line), terminal_width) << line;
    }
  }
}

TEST(ReinforcementTable, TakesEqualNeighboursTogether) {
  EXPECT_EQ(reinforcement_table(verified_wall(), english),
            "Wall: reinforcement of the design\n"
            "  0.00-4.00 m   16 Ø20, spiral Ø10/150\n"
            "  6.00-8.00 m   10 Ø20, spiral Ø10/150\n"
            "Between two rows the stronger reinforcement of the two holds.\n");
  EXPECT_THAT(reinforcement_table(verified_wall(), italian),
              HasSubstr("  0.00-4.00 m   16 Ø20, spirale Ø10/150\n"));
}

TEST(ReinforcementTable, SpeaksOfNothingBetweenOneRow) {
  xStructuralDesign design = verified_wall();
  design.checkedReinforcement.sections.resize(2);
  EXPECT_THAT(reinforcement_table(design, english), Not(HasSubstr("Between")));
}

osg::ref_ptr<xReinfRectSection> rectangle(unsigned valley, unsigned uphill, unsigned corners) {
  const osg::ref_ptr<xReinfRectSection> section = new xReinfRectSection;
  xReinforcementBar bars;
  bars.setDiameter(24.0);
  bars.setNumber(valley);
  section->SetAfValle(bars);
  bars.setNumber(uphill);
  section->SetAfMonte(bars);
  bars.setNumber(corners);
  section->SetAfVertex(bars);
  xBracket stirrups;
  stirrups.setDiameter(12.0);
  stirrups.setStep(200.0);
  stirrups.setNArms(4);
  section->setBracket(stirrups);
  return section;
}

TEST(ReinforcementText, TellsTheSidesOfARectangle) {
  EXPECT_EQ(reinforcement_text(*rectangle(8, 6, 4), english),
            "excavation side 8 Ø24, retained side 6 Ø24, corners 4 Ø24, "
            "stirrups Ø12/200 with 4 legs");
  EXPECT_EQ(reinforcement_text(*rectangle(8, 6, 0), italian),
            "scavo 8 Ø24, terreno 6 Ø24, staffe Ø12/200 a 4 bracci");
}

TEST(ReinforcementText, SaysWhereThereAreNoStirrups) {
  const osg::ref_ptr<xReinfCrossSection> ring = ring_at(0.0, 6);
  ring->setBracket(xBracket());
  EXPECT_EQ(reinforcement_text(*ring, english), "6 Ø20, spiral none");
}

TEST(CapBeamTable, TellsTheSectionWhereItWasVerified) {
  TraveResults beam;
  EXPECT_EQ(cap_beam_table(beam, english), "");
  beam.B = 1000.0;
  beam.H = 800.0;
  beam.checked = rectangle(2, 2, 4);
  EXPECT_EQ(cap_beam_table(beam, english), "");
  beam.done = true;
  EXPECT_EQ(cap_beam_table(beam, english),
            "Cap beam 1000 x 800 mm: reinforcement of the design\n"
            "  excavation side 2 Ø24, retained side 2 Ø24, corners 4 Ø24, stirrups Ø12/200\n"
            "    with 4 legs\n");
}

}  // namespace
}  // namespace ostrel::host
