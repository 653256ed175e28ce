// SPDX-License-Identifier: Apache-2.0
#include "search_size.h"

#include "phrases.h"
#include "slope_grid.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

namespace ostrel::host {

namespace {

constexpr double most_stripes = 1e4;
constexpr double most_slices = 1e9;

constexpr Phrase few_stripes{"una larghezza che dia al massimo {0} strisce",  // number
                             "a width that gives at most {0} stripes"};
constexpr Phrase few_slices{"al massimo {0} conci: cerchi per strisce per combinazioni",  // number
                            "at most {0} slices: circles by stripes by combinations"};
constexpr Phrase search_found{"{0} cerchi, {1} strisce, {2} combinazioni",  // numbers
                              "{0} circles, {1} stripes, {2} combinations"};

double searching_combinations(const Project& project) {
  const auto searches = [](const CombinationInput& combination) {
    const auto& checks = combination.checks;
    return std::find(checks.begin(), checks.end(), checkGlobalStability) != checks.end();
  };
  return static_cast<double>(
      std::count_if(project.combinations.begin(), project.combinations.end(), searches));
}

}  // namespace

double number_of_stripes(const Project& project) {
  const std::optional<GroundBox> ground = ground_box(project.ground);
  if (!project.slope || !ground) return 0.0;
  return std::trunc((ground->right - ground->left) / project.slope->stripe_width_m + 1.0);
}

double number_of_circles(const SlopeInput& slope) {
  double circles = 0.0;
  for (const SlopeCentreInput& centre : slope.centres) {
    const double range = centre.largest_radius_m - centre.least_radius_m;
    circles += std::trunc(range / slope.radius_step_m) + 1.0;
  }
  return circles;
}

void check_search_size(const Project& project, Problems& problems) {
  const double searches = searching_combinations(project);
  if (!project.slope || !(searches > 0.0)) return;
  const Texts& texts = problems.texts();
  const double stripes = number_of_stripes(project);
  if (!(stripes <= most_stripes)) {
    problems.add("slope.stripe_width_m", fmt::format("{}", project.slope->stripe_width_m),
                 few_stripes.in(texts, most_stripes));
    return;
  }
  const double circles = number_of_circles(*project.slope);
  if (!(circles * stripes * searches <= most_slices)) {
    problems.add("slope", search_found.in(texts, circles, stripes, searches),
                 few_slices.in(texts, most_slices));
  }
}

}  // namespace ostrel::host
