// SPDX-License-Identifier: Apache-2.0
#include "geotech/rotation_point.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>

namespace ostrel::geotech {
namespace {

using ::testing::ElementsAre;

std::vector<info_Fem_anchor> anchors_at(const std::vector<double>& levels) {
  std::vector<info_Fem_anchor> anchors;
  for (const double level : levels) {
    anchors.emplace_back().level = level;
  }
  return anchors;
}

// Springs by elevation and force, from node 20 on.
std::map<int, Fsoil> springs(const std::vector<std::pair<double, double>>& rows) {
  std::map<int, Fsoil> by_node;
  int node = 20;
  for (const auto& [elevation, force] : rows) {
    Fsoil& spring = by_node[node++];
    spring.elevation = elevation;
    spring.springForce = force;
  }
  return by_node;
}

TEST(AnchorLevels, AreTakenOnceEach) {
  EXPECT_THAT(anchor_levels(anchors_at({-1000, -4000, -1000.00005, -4000})),
              ElementsAre(-1000, -4000));
  EXPECT_TRUE(anchor_levels({}).empty());
}

TEST(AnchorLevels, AreComparedWithThoseTakenAlone) {
  // The second lies 0.00008 mm from the first and is not taken; the third 0.00016 mm.
  EXPECT_THAT(anchor_levels(anchors_at({-1000, -1000.00008, -1000.00016})),
              ElementsAre(-1000, -1000.00016));
}

TEST(SignChange, LiesOnTheLineBetweenTwoSprings) {
  // From 50 at -7000 to -150 at -8000: a quarter of the way.
  const auto soil = springs({{-6000, 100}, {-7000, 50}, {-8000, -150}, {-9000, -100}});
  EXPECT_DOUBLE_EQ(sign_change(soil), -7250.0);
}

TEST(SignChange, GoesByTheFirstOfSeveral) {
  EXPECT_DOUBLE_EQ(sign_change(springs({{-6000, -100}, {-7000, 100}, {-8000, -100}})), -6500.0);
}

TEST(SignChange, LiesAtASpringThatCarriesNothing) {
  EXPECT_DOUBLE_EQ(sign_change(springs({{-6000, 100}, {-7000, 0}, {-8000, 100}})), -7000.0);
}

TEST(SignChange, LiesAtAFirstSpringThatCarriesNothingWhateverFollows) {
  EXPECT_DOUBLE_EQ(sign_change(springs({{-6000, 0}, {-7000, 100}, {-8000, -100}})), -6000.0);
}

TEST(SignChange, IsTakenAtTheLowestSpringWhereThereIsNone) {
  EXPECT_DOUBLE_EQ(sign_change(springs({{-6000, 100}, {-9000, 50}, {-8000, 10}})), -9000.0);
  EXPECT_DOUBLE_EQ(sign_change(springs({{-6000, -100}})), -6000.0);
}

TEST(SignChange, OfAForceThatIsNoneIsNowhere) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(std::isnan(sign_change(springs({{-6000, 100}, {-7000, nan}, {-8000, -100}}))));
  EXPECT_TRUE(std::isnan(sign_change(springs({{-6000, nan}}))));
}

TEST(RotationPoint, IsTheOneLevelOfTheAnchors) {
  const auto soil = springs({{-6000, 100}, {-7000, -100}});
  EXPECT_EQ(rotation_point(anchors_at({-1000, -1000.00005}), soil), -1000.0);
  EXPECT_EQ(rotation_point(anchors_at({-1000}), {}), -1000.0);
}

TEST(RotationPoint, IsTheSignChangeOfTheSpringsWithoutAnchors) {
  EXPECT_EQ(rotation_point({}, springs({{-6000, 100}, {-7000, -100}})), -6500.0);
}

TEST(RotationPoint, IsNowhereWithTwoLevelsOrWithNothing) {
  const auto soil = springs({{-6000, 100}, {-7000, -100}});
  EXPECT_EQ(rotation_point(anchors_at({-1000, -1000.0002}), soil), std::nullopt);
  EXPECT_EQ(rotation_point({}, {}), std::nullopt);
}

}  // namespace
}  // namespace ostrel::geotech
