// SPDX-License-Identifier: Apache-2.0
#include "signing_checks.h"

#include "ground_checks.h"
#include "json_text.h"
#include "project_conversion.h"
#include "project_parts.h"
#include "units.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace ostrel::host {

namespace {

// Angles of wall friction are rounded numbers: so little above a third of phi is a third [°].
constexpr double rounding_deg = 0.5;

bool asks_for(const CombinationInput& combination, pCheckTypes check) {
  const auto& checks = combination.checks;
  return std::find(checks.begin(), checks.end(), check) != checks.end();
}

// A factor of resistance that is there and no 1.
bool has_factor(const CombinationInput& combination, checkUlsFactors key) {
  const auto found = combination.resistance_factors.find(key);
  return found != combination.resistance_factors.end() && std::abs(found->second - 1.0) > 1e-9;
}

bool is_shaken(const CombinationInput& combination) {
  return combination.kind == combSeismic && combination.kh > 0.0;
}

class SigningChecks {
public:
  SigningChecks(const Project& project, Problems& problems)
      : project_(project), problems_(problems) {}

  void run() {
    check_formulas();
    check_springs();
    check_wall_friction();
    check_slip_circles();
    check_anchors();
    check_factors();
    tell_of([](const auto& c) { return asks_for(c, checkVerticalLimitLoad); }, "checks",
            Text::bearing_by_hand);
  }

private:
  template <class... Arguments>
  void tell(const std::string& path, Text text, const Arguments&... arguments) {
    problems_.remark(
        path, problems_.texts()(Text::see_before_signing, problems_.texts()(text, arguments...)));
  }

  // The names of the combinations that meet a condition, in quotation marks; empty for none.
  template <class Condition>
  std::string names_of(const Condition& meets) const {
    std::vector<std::string> names;
    for (const CombinationInput& combination : project_.combinations) {
      if (meets(combination)) names.push_back(combination.name);
    }
    return names.empty() ? std::string() : quoted_list(names);
  }

  // The path of a field of the first combination that meets a condition.
  template <class Condition>
  std::string first_path(const Condition& meets, const char* name) const {
    const auto found =
        std::find_if(project_.combinations.begin(), project_.combinations.end(), meets);
    const auto index = static_cast<std::size_t>(found - project_.combinations.begin());
    return child_path(child_path("combinations", index), name);
  }

  // Remarks upon the combinations that meet a condition, at a field of the first.
  template <class Condition>
  void tell_of(const Condition& meets, const char* name, Text text) {
    const std::string names = names_of(meets);
    if (!names.empty()) tell(first_path(meets, name), text, names);
  }

  // The formulas that any combination uses.
  std::set<formulType> formulas() const {
    std::set<formulType> used;
    for (const CombinationInput& combination : project_.combinations) {
      used.insert(combination.kind == combSeismic ? project_.calculation.seismic_earth_pressure
                                                  : project_.calculation.earth_pressure);
    }
    return used;
  }

  void check_formulas() {
    const bool wood = project_.calculation.seismic_earth_pressure == formulaWood;
    if (wood && !names_of(is_shaken).empty()) {
      tell("calculation.seismic_earth_pressure", Text::wood_hardly_shakes);
    }
    if (!formulas().contains(formulaRankine)) return;
    for (std::size_t i = 0; i < project_.ground.layers.size(); ++i) {
      const LayerInput& layer = project_.ground.layers[i];
      if (!(layer.surface_slope_deg > least_friction_deg(project_.soils[layer.soil]))) continue;
      tell(child_path(child_path("ground.layers", i), "surface_slope_deg"), Text::rankine_too_steep,
           least_friction_deg(project_.soils[layer.soil]));
    }
  }

  // The smallest design angle of a soil over all combinations [°].
  double least_friction_deg(const SoilInput& soil) const {
    double factor = 1.0;
    for (const CombinationInput& combination : project_.combinations) {
      for (const double one : combination.soil_factors[0]) {
        factor = std::max(factor, one);
      }
    }
    return std::atan(std::tan(rad_of_deg(soil.friction_angle_deg)) / factor) / rad_of_deg(1.0);
  }

  bool has_passive_limit() const {
    return std::any_of(project_.spring_intervals.begin(), project_.spring_intervals.end(),
                       [](const SpringIntervalInput& interval) {
                         return interval.limit != xSpringInterval::limitUltimate;
                       });
  }

  void check_springs() {
    for (std::size_t i = 0; i < project_.spring_intervals.size(); ++i) {
      if (project_.spring_intervals[i].limit != xSpringInterval::limitUltimate) continue;
      tell(child_path(child_path("spring_intervals", i), "limit"), Text::bearing_limit);
    }
    if (has_passive_limit()) tell_of(is_shaken, "seismic", Text::springs_not_shaken);
    tell_of([](const auto& c) { return c.kv < 0.0; }, "seismic", Text::kv_favourable);
  }

  // Coulomb's passive value belongs to a plane wedge, which wall friction bends.
  void check_wall_friction() {
    const std::set<formulType> used = formulas();
    const bool plane = used.contains(formulaCoulomb) || used.contains(formulaMononobeOkabe)
                    || used.contains(formulaWood);
    if (!plane || !has_passive_limit()) return;
    const double excavation = -level_mm_of_m(project_.excavation_depth_m);
    const std::vector<xBoundSoilLayer> layers = to_soil_layers(project_);
    std::set<std::size_t> told;
    for (std::size_t i = 0; i < layers.size(); ++i) {
      const auto span = span_at_wall(layers[i]);
      const std::size_t position = project_.ground.layers[i].soil;
      const SoilInput& soil = project_.soils[position];
      if (!span || !(span->bottom < excavation) || soil.friction_angle_deg <= 0.0) continue;
      if (!(soil.wall_friction_angle_deg > soil.friction_angle_deg / 3.0 + rounding_deg)) continue;
      if (soil.wall_friction_angle_deg > soil.friction_angle_deg) continue;  // told already
      if (!told.insert(position).second) continue;
      tell(child_path(child_path("soils", position), "wall_friction_angle_deg"),
           Text::passive_too_high, soil.wall_friction_angle_deg, soil.friction_angle_deg);
    }
  }

  void check_slip_circles() {
    const auto circles = [](const auto& c) { return asks_for(c, checkGlobalStability); };
    if (!project_.slope || names_of(circles).empty()) return;
    const auto& water = project_.water;
    if (water && std::abs(water->retained_level_m - water->excavated_level_m) > 1e-6) {
      tell("water", Text::circles_and_water);
    }
    tell_of([&](const auto& c) { return circles(c) && c.kh > 0.0; }, "checks",
            Text::circles_and_earthquake);
  }

  void check_anchors() {
    if (project_.anchors.empty()) return;
    const auto rigid = [](const auto& c) { return asks_for(c, checkRigidMotion); };
    std::set<double> levels;
    std::int32_t fewest = project_.wall.count;
    for (const AnchorInput& anchor : project_.anchors) {
      levels.insert(anchor.level_m);
      fewest = std::min(fewest, anchor.count);
    }
    if (levels.size() > 1) {
      tell_of(rigid, "checks", Text::rigid_with_two_levels);
    } else if (fewest < project_.wall.count) {
      tell_of(rigid, "checks", Text::rigid_with_few_anchors);
    }
    const bool on_beam = *levels.rbegin() >= -project_.wall.cap_beam_height_m;
    if (on_beam) {
      tell_of(
          [](const auto& c) {
            return asks_for(c, checkCapBeamStructure) && !asks_for(c, checkAnchorStructure);
          },
          "checks", Text::beam_without_anchors);
    }
    check_bond();
  }

  // On a bulb the active coefficient takes the friction of the interface for that of the soil.
  void check_bond() {
    if (names_of([](const auto& c) { return asks_for(c, checkAnchorPullout); }).empty()) return;
    for (std::size_t i = 0; i < project_.anchors.size(); ++i) {
      const AnchorInput& anchor = project_.anchors[i];
      const bool at_rest = anchor.pressure_coefficient == 0;
      const bool without_friction =
          anchor.bond_adhesion_kPa && !(anchor.bond_friction_angle_deg.value_or(0.0) > 0.0);
      if (at_rest || without_friction) continue;
      tell(child_path(child_path("anchors", i), "pressure_coefficient"), Text::active_on_bulb);
    }
  }

  void check_factors() {
    tell_of([](const auto& c) { return has_factor(c, factorDownhillSoil); }, "resistance_factors",
            Text::front_factor_not_read);
    tell_of([](const auto& c) { return asks_for(c, checkUplift) && has_factor(c, factorUplift); },
            "resistance_factors", Text::uplift_factor_not_read);
  }

  const Project& project_;
  Problems& problems_;
};

}  // namespace

void check_before_signing(const Project& project, Problems& problems) {
  SigningChecks(project, problems).run();
}

}  // namespace ostrel::host
