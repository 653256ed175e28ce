// SPDX-License-Identifier: Apache-2.0
#include "verification_table.h"

#include "text_table.h"
#include "verification_testing.h"

#include <ostrel/language.h>

#include <gmock/gmock.h>

#include <limits>
#include <sstream>

namespace ostrel::host {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class VerificationTable : public ::testing::Test {
protected:
  void SetUp() override { ostrel::set_language("en"); }

  // The line that begins with a text.
  std::string line_of(const std::string& beginning) {
    std::istringstream lines(verification_table(data_, texts_));
    for (std::string line; std::getline(lines, line);) {
      if (line.starts_with(beginning)) return line;
    }
    return "";
  }

  Texts texts_{Language::english};
  RunData data_;
};

TEST_F(VerificationTable, TellsWorstFactorPlaceAndOutcomeOfEach) {
  data_.ultimate.structuralDesign = verified_wall();
  data_.serviceability = verified_displacements();
  const std::string wall = line_of("Wall sections");
  EXPECT_THAT(wall, HasSubstr(" 0.80  B "));
  EXPECT_THAT(wall, HasSubstr("6.00 m, shear"));
  EXPECT_TRUE(wall.ends_with("  not satisfied")) << wall;
  const std::string displacements = line_of("Displacements");
  EXPECT_THAT(displacements, HasSubstr(" 2.00  S "));
  EXPECT_TRUE(displacements.ends_with("  satisfied")) << displacements;
}

TEST_F(VerificationTable, TellsTheFailuresInTheLanguageOfTheLibrary) {
  data_.ultimate.structuralDesign = verified_wall();
  const std::string table = verification_table(data_, texts_);
  EXPECT_THAT(table, HasSubstr("Not satisfied, of each verification"));
  // In "B", the section at 6 m.
  EXPECT_THAT(table, HasSubstr("=B, sf=0.8"));
  ostrel::set_language("it");
  EXPECT_THAT(verification_table(data_, Texts(Language::italian)),
              HasSubstr("Verifica a taglio non soddisfatta: comb=B, sf=0.8"));
}

TEST_F(VerificationTable, SaysWhereThereIsNothingToVerify) {
  data_.ultimate.structuralDesign.bendShear.combinations = {
      sections_of("A", 1, {section_at(0.0, 0.0, 0.0)})};
  EXPECT_THAT(line_of("Wall sections"), HasSubstr(" ∞  A "));
  EXPECT_THAT(verification_table(data_, texts_), HasSubstr("∞: there is nothing to verify"));
}

TEST_F(VerificationTable, SaysWhatWasNotMade) {
  EXPECT_TRUE(line_of("Wall sections").ends_with("not made"));
  EXPECT_THAT(verification_table(data_, texts_), HasSubstr("Not made: no combination asks"));
  data_.through = false;
  EXPECT_THAT(verification_table(data_, texts_), HasSubstr("verifications are incomplete"));
  EXPECT_THAT(verification_table(data_, texts_), Not(HasSubstr("no combination asks")));
}

TEST_F(VerificationTable, DoesNotCallWhatIsNoNumberSatisfied) {
  data_.serviceability = verified_displacements();
  data_.serviceability.displacements.results[0].setHeaddisp(
      std::numeric_limits<double>::quiet_NaN());
  EXPECT_THAT(line_of("Displacements"), HasSubstr("?  S"));
  EXPECT_TRUE(line_of("Displacements").ends_with("not determined"));
  EXPECT_EQ(lines_below(data_, 0.001, texts_),
            "Displacements: the factor is not a number (combination S)\n");
}

TEST_F(VerificationTable, KeepsToTheWidthOfATerminalAndToItsLines) {
  data_.ultimate.structuralDesign.bendShear.combinations = {
      sections_of(std::string(200, 'c').append("\x1b[2J"), 1, {section_at(12345e3, 400.0, 0.0)})};
  for (const Language language : {Language::english, Language::italian}) {
    const std::string table = verification_table(data_, Texts(language));
    EXPECT_THAT(table, Not(HasSubstr("\x1b")));
    std::istringstream lines(table);
    for (std::string line; std::getline(lines, line);) {
      EXPECT_LE(columns_of(line), terminal_width) << line;
    }
  }
}

TEST_F(VerificationTable, NamesWhatIsBelowALimit) {
  data_.ultimate.structuralDesign = verified_wall();
  data_.serviceability = verified_displacements();
  EXPECT_EQ(lines_below(data_, 0.8, texts_), "");
  EXPECT_EQ(lines_below(data_, 1.0, texts_),
            "Wall sections: the factor 0.80 is below 1 (combination B)\n");
  EXPECT_EQ(lines_below(data_, 2.5, texts_),
            "Wall sections: the factor 0.80 is below 2.5 (combination B)\n"
            "Displacements: the factor 2.00 is below 2.5 (combination S)\n");
}

}  // namespace
}  // namespace ostrel::host
