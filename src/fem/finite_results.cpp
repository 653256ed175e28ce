// SPDX-License-Identifier: Apache-2.0
#include "fem/finite_results.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace ostrel::fem {

namespace {

bool all_finite(std::initializer_list<double> numbers) {
  return std::all_of(numbers.begin(), numbers.end(),
                     [](double each) { return std::isfinite(each); });
}

bool finite(const xFemNodeData& node) {
  return all_finite({node.x, node.y, node.r});
}

bool finite(const reacTerr& reaction) {
  return all_finite({reaction.reaction, reaction.limited});
}

bool finite(const xBeamStress& stress) {
  return std::all_of(stress.points.begin(), stress.points.end(), [](const xPointStress& point) {
    return all_finite({point.N, point.T, point.M});
  });
}

bool finite(const Fsoil& force) {
  return all_finite({force.elevation, force.springForce, force.limitForce, force.limitMoment});
}

template <class List>
bool each_finite(const List& list) {
  return std::all_of(list.begin(), list.end(), [](const auto& each) { return finite(each); });
}

template <class Record>
bool each_finite(const std::map<int, Record>& records) {
  return std::all_of(records.begin(), records.end(),
                     [](const auto& entry) { return finite(entry.second); });
}

}  // namespace

bool is_finite(const std::map<int, Fsoil>& soil_forces) {
  return each_finite(soil_forces);
}

bool is_finite(const xCombRes& results) {
  return each_finite(results.displacements) && each_finite(results.nodalForces)
      && each_finite(results.soilReactions) && each_finite(results.beamStress)
      && each_finite(results.soilForces) && each_finite(results.appliedForces);
}

}  // namespace ostrel::fem
