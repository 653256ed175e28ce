// SPDX-License-Identifier: Apache-2.0
#include "ostrel/reinforcement_bars.h"

#include "support/hostile_stream.h"
#include "support/random_bits.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::expect_cuts_refused;
using ostrel::testing::frame_bytes;
using ostrel::testing::RandomBits;
using ostrel::testing::read_stored;
using ostrel::testing::refused_mutations;
using ostrel::testing::stored;
using ostrel::testing::through_memory;
using std::numbers::pi;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();
constexpr std::uint32_t most_bars = std::numeric_limits<std::uint32_t>::max();
constexpr int largest_int = std::numeric_limits<int>::max();
constexpr int lowest_int = std::numeric_limits<int>::min();

xReinforcementBar bars(std::uint32_t number, double diameter) {
  xReinforcementBar group;
  group.setNumber(number);
  group.setDiameter(diameter);
  return group;
}

std::uint32_t bars_for_area(double diameter, double area) {
  xReinforcementBar group = bars(99, diameter);
  group.calcBarNumFromArea(area);
  return group.getNumber();
}

std::uint32_t after_adding(xReinforcementBar group, int n, int d) {
  group.addArm(n, d);
  return group.getNumber();
}

std::uint32_t after_erasing(xReinforcementBar group, int n, int d) {
  group.eraseArm(n, d);
  return group.getNumber();
}

std::uint32_t after_adding_bars(std::uint32_t number, int n) {
  xReinforcementBar group = bars(number, 20.0);
  group.addBars(n);
  return group.getNumber();
}

TEST(ReinforcementBar, IsEmptyWhenNewAndAfterReset) {
  xReinforcementBar group;
  EXPECT_EQ(group.getNumber(), 0U);
  EXPECT_DOUBLE_EQ(group.getDiameter(), 0.0);
  group = bars(4, 20.0);
  group.reset();
  EXPECT_EQ(group.getNumber(), 0U);
  EXPECT_DOUBLE_EQ(group.getDiameter(), 0.0);
}

// pi * 20² / 4 = 100 pi.
TEST(ReinforcementBar, HasTheAreaOfItsCircles) {
  EXPECT_DOUBLE_EQ(bars(4, 20.0).barArea(), 100.0 * pi);
  EXPECT_DOUBLE_EQ(bars(4, 20.0).area(), 400.0 * pi);
  EXPECT_DOUBLE_EQ(bars(0, 20.0).area(), 0.0);
}

TEST(ReinforcementBar, RoundsTheNumberForAnAreaUp) {
  EXPECT_EQ(bars_for_area(20.0, 401.0 * pi), 5U);
  EXPECT_EQ(bars_for_area(20.0, 499.0 * pi), 5U);
  EXPECT_EQ(bars_for_area(20.0, 0.01), 1U);
}

TEST(ReinforcementBar, GivesAnExactMultipleOfItsAreaThatNumber) {
  for (const double diameter : {6.0, 8.0, 10.0, 12.0, 14.0, 16.0, 20.0, 22.0, 24.0, 26.0, 32.0}) {
    for (std::uint32_t number = 1; number <= 1000; ++number) {
      EXPECT_EQ(bars_for_area(diameter, bars(number, diameter).area()), number) << diameter;
      EXPECT_EQ(bars_for_area(diameter, bars(1, diameter).barArea() * 1.000001 * number),
                number + 1)
          << diameter;
    }
  }
}

TEST(ReinforcementBar, NeedsNoBarsWithoutAnAreaOrADiameter) {
  EXPECT_EQ(bars_for_area(20.0, 0.0), 0U);
  EXPECT_EQ(bars_for_area(20.0, -1.0), 0U);
  EXPECT_EQ(bars_for_area(20.0, not_a_number), 0U);
  EXPECT_EQ(bars_for_area(0.0, 100.0), 0U);
  EXPECT_EQ(bars_for_area(not_a_number, 100.0), 0U);
  EXPECT_EQ(bars_for_area(infinity, infinity), 0U);
}

TEST(ReinforcementBar, StopsAtTheLargestNumberForAHugeArea) {
  EXPECT_EQ(bars_for_area(20.0, 1e300), most_bars);
  EXPECT_EQ(bars_for_area(20.0, infinity), most_bars);
  EXPECT_EQ(bars_for_area(1e-100, 1.0), most_bars);
}

TEST(ReinforcementBar, AddsBarsWithinTheRangeOfItsNumber) {
  EXPECT_EQ(after_adding_bars(4, 3), 7U);
  EXPECT_EQ(after_adding_bars(4, 0), 4U);
  EXPECT_EQ(after_adding_bars(4, -3), 1U);
  EXPECT_EQ(after_adding_bars(4, -5), 0U);
  EXPECT_EQ(after_adding_bars(4, lowest_int), 0U);
  EXPECT_EQ(after_adding_bars(most_bars - 1, 3), most_bars);
  EXPECT_EQ(after_adding_bars(most_bars, largest_int), most_bars);
}

TEST(AddArm, ReplacesTheDiameterOfAGroupWithoutBars) {
  xReinforcementBar group = bars(0, 20.0);
  group.addArm(3, 16);
  EXPECT_EQ(group.getNumber(), 3U);
  EXPECT_DOUBLE_EQ(group.getDiameter(), 16.0);
}

TEST(AddArm, GivesAGroupWithoutDiameterTheBarsAlone) {
  xReinforcementBar group = bars(5, 0.0);
  group.addArm(3, 16);
  EXPECT_EQ(group.getNumber(), 3U);
  EXPECT_DOUBLE_EQ(group.getDiameter(), 16.0);
}

TEST(AddArm, CountsBarsOfTheSameDiameter) {
  EXPECT_EQ(after_adding(bars(4, 20.0), 3, 20), 7U);
}

// 2 bars of 16 mm have 128 pi, 1.28 bars of 20 mm; 3 bars of 40 mm have 1200 pi, 12 bars of 20 mm.
TEST(AddArm, KeepsTheDiameterAndRoundsTheNumberUp) {
  xReinforcementBar group = bars(4, 20.0);
  group.addArm(2, 16);
  EXPECT_EQ(group.getNumber(), 6U);
  EXPECT_DOUBLE_EQ(group.getDiameter(), 20.0);
  EXPECT_EQ(after_adding(bars(4, 20.0), 3, 40), 16U);
}

TEST(AddArm, AddsNothingForANegativeNumber) {
  EXPECT_EQ(after_adding(bars(4, 20.0), -3, 20), 4U);
  EXPECT_EQ(after_adding(bars(4, 20.0), -3, 16), 4U);
  EXPECT_EQ(after_adding(bars(0, 20.0), lowest_int, 16), 0U);
}

TEST(AddArm, StaysWithinTheRangeOfTheNumber) {
  EXPECT_EQ(after_adding(bars(4, 1e-6), largest_int, largest_int), most_bars);
  EXPECT_EQ(after_adding(bars(most_bars, 20.0), largest_int, 20), most_bars);
  EXPECT_EQ(after_adding(bars(4, not_a_number), 1, 20), 4U);
}

// 400 pi less 64 pi are 3.36 bars of 20 mm; 1000 pi less 300 pi are 7.
TEST(EraseArm, RoundsWhatIsLeftUp) {
  EXPECT_EQ(after_erasing(bars(4, 20.0), 1, 16), 4U);
  EXPECT_EQ(after_erasing(bars(10, 20.0), 3, 20), 7U);
}

TEST(EraseArm, LeavesNothingOfWhatIsTakenWhole) {
  for (const int diameter : {6, 14, 16, 20, 22, 26}) {
    for (int number = 1; number <= 200; ++number) {
      EXPECT_EQ(after_erasing(bars(static_cast<std::uint32_t>(number), diameter), number, diameter),
                0U);
    }
  }
  EXPECT_EQ(after_erasing(bars(4, 20.0), 5, 20), 0U);
}

// Ten bars of 20.0005 mm less ten of 20 mm leave 10 * 0.02 / 400 = 0.0005 of a bar; with 20.002 mm
// it is 10 * 0.08 / 400 = 0.002 of a bar.
TEST(EraseArm, TakesUpToAThousandthOfABarAsNoise) {
  EXPECT_EQ(after_erasing(bars(10, 20.0005), 10, 20), 0U);
  EXPECT_EQ(after_erasing(bars(10, 20.002), 10, 20), 1U);
}

TEST(EraseArm, TakesNothingForANegativeNumber) {
  EXPECT_EQ(after_erasing(bars(4, 20.0), -1, 20), 4U);
  EXPECT_EQ(after_erasing(bars(4, 20.0), lowest_int, 20), 4U);
}

TEST(EraseArm, LeavesNothingWithoutADiameter) {
  EXPECT_EQ(after_erasing(bars(4, 0.0), 0, 20), 0U);
  EXPECT_EQ(after_erasing(bars(4, not_a_number), 1, 20), 0U);
}

TEST(ReinforcementBar, IsStoredAsNumberAndDiameter) {
  const std::string bytes =
      frame_bytes(1, bytes_of([](outstream& out) { out << 4'000'000'000U << 20.5; }));
  xReinforcementBar group;
  read_stored(group, bytes);
  EXPECT_EQ(group.getNumber(), 4'000'000'000U);
  EXPECT_DOUBLE_EQ(group.getDiameter(), 20.5);
  EXPECT_EQ(stored(group), bytes);
  EXPECT_EQ(group.getIOClass(), "xReinforcementBar");
}

xBracket bracket(double diameter, int arms, double step) {
  xBracket stirrup;
  stirrup.setDiameter(diameter);
  stirrup.setNArms(arms);
  stirrup.setStep(step);
  return stirrup;
}

TEST(Bracket, HasTwoArmsByDefault) {
  xBracket stirrup = bracket(8.0, 4, 200.0);
  stirrup.Default();
  EXPECT_DOUBLE_EQ(stirrup.getDiameter(), 0.0);
  EXPECT_EQ(stirrup.getNArms(), 2);
  EXPECT_DOUBLE_EQ(stirrup.getStep(), 0.0);
  EXPECT_EQ(xBracket{}.getNArms(), 2);
}

// 4 arms of 8 mm: 4 * 64 pi / 4 = 64 pi; by 200 mm 0.32 pi.
TEST(Bracket, SpreadsItsArmsOverTheStep) {
  EXPECT_DOUBLE_EQ(bracket(8.0, 4, 200.0).Asw(), 64.0 * pi);
  EXPECT_DOUBLE_EQ(bracket(8.0, 4, 200.0).AswForStep(), 0.32 * pi);
}

// 2 arms of 12 mm: 2 * 144 pi / 4 = 72 pi; by 12 mm 6 pi.
TEST(Bracket, WithoutAStepTakesItsDiameter) {
  EXPECT_DOUBLE_EQ(bracket(12.0, 2, 0.0).AswForStep(), 6.0 * pi);
  EXPECT_DOUBLE_EQ(bracket(12.0, 2, 11.0).AswForStep(), 6.0 * pi);
}

TEST(Bracket, WithoutStepAndDiameterHasNoAreaPerStep) {
  EXPECT_DOUBLE_EQ(xBracket{}.AswForStep(), 0.0);
  EXPECT_DOUBLE_EQ(bracket(0.0009, 2, 0.0).AswForStep(), 0.0);
  EXPECT_GT(bracket(0.001, 2, 0.0).AswForStep(), 0.0);
}

TEST(Bracket, IsStoredWithTheArmsFirst) {
  const std::string bytes =
      frame_bytes(2, bytes_of([](outstream& out) { out << 4 << 8.0 << 200.0; }));
  xBracket stirrup;
  read_stored(stirrup, bytes);
  EXPECT_EQ(stirrup.getNArms(), 4);
  EXPECT_DOUBLE_EQ(stirrup.getDiameter(), 8.0);
  EXPECT_DOUBLE_EQ(stirrup.getStep(), 200.0);
  EXPECT_EQ(stored(stirrup), bytes);
  EXPECT_EQ(stirrup.getIOClass(), "xBracket");
}

TEST(Bracket, OfAnOlderVersionIsRefused) {
  const std::string fields = bytes_of([](outstream& out) { out << 4 << 8.0 << 200.0; });
  xBracket stirrup;
  for (const int version : {1, 0, -7}) {
    try {
      read_stored(stirrup, frame_bytes(version, fields));
      FAIL() << version;
    } catch (int refused) {
      EXPECT_EQ(refused, version);
    }
  }
  EXPECT_NO_THROW(read_stored(stirrup, frame_bytes(3, fields)));
}

TEST(BracketSettings, AreEmptyWithTwoArmsByDefault) {
  xBracketSettings settings;
  settings.setMinStep(100.0);
  settings.setMaxStep(300.0);
  settings.setStepIncr(50.0);
  settings.setNArms(4);
  settings.bar.setDiameter(8.0);
  settings.reset();
  EXPECT_DOUBLE_EQ(settings.getMinStep(), 0.0);
  EXPECT_DOUBLE_EQ(settings.getMaxStep(), 0.0);
  EXPECT_DOUBLE_EQ(settings._getStepIncr(), 0.0);
  EXPECT_EQ(settings.getNArms(), 2);
  EXPECT_DOUBLE_EQ(settings.bar.getDiameter(), 0.0);
}

TEST(BracketSettings, KeepTheirArmsWhenRead) {
  xBracketSettings written;
  written.setMinStep(100.0);
  written.setMaxStep(300.0);
  written.setStepIncr(50.0);
  written.setNArms(6);
  written.bar = bars(1, 8.0);
  const std::string steps = bytes_of([](outstream& out) { out << 100.0 << 300.0 << 50.0; });
  EXPECT_EQ(stored(written), frame_bytes(1, steps + stored(written.bar)));
  xBracketSettings settings;
  settings.setNArms(3);
  read_stored(settings, stored(written));
  EXPECT_EQ(settings.getNArms(), 3);
  EXPECT_DOUBLE_EQ(settings.getMinStep(), 100.0);
  EXPECT_DOUBLE_EQ(settings.getMaxStep(), 300.0);
  EXPECT_DOUBLE_EQ(settings._getStepIncr(), 50.0);
  EXPECT_DOUBLE_EQ(settings.bar.getDiameter(), 8.0);
  EXPECT_EQ(settings.getIOClass(), "xBracketSettings");
}

TEST(BarsAndStirrups, ComeBackAsTheyWereStored) {
  RandomBits random(7);
  for (int i = 0; i < 200; ++i) {
    const auto group = bars(random.natural(), random.number());
    EXPECT_EQ(stored(through_memory(group)), stored(group));
    const auto stirrup = bracket(random.number(), random.integer(), random.number());
    EXPECT_EQ(stored(through_memory(stirrup)), stored(stirrup));
    xBracketSettings settings;
    settings.setMinStep(random.number());
    settings.setMaxStep(random.number());
    settings.setStepIncr(random.number());
    settings.bar = group;
    EXPECT_EQ(stored(through_memory(settings)), stored(settings));
  }
}

TEST(BarsAndStirrups, RefuseDamagedStreams) {
  expect_cuts_refused(bars(4, 20.0));
  expect_cuts_refused(bracket(8.0, 2, 200.0));
  expect_cuts_refused(xBracketSettings{});
  EXPECT_GT(refused_mutations(xBracketSettings{}, 500), 0);
}

}  // namespace
