// SPDX-License-Identifier: Apache-2.0
#include "strain_balance.h"

#include "ferrule/models_testing.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Ferrule::Deform;
using Ferrule::internal::balanced_state;
using Ferrule::internal::DirectedSection;
using Ferrule::internal::Direction;
using Ferrule::internal::direction_at;
using Ferrule::internal::Moment;
using Ferrule::internal::MomentSlice;
using Ferrule::internal::Plane;
using Ferrule::internal::StrainState;
using namespace Ferrule::testing;

/// The plane found from the forces of a plane, which is the only one that has them.
void expect_found_again(ModelOf& model, Direction direction, Plane plane) {
  const DirectedSection& section = model->along(direction).section;
  const double axial = section.respond(plane).axial;
  const Moment moment = section.moment(plane);
  const Deform expected = section.deform(plane);
  const StrainState uniform = MomentSlice(*model, axial).uniform();
  const StrainState state = balanced_state(*model, axial, moment, uniform);
  EXPECT_NEAR(state.deform.d0, expected.d0, 1e-11);
  EXPECT_NEAR(state.deform.d1, expected.d1, 1e-13);
  EXPECT_NEAR(state.deform.d2, expected.d2, 1e-13);
}

TEST(StrainBalance, FindsPlanesInThePlaneOfSymmetry) {
  ModelOf model(pile(16));
  for (const double slope : {1e-7, 1e-6, 5e-6, 2e-5}) {
    for (const double top : {-0.002, -0.001, -0.0002}) {
      expect_found_again(model, {}, {.top = top, .slope = slope});
      expect_found_again(model, {.cosine = -1.0, .sine = 0.0}, {.top = top, .slope = slope});
    }
  }
}

TEST(StrainBalance, FindsPlanesInAnyDirection) {
  ModelOf model(
      Recipe{.outline = {{-100, -200}, {250, -200}, {250, -50}, {60, -50}, {60, 300}, {-100, 300}},
             .bars = {{-60, -160, 8}, {210, -160, 10}, {20, 260, 12}, {-60, 260, 9}}});
  for (int i = 0; i < 16; ++i) {
    for (const double slope : {1e-6, 6e-6}) {
      expect_found_again(model, direction_at(0.2 + pi * i / 8), {.top = -0.002, .slope = slope});
    }
  }
}

TEST(StrainBalance, FindsPlanesBeyondTheLimits) {
  ModelOf model(pile(16));
  expect_found_again(model, {}, {.top = -0.006, .slope = 2e-5});
}

TEST(StrainBalance, FindsPlanesOfPlainConcrete) {
  ModelOf model(Recipe{.outline = regular_polygon(7, 600)});
  for (const double slope : {1e-6, 6e-6, 4e-5}) {
    expect_found_again(model, direction_at(1.0), {.top = -0.002, .slope = slope});
  }
}

// No plane has a moment of 1e12: a plane comes out all the same, and its forces differ.
TEST(StrainBalance, EndsWithoutAPlaneThatHasTheForces) {
  ModelOf model(pile(15));
  const StrainState uniform = MomentSlice(*model, -5e5).uniform();
  const StrainState state = balanced_state(*model, -5e5, {.x = 1e12, .y = 1e11}, uniform);
  EXPECT_LT(state.moment.x, 1e10);
  EXPECT_TRUE(std::isfinite(state.deform.d1));
}

}  // namespace
