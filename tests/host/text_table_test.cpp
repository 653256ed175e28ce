// SPDX-License-Identifier: Apache-2.0
#include "text_table.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace ostrel::host
