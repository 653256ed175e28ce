// SPDX-License-Identifier: Apache-2.0
#include "ostrel/fem_results.h"

#include "support/hostile_stream.h"
#include "support/random_bits.h"
#include "support/spring_beam.h"
#include "support/stream_round_trip.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <string>
#include <vector>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::expect_cuts_refused;
using ostrel::testing::frame_bytes;
using ostrel::testing::RandomBits;
using ostrel::testing::read_stored;
using ostrel::testing::refused_mutations;
using ostrel::testing::stored;
using ostrel::testing::straight_beam;
using ostrel::testing::through_memory;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// Nodes at 0, 1000 and 3000, the excavation at the second; every number of the results is its own.
struct TwoElements {
  TwoElements() {
    fem = straight_beam(2, 1000.0, 1.0, 1.0, 1.0).data;
    fem.nodes[2].y = 3000.0;
    fem.setJtsoil(1);
    raw.displacements = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
    raw.soilReactions[2].reaction = -11.0;
    raw.soilReactions[2].limited = -10.0;
    for (const int e : {0, 1}) {
      xBeamStress& stress = raw.beamStress.emplace_back();
      for (const int end : {0, 1}) {
        xPointStress& point = stress.points.emplace_back();
        point.N = 100.0 + 10 * e + end;
        point.T = 200.0 + 10 * e + end;
        point.M = 300.0 + 10 * e + end;
      }
    }
    raw.nodalForces[2] = xFemNodeData(21.0, 22.0, 23.0);
    raw.soilForces[1].springForce = 31.0;
    raw.appliedForces[0] = xFemNodeData(41.0, 42.0, 43.0);
    raw.appliedForces[2] = xFemNodeData(44.0, 45.0, 46.0);
  }

  OstrelErrorType get(const std::vector<info_Fem_anchor>& anchors = {}) {
    return results.getData(data, anchors, fem, raw);
  }

  xSheetpilingData data;
  xFemData fem;
  xCombRes raw;
  xFemResults results;
};

std::vector<double> positions(const xDiagram& diagram) {
  std::vector<double> found;
  for (const diag_Point& point : diagram.points) {
    found.push_back(point.s);
  }
  return found;
}

std::vector<double> values(const xDiagram& diagram) {
  std::vector<double> found;
  for (const diag_Point& point : diagram.points) {
    found.push_back(point.value);
  }
  return found;
}

void expect_axis(const xDiagram& diagram, const xPoint2d& start, const xPoint2d& end) {
  EXPECT_EQ(diagram.start.x, start.x);
  EXPECT_EQ(diagram.start.y, start.y);
  EXPECT_EQ(diagram.end.x, end.x);
  EXPECT_EQ(diagram.end.y, end.y);
}

TEST(GetData, HasAPointForEachNode) {
  TwoElements wall;
  ASSERT_EQ(wall.get(), ostrel::ok);
  for (const xDiagram* diagram :
       {&wall.results.dispAxial, &wall.results.dispTrans, &wall.results.rotation}) {
    EXPECT_THAT(positions(*diagram), ElementsAre(0, 1000, 3000));
    expect_axis(*diagram, {0.0, 0.0}, {0.0, -3000.0});
  }
  EXPECT_THAT(values(wall.results.dispAxial), ElementsAre(1, 4, 7));
  EXPECT_THAT(values(wall.results.dispTrans), ElementsAre(2, 5, 8));
  EXPECT_THAT(values(wall.results.rotation), ElementsAre(3, 6, 9));
}

TEST(GetData, HasTwoPointsForEachElement) {
  TwoElements wall;
  ASSERT_EQ(wall.get(), ostrel::ok);
  for (const xDiagram* diagram : {&wall.results.axial, &wall.results.shear, &wall.results.moment}) {
    EXPECT_THAT(positions(*diagram), ElementsAre(0, 1000, 1000, 3000));
    expect_axis(*diagram, {0.0, 0.0}, {0.0, -3000.0});
  }
  EXPECT_THAT(values(wall.results.axial), ElementsAre(100, 101, 110, 111));
  EXPECT_THAT(values(wall.results.shear), ElementsAre(200, 201, 210, 211));
  EXPECT_THAT(values(wall.results.moment), ElementsAre(300, 301, 310, 311));
}

// Node 1 has no reaction and keeps 0.
TEST(GetData, CountsTheReactionOfTheSoilFromTheExcavation) {
  TwoElements wall;
  ASSERT_EQ(wall.get(), ostrel::ok);
  EXPECT_THAT(positions(wall.results.soilReaction), ElementsAre(0, 2000));
  EXPECT_THAT(values(wall.results.soilReaction), ElementsAre(0, -11));
  expect_axis(wall.results.soilReaction, {0.0, -1000.0}, {0.0, -3000.0});
}

TEST(GetData, NegatesBothCoordinatesInTheAxisOfTheReaction) {
  TwoElements wall;
  wall.fem.nodes[1].x = 7.0;
  wall.fem.nodes[2].x = -8.0;
  ASSERT_EQ(wall.get(), ostrel::ok);
  expect_axis(wall.results.soilReaction, {-7.0, -1000.0}, {8.0, -3000.0});
  expect_axis(wall.results.dispAxial, {0.0, 0.0}, {0.0, -3000.0});
}

TEST(GetData, CopiesTheForcesByNode) {
  TwoElements wall;
  ASSERT_EQ(wall.get(), ostrel::ok);
  ASSERT_THAT(wall.results.nodalForces, SizeIs(1));
  EXPECT_EQ(wall.results.nodalForces[2].y, 22.0);
  ASSERT_THAT(wall.results.soilForces, SizeIs(1));
  EXPECT_EQ(wall.results.soilForces[1].springForce, 31.0);
}

TEST(GetData, SortsTheAppliedForcesByDepth) {
  TwoElements wall;
  wall.fem.nodes[0].y = 5000.0;  // a beam upside down, to have something to sort
  ASSERT_EQ(wall.get(), ostrel::ok);
  ASSERT_THAT(wall.results.appliedForces, SizeIs(2));
  EXPECT_EQ(wall.results.appliedForces[0].pos, 3000.0);
  EXPECT_EQ(wall.results.appliedForces[0].data.x, 44.0);
  EXPECT_EQ(wall.results.appliedForces[1].pos, 5000.0);
  EXPECT_EQ(wall.results.appliedForces[1].data.r, 43.0);
}

TEST(GetData, BeginsAnew) {
  TwoElements wall;
  ASSERT_EQ(wall.get({info_Fem_anchor{}}), ostrel::ok);
  ASSERT_EQ(wall.get(), ostrel::ok);
  EXPECT_THAT(wall.results.dispAxial.points, SizeIs(3));
  EXPECT_THAT(wall.results.axial.points, SizeIs(4));
  EXPECT_THAT(wall.results.appliedForces, SizeIs(2));
  EXPECT_THAT(wall.results.anchorSoll, IsEmpty());
}

TEST(GetData, FailsWithoutNodes) {
  TwoElements wall;
  ASSERT_EQ(wall.get(), ostrel::ok);
  wall.fem.nodes.clear();
  EXPECT_EQ(wall.get(), errNoFemNodes);
  EXPECT_THAT(wall.results.dispAxial.points, IsEmpty());
}

TEST(GetData, FailsWithoutElementsAfterTheNodes) {
  TwoElements wall;
  wall.fem.elements.clear();
  EXPECT_EQ(wall.get(), errNoFemElements);
  EXPECT_THAT(wall.results.dispAxial.points, SizeIs(3));
  EXPECT_THAT(values(wall.results.dispAxial), ElementsAre(0, 0, 0));
  EXPECT_THAT(wall.results.axial.points, IsEmpty());
}

TEST(GetData, RefusesNodesThatTheBeamDoesNotHave) {
  for (const int node : {-1, 3, std::numeric_limits<int>::max()}) {
    TwoElements wall;
    wall.fem.elements[1].setEndNode(node);
    EXPECT_EQ(wall.get(), errFemNodeNotFound);
    wall = TwoElements();
    wall.raw.appliedForces[node] = xFemNodeData(1.0, 0.0, 0.0);
    EXPECT_EQ(wall.get(), errFemNodeNotFound);
  }
}

// More displacements, cuts and reactions than points: what has no point is left out. Fewer: 0.
TEST(GetData, TakesWhatHasAPoint) {
  TwoElements wall;
  wall.raw.displacements.emplace_back(1.0, 1.0, 1.0);
  wall.raw.beamStress.push_back(wall.raw.beamStress[0]);
  wall.raw.soilReactions[7].reaction = 1.0;
  ASSERT_EQ(wall.get(), ostrel::ok);
  EXPECT_THAT(values(wall.results.dispAxial), ElementsAre(1, 4, 7));
  EXPECT_THAT(values(wall.results.axial), ElementsAre(100, 101, 110, 111));
  wall.raw = xCombRes{};
  ASSERT_EQ(wall.get(), ostrel::ok);
  EXPECT_THAT(values(wall.results.dispAxial), ElementsAre(0, 0, 0));
  EXPECT_THAT(values(wall.results.axial), ElementsAre(0, 0, 0, 0));
}

TEST(GetData, BearsAnExcavationThatIsNoNode) {
  for (const int node : {3, 100, std::numeric_limits<int>::max()}) {
    TwoElements wall;
    wall.fem.setJtsoil(node);
    ASSERT_EQ(wall.get(), ostrel::ok);
    EXPECT_THAT(wall.results.soilReaction.points, IsEmpty());
  }
  for (const int node : {-1, std::numeric_limits<int>::min()}) {
    TwoElements wall;
    wall.fem.setJtsoil(node);
    ASSERT_EQ(wall.get(), ostrel::ok);
    EXPECT_THAT(wall.results.soilReaction.points, SizeIs(3));
  }
}

// An anchor 30° below the horizontal, 10 m free: its head lies at -1000, its end 8660 mm away and
// 5000 mm deeper. Node 1 moves by 4 down and by 5 across; with k = 100 it carries
// -(4 * 0.5 + 5 * 0.866) 100 / 2 = -316.5, and 1000 of prestress.
class AnchorDiag : public ::testing::Test {
protected:
  AnchorDiag() {
    xAnchor& anchor = wall.data.anchors.emplace_back();
    anchor.setIdObj(77);
    anchor.setAngleRad(std::numbers::pi / 6.0);
    anchor.setFreeLength(10'000.0);
    anchor.setPreStress(1000.0);
    link.id = 0;
    link.node = 1;
    link.level = -1000.0;
    link.sinA = 0.5;
    link.cosA = std::sqrt(0.75);
    link.kSS = 25.0;
    link.kCC = 75.0;
    link.share = 0.5;
  }

  TwoElements wall;
  info_Fem_anchor link;
};

TEST_F(AnchorDiag, CarriesOneForceAlongTheFreeLength) {
  ASSERT_EQ(wall.get({link}), ostrel::ok);
  ASSERT_THAT(wall.results.anchorSoll, SizeIs(1));
  const AnchorSoll& anchor = wall.results.anchorSoll[0];
  EXPECT_EQ(anchor.idObj, 77);
  EXPECT_THAT(positions(anchor.axial), ElementsAre(0.0, 10'000.0));
  const double force = 1000.0 - (2.0 + 5.0 * std::sqrt(0.75)) * 50.0;
  ASSERT_THAT(values(anchor.axial), SizeIs(2));
  EXPECT_NEAR(anchor.axial.points[0].value, force, 1e-12 * 1000.0);
  EXPECT_EQ(anchor.axial.points[0].value, anchor.axial.points[1].value);
  EXPECT_THAT(anchor.shear.points, IsEmpty());
  EXPECT_THAT(anchor.moment.points, IsEmpty());
}

TEST_F(AnchorDiag, LiesOnTheAnchorsLine) {
  ASSERT_EQ(wall.get({link}), ostrel::ok);
  const AnchorSoll& anchor = wall.results.anchorSoll[0];
  for (const xDiagram* diagram : {&anchor.axial, &anchor.shear, &anchor.moment}) {
    expect_axis(*diagram, {0.0, -1000.0}, diagram->end);
    EXPECT_NEAR(diagram->end.x, 10'000.0 * std::sqrt(0.75), 1e-8);
    EXPECT_NEAR(diagram->end.y, -6000.0, 1e-8);
  }
}

TEST_F(AnchorDiag, WithoutANodeCarriesThePrestress) {
  for (const int node : {-1, 3, -2, std::numeric_limits<int>::max()}) {
    link.node = node;
    ASSERT_EQ(wall.get({link}), ostrel::ok);
    EXPECT_THAT(values(wall.results.anchorSoll[0].axial), ElementsAre(1000.0, 1000.0)) << node;
  }
}

TEST_F(AnchorDiag, StandsForEachLinkInOrder) {
  wall.data.anchors.push_back(wall.data.anchors[0]);
  wall.data.anchors[1].setIdObj(88);
  info_Fem_anchor second = link;
  second.id = 1;
  ASSERT_EQ(wall.get({second, link}), ostrel::ok);
  ASSERT_THAT(wall.results.anchorSoll, SizeIs(2));
  EXPECT_EQ(wall.results.anchorSoll[0].idObj, 88);
  EXPECT_EQ(wall.results.anchorSoll[1].idObj, 77);
}

TEST_F(AnchorDiag, OfAnAnchorThatIsNotThereIsEmpty) {
  for (const int id : {-1, 1, std::numeric_limits<int>::max()}) {
    link.id = id;
    ASSERT_EQ(wall.get({link}), ostrel::ok);
    EXPECT_EQ(stored(wall.results.anchorSoll[0]), stored(AnchorSoll{})) << id;
  }
}

TEST_F(AnchorDiag, BeginsAnew) {
  ASSERT_EQ(wall.get(), ostrel::ok);
  AnchorSoll out;
  out.shear.points.emplace_back(1.0, 2.0);
  wall.results.getAnchorDiag(wall.data, out, link);
  EXPECT_THAT(out.shear.points, IsEmpty());
  EXPECT_THAT(out.axial.points, SizeIs(2));
}

TEST(GetDispNode, ReadsTheDisplacementsOfANode) {
  TwoElements wall;
  ASSERT_EQ(wall.get(), ostrel::ok);
  double x = -1.0;
  double y = -1.0;
  double r = -1.0;
  EXPECT_TRUE(wall.results.getDispNode(2, x, y, r));
  EXPECT_EQ(x, 7.0);
  EXPECT_EQ(y, 8.0);
  EXPECT_EQ(r, 9.0);
}

TEST(GetDispNode, IsFalseAndThreeZerosWithoutANode) {
  TwoElements wall;
  ASSERT_EQ(wall.get(), ostrel::ok);
  for (const int node : {-1, 3, -2, std::numeric_limits<int>::min()}) {
    double x = -1.0;
    double y = -1.0;
    double r = -1.0;
    EXPECT_FALSE(wall.results.getDispNode(node, x, y, r));
    EXPECT_EQ(x, 0.0);
    EXPECT_EQ(y, 0.0);
    EXPECT_EQ(r, 0.0);
  }
}

// Diagrams that came from a stream need not be of one length.
TEST(GetDispNode, TakesAMissingPointAsZero) {
  xFemResults results;
  results.dispAxial.points.emplace_back(0.0, 5.0);
  double x = -1.0;
  double y = -1.0;
  double r = -1.0;
  EXPECT_TRUE(results.getDispNode(0, x, y, r));
  EXPECT_EQ(x, 5.0);
  EXPECT_EQ(y, 0.0);
  EXPECT_EQ(r, 0.0);
}

xDiagram random_diagram(RandomBits& random) {
  xDiagram diagram;
  diagram.start.set(random.number(), random.number());
  diagram.end.set(random.number(), random.number());
  for (std::size_t i = random.below(6); i > 0; --i) {
    diagram.points.emplace_back(random.number(), random.number());
  }
  return diagram;
}

xFemResults random_results(std::uint64_t seed) {
  RandomBits random(seed);
  xFemResults results;
  for (xDiagram* diagram :
       {&results.dispAxial, &results.dispTrans, &results.rotation, &results.soilReaction,
        &results.axial, &results.shear, &results.moment}) {
    *diagram = random_diagram(random);
  }
  for (std::size_t i = random.below(6); i > 0; --i) {
    results.nodalForces[random.integer()] =
        xFemNodeData(random.number(), random.number(), random.number());
    results.soilForces[random.integer()].limitMoment = random.number();
    results.appliedForces.emplace_back().pos = random.number();
    AnchorSoll& anchor = results.anchorSoll.emplace_back();
    anchor.idObj = random.id();
    anchor.axial = random_diagram(random);
  }
  return results;
}

TEST(FemResults, OfRandomContentsComesBackBitForBit) {
  for (std::uint64_t seed = 1; seed <= 100; ++seed) {
    const xFemResults results = random_results(seed);
    xFemResults copy = random_results(seed + 1000);
    read_stored(copy, stored(results));
    EXPECT_EQ(stored(copy), stored(results)) << seed;
    EXPECT_EQ(copy.anchorSoll.size(), results.anchorSoll.size());
    EXPECT_EQ(copy.moment.points.size(), results.moment.points.size());
  }
}

TEST(FemResults, IsStoredInTheOrderOfItsMembersInVersion6) {
  TwoElements wall;
  wall.data.anchors.emplace_back().setIdObj(9);
  info_Fem_anchor link;
  link.id = 0;
  ASSERT_EQ(wall.get({link}), ostrel::ok);
  xFemResults& results = wall.results;
  EXPECT_EQ(results.getIOClass(), "xFemResults");
  const auto whole = [](int value) { return bytes_of([value](outstream& out) { out << value; }); };
  const std::string fields =
      stored(results.dispAxial) + stored(results.dispTrans) + stored(results.rotation)
      + stored(results.soilReaction) + stored(results.axial) + stored(results.shear)
      + stored(results.moment) + whole(1) + whole(2) + stored(results.nodalForces[2]) + whole(1)
      + whole(1) + stored(results.soilForces[1]) + whole(2) + stored(results.appliedForces[0])
      + stored(results.appliedForces[1]) + whole(1) + stored(results.anchorSoll[0]);
  EXPECT_EQ(stored(results), frame_bytes(6, fields));
}

TEST(FemResults, RefusesAnOlderVersionByThrowingItsNumber) {
  const std::string bytes = stored(random_results(1));
  for (const int version : {5, 2, 0, -1, std::numeric_limits<int>::min()}) {
    xFemResults copy;
    try {
      read_stored(copy, frame_bytes(version, bytes.substr(8, bytes.size() - 12)));
      ADD_FAILURE() << "version " << version << " was read";
    } catch (int refused) {
      EXPECT_EQ(refused, version);
    }
    EXPECT_EQ(stored(copy), stored(xFemResults{}));
  }
}

TEST(FemResults, ResetsAllOfThem) {
  xFemResults results = random_results(3);
  results.reset();
  EXPECT_EQ(stored(results), stored(xFemResults{}));
}

TEST(FemResults, CutShortAnywhereThrows) {
  expect_cuts_refused(random_results(2));
}

TEST(FemResults, EndsInAnExceptionOrAnObjectWhateverTheBytes) {
  EXPECT_GT(refused_mutations(random_results(5), 1000), 0);
}

}  // namespace
