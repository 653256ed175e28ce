// SPDX-License-Identifier: Apache-2.0
#include "ostrel/fem_results.h"

#include "support/stream_round_trip.h"

#include <gmock/gmock.h>

#include <cmath>
#include <numbers>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::read_stored;
using ostrel::testing::stored;
using ostrel::testing::through_memory;
using ::testing::ElementsAre;

std::vector<double> positions(const xDiagram& diagram) {
  std::vector<double> list;
  for (const diag_Point& point : diagram.points)
    list.push_back(point.s);
  return list;
}

std::vector<double> values(const xDiagram& diagram) {
  std::vector<double> list;
  for (const diag_Point& point : diagram.points)
    list.push_back(point.value);
  return list;
}

// Two elements between nodes at 0, 1000 and 3000 mm; the soil springs begin at the second node.
class BeamOfTwoElements : public ::testing::Test {
protected:
  BeamOfTwoElements() {
    for (const double y : {0.0, 1000.0, 3000.0})
      fem.nodes.emplace_back(0.0, y);
    for (int e = 0; e < 2; ++e) {
      xElemData& element = fem.elements.emplace_back();
      element.setStartNode(e);
      element.setEndNode(e + 1);
    }
    fem.setJtsoil(1);
    raw.displacements = {{1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}, {7.0, 8.0, 9.0}};
    raw.soilReactions[2].reaction = 0.5;
    raw.soilReactions[2].limited = 0.25;
    raw.beamStress.resize(2);
    for (std::size_t k = 0; k < 4; ++k) {
      xPointStress& point = raw.beamStress[k / 2].points.emplace_back();
      point.N = 10.0 + static_cast<double>(k);
      point.T = 20.0 + static_cast<double>(k);
      point.M = 30.0 + static_cast<double>(k);
    }
    raw.nodalForces[0] = {1.0, 1.0, 1.0};
    raw.soilForces[2].springForce = 4.0;
    raw.appliedForces[2] = {0.0, 6.0, 0.0};
    raw.appliedForces[0] = {0.0, 5.0, 0.0};
  }
  OstrelErrorType get() { return results.getData(data, anchors, fem, raw); }

  xSheetpilingData data;
  std::vector<info_Fem_anchor> anchors;
  xFemData fem;
  xCombRes raw;
  xFemResults results;
};

TEST_F(BeamOfTwoElements, ShowsDisplacementsByNode) {
  ASSERT_EQ(get(), ostrel::ok);
  EXPECT_THAT(positions(results.dispTrans), ElementsAre(0.0, 1000.0, 3000.0));
  EXPECT_THAT(values(results.dispAxial), ElementsAre(1.0, 4.0, 7.0));
  EXPECT_THAT(values(results.dispTrans), ElementsAre(2.0, 5.0, 8.0));
  EXPECT_THAT(values(results.rotation), ElementsAre(3.0, 6.0, 9.0));
  EXPECT_THAT(results.dispTrans.start.getVec(), ElementsAre(0.0, 0.0));
  EXPECT_THAT(results.dispTrans.end.getVec(), ElementsAre(0.0, -3000.0));
}

// A node without a spring keeps 0; positions count from the excavation level.
TEST_F(BeamOfTwoElements, ShowsTheReactionOfTheSoilFromTheExcavationDown) {
  ASSERT_EQ(get(), ostrel::ok);
  EXPECT_THAT(positions(results.soilReaction), ElementsAre(0.0, 2000.0));
  EXPECT_THAT(values(results.soilReaction), ElementsAre(0.0, 0.5));
  EXPECT_DOUBLE_EQ(results.soilReaction.start.y, -1000.0);
  EXPECT_DOUBLE_EQ(results.soilReaction.end.y, -3000.0);
}

TEST_F(BeamOfTwoElements, ShowsForcesTwiceAtAnInnerNode) {
  ASSERT_EQ(get(), ostrel::ok);
  for (const xDiagram* diagram : {&results.axial, &results.shear, &results.moment}) {
    EXPECT_THAT(positions(*diagram), ElementsAre(0.0, 1000.0, 1000.0, 3000.0));
    EXPECT_DOUBLE_EQ(diagram->end.y, -3000.0);
  }
  EXPECT_THAT(values(results.axial), ElementsAre(10.0, 11.0, 12.0, 13.0));
  EXPECT_THAT(values(results.shear), ElementsAre(20.0, 21.0, 22.0, 23.0));
  EXPECT_THAT(values(results.moment), ElementsAre(30.0, 31.0, 32.0, 33.0));
}

TEST_F(BeamOfTwoElements, KeepsForcesByNodeAndLoadsByDepth) {
  ASSERT_EQ(get(), ostrel::ok);
  EXPECT_DOUBLE_EQ(results.nodalForces.at(0).y, 1.0);
  EXPECT_DOUBLE_EQ(results.soilForces.at(2).springForce, 4.0);
  ASSERT_EQ(results.appliedForces.size(), 2U);
  EXPECT_DOUBLE_EQ(results.appliedForces[0].pos, 0.0);
  EXPECT_DOUBLE_EQ(results.appliedForces[0].data.y, 5.0);
  EXPECT_DOUBLE_EQ(results.appliedForces[1].pos, 3000.0);
}

TEST_F(BeamOfTwoElements, NeedsNodesAndElements) {
  xFemData without_elements = fem;
  without_elements.elements.clear();
  EXPECT_EQ(results.getData(data, anchors, without_elements, raw), errNoFemElements);
  EXPECT_EQ(results.dispTrans.points.size(), 3U);
  fem.nodes.clear();
  EXPECT_EQ(get(), errNoFemNodes);
  EXPECT_TRUE(results.dispTrans.points.empty());
}

TEST_F(BeamOfTwoElements, RefusesElementsAndLoadsWithoutTheirNodes) {
  raw.appliedForces[9] = {1.0, 1.0, 1.0};
  EXPECT_EQ(get(), errFemNodeNotFound);
  raw.appliedForces.clear();
  fem.elements[1].setEndNode(7);
  EXPECT_EQ(get(), errFemNodeNotFound);
}

TEST_F(BeamOfTwoElements, IgnoresResultsBeyondItsPoints) {
  raw.displacements.resize(9);
  raw.beamStress.resize(9);
  raw.beamStress[8].points.resize(5);
  EXPECT_EQ(get(), ostrel::ok);
  EXPECT_EQ(results.dispTrans.points.size(), 3U);
}

TEST_F(BeamOfTwoElements, BeginsAnewEachTime) {
  ASSERT_EQ(get(), ostrel::ok);
  ASSERT_EQ(get(), ostrel::ok);
  EXPECT_EQ(results.dispTrans.points.size(), 3U);
  EXPECT_EQ(results.moment.points.size(), 4U);
}

TEST_F(BeamOfTwoElements, TellsTheDisplacementsOfANode) {
  ASSERT_EQ(get(), ostrel::ok);
  double along = -1.0;
  double across = -1.0;
  double turn = -1.0;
  EXPECT_TRUE(results.getDispNode(1, along, across, turn));
  EXPECT_THAT((std::vector<double>{along, across, turn}), ElementsAre(4.0, 5.0, 6.0));
  for (const int node : {-1, 3, -7}) {
    along = across = turn = -1.0;
    EXPECT_FALSE(results.getDispNode(node, along, across, turn)) << node;
    EXPECT_THAT((std::vector<double>{along, across, turn}), ElementsAre(0.0, 0.0, 0.0)) << node;
  }
}

// An anchor 30 degrees below the horizontal, free over 2000 mm, k = 10 + 30 = 40 N/mm, half of it
// for one anchor: -(4 * 0.5 + 5 * 0.75) * 40 * 0.5 = -115, and 1000 of prestress.
class AnchorAtTheMiddle : public BeamOfTwoElements {
protected:
  AnchorAtTheMiddle() {
    xAnchor& anchor = data.anchors.emplace_back();
    anchor.setIdObj(77);
    anchor.setAngleRad(std::numbers::pi / 6.0);
    anchor.setFreeLength(2000.0);
    anchor.setPreStress(1000.0);
    info_Fem_anchor& link = anchors.emplace_back();
    link.level = -1000.0;
    link.id = 0;
    link.node = 1;
    link.kSS = 10.0;
    link.kCC = 30.0;
    link.sinA = 0.5;
    link.cosA = 0.75;
    link.share = 0.5;
  }
};

TEST_F(AnchorAtTheMiddle, CarriesOneForceAlongItsFreeLength) {
  ASSERT_EQ(get(), ostrel::ok);
  ASSERT_EQ(results.anchorSoll.size(), 1U);
  const AnchorSoll& anchor = results.anchorSoll[0];
  EXPECT_EQ(anchor.idObj, 77);
  EXPECT_THAT(positions(anchor.axial), ElementsAre(0.0, 2000.0));
  EXPECT_THAT(values(anchor.axial), ElementsAre(885.0, 885.0));
  EXPECT_TRUE(anchor.shear.points.empty());
  EXPECT_TRUE(anchor.moment.points.empty());
  // down by 2000 sin 30° = 1000, out by 2000 cos 30°
  for (const xDiagram* diagram : {&anchor.axial, &anchor.shear, &anchor.moment}) {
    EXPECT_DOUBLE_EQ(diagram->start.y, -1000.0);
    EXPECT_NEAR(diagram->end.x, 1000.0 * std::sqrt(3.0), 1e-9);
    EXPECT_NEAR(diagram->end.y, -2000.0, 1e-9);
  }
}

TEST_F(AnchorAtTheMiddle, WithoutANodeCarriesItsPrestress) {
  anchors[0].node = -1;
  ASSERT_EQ(get(), ostrel::ok);
  EXPECT_THAT(values(results.anchorSoll[0].axial), ElementsAre(1000.0, 1000.0));
  anchors[0].node = 99;
  ASSERT_EQ(get(), ostrel::ok);
  EXPECT_THAT(values(results.anchorSoll[0].axial), ElementsAre(1000.0, 1000.0));
}

TEST_F(AnchorAtTheMiddle, ThatTheInputDoesNotHoldIsEmpty) {
  anchors[0].id = 5;
  ASSERT_EQ(get(), ostrel::ok);
  EXPECT_EQ(results.anchorSoll[0].idObj, -1);
  EXPECT_TRUE(results.anchorSoll[0].axial.points.empty());
}

TEST_F(AnchorAtTheMiddle, IsStoredWithAllDiagrams) {
  ASSERT_EQ(get(), ostrel::ok);
  EXPECT_EQ(stored(results), frame_bytes(6, bytes_of([this](outstream& out) {
                                           for (const xDiagram* diagram :
                                                {&results.dispAxial, &results.dispTrans,
                                                 &results.rotation, &results.soilReaction,
                                                 &results.axial, &results.shear, &results.moment}) {
                                             diagram->pub_write(out);
                                           }
                                           out << 1 << 0;
                                           results.nodalForces.at(0).pub_write(out);
                                           out << 1 << 2;
                                           results.soilForces.at(2).pub_write(out);
                                           out << 2;
                                           results.appliedForces[0].pub_write(out);
                                           results.appliedForces[1].pub_write(out);
                                           out << 1;
                                           results.anchorSoll[0].pub_write(out);
                                         })));
  EXPECT_EQ(stored(through_memory(results)), stored(results));
}

TEST(FemResults, OfAnOlderVersionAreRefused) {
  xFemResults results;
  try {
    read_stored(results, frame_bytes(5, ""));
    FAIL() << "version 5 was read";
  } catch (int version) {
    EXPECT_EQ(version, 5);
  }
}

}  // namespace
