// SPDX-License-Identifier: Apache-2.0
#include "presets.h"

#include "embedded_files.h"
#include "json_text.h"

#include <fmt/ranges.h>

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace ostrel::host {

namespace {

using Json = nlohmann::json;

const Json& field(const Json& object, const std::string& name) {
  static const Json nothing;
  if (!object.is_object()) return nothing;
  const auto found = object.find(name);
  return found == object.end() ? nothing : *found;
}

bool is_text(const Json& value, const char* text) {
  return value.is_string() && value.get_ref<const std::string&>() == text;
}

double number_or_one(const Json& value) {
  return value.is_number() ? value.get<double>() : 1.0;
}

class Expander {
public:
  Expander(const Json& project, const Json& standard) : project_(project), standard_(standard) {}

  std::vector<Json> combinations() {
    std::vector<Json> made;
    for (const Json& row : standard_.at("combinations")) {
      const bool seismic = is_text(row.at("type"), "seismic");
      if (seismic && !field(project_, "seismic").is_object()) continue;
      const Json checks = applicable(row.at("checks"));
      if (checks.empty() && !row.value("always", false)) continue;
      made.push_back(combination(row, checks, seismic));
    }
    return made;
  }

  std::vector<std::string> unconfirmed() const {
    return {unconfirmed_.begin(), unconfirmed_.end()};
  }

private:
  // What a number of the standard is worth: those that rest on nothing confirmed are gathered.
  void note(const Json& set) {
    if (is_text(field(set, "status"), "unconfirmed"))
      unconfirmed_.insert(set.at("clause").get<std::string>());
  }

  bool applies(const std::string& check) const {
    const Json& wall = field(project_, "wall");
    const Json& anchors = field(project_, "anchors");
    const bool anchored = anchors.is_array() && !anchors.empty();
    if (check == "anchor_strength" || check == "anchor_pull_out") return anchored;
    if (check == "cap_beam_strength") return field(wall, "cap_beam").is_object();
    if (check == "vertical_bearing") return field(wall, "vertical_bearing").is_object();
    if (check == "displacements") return field(wall, "displacement_limits").is_object();
    if (check == "piping" || check == "uplift") return field(project_, "water").is_object();
    if (check == "global_stability") return field(project_, "slope") != Json(false);
    return true;
  }

  Json applicable(const Json& checks) const {
    Json list = Json::array();
    for (const Json& check : checks) {
      if (applies(check.get<std::string>())) list.push_back(check);
    }
    return list;
  }

  Json combination(const Json& row, const Json& checks, bool seismic) {
    Json made = {{"comment", fmt::format("{}, {}", standard_.at("title").get<std::string>(),
                                         row.at("clause").get<std::string>())},
                 {"name", row.at("name")},
                 {"type", row.at("type")},
                 {"soil_factors", soil_factors(row.at("soil").get<std::string>())},
                 {"actions", actions(row.at("actions"))},
                 {"checks", checks}};
    Json resistances = Json::object();
    for (const Json& name : row.at("resistances"))
      add_resistances(standard_.at("resistances").at(name.get<std::string>()), checks, resistances);
    if (!resistances.empty()) made["resistance_factors"] = std::move(resistances);
    if (seismic) made["seismic"] = true;
    return made;
  }

  Json soil_factors(const std::string& name) {
    const Json& set = standard_.at("soil").at(name);
    note(set);
    Json factors = Json::object();
    for (const auto& [key, value] : set.items()) {
      if (value.is_number()) factors[key] = value;
    }
    return factors;
  }

  // One set for all actions, or one for those of the structure and one for those of the ground.
  Json actions(const Json& names) {
    const Json& sets = standard_.at("actions");
    const bool two = names.is_object();
    const Json& structural = sets.at((two ? names.at("structural") : names).get<std::string>());
    const Json& geotechnical = sets.at((two ? names.at("geotechnical") : names).get<std::string>());
    note(structural);
    note(geotechnical);
    Json actions = {{"self_weight", structural.at("permanent")},
                    {"earth_pressure", geotechnical.at("permanent")},
                    {"water_pressure", geotechnical.at("permanent")},
                    {"loads", Json::object()}};
    const Json& loads = field(project_, "loads");
    if (!loads.is_array()) return actions;
    for (const Json& load : loads) {
      const Json& name = field(load, "name");
      const Json& on_ground = field(load, "on_ground");
      const bool of_ground = on_ground.is_array() && !on_ground.empty();
      if (!name.is_string()) continue;
      actions["loads"][name.get<std::string>()] =
          load_action(load, of_ground ? geotechnical : structural);
    }
    return actions;
  }

  static Json load_action(const Json& load, const Json& set) {
    if (is_text(field(load, "nature"), "permanent")) return set.at("permanent");
    const Json& variable = set.at("variable");
    const Json& times = field(variable, "times");
    const double psi =
        times.is_string() ? number_or_one(field(load, times.get<std::string>())) : 1.0;
    return {{"favourable", psi * variable.at("favourable").get<double>()},
            {"unfavourable", psi * variable.at("unfavourable").get<double>()}};
  }

  // Only factors that a verification of the combination reads; that of the soil in front always.
  void add_resistances(const Json& set, const Json& checks, Json& factors) {
    static const std::map<std::string, std::string> readers{
        {"global_stability", "global_stability"},
        {"pile_base", "vertical_bearing"},
        {"pile_shaft_compression", "vertical_bearing"},
        {"pile_shaft_tension", "vertical_bearing"},
        {"anchors", "anchor_pull_out"},
        {"piping", "piping"},
        {"uplift", "uplift"}};
    for (const auto& [name, row] : set.items()) {
      const auto reader = readers.find(name);
      const bool is_read = reader == readers.end()
                        || std::find(checks.begin(), checks.end(), reader->second) != checks.end();
      if (!is_read) continue;
      note(row);
      factors[name] = row.at(column(row));
    }
  }

  // Which number of a row holds for this wall.
  std::string column(const Json& row) const {
    if (row.contains("value")) return "value";
    if (row.contains("permanent")) return any_permanent_anchor() ? "permanent" : "temporary";
    const Json& way = field(field(field(project_, "wall"), "vertical_bearing"), "technology");
    const bool known = way.is_string() && row.contains(way.get<std::string>());
    return known ? way.get<std::string>() : "bored";
  }

  bool any_permanent_anchor() const {
    const Json& anchors = field(project_, "anchors");
    return std::any_of(anchors.begin(), anchors.end(), [](const Json& anchor) {
      return field(anchor, "permanent") != Json(false);
    });
  }

  const Json& project_;
  const Json& standard_;
  std::set<std::string> unconfirmed_;
};

std::set<std::string> names_of(const Json& combinations) {
  std::set<std::string> names;
  for (const Json& combination : combinations) {
    const Json& name = field(combination, "name");
    if (name.is_string()) names.insert(name.get<std::string>());
  }
  return names;
}

}  // namespace

const Json& built_in_presets() {
  static const Json presets = Json::parse(embedded_file("standards.json"));
  return presets;
}

std::optional<Json> read_presets(const std::string& file, Problems& problems) {
  const auto text = read_file(file, problems);
  if (!text) return std::nullopt;
  std::optional<Json> presets = parse_json(*text, problems);
  if (!presets) return std::nullopt;
  if (field(*presets, "standards").is_object()) return presets;
  problems.add("", std::string(problems.texts()(Text::missing)),
               std::string(problems.texts()(Text::a_file_of_presets)));
  return std::nullopt;
}

Expansion expand_presets(Json& project, const Json& presets, Problems& problems) {
  Expansion expansion;
  const Json wanted = field(project, "standard");
  if (!wanted.is_string()) return expansion;
  const Json& standards = presets.at("standards");
  const auto found = standards.find(wanted.get<std::string>());
  if (found == standards.end()) {
    std::vector<std::string> known;
    for (const auto& [name, standard] : standards.items())
      known.push_back(name);
    problems.add("standard", wanted.dump(),
                 problems.texts()(Text::one_of, fmt::format("\"{}\"", fmt::join(known, "\", \""))));
    return expansion;
  }
  if (!project.contains("combinations")) project["combinations"] = Json::array();
  if (!project["combinations"].is_array()) return expansion;
  const std::set<std::string> own = names_of(project["combinations"]);
  Expander expander(project, *found);
  std::vector<Json> made;
  try {
    made = expander.combinations();
  } catch (const Json::exception& error) {
    problems.add("standard", error.what(), std::string(problems.texts()(Text::a_file_of_presets)));
    return expansion;
  }
  for (Json& combination : made) {
    const std::string name = combination.at("name").get<std::string>();
    if (own.contains(name)) continue;
    expansion.added.push_back(name);
    project["combinations"].push_back(std::move(combination));
  }
  expansion.standard = wanted.get<std::string>();
  expansion.unconfirmed = expander.unconfirmed();
  project.erase("standard");
  return expansion;
}

}  // namespace ostrel::host
