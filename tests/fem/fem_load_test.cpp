// SPDX-License-Identifier: Apache-2.0
#include "ostrel/fem_load.h"

#include "support/stream_round_trip.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::read_stored;
using ostrel::testing::stored;
using ostrel::testing::through_memory;

constexpr double infinite = std::numeric_limits<double>::infinity();

void expect_equal(const xFemNodeData& a, const xFemNodeData& b) {
  EXPECT_EQ(a.x, b.x);
  EXPECT_EQ(a.y, b.y);
  EXPECT_EQ(a.r, b.r);
}

void expect_equal(const PressAtEnds& a, const PressAtEnds& b) {
  EXPECT_EQ(a.pStart, b.pStart);
  EXPECT_EQ(a.pEnd, b.pEnd);
  EXPECT_EQ(a.aStart, b.aStart);
  EXPECT_EQ(a.aEnd, b.aEnd);
}

TEST(FemNodeData, StartsAtZeroAndReturnsToIt) {
  xFemNodeData data;
  expect_equal(data, xFemNodeData(0.0, 0.0, 0.0));
  data = xFemNodeData(1.0, 2.0, 3.0);
  EXPECT_EQ(data.x, 1.0);
  EXPECT_EQ(data.y, 2.0);
  EXPECT_EQ(data.r, 3.0);
  data.zeros();
  expect_equal(data, xFemNodeData(0.0, 0.0, 0.0));
}

TEST(FemNodeData, AddsMemberByMember) {
  xFemNodeData sum(1.0, 2.0, 3.0);
  sum += xFemNodeData(10.0, 20.0, 30.0);
  expect_equal(sum, xFemNodeData(11.0, 22.0, 33.0));
  sum += sum;
  expect_equal(sum, xFemNodeData(22.0, 44.0, 66.0));
}

// 9 + 16 + 144 = 169.
TEST(FemNodeData, MixesForcesAndMomentInItsLength) {
  EXPECT_EQ(xFemNodeData(3.0, 4.0, 12.0).len(), 13.0);
  EXPECT_EQ(xFemNodeData(-3.0, -4.0, -12.0).len(), 13.0);
  EXPECT_EQ(xFemNodeData().len(), 0.0);
}

TEST(FemNodeData, IsStoredAsThreeDoublesInVersion1) {
  xFemNodeData data(1.5, -2.5, infinite);
  EXPECT_EQ(data.getIOClass(), "xFemNodeData");
  expect_equal(through_memory(data), data);
  EXPECT_EQ(stored(data),
            frame_bytes(1, bytes_of([](outstream& out) { out << 1.5 << -2.5 << infinite; })));
}

TEST(FemNodeDataPos, IsOrderedByPositionAlone) {
  xFemNodeData_pos above;
  above.pos = 1.0;
  above.data.x = 9.0;
  xFemNodeData_pos below;
  below.pos = 2.0;
  EXPECT_TRUE(above < below);
  EXPECT_FALSE(below < above);
  below.pos = 1.0;
  EXPECT_FALSE(above < below);
  EXPECT_FALSE(below < above);
}

TEST(FemNodeDataPos, IsStoredAsFourDoublesWithoutAnInnerFrame) {
  xFemNodeData_pos data;
  data.pos = 1.0;
  data.data = xFemNodeData(2.0, 3.0, 4.0);
  EXPECT_EQ(data.getIOClass(), "xFemNodeData_pos");
  EXPECT_EQ(stored(data),
            frame_bytes(1, bytes_of([](outstream& out) { out << 1.0 << 2.0 << 3.0 << 4.0; })));
  const xFemNodeData_pos copy = through_memory(data);
  EXPECT_EQ(copy.pos, 1.0);
  expect_equal(copy.data, data.data);
}

TEST(PressAtEnds, TakesTheLoadAcrossInItsConstructor) {
  expect_equal(PressAtEnds(), PressAtEnds(0.0, 0.0));
  const PressAtEnds load(1.0, 2.0);
  EXPECT_EQ(load.pStart, 1.0);
  EXPECT_EQ(load.pEnd, 2.0);
  EXPECT_EQ(load.aStart, 0.0);
  EXPECT_EQ(load.aEnd, 0.0);
}

TEST(PressAtEnds, IsStoredAsFourDoublesInVersion2) {
  PressAtEnds load(1.0, 2.0);
  load.aStart = 3.0;
  load.aEnd = 4.0;
  EXPECT_EQ(load.getIOClass(), "PressAtEnds");
  EXPECT_EQ(stored(load),
            frame_bytes(2, bytes_of([](outstream& out) { out << 1.0 << 2.0 << 3.0 << 4.0; })));
  expect_equal(through_memory(load), load);
}

TEST(PressAtEnds, RefusesAnOlderVersionByThrowingItsNumber) {
  for (const int version : {1, 0, -7}) {
    const std::string old =
        frame_bytes(version, bytes_of([](outstream& out) { out << 1.0 << 2.0 << 3.0 << 4.0; }));
    PressAtEnds load(8.0, 9.0);
    try {
      read_stored(load, old);
      ADD_FAILURE() << "version " << version << " was read";
    } catch (int refused) {
      EXPECT_EQ(refused, version);
    }
    expect_equal(load, PressAtEnds(8.0, 9.0));
  }
}

TEST(FemLoadCond, TakesItsNameAndResets) {
  xFemLoadCond condition("Peso");
  EXPECT_EQ(condition.getCondName(), "Peso");
  condition.setCondName("Terreno");
  EXPECT_EQ(condition.getCondName(), "Terreno");
  condition.nodalForces[3] = xFemNodeData(1.0, 2.0, 3.0);
  condition.pressures[4] = PressAtEnds(1.0, 2.0);
  condition.reset();
  EXPECT_TRUE(condition.nodalForces.empty());
  EXPECT_TRUE(condition.pressures.empty());
  EXPECT_TRUE(condition.getCondName().empty());
}

TEST(FemLoadCond, IsStoredByAscendingKeysAndItsNameLast) {
  xFemLoadCond condition("Peso");
  condition.nodalForces[5] = xFemNodeData(5.0, 0.0, 0.0);
  condition.nodalForces[-2] = xFemNodeData(2.0, 0.0, 0.0);
  condition.pressures[1] = PressAtEnds(7.0, 8.0);
  EXPECT_EQ(condition.getIOClass(), "xFemLoadCond");
  const std::string fields =
      bytes_of([](outstream& out) { out << 2 << -2; }) + stored(xFemNodeData(2.0, 0.0, 0.0))
      + bytes_of([](outstream& out) { out << 5; }) + stored(xFemNodeData(5.0, 0.0, 0.0))
      + bytes_of([](outstream& out) { out << 1 << 1; }) + stored(PressAtEnds(7.0, 8.0))
      + bytes_of([](outstream& out) { out << "Peso"; });
  EXPECT_EQ(stored(condition), frame_bytes(1, fields));
}

TEST(FemLoadCond, OfRandomContentsComesBackEqual) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> any(0, 1000);
  std::uniform_real_distribution<double> number(-1e6, 1e6);
  for (int run = 0; run < 50; ++run) {
    xFemLoadCond condition("condition " + std::to_string(any(random)));
    for (int i = any(random) % 20; i > 0; --i) {
      condition.nodalForces[any(random)] =
          xFemNodeData(number(random), number(random), number(random));
    }
    for (int i = any(random) % 20; i > 0; --i) {
      PressAtEnds& load = condition.pressures[any(random)];
      load = PressAtEnds(number(random), number(random));
      load.aStart = number(random);
      load.aEnd = number(random);
    }
    xFemLoadCond copy("an old name");
    copy.nodalForces[3];
    copy.pressures[2];
    read_stored(copy, stored(condition));
    EXPECT_EQ(copy.getCondName(), condition.getCondName());
    ASSERT_EQ(copy.nodalForces.size(), condition.nodalForces.size());
    for (const auto& [node, force] : condition.nodalForces)
      expect_equal(copy.nodalForces.at(node), force);
    ASSERT_EQ(copy.pressures.size(), condition.pressures.size());
    for (const auto& [element, load] : condition.pressures)
      expect_equal(copy.pressures.at(element), load);
  }
}

TEST(FemLoadCond, CutShortAnywhereThrows) {
  xFemLoadCond condition("Peso");
  condition.nodalForces[5] = xFemNodeData(5.0, 0.0, 0.0);
  condition.pressures[1] = PressAtEnds(7.0, 8.0);
  const std::string whole = stored(condition);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    xFemLoadCond copy;
    EXPECT_THROW(read_stored(copy, whole.substr(0, length)), std::runtime_error) << length;
  }
}

TEST(FemLoadCond, WithAnImpossibleCountThrowsBeforeItGrows) {
  for (const int count : {-1, std::numeric_limits<int>::max()}) {
    const std::string fields = bytes_of([count](outstream& out) { out << count; });
    xFemLoadCond copy;
    EXPECT_THROW(read_stored(copy, frame_bytes(1, fields)), std::runtime_error);
    EXPECT_LE(copy.nodalForces.size(), 1U);
  }
}

}  // namespace
