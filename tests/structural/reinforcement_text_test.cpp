// SPDX-License-Identifier: Apache-2.0
#include "structural/reinforcement_text.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using ostrel::structural::bars_text;
using ostrel::structural::joined;
using ostrel::structural::stirrup_text;

xReinforcementBar bars(std::uint32_t number, double diameter) {
  xReinforcementBar group;
  group.setNumber(number);
  group.setDiameter(diameter);
  return group;
}

xBracket stirrups(double diameter, double step) {
  xBracket stirrup;
  stirrup.setDiameter(diameter);
  stirrup.setStep(step);
  return stirrup;
}

TEST(BarsText, NamesNumberAndDiameter) {
  EXPECT_EQ(bars_text(bars(4, 20.0), "D"), "4D20");
  EXPECT_EQ(bars_text(bars(12, 8.0), " phi "), "12 phi 8");
  EXPECT_EQ(bars_text(bars(4, 20.0), nullptr), "420");
}

// 19.9995 + 0.001 = 20.0005; 19.998 + 0.001 = 19.999.
TEST(BarsText, TruncatesTheDiameterAfterAThousandth) {
  EXPECT_EQ(bars_text(bars(1, 19.9995), "D"), "1D20");
  EXPECT_EQ(bars_text(bars(1, 19.998), "D"), "1D19");
}

TEST(BarsText, IsEmptyWithoutASection) {
  EXPECT_EQ(bars_text(bars(0, 20.0), "D"), "");
  EXPECT_EQ(bars_text(bars(4, 0.0), "D"), "");
  EXPECT_EQ(bars_text(bars(4, std::numeric_limits<double>::quiet_NaN()), "D"), "");
  EXPECT_EQ(bars_text(bars(1, 1e-8), "D"), "");  // 0.785e-16 mm²
  EXPECT_EQ(bars_text(bars(4, 1e-8), "D"), "4D0");
}

TEST(BarsText, StandsForAHugeDiameter) {
  EXPECT_EQ(bars_text(bars(4, 1e100), "D"), "4D2147483647");
}

TEST(Joined, LeavesNoSignBesideAnEmptyPart) {
  EXPECT_EQ(joined("2D16", "3D20"), "2D16+3D20");
  EXPECT_EQ(joined("2D16", ""), "2D16");
  EXPECT_EQ(joined("", "3D20"), "3D20");
  EXPECT_EQ(joined("", ""), "");
}

TEST(StirrupText, NamesDiameterAndScaledStep) {
  EXPECT_EQ(stirrup_text(stirrups(8.0, 200.0), "D", 0.1), "1D8/20");
  EXPECT_EQ(stirrup_text(stirrups(8.0, 127.0), "D", 0.1), "1D8/12.7");
  EXPECT_EQ(stirrup_text(stirrups(8.0, 200.0), nullptr, 1.0), "18/200");
}

TEST(StirrupText, TruncatesTheStepToTwoDecimals) {
  EXPECT_EQ(stirrup_text(stirrups(8.0, 12.3456), "D", 1.0), "1D8/12.34");
  EXPECT_EQ(stirrup_text(stirrups(8.0, 12.349), "D", 1.0), "1D8/12.34");
  EXPECT_EQ(stirrup_text(stirrups(8.0, -12.349), "D", 1.0), "1D8/-12.34");
}

// 290 * 0.001 * 100 is 28.999999999999996 in doubles.
TEST(StirrupText, DoesNotLoseAHundredthToRounding) {
  EXPECT_EQ(stirrup_text(stirrups(8.0, 290.0), "D", 0.001), "1D8/0.29");
  for (int step = 10; step <= 990; step += 10) {
    const std::string hundredths = std::to_string(step / 10);
    std::string expected = hundredths.size() < 2 ? "0.0" + hundredths : "0." + hundredths;
    if (expected.back() == '0') expected.pop_back();
    EXPECT_EQ(stirrup_text(stirrups(8.0, step), "D", 0.001), "1D8/" + expected);
  }
}

TEST(StirrupText, WritesSixDigits) {
  EXPECT_EQ(stirrup_text(stirrups(8.0, 123456.78), "D", 1.0), "1D8/123457");
  EXPECT_EQ(stirrup_text(stirrups(8.0, 2.5e6), "D", 1.0), "1D8/2.5e+06");
}

TEST(StirrupText, StandsForAnyStep) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(stirrup_text(stirrups(8.0, infinity), "D", 1.0), "1D8/inf");
  EXPECT_EQ(stirrup_text(stirrups(8.0, -1.5e300), "D", 1.0), "1D8/-1.5e+300");
}

}  // namespace
