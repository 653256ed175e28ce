// SPDX-License-Identifier: Apache-2.0
// Loads and combinations, from the project to the library.
#include "project_conversion.h"
#include "units.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string>

namespace ostrel::host {

namespace {

osg::ref_ptr<xSoilLoad> to_soil_load(const GroundLoadInput& input) {
  switch (input.kind) {
    case GroundLoadInput::Kind::uniform: {
      osg::ref_ptr<xUniformLoad> load = new xUniformLoad;
      load->setValue(n_mm2_of_kpa(input.value));
      return load;
    }
    case GroundLoadInput::Kind::strip: {
      osg::ref_ptr<xNastriformLoad> load = new xNastriformLoad;
      load->setStartValue(n_mm2_of_kpa(input.value));
      load->setEndValue(n_mm2_of_kpa(input.end_value));
      load->setPosition(mm_of_m(input.distance_m));
      load->setExtension(mm_of_m(input.width_m));
      return load;
    }
    case GroundLoadInput::Kind::line: {
      osg::ref_ptr<xLinearLoad> load = new xLinearLoad;
      load->setValue(n_mm_of_kn_m(input.value));
      load->setPosition(mm_of_m(input.distance_m));
      return load;
    }
    case GroundLoadInput::Kind::point:
      break;
  }
  osg::ref_ptr<xPuntiformLoad> load = new xPuntiformLoad;
  load->setValue(n_of_kn(input.value));
  load->setPosition(mm_of_m(input.distance_m));
  return load;
}

// The library counts a force across the wall positive towards the retained side. A moment counts
// positive in it where it turns the head that way too.
void add_wall_load(const WallLoadInput& input, xLoadCond& condition) {
  const double depth = -level_mm_of_m(input.level_m);
  const bool has_force = std::abs(input.horizontal_kN) > 0.0 || std::abs(input.vertical_kN) > 0.0;
  if (has_force) {
    osg::ref_ptr<xConcenterdLoad> force =
        input.per_metre ? new xDistribuitedLoad : new xConcenterdLoad;
    const double unit = input.per_metre ? n_mm_of_kn_m(1.0) : n_of_kn(1.0);
    force->force = {input.vertical_kN * unit, -input.horizontal_kN * unit};
    force->setPosition(depth);
    force->setObjectID(1, condition.name);
    condition.shpileLoads.push_back(force);
  }
  if (std::abs(input.moment_kNm) > 0.0) {
    osg::ref_ptr<xTorqueLoad> torque = input.per_metre ? new xDistribuitedTorque : new xTorqueLoad;
    torque->setValue(-input.moment_kNm * (input.per_metre ? n_of_kn(1.0) : nmm_of_knm(1.0)));
    torque->setPosition(depth);
    torque->setObjectID(1, condition.name);
    condition.shpileLoads.push_back(torque);
  }
}

xAction to_action(const ActionInput& input, const std::string& name) {
  xAction action;
  action.set(name, input.active, input.favourable, input.unfavourable);
  return action;
}

}  // namespace

std::vector<xLoadCond> to_conditions(const LoadInput& input) {
  const std::size_t count = std::max<std::size_t>(1, input.on_ground.size());
  std::vector<xLoadCond> conditions(count);
  for (std::size_t i = 0; i < count; ++i) {
    conditions[i].name = i == 0 ? input.name : fmt::format("{} ({})", input.name, i + 1);
    if (i < input.on_ground.size()) {
      conditions[i].soilLoads.push_back(to_soil_load(input.on_ground[i]));
      conditions[i].soilLoads.back()->setObjectID(1, conditions[i].name);
    }
  }
  for (const WallLoadInput& entry : input.on_wall) {
    add_wall_load(entry, conditions.front());
  }
  return conditions;
}

xLoadComb to_combination(const CombinationInput& input, const std::vector<LoadInput>& loads,
                         int index) {
  xLoadComb combination;
  combination.setCombName(input.name);
  combination.setcombIndex(index);
  combination.setCombType(input.kind);
  combination.setSeismFact(input.slope_factor);
  combination.seismic.coefficients = {input.kh, input.kv};
  combination.seismic.setSt(input.topographic_factor);
  for (const auto& [first, second] : input.soil_factors) {
    combination.geoFactors.push_back({.first = first, .second = second});
  }
  combination.ulsFactors = input.resistance_factors;
  for (const pCheckTypes check : input.checks) {
    combination.checks[check] = true;
  }
  const std::array<const ActionInput*, 3> fixed{&input.self_weight, &input.earth_pressure,
                                                &input.water_pressure};
  for (std::size_t i = 0; i < fixed.size(); ++i) {
    combination.actions.push_back(
        to_action(*fixed[i], getPredefined_CondName(static_cast<int>(i))));
  }
  for (std::size_t i = 0; i < loads.size() && i < input.loads.size(); ++i) {
    for (const xLoadCond& condition : to_conditions(loads[i])) {
      combination.actions.push_back(to_action(input.loads[i], condition.name));
    }
  }
  return combination;
}

}  // namespace ostrel::host
