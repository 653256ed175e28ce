// SPDX-License-Identifier: Apache-2.0
#include "ostrel/fem_solver.h"

#include "fem/beam_assembly.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace {

using ::testing::DoubleNear;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// A beam of `count` elements of 2 mm with E = 10, A = 20 and J = 6: E A / L = 100, 12 E J / L³ =
// 90, 6 E J / L² = 90, 4 E J / L = 120, 2 E J / L = 60. It has no nodes: nothing here reads them.
xFemData beam_of(int count) {
  xFemData data;
  for (int e = 0; e < count; ++e) {
    xElemData element;
    element.setStartNode(e);
    element.setEndNode(e + 1);
    element.setL(2.0);
    element.setE(10.0);
    element.setArea(20.0);
    element.setJ(6.0);
    data.elements.push_back(element);
  }
  return data;
}

xFemSolver sized(const xFemData& data, std::size_t conditions = 0) {
  xFemSolver solver;
  solver.takeSizes(data, conditions);
  return solver;
}

TEST(FemSolverOptions, StartWithTheLimitsOfTheIteration) {
  const xFemSolverOptions options;
  EXPECT_FALSE(options.linear);
  EXPECT_EQ(options.tolerance, 0.001);
  EXPECT_EQ(options.maxIterations, 100);
  EXPECT_TRUE(options.label.empty());
}

TEST(FemSolver, TakesItsSizesFromTheElements) {
  xFemData data = beam_of(4);
  data.setDembin(700.0);
  const xFemSolver solver = sized(data, 2);
  EXPECT_EQ(solver.getNe(), 4U);
  EXPECT_EQ(solver.getNn(), 5U);
  EXPECT_EQ(solver.getNp(), 15U);
  EXPECT_EQ(solver.getNlc(), 2U);
  EXPECT_EQ(solver.Dembin, 700.0);
  EXPECT_THAT(solver.elemLength, ElementsAre(2.0, 2.0, 2.0, 2.0));
}

TEST(FemSolver, ResetsToAnEmptyOne) {
  const xFemData data = beam_of(2);
  xFemSolver solver = sized(data, 1);
  solver.Dembin = 5.0;
  ASSERT_EQ(solver.buildTopologyMat(), ostrel::ok);
  ASSERT_EQ(solver.buildLoadMat(data, {xFemLoadCond("weight")}), ostrel::ok);
  ASSERT_EQ(solver.buildBStif(data), ostrel::ok);
  solver.reset();
  EXPECT_EQ(solver.getNn() + solver.getNe() + solver.getNp() + solver.getNlc(), 0U);
  EXPECT_EQ(solver.Dembin, 0.0);
  EXPECT_THAT(solver.elemLength, IsEmpty());
  EXPECT_THAT(solver.topology, IsEmpty());
  EXPECT_THAT(solver.loads, IsEmpty());
  EXPECT_THAT(solver.elemLoads, IsEmpty());
  EXPECT_THAT(solver.elemK, IsEmpty());
  EXPECT_TRUE(solver.K.is_empty());
}

TEST(BuildTopologyMat, NumbersThreeDofsANode) {
  xFemSolver solver = sized(beam_of(3));
  ASSERT_EQ(solver.buildTopologyMat(), ostrel::ok);
  EXPECT_THAT(solver.topology,
              ElementsAre(ElementsAre(0, 1, 2, 3, 4, 5), ElementsAre(3, 4, 5, 6, 7, 8),
                          ElementsAre(6, 7, 8, 9, 10, 11)));
}

TEST(BuildLoadMat, PutsAUniformLoadOnBothNodes) {
  const xFemData data = beam_of(2);
  xFemLoadCond soil("soil");
  soil.pressures[1] = PressAtEnds(3.0, 3.0);
  xFemSolver solver = sized(data, 1);
  ASSERT_EQ(solver.buildLoadMat(data, {soil}), ostrel::ok);
  // q L / 2 = 3 and q L² / 12 = 1, on the dofs 3 to 8.
  const std::vector<double> expected{0, 0, 0, 0, 3, 1, 0, 3, -1};
  EXPECT_THAT(solver.loads, ElementsAre(::testing::Pointwise(DoubleNear(1e-14), expected)));
  ASSERT_THAT(solver.elemLoads, ElementsAre(SizeIs(2)));
  EXPECT_THAT(solver.elemLoads[0][0], Each(0.0));
  const std::vector<double> column{0, 3, 1, 0, 3, -1};
  EXPECT_THAT(solver.elemLoads[0][1], ::testing::Pointwise(DoubleNear(1e-14), column));
}

TEST(BuildLoadMat, PutsALoadAlongOnTheFirstDofOfBothNodes) {
  const xFemData data = beam_of(1);
  xFemLoadCond weight("weight");
  weight.pressures[0].aStart = 7.0;
  weight.pressures[0].aEnd = 7.0;
  xFemSolver solver = sized(data, 1);
  ASSERT_EQ(solver.buildLoadMat(data, {weight}), ostrel::ok);
  EXPECT_THAT(solver.loads, ElementsAre(ElementsAre(7.0, 0.0, 0.0, 7.0, 0.0, 0.0)));
}

TEST(BuildLoadMat, AddsTheLoadsOfNeighboursAtTheirNode) {
  const xFemData data = beam_of(2);
  xFemLoadCond soil("soil");
  soil.pressures[0] = PressAtEnds(3.0, 3.0);
  soil.pressures[1] = PressAtEnds(6.0, 6.0);
  xFemSolver solver = sized(data, 1);
  ASSERT_EQ(solver.buildLoadMat(data, {soil}), ostrel::ok);
  // At the node between: 3 + 6 across, -1 + 2 as moment.
  const std::vector<double> expected{0, 3, 1, 0, 9, 1, 0, 6, -2};
  EXPECT_THAT(solver.loads, ElementsAre(::testing::Pointwise(DoubleNear(1e-14), expected)));
}

TEST(BuildLoadMat, KeepsForcesOnNodesOutOfTheElements) {
  const xFemData data = beam_of(2);
  xFemLoadCond force("force");
  force.nodalForces[0] = xFemNodeData(1.0, 2.0, 3.0);
  force.nodalForces[2] = xFemNodeData(4.0, 5.0, 6.0);
  xFemSolver solver = sized(data, 1);
  ASSERT_EQ(solver.buildLoadMat(data, {force}), ostrel::ok);
  EXPECT_THAT(solver.loads, ElementsAre(ElementsAre(1, 2, 3, 0, 0, 0, 4, 5, 6)));
  EXPECT_THAT(solver.elemLoads, ElementsAre(ElementsAre(Each(0.0), Each(0.0))));
}

TEST(BuildLoadMat, KeepsTheConditionsApartAndInOrder) {
  const xFemData data = beam_of(1);
  xFemLoadCond first("first");
  first.nodalForces[0] = xFemNodeData(1.0, 0.0, 0.0);
  xFemLoadCond second("second");
  second.nodalForces[1] = xFemNodeData(0.0, 2.0, 0.0);
  xFemSolver solver = sized(data, 2);
  ASSERT_EQ(solver.buildLoadMat(data, {first, second}), ostrel::ok);
  EXPECT_THAT(solver.loads,
              ElementsAre(ElementsAre(1, 0, 0, 0, 0, 0), ElementsAre(0, 0, 0, 0, 2, 0)));
  EXPECT_THAT(solver.elemLoads, SizeIs(2));
}

TEST(BuildLoadMat, BuildsNothingForNoCondition) {
  const xFemData data = beam_of(1);
  xFemSolver solver = sized(data);
  ASSERT_EQ(solver.buildLoadMat(data, {}), ostrel::ok);
  EXPECT_THAT(solver.loads, IsEmpty());
  EXPECT_THAT(solver.elemLoads, IsEmpty());
}

TEST(BuildLoadMat, TakesTheLengthOfTheElementAndNotTheRevisedOne) {
  const xFemData data = beam_of(1);
  xFemLoadCond weight("weight");
  weight.pressures[0].aStart = 7.0;
  weight.pressures[0].aEnd = 7.0;
  xFemSolver solver = sized(data, 1);
  solver.elemLength[0] = 200.0;
  ASSERT_EQ(solver.buildLoadMat(data, {weight}), ostrel::ok);
  EXPECT_EQ(solver.loads[0][0], 7.0);
}

TEST(BuildLoadMat, BeginsAnewAtEachCall) {
  const xFemData data = beam_of(1);
  xFemSolver solver = sized(data, 1);
  ASSERT_EQ(solver.buildLoadMat(data, {xFemLoadCond("a"), xFemLoadCond("b")}), ostrel::ok);
  ASSERT_EQ(solver.buildLoadMat(data, {xFemLoadCond("c")}), ostrel::ok);
  EXPECT_THAT(solver.loads, SizeIs(1));
  EXPECT_THAT(solver.elemLoads, SizeIs(1));
}

class BuildLoadMatOutside : public ::testing::TestWithParam<std::int32_t> {};

TEST_P(BuildLoadMatOutside, RefusesALoadOnAMissingNode) {
  const xFemData data = beam_of(2);
  xFemLoadCond good("good");
  good.nodalForces[0] = xFemNodeData(1.0, 0.0, 0.0);
  xFemLoadCond bad("bad");
  bad.nodalForces[GetParam() < 0 ? GetParam() : GetParam() + 1] = xFemNodeData(1.0, 0.0, 0.0);
  xFemSolver solver = sized(data, 2);
  EXPECT_EQ(solver.buildLoadMat(data, {good, bad}), errFemNodeNotFound);
  EXPECT_THAT(solver.loads, IsEmpty());
  EXPECT_THAT(solver.elemLoads, IsEmpty());
}

TEST_P(BuildLoadMatOutside, RefusesALoadOnAMissingElement) {
  const xFemData data = beam_of(2);
  xFemLoadCond bad("bad");
  bad.pressures[GetParam()] = PressAtEnds(1.0, 1.0);
  xFemSolver solver = sized(data, 1);
  EXPECT_EQ(solver.buildLoadMat(data, {bad}), errFemNodeNotFound);
  EXPECT_THAT(solver.loads, IsEmpty());
}

// Two elements, 0 and 1, and three nodes: 2 is the first missing element, 3 the first missing node.
INSTANTIATE_TEST_SUITE_P(Keys, BuildLoadMatOutside,
                         ::testing::Values(std::numeric_limits<std::int32_t>::min(), -1, 2, 1000,
                                           std::numeric_limits<std::int32_t>::max() - 1));

TEST(BuildBStif, OfOneElementIsItsMatrix) {
  const xFemData data = beam_of(1);
  xFemSolver solver = sized(data);
  ASSERT_EQ(solver.buildTopologyMat(), ostrel::ok);
  ASSERT_EQ(solver.buildBStif(data), ostrel::ok);
  ASSERT_THAT(solver.elemK, SizeIs(1));
  ASSERT_EQ(solver.K.n_rows, 6U);
  ASSERT_EQ(solver.K.n_cols, 6U);
  EXPECT_TRUE(arma::approx_equal(solver.K, solver.elemK[0], "absdiff", 0.0));
  EXPECT_DOUBLE_EQ(solver.K(0, 0), 100.0);
  EXPECT_DOUBLE_EQ(solver.K(2, 5), 60.0);
}

TEST(BuildBStif, AddsNeighboursAtTheNodeBetweenThem) {
  xFemData data = beam_of(2);
  data.elements[1].setE(20.0);  // twice as stiff
  xFemSolver solver = sized(data);
  ASSERT_EQ(solver.buildTopologyMat(), ostrel::ok);
  ASSERT_EQ(solver.buildBStif(data), ostrel::ok);
  EXPECT_DOUBLE_EQ(solver.K(3, 3), 100.0 + 200.0);
  EXPECT_DOUBLE_EQ(solver.K(4, 4), 90.0 + 180.0);
  EXPECT_DOUBLE_EQ(solver.K(4, 5), -90.0 + 180.0);
  EXPECT_DOUBLE_EQ(solver.K(5, 5), 120.0 + 240.0);
  EXPECT_EQ(solver.K(0, 6), 0.0);  // the head and the foot share no element
  EXPECT_EQ(solver.K(2, 8), 0.0);
}

TEST(BuildBStif, TakesTheLengthOfTheSolver) {
  const xFemData data = beam_of(1);
  xFemSolver solver = sized(data);
  solver.elemLength[0] = 4.0;
  ASSERT_EQ(solver.buildTopologyMat(), ostrel::ok);
  ASSERT_EQ(solver.buildBStif(data), ostrel::ok);
  EXPECT_DOUBLE_EQ(solver.K(0, 0), 50.0);  // 10 * 20 / 4
}

TEST(BuildBStif, LetsAnElementWithoutLengthBeSeen) {
  xFemData data = beam_of(2);
  data.elements[0].setL(0.0);
  xFemSolver solver = sized(data);
  ASSERT_EQ(solver.buildTopologyMat(), ostrel::ok);
  EXPECT_EQ(solver.buildBStif(data), ostrel::ok);
  EXPECT_TRUE(solver.K.has_inf());
  EXPECT_FALSE(solver.elemK[1].has_inf());
}

TEST(BuildBStif, OfABeamWithoutElementsIsOneFreeNode) {
  const xFemData data;
  xFemSolver solver = sized(data);
  ASSERT_EQ(solver.buildTopologyMat(), ostrel::ok);
  ASSERT_EQ(solver.buildBStif(data), ostrel::ok);
  ASSERT_EQ(solver.K.n_rows, 3U);
  EXPECT_THAT(solver.K, Each(0.0));
}

// 15 006 rows and columns would be 1.8 GB.
TEST(BuildBStif, RefusesABeamOfMoreThan5000Elements) {
  const xFemData data = beam_of(5001);
  xFemSolver solver = sized(data);
  ASSERT_EQ(solver.buildTopologyMat(), ostrel::ok);
  EXPECT_EQ(solver.buildBStif(data), errNodeCountModel);
  EXPECT_TRUE(solver.K.is_empty());
  EXPECT_THAT(solver.elemK, IsEmpty());
}

TEST(Assembly, RefusesABeamOtherThanTheOneOfItsSizes) {
  xFemSolver solver = sized(beam_of(2), 1);
  ASSERT_EQ(solver.buildTopologyMat(), ostrel::ok);
  EXPECT_EQ(solver.buildLoadMat(beam_of(1), {xFemLoadCond("a")}), errNodeCountModel);
  EXPECT_EQ(solver.buildBStif(beam_of(3)), errNodeCountModel);
  EXPECT_THAT(solver.loads, IsEmpty());
  EXPECT_TRUE(solver.K.is_empty());
}

TEST(Assembly, RefusesToAddUpTheStiffnessWithoutATopology) {
  const xFemData data = beam_of(2);
  xFemSolver solver = sized(data);
  EXPECT_EQ(solver.buildBStif(data), errNodeCountModel);
}

// Beams of random elements: the matrix is symmetric, nothing couples beyond a neighbour, and a
// rigid motion takes no force.
TEST(Assembly, OfAnyBeamIsSymmetricAndFreeOfForceInARigidMotion) {
  std::mt19937 random(20240611);
  std::uniform_real_distribution<double> size(0.5, 2.0);
  for (int run = 0; run < 20; ++run) {
    xFemData data = beam_of(1 + run);
    for (xElemData& element : data.elements) {
      element.setL(size(random));
      element.setE(size(random));
      element.setArea(size(random));
      element.setJ(size(random));
    }
    xFemSolver solver = sized(data);
    ASSERT_EQ(solver.buildTopologyMat(), ostrel::ok);
    ASSERT_EQ(solver.buildBStif(data), ostrel::ok);
    EXPECT_TRUE(solver.K.is_symmetric());

    arma::Col<double> turn(solver.getNp(), arma::fill::zeros);
    double depth = 0.0;
    for (std::uint32_t n = 0; n < solver.getNn(); ++n) {
      turn[3 * n] = 1.0;
      turn[3 * n + 1] = 5.0 + depth;
      turn[3 * n + 2] = 1.0;
      if (n < solver.getNe()) depth += data.elements[n].getL();
    }
    // Entries go up to 12 * 2 * 2 / 0.5³ = 384 and displacements to 45.
    EXPECT_LT(arma::norm(solver.K * turn, "inf"), 1e-9);
    for (std::uint32_t i = 0; i < solver.getNp(); ++i) {
      for (std::uint32_t j = 3 * (i / 3) + 6; j < solver.getNp(); ++j)
        EXPECT_EQ(solver.K(i, j), 0.0);
    }
  }
}

// (700 + 100) / (5 - 1 - 1) below node 1.
TEST(ReviseElemLength, SpreadsTheEmbeddedLengthBelowTheExcavation) {
  xFemData data = beam_of(4);
  data.setDembin(700.0);
  data.setDembinc(100.0);
  data.setJtsoil(1);
  xFemSolver solver = sized(data);
  EXPECT_EQ(solver.reviseElemLength(data), ostrel::ok);
  EXPECT_EQ(solver.Dembin, 800.0);
  EXPECT_THAT(solver.elemLength, ElementsAre(2.0, 800.0 / 3.0, 800.0 / 3.0, 800.0 / 3.0));
  // A second call adds once more.
  EXPECT_EQ(solver.reviseElemLength(data), ostrel::ok);
  EXPECT_THAT(solver.elemLength, ElementsAre(2.0, 300.0, 300.0, 300.0));
}

class ReviseElemLengthOutside : public ::testing::TestWithParam<std::int32_t> {};

TEST_P(ReviseElemLengthOutside, ChangesNoLengthWithoutAnElementBelowTheExcavation) {
  xFemData data = beam_of(4);
  data.setDembin(700.0);
  data.setDembinc(100.0);
  data.setJtsoil(GetParam());
  xFemSolver solver = sized(data);
  EXPECT_EQ(solver.reviseElemLength(data), ostrel::ok);
  EXPECT_EQ(solver.Dembin, 800.0);
  EXPECT_THAT(solver.elemLength, Each(2.0));
}

// The foot is node 4.
INSTANTIATE_TEST_SUITE_P(Nodes, ReviseElemLengthOutside,
                         ::testing::Values(std::numeric_limits<std::int32_t>::min(), -1, 4, 5, 100,
                                           std::numeric_limits<std::int32_t>::max()));

}  // namespace
