// SPDX-License-Identifier: Apache-2.0
#include "ostrel/fem_data.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

xElemData filled_element() {
  xElemData element;
  element.setStartNode(1);
  element.setEndNode(2);
  element.setL(3.0);
  element.setE(4.0);
  element.setArea(5.0);
  element.setJ(6.0);
  return element;
}

void expect_zero(const xElemData& element) {
  EXPECT_EQ(element.getStartNode(), 0);
  EXPECT_EQ(element.getEndNode(), 0);
  EXPECT_EQ(element.getL(), 0.0);
  EXPECT_EQ(element.getE(), 0.0);
  EXPECT_EQ(element.getArea(), 0.0);
  EXPECT_EQ(element.getJ(), 0.0);
}

TEST(ElemData, KeepsEachNumber) {
  const xElemData element = filled_element();
  EXPECT_EQ(element.getStartNode(), 1);
  EXPECT_EQ(element.getEndNode(), 2);
  EXPECT_EQ(element.getL(), 3.0);
  EXPECT_EQ(element.getE(), 4.0);
  EXPECT_EQ(element.getArea(), 5.0);
  EXPECT_EQ(element.getJ(), 6.0);
}

TEST(ElemData, IsZeroWhenNewResetOrCleared) {
  expect_zero(xElemData());
  xElemData element = filled_element();
  element.reset();
  expect_zero(element);
  element = filled_element();
  element.clear();
  expect_zero(element);
}

TEST(FemData, StartsEmptyWithTheFirstSpringReducedToNineTenths) {
  const xFemData data;
  EXPECT_TRUE(data.nodes.empty());
  EXPECT_TRUE(data.elements.empty());
  EXPECT_EQ(data.getDembin(), 0.0);
  EXPECT_EQ(data.getDembinc(), 0.0);
  EXPECT_EQ(data.getJtsoil(), 0);
  EXPECT_EQ(data.getRedfac(), 0.9);
}

TEST(FemData, ResetsEveryMember) {
  xFemData data;
  data.nodes.emplace_back(0.0, 1.0);
  data.elements.push_back(filled_element());
  data.constrDof0[0] = data.constrDof1[1] = data.constrDof2[2] = 1.0;
  data.springDof0[3] = data.springDof1[4] = data.springDof2[5] = 1.0;
  data.setDembin(1.0);
  data.setDembinc(2.0);
  data.setJtsoil(3);
  data.setRedfac(0.5);

  const xFemData copy = data;
  EXPECT_EQ(copy.nodes.size(), 1U);
  EXPECT_EQ(copy.springDof2.at(5), 1.0);
  EXPECT_EQ(copy.getDembin(), 1.0);
  EXPECT_EQ(copy.getDembinc(), 2.0);
  EXPECT_EQ(copy.getJtsoil(), 3);
  EXPECT_EQ(copy.getRedfac(), 0.5);

  data.reset();
  EXPECT_TRUE(data.nodes.empty());
  EXPECT_TRUE(data.elements.empty());
  for (const auto* entries : {&data.constrDof0, &data.constrDof1, &data.constrDof2,
                              &data.springDof0, &data.springDof1, &data.springDof2})
    EXPECT_TRUE(entries->empty());
  EXPECT_EQ(data.getDembin(), 0.0);
  EXPECT_EQ(data.getDembinc(), 0.0);
  EXPECT_EQ(data.getJtsoil(), 0);
  EXPECT_EQ(data.getRedfac(), 0.9);
}

}  // namespace
