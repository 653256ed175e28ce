// SPDX-License-Identifier: Apache-2.0
#include "ostrel/fem_solver.h"
#include "ostrel/sheetpiling_data.h"
#include "ostrel/sheetpiling_model.h"
#include "ostrel/tolerances.h"
#include "support/beam_walls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <utility>
#include <vector>

namespace {

using ostrel::testing::along;
using ostrel::testing::anchor_at;
using ostrel::testing::anchor_nodes;
using ostrel::testing::at;
using ostrel::testing::column_of;
using ostrel::testing::depths;
using ostrel::testing::expect_chain;
using ostrel::testing::lengths;
using ostrel::testing::pile_wall;
using ostrel::testing::wall_of;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::SizeIs;

class OtherWall : public xSheetpiling_Props {};

TEST(CreateFemModel, RefusesAnAbsentWall) {
  xSheetpilingModel model = column_of({{0.0, 500.0}});
  model.fem.nodes.emplace_back(0.0, 7.0);
  xSheetpilingData data;
  EXPECT_EQ(model.create_FemModel(&data), errNoWall);
  EXPECT_EQ(model.create_FemModel(nullptr), errNoWall);
  EXPECT_THAT(depths(model), ElementsAre(7.0));
}

TEST(CreateFemModel, TakesAWallOfAnotherKindForAbsent) {
  xSheetpilingModel model = column_of({{0.0, 500.0}});
  xSheetpilingData data;
  data.props = new OtherWall;
  EXPECT_EQ(model.create_FemModel(&data), errNoWall);
}

TEST(CreateFemModel, MakesANodeForEachLevelAndAnElementBetweenNeighbours) {
  xSheetpilingModel model = column_of({{0.0, 250.0, 500.0}, {500.0, 800.0, 1100.0}});
  xSheetpilingData data = wall_of(1100.0, 500.0);
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_THAT(depths(model), ElementsAre(0.0, 250.0, 500.0, 800.0, 1100.0));
  EXPECT_THAT(lengths(model), ElementsAre(250.0, 250.0, 300.0, 300.0));
  expect_chain(model);
  for (const xElemData& element : model.fem.elements) {
    EXPECT_EQ(element.getE(), 30'000.0);
    EXPECT_DOUBLE_EQ(element.getArea(), 240'000.0);
    EXPECT_DOUBLE_EQ(element.getJ(), 7.2e9);
  }
  EXPECT_EQ(model.fem.getJtsoil(), 2);
  EXPECT_EQ(model.fem.getDembin(), 600.0);
}

TEST(CreateFemModel, GivesAWallWithoutASectionNoStiffness) {
  xSheetpilingModel model = column_of({{0.0, 500.0}});
  xSheetpilingData data = wall_of(500.0, 500.0);
  pile_wall(data).section = nullptr;
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_EQ(model.fem.elements[0].getArea(), 0.0);
  EXPECT_EQ(model.fem.elements[0].getJ(), 0.0);
}

// The ground begins 300 mm below the head: the first element ends at 600 and has the length 300.
TEST(CreateFemModel, SpansTheFirstElementFromTheHeadWhateverTheTopOfTheGround) {
  xSheetpilingModel model = column_of({{300.0, 600.0, 900.0}});
  xSheetpilingData data = wall_of(900.0, 600.0);
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_THAT(depths(model), ElementsAre(0.0, 600.0, 900.0));
  EXPECT_THAT(lengths(model), ElementsAre(300.0, 300.0));
}

TEST(CreateFemModel, LimitsALevelToTheFoot) {
  xSheetpilingModel model = column_of({{0.0, 500.0, 1000.0}});
  xSheetpilingData data = wall_of(700.0, 500.0);
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_THAT(depths(model), ElementsAre(0.0, 500.0, 700.0));
  EXPECT_THAT(lengths(model), ElementsAre(500.0, 200.0));
}

// A layer that is not cut at the foot: the second level below it is limited as well, and its length
// is counted from the level before as it stands, 700 - 800.
TEST(CreateFemModel, MeasuresALengthFromTheLevelBeforeAsItStands) {
  xSheetpilingModel model = column_of({{0.0, 800.0, 1000.0}});
  xSheetpilingData data = wall_of(700.0, 0.0);
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_THAT(depths(model), ElementsAre(0.0, 700.0, 700.0));
  EXPECT_THAT(lengths(model), ElementsAre(700.0, -100.0));
}

TEST(CreateFemModel, EndsTheBeamAtALayerThatBeginsAtTheFoot) {
  xSheetpilingData data = wall_of(1000.0, 500.0);
  for (const double top : {1000.0, 1000.0 - 5e-7, 1200.0}) {
    xSheetpilingModel model = column_of({{0.0, 500.0, 1000.0}, {top, 1500.0}});
    ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
    EXPECT_THAT(depths(model), ElementsAre(0.0, 500.0, 1000.0)) << top;
  }
  xSheetpilingModel model = column_of({{0.0, 500.0, 1000.0}, {1000.0 - 2e-6, 1500.0}});
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_THAT(depths(model), ElementsAre(0.0, 500.0, 1000.0, 1000.0));
}

TEST(CreateFemModel, StopsAtTheFirstLayerBelowTheFoot) {
  xSheetpilingModel model = column_of({{0.0, 500.0}, {900.0, 1200.0}, {500.0, 700.0}});
  xSheetpilingData data = wall_of(800.0, 500.0);
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_THAT(depths(model), ElementsAre(0.0, 500.0));
}

TEST(CreateFemModel, EndsWhereTheLayersEnd) {
  xSheetpilingModel model = column_of({{0.0, 500.0, 800.0}});
  xSheetpilingData data = wall_of(1200.0, 500.0);
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_THAT(depths(model), ElementsAre(0.0, 500.0, 800.0));
  EXPECT_EQ(model.fem.getDembin(), 700.0);
}

TEST(CreateFemModel, RefusesAnExcavationWithoutANode) {
  for (const double excavation :
       {499.9989, 500.0011, 700.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
    xSheetpilingModel model = column_of({{0.0, 500.0, 600.0}});
    xSheetpilingData data = wall_of(600.0, excavation);
    EXPECT_EQ(model.create_FemModel(&data), errNoExcavationNode) << excavation;
  }
  xSheetpilingModel empty;
  xSheetpilingData data = wall_of(600.0, 500.0);
  EXPECT_EQ(empty.create_FemModel(&data), errNoExcavationNode);
}

TEST(CreateFemModel, RefusesAnExcavationAtTheToleranceItself) {
  xSheetpilingModel model = column_of({{0.0, 500.0}});
  xSheetpilingData data = wall_of(500.0, 0.001);
  EXPECT_EQ(model.create_FemModel(&data), errNoExcavationNode);
}

TEST(CreateFemModel, TakesTheFirstNodeNearTheExcavation) {
  xSheetpilingModel model = column_of({{0.0, 499.9995, 500.0, 600.0}});
  xSheetpilingData data = wall_of(600.0, 500.0);
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_EQ(model.fem.getJtsoil(), 1);
  data = wall_of(600.0, 500.0009);
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_EQ(model.fem.getJtsoil(), 2);
}

TEST(CreateFemModel, OfAWallWithoutGroundIsItsHead) {
  xSheetpilingModel model;
  xSheetpilingData data = wall_of(600.0, 0.0);
  EXPECT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_THAT(depths(model), ElementsAre(0.0));
  EXPECT_THAT(model.fem.elements, IsEmpty());
  EXPECT_EQ(model.fem.getJtsoil(), 0);
}

TEST(CreateFemModel, StopsBeforeALayerWithoutADepth) {
  xSheetpilingModel model = column_of({{0.0, 500.0}, {500.0, 600.0}});
  model.layers[1].setDepth(std::numeric_limits<double>::quiet_NaN());
  xSheetpilingData data = wall_of(600.0, 500.0);
  EXPECT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_THAT(depths(model), ElementsAre(0.0, 500.0));
  model.layers[0].levels.clear();
  EXPECT_EQ(model.create_FemModel(&data), errNoExcavationNode);
}

TEST(CreateFemModel, MakesTheBeamAnewAndKeepsWhatNoMeshSets) {
  xSheetpilingModel model = column_of({{0.0, 500.0, 1000.0}});
  xSheetpilingData data = wall_of(1000.0, 500.0);
  data.restriction.springs.push_back(along(250.0, 10.0));
  data.anchors.push_back(anchor_at(750.0));
  model.fem.setRedfac(0.5);
  model.fem.setDembinc(20.0);
  for (int run = 0; run < 2; ++run) {
    ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
    EXPECT_THAT(depths(model), ElementsAre(0.0, 250.0, 500.0, 750.0, 1000.0));
    EXPECT_THAT(model.fem.springDof0, ElementsAre(Pair(1, 10.0)));
    EXPECT_THAT(anchor_nodes(model), ElementsAre(3));
    EXPECT_EQ(model.fem.getRedfac(), 0.5);
    EXPECT_EQ(model.fem.getDembinc(), 20.0);
  }
}

TEST(ApplyConstrToNode, ReversesAnImposedDisplacementAlongTheWallAlone) {
  xConstraint constraint = along(0.0, 10.0);
  constraint.horizontal.setActive(true);
  constraint.horizontal.setValue(20.0);
  constraint.rotation.setActive(true);
  constraint.rotation.setValue(30.0);
  xSheetpilingModel model;
  model.applyConstrToNode(0, 4, constraint);
  EXPECT_THAT(model.fem.constrDof0, ElementsAre(Pair(4, -10.0)));
  EXPECT_THAT(model.fem.constrDof1, ElementsAre(Pair(4, 20.0)));
  EXPECT_THAT(model.fem.constrDof2, ElementsAre(Pair(4, 30.0)));
  EXPECT_THAT(model.fem.springDof0, IsEmpty());
  EXPECT_THAT(model.fem.springDof1, IsEmpty());
  EXPECT_THAT(model.fem.springDof2, IsEmpty());

  model.applyConstrToNode(1, 5, constraint);
  EXPECT_THAT(model.fem.springDof0, ElementsAre(Pair(5, 10.0)));
  EXPECT_THAT(model.fem.springDof1, ElementsAre(Pair(5, 20.0)));
  EXPECT_THAT(model.fem.springDof2, ElementsAre(Pair(5, 30.0)));
  EXPECT_THAT(model.fem.constrDof0, SizeIs(1));
}

TEST(ApplyConstrToNode, LeavesOutWhatIsNotActive) {
  xConstraint constraint = along(0.0, 10.0);
  constraint.axial.setActive(false);
  constraint.horizontal.setValue(20.0);
  constraint.rotation.setActive(true);  // with the value 0
  xSheetpilingModel model;
  model.applyConstrToNode(0, 4, constraint);
  model.applyConstrToNode(1, 4, constraint);
  EXPECT_THAT(model.fem.constrDof0, IsEmpty());
  EXPECT_THAT(model.fem.constrDof1, IsEmpty());
  EXPECT_THAT(model.fem.constrDof2, ElementsAre(Pair(4, 0.0)));
  EXPECT_THAT(model.fem.springDof1, IsEmpty());
  EXPECT_THAT(model.fem.springDof2, ElementsAre(Pair(4, 0.0)));
}

TEST(ApplyConstrToNode, AddsSpringsAndReplacesImposedValues) {
  xSheetpilingModel model;
  for (const double value : {3.0, 4.0}) {
    model.applyConstrToNode(0, 1, along(0.0, value));
    model.applyConstrToNode(1, 1, along(0.0, value));
  }
  EXPECT_THAT(model.fem.constrDof0, ElementsAre(Pair(1, -4.0)));
  EXPECT_THAT(model.fem.springDof0, ElementsAre(Pair(1, 7.0)));
}

TEST(ApplyConstrToNode, DoesNothingForAnotherKind) {
  xSheetpilingModel model;
  for (const int kind : {-1, 2, 100})
    model.applyConstrToNode(kind, 1, along(0.0, 3.0));
  EXPECT_THAT(model.fem.constrDof0, IsEmpty());
  EXPECT_THAT(model.fem.springDof0, IsEmpty());
}

TEST(ApplyConstraints, UsesANodeWithinAThousandthAndSplitsBeyond) {
  struct Case {
    double depth;
    std::size_t nodes;
    int node;
  };
  for (const Case& one :
       {Case{500.0, 3, 1}, Case{500.0005, 3, 1}, Case{499.9995, 3, 1}, Case{500.002, 4, 2},
        Case{499.998, 4, 1}, Case{0.0, 3, 0}, Case{1000.0, 3, 2}}) {
    xSheetpilingModel model = column_of({{0.0, 500.0, 1000.0}});
    xSheetpilingData data = wall_of(1000.0, 500.0);
    ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
    model.applyConstraints(1, along(one.depth, 3.0));
    EXPECT_EQ(model.fem.nodes.size(), one.nodes) << one.depth;
    EXPECT_THAT(model.fem.springDof0, ElementsAre(Pair(one.node, 3.0))) << one.depth;
  }
}

TEST(ApplyConstraints, IgnoresALevelOutsideOfTheWall) {
  xSheetpilingModel model = column_of({{0.0, 500.0, 1000.0}});
  xSheetpilingData data = wall_of(1000.0, 500.0);
  data.restriction.imposed = {along(-1.0, 3.0), along(1000.002, 3.0),
                              along(std::numeric_limits<double>::quiet_NaN(), 3.0)};
  data.restriction.springs = data.restriction.imposed;
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_THAT(depths(model), ElementsAre(0.0, 500.0, 1000.0));
  EXPECT_THAT(model.fem.constrDof0, IsEmpty());
  EXPECT_THAT(model.fem.springDof0, IsEmpty());
}

TEST(CreateFemModel, PutsImposedValuesAndSpringsOnTheirNodes) {
  xSheetpilingModel model = column_of({{0.0, 500.0, 1000.0}});
  xSheetpilingData data = wall_of(1000.0, 500.0);
  // The first stands on node 2 at first; the spring makes a node above it, so it ends on node 3.
  data.restriction.imposed = {along(1000.0, 0.0), along(500.0, 1.0), along(500.0, 2.0)};
  data.restriction.springs = {along(700.0, 5.0), along(700.0, 6.0), along(500.0, 7.0)};
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_THAT(depths(model), ElementsAre(0.0, 500.0, 700.0, 1000.0));
  EXPECT_THAT(model.fem.constrDof0, ElementsAre(Pair(1, -2.0), Pair(3, 0.0)));
  EXPECT_THAT(model.fem.springDof0, ElementsAre(Pair(1, 7.0), Pair(2, 11.0)));
  EXPECT_EQ(model.fem.getJtsoil(), 1);
}

TEST(CreateFemModel, FindsTheExcavationAfterAllSplits) {
  xSheetpilingModel model = column_of({{0.0, 500.0, 1000.0}});
  xSheetpilingData data = wall_of(1000.0, 500.0);
  data.restriction.springs = {along(200.0, 1.0)};
  data.anchors = {anchor_at(300.0)};
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_EQ(model.fem.getJtsoil(), 3);
}

// A node made by a constraint can be the one at the excavation.
TEST(CreateFemModel, TakesANodeOfAConstraintForTheExcavation) {
  xSheetpilingModel model = column_of({{0.0, 1000.0}});
  xSheetpilingData data = wall_of(1000.0, 400.0);
  data.restriction.springs = {at(400.0)};
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_EQ(model.fem.getJtsoil(), 1);
  EXPECT_EQ(model.fem.getDembin(), 600.0);
}

TEST(CreateFemModel, LinksEachAnchorToItsNode) {
  xSheetpilingModel model = column_of({{0.0, 500.0, 1000.0}});
  xSheetpilingData data = wall_of(1000.0, 500.0);
  data.anchors = {anchor_at(500.0), anchor_at(0.0)};
  data.anchors[0].modeFlag = true;
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_THAT(depths(model), ElementsAre(0.0, 500.0, 1000.0));
  ASSERT_THAT(model.anchors, SizeIs(2));
  EXPECT_EQ(model.anchors[0].id, 0);
  EXPECT_EQ(model.anchors[0].node, 1);
  EXPECT_EQ(model.anchors[0].level, -500.0);
  EXPECT_TRUE(model.anchors[0].modeFlag);
  // Two strands of 225 pi mm² and 8 m, 200 000 N/mm²: 225 pi * 400 000 / 8000 = 11 250 pi.
  EXPECT_DOUBLE_EQ(model.anchors[0].kSS + model.anchors[0].kCC, 11'250.0 * std::numbers::pi);
  EXPECT_EQ(model.anchors[0].share, 0.5);
  EXPECT_EQ(model.anchors[1].id, 1);
  EXPECT_EQ(model.anchors[1].node, 0);
  EXPECT_FALSE(model.anchors[1].modeFlag);
}

TEST(CreateFemModel, GivesEveryAnchorItsNodeAfterTheLastSplit) {
  for (const bool upwards : {false, true}) {
    xSheetpilingModel model = column_of({{0.0, 1000.0}});
    xSheetpilingData data = wall_of(1000.0, 1000.0);
    data.anchors = {anchor_at(300.0), anchor_at(800.0)};
    if (upwards) std::swap(data.anchors[0], data.anchors[1]);
    ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
    EXPECT_THAT(depths(model), ElementsAre(0.0, 300.0, 800.0, 1000.0));
    EXPECT_THAT(model.layers[0].levels, ElementsAre(0.0, 300.0, 800.0, 1000.0));
    EXPECT_THAT(lengths(model), ElementsAre(1000.0, 1000.0, 1000.0));
    if (upwards) {
      EXPECT_THAT(anchor_nodes(model), ElementsAre(2, 1));
    } else {
      EXPECT_THAT(anchor_nodes(model), ElementsAre(1, 2));
    }
  }
}

TEST(CreateFemModel, SharesANodeBetweenAnchorsAtOneLevel) {
  xSheetpilingModel model = column_of({{0.0, 1000.0}});
  xSheetpilingData data = wall_of(1000.0, 1000.0);
  data.anchors = {anchor_at(300.0), anchor_at(300.0005)};
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_THAT(depths(model), ElementsAre(0.0, 300.0, 1000.0));
  EXPECT_THAT(anchor_nodes(model), ElementsAre(1, 1));
}

TEST(CreateFemModel, LeavesAnAnchorOutsideOfTheWallWithoutANode) {
  xSheetpilingModel model = column_of({{0.0, 1000.0}});
  xSheetpilingData data = wall_of(1000.0, 1000.0);
  data.anchors = {anchor_at(1500.0), anchor_at(-10.0),
                  anchor_at(std::numeric_limits<double>::quiet_NaN())};
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_THAT(anchor_nodes(model), ElementsAre(-1, -1, -1));
  EXPECT_THAT(depths(model), ElementsAre(0.0, 1000.0));
}

TEST(CreateFemModel, LetsAStiffnessThatIsNotFiniteBeSeen) {
  xSheetpilingModel model = column_of({{0.0, 1000.0}});
  xSheetpilingData data = wall_of(1000.0, 1000.0);
  pile_wall(data).set_NumPiles(0);
  data.anchors = {anchor_at(0.0), anchor_at(0.0)};
  data.anchors[1].setNumber(0);
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  EXPECT_FALSE(std::isfinite(model.anchors[0].kCC));
  EXPECT_EQ(model.anchors[1].kCC, 0.0);
  EXPECT_EQ(model.anchors[1].share, 1.0);
}

TEST(SplitBeam, KeepsNodesElementsAndLevelsTogether) {
  xSheetpilingModel model = column_of({{0.0, 500.0, 1000.0}});
  xSheetpilingData data = wall_of(1000.0, 500.0);
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  model.splitBeam(1, 600.0);
  model.splitBeam(7, 600.0);
  EXPECT_THAT(depths(model), ElementsAre(0.0, 500.0, 600.0, 1000.0));
  EXPECT_THAT(model.layers[0].levels, ElementsAre(0.0, 500.0, 600.0, 1000.0));
  expect_chain(model);
}

// The element from 0 to 500 split at 250: stiffness and loads go on with 500 for both halves.
TEST(SplitBeam, LeavesTheWholeLengthToStiffnessAndLoads) {
  xSheetpilingModel model = column_of({{0.0, 500.0}});
  xSheetpilingData data = wall_of(500.0, 500.0);
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  model.splitBeam(0, 250.0);
  ASSERT_THAT(depths(model), ElementsAre(0.0, 250.0, 500.0));
  EXPECT_THAT(lengths(model), ElementsAre(500.0, 500.0));

  xFemLoadCond weight("weight");
  weight.pressures[1].aStart = 4.0;
  weight.pressures[1].aEnd = 4.0;
  xFemSolver solver;
  solver.takeSizes(model.fem, 1);
  ASSERT_EQ(solver.buildTopologyMat(), ostrel::ok);
  ASSERT_EQ(solver.buildLoadMat(model.fem, {weight}), ostrel::ok);
  ASSERT_EQ(solver.buildBStif(model.fem), ostrel::ok);
  // E A / L = 30 000 * 240 000 / 500 and a L / 2 = 4 * 500 / 2.
  EXPECT_DOUBLE_EQ(solver.K(0, 0), 1.44e7);
  EXPECT_DOUBLE_EQ(solver.K(6, 6), 1.44e7);
  EXPECT_DOUBLE_EQ(solver.loads[0][3], 1000.0);
  EXPECT_DOUBLE_EQ(solver.loads[0][6], 1000.0);
}

TEST(FindFemNode, TakesTheFirstNodeWithinTheToleranceOfPositions) {
  xSheetpilingModel model;
  for (const double depth : {0.0, 500.0, 500.0, 900.0})
    model.fem.nodes.emplace_back(0.0, depth);
  EXPECT_EQ(model.findFemNode(0.0, 500.0), 1);
  EXPECT_EQ(model.findFemNode(0.0, 900.0 + 5e-7), 3);
  EXPECT_EQ(model.findFemNode(0.0, 900.0 + 2e-6), -1);
  EXPECT_EQ(model.findFemNode(1.0, 900.0), -1);
  EXPECT_EQ(model.findFemNode(0.0, std::numeric_limits<double>::quiet_NaN()), -1);
  EXPECT_EQ(xSheetpilingModel().findFemNode(0.0, 0.0), -1);
}

TEST(FindFemNode, FollowsTheTolerancesOfTheProcess) {
  const xTolerances before = *getTolerances();
  xTolerances wide = before;
  wide.values[xTolerances::position_identity] = 1.0;
  setTolerances(wide);
  xSheetpilingModel model;
  model.fem.nodes.emplace_back(0.0, 500.0);
  EXPECT_EQ(model.findFemNode(0.5, 500.5), 0);
  EXPECT_EQ(model.findFemNode(0.0, 501.0), -1);  // strictly within
  setTolerances(before);
}

TEST(FindFemElement, GivesElementAndNode) {
  xSheetpilingModel model = column_of({{0.0, 500.0, 1000.0}});
  xSheetpilingData data = wall_of(1000.0, 500.0);
  ASSERT_EQ(model.create_FemModel(&data), ostrel::ok);
  int node = 99;
  EXPECT_EQ(model.findFemElement(500.0, 0.001, node), 0);
  EXPECT_EQ(node, 1);
  EXPECT_EQ(model.findFemElement(600.0, 0.001, node), 1);
  EXPECT_EQ(node, -1);
  node = 99;
  EXPECT_EQ(model.findFemElement(1001.0, 0.001, node), -1);
  EXPECT_EQ(node, -1);
}

}  // namespace
