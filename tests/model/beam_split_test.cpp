// SPDX-License-Identifier: Apache-2.0
#include "model/beam_split.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace ostrel::model {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

// Nodes at 0, 1000, 2000 and 3000 mm and the three elements between them.
xFemData beam_of_three() {
  xFemData beam;
  for (const double depth : {0.0, 1000.0, 2000.0, 3000.0})
    beam.nodes.emplace_back(0.0, depth);
  for (int e = 0; e < 3; ++e) {
    xElemData element;
    element.setStartNode(e);
    element.setEndNode(e + 1);
    element.setL(1000.0);
    element.setE(1.0 + e);
    element.setArea(10.0 + e);
    element.setJ(100.0 + e);
    beam.elements.push_back(element);
  }
  return beam;
}

xSoilLayer layer_with(const std::vector<double>& levels) {
  xSoilLayer layer;
  layer.levels = levels;
  return layer;
}

std::vector<double> depths(const xFemData& beam) {
  std::vector<double> found;
  for (const xPoint2d& node : beam.nodes) {
    EXPECT_EQ(node.x, 0.0);
    found.push_back(node.y);
  }
  return found;
}

// Element e joins the nodes e and e + 1.
void expect_chain(const xFemData& beam) {
  ASSERT_EQ(beam.nodes.size(), beam.elements.size() + 1);
  for (std::size_t e = 0; e < beam.elements.size(); ++e) {
    EXPECT_EQ(beam.elements[e].getStartNode(), static_cast<int>(e));
    EXPECT_EQ(beam.elements[e].getEndNode(), static_cast<int>(e) + 1);
  }
}

TEST(FindPlace, GivesTheElementAndNoNodeBetweenNodes) {
  const BeamPlace place = find_place(beam_of_three(), 1500.0, 0.001);
  EXPECT_EQ(place.element, 1);
  EXPECT_EQ(place.node, -1);
}

TEST(FindPlace, GivesTheElementAboveForADepthOnANode) {
  const BeamPlace place = find_place(beam_of_three(), 1000.0, 0.001);
  EXPECT_EQ(place.element, 0);
  EXPECT_EQ(place.node, 1);
}

TEST(FindPlace, GivesTheHeadAndTheFoot) {
  const BeamPlace head = find_place(beam_of_three(), 0.0, 0.001);
  EXPECT_EQ(head.element, 0);
  EXPECT_EQ(head.node, 0);
  const BeamPlace foot = find_place(beam_of_three(), 3000.0, 0.001);
  EXPECT_EQ(foot.element, 2);
  EXPECT_EQ(foot.node, 3);
}

// 0.25 and 0.5 are exact in binary: exactly the tolerance is near, twice it is not.
TEST(FindPlace, TakesANodeUpToTheToleranceAway) {
  const xFemData beam = beam_of_three();
  EXPECT_EQ(find_place(beam, 1000.25, 0.25).node, 1);
  EXPECT_EQ(find_place(beam, 999.75, 0.25).node, 1);
  EXPECT_EQ(find_place(beam, 1000.5, 0.25).node, -1);
  EXPECT_EQ(find_place(beam, 1000.5, 0.25).element, 1);
  EXPECT_EQ(find_place(beam, 1000.25, 0.25).element, 0);
  EXPECT_EQ(find_place(beam, -0.25, 0.25).node, 0);
  EXPECT_EQ(find_place(beam, 3000.25, 0.25).node, 3);
}

TEST(FindPlace, PrefersTheEndNodeWhereBothAreNear) {
  const BeamPlace place = find_place(beam_of_three(), 1500.0, 600.0);
  EXPECT_EQ(place.element, 0);  // 1000 + 600 >= 1500 already
  EXPECT_EQ(place.node, 1);
  EXPECT_EQ(find_place(beam_of_three(), 400.0, 600.0).node, 1);
}

TEST(FindPlace, FindsNothingOutsideOfTheBeam) {
  for (const double depth : {-0.5, 3000.5, std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::quiet_NaN()}) {
    const BeamPlace place = find_place(beam_of_three(), depth, 0.25);
    EXPECT_EQ(place.element, -1) << depth;
    EXPECT_EQ(place.node, -1) << depth;
  }
  EXPECT_EQ(find_place(xFemData(), 0.0, 0.25).element, -1);
}

TEST(FindPlace, PassesOverAnElementWhoseNodesAreMissing) {
  xFemData beam = beam_of_three();
  beam.elements[0].setEndNode(4);
  beam.elements[1].setStartNode(-1);
  EXPECT_EQ(find_place(beam, 500.0, 0.25).element, -1);
  EXPECT_EQ(find_place(beam, 1500.0, 0.25).element, -1);
  EXPECT_EQ(find_place(beam, 2500.0, 0.25).element, 2);
}

TEST(SplitElement, PutsANodeBelowTheStartAndRenumbersWhatFollows) {
  xFemData beam = beam_of_three();
  std::vector<xSoilLayer> layers;
  split_element(1, 1250.0, beam, layers);
  EXPECT_THAT(depths(beam), ElementsAre(0.0, 1000.0, 1250.0, 2000.0, 3000.0));
  expect_chain(beam);
  // Element 2 is the copy of element 1, element 3 the former element 2.
  EXPECT_EQ(beam.elements[1].getE(), 2.0);
  EXPECT_EQ(beam.elements[2].getE(), 2.0);
  EXPECT_EQ(beam.elements[2].getArea(), 11.0);
  EXPECT_EQ(beam.elements[2].getJ(), 101.0);
  EXPECT_EQ(beam.elements[3].getE(), 3.0);
}

TEST(SplitElement, LeavesBothHalvesTheLengthOfTheWhole) {
  xFemData beam = beam_of_three();
  std::vector<xSoilLayer> layers;
  split_element(1, 1250.0, beam, layers);
  for (const xElemData& element : beam.elements)
    EXPECT_EQ(element.getL(), 1000.0);
}

TEST(SplitElement, RaisesTheKeysBelowTheNewNodeInAllSixMaps) {
  xFemData beam = beam_of_three();
  std::vector<xSoilLayer> layers;
  const auto maps = {&beam.constrDof0, &beam.constrDof1, &beam.constrDof2,
                     &beam.springDof0, &beam.springDof1, &beam.springDof2};
  double value = 0.0;
  for (auto* entries : maps) {
    *entries = {{0, value}, {1, value + 1.0}, {2, value + 2.0}, {3, value + 3.0}};
    value += 10.0;
  }
  split_element(1, 1250.0, beam, layers);
  value = 0.0;
  for (const auto* entries : maps) {
    // The start node of the split element is 1 and stays, its end node 2 is now 3.
    EXPECT_THAT(*entries, ElementsAre(Pair(0, value), Pair(1, value + 1.0), Pair(3, value + 2.0),
                                      Pair(4, value + 3.0)));
    value += 10.0;
  }
}

TEST(SplitElement, MakesTheDepthALevelOfItsLayer) {
  xFemData beam = beam_of_three();
  std::vector<xSoilLayer> layers{layer_with({0.0, 1000.0}), layer_with({1000.0, 2000.0, 3000.0})};
  split_element(1, 1250.0, beam, layers);
  EXPECT_THAT(layers[0].levels, ElementsAre(0.0, 1000.0));
  EXPECT_THAT(layers[1].levels, ElementsAre(1000.0, 1250.0, 2000.0, 3000.0));
}

TEST(SplitElement, GoesInFrontOfAnEqualLevel) {
  xFemData beam = beam_of_three();
  std::vector<xSoilLayer> layers{layer_with({0.0, 1250.0}), layer_with({1250.0, 3000.0})};
  split_element(1, 1250.0, beam, layers);
  EXPECT_THAT(layers[0].levels, ElementsAre(0.0, 1250.0, 1250.0));
  EXPECT_THAT(layers[1].levels, ElementsAre(1250.0, 3000.0));
}

TEST(SplitElement, MakesNoLevelBelowAllLayers) {
  xFemData beam = beam_of_three();
  std::vector<xSoilLayer> layers{layer_with({0.0, 1000.0})};
  split_element(1, 1250.0, beam, layers);
  EXPECT_THAT(layers[0].levels, ElementsAre(0.0, 1000.0));
}

TEST(SplitElement, OfTheFirstAndOfTheLastElement) {
  xFemData beam = beam_of_three();
  std::vector<xSoilLayer> layers;
  split_element(2, 2500.0, beam, layers);
  split_element(0, 500.0, beam, layers);
  EXPECT_THAT(depths(beam), ElementsAre(0.0, 500.0, 1000.0, 2000.0, 2500.0, 3000.0));
  expect_chain(beam);
}

TEST(SplitElement, DoesNothingForAnElementThatIsNotThere) {
  xFemData beam = beam_of_three();
  std::vector<xSoilLayer> layers{layer_with({0.0, 3000.0})};
  for (const int element : {-1, 3, std::numeric_limits<int>::max()})
    split_element(element, 500.0, beam, layers);
  beam.elements[0].setStartNode(7);
  split_element(0, 500.0, beam, layers);
  EXPECT_EQ(beam.nodes.size(), 4U);
  EXPECT_EQ(beam.elements.size(), 3U);
  EXPECT_EQ(layers[0].levels.size(), 2U);
}

TEST(FindOrMakeNode, UsesANodeWithinTheTolerance) {
  xFemData beam = beam_of_three();
  std::vector<xSoilLayer> layers;
  EXPECT_EQ(find_or_make_node(2000.0005, 0.001, beam, layers), 2);
  EXPECT_EQ(find_or_make_node(1999.9995, 0.001, beam, layers), 2);
  EXPECT_EQ(beam.nodes.size(), 4U);
}

TEST(FindOrMakeNode, SplitsTheElementOtherwise) {
  xFemData beam = beam_of_three();
  std::vector<xSoilLayer> layers;
  EXPECT_EQ(find_or_make_node(2000.002, 0.001, beam, layers), 3);
  EXPECT_EQ(find_or_make_node(1999.998, 0.001, beam, layers), 2);
  EXPECT_THAT(depths(beam), ElementsAre(0.0, 1000.0, 1999.998, 2000.0, 2000.002, 3000.0));
  expect_chain(beam);
}

TEST(FindOrMakeNode, SplitsOneElementTwice) {
  xFemData beam = beam_of_three();
  std::vector<xSoilLayer> layers{layer_with({0.0, 1000.0, 2000.0, 3000.0})};
  EXPECT_EQ(find_or_make_node(1200.0, 0.001, beam, layers), 2);
  EXPECT_EQ(find_or_make_node(1700.0, 0.001, beam, layers), 3);
  EXPECT_EQ(find_or_make_node(1400.0, 0.001, beam, layers), 3);
  EXPECT_THAT(depths(beam), ElementsAre(0, 1000, 1200, 1400, 1700, 2000, 3000));
  EXPECT_THAT(layers[0].levels, ElementsAre(0, 1000, 1200, 1400, 1700, 2000, 3000));
  expect_chain(beam);
}

TEST(FindOrMakeNode, FindsNoneOutsideOfTheBeam) {
  xFemData beam = beam_of_three();
  std::vector<xSoilLayer> layers;
  EXPECT_EQ(find_or_make_node(3000.002, 0.001, beam, layers), -1);
  EXPECT_EQ(find_or_make_node(std::numeric_limits<double>::quiet_NaN(), 0.001, beam, layers), -1);
  EXPECT_EQ(beam.nodes.size(), 4U);
}

}  // namespace
}  // namespace ostrel::model
