// SPDX-License-Identifier: Apache-2.0
#include "driver/soil_limit_forces.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace ostrel::driver {

void add_soil_limit_forces(const std::map<int, NodeModulus>& modulus, double spacing,
                           std::map<int, Fsoil>& soil_forces) {
  struct LimitPressure {
    double z;  // elevation [mm]
    double q;  // limit pressure as a force per unit length [N/mm]
    Fsoil* force;
  };
  std::vector<LimitPressure> springs;
  for (auto& [node, force] : soil_forces) {
    const NodeModulus& spring = modulus.at(node);
    springs.push_back({-spring.position, spring.q(spring.getDyLim()) * spacing, &force});
  }
  std::stable_sort(springs.begin(), springs.end(),
                   [](const auto& left, const auto& right) { return left.z < right.z; });
  for (std::size_t i = 1; i < springs.size(); ++i) {
    const LimitPressure& a = springs[i - 1];
    const LimitPressure& b = springs[i];
    const double L = b.z - a.z;
    a.force->limitForce += (7.0 * a.q + 3.0 * b.q) * L / 20.0;
    a.force->limitMoment += (b.q / 3.0 + a.q / 2.0) * (L * L) / -10.0;
    b.force->limitForce += (7.0 * b.q + 3.0 * a.q) * L / 20.0;
    b.force->limitMoment += (b.q / 2.0 + a.q / 3.0) * (L * L) / 10.0;
  }
}

}  // namespace ostrel::driver
