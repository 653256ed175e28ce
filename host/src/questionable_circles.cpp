// SPDX-License-Identifier: Apache-2.0
#include "questionable_circles.h"

#include "formulation_checks.h"
#include "slope_grid.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

namespace ostrel::host {

namespace {

bool searches_circles(const Project& project) {
  return std::any_of(project.combinations.begin(), project.combinations.end(),
                     [](const CombinationInput& combination) {
                       const auto& checks = combination.checks;
                       return std::find(checks.begin(), checks.end(), checkGlobalStability)
                           != checks.end();
                     });
}

}  // namespace

void remark_upon_circles(const Project& project, Problems& problems) {
  if (!project.slope || !searches_circles(project)) return;
  const Texts& texts = problems.texts();
  const SlopeInput& slope = *project.slope;
  const double length = project.wall.length_m;
  if (slope.stripe_width_m > length) {
    problems.remark("slope.stripe_width_m",
                    texts(Text::stripes_too_wide, slope.stripe_width_m, length));
  }
  const auto below_foot = [&](const SlopeCentreInput& centre) {
    const double to_foot = std::hypot(centre.x_m, centre.y_m + length);
    return last_radius(centre, slope.radius_step_m) >= to_foot;
  };
  if (std::none_of(slope.centres.begin(), slope.centres.end(), below_foot)) {
    problems.remark("slope", std::string(texts(Text::circles_above_foot)));
  }
  const std::optional<GroundBox> ground = ground_box(project.ground);
  const auto leaves = [&](const SlopeCentreInput& centre) {
    return last_radius(centre, slope.radius_step_m)
         > reach_within(centre, *ground, project.excavation_depth_m).radius_m;
  };
  if (ground && std::any_of(slope.centres.begin(), slope.centres.end(), leaves)) {
    problems.remark("slope", std::string(texts(Text::circles_leave_ground)));
  }
  check_formulation(project, problems);
}

}  // namespace ostrel::host
