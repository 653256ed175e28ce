// SPDX-License-Identifier: Apache-2.0
#include "formulation_checks.h"

#include <set>
#include <string>

namespace ostrel::host {

namespace {

constexpr int bishop = 1;

bool has_little_friction(const SoilInput& soil) {
  return soil.friction_angle_deg < little_friction_deg && soil.cohesion_kPa > 0.0;
}

// The names of such soils among the layers, in the order of the soils.
std::string names_of_cohesive_soils(const Project& project) {
  std::set<std::size_t> found;
  for (const LayerInput& layer : project.ground.layers) {
    if (layer.soil < project.soils.size() && has_little_friction(project.soils[layer.soil])) {
      found.insert(layer.soil);
    }
  }
  std::string names;
  for (const std::size_t soil : found) {
    names += (names.empty() ? "" : ", ") + project.soils[soil].name;
  }
  return names;
}

}  // namespace

void check_formulation(const Project& project, Problems& problems) {
  if (!project.slope || project.slope->formulation != bishop) return;
  const std::string names = names_of_cohesive_soils(project);
  if (names.empty()) return;
  problems.remark("slope.method",
                  problems.texts()(Text::bishop_on_cohesion, little_friction_deg, names));
}

}  // namespace ostrel::host
