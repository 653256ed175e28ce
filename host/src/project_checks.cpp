// SPDX-License-Identifier: Apache-2.0
//
// A wrong number was read as NaN: each test here states what is wrong, so that NaN passes and is
// told once only.
#include "project_checks.h"

#include "action_checks.h"
#include "ground_checks.h"
#include "json_text.h"
#include "layout_checks.h"
#include "questionable_circles.h"
#include "search_size.h"
#include "section_checks.h"
#include "signing_checks.h"
#include "verification_checks.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <set>
#include <string>

namespace ostrel::host {

namespace {

constexpr double most_nodes = 5000.0;

std::string shown(double number) {
  return fmt::format("{}", number);
}

void check_levels(const Project& project, Problems& problems) {
  const double length = project.wall.length_m;
  const auto check = [&](const std::string& path, double level) {
    if (level < -length) {
      problems.add(child_path(path, "level_m"), shown(level),
                   problems.texts()(Text::a_level_on_the_wall, -length));
    }
  };
  for (std::size_t i = 0; i < project.anchors.size(); ++i) {
    check(child_path("anchors", i), project.anchors[i].level_m);
  }
  for (std::size_t i = 0; i < project.fixed_supports.size(); ++i) {
    check(child_path("supports.fixed", i), project.fixed_supports[i].level_m);
  }
  for (std::size_t i = 0; i < project.elastic_supports.size(); ++i) {
    check(child_path("supports.elastic", i), project.elastic_supports[i].level_m);
  }
  for (std::size_t i = 0; i < project.loads.size(); ++i) {
    const std::string loads = child_path(child_path("loads", i), "on_wall");
    for (std::size_t j = 0; j < project.loads[i].on_wall.size(); ++j) {
      check(child_path(loads, j), project.loads[i].on_wall[j].level_m);
    }
  }
}

void check_wall(const Project& project, Problems& problems) {
  const Texts& texts = problems.texts();
  const WallInput& wall = project.wall;
  if (project.excavation_depth_m >= wall.length_m) {
    problems.add("excavation_depth_m", shown(project.excavation_depth_m),
                 texts(Text::above_the_foot, wall.length_m));
  }
  if (wall.length_m * 1e3 / project.calculation.node_spacing_mm > most_nodes) {
    problems.add("calculation.node_spacing_mm", shown(project.calculation.node_spacing_mm),
                 texts(Text::number_of_nodes, most_nodes));
  }
  if (!wall.is_diaphragm && wall.diameter_mm > wall.spacing_m * 1e3) {
    problems.remark("wall.spacing_m", std::string(texts(Text::piles_overlap)));
  }
}

void check_soils(const Project& project, Problems& problems) {
  const Texts& texts = problems.texts();
  std::set<std::size_t> used;
  for (const LayerInput& layer : project.ground.layers) {
    used.insert(layer.soil);
  }
  for (std::size_t i = 0; i < project.soils.size(); ++i) {
    const SoilInput& soil = project.soils[i];
    const std::string path = child_path("soils", i);
    if (soil.wall_friction_angle_deg > soil.friction_angle_deg) {
      problems.remark(child_path(path, "wall_friction_angle_deg"),
                      std::string(texts(Text::wall_rougher_than_soil)));
    }
    if (soil.saturated_unit_weight_kN_m3 < soil.unit_weight_kN_m3) {
      problems.remark(child_path(path, "saturated_unit_weight_kN_m3"),
                      std::string(texts(Text::saturated_lighter)));
    }
    if (!project.ground.layers.empty() && !used.contains(i)) {
      problems.remark(path, std::string(texts(Text::soil_not_used)));
    }
  }
}

void check_water(const Project& project, Problems& problems) {
  if (!project.water) return;
  const Texts& texts = problems.texts();
  const WaterInput& water = *project.water;
  if (water.retained_level_m < 0.0) {
    problems.remark("water.retained_level_m", std::string(texts(Text::water_below_head)));
  }
  if (water.retained_level_m > 0.0) {
    problems.remark("water.retained_level_m", std::string(texts(Text::water_above_head)));
  }
  if (water.excavated_level_m > water.retained_level_m) {
    problems.remark("water.excavated_level_m", std::string(texts(Text::water_higher_in_front)));
  }
}

// The stretches of the embedded length that no interval holds would stop every combination.
void check_spring_intervals(const Project& project, Problems& problems) {
  std::vector<std::array<double, 2>> spans;
  for (const SpringIntervalInput& interval : project.spring_intervals) {
    spans.push_back({interval.start, interval.end});
  }
  std::sort(spans.begin(), spans.end());
  double covered = 0.0;
  for (const auto& [start, end] : spans) {
    if (start > covered + 1e-6) break;
    covered = std::max(covered, end);
  }
  if (covered < 1.0 - 1e-6) {
    problems.remark("spring_intervals", problems.texts()(Text::springs_missing, covered));
  }
}

// A wall that moves has to be allowed to, and never by more than 0.005 of its height.
void check_seismic_site(const Project& project, Problems& problems) {
  if (!project.seismic) return;
  const SeismicSiteInput& site = *project.seismic;
  const double most = 0.005 * project.wall.length_m * 1e3;
  if (site.admissible_displacement_mm > most) {
    problems.add("seismic.admissible_displacement_mm", shown(site.admissible_displacement_mm),
                 problems.texts()(Text::share_of_the_wall, most));
  }
  if (site.beta < 1.0 && site.admissible_displacement_mm <= 0.0) {
    problems.add("seismic.beta", shown(site.beta),
                 std::string(problems.texts()(Text::needs_displacement)));
  }
}

void check_combination(const Project& project, const CombinationInput& combination,
                       const std::string& path, Problems& problems) {
  const Texts& texts = problems.texts();
  const bool seismic = combination.kind == combSeismic;
  const bool shaken = combination.kh > 0.0;
  if (seismic != shaken) {
    problems.remark(child_path(path, "seismic"),
                    std::string(texts(seismic ? Text::seismic_at_rest : Text::shaken_not_seismic)));
  }
  check_verifications(project, combination, path, problems);
}

}  // namespace

void check_project(const Project& project, Problems& problems) {
  check_wall(project, problems);
  check_soils(project, problems);
  check_levels(project, problems);
  check_water(project, problems);
  check_spring_intervals(project, problems);
  check_layout(project, problems);
  check_sections(project, problems);
  check_seismic_site(project, problems);
  check_actions(project, problems);
  for (std::size_t i = 0; i < project.combinations.size(); ++i) {
    check_combination(project, project.combinations[i], child_path("combinations", i), problems);
  }
  // The ground is looked at along the wall, which needs sound numbers throughout.
  if (problems.empty()) {
    check_ground(project, problems);
    check_bulbs(project, problems);
    check_search_size(project, problems);
    remark_upon_circles(project, problems);
    check_before_signing(project, problems);
  }
}

}  // namespace ostrel::host
