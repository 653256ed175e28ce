// SPDX-License-Identifier: Apache-2.0
#include "fem/spring_lumping.h"

#include "support/spring_beam.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <vector>

namespace {

using ostrel::fem::SpringLine;
using ostrel::testing::spring;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr double unlimited = 1e6;

// Elements of 100, 200, 300, 400 and 500 mm; the excavation at node 2, the foot at node 5.
const std::vector<double> lengths{100.0, 200.0, 300.0, 400.0, 500.0};

xFemData excavated_at(int node) {
  xFemData data;
  data.setJtsoil(node);
  return data;
}

// Moduli 1, 2, 3 and 4 at the nodes 2 to 5.
std::map<int, NodeModulus> four_springs() {
  return {{2, spring(1.0, unlimited)},
          {3, spring(2.0, unlimited)},
          {4, spring(3.0, unlimited)},
          {5, spring(4.0, unlimited)}};
}

std::vector<double> stiffness_of(SpringLine& line, const std::vector<double>& d) {
  std::vector<double> stiffness{-1.0, -1.0};
  line.evaluate(d, stiffness);
  return stiffness;
}

// With a spacing of 24 mm:
//   node 2  (7 * 1 + 6 * 2 - 3) 0.9 * 300 * 24 / 24 = 16 * 270 = 4320
//   node 3  (1 + 10 * 2 + 3) 400 * 24 / 12 = 24 * 800 = 19 200
//   node 4  (2 + 10 * 3 + 4) 500 * 24 / 12 = 36 * 1000 = 36 000
//   node 5  (7 * 4 + 6 * 3 - 2) 500 * 24 / 24 = 44 * 500 = 22 000
TEST(SpringLine, LumpsTheModuliOfThreeNodes) {
  const auto springs = four_springs();
  SpringLine line(excavated_at(2), springs, lengths, 24.0);
  ASSERT_EQ(line.size(), 4U);
  ASSERT_EQ(line.complete(), 4U);
  EXPECT_EQ(line.node(0), 2);
  EXPECT_EQ(line.node(3), 5);
  EXPECT_EQ(line.spring(3).modulus, 4.0);
  const auto stiffness = stiffness_of(line, std::vector<double>(18, 0.0));
  ASSERT_THAT(stiffness, SizeIs(4));
  EXPECT_DOUBLE_EQ(stiffness[0], 4320.0);
  EXPECT_DOUBLE_EQ(stiffness[1], 19'200.0);
  EXPECT_DOUBLE_EQ(stiffness[2], 36'000.0);
  EXPECT_DOUBLE_EQ(stiffness[3], 22'000.0);
}

// Only the length below the node counts: twice the length above node 3 changes nothing there, twice
// the one below doubles it.
TEST(SpringLine, DoesNotAverageTheLengthsAtANode) {
  const auto springs = four_springs();
  std::vector<double> longer = lengths;
  longer[2] = 600.0;
  SpringLine above(excavated_at(2), springs, longer, 24.0);
  EXPECT_DOUBLE_EQ(stiffness_of(above, {})[1], 19'200.0);
  longer = lengths;
  longer[3] = 800.0;
  SpringLine below(excavated_at(2), springs, longer, 24.0);
  EXPECT_DOUBLE_EQ(stiffness_of(below, {})[1], 38'400.0);
}

TEST(SpringLine, ReducesTheFirstSpringAlone) {
  const auto springs = four_springs();
  xFemData data = excavated_at(2);
  data.setRedfac(0.5);
  SpringLine line(data, springs, lengths, 24.0);
  const auto stiffness = stiffness_of(line, {});
  EXPECT_DOUBLE_EQ(stiffness[0], 2400.0);  // 16 * 0.5 * 300
  EXPECT_DOUBLE_EQ(stiffness[1], 19'200.0);
  EXPECT_DOUBLE_EQ(stiffness[2], 36'000.0);
  EXPECT_DOUBLE_EQ(stiffness[3], 22'000.0);
}

// Node 3 at twice its limit of 1 mm has k' = 2 * 1 / 2 = 1, in either direction:
//   node 2  (7 + 6 - 3) 270 = 2700        node 4  (1 + 30 + 4) 1000 = 35 000
//   node 3  (1 + 10 + 3) 800 = 11 200     node 5  (28 + 18 - 1) 500 = 22 500
TEST(SpringLine, SoftensASpringBeyondItsLimitAndItsNeighboursWithIt) {
  auto springs = four_springs();
  springs[3] = spring(2.0, 1.0);
  SpringLine line(excavated_at(2), springs, lengths, 24.0);
  for (const double u : {2.0, -2.0}) {
    std::vector<double> d(18, 0.0);
    d[3 * 3 + 1] = u;
    const auto stiffness = stiffness_of(line, d);
    EXPECT_DOUBLE_EQ(stiffness[0], 2700.0);
    EXPECT_DOUBLE_EQ(stiffness[1], 11'200.0);
    EXPECT_DOUBLE_EQ(stiffness[2], 35'000.0);
    EXPECT_DOUBLE_EQ(stiffness[3], 22'500.0);
  }
}

TEST(SpringLine, ReadsNoOtherDofThanTheOneAcross) {
  auto springs = four_springs();
  springs[3] = spring(2.0, 1.0);
  SpringLine line(excavated_at(2), springs, lengths, 24.0);
  std::vector<double> d(18, 50.0);
  for (std::size_t n = 0; n < 6; ++n) {
    d[3 * n + 1] = 0.0;
  }
  EXPECT_DOUBLE_EQ(stiffness_of(line, d)[1], 19'200.0);
}

// The vector ends before the dof of node 5, which counts as not displaced; that of node 4 is there.
TEST(SpringLine, TakesADofBeyondTheEndAsNotDisplaced) {
  std::map<int, NodeModulus> springs = four_springs();
  springs[4] = spring(3.0, 1.0);
  springs[5] = spring(4.0, 1.0);
  SpringLine line(excavated_at(2), springs, lengths, 24.0);
  const std::vector<double> d(3 * 4 + 2, 3.0);  // k'(4) = 3 * 1 / 3 = 1
  const auto stiffness = stiffness_of(line, d);
  EXPECT_DOUBLE_EQ(stiffness[3], (28.0 + 6.0 - 2.0) * 500.0);
}

// 7 * 1 + 6 * 1 - 20 = -7.
TEST(SpringLine, MayComeOutNegativeAtAnEnd) {
  std::map<int, NodeModulus> springs{
      {0, spring(1.0, unlimited)}, {1, spring(1.0, unlimited)}, {2, spring(20.0, unlimited)}};
  xFemData data = excavated_at(0);
  data.setRedfac(1.0);
  SpringLine line(data, springs, {24.0, 24.0}, 1.0);
  EXPECT_DOUBLE_EQ(stiffness_of(line, {})[0], -7.0);
}

TEST(SpringLine, OfNoSpringsIsComplete) {
  const std::map<int, NodeModulus> none;
  SpringLine line(excavated_at(2), none, lengths, 24.0);
  EXPECT_EQ(line.size(), 0U);
  EXPECT_EQ(line.complete(), 0U);
  EXPECT_THAT(stiffness_of(line, {}), IsEmpty());
}

struct Gap {
  std::vector<int> nodes;  // that have a spring
  int excavation;
  std::size_t complete;  // springs before the one that lacks something
};

class SpringLineWithAGap : public ::testing::TestWithParam<Gap> {};

TEST_P(SpringLineWithAGap, EndsBeforeTheSpringThatLacksANeighbour) {
  std::map<int, NodeModulus> springs;
  for (const int node : GetParam().nodes) {
    springs[node] = spring(1.0, unlimited);
  }
  SpringLine line(excavated_at(GetParam().excavation), springs, lengths, 24.0);
  EXPECT_EQ(line.size(), springs.size());
  EXPECT_EQ(line.complete(), GetParam().complete);
  EXPECT_THAT(stiffness_of(line, {}), SizeIs(GetParam().complete));
}

constexpr int far_node = std::numeric_limits<int>::max();

INSTANTIATE_TEST_SUITE_P(
    Nodes, SpringLineWithAGap,
    ::testing::Values(Gap{{2, 3, 4, 5}, 2, 4},            // none
                      Gap{{2, 4, 5}, 2, 0},               // the first lacks i + 1
                      Gap{{2, 3, 5}, 2, 0},               // the first lacks i + 2
                      Gap{{2, 3}, 2, 0},                  // likewise, at the end of the list
                      Gap{{5}, 5, 0},                     // the excavation at the foot
                      Gap{{4, 5}, 4, 0},                  // the excavation at the last but one
                      Gap{{3, 4, 5}, 2, 0},               // an inner one lacks i - 1
                      Gap{{2, 3, 4}, 2, 2},               // an inner one lacks i + 1
                      Gap{{1, 2, 3, 5}, 1, 2},            // likewise, before the foot
                      Gap{{0, 1, 3, 4, 5}, -1, 0},        // the head has no i - 1
                      Gap{{1, 2, 3, 4, 5}, 3, 0},         // a spring above the excavation
                      Gap{{-1, 0, 1, 2, 3, 4, 5}, 0, 0},  // a node above the head
                      Gap{{2, 3, 4, 5, 6}, 2, 4},         // a node below the foot
                      Gap{{2, 3, 4, 5, far_node}, 2, 4}));

// The foot takes i - 1 and i - 2, and no i + 1; the excavation wins where both rules fit.
TEST(SpringLine, OfTheFootLacksNothingBelow) {
  std::map<int, NodeModulus> springs{
      {0, spring(1.0, unlimited)}, {1, spring(2.0, unlimited)}, {2, spring(3.0, unlimited)}};
  SpringLine line(excavated_at(0), springs, {12.0, 24.0}, 1.0);
  ASSERT_EQ(line.complete(), 3U);
  EXPECT_DOUBLE_EQ(stiffness_of(line, {})[2], 21.0 + 12.0 - 1.0);  // L of element 1
}

TEST(SpringLine, OfABeamWithoutElementsHasNoStiffness) {
  const std::map<int, NodeModulus> springs{{0, spring(1.0, unlimited)}};
  SpringLine at_excavation(excavated_at(0), springs, {}, 1.0);
  EXPECT_EQ(at_excavation.complete(), 0U);
  SpringLine at_foot(excavated_at(-1), springs, {}, 1.0);
  EXPECT_EQ(at_foot.complete(), 0U);
}

TEST(SpringLine, HandsOnNumbersThatAreNone) {
  const auto springs = four_springs();
  SpringLine line(excavated_at(2), springs, lengths, std::nan(""));
  EXPECT_TRUE(std::isnan(stiffness_of(line, {})[0]));
}

// Evaluated once more at other displacements nothing remains of the time before.
TEST(SpringLine, BeginsAnewAtEachEvaluation) {
  auto springs = four_springs();
  springs[3] = spring(2.0, 1.0);
  SpringLine line(excavated_at(2), springs, lengths, 24.0);
  std::vector<double> d(18, 4.0);
  std::vector<double> stiffness;
  line.evaluate(d, stiffness);
  EXPECT_DOUBLE_EQ(stiffness[1], (1.0 + 5.0 + 3.0) * 800.0);  // k'(3) = 2 / 4
  line.evaluate({}, stiffness);
  EXPECT_THAT(stiffness, ElementsAre(::testing::DoubleEq(4320.0), ::testing::DoubleEq(19'200.0),
                                     ::testing::DoubleEq(36'000.0), ::testing::DoubleEq(22'000.0)));
}

}  // namespace
