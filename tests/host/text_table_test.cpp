// SPDX-License-Identifier: Apache-2.0
#include "text_table.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <sstream>

namespace ostrel::host {
namespace {

TEST(TextTable, LinesUpItsColumns) {
  TextTable table;
  table.add_column("", TextTable::Side::left);
  table.add_column("Value", TextTable::Side::right);
  table.add_row({"moment", "1.5"});
  table.add_row({"x"});
  EXPECT_EQ(table.render(),
            "        Value\n"
            "-------------\n"
            "moment    1.5\n"
            "x\n");
}

TEST(TextTable, CountsCharactersAndNotBytes) {
  TextTable table;
  table.add_column("Unità", TextTable::Side::left);
  table.add_column("b", TextTable::Side::left);
  table.add_row({"a", "c"});
  EXPECT_EQ(table.render(), "Unità  b\n--------\na      c\n");
}

TEST(TextTable, KeepsToTheTerminalByItsFirstColumn) {
  TextTable table;
  table.add_column("a", TextTable::Side::left);
  table.add_column("b", TextTable::Side::right);
  table.add_row({std::string(200, 'x'), "12345"});
  std::istringstream lines(table.render());
  for (std::string line; std::getline(lines, line);) {
    EXPECT_LE(columns_of(line), terminal_width) << line;
  }
}

TEST(FittedText, MarksWhatIsCut) {
  EXPECT_EQ(fitted("abc", 3), "abc");
  EXPECT_EQ(fitted("abcd", 3), "ab…");
  EXPECT_EQ(fitted("èàù", 2), "è…");
}

TEST(FittedText, HoldsNoControlCharacters) {
  EXPECT_EQ(fitted("a\nb\x1b[31m", 20), "a?b?[31m");
}

TEST(TextTable, LetsTheNamedColumnGiveWay) {
  TextTable table;
  table.add_column("A", TextTable::Side::left);
  table.add_column("B", TextTable::Side::left);
  table.give_way(1);
  table.add_row({std::string(30, 'a'), std::string(60, 'b')});
  const std::string text = table.render();
  EXPECT_THAT(text, ::testing::HasSubstr(
                        fmt::format("{}  {}…\n", std::string(30, 'a'), std::string(47, 'b'))));
}

TEST(Wrapped, BreaksAtBlanksAndIndentsWhatFollows) {
  EXPECT_EQ(wrapped("one two three", 80, 2), "one two three");
  EXPECT_EQ(wrapped("one two three", 8, 2), "one two\n  three");
  EXPECT_EQ(wrapped("one two three", 7, 2), "one two\n  three");
}

TEST(Wrapped, BreaksAWordThatFillsMoreThanALine) {
  EXPECT_EQ(wrapped("àààààà", 4, 1), "àààà\n àà");
  EXPECT_EQ(wrapped("a\x1b", 4, 1), "a?");
}

TEST(NumberText, HasDecimalsUnlessItIsTooWide) {
  EXPECT_EQ(number_text(-1.25, 1), "-1.2");
  EXPECT_EQ(number_text(12345678.0, 1), "12345678.0");
  EXPECT_EQ(number_text(1e300, 2), "1e+300");
}

}  // namespace
}  // namespace ostrel::host
