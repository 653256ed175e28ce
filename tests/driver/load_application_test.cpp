// SPDX-License-Identifier: Apache-2.0
#include "ostrel/solver.h"
#include "support/wall_builder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using ostrel::testing::WallBuilder;

// Two elements of 1000 mm with an area of 2 mm²; nodes at 0, 1000 and 2000 mm.
xFemData two_elements() {
  xFemData fem;
  for (int i = 0; i < 3; ++i)
    fem.nodes.emplace_back(0.0, 1000.0 * i);
  for (int e = 0; e < 2; ++e) {
    xElemData& element = fem.elements.emplace_back();
    element.setStartNode(e);
    element.setEndNode(e + 1);
    element.setL(1000.0);
    element.setArea(2.0);
  }
  return fem;
}

xAction factors(double first, double second) {
  xAction action;
  action.set("Q", true, first, second);
  return action;
}

xLayerPress diagram(const std::vector<double>& values) {
  xLayerPress press;
  for (std::size_t i = 0; i < values.size(); ++i) {
    press.points.emplace_back(10.0 * static_cast<double>(i), values[i]);
  }
  return press;
}

void expect_node(const xFemNodeData& node, double x, double y, double r) {
  EXPECT_DOUBLE_EQ(node.x, x);
  EXPECT_DOUBLE_EQ(node.y, y);
  EXPECT_DOUBLE_EQ(node.r, r);
}

class DeadLoad : public ::testing::Test {
protected:
  DeadLoad() {
    solver.data = WallBuilder{}.build();
    wall().setBtrave(5.0);
    wall().setHtrave(4.0);
  }
  xPile_Sheetpiling& wall() { return dynamic_cast<xPile_Sheetpiling&>(*solver.data.props); }
  OstrelErrorType apply(double spacing) {
    return solver.applyDeadLoad_new(&fem, w, spacing, pressures, nodal_forces);
  }

  xSolver solver;
  xFemData fem = two_elements();
  double w = 0.5;
  std::map<int, PressAtEnds> pressures{{9, {1.0, 1.0}}};
  std::map<int, xFemNodeData> nodal_forces{{9, {1.0, 1.0, 1.0}}};
};

// Along the wall A w = 2 * 0.5 = 1; at the head (10 * 5 - 2) * 4 * 0.5 = 96.
TEST_F(DeadLoad, WeighsTheElementsAndTheRestOfTheCapBeam) {
  ASSERT_EQ(apply(10.0), ostrel::ok);
  ASSERT_EQ(pressures.size(), 2U);
  for (const auto& [element, load] : pressures) {
    EXPECT_DOUBLE_EQ(load.aStart, 1.0) << element;
    EXPECT_DOUBLE_EQ(load.aEnd, 1.0) << element;
    EXPECT_DOUBLE_EQ(load.pStart, 0.0) << element;
    EXPECT_DOUBLE_EQ(load.pEnd, 0.0) << element;
  }
  ASSERT_EQ(nodal_forces.size(), 1U);
  expect_node(nodal_forces.at(0), 96.0, 0.0, 0.0);
}

// 0.3 * 5 = 1.5 is less than the section's 2.
TEST_F(DeadLoad, OfACapBeamNarrowerThanTheSectionIsNothing) {
  ASSERT_EQ(apply(0.3), ostrel::ok);
  expect_node(nodal_forces.at(0), 0.0, 0.0, 0.0);
}

TEST_F(DeadLoad, OfACapBeamWithoutHeightIsNothing) {
  wall().setHtrave(0.0);
  ASSERT_EQ(apply(10.0), ostrel::ok);
  ASSERT_EQ(nodal_forces.count(0), 1U);
  EXPECT_DOUBLE_EQ(nodal_forces.at(0).x, 0.0);
}

TEST_F(DeadLoad, PutsTheCapBeamOnTheUpperNodeOfTheTopElement) {
  fem.elements[0].setStartNode(1);  // the first element upside down
  fem.elements[0].setEndNode(0);
  ASSERT_EQ(apply(10.0), ostrel::ok);
  EXPECT_EQ(nodal_forces.count(0), 1U);
}

TEST_F(DeadLoad, TakesTheFirstOfTwoTopElements) {
  fem.nodes[2].y = 0.0;  // both elements have their middle at 500
  fem.elements[0].setArea(3.0);
  ASSERT_EQ(apply(10.0), ostrel::ok);
  // (50 - 3) * 4 * 0.5 = 94 with the area of the first
  EXPECT_DOUBLE_EQ(nodal_forces.at(0).x, 94.0);
}

TEST_F(DeadLoad, OfAnElementOfNoHeightHangsOnItsEndNode) {
  fem.nodes[1].y = 0.0;
  ASSERT_EQ(apply(10.0), ostrel::ok);
  EXPECT_EQ(nodal_forces.count(1), 1U);
}

TEST_F(DeadLoad, WithoutAWallFillsTheElementsAndFails) {
  solver.data.props = nullptr;
  EXPECT_EQ(apply(10.0), errNoWall);
  EXPECT_EQ(pressures.size(), 2U);
  EXPECT_TRUE(nodal_forces.empty());
}

TEST_F(DeadLoad, OfABeamWithoutElementsIsNothing) {
  fem.elements.clear();
  EXPECT_EQ(apply(10.0), ostrel::ok);
  EXPECT_TRUE(pressures.empty());
  EXPECT_TRUE(nodal_forces.empty());
}

TEST_F(DeadLoad, OfACapBeamOfUnknownSizeIsNotANumber) {
  wall().setBtrave(std::numeric_limits<double>::quiet_NaN());
  ASSERT_EQ(apply(10.0), ostrel::ok);
  EXPECT_TRUE(std::isnan(nodal_forces.at(0).x));
}

TEST_F(DeadLoad, WithoutABeamFails) {
  EXPECT_EQ(solver.applyDeadLoad_new(nullptr, w, 10.0, pressures, nodal_forces), errNoFemElements);
  EXPECT_TRUE(pressures.empty());
  EXPECT_EQ(solver.applyDeadLoad_old(nullptr, w, nodal_forces), errNoFemElements);
}

TEST_F(DeadLoad, RefusesAnElementWithoutItsNodes) {
  fem.elements[1].setEndNode(3);
  EXPECT_EQ(apply(10.0), errFemNodeNotFound);
}

// A L w / 2 = 2 * 1000 * 0.5 / 2 = 500 at each end of each element.
TEST_F(DeadLoad, InItsOldFormHangsOnTheNodes) {
  nodal_forces.clear();
  ASSERT_EQ(solver.applyDeadLoad_old(&fem, w, nodal_forces), ostrel::ok);
  expect_node(nodal_forces.at(0), 500.0, 0.0, 0.0);
  expect_node(nodal_forces.at(1), 1000.0, 0.0, 0.0);
  expect_node(nodal_forces.at(2), 500.0, 0.0, 0.0);
}

void expect_pressure(const PressAtEnds& pressure, double start, double end) {
  EXPECT_DOUBLE_EQ(pressure.pStart, start);
  EXPECT_DOUBLE_EQ(pressure.pEnd, end);
  EXPECT_DOUBLE_EQ(pressure.aStart, 0.0);
}

TEST(ApplyPress, PutsOneSegmentOnEachElementFromTheHead) {
  std::map<int, PressAtEnds> pressures;
  ASSERT_EQ(xSolver{}.applyPress({diagram({1.0, 2.0, 3.0}), diagram({4.0, 5.0, 6.0})}, pressures),
            ostrel::ok);
  ASSERT_EQ(pressures.size(), 4U);
  expect_pressure(pressures.at(0), -1.0, -2.0);
  expect_pressure(pressures.at(1), -2.0, -3.0);
  expect_pressure(pressures.at(2), -4.0, -5.0);
  expect_pressure(pressures.at(3), -5.0, -6.0);
}

TEST(ApplyPress, CountsFromTheHeadWhateverTheDepthOfTheDiagram) {
  xLayerPress deep = diagram({7.0, 8.0});
  deep.start.set(0.0, -9000.0);
  deep.points[0].s = 500.0;
  std::map<int, PressAtEnds> pressures;
  ASSERT_EQ(xSolver{}.applyPress({deep}, pressures), ostrel::ok);
  expect_pressure(pressures.at(0), -7.0, -8.0);
}

TEST(ApplyPress, TurnsTheSignWithEveryFurtherDiagram) {
  xSolver solver;
  std::map<int, PressAtEnds> pressures;
  ASSERT_EQ(solver.applyPress({diagram({1.0, 2.0})}, pressures), ostrel::ok);
  expect_pressure(pressures.at(0), -1.0, -2.0);
  ASSERT_EQ(solver.applyPress({diagram({10.0, 20.0})}, pressures), ostrel::ok);
  expect_pressure(pressures.at(0), 11.0, 22.0);  // p2 + p1
  ASSERT_EQ(solver.applyPress({diagram({100.0, 200.0})}, pressures), ostrel::ok);
  expect_pressure(pressures.at(0), 89.0, 178.0);  // p3 - (p1 + p2)
}

TEST(ApplyPress, OfTheSameDiagramTwiceGivesItTwiceWithTheOtherSign) {
  xSolver solver;
  std::map<int, PressAtEnds> pressures;
  ASSERT_EQ(solver.applyPress({diagram({3.0, 4.0})}, pressures), ostrel::ok);
  ASSERT_EQ(solver.applyPress({diagram({3.0, 4.0})}, pressures), ostrel::ok);
  expect_pressure(pressures.at(0), 6.0, 8.0);
}

TEST(ApplyPress, LeavesLoadsAlongTheWallAlone) {
  std::map<int, PressAtEnds> pressures;
  pressures[0].aStart = 5.0;
  ASSERT_EQ(xSolver{}.applyPress({diagram({1.0, 2.0})}, pressures), ostrel::ok);
  EXPECT_DOUBLE_EQ(pressures.at(0).aStart, 5.0);
  EXPECT_DOUBLE_EQ(pressures.at(0).pStart, 1.0);  // on an entry that exists: p - 0
}

TEST(ApplyPress, OfNothingChangesNothing) {
  std::map<int, PressAtEnds> pressures{{0, {1.0, 2.0}}};
  ASSERT_EQ(xSolver{}.applyPress({}, pressures), ostrel::ok);
  ASSERT_EQ(xSolver{}.applyPress({diagram({}), diagram({5.0})}, pressures), ostrel::ok);
  expect_pressure(pressures.at(0), 1.0, 2.0);
  EXPECT_EQ(pressures.size(), 1U);
}

class WallLoads : public ::testing::Test {
protected:
  OstrelErrorType apply(const osg::ref_ptr<xShpileLoad>& load) {
    return solver.applyShpileLoads(10.0, action, &fem, load.get(), nodal_forces);
  }
  osg::ref_ptr<xConcenterdLoad> force_at(double position) {
    osg::ref_ptr<xConcenterdLoad> load = new xConcenterdLoad;
    load->force = {4.0, 8.0};
    load->setPosition(position);
    return load;
  }

  xSolver solver;
  xFemData fem = two_elements();
  xAction action = factors(100.0, 2.0);  // the second factor counts
  std::map<int, xFemNodeData> nodal_forces;
};

TEST_F(WallLoads, AtTheHeadFallWhollyOnTheHead) {
  ASSERT_EQ(apply(force_at(0.0)), ostrel::ok);
  expect_node(nodal_forces.at(0), 8.0, 16.0, 0.0);
  expect_node(nodal_forces.at(1), 0.0, 0.0, 0.0);
}

TEST_F(WallLoads, AtTheFootFallWhollyOnTheFoot) {
  ASSERT_EQ(apply(force_at(2000.0)), ostrel::ok);
  expect_node(nodal_forces.at(1), 0.0, 0.0, 0.0);
  expect_node(nodal_forces.at(2), 8.0, 16.0, 0.0);
}

TEST_F(WallLoads, OnANodeBelongToTheElementAboveIt) {
  ASSERT_EQ(apply(force_at(1000.0)), ostrel::ok);
  EXPECT_EQ(nodal_forces.count(2), 0U);
  expect_node(nodal_forces.at(1), 8.0, 16.0, 0.0);
}

// At mid-element: half the forces at each node, moments P L / 8 = 16 * 1000 / 8 = 2000.
TEST_F(WallLoads, AddToWhatTheNodesCarry) {
  nodal_forces[1] = {1.0, 1.0, 1.0};
  ASSERT_EQ(apply(force_at(500.0)), ostrel::ok);
  expect_node(nodal_forces.at(0), 4.0, 8.0, 2000.0);
  expect_node(nodal_forces.at(1), 5.0, 9.0, -1999.0);
}

TEST_F(WallLoads, MayStandAThousandthBelowTheirElement) {
  // 2000.001 - 2000 rounds to a little more than 0.001; half of it is safely within.
  EXPECT_EQ(apply(force_at(2000.0005)), ostrel::ok);
  nodal_forces.clear();
  EXPECT_EQ(apply(force_at(2000.002)), errLoadUndefined);
  EXPECT_TRUE(nodal_forces.empty());
}

TEST_F(WallLoads, PerUnitOfWidthAreScaledByTheSpacing) {
  osg::ref_ptr<xDistribuitedLoad> load = new xDistribuitedLoad;
  load->force = {4.0, 8.0};
  ASSERT_EQ(apply(load.get()), ostrel::ok);
  expect_node(nodal_forces.at(0), 80.0, 160.0, 0.0);
}

// At mid-element 3 M / (2 L) = 3 * 8000 / 2000 = 12 and M / 4 = 2000.
TEST_F(WallLoads, OfATorqueGiveOppositeShears) {
  osg::ref_ptr<xTorqueLoad> load = new xTorqueLoad;
  load->setValue(4000.0);
  load->setPosition(500.0);
  ASSERT_EQ(apply(load.get()), ostrel::ok);
  expect_node(nodal_forces.at(0), 0.0, 12.0, 2000.0);
  expect_node(nodal_forces.at(1), 0.0, -12.0, 2000.0);
}

TEST_F(WallLoads, OfATorquePerUnitOfWidthAreScaledByTheSpacing) {
  osg::ref_ptr<xDistribuitedTorque> load = new xDistribuitedTorque;
  load->setValue(400.0);
  load->setPosition(500.0);
  ASSERT_EQ(apply(load.get()), ostrel::ok);
  expect_node(nodal_forces.at(0), 0.0, 12.0, 2000.0);
}

TEST_F(WallLoads, OfATorqueBelowTheFootAreUndefined) {
  osg::ref_ptr<xTorqueLoad> load = new xTorqueLoad;
  load->setPosition(2001.0);
  EXPECT_EQ(apply(load.get()), errLoadUndefined);
  EXPECT_TRUE(nodal_forces.empty());
}

TEST_F(WallLoads, AtADepthThatIsNotANumberAreUndefined) {
  EXPECT_EQ(apply(force_at(std::numeric_limits<double>::quiet_NaN())), errLoadUndefined);
}

TEST_F(WallLoads, OfAnUnknownClassAreUndefined) {
  class Vibration : public xShpileLoad {
  public:
    xShpileLoad* clone() const override { return new Vibration(*this); }
  };
  EXPECT_EQ(apply(new Vibration), errLoadUndefined);
  EXPECT_EQ(apply(nullptr), errLoadUndefined);
}

TEST_F(WallLoads, WithoutABeamAreUndefined) {
  const auto load = force_at(500.0);
  EXPECT_EQ(solver.applyShpileLoads(10.0, action, nullptr, load.get(), nodal_forces),
            errLoadUndefined);
  EXPECT_TRUE(nodal_forces.empty());
}

// The head is at 0, so a = -500 and b = 1500 with L = 1000 and P = 16:
// y = 16 * 1500² * (-1000 + 1000) / 1000³ = 0 and (3000 + 1000) * 16 * 500² / 1000³ = 16;
// x = 1500 * 8 / 1000 = 12 and -4; r = (16e6 * -500 - 32e3 * 250e3 + 16 * -125e6) / 1e6 = -18000
// and (16 * -125e6 - 16e3 * 250e3) / 1e6 = -6000. The moment about the head stays 16 * -500.
TEST_F(WallLoads, AboveTheHeadBelongToTheFirstElement) {
  ASSERT_EQ(apply(force_at(-500.0)), ostrel::ok);
  expect_node(nodal_forces.at(0), 12.0, 0.0, -18000.0);
  expect_node(nodal_forces.at(1), -4.0, 16.0, -6000.0);
}

// The place is sought by the depths of the nodes; the length is the element's own, 2000 for nodes
// 1000 apart: a = 500, b = 1500. x = 1500 * 8 / 2000 = 6 and 2; y = 16 * 1500² * 3000 / 2000³ = 13.5
// and (6000 - 1000) * 16 * 500² / 2000³ = 2.5; r = P a b² / L² = 16 * 500 * 1500² / 2000² = 4500 and
// -P a² b / L² = -16 * 500² * 1500 / 2000² = -1500.
TEST_F(WallLoads, TakeTheLengthThatTheElementSays) {
  fem.elements[0].setL(2000.0);
  ASSERT_EQ(apply(force_at(500.0)), ostrel::ok);
  expect_node(nodal_forces.at(0), 6.0, 13.5, 4500.0);
  expect_node(nodal_forces.at(1), 2.0, 2.5, -1500.0);
}

}  // namespace
