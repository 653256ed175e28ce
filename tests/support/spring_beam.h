#pragma once
/// @file  Beams on springs, made by hand and not from a wall, for tests and benchmarks
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/fem_solver.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <vector>

namespace ostrel::testing {

/// A beam with all that a solution takes.
struct SpringBeam {
  xFemData data;
  std::vector<info_Fem_anchor> anchors;
  std::map<int, NodeModulus> springs;
  std::vector<xFemLoadCond> conditions;
  double spacing = 1.0;  ///< [mm]
  xFemSolverOptions options;

  /// Solves with a new solver.
  OstrelErrorType solve(xCombRes& result) {
    xFemSolver solver;
    return solver.solve(options, anchors, data, springs, conditions, result, spacing);
  }

  /// Adds a force across the wall [N].
  void push(std::int32_t node, double force) {
    if (conditions.empty()) conditions.emplace_back("push");
    conditions.front().nodalForces[node] += xFemNodeData(0.0, force, 0.0);
  }

  /// Holds all three dofs of a node where they are.
  void clamp(std::int32_t node) {
    data.constrDof0[node] = data.constrDof1[node] = data.constrDof2[node] = 0.0;
  }
};

/// A spring with a modulus [N/mm³] up to a displacement [mm].
inline NodeModulus spring(double modulus, double limit) {
  NodeModulus law;
  law.type = xSpringInterval::limitUltimate;
  law.modulus = modulus;
  law.ultimate_limit = limit;
  return law;
}

/// Elements of equal length `L` [mm] from the head down, without springs, supports and loads.
/// @param area  [mm²]
/// @param J     second moment of area [mm⁴]
inline SpringBeam straight_beam(std::int32_t elements, double L, double E, double area, double J) {
  SpringBeam beam;
  beam.data.nodes.emplace_back(0.0, 0.0);
  for (std::int32_t e = 0; e < elements; ++e) {
    xElemData element;
    element.setStartNode(e);
    element.setEndNode(e + 1);
    element.setL(L);
    element.setE(E);
    element.setArea(area);
    element.setJ(J);
    beam.data.elements.push_back(element);
    beam.data.nodes.emplace_back(0.0, (e + 1) * L);
  }
  return beam;
}

/// A wall 20 m long, free above 8 m and on springs below, pushed by the soil behind it; its foot
/// stands. Stiffness and strength of the springs grow with the depth z below the excavation:
/// 0.005 N/mm³ + z 5e-6 N/mm⁴, and three times the weight of a soil of 2e-5 N/mm³. That soil pushes
/// with 0.4 of its weight down to the excavation, on one metre of the wall.
/// @param J  second moment of area of one metre [mm⁴]
inline SpringBeam reference_wall(std::int32_t elements, double area, double J) {
  constexpr double length = 20'000.0;
  constexpr double excavation = 8'000.0;
  const double L = length / elements;
  SpringBeam wall = straight_beam(elements, L, 30'000.0, area, J);
  wall.spacing = 1'000.0;
  for (std::int32_t n = 0; n <= elements; ++n) {
    const double z = n * L - excavation;
    if (!(z >= 0.0)) continue;
    const double modulus = 0.005 + 5e-6 * z;
    wall.springs[n] = spring(modulus, 3.0 * 2e-5 * z / modulus);
  }
  wall.data.setJtsoil(wall.springs.begin()->first);
  wall.data.constrDof0[elements] = 0.0;

  const double slope = 0.4 * 2e-5 * wall.spacing;
  xFemLoadCond soil("soil");
  xFemLoadCond weight("weight");
  for (std::int32_t e = 0; e < elements; ++e) {
    if (e * L < excavation) {
      soil.pressures[e] = PressAtEnds(slope * e * L, slope * std::min((e + 1) * L, excavation));
    }
    weight.pressures[e].aStart = weight.pressures[e].aEnd = area * 2.5e-5;
  }
  wall.conditions = {soil, weight};
  return wall;
}

/// Piles of 800 mm: A = pi 800² / 4 = 502 655 mm², J = pi 800⁴ / 64 = 2.0106e10 mm⁴.
inline SpringBeam reference_piles(std::int32_t elements) {
  return reference_wall(elements, 502'655.0, 2.0106e10);
}

/// A diaphragm: A = d * 1000, J = 1000 d³ / 12.
inline SpringBeam reference_diaphragm(std::int32_t elements, double thickness) {
  return reference_wall(elements, thickness * 1000.0,
                        1000.0 * thickness * thickness * thickness / 12.0);
}

}  // namespace ostrel::testing
