// SPDX-License-Identifier: Apache-2.0
#include "directed_section.h"

#include "ferrule/models_testing.h"
#include "support/relative.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using Ferrule::Deform;
using Ferrule::internal::DirectedSection;
using Ferrule::internal::Direction;
using Ferrule::internal::Moment;
using Ferrule::internal::Plane;
using Ferrule::internal::Response;
using namespace Ferrule::testing;
using ostrel::testing::expect_relative;

constexpr double row_area = 400 * pi;  // four bars of radius 10

Recipe plain_rectangle() {
  return {.outline = rectangle(300, 500)};
}

// Strain -0.001 is half the peak: 17 (2 * 0.5 - 0.25) = 12.75 in all 150 000 mm² of concrete.
TEST(DirectedSection, CompressesConcreteAlongTheParabola) {
  ModelOf model(plain_rectangle());
  const DirectedSection& section = model->along({}).section;
  const Response r = section.respond({.top = -0.001});
  expect_relative(r.axial, -12.75 * 150'000);
  expect_relative(r.along, -12.75 * 150'000 * 250);
  // The law's slope is 17 / 0.002 * 2 (1 - 0.5) = 8500.
  expect_relative(r.axial_by_top, 8'500 * 150'000.0);
  expect_relative(r.axial_by_slope, 8'500 * 150'000.0 * 250);
  expect_relative(r.along_by_slope, 8'500 * 300 * 500.0 * 500 * 500 / 3);
}

TEST(DirectedSection, CompressesConcreteOnThePlateau) {
  ModelOf model(plain_rectangle());
  const Response r = model->along({}).section.respond({.top = -0.003});
  expect_relative(r.axial, -17 * 150'000);
  EXPECT_DOUBLE_EQ(r.axial_by_top, 0);
}

TEST(DirectedSection, TakesNoTensionInConcrete) {
  ModelOf model(plain_rectangle());
  const Response r = model->along({}).section.respond({.top = 0.0, .slope = 1e-5});
  EXPECT_DOUBLE_EQ(r.axial, 0);
  EXPECT_DOUBLE_EQ(r.axial_by_top, 0);
}

// Ultimate strain at the top, none at the depth x = 210: a stress block of 17/21 fcd b x with its
// centre at 99/238 x, for the ratio 4/7 of peak and ultimate strain: 1 - r/3 and
// (1/2 - r/3 + r²/12) / (1 - r/3). 17/21 * 17 * 300 * 210 = 867 000; the centre is at 87.352941...
TEST(DirectedSection, HasTheUsualStressBlock) {
  ModelOf model(plain_rectangle());
  const Response r = model->along({}).section.respond({.top = -0.0035, .slope = 0.0035 / 210});
  expect_relative(r.axial, -867'000);
  expect_relative(r.along, -867'000 * 99.0 / 238.0 * 210);
}

// At the depths 50 and 450, the strains 0.0005 and 0.0025 give 100 and, beyond yielding, 400.
TEST(DirectedSection, StretchesBarsElasticallyAndThenPlastically) {
  ModelOf model(round_rectangle());
  const Response r = model->along({}).section.respond({.top = 0.00025, .slope = 5e-6});
  expect_relative(r.axial, row_area * 500);
  expect_relative(r.along, row_area * (100 * 50 + 400.0 * 450));
  expect_relative(r.axial_by_top, row_area * 200'000);
  expect_relative(r.along_by_slope, row_area * 200'000 * 50.0 * 50);
}

// Three bars of 64, 144 and 100 pi mm² at 200 N/mm²: the forces have the lever arms -100, 40 and 140
// to one side, 64 * -100 + 144 * 40 + 100 * 140 = 13 360, and all of them 200 to the other.
TEST(DirectedSection, TakesEachBarOfARowWhereItStands) {
  ModelOf model(Recipe{.outline = rectangle(300, 500),
                       .bars = {{-100, 200, 8}, {40, 200, 12}, {140, 200, 10}}});
  for (const double cosine : {1.0, -1.0}) {
    const DirectedSection& section = model->along({.cosine = cosine, .sine = 0.0}).section;
    const Plane plane{.top = 0.001};
    expect_relative(section.respond(plane).axial, 308 * pi * 200);
    expect_relative(section.moment(plane).x, 308 * pi * 200 * 200);
    expect_relative(section.moment(plane).y, 13'360 * pi * 200);
  }
}

// Half a per mille beyond yielding at a slope of 1000 adds 0.5 to 400.
TEST(DirectedSection, HardensBarsAlike) {
  Recipe recipe = round_rectangle();
  recipe.material.Plastic = 0;
  recipe.material.Slope = 1'000;
  ModelOf model(recipe);
  const Response r = model->along({}).section.respond({.top = 0.0025});
  expect_relative(r.axial, 2 * row_area * 400.5);
  expect_relative(r.axial_by_top, 2 * row_area * 1'000);
  const Response compressed = model->along({}).section.respond({.top = -0.0025});
  expect_relative(compressed.axial, -17 * 150'000 - 2 * row_area * 400.5);
}

TEST(DirectedSection, HasDerivativesThatAgreeWithDifferences) {
  Recipe recipe = pile(7);
  recipe.material.Plastic = 0;
  recipe.material.Slope = 1'000;
  ModelOf model(recipe);
  const DirectedSection& section = model->along({.cosine = 0.6, .sine = 0.8}).section;
  const Plane plane{.top = -0.0031, .slope = 9e-6};
  const Response r = section.respond(plane);
  const double d = 1e-7;
  const Response up = section.respond({.top = plane.top + d, .slope = plane.slope});
  const Response down = section.respond({.top = plane.top - d, .slope = plane.slope});
  expect_relative(r.axial_by_top, (up.axial - down.axial) / (2 * d), 1e-6);
  expect_relative(r.axial_by_slope, (up.along - down.along) / (2 * d), 1e-6);
  const double s = 1e-10;
  const Response more = section.respond({.top = plane.top, .slope = plane.slope + s});
  const Response less = section.respond({.top = plane.top, .slope = plane.slope - s});
  expect_relative(r.axial_by_slope, (more.axial - less.axial) / (2 * s), 1e-6);
  expect_relative(r.along_by_slope, (more.along - less.along) / (2 * s), 1e-6);
}

TEST(DirectedSection, AgreesWithFibresInAnObliqueDirection) {
  const Recipe recipe{
      .outline = {{-100, -200}, {250, -200}, {250, -50}, {60, -50}, {60, 300}, {-100, 300}},
      .bars = {{-60, -160, 8}, {210, -160, 10}, {0, 260, 12}}};
  ModelOf model(recipe);
  const Direction direction{.cosine = 0.28, .sine = -0.96};
  const DirectedSection& section = model->along(direction).section;
  const Plane plane{.top = -0.0033, .slope = 1.4e-5};
  const FibreForces fibres = fibre_forces(recipe, section.deform(plane), 1'000);
  const Moment moment = section.moment(plane);
  expect_relative(section.respond(plane).axial, fibres.N, 1e-5);
  expect_relative(moment.x, fibres.Mx, 1e-5);
  expect_relative(moment.y, fibres.My, 1e-5);
}

// Towards x, the depth 0 is x = -150: strain -0.003 there and 0 at x = 150.
TEST(DirectedSection, GivesThePlaneInTheAxesOfTheSection) {
  ModelOf model(plain_rectangle());
  const DirectedSection& section = model->along({.cosine = 0.0, .sine = 1.0}).section;
  const Deform d = section.deform({.top = -0.003, .slope = 1e-5});
  EXPECT_NEAR(d.strain(-150, 77), -0.003, 1e-17);
  EXPECT_NEAR(d.strain(150, -77), 0.0, 1e-17);
}

TEST(DirectedSection, TakesTwoHalvesAsOneWhole) {
  const Recipe whole = round_rectangle();
  Recipe lower = whole;
  Recipe upper = whole;
  lower.outline = {{-150, -250}, {150, -250}, {150, 30}, {-150, 30}};
  upper.outline = {{-150, 30}, {150, 30}, {150, 250}, {-150, 250}};
  lower.bars = row(4, -200, 10);
  upper.bars = row(4, 200, 10);
  ModelOf one(whole);
  ModelOf two(std::vector<Recipe>{lower, upper});
  const Direction direction{.cosine = -0.8, .sine = 0.6};
  const Plane plane{.top = -0.0035, .slope = 8e-6};
  const Response a = one->along(direction).section.respond(plane);
  const Response b = two->along(direction).section.respond(plane);
  expect_relative(a.axial, b.axial);
  expect_relative(a.along, b.along);
  expect_relative(a.along_by_slope, b.along_by_slope);
  expect_relative(one->along(direction).section.moment(plane).x,
                  two->along(direction).section.moment(plane).x);
}

TEST(DirectedSection, ScalesForcesByTheCoefficientOfTheDomain) {
  ModelOf model(round_rectangle());
  const Plane plane{.top = -0.0035, .slope = 9e-6};
  const Response before = model->along({}).section.respond(plane);
  model.domain(0).setScaleCoefficient(0.25);
  ASSERT_TRUE(model.refresh());
  const Response after = model->along({}).section.respond(plane);
  expect_relative(after.axial, before.axial / 4);
  expect_relative(after.along_by_slope, before.along_by_slope / 4);
}

// Of the bars the farthest one counts; the fibre that turns lies at 3/7 of 500.
TEST(DirectedSection, ListsTheLimitsOfItsStrains) {
  ModelOf model(round_rectangle());
  const DirectedSection& section = model->along({}).section;
  ASSERT_EQ(section.stretch_limits().size(), 1U);
  EXPECT_DOUBLE_EQ(section.stretch_limits()[0].depth, 450);
  EXPECT_DOUBLE_EQ(section.stretch_limits()[0].strain, 0.0675);
  ASSERT_EQ(section.crush_limits().size(), 2U);
  EXPECT_DOUBLE_EQ(section.crush_limits()[0].depth, 0);
  EXPECT_DOUBLE_EQ(section.crush_limits()[0].strain, -0.0035);
  expect_relative(section.crush_limits()[1].depth, 1'500.0 / 7.0);
  EXPECT_DOUBLE_EQ(section.crush_limits()[1].strain, -0.002);
}

TEST(DirectedSection, HasOneLimitWhereTheUltimateStrainIsNotBeyondThePeak) {
  Recipe recipe = round_rectangle();
  recipe.material.Ecu = 0.0015;
  ModelOf model(recipe);
  for (const auto& limit : model->along({}).section.crush_limits()) {
    EXPECT_DOUBLE_EQ(limit.depth, 0);
    EXPECT_DOUBLE_EQ(limit.strain, -0.0015);
  }
}

}  // namespace
