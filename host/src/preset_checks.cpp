// SPDX-License-Identifier: Apache-2.0
#include "preset_checks.h"

#include "json_text.h"
#include "project_parts.h"

#include <optional>
#include <string>

namespace ostrel::host {

namespace {

using Json = nlohmann::json;

const Range not_negative = Range::at_least(0.0);
const Range factor = {.least = 0.0, .most = 100.0, .least_included = false};

// The entries of an object whose names are free; a comment is none of them.
std::vector<std::pair<std::string, ValueReader>> named_entries(const ValueReader& value) {
  std::vector<std::pair<std::string, ValueReader>> entries;
  if (!value.json().is_object()) {
    value.refuse(std::string(value.problems().texts()(Text::an_object)));
    return entries;
  }
  for (const auto& [name, entry] : value.json().items()) {
    if (name == "comment") continue;
    entries.emplace_back(
        name, ValueReader(entry, child_path(value.path(), name), value.problems(), value.rules()));
  }
  return entries;
}

// The names of a group of sets, each with what `check_set` finds wrong in it.
template <class Check>
Names check_sets(ObjectReader& standard, const char* group, const Check& check_set) {
  Names names;
  const auto sets = standard.required(group);
  if (!sets) return names;
  for (const auto& [name, set] : named_entries(*sets)) {
    names.emplace(name, names.size());
    check_set(set);
  }
  return names;
}

void check_source(ObjectReader& fields) {
  if (const auto clause = fields.required("clause")) clause->text_not_empty();
  fields.text_or("status", "");
}

void check_action(const ValueReader& value, bool variable) {
  ObjectReader fields = value.object();
  fields.number("favourable", not_negative);
  fields.number("unfavourable", not_negative);
  const auto times = variable ? fields.optional("times") : std::nullopt;
  if (times) times->choice({"psi_1", "psi_2"});
}

void check_action_set(const ValueReader& value) {
  ObjectReader fields = value.object();
  check_source(fields);
  if (const auto part = fields.required("permanent")) check_action(*part, false);
  if (const auto part = fields.required("variable")) check_action(*part, true);
}

void check_soil_set(const ValueReader& value) {
  ObjectReader fields = value.object();
  check_source(fields);
  for (const std::string& name : soil_factor_names()) {
    fields.number_or(name, 1.0, factor);
  }
}

// One value, one for temporary and one for permanent anchors, or one for each way to make a pile.
void check_resistance(const ValueReader& value) {
  ObjectReader fields = value.object();
  check_source(fields);
  if (fields.optional("permanent")) {
    fields.number("permanent", factor);
    fields.number("temporary", factor);
  } else if (fields.optional("bored")) {
    for (const char* way : {"driven", "bored", "augered"}) {
      fields.number(way, factor);
    }
  } else {
    fields.number("value", factor);
  }
}

void check_resistance_set(const ValueReader& value) {
  ObjectReader fields = value.object();
  for (const std::string& name : resistance_factor_names()) {
    if (const auto row = fields.optional(name)) check_resistance(*row);
  }
}

struct SetNames {
  Names actions;
  Names soil;
  Names resistances;
};

void check_action_names(const ValueReader& value, const Names& actions) {
  if (!value.json().is_object()) {
    position_of(value, actions);
    return;
  }
  ObjectReader fields = value.object();
  for (const char* part : {"structural", "geotechnical"}) {
    if (const auto name = fields.required(part)) position_of(*name, actions);
  }
}

void check_combination(const ValueReader& value, const SetNames& sets) {
  ObjectReader fields = value.object();
  if (const auto name = fields.required("name")) name->text_not_empty();
  if (const auto type = fields.required("type")) type->choice(combination_types());
  if (const auto clause = fields.required("clause")) clause->text_not_empty();
  if (const auto actions = fields.required("actions")) check_action_names(*actions, sets.actions);
  if (const auto soil = fields.required("soil")) position_of(*soil, sets.soil);
  for (const ValueReader& name : fields.items("resistances")) {
    position_of(name, sets.resistances);
  }
  for (const ValueReader& check : fields.items("checks")) {
    check.choice(verification_names());
  }
  fields.flag_or("always", false);
}

void check_standard(const ValueReader& value) {
  ObjectReader fields = value.object();
  fields.text("title");
  SetNames sets;
  sets.actions = check_sets(fields, "actions", check_action_set);
  sets.soil = check_sets(fields, "soil", check_soil_set);
  sets.resistances = check_sets(fields, "resistances", check_resistance_set);
  for (const ValueReader& entry : fields.items("combinations")) {
    check_combination(entry, sets);
  }
}

}  // namespace

void check_presets(const Json& presets, Problems& problems) {
  const ReadingRules rules{.comments = true};
  ObjectReader fields = ValueReader(presets, "", problems, rules).object();
  fields.integer_or("format", 1, 1, 1);
  const auto standards = fields.required("standards");
  if (!standards) return;
  for (const auto& [name, standard] : named_entries(*standards)) {
    check_standard(standard);
  }
}

}  // namespace ostrel::host
