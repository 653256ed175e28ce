// SPDX-License-Identifier: Apache-2.0
//
// The section 300 x 500 of most tests has fcd = 17, fyd = 400 from the strain 0.002 on, and rows of
// four bars, 400 pi mm², at y = 200 and y = -200: at the depths 450 and 50 from the face y = -250,
// which a positive moment compresses. Of the stress block, see
// DirectedSection.HasTheUsualStressBlock: 17/21 fcd b x at the depth 99/238 x.
#include "ferrule/ultimate_section.h"

#include "ferrule/models_testing.h"
#include "support/no_allocation.h"
#include "support/relative.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <vector>

namespace {

using Ferrule::BaseDomain;
using Ferrule::Deform;
using Ferrule::Section;
using namespace Ferrule::testing;
using ostrel::testing::expect_relative;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double row_area = 400 * pi;
constexpr double row_force = row_area * 400;  // yielding
constexpr double block = 17.0 / 21.0 * 17 * 300;
constexpr double block_centre = 99.0 / 238.0;

Recipe tension_row_only() {
  return {.outline = rectangle(300, 500), .bars = row(4, 200, 10)};
}

void expect_capacity(const Recipe& recipe, double N, double angle, double moment,
                     double tolerance = 1e-12) {
  const auto section = make_section(recipe);
  const Capacity c = resist(*section, N, angle);
  ASSERT_TRUE(c.found);
  expect_relative(c.moment, moment, tolerance);
  EXPECT_NEAR(c.second, 0, 1e-6);
  const double Mx = moment * std::cos(angle);
  EXPECT_EQ(balance(*section, N, Mx, 0).answer, 1);
  EXPECT_EQ(balance(*section, N, Mx * (1 - 1e-6), 0).answer, 1);
  EXPECT_NE(balance(*section, N, Mx * (1 + 1e-6), 0).answer, 1);
}

// Balanced point: the top at 0.0035 while the bars at 450 begin to yield, x = 450 * 7 / 11. The
// bars at 50 are shortened by 0.0029 and yield: both rows cancel in N and add up in M.
TEST(UltimateSection, CarriesTheBalancedPoint) {
  const double x = 450 * 7.0 / 11;
  const double moment = block * x * (250 - block_centre * x) + 2 * row_force * 200;
  expect_capacity(round_rectangle(), -block * x, 0, moment);
  expect_capacity(round_rectangle(), -block * x, pi, moment);
}

// Pure bending without compression steel: x = 400 As / (17/21 * 17 * 300) = 121.7...; the bars are
// stretched by 0.0035 * (450 - x) / x = 0.0094, more than 0.002 and less than 0.0675.
TEST(UltimateSection, CarriesPureBendingWithoutCompressionSteel) {
  const double x = row_force / block;
  expect_capacity(tension_row_only(), 0, 0, row_force * (450 - block_centre * x));
}

// Pure bending with as much compression steel: the bars at 50 stay elastic with the stress
// 200 000 * 0.0035 (x - 50) / x = 700 (x - 50) / x, so that
// block x² + (700 - 400) As x - 35 000 As = 0; x = 67.5..., the stress 181.
TEST(UltimateSection, CarriesPureBendingWithCompressionSteel) {
  const double linear = 300 * row_area;
  const double x =
      (-linear + std::sqrt(linear * linear + 4 * block * 35'000 * row_area)) / (2 * block);
  const double compressed = 700 * (x - 50) / x * row_area;
  const double moment = block * x * (250 - block_centre * x) + compressed * 200 + row_force * 200;
  expect_capacity(round_rectangle(), 0, 0, moment);
}

// Bars at the limit 0.0675 and the neutral axis at the depth 10: the top is shortened by
// 0.0675 * 10 / 440, v = 0.767 of the peak strain. Of the parabola 2 v - v² over that depth,
// ∫ = x (v - v²/3), and about the top x² (v/3 - v²/12). The bars at 50 yield in tension.
TEST(UltimateSection, CarriesTensionAtTheLimitOfSteel) {
  const double x = 10;
  const double v = 0.0675 * x / 440 / 0.002;
  const double concrete = 17 * 300 * x * (v - v * v / 3);
  const double about_top = 17 * 300 * x * x * (v / 3 - v * v / 12);
  const auto section = make_section(round_rectangle());
  const double N = 2 * row_force - concrete;
  const Capacity c = resist(*section, N, 0);
  ASSERT_TRUE(c.found);
  expect_relative(c.moment, 250 * concrete - about_top);
  EXPECT_NEAR(c.plane.strain(0, 200), 0.0675, 1e-14);
  EXPECT_NEAR(c.plane.strain(0, -240), 0, 1e-14);
}

// The whole section compressed, turning about the depth 1500/7 with the slope 2e-6. The concrete
// is short of its strength by 17 (2e-6 t / 0.002)², t from that depth on; t runs to 2000/7. The
// bars at 50 yield, those at 450 are shortened by 0.002 - 2e-6 * (450 - 1500/7).
TEST(UltimateSection, CarriesCompressionOfTheWholeSection) {
  const double depth = 1'500.0 / 7;
  const double rest = 2'000.0 / 7;
  const double short_force = 17 * 300 * 1e-6 * std::pow(rest, 3) / 3;
  const double short_moment =
      17 * 300 * 1e-6 * (std::pow(rest, 4) / 4 + (depth - 250) * std::pow(rest, 3) / 3);
  const double far_bars = 200'000 * (0.002 - 2e-6 * (450 - depth)) * row_area;
  const double N = -17 * 150'000 + short_force - row_force - far_bars;
  const double moment = short_moment + row_force * 200 - far_bars * 200;
  expect_capacity(round_rectangle(), N, 0, moment);
}

TEST(UltimateSection, CarriesPureCompressionUpToCrushing) {
  const auto section = make_section(round_rectangle());
  const double crushing = -17 * 150'000 - 2 * row_force;
  const Capacity c = resist(*section, crushing, 0);
  EXPECT_TRUE(c.found);
  EXPECT_NEAR(c.moment, 0, 1);
  EXPECT_EQ(balance(*section, crushing, 0, 0).answer, 1);
  EXPECT_FALSE(resist(*section, crushing * (1 + 1e-8), 0).found);
  EXPECT_EQ(balance(*section, crushing * (1 + 1e-8), 0, 0).answer, 0);
}

TEST(UltimateSection, CarriesPureTensionUpToYielding) {
  const auto section = make_section(round_rectangle());
  const Capacity c = resist(*section, 2 * row_force, pi);
  EXPECT_TRUE(c.found);
  EXPECT_NEAR(c.moment, 0, 1);
  EXPECT_EQ(balance(*section, 2 * row_force, 0, 0).answer, 1);
  EXPECT_FALSE(resist(*section, 2 * row_force * (1 + 1e-7), pi).found);
  EXPECT_EQ(balance(*section, 2 * row_force * (1 + 1e-7), 0, 0).answer, 0);
}

// 17/21 * 17 * 300 x = 5e5 at the ultimate strain.
TEST(UltimateSection, CarriesPlainConcreteUnderCompression) {
  const Recipe plain{.outline = rectangle(300, 500)};
  const double x = 5e5 / block;
  expect_capacity(plain, -5e5, 0, 5e5 * (250 - block_centre * x));
  const auto section = make_section(plain);
  EXPECT_FALSE(resist(*section, 1, 0).found);
  const Capacity none = resist(*section, 0, 0);
  EXPECT_TRUE(none.found);
  EXPECT_DOUBLE_EQ(none.moment, 0);
  EXPECT_EQ(balance(*section, 0, 0, 0).answer, 1);
  EXPECT_EQ(balance(*section, 0, 10, 0).answer, 0);
}

// One bar, one row of area 100 pi: as above, with x = 30.4....
TEST(UltimateSection, CarriesBendingWithASingleBar) {
  const Recipe single{.outline = rectangle(300, 500), .bars = {{0, 200, 10}}};
  const double force = 100 * pi * 400;
  expect_capacity(single, 0, 0, force * (450 - block_centre * force / block));
}

// Angle pi / 2 bends about y: b and h change places, and the single row at x = 100 has the depth
// 250 of 300.
TEST(UltimateSection, BendsInEitherAxis) {
  const Recipe recipe{.outline = rectangle(300, 500), .bars = {{100, 150, 10}, {100, -150, 10}}};
  const auto section = make_section(recipe);
  const double force = 200 * pi * 400;
  const double wide_block = 17.0 / 21.0 * 17 * 500;
  const Capacity c = resist(*section, 0, pi / 2);
  ASSERT_TRUE(c.found);
  expect_relative(c.moment, force * (250 - block_centre * force / wide_block));
}

// A section that stands elsewhere carries the same moments about its own middle: N times the
// distance is added. Up to there the moment of N alone must be within.
TEST(UltimateSection, TakesMomentsAboutTheOrigin) {
  const auto centred = make_section(round_rectangle());
  Recipe moved = round_rectangle();
  for (auto& p : moved.outline) {
    p.y += 40;
  }
  for (auto& bar : moved.bars) {
    bar.y += 40;
  }
  const auto section = make_section(moved);
  const double N = -8e5;
  expect_relative(resist(*section, N, 0).moment, resist(*centred, N, 0).moment + N * 40);
  expect_relative(resist(*section, N, pi).moment, resist(*centred, N, pi).moment - N * 40);
}

// The ring of nine is symmetrical about x alone: bending about x turns the neutral axis. The
// resulting plane has the forces, summed over fibres, and is ultimate.
TEST(UltimateSection, HasNoMomentAtRightAnglesInAnOddRing) {
  const Recipe recipe = pile(9);
  const auto section = make_section(recipe);
  for (const double N : {-4e6, -1e6, 0.0, 1e6}) {
    for (const double angle : {0.0, pi, 0.3}) {
      const Capacity c = resist(*section, N, angle);
      ASSERT_TRUE(c.found);
      EXPECT_NEAR(c.second, 0, 1e-4);
      const FibreForces f = fibre_forces(recipe, c.plane, 800);
      EXPECT_NEAR(f.N, N, 500);
      EXPECT_NEAR(f.Mx, c.moment * std::cos(angle), 2e5);
      EXPECT_NEAR(f.My, c.moment * std::sin(angle), 2e5);
      EXPECT_NEAR(utilisation(recipe, c.plane), 1, 1e-12);
    }
  }
}

// With the bars of the ring mirrored, so is the neutral axis: the moment stays.
TEST(UltimateSection, CarriesAsMuchInBothDirectionsOfAMirroredRing) {
  const auto section = make_section(pile(9));
  expect_relative(resist(*section, -5e5, 0).moment, resist(*section, -5e5, pi).moment, 1e-12);
}

TEST(UltimateSection, CarriesAnLShapedSectionInEveryDirection) {
  const Recipe recipe{
      .outline = {{-100, -200}, {250, -200}, {250, -50}, {60, -50}, {60, 300}, {-100, 300}},
      .bars = {{-60, -160, 8}, {210, -160, 10}, {20, 260, 12}, {-60, 260, 9}, {210, -90, 10}}};
  const auto section = make_section(recipe);
  int found = 0;
  for (const double N : {-8e5, -2e5, 1e5}) {
    for (int i = 0; i < 12; ++i) {
      const double angle = pi * i / 6;
      const Capacity c = resist(*section, N, angle);
      if (!c.found) continue;
      ++found;
      const FibreForces f = fibre_forces(recipe, c.plane, 800);
      EXPECT_NEAR(f.N, N, 100);
      EXPECT_NEAR(f.Mx, c.moment * std::cos(angle), 3e4);
      EXPECT_NEAR(f.My, c.moment * std::sin(angle), 3e4);
      EXPECT_NEAR(utilisation(recipe, c.plane), 1, 1e-12);
    }
  }
  EXPECT_GE(found, 24);
}

// Flange 600 x 150 on a web 300 x 350, as one polygon and as two components.
TEST(UltimateSection, CarriesTwoComponentsAsOne) {
  Recipe whole{.outline = {{-150, -250},
                           {150, -250},
                           {150, 100},
                           {300, 100},
                           {300, 250},
                           {-300, 250},
                           {-300, 100},
                           {-150, 100}},
               .bars = row(4, -200, 10)};
  Recipe web = whole;
  web.outline = {{-150, -250}, {150, -250}, {150, 100}, {-150, 100}};
  Recipe flange{.outline = {{-300, 100}, {300, 100}, {300, 250}, {-300, 250}}};
  const auto one = make_section(whole);
  const auto two = make_section(web);
  two->Add_Domain(make_domain(flange).release());
  EXPECT_EQ(two->getNumComponents(), 2);
  for (const double N : {-3e6, -1e6, 0.0}) {
    for (const double angle : {0.0, pi, 1.0}) {
      const Capacity a = resist(*one, N, angle);
      const Capacity b = resist(*two, N, angle);
      EXPECT_EQ(a.found, b.found);
      EXPECT_NEAR(a.moment, b.moment, 1e-3);
    }
  }
}

TEST(UltimateSection, TakesAClockwiseOutlineAlike) {
  Recipe recipe = round_rectangle();
  const double moment = resist(*make_section(recipe), -5e5, 0).moment;
  std::reverse(recipe.outline.begin(), recipe.outline.end());
  expect_relative(resist(*make_section(recipe), -5e5, 0).moment, moment);
}

// Where one row of bars does not yet yield under the peak strain, planes with a slope go beyond
// uniform compression; see UltimatePath.GoesBelowUniformCompressionWhereBarsDoNotYetYield. With
// k = 1e-6 the bars have 432.857..., the concrete is short of 17 (k t / 0.002)².
TEST(UltimateSection, CarriesMoreThanUniformCompressionWhereBarsDoNotYetYield) {
  Recipe recipe{.outline = rectangle(300, 500), .bars = row(4, -200, 10)};
  recipe.material.Fyk = 500;
  recipe.material.GammaS = 1.15;
  const auto section = make_section(recipe);
  const double depth = 1'500.0 / 7;
  const double rest = 2'000.0 / 7;
  const double k = 1e-6;
  const double bars = row_area * 200'000 * (0.002 + k * (depth - 50));
  const double lack = 17 * 300 * std::pow(k / 0.002, 2);
  const double N = -17 * 150'000 + lack * std::pow(rest, 3) / 3 - bars;
  const double M =
      lack * (std::pow(rest, 4) / 4 + (depth - 250) * std::pow(rest, 3) / 3) + bars * 200;
  EXPECT_EQ(balance(*section, N, M, 0).answer, 1);
  EXPECT_NE(balance(*section, N, M * 0.9, 0).answer, 1);
  EXPECT_NE(balance(*section, N, -M, 0).answer, 1);
  EXPECT_GT(resist(*section, N, 0).moment, M);
  EXPECT_FALSE(resist(*section, N, pi).found);
  // All bars at their yield stress and all concrete at its strength is out of reach.
  EXPECT_FALSE(resist(*section, -17 * 150'000 - row_area * 500 / 1.15, 0).found);
}

// Bars on one side alone: at crushing the moment is that of the bars, -400 As at y = -200, and
// none at all is out of reach.
TEST(UltimateSection, CarriesCrushingOnlyWithTheMomentOfItsBars) {
  const auto section = make_section({.outline = rectangle(300, 500), .bars = row(4, -200, 10)});
  const double crushing = -17 * 150'000 - row_force;
  expect_relative(resist(*section, crushing, 0).moment, row_force * 200, 1e-9);
  EXPECT_FALSE(resist(*section, crushing, pi).found);
  EXPECT_EQ(balance(*section, crushing, row_force * 200, 0).answer, 1);
  EXPECT_EQ(balance(*section, crushing, 0, 0).answer, 0);
}

TEST(UltimateSection, BalancesForcesByAPlaneWithinTheLimits) {
  const Recipe recipe = round_rectangle();
  const auto section = make_section(recipe);
  for (const double N : {-2e6, -5e5, 0.0, 5e5}) {
    const double most = resist(*section, N, 0).moment;
    for (const double share : {-0.99, -0.5, 0.0, 0.3, 0.999}) {
      const Balance b = balance(*section, N, share * most, 0);
      ASSERT_EQ(b.answer, 1);
      const FibreForces f = fibre_forces(recipe, b.plane, 500);
      EXPECT_NEAR(f.N, N, 200);
      EXPECT_NEAR(f.Mx, share * most, 5e4);
      EXPECT_LE(utilisation(recipe, b.plane), 1 + 1e-12);
    }
  }
}

TEST(UltimateSection, IgnoresTheStart) {
  const auto section = make_section(pile(15));
  const Balance expected = balance(*section, -5e5, 3e8, 1e8);
  for (const Deform start : {Deform{1, 2, 3}, Deform{nan, infinite, -1}, Deform{-1e-3, 1e-6, 0}}) {
    Deform plane = start;
    EXPECT_EQ(section->solveEquilibrium(-5e5, 3e8, 1e8, plane, nan, -7), expected.answer);
    EXPECT_DOUBLE_EQ(plane.d0, expected.plane.d0);
    EXPECT_DOUBLE_EQ(plane.d1, expected.plane.d1);
    EXPECT_DOUBLE_EQ(plane.d2, expected.plane.d2);
  }
}

// Outside: the ultimate plane on the side of the moment, here with the face y = -250 at 0.0035.
TEST(UltimateSection, LeavesTheUltimatePlaneOutside) {
  const auto section = make_section(round_rectangle());
  const Capacity c = resist(*section, -5e5, 0);
  const Balance b = balance(*section, -5e5, 2 * c.moment, 0);
  EXPECT_EQ(b.answer, 0);
  EXPECT_DOUBLE_EQ(b.plane.d0, c.plane.d0);
  EXPECT_DOUBLE_EQ(b.plane.d1, c.plane.d1);
  EXPECT_NEAR(b.plane.strain(0, -250), -0.0035, 1e-16);
  EXPECT_GT(b.plane.d1, 0);
  EXPECT_LT(balance(*section, -5e5, -2 * c.moment, 0).plane.d1, 0);
}

// Beyond the axial capacity: (N / A, M / J) with A = 150 000 and J = 3.125e9, 1.125e9.
TEST(UltimateSection, LeavesTheElasticPlaneOutOfReach) {
  const auto section = make_section(round_rectangle());
  for (const double N : {3e6, -9e6}) {
    const Balance b = balance(*section, N, 6.25e9, 2.25e9);
    EXPECT_EQ(b.answer, 0);
    EXPECT_DOUBLE_EQ(b.plane.d0, N / 150'000);
    EXPECT_DOUBLE_EQ(b.plane.d1, 2);
    EXPECT_DOUBLE_EQ(b.plane.d2, 2);
  }
}

// The slack of 1e-9 of 17 * 150 000 + 800 As = 3.56e6 N is 0.0036 N.
TEST(UltimateSection, AllowsNoMoreThanTheRoundingSlack) {
  const auto section = make_section(round_rectangle());
  EXPECT_EQ(balance(*section, 2 * row_force + 0.003, 0, 0).answer, 1);
  EXPECT_EQ(balance(*section, 2 * row_force + 0.004, 0, 0).answer, 0);
}

TEST(UltimateSection, AnswersThatItCannotTellWithoutNumbers) {
  const auto section = make_section(round_rectangle());
  for (const double bad : {nan, infinite, -infinite}) {
    EXPECT_EQ(balance(*section, bad, 0, 0).answer, -1);
    EXPECT_EQ(balance(*section, 0, bad, 0).answer, -1);
    const Balance b = balance(*section, 0, 0, bad);
    EXPECT_EQ(b.answer, -1);
    EXPECT_DOUBLE_EQ(b.plane.d0, 0);
    EXPECT_FALSE(resist(*section, bad, 0).found);
    EXPECT_FALSE(resist(*section, 0, bad).found);
    EXPECT_DOUBLE_EQ(resist(*section, 0, bad).moment, 0);
  }
}

TEST(UltimateSection, StandsForcesOfAnySize) {
  const auto section = make_section(round_rectangle());
  constexpr double largest = std::numeric_limits<double>::max();
  EXPECT_EQ(balance(*section, 0, largest, largest).answer, 0);
  EXPECT_EQ(balance(*section, largest, largest, -largest).answer, 0);
  EXPECT_EQ(balance(*section, 0, 1e-320, 0).answer, 1);
  EXPECT_FALSE(resist(*section, -largest, 0).found);
}

TEST(UltimateSection, LeavesThePlaneAloneWhereNothingResists) {
  const auto section = make_section(round_rectangle());
  double moment = 5;
  double second = 5;
  Deform work{1, 2, 3};
  EXPECT_FALSE(section->resistingMoment(1e9, 0, moment, second, 1e-7, work, 20, false));
  EXPECT_DOUBLE_EQ(moment, 0);
  EXPECT_DOUBLE_EQ(second, 0);
  EXPECT_DOUBLE_EQ(work.d1, 2);
}

TEST(UltimateSection, ResistsNothingWithoutComponents) {
  Section section;
  EXPECT_FALSE(resist(section, 0, 0).found);
  EXPECT_EQ(balance(section, 0, 0, 0).answer, -1);
}

TEST(UltimateSection, ResistsNothingWithoutAMaterialOrAnOutline) {
  std::vector<Recipe> recipes(6, round_rectangle());
  recipes[0].material.GammaC = 0;
  recipes[1].material.GammaS = 0;
  recipes[2].material.Ecu = nan;
  recipes[3].outline.resize(2);
  recipes[4].outline = {{0, 0}, {300, 0}, {600, 0}};
  recipes[5].outline[2].x = nan;
  for (const Recipe& recipe : recipes) {
    const auto section = make_section(recipe);
    EXPECT_FALSE(resist(*section, -1e5, 0).found);
    EXPECT_EQ(balance(*section, -1e5, 1e6, 0).answer, -1);
  }
}

// A partial factor of zero: the growth of reinforcement still sees the more strained face.
TEST(UltimateSection, LeavesTheElasticPlaneWithoutAMaterial) {
  Recipe recipe = round_rectangle();
  recipe.material.GammaS = 0;
  const Balance b = balance(*make_section(recipe), -3e6, 6.25e9, 0);
  EXPECT_DOUBLE_EQ(b.plane.d0, -20);
  EXPECT_DOUBLE_EQ(b.plane.d1, 2);
}

// A cover of more than half the depth puts the rows on each other's sides, or outside: an answer
// is had all the same.
TEST(UltimateSection, StandsBarsOutsideOfTheConcrete) {
  for (const double y : {250.0, 300.0, 2'000.0}) {
    const auto section =
        make_section({.outline = rectangle(300, 500), .bars = row(4, y, 10) + row(4, -y, 10)});
    for (const double N : {-2e6, 0.0, 5e5, 9e5}) {
      const Capacity c = resist(*section, N, 0);
      EXPECT_TRUE(c.found);
      EXPECT_TRUE(std::isfinite(c.moment));
      EXPECT_EQ(balance(*section, N, c.moment / 2, 0).answer, 1);
    }
  }
}

// Without hardening of the steel and with a bow tie for an outline there is no right answer, but
// there is one.
TEST(UltimateSection, StandsAnOutlineThatCrossesItself) {
  const auto section = make_section(
      {.outline = {{-150, -250}, {150, -250}, {-150, 200}, {150, 250}}, .bars = row(4, -200, 10)});
  for (const double N : {-1e6, -1e5, 0.0, 1e5}) {
    EXPECT_TRUE(std::isfinite(resist(*section, N, 0).moment));
    EXPECT_TRUE(std::isfinite(balance(*section, N, 1e7, 2e7).plane.d1));
  }
}

TEST(UltimateSection, AnswersAnewWhenBarsChange) {
  const auto section = make_section(tension_row_only());
  const double before = resist(*section, 0, 0).moment;
  auto* domain = static_cast<Ferrule::ClsDomain*>(section->getComponent(0));
  const std::vector<Ferrule::SteelBar> none;
  domain->setBars(0, none.data());
  EXPECT_DOUBLE_EQ(resist(*section, 0, 0).moment, 0);
  std::vector<Ferrule::SteelBar> bars(4);
  for (auto& bar : bars) {
    bar.setPosR(0, 200, 10);
  }
  domain->setBars(4, bars.data());
  expect_relative(resist(*section, 0, 0).moment, before);
}

class CountedDomain final : public BaseDomain {
public:
  explicit CountedDomain(int& deleted) : deleted_(deleted) {}
  CountedDomain(const CountedDomain&) = delete;
  CountedDomain& operator=(const CountedDomain&) = delete;
  ~CountedDomain() override { ++deleted_; }

private:
  int& deleted_;
};

TEST(UltimateSection, OwnsItsComponents) {
  int deleted = 0;
  {
    Section section;
    auto* domain = new CountedDomain(deleted);
    section.Add_Domain(domain);
    section.Add_Domain(domain);
    section.Add_Domain(nullptr);
    EXPECT_EQ(section.getNumComponents(), 1);
    EXPECT_EQ(section.getComponent(0), domain);
    EXPECT_EQ(section.getComponent(1), nullptr);
    EXPECT_EQ(section.getComponent(-1), nullptr);
  }
  EXPECT_EQ(deleted, 1);
}

TEST(UltimateSection, AsksForNoMemoryOnceItHasAnswered) {
  for (const int bars : {16, 15}) {
    const auto section = make_section(pile(bars));
    resist(*section, 0, 0.5);
    resist(*section, 0, 0);
    resist(*section, 0, pi);
    const ostrel::testing::AllocationCount allocations;
    for (int i = 0; i < 10; ++i) {
      const double N = -1e6 * i + 1e6;
      resist(*section, N, 0);
      resist(*section, N, pi);
      resist(*section, N, 0.3 * i);
      balance(*section, N, 1e8, 0);
      balance(*section, N, 1e8, 2e8);
      balance(*section, N, 1e10, 0);
    }
    EXPECT_EQ(allocations.since(), 0) << bars;
  }
}

TEST(AllocationCount, TellsOfAnAllocation) {
  const ostrel::testing::AllocationCount allocations;
  const auto memory = std::make_unique<std::vector<double>>(100, 1.0);
  EXPECT_DOUBLE_EQ(memory->back(), 1.0);
  EXPECT_EQ(allocations.since() >= 2, ostrel::testing::allocations_are_counted);
}

}  // namespace
