// SPDX-License-Identifier: Apache-2.0
#include "project_file.h"

#include "json_text.h"
#include "presets.h"
#include "project_checks.h"
#include "project_parts.h"
#include "schema_validation.h"
#include "seismic_coefficients.h"
#include "unusual_numbers.h"

#include <fmt/ranges.h>

#include <set>
#include <utility>

namespace ostrel::host {

namespace {

SpringIntervalInput read_spring_interval(const ValueReader& value) {
  ObjectReader fields = value.object();
  SpringIntervalInput interval;
  interval.start = fields.number_or("from", 0.0, Range::between(0.0, 1.0));
  interval.end = fields.number_or("to", 1.0, {.least = interval.start, .most = 1.0});
  if (const auto limit = fields.optional("limit")) {
    interval.limit = static_cast<xSpringInterval::QlimSpring>(
        limit->choice({"bearing_capacity", "passive", "smaller"}));
  }
  interval.stiffness_factor = fields.number_or("stiffness_factor", 1.0, Range::above(0.0));
  return interval;
}

std::optional<double> read_part(ObjectReader& fields, const char* name, const Range& range) {
  const auto value = fields.unless_null(name);
  return value ? std::optional(value->number(range)) : std::nullopt;
}

SupportInput read_support(const ValueReader& value, bool fixed) {
  const Range range = fixed ? Range::any() : Range::at_least(0.0);
  ObjectReader fields = value.object();
  SupportInput support;
  support.level_m = fields.number("level_m", Range::between(-1e3, 0.0));
  support.horizontal = read_part(fields, fixed ? "horizontal_mm" : "horizontal_kN_m", range);
  support.vertical = read_part(fields, fixed ? "vertical_mm" : "vertical_kN_m", range);
  support.rotation = read_part(fields, fixed ? "rotation_mrad" : "rotation_kNm", range);
  return support;
}

void read_supports(const ValueReader& value, Project& project) {
  ObjectReader fields = value.object();
  for (const ValueReader& entry : fields.items_or_none("fixed")) {
    project.fixed_supports.push_back(read_support(entry, true));
  }
  for (const ValueReader& entry : fields.items_or_none("elastic")) {
    project.elastic_supports.push_back(read_support(entry, false));
  }
}

formulType read_formula(ObjectReader& fields, const char* name, formulType otherwise) {
  const auto value = fields.optional(name);
  if (!value) return otherwise;
  return static_cast<formulType>(
      value->choice({"at_rest", "rankine", "coulomb", "mononobe_okabe", "wood"}));
}

CalculationInput read_calculation(const ValueReader& value) {
  ObjectReader fields = value.object();
  CalculationInput calculation;
  calculation.earth_pressure = read_formula(fields, "earth_pressure", calculation.earth_pressure);
  calculation.seismic_earth_pressure =
      read_formula(fields, "seismic_earth_pressure", calculation.seismic_earth_pressure);
  calculation.node_spacing_mm =
      fields.number_or("node_spacing_mm", calculation.node_spacing_mm, Range::above(0.0));
  calculation.spring_limit_mm =
      fields.number_or("spring_limit_mm", calculation.spring_limit_mm, Range::above(0.0));
  calculation.linear = fields.flag_or("linear", false);
  calculation.tolerance_mm =
      fields.number_or("tolerance_mm", calculation.tolerance_mm, Range::above(0.0));
  calculation.max_iterations =
      fields.integer_or("max_iterations", calculation.max_iterations, 1, 100000);
  return calculation;
}

Names read_named_parts(ObjectReader& fields, Project& project) {
  Names soils;
  if (const auto part = fields.required("soils")) {
    project.soils = read_soils(*part);
    if (part->json().is_array()) soils = names_of(project.soils, part->items());
  }
  if (const auto part = fields.required("ground")) project.ground = read_ground(*part, soils);
  Names loads;
  if (const auto part = fields.optional("loads")) {
    for (const ValueReader& entry : part->items()) {
      project.loads.push_back(read_load(entry));
    }
    if (part->json().is_array()) loads = names_of(project.loads, part->items());
  }
  return loads;
}

// A standard that was refused would have added combinations.
void read_combinations(ObjectReader& fields, const Names& loads, Project& project) {
  const bool without_standard = fields.problems().has_error_at("standard");
  const auto part =
      without_standard ? fields.optional("combinations") : fields.required("combinations");
  if (!part) return;
  const std::vector<ValueReader> entries = part->items();
  for (const ValueReader& entry : entries) {
    project.combinations.push_back(read_combination(entry, loads, project.seismic));
  }
  names_of(project.combinations, entries);
  if (part->json().is_array() && entries.empty() && !without_standard) {
    part->refuse(std::string(part->problems().texts()(Text::a_list_not_empty)));
  }
}

Project read_fields(ObjectReader& fields) {
  Project project;
  fields.optional("$schema");
  fields.integer("format", 1, 1);
  project.name = fields.text("name");
  project.description = fields.text_or("description", "");
  if (const auto part = fields.required("wall")) project.wall = read_wall(*part);
  project.excavation_depth_m = fields.number("excavation_depth_m", Range::above(0.0));
  const Names loads = read_named_parts(fields, project);
  if (const auto part = fields.unless_null("water")) project.water = read_water(*part);
  for (const ValueReader& entry : fields.items_or_none("anchors")) {
    project.anchors.push_back(read_anchor(entry));
  }
  fields.optional("standard");  // written out before
  if (const auto part = fields.unless_null("seismic")) project.seismic = read_seismic_site(*part);
  read_combinations(fields, loads, project);
  for (const ValueReader& entry : fields.items_or_none("spring_intervals")) {
    project.spring_intervals.push_back(read_spring_interval(entry));
  }
  if (project.spring_intervals.empty()) project.spring_intervals.emplace_back();
  if (const auto part = fields.optional("supports")) read_supports(*part, project);
  const auto slope = fields.unless_null("slope");
  project.slope = slope ? read_slope(*slope, project) : default_slope(project);
  if (const auto part = fields.optional("calculation")) {
    project.calculation = read_calculation(*part);
  }
  return project;
}

std::vector<std::string> notes_of(const Expansion& expansion, const Project& project,
                                  const Texts& texts) {
  std::vector<std::string> notes;
  if (project.seismic) notes.push_back(seismic_line(*project.seismic, texts));
  if (!expansion.standard.empty()) {
    const std::size_t added = expansion.added.size();
    notes.push_back(texts(added == 1 ? Text::standard_expanded_by_one : Text::standard_expanded,
                          expansion.standard, added));
  }
  std::set<std::string> clauses;
  for (const CombinationInput& combination : project.combinations) {
    clauses.insert(combination.to_be_confirmed.begin(), combination.to_be_confirmed.end());
  }
  if (!clauses.empty()) {
    notes.push_back(texts(Text::standard_unconfirmed, fmt::format("{}", fmt::join(clauses, "; "))));
  }
  return notes;
}

}  // namespace

std::string quoted_list(const std::vector<std::string>& names) {
  return fmt::format("\"{}\"", fmt::join(names, "\", \""));
}

void refuse_repeated_name(const ValueReader& entry, const std::string& name) {
  entry.problems().add(child_path(entry.path(), "name"), quoted_list({name}),
                       std::string(entry.problems().texts()(Text::a_name_of_its_own)));
}

std::string known_names(const Names& names, const Texts& texts) {
  if (names.empty()) return std::string(texts(Text::no_names));
  std::vector<std::string> known;
  for (const auto& [name, position] : names) {
    known.push_back(name);
  }
  return texts(Text::one_of, quoted_list(known));
}

std::size_t position_of(const ValueReader& value, const Names& names) {
  const auto found =
      value.json().is_string() ? names.find(value.json().get<std::string>()) : names.end();
  if (found != names.end()) return found->second;
  value.refuse(known_names(names, value.problems().texts()));
  return 0;
}

std::optional<Project> read_project(std::string_view text, Problems& problems,
                                    const ProjectReading& reading) {
  auto json = parse_json(text, problems);
  if (!json) return std::nullopt;
  const Expansion expansion = expand_presets(
      *json, reading.presets != nullptr ? *reading.presets : built_in_presets(), problems);
  const ReadingRules rules{.comments = true, .asked = reading.asked};
  Project project;
  {
    ObjectReader fields = ValueReader(*json, "", problems, rules).object();
    project = read_fields(fields);
  }
  for (std::size_t i = 0; i < expansion.added.size(); ++i) {
    const std::size_t own = (*json)["combinations"].size() - expansion.added.size();
    problems.rename(child_path("combinations", own + i), "standard",
                    fmt::format("standard ({})", expansion.added[i]));
  }
  if (reading.by_schema) check_schema(*json, problems);
  check_project(project, problems);
  remark_upon_unusual_numbers(*json, problems);
  if (!problems.empty()) return std::nullopt;
  project.standard = expansion.standard;
  project.notes = notes_of(expansion, project, problems.texts());
  return project;
}

}  // namespace ostrel::host
