// SPDX-License-Identifier: Apache-2.0
// Readers of loads and combinations.
#include "json_text.h"
#include "project_parts.h"
#include "seismic_coefficients.h"

#include <algorithm>

namespace ostrel::host {

namespace {

const Range any_load = Range::between(-1e9, 1e9);
const Range not_negative = Range::at_least(0.0);
const Range factor = {.least = 0.0, .most = 100.0, .least_included = false};
const Range distance_m = Range::between(0.0, 1e4);

GroundLoadInput read_ground_load(const ValueReader& value) {
  using Kind = GroundLoadInput::Kind;
  ObjectReader fields = value.object();
  GroundLoadInput load;
  const auto type = fields.required("type");
  if (!type) return load;
  load.kind = static_cast<Kind>(type->choice({"uniform", "strip", "line", "point"}));
  switch (load.kind) {
    case Kind::uniform:
      load.value = fields.number("value_kPa", not_negative);
      break;
    case Kind::strip:
      load.value = fields.number("value_kPa", not_negative);
      load.end_value = fields.number_or("end_value_kPa", load.value, not_negative);
      load.distance_m = fields.number("distance_m", distance_m);
      load.width_m = fields.number("width_m", Range::above(0.0));
      break;
    case Kind::line:
      load.value = fields.number("value_kN_m", not_negative);
      load.distance_m = fields.number("distance_m", distance_m);
      break;
    case Kind::point:
      load.value = fields.number("value_kN", not_negative);
      load.distance_m =
          fields.number("distance_m", {.least = 0.0, .most = 1e4, .least_included = false});
      break;
  }
  return load;
}

WallLoadInput read_wall_load(const ValueReader& value) {
  ObjectReader fields = value.object();
  WallLoadInput load;
  load.level_m = fields.number("level_m", Range::between(-1e3, 0.0));
  if (const auto per = fields.optional("per")) load.per_metre = per->choice({"pile", "metre"}) == 1;
  load.horizontal_kN = fields.number_or("horizontal_kN", 0.0, any_load);
  load.vertical_kN = fields.number_or("vertical_kN", 0.0, any_load);
  load.moment_kNm = fields.number_or("moment_kNm", 0.0, any_load);
  return load;
}

// How many loads the project has: of equal names the first alone is in the list.
std::size_t number_of(const Names& loads) {
  std::size_t number = 0;
  for (const auto& [name, position] : loads) {
    number = std::max(number, position + 1);
  }
  return number;
}

// One number for both, or {"favourable": ..., "unfavourable": ...}; null switches the action off.
ActionInput read_action(const ValueReader& value) {
  ActionInput action;
  action.named = true;
  action.active = !value.is_null();
  if (value.is_null()) return action;
  if (!value.json().is_object()) {
    action.favourable = action.unfavourable = value.number(not_negative);
    return action;
  }
  ObjectReader fields = value.object();
  action.favourable = fields.number("favourable", not_negative);
  action.unfavourable = fields.number("unfavourable", not_negative);
  return action;
}

// One number, or two: on the soil as it presses, and on the soil as it resists.
std::array<double, 2> read_factor_pair(const ValueReader& value) {
  if (!value.json().is_array()) {
    const double both = value.number(factor);
    return {both, both};
  }
  const std::vector<ValueReader> pair = value.items(2);
  if (pair.size() != 2) return {1.0, 1.0};
  return {pair[0].number(factor), pair[1].number(factor)};
}

void read_soil_factors(const ValueReader& value, CombinationInput& combination) {
  const std::vector<std::string>& names = soil_factor_names();
  ObjectReader fields = value.object();
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (const auto pair = fields.optional(names[i])) {
      combination.soil_factors[i] = read_factor_pair(*pair);
    }
  }
}

void read_resistance_factors(const ValueReader& value, CombinationInput& combination) {
  const std::vector<std::string>& names = resistance_factor_names();
  ObjectReader fields = value.object();
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (const auto entry = fields.optional(names[i])) {
      combination.resistance_factors[static_cast<checkUlsFactors>(i)] = entry->number(factor);
    }
  }
}

void read_load_actions(const ValueReader& value, const Names& loads,
                       CombinationInput& combination) {
  if (!value.json().is_object()) {
    value.refuse(std::string(value.problems().texts()(Text::an_object)));
    return;
  }
  for (const auto& [name, entry] : value.json().items()) {
    const ValueReader action(entry, child_path(value.path(), name), value.problems(),
                             value.rules());
    const auto found = loads.find(name);
    if (found == loads.end()) {
      value.problems().add(action.path(),
                           std::string(value.problems().texts()(Text::unknown_field)),
                           known_names(loads, value.problems().texts()));
      continue;
    }
    combination.loads[found->second] = read_action(action);
  }
}

// Numbers, or true for those of the site.
void read_seismic(const ValueReader& value, const std::optional<SeismicSiteInput>& site,
                  CombinationInput& combination) {
  if (value.json().is_boolean()) {
    combination.of_site = site && value.json().get<bool>();
    if (!combination.of_site) {
      value.refuse(std::string(value.problems().texts()(Text::needs_seismic_site)));
      return;
    }
    const SeismicCoefficients found = seismic_coefficients(*site);
    combination.kh = found.kh;
    combination.kv = found.kv;
    combination.topographic_factor = found.topographic_factor;
    return;
  }
  ObjectReader fields = value.object();
  combination.kh = fields.number("kh", Range::from_below(0.0, 1.0));
  combination.kv = fields.number("kv", Range::inside(-1.0, 1.0));
  combination.slope_factor = fields.number_or("slope_stability_factor", 1.0, not_negative);
  combination.topographic_factor = fields.number_or("topographic_factor", 1.0, factor);
}

void read_actions(const ValueReader& value, const Names& loads, CombinationInput& combination) {
  ObjectReader fields = value.object();
  if (const auto part = fields.optional("self_weight")) {
    combination.self_weight = read_action(*part);
  }
  if (const auto part = fields.optional("earth_pressure")) {
    combination.earth_pressure = read_action(*part);
  }
  if (const auto part = fields.optional("water_pressure")) {
    combination.water_pressure = read_action(*part);
  }
  if (const auto part = fields.optional("loads")) read_load_actions(*part, loads, combination);
}

void read_checks(const ValueReader& value, CombinationInput& combination) {
  for (const ValueReader& entry : value.items()) {
    combination.checks.push_back(static_cast<pCheckTypes>(entry.choice(verification_names())));
  }
}

}  // namespace

const std::vector<std::string>& soil_factor_names() {
  static const std::vector<std::string> names{"friction_angle", "wall_friction_angle",
                                              "cohesion",       "undrained_strength",
                                              "unit_weight",    "permeability"};
  return names;
}

const std::vector<std::string>& resistance_factor_names() {
  static const std::vector<std::string> names{
      "soil_in_front",      "global_stability", "pile_base", "pile_shaft_compression",
      "pile_shaft_tension", "anchors",          "piping",    "uplift"};
  return names;
}

const std::vector<std::string>& combination_types() {
  static const std::vector<std::string> names{"ultimate", "seismic",         "rare",
                                              "frequent", "quasi_permanent", "accidental"};
  return names;
}

const std::vector<std::string>& verification_names() {
  static const std::vector<std::string> names{
      "rigid_motion",    "vertical_bearing", "anchor_pull_out",   "global_stability",
      "anchor_strength", "wall_strength",    "cap_beam_strength", "piping",
      "uplift",          "displacements"};
  return names;
}

LoadInput read_load(const ValueReader& value) {
  ObjectReader fields = value.object();
  LoadInput load;
  if (const auto name = fields.required("name")) load.name = name->text_not_empty();
  if (const auto nature = fields.optional("nature")) {
    load.permanent = nature->choice({"permanent", "variable"}) == 0;
  }
  load.psi_1 = fields.number_or("psi_1", 1.0, Range::between(0.0, 1.0));
  load.psi_2 = fields.number_or("psi_2", 1.0, Range::between(0.0, 1.0));
  for (const ValueReader& entry : fields.items_or_none("on_ground")) {
    load.on_ground.push_back(read_ground_load(entry));
  }
  for (const ValueReader& entry : fields.items_or_none("on_wall")) {
    load.on_wall.push_back(read_wall_load(entry));
  }
  return load;
}

CombinationInput read_combination(const ValueReader& value, const Names& loads,
                                  const std::optional<SeismicSiteInput>& site) {
  ObjectReader fields = value.object();
  CombinationInput combination;
  combination.loads.resize(number_of(loads));
  if (const auto name = fields.required("name")) combination.name = name->text_not_empty();
  if (const auto type = fields.required("type")) {
    combination.kind = static_cast<pCombinationTypes>(type->choice(combination_types()));
  }
  if (const auto part = fields.optional("soil_factors")) read_soil_factors(*part, combination);
  if (const auto part = fields.optional("resistance_factors")) {
    read_resistance_factors(*part, combination);
  }
  if (const auto part = fields.optional("actions")) read_actions(*part, loads, combination);
  if (const auto part = fields.unless_null("seismic")) read_seismic(*part, site, combination);
  if (const auto part = fields.optional("checks")) read_checks(*part, combination);
  for (const ValueReader& entry : fields.items_or_none("to_be_confirmed")) {
    combination.to_be_confirmed.push_back(entry.text_not_empty());
  }
  return combination;
}

}  // namespace ostrel::host
