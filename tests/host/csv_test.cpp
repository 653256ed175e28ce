// SPDX-License-Identifier: Apache-2.0
#include "csv.h"

#include <gtest/gtest.h>

#include <limits>

namespace ostrel::host {
namespace {

TEST(Csv, QuotesWhatWouldBreakARow) {
  CsvTable csv({"a", "b"});
  csv.add({"x, y", "say \"hi\""});
  csv.add({"two\nlines", "è"});
  EXPECT_EQ(csv.text(), "a,b\r\n\"x, y\",\"say \"\"hi\"\"\"\r\n\"two\nlines\",è\r\n");
}

TEST(Csv, WritesNumbersSoThatTheyComeBack) {
  EXPECT_EQ(csv_number(0.1), "0.1");
  EXPECT_EQ(std::stod(csv_number(1.0 / 3.0)), 1.0 / 3.0);
}

TEST(Csv, LeavesTheCellOfWhatIsNoNumberEmpty) {
  EXPECT_EQ(csv_number(std::numeric_limits<double>::quiet_NaN()), "");
  EXPECT_EQ(csv_number(std::numeric_limits<double>::infinity()), "");
}

}  // namespace
}  // namespace ostrel::host
