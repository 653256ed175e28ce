// SPDX-License-Identifier: Apache-2.0
#include "support/spring_beam.h"
#include "validation/chapters.h"
#include "validation/runs.h"
#include "validation/units.h"

#include <ostrel/wall_load.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace ostrel::validation {
namespace {

constexpr double E = 30'000.0;     // [N/mm²]
constexpr double unlimited = 1e9;  // no spring yields [mm]

/// A beam of `length` [mm] with the bending stiffness `EI` [Nmm²] on springs of `modulus` [N/mm³] at
/// every node, standing for 1 m of wall; nothing reduces the first spring.
testing::SpringBeam beam_of(int elements, double length, double EI, double modulus) {
  testing::SpringBeam beam = testing::straight_beam(elements, length / elements, E, 5e5, EI / E);
  beam.data.setRedfac(1.0);
  beam.data.constrDof0[elements] = 0.0;
  beam.spacing = 1 * metre;
  beam.options.linear = true;
  for (int n = 0; n <= elements; ++n)
    beam.springs[n] = testing::spring(modulus, unlimited);
  return beam;
}

xCombRes solved(testing::SpringBeam beam) {
  xCombRes result;
  if (beam.solve(result) != ostrel::ok) throw std::runtime_error("a beam was not solved");
  return result;
}

/// A value and the depth where it stands [mm].
struct Place {
  double value = 0.0;
  double depth = 0.0;
};

Place least_displacement(const xCombRes& result, double step) {
  Place least;
  for (std::size_t n = 0; n < result.displacements.size(); ++n) {
    const double y = result.displacements[n].y;
    if (y < least.value) least = {y, static_cast<double>(n) * step};
  }
  return least;
}

/// The largest moment by size, at the upper ends of the elements.
Place largest_moment(const xCombRes& result, double step) {
  Place largest;
  for (std::size_t e = 0; e < result.beamStress.size(); ++e) {
    const double M = std::abs(result.beamStress[e].points[0].M);
    if (M > largest.value) largest = {M, static_cast<double>(e) * step};
  }
  return largest;
}

xCombRes pushed_in_the_middle(int elements) {
  testing::SpringBeam beam = beam_of(elements, 20 * metre, 1042e9, 1e-5);
  beam.push(elements / 2, 10 * kN);
  return solved(beam);
}

std::string with(const char* what, int elements) {
  return std::string(what) + ", " + std::to_string(elements) + " elements";
}

Case finite_beam() {
  std::vector<Figure> figures;
  for (const auto& [elements, allowed] : {std::pair{400, 2e-4}, std::pair{80, 2e-3}}) {
    const xCombRes result = pushed_in_the_middle(elements);
    const Tolerance tolerance{.relative = allowed};
    const double M = largest_moment(result, 0.0).value;
    const auto middle = static_cast<std::size_t>(elements / 2);
    figures.push_back({with("u in the middle", elements), "mm", 117.94445,
                       result.displacements[middle].y, tolerance});
    figures.push_back({with("largest M", elements), "kNm", 11.642553, M / kNm, tolerance});
    figures.push_back({with("u of the foot", elements), "mm", -30.039115,
                       result.displacements.back().y, tolerance});
    if (elements != 400) continue;
    const Tolerance other{.relative = 1e-3};
    figures.push_back(
        {"u in the middle, D-Sheet", "mm", 117.9829, result.displacements[middle].y, other});
    figures.push_back({"largest M, D-Sheet", "kNm", 11.64788, M / kNm, other});
    figures.push_back(
        {"u of the foot, D-Sheet", "mm", -30.04828, result.displacements.back().y, other});
  }
  return {.id = "FE-01",
          .subject = "Finite beam with a force in the middle",
          .source =
              "Hetenyi (1946), finite beam with free ends; D-Sheet Piling 24.1, verification "
              "bm1-1 and bm1-11, in GEOLib",
          .inputs = "20 m, EI 1042 kNm², 10 kN/m³, 10 kN at 10 m",
          .figures = figures};
}

Case displaced_head() {
  constexpr int elements = 400;
  constexpr double step = 20 * metre / elements;
  testing::SpringBeam beam = beam_of(elements, 20 * metre, 1042e9, 1e-5);
  beam.data.constrDof1[0] = 100.0;
  const xCombRes result = solved(beam);
  const Place u = least_displacement(result, step);
  const Place M = largest_moment(result, step);
  const double T = std::abs(result.beamStress.front().points[0].T);
  const Tolerance tolerance{.relative = 2e-3};
  return {.id = "FE-02",
          .subject = "Beam on springs with a displaced head",
          .source = "D-Sheet Piling 24.1, verification bm1-2, in GEOLib",
          .inputs = "the beam of FE-01, its head held at 100 mm",
          .figures = {{"least u", "mm", -6.94699, u.value, tolerance},
                      {"its depth", "m", 10.667, u.depth / metre, {.absolute = 0.05}},
                      {"largest M", "kNm", 3.28467, M.value / kNm, tolerance},
                      {"its depth", "m", 3.619, M.depth / metre, {.absolute = 0.1}},
                      {"shear at the head", "kN", 2.21078, T / kN, {.relative = 0.02}},
                      {"u of the foot", "mm", 1.6195, result.displacements.back().y, tolerance}},
          .reason =
              "Springs stand at the nodes: half an element at the held head has none of its "
              "own between the head and the first cut, and the shear there is 1 % larger."};
}

/// By statics the spring moves 20 mm; the head moves twice that and bends away by
/// M (l² / 2 + l² / 3) / EI with l = 5 m.
Case one_spring() {
  constexpr int elements = 40;
  testing::SpringBeam beam = beam_of(elements, 10 * metre, 1042e9, 0.0);
  beam.data.springDof1[elements / 2] = 10.0;  // 10 kN/m
  beam.data.constrDof1[elements] = 0.0;
  xFemLoadCond& turn = beam.conditions.emplace_back("turn");
  turn.nodalForces[0] += xFemNodeData(0.0, 0.0, 1 * kNm);
  const xCombRes result = solved(beam);
  const Tolerance tolerance{.relative = 2e-4};
  const double head = std::abs(result.displacements[0].y);
  const double T = std::abs(result.beamStress.back().points[1].T);
  return {.id = "FE-04",
          .subject = "Beam on one spring and one support, a moment at its head",
          .source =
              "statics; D-Sheet Piling 24.1, verification bm1-3, in GEOLib, gives 59.25 mm, "
              "19.67 mm and 0.199 kN, as it keeps a weak soil all along",
          .inputs = "10 m, EI 1042 kNm², 10 kN/m at 5 m, support at 10 m, 1 kNm",
          .figures = {{"u of the head", "mm", 59.993602, head, tolerance},
                      {"u of the spring", "mm", 20.0,
                       std::abs(result.displacements[elements / 2].y), tolerance},
                      {"reaction of the support", "kN", 0.2, T / kN, tolerance}}};
}

/// 2 V lambda / k, and V exp(-pi/4) sin(pi/4) / lambda at pi / (4 lambda).
Case long_beam() {
  constexpr int elements = 400;
  constexpr double step = 20 * metre / elements;
  testing::SpringBeam beam = beam_of(elements, 20 * metre, 50e12, 5e-3);
  beam.push(0, 100 * kN);
  const xCombRes result = solved(beam);
  beam.data.setRedfac(0.9);
  const xCombRes reduced = solved(beam);
  const Place M = largest_moment(result, step);
  const Tolerance tolerance{.relative = 2e-3};
  return {.id = "FE-06",
          .subject = "Long pile with a force at its head",
          .source = "Hetenyi (1946), semi-infinite beam",
          .inputs = "20 m, EI 50 000 kNm², 5000 kN/m², 100 kN",
          .figures = {{"u of the head", "mm", 15.905415, result.displacements[0].y, tolerance},
                      {"u of the head, first spring times 0.9", "mm", 15.905415,
                       reduced.displacements[0].y, tolerance},
                      {"largest M", "kNm", 81.078528, M.value / kNm, tolerance},
                      {"its depth", "m", 1.9751718, M.depth / metre, {.absolute = 0.05}}}};
}

/// A weightless cohesive soil: the limit load is c (2 + pi) at every depth.
WholeRun pushed_wall(double step) {
  xSoilProps soil;
  soil.setCohesion(0.1);
  soil.setUnitWeight(1e-12);
  soil.setSaturatedUnitWeight(1e-12);
  soil.setPoissonRatio(0.3);
  soil.setOCR(1.0);
  auto data = testing::WallBuilder{}
                  .pile(800.0, 20 * metre)
                  .excavation(5 * metre)
                  .layer(soil, 5 * metre)
                  .layer(soil, 15 * metre)
                  .layer(soil)
                  .step(step)
                  .build();
  data.springIntervals = {{0.0, 1.0, xSpringInterval::limitUltimate, 1.0}};
  const osg::ref_ptr<xConcenterdLoad> push = new xConcenterdLoad;
  push->force = {0.0, 40 * kN};
  data.loadConds.emplace_back().shpileLoads.push_back(push);
  data.loadCombs = {testing::unfactored("push")};
  data.loadCombs[0].actions.emplace_back().set("push", true, 1.0, 1.0);
  return run_wall(data);
}

Case pushed_cantilever() {
  std::vector<Figure> figures;
  for (const auto& [step, allowed] : {std::pair{250.0, 7e-3}, std::pair{50.0, 3e-3}}) {
    const WholeRun run = pushed_wall(step);
    const std::string where = ", levels every " + std::to_string(static_cast<int>(step)) + " mm";
    const Tolerance tolerance{.relative = allowed};
    figures.push_back({"modulus" + where,
                       "N/mm³",
                       0.020242491,
                       run.result.subgradeModulus.springs.begin()->second.modulus,
                       {.relative = 1e-7}});
    figures.push_back({"u at the excavation" + where, "mm", 3.0060656,
                       std::abs(run.displacement_at(5 * metre)), tolerance});
    figures.push_back(
        {"u of the head" + where, "mm", 13.057004, std::abs(run.displacement_at(0.0)), tolerance});
    figures.push_back(
        {"largest M" + where, "kNm", 214.9285, run.largest_moment() / kNm, tolerance});
  }
  return {.id = "FE-07",
          .subject = "Cantilever wall with a force at its head, as a whole run",
          .source = "Hetenyi (1946), semi-infinite beam under a force and a moment",
          .inputs =
              "piles of 800 mm every metre, 30 000 N/mm², 20 m long, 5 m of excavation, "
              "weightless soil of 0.1 N/mm² cohesion, 40 kN",
          .likeness = Likeness::same_formula,
          .figures = figures,
          .reason =
              "The wall is finite (lambda L = 4.5), its first spring is taken with 0.9, and "
              "the springs stand at the nodes."};
}

}  // namespace

Chapter beams_on_springs() {
  return {"Beams on springs",
          "The solver of the beam by itself, with a spring at every node and none that yields, on "
          "1 m of wall; FE-07 through a whole run.",
          {finite_beam(), displaced_head(), one_spring(), long_beam(), pushed_cantilever()}};
}

}  // namespace ostrel::validation
