// SPDX-License-Identifier: Apache-2.0
#include "action_checks.h"

#include "json_text.h"
#include "project_parts.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace ostrel::host {

namespace {

bool speaks_of(const CombinationInput& combination, std::size_t load) {
  return load < combination.loads.size() && combination.loads[load].named;
}

// Whether each load is spoken of anywhere.
std::vector<bool> named_loads(const Project& project) {
  std::vector<bool> named(project.loads.size(), false);
  for (std::size_t i = 0; i < named.size(); ++i) {
    named[i] =
        std::any_of(project.combinations.begin(), project.combinations.end(),
                    [i](const CombinationInput& combination) { return speaks_of(combination, i); });
  }
  return named;
}

void check_factors(const ActionInput& action, const std::string& path, Problems& problems) {
  if (!action.active || !(action.favourable > action.unfavourable)) return;
  problems.remark(
      path, problems.texts()(Text::favourable_exceeds, action.favourable, action.unfavourable));
}

void check_combination(const Project& project, const CombinationInput& combination,
                       const std::vector<bool>& named, const std::string& path,
                       Problems& problems) {
  const std::string actions = child_path(path, "actions");
  check_factors(combination.self_weight, child_path(actions, "self_weight"), problems);
  check_factors(combination.earth_pressure, child_path(actions, "earth_pressure"), problems);
  check_factors(combination.water_pressure, child_path(actions, "water_pressure"), problems);
  std::vector<std::string> left_out;
  for (std::size_t i = 0; i < project.loads.size(); ++i) {
    if (speaks_of(combination, i)) {
      check_factors(combination.loads[i],
                    child_path(child_path(actions, "loads"), project.loads[i].name), problems);
    } else if (named[i]) {
      left_out.push_back(project.loads[i].name);
    }
  }
  if (left_out.empty()) return;
  problems.remark(child_path(actions, "loads"),
                  problems.texts()(Text::loads_left_out, quoted_list(left_out)));
}

}  // namespace

void check_actions(const Project& project, Problems& problems) {
  const std::vector<bool> named = named_loads(project);
  for (std::size_t i = 0; i < named.size() && !project.combinations.empty(); ++i) {
    if (named[i]) continue;
    problems.remark(child_path("loads", i), std::string(problems.texts()(Text::load_never_acts)));
  }
  for (std::size_t i = 0; i < project.combinations.size(); ++i) {
    check_combination(project, project.combinations[i], named, child_path("combinations", i),
                      problems);
  }
}

}  // namespace ostrel::host
