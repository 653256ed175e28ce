// SPDX-License-Identifier: Apache-2.0
#include "layout_checks.h"

#include "json_text.h"
#include "project_conversion.h"
#include "slope_grid.h"
#include "units.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <optional>
#include <string>
#include <vector>

namespace ostrel::host {

namespace {

using Vertex = arma::Col<double>::fixed<2>;

constexpr double same_place = 1e-6;  // of the embedded length, as the library joins intervals

std::string shown(double number) {
  return fmt::format("{}", number);
}

// The spring of a node takes its part from two neighbours: there have to be three.
void check_nodes(const Project& project, Problems& problems) {
  const double embedded = (project.wall.length_m - project.excavation_depth_m) * 1e3;
  const double spacing = project.calculation.node_spacing_mm;
  if (!(embedded > 0.0) || !(spacing > embedded / 2.0)) return;
  problems.add("calculation.node_spacing_mm", shown(spacing),
               problems.texts()(Text::nodes_for_springs, embedded / 2.0));
}

void check_anchors(const Project& project, Problems& problems) {
  for (std::size_t i = 0; i < project.anchors.size(); ++i) {
    if (!(project.anchors[i].level_m < -project.excavation_depth_m)) continue;
    problems.remark(child_path(child_path("anchors", i), "level_m"),
                    problems.texts()(Text::anchor_below_excavation, -project.excavation_depth_m));
  }
}

void check_supports(const std::vector<SupportInput>& supports, bool elastic, Problems& problems) {
  const auto holds = [elastic](const std::optional<double>& part) {
    return part.has_value() && !(elastic && *part <= 0.0);
  };
  for (std::size_t i = 0; i < supports.size(); ++i) {
    const SupportInput& support = supports[i];
    if (holds(support.horizontal) || holds(support.vertical) || holds(support.rotation)) continue;
    problems.remark(child_path(elastic ? "supports.elastic" : "supports.fixed", i),
                    std::string(problems.texts()(Text::support_holds_nothing)));
  }
}

// The first interval that holds a spring is the one that counts.
void check_overlaps(const std::vector<SpringIntervalInput>& intervals, Problems& problems) {
  for (std::size_t i = 1; i < intervals.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      const double from = std::max(intervals[i].start, intervals[j].start);
      const double to = std::min(intervals[i].end, intervals[j].end);
      if (!(to - from > same_place)) continue;
      problems.remark(
          child_path("spring_intervals", i),
          problems.texts()(Text::intervals_overlap, from, to, child_path("spring_intervals", j)));
      break;
    }
  }
}

void check_loads(const Project& project, Problems& problems) {
  const std::optional<GroundBox> ground = ground_box(project.ground);
  if (!ground) return;
  for (std::size_t i = 0; i < project.loads.size(); ++i) {
    const std::string loads = child_path(child_path("loads", i), "on_ground");
    for (std::size_t j = 0; j < project.loads[i].on_ground.size(); ++j) {
      const GroundLoadInput& load = project.loads[i].on_ground[j];
      const double end = load.distance_m + load.width_m;
      if (!(end > ground->right)) continue;
      problems.remark(child_path(child_path(loads, j), "distance_m"),
                      problems.texts()(Text::load_beyond_ground, end, ground->right));
    }
  }
}

// Whether a vertical ray from the point crosses the outline an odd number of times.
bool holds(const std::vector<Vertex>& polygon, const std::array<double, 2>& point) {
  bool inside = false;
  for (std::size_t i = 0; i + 1 < polygon.size(); ++i) {
    const Vertex& a = polygon[i];
    const Vertex& b = polygon[i + 1];
    if ((a(0) > point[0]) == (b(0) > point[0])) continue;
    const double crossing = a(1) + (b(1) - a(1)) * (point[0] - a(0)) / (b(0) - a(0));
    if (crossing > point[1]) inside = !inside;
  }
  return inside;
}

bool in_ground(const std::vector<xBoundSoilLayer>& layers, const std::array<double, 2>& point_mm) {
  return std::any_of(layers.begin(), layers.end(), [&](const xBoundSoilLayer& layer) {
    return std::any_of(
        layer.polygons.begin(), layer.polygons.end(),
        [&](const std::vector<Vertex>& polygon) { return holds(polygon, point_mm); });
  });
}

// A place on the axis of an anchor, so far from its head [m].
std::array<double, 2> place_on(const AnchorInput& anchor, double distance_m) {
  const double angle = rad_of_deg(anchor.inclination_deg);
  return {distance_m * std::cos(angle), anchor.level_m - distance_m * std::sin(angle)};
}

bool verifies_pull_out(const Project& project) {
  return std::any_of(project.combinations.begin(), project.combinations.end(),
                     [](const CombinationInput& combination) {
                       const auto& checks = combination.checks;
                       return std::find(checks.begin(), checks.end(), checkAnchorPullout)
                           != checks.end();
                     });
}

}  // namespace

void check_layout(const Project& project, Problems& problems) {
  check_nodes(project, problems);
  check_anchors(project, problems);
  check_supports(project.fixed_supports, false, problems);
  check_supports(project.elastic_supports, true, problems);
  check_overlaps(project.spring_intervals, problems);
  check_loads(project, problems);
}

void check_bulbs(const Project& project, Problems& problems) {
  const Texts& texts = problems.texts();
  const std::vector<xBoundSoilLayer> layers = to_soil_layers(project);
  const bool verified = verifies_pull_out(project);
  for (std::size_t i = 0; i < project.anchors.size(); ++i) {
    const AnchorInput& anchor = project.anchors[i];
    if (!(anchor.bond_length_m > 0.0)) continue;
    for (const double distance :
         {anchor.free_length_m, anchor.free_length_m + anchor.bond_length_m}) {
      const auto [x, y] = place_on(anchor, distance);
      if (in_ground(layers, {level_mm_of_m(x), level_mm_of_m(y)})) continue;
      const std::string path =
          child_path(child_path("anchors", i),
                     anchor.inclination_deg < 0.0 ? "inclination_deg" : "bond_length_m");
      const std::string found =
          texts(Text::bulb_outside, fmt::format("{:.2f}", x), fmt::format("{:.2f}", y));
      if (verified) {
        problems.add(path, found, std::string(texts(Text::bulb_in_ground)));
      } else {
        problems.remark(path, found);
      }
      break;
    }
  }
}

}  // namespace ostrel::host
