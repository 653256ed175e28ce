// SPDX-License-Identifier: Apache-2.0
// Solutions of beams that can be written down.
#include "ostrel/fem_solver.h"
#include "support/relative.h"
#include "support/spring_beam.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>

namespace {

using ostrel::testing::expect_relative;
using ostrel::testing::reference_piles;
using ostrel::testing::spring;
using ostrel::testing::SpringBeam;
using ostrel::testing::straight_beam;

constexpr double E = 30'000.0;
constexpr double J = 2e10;

xCombRes solved(SpringBeam beam) {
  xCombRes result;
  EXPECT_EQ(beam.solve(result), ostrel::ok);
  return result;
}

SpringBeam cantilever(std::int32_t elements, double length) {
  SpringBeam beam = straight_beam(elements, length / elements, E, 5e5, J);
  beam.clamp(elements);
  beam.options.linear = true;
  return beam;
}

class CantileverOf : public ::testing::TestWithParam<std::int32_t> {};

// P at the head: P L³ / (3 E J), P L² / (2 E J), the shear P all along and P L at the foot. The moment
// of a cut is E J times the second derivative of the displacement, which here is positive.
TEST_P(CantileverOf, BendsUnderAForceAtItsHead) {
  constexpr double L = 5'000.0;
  constexpr double P = 1e5;
  SpringBeam beam = cantilever(GetParam(), L);
  beam.push(0, P);
  const xCombRes result = solved(beam);
  expect_relative(result.displacements[0].y, P * L * L * L / (3.0 * E * J), 1e-11);
  expect_relative(result.displacements[0].r, -P * L * L / (2.0 * E * J), 1e-11);
  const xPointStress& foot = result.beamStress.back().points[1];
  expect_relative(foot.M, P * L, 1e-9);
  expect_relative(foot.T, P, 1e-9);
  EXPECT_NEAR(result.beamStress.front().points[0].M, 0.0, 1e-9 * P * L);
  const xFemNodeData& support = result.nodalForces.rbegin()->second;
  expect_relative(support.y, -P, 1e-9);
}

// q all along: q L⁴ / (8 E J), q L³ / (6 E J), q L and q L² / 2 at the foot.
TEST_P(CantileverOf, BendsUnderAUniformLoad) {
  constexpr double L = 5'000.0;
  constexpr double q = 20.0;
  SpringBeam beam = cantilever(GetParam(), L);
  xFemLoadCond& soil = beam.conditions.emplace_back("soil");
  for (std::int32_t e = 0; e < GetParam(); ++e) {
    soil.pressures[e] = PressAtEnds(q, q);
  }
  const xCombRes result = solved(beam);
  expect_relative(result.displacements[0].y, q * L * L * L * L / (8.0 * E * J), 1e-11);
  expect_relative(result.displacements[0].r, -q * L * L * L / (6.0 * E * J), 1e-11);
  const xPointStress& foot = result.beamStress.back().points[1];
  expect_relative(foot.M, q * L * L / 2.0, 1e-9);
  expect_relative(foot.T, q * L, 1e-9);
}

// Weight a per length: a L² / (2 E A) at the head, a L in compression at the foot.
TEST_P(CantileverOf, ShortensUnderItsWeight) {
  constexpr double L = 5'000.0;
  constexpr double a = 12.5;
  SpringBeam beam = cantilever(GetParam(), L);
  xFemLoadCond& weight = beam.conditions.emplace_back("weight");
  for (std::int32_t e = 0; e < GetParam(); ++e) {
    weight.pressures[e].aStart = weight.pressures[e].aEnd = a;
  }
  const xCombRes result = solved(beam);
  expect_relative(result.displacements[0].x, a * L * L / (2.0 * E * 5e5), 1e-11);
  expect_relative(result.beamStress.back().points[1].N, -a * L, 1e-9);
  EXPECT_NEAR(result.beamStress.front().points[0].N, 0.0, 1e-6);
}

INSTANTIATE_TEST_SUITE_P(Elements, CantileverOf, ::testing::Values(1, 2, 7, 12, 20));

// A beam of length l on springs that never yield, free at both ends, pushed by P at its head.
//
//     k = modulus times spacing,  lambda = (k / (4 E J))^(1/4)
//
//     y(x) = 2 P lambda / k (sinh(lambda l) cos(a) cosh(b) - sin(lambda l) cosh(a) cos(b)) / D
//     M(x) = E J y'' = P / lambda (sinh(lambda l) sin(a) sinh(b) - sin(lambda l) sinh(a) sin(b)) / D
//
//     D = sinh²(lambda l) - sin²(lambda l),  a = lambda x,  b = lambda (l - x)
//
// Hetenyi, Beams on Elastic Foundation (1946), finite beam with a concentrated force at one end.
// Both products solve E J y'''' + k y = 0; their second derivatives vanish at x = l, with b = 0, and
// at x = 0, with a = 0, so no moment is left at either end; at x = 0 the third derivatives add up to
// P / (E J).
struct EndLoaded {
  double P = 1e5;
  double k = 10.0;
  double l = 10'000.0;
  double lambda = 3e-4;

  double second_moment() const { return k / (4.0 * E * std::pow(lambda, 4)); }
  double denominator() const {
    return std::pow(std::sinh(lambda * l), 2) - std::pow(std::sin(lambda * l), 2);
  }
  double displacement(double x) const {
    const double a = lambda * x;
    const double b = lambda * (l - x);
    return 2.0 * P * lambda / k
         * (std::sinh(lambda * l) * std::cos(a) * std::cosh(b)
            - std::sin(lambda * l) * std::cosh(a) * std::cos(b))
         / denominator();
  }
  double moment(double x) const {
    const double a = lambda * x;
    const double b = lambda * (l - x);
    return P / lambda
         * (std::sinh(lambda * l) * std::sin(a) * std::sinh(b)
            - std::sin(lambda * l) * std::sinh(a) * std::sin(b))
         / denominator();
  }

  SpringBeam beam(std::int32_t elements) const {
    SpringBeam made = straight_beam(elements, l / elements, E, 5e5, second_moment());
    made.data.setRedfac(1.0);
    made.data.constrDof0[elements] = 0.0;
    made.spacing = 1'000.0;
    for (std::int32_t n = 0; n <= elements; ++n) {
      made.springs[n] = spring(k / made.spacing, 1e6);
    }
    made.push(0, P);
    return made;
  }
};

// The largest differences to the closed form, as parts of the displacement and of the moment that
// are largest.
struct Difference {
  double displacement = 0.0;
  double moment = 0.0;
};

Difference difference(const EndLoaded& form, std::int32_t elements) {
  const xCombRes result = solved(form.beam(elements));
  Difference found;
  double largest_moment = 0.0;
  for (std::int32_t n = 0; n < elements; ++n) {
    const auto node = static_cast<std::size_t>(n);
    const double x = n * form.l / elements;
    const double y = form.displacement(x);
    const double M = form.moment(x);
    largest_moment = std::max(largest_moment, std::abs(M));
    found.displacement = std::max(found.displacement, std::abs(result.displacements[node].y - y));
    found.moment = std::max(found.moment, std::abs(result.beamStress[node].points[0].M - M));
  }
  found.displacement /= form.displacement(0.0);
  found.moment /= largest_moment;
  return found;
}

// Springs at the nodes in place of springs all along leave out, at an end, the moment k y h² / 12 of
// the last half length h. It would move the end by 2 lambda² / k times that: by y (lambda h)² / 6;
// what is left out between is of the same order. With lambda l = 3 and 80 elements (lambda h)² is
// 1.4e-3.
TEST(BeamOnSprings, BendsAsHetenyiSays) {
  const EndLoaded form;
  for (const std::int32_t elements : {20, 40, 80, 160}) {
    const double step = form.lambda * form.l / elements;
    const Difference found = difference(form, elements);
    EXPECT_LT(found.displacement, step * step / 2.0) << elements;
    EXPECT_LT(found.moment, step * step) << elements;
  }
}

// Half the length of an element leaves a quarter of the difference.
TEST(BeamOnSprings, ComesNearerWithTheSquareOfTheMesh) {
  const EndLoaded form;
  const Difference coarse = difference(form, 40);
  const Difference fine = difference(form, 80);
  EXPECT_NEAR(coarse.displacement / fine.displacement, 4.0, 0.1);
  EXPECT_NEAR(coarse.moment / fine.moment, 4.0, 0.1);
}

// A long beam does not know of its other end: 2 P lambda / k exp(-a) cos(a), and exp(-12) is 6e-6.
TEST(BeamOnSprings, BendsAsALongBeamWhereItIsOne) {
  EndLoaded form;
  form.l = 40'000.0;
  const xCombRes result = solved(form.beam(400));
  for (const std::size_t node : {0U, 10U, 30U, 60U, 100U}) {
    const double a = form.lambda * 100.0 * static_cast<double>(node);
    const double y = 2.0 * form.P * form.lambda / form.k * std::exp(-a) * std::cos(a);
    EXPECT_NEAR(result.displacements[node].y, y, 0.5 * 0.03 * 0.03 * 6.0) << node;
  }
  // The soil takes the whole force.
  double sum = 0.0;
  for (const auto& entry : result.soilForces) {
    sum += entry.second.springForce;
  }
  expect_relative(sum, -form.P, 1e-9);
}

// The first spring carries 0.9 of what belongs to it; with all the rest rigid that is what it is.
TEST(BeamOnSprings, HasNineTenthsOfTheSpringAtTheExcavation) {
  SpringBeam beam = EndLoaded{}.beam(20);
  beam.data.setRedfac(xFemData{}.getRedfac());
  for (std::int32_t n = 1; n <= 20; ++n) {
    beam.data.constrDof1[n] = 0.0;
  }
  for (std::int32_t n = 0; n <= 20; ++n) {
    beam.data.constrDof2[n] = 0.0;
  }
  const xCombRes result = solved(beam);
  // 12 E J / h³ beside 0.9 k h / 2.
  const double h = 500.0;
  const double stiffness = 12.0 * E * EndLoaded{}.second_moment() / (h * h * h) + 0.45 * 10.0 * h;
  expect_relative(result.displacements[0].y, 1e5 / stiffness, 1e-11);
}

// A wall pushed the other way moves the other way, to the last bit.
TEST(BeamOnSprings, MirrorsTheResultOfAMirroredLoad) {
  const SpringBeam wall = reference_piles(80);
  SpringBeam mirrored = wall;
  for (auto& entry : mirrored.conditions.front().pressures) {
    entry.second.pStart = -entry.second.pStart;
    entry.second.pEnd = -entry.second.pEnd;
  }
  const xCombRes one = solved(wall);
  const xCombRes other = solved(mirrored);
  for (std::size_t n = 0; n < one.displacements.size(); ++n) {
    EXPECT_EQ(other.displacements[n].x, one.displacements[n].x);
    EXPECT_EQ(other.displacements[n].y, -one.displacements[n].y);
    EXPECT_EQ(other.displacements[n].r, -one.displacements[n].r);
  }
}

// In a unit of force of 1/1024 N all stiffnesses and loads are 1024 times as large and the
// displacements the same, to the last bit.
TEST(BeamOnSprings, DoesNotDependOnTheUnitOfForce) {
  const SpringBeam wall = reference_piles(80);
  SpringBeam scaled = wall;
  for (xElemData& element : scaled.data.elements) {
    element.setE(1024.0 * element.getE());
  }
  for (auto& entry : scaled.springs) {
    entry.second.modulus *= 1024.0;
  }
  for (xFemLoadCond& condition : scaled.conditions) {
    for (auto& entry : condition.pressures) {
      PressAtEnds& p = entry.second;
      p.pStart *= 1024.0;
      p.pEnd *= 1024.0;
      p.aStart *= 1024.0;
      p.aEnd *= 1024.0;
    }
  }
  const xCombRes one = solved(wall);
  const xCombRes other = solved(scaled);
  for (std::size_t n = 0; n < one.displacements.size(); ++n) {
    EXPECT_EQ(other.displacements[n].x, one.displacements[n].x);
    EXPECT_EQ(other.displacements[n].y, one.displacements[n].y);
    EXPECT_EQ(other.displacements[n].r, one.displacements[n].r);
  }
}

}  // namespace
