#pragma once
/// @file  A small outcome of a run for the tests of summaries and reports. Room: host tests
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"

#include <string>

namespace ostrel::host {

/// A beam of two elements of 1 m, the excavation at its middle node, with the results of one
/// combination, the second of its project. The head moves 8 mm towards the excavation, the foot
/// 9 mm away from it and is held along the wall.
inline Outcome small_outcome(const std::string& combination_name = "C") {
  Outcome outcome;
  outcome.model.fem.nodes = {{0.0, 0.0}, {0.0, 1000.0}, {0.0, 2000.0}};
  outcome.model.fem.elements.resize(2);
  outcome.model.fem.setJtsoil(1);
  outcome.model.fem.constrDof0[2] = 0.0;
  xCombResults combination;
  combination.setCombName(combination_name);
  combination.setcombIndex(2);
  xFemResults& results = combination.femResults;
  results.dispAxial.points = {{0.0, 0.1}, {1000.0, 0.1}, {2000.0, 0.0}};
  results.dispTrans.points = {{0.0, -8.0}, {1000.0, -4.0}, {2000.0, 9.0}};
  results.rotation.points = {{0.0, 0.0}, {1000.0, 0.0}, {2000.0, 0.0}};
  results.moment.points = {{0.0, 0.0}, {1000.0, 3e6}, {1000.0, 3e6}, {2000.0, -5e6}};
  results.shear.points = {{0.0, 0.0}, {1000.0, 2e3}, {1000.0, -4e3}, {2000.0, 0.0}};
  results.axial.points = {{0.0, 0.0}, {1000.0, -1e3}, {1000.0, -1e3}, {2000.0, -7e3}};
  outcome.results.combResults = {combination};
  return outcome;
}

}  // namespace ostrel::host
