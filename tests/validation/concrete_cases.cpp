// SPDX-License-Identifier: Apache-2.0
#include "ferrule/sections_testing.h"
#include "validation/chapters.h"
#include "validation/units.h"

#include <array>
#include <cmath>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace ostrel::validation {
namespace {

using Ferrule::ClsSLUParameters;
using Ferrule::testing::pi;
using Ferrule::testing::Recipe;

/// C25 with fcd = 25 * 0.85 / 1.5 = 14.1667, B450 with fyd = 450 / 1.15 and the limit 0.9 * 0.075.
ClsSLUParameters c25_b450() {
  ClsSLUParameters p = Ferrule::testing::round_material();
  p.Rck = 25 / 0.83;
  p.GammaS = 1.15;
  return p;
}

/// The branch of hardening steel with k = ft / fy = 1.2 and Es = 210 000.
ClsSLUParameters hardened(ClsSLUParameters p) {
  p.Es = 210'000;
  const double yield = p.Fyk / p.GammaS;
  p.Plastic = 0;
  p.Slope = 0.2 * yield / (0.0675 - yield / p.Es);
  return p;
}

/// 300 x 500 with four bars of 20 mm at the depth 460.
Recipe rectangle_of_four_bars() {
  return {.outline = Ferrule::testing::rectangle(300, 500),
          .bars = Ferrule::testing::row(4, -210, 10),
          .material = c25_b450()};
}

/// Diameter 800 as 40 sides with 20 bars of 20 mm, 60 mm from the face.
Recipe circle_of_twenty_bars() {
  return {.outline = Ferrule::testing::regular_polygon(40, 800),
          .bars = Ferrule::testing::ring(20, 340, 20),
          .material = c25_b450()};
}

/// The axial force [kN], tension positive, and the moment that was published [kNm].
using Point = std::pair<double, double>;

template <std::size_t count>
std::vector<Figure> resisting_moments(const Recipe& recipe, const std::array<Point, count>& points,
                                      const Tolerance& tolerance, const char* note = "") {
  const auto section = Ferrule::testing::make_section(recipe);
  std::vector<Figure> figures;
  for (const auto& [axial, moment] : points) {
    const auto capacity = Ferrule::testing::resist(*section, axial * kN, pi);
    if (!capacity.found) throw std::runtime_error("no resisting moment");
    std::ostringstream what;
    what << "M, N " << axial << " kN" << note;
    figures.push_back({what.str(), "kNm", moment, capacity.moment / kNm, tolerance});
  }
  return figures;
}

std::vector<Figure> operator+(std::vector<Figure> a, const std::vector<Figure>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

constexpr const char* structuralcodes =
    "structuralcodes of the fib at a0386546cad9, EC2:2004 with parabola and rectangle, Marin "
    "integration, run on this section";

/// The tolerance on these is 1e-3; the digits that the other program prints allow 1e-5.
Case rectangle() {
  constexpr std::array<Point, 5> points{
      {{200, 165.905}, {0, 196.961}, {-250, 222.178}, {-500, 232.283}, {-1'000, 174.755}}};
  return {.id = "RC-01",
          .subject = "Rectangle with one row of bars",
          .source = structuralcodes,
          .inputs = "300 x 500 mm, 4 bars of 20 mm at the depth 460 mm",
          .figures = resisting_moments(rectangle_of_four_bars(), points, {.relative = 1e-5})};
}

Case circle() {
  constexpr std::array<Point, 5> polygon{
      {{300, 650.977}, {0, 717.327}, {-500, 815.548}, {-1'500, 962.247}, {-3'000, 1'048.32}}};
  constexpr std::array<Point, 5> true_circle{
      {{300, 651.833}, {0, 718.53}, {-500, 816.888}, {-1'500, 964.327}, {-3'000, 1'051.741}}};
  return {.id = "RC-02",
          .subject = "Circle with a ring of bars",
          .source = structuralcodes,
          .inputs =
              "diameter 800 mm as a polygon of 40 sides, 20 bars of 20 mm, 60 mm from the "
              "face",
          .figures = resisting_moments(circle_of_twenty_bars(), polygon, {.relative = 1e-5})
                   + resisting_moments(circle_of_twenty_bars(), true_circle, {.relative = 3.5e-3},
                                       ", true circle"),
          .reason =
              "The polygon of 40 sides, as which a pile is analysed, is 0.1 to 0.3 % weaker "
              "than the true circle."};
}

Case stress_block() {
  Recipe recipe{.outline = Ferrule::testing::rectangle(300, 500),
                .bars = {{0, -220, std::sqrt(1'675 / pi)}},
                .material = c25_b450()};
  recipe.material.AlfaCC = 1;
  recipe.material.Fyk = 500;
  constexpr std::array<Point, 1> points{{{-251.483, 309.562}}};
  return {.id = "RC-05",
          .subject = "Bending with compression",
          .source =
              "calculocivil.com, bending by EN 1992; quoted in the tests of XC "
              "(test_EC2_bending_03.py)",
          .inputs = "300 x 500 mm, 1675 mm² at the depth 470 mm, C25 with alpha_cc 1, B500",
          .likeness = Likeness::same_physics,
          .figures = resisting_moments(recipe, points, {.relative = 0.015}),
          .reason =
              "The source takes a rectangular stress block, this system parabola and "
              "rectangle."};
}

Case hardening_steel() {
  Recipe rectangular = rectangle_of_four_bars();
  rectangular.material = hardened(rectangular.material);
  Recipe circular = circle_of_twenty_bars();
  circular.material = hardened(circular.material);
  constexpr std::array<Point, 2> of_rectangle{{{0, 199.8694}, {-500, 232.35563}}};
  constexpr std::array<Point, 2> of_circle{{{0, 728.17856}, {-500, 823.29115}}};
  return {.id = "RC-06",
          .subject = "Steel that hardens",
          .source =
              "strips summed with the same laws, worked out apart from this system; nothing "
              "published",
          .inputs = "the sections of RC-01 and RC-02 with k 1.2 and Es 210 000 N/mm²",
          .likeness = Likeness::same_physics,
          .figures = resisting_moments(rectangular, of_rectangle, {.relative = 1e-5}, ", rectangle")
                   + resisting_moments(circular, of_circle, {.relative = 1e-5}, ", circle"),
          .reason = "No published figure has this slope of the hardening branch."};
}

/// Rck 30, Es 210 000.
Case pile_of_sixteen_bars() {
  Recipe recipe{.outline = Ferrule::testing::regular_polygon(40, 800),
                .bars = Ferrule::testing::ring(16, 340, 24)};
  recipe.material.Rck = 30;
  recipe.material.GammaS = 1.15;
  recipe.material.Es = 210'000;
  constexpr std::array<Point, 1> points{{{-500, 907.3966}}};
  return {.id = "RC-07",
          .subject = "Pile with sixteen bars",
          .source =
              "strips summed with the same laws, worked out apart from this system; nothing "
              "published",
          .inputs =
              "diameter 800 mm as a polygon of 40 sides, 16 bars of 24 mm on the radius 340 "
              "mm, Rck 30, Es 210 000 N/mm²",
          .likeness = Likeness::same_physics,
          .figures = resisting_moments(recipe, points, {.relative = 1e-7}),
          .reason = "Nothing published has these materials."};
}

}  // namespace

Chapter concrete_sections() {
  return {"Concrete sections",
          "Resisting moments at a given axial force, tension positive. Where nothing else is said: "
          "fcd 14.1667 N/mm², strains 2 and 3.5 per mille, B450 without hardening, factor 1.15, Es "
          "200 000 N/mm².",
          {rectangle(), circle(), stress_block(), hardening_steel(), pile_of_sixteen_bars()}};
}

}  // namespace ostrel::validation
