// SPDX-License-Identifier: Apache-2.0
#include "unusual_numbers.h"

#include "json_text.h"

#include <cmath>
#include <string>

namespace ostrel::host {

namespace {

using Json = nlohmann::json;

constexpr bool or_zero = true;

// Follows the rest of a row's path from one value on.
class Search {
public:
  Search(const UsualRange& range, Problems& problems) : range_(range), problems_(problems) {}

  void follow(const Json& value, std::string_view rest, const std::string& path) const {
    if (rest.empty()) {
      judge(value, path);
    } else if (rest.starts_with("[]")) {
      if (!value.is_array()) return;
      for (std::size_t i = 0; i < value.size(); ++i) {
        follow(value[i], after(rest, 2), child_path(path, i));
      }
    } else if (value.is_object()) {
      const std::string name(rest.substr(0, rest.find_first_of(".[")));
      for (const auto& [key, entry] : value.items()) {
        if (key == name || name == "*") {
          follow(entry, after(rest, name.size()), child_path(path, key));
        }
      }
    }
  }

private:
  // What stands behind the first `count` characters and their dot.
  static std::string_view after(std::string_view rest, std::size_t count) {
    rest.remove_prefix(count);
    if (rest.starts_with('.')) rest.remove_prefix(1);
    return rest;
  }

  void judge(const Json& value, const std::string& path) const {
    if (value.is_array()) {
      for (std::size_t i = 0; i < value.size(); ++i) {
        judge(value[i], child_path(path, i));
      }
    }
    if (!value.is_number()) return;
    const double size = std::abs(value.get<double>());
    const bool is_usual = size >= range_.least && size <= range_.most;
    if (is_usual || (range_.or_zero && !(size > 0.0)) || problems_.has_error_at(path)) return;
    problems_.remark(
        path, problems_.texts()(Text::unusual_number, value.dump(), range_.least, range_.most));
  }

  const UsualRange& range_;
  Problems& problems_;
};

}  // namespace

const std::vector<UsualRange>& usual_ranges() {
  static const std::vector<UsualRange> ranges{
      // Micropiles (EN 14199, below 300 mm) to the largest bored piles (EN 1536, 3 m).
      {"wall.diameter_mm", 100, 3500},
      // EN 1538: 400 mm and more; thin walls of mixed soil, and the largest hydromills.
      {"wall.thickness_mm", 200, 2500},
      {"wall.spacing_m", 0.2, 5},
      // One metre of a continuous wall, to the longest panels (EN 1538, mostly 2 m to 8 m).
      {"wall.panel_width_m", 0.5, 12},
      {"wall.length_m", 1.5, 100},
      // Timber about 10, concrete 27 to 44 (EN 1992-1-1, table 3.1), half of it cracked, steel 210.
      {"wall.E_GPa", 5, 250},
      // Timber to steel; none for a wall whose weight is left out.
      {"wall.unit_weight_kN_m3", 4, 80, or_zero},
      {"wall.cap_beam.height_m", 0.2, 5},
      {"wall.cap_beam.width_m", 0.2, 5},
      {"wall.displacement_limits.head_mm", 1, 500},
      {"wall.displacement_limits.excavation_mm", 1, 500},
      // To the axis: cover of 20 mm and half a bar to 75 mm against soil (EN 1536), stirrup and bar.
      {"wall.reinforcement.cover_mm", 25, 200},
      {"wall.reinforcement.cap_beam.cover_mm", 25, 200},
      // EN 10080: 6 mm to 50 mm.
      {"wall.reinforcement.bar_diameter_mm", 6, 60},
      {"wall.reinforcement.cap_beam.bar_diameter_mm", 6, 60},
      {"wall.reinforcement.stirrups.diameter_mm", 5, 32},
      {"wall.reinforcement.cap_beam.stirrups.diameter_mm", 5, 32},
      {"wall.reinforcement.stirrups.least_spacing_mm", 30, 500},
      {"wall.reinforcement.cap_beam.stirrups.least_spacing_mm", 30, 500},
      {"wall.reinforcement.stirrups.largest_spacing_mm", 50, 1000},
      {"wall.reinforcement.cap_beam.stirrups.largest_spacing_mm", 50, 1000},
      {"wall.reinforcement.stirrups.spacing_step_mm", 1, 200},
      {"wall.reinforcement.cap_beam.stirrups.spacing_step_mm", 1, 200},
      // EN 1992-1-1, 9.5.2: at most 4 % outside of laps, 8 % within.
      {"wall.reinforcement.largest_ratio_percent", 0.1, 10},
      {"wall.reinforcement.largest_excavation_ratio_percent", 0.1, 10},
      {"wall.reinforcement.largest_retained_ratio_percent", 0.1, 10},
      {"wall.reinforcement.cap_beam.largest_ratio_percent", 0.1, 10},
      // Es / Ec from 5 at once to 20 after long loading.
      {"wall.reinforcement.modular_ratio", 5, 25},
      // EN 206, C8/10 to C100/115.
      {"wall.reinforcement.concrete.cube_strength_MPa", 10, 115},
      // EN 1992-1-1, 3.1.6: 0.8 to 1.
      {"wall.reinforcement.concrete.alpha_cc", 0.6, 1},
      {"wall.reinforcement.concrete.partial_factor", 1, 2},
      // EN 1992-1-1, table 3.1: 0.002 to 0.0026, and 0.0026 to 0.0035.
      {"wall.reinforcement.concrete.strain_at_peak", 0.0015, 0.004},
      {"wall.reinforcement.concrete.ultimate_strain", 0.002, 0.006},
      // Smooth bars of old works, 215, to high strength; EN 1992-1-1, 3.2.2, has 400 to 600.
      {"wall.reinforcement.steel.yield_strength_MPa", 200, 1000},
      {"wall.reinforcement.steel.partial_factor", 1, 1.5},
      // EN 1992-1-1, 3.2.7: 200.
      {"wall.reinforcement.steel.E_GPa", 150, 250},
      // EN 1992-1-1, annex C: 0.025 and more; k from 1.05 to 1.35.
      {"wall.reinforcement.steel.ultimate_strain", 0.005, 0.3},
      {"wall.reinforcement.steel.hardening_ratio", 1, 1.6},
      // EN 1997-1, table A.10: 1.0 to 1.4; NTC 2008, tables 6.4.IV and 6.6.II, to 1.8.
      {"wall.vertical_bearing.xi_3", 1, 2.5},
      {"wall.vertical_bearing.xi_4", 1, 2.5},
      {"wall.vertical_bearing.group_efficiency", 0.3, 2},
      {"excavation_depth_m", 0.5, 60},
      // Buoyant weights (8 to 12), for ground entered without water, to ores.
      {"soils[].unit_weight_kN_m3", 6, 28},
      {"soils[].saturated_unit_weight_kN_m3", 10.5, 30},
      // Residual angles of plastic clays, 5 and more, to crushed rock. Radians lie far below.
      {"soils[].friction_angle_deg", 5, 50, or_zero},
      {"soils[].wall_friction_angle_deg", 1, 45, or_zero},
      // Undrained strength of soft clay to weak rock.
      {"soils[].cohesion_kPa", 0.5, 1000, or_zero},
      {"soils[].adhesion_kPa", 0.5, 500, or_zero},
      // Peat and soft clay to weak rock.
      {"soils[].E_MPa", 0.3, 5000},
      {"soils[].constrained_modulus_MPa", 0.3, 10000},
      {"soils[].overconsolidation_ratio", 1, 50},
      // Intact clay to open gravel (Terzaghi and Peck, 1967: to about 1 m/s).
      {"soils[].permeability_m_s", 1e-13, 1, or_zero},
      {"ground.retained_width_m", 5, 1000},
      {"ground.excavated_width_m", 2, 1000},
      {"water.retained_level_m", 0, 200},
      {"water.excavated_level_m", 0, 200},
      // EN 1537: mostly 10 to 45 degrees; upwards, a bulb soon meets the ground's surface.
      {"anchors[].inclination_deg", 0, 60},
      {"anchors[].free_length_m", 1, 80},
      {"anchors[].bond_length_m", 1, 40},
      // One strand of 93 mm² to a bundle of 27 of 150 mm², and the largest bars.
      {"anchors[].tendon_area_mm2", 50, 20000},
      // Glass fibre 40; strands and bars 185 to 205 (EN 1992-1-1, 3.3.6).
      {"anchors[].E_GPa", 40, 250},
      {"anchors[].prestress_kN", 5, 10000, or_zero},
      {"anchors[].bond_diameter_mm", 50, 800},
      // Bustamante and Doix (1985): 1.1 to 2.
      {"anchors[].bond_enlargement", 1, 3},
      // Mild steel to strands (EN 10138: 1860 of strength).
      {"anchors[].yield_strength_MPa", 200, 2000},
      {"anchors[].steel_factor", 1, 1.5},
      // NTC 2008, table 6.6.II: 1.55 to 1.8.
      {"anchors[].xi_3", 1, 2.5},
      {"anchors[].xi_4", 1, 2.5},
      // Bustamante and Doix (1985): to 1 MPa in gravel; rock more.
      {"anchors[].bond.adhesion_kPa", 5, 5000, or_zero},
      {"anchors[].bond.friction_angle_deg", 3, 50, or_zero},
      // From a footpath to stacked goods.
      {"loads[].on_ground[].value_kPa", 0.5, 1000, or_zero},
      {"loads[].on_ground[].end_value_kPa", 0.5, 1000, or_zero},
      {"loads[].on_ground[].value_kN_m", 0.5, 5000, or_zero},
      {"loads[].on_ground[].value_kN", 0.5, 20000, or_zero},
      {"loads[].on_ground[].width_m", 0.1, 200},
      {"loads[].on_wall[].horizontal_kN", 0.05, 20000, or_zero},
      {"loads[].on_wall[].vertical_kN", 0.05, 20000, or_zero},
      {"loads[].on_wall[].moment_kNm", 0.05, 20000, or_zero},
      // Factors divide strengths and resistances: below 1 they would raise them. EN 1997-1, annex A:
      // 1.0 to 1.4 on soils, to 1.6 on resistances; NTC 2008, table 6.4.II, to 2.3.
      {"combinations[].soil_factors.friction_angle", 1, 2},
      {"combinations[].soil_factors.wall_friction_angle", 1, 2},
      {"combinations[].soil_factors.cohesion", 1, 2},
      {"combinations[].soil_factors.undrained_strength", 1, 2},
      {"combinations[].soil_factors.unit_weight", 1, 1.5},
      {"combinations[].resistance_factors.*", 1, 3},
      // EN 1997-1, annex A: 0 to 1.5.
      {"combinations[].actions.*", 0, 2},
      {"combinations[].actions.*.favourable", 0, 2},
      {"combinations[].actions.*.unfavourable", 0, 2},
      {"combinations[].actions.loads.*", 0, 2},
      {"combinations[].actions.loads.*.favourable", 0, 2},
      {"combinations[].actions.loads.*.unfavourable", 0, 2},
      // NTC 2008, table 3.2.VI: 1.0 to 1.4.
      {"combinations[].seismic.topographic_factor", 1, 2},
      // Half of gravity on rock is the strongest earthquake of most maps.
      {"combinations[].seismic.kh", 0, 0.6},
      {"seismic.ag_g", 0.005, 0.7},
      // "Halve and double" is the trial that every run deserves; this is far beyond.
      {"spring_intervals[].stiffness_factor", 0.05, 20},
      {"supports.fixed[].horizontal_mm", 0, 500},
      {"supports.fixed[].vertical_mm", 0, 500},
      {"supports.fixed[].rotation_mrad", 0, 200},
      // A timber prop is softer than 1e5 kN/m, a slab stiffer than 1e6.
      {"supports.elastic[].horizontal_kN_m", 50, 1e8, or_zero},
      {"supports.elastic[].vertical_kN_m", 50, 1e8, or_zero},
      // Some elements along the embedded length; much finer ones only take time.
      {"calculation.node_spacing_mm", 10, 1000},
      // One inch (Bowles) or, by EN 1997-1, annex C, a few hundredths of the embedded length.
      {"calculation.spring_limit_mm", 1, 300},
      {"calculation.tolerance_mm", 1e-9, 0.1},
      {"calculation.max_iterations", 10, 100000},
  };
  return ranges;
}

void remark_upon_unusual_numbers(const Json& project, Problems& problems) {
  for (const UsualRange& range : usual_ranges()) {
    Search(range, problems).follow(project, range.field, "");
  }
}

}  // namespace ostrel::host
