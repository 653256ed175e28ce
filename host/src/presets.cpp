// SPDX-License-Identifier: Apache-2.0
#include "presets.h"

#include "embedded_files.h"
#include "json_text.h"
#include "preset_checks.h"

#include <fmt/ranges.h>

#include <algorithm>
#include <cctype>
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

private:
  // Where a number comes from and what it is worth; clauses that nobody has confirmed are gathered.
  std::string source_of(const Json& set) {
    const auto clause = set.at("clause").get<std::string>();
    const Json& status = field(set, "status");
    if (is_text(status, "unconfirmed")) {
      unconfirmed_.insert(clause);
      return clause + " (to be confirmed against the standard)";
    }
    if (!status.is_string() || is_text(status, "confirmed")) return clause;
    return fmt::format("{} ({})", clause, status.get<std::string>());
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
    unconfirmed_.clear();
    Json made = {{"comment", fmt::format("{}, {}", standard_.at("title").get<std::string>(),
                                         row.at("clause").get<std::string>())},
                 {"name", row.at("name")},
                 {"type", row.at("type")},
                 {"soil_factors", soil_factors(row.at("soil").get<std::string>())},
                 {"actions", actions(row.at("actions"))},
                 {"checks", checks}};
    Json resistances = Json::object();
    for (const Json& name : row.at("resistances")) {
      add_resistances(standard_.at("resistances").at(name.get<std::string>()), checks, resistances);
    }
    if (!resistances.empty()) made["resistance_factors"] = std::move(resistances);
    if (seismic) made["seismic"] = true;
    if (!unconfirmed_.empty()) made["to_be_confirmed"] = unconfirmed_;
    return made;
  }

  Json soil_factors(const std::string& name) {
    const Json& set = standard_.at("soil").at(name);
    Json factors = {{"comment", fmt::format("{}: {}", name, source_of(set))}};
    for (const auto& [key, value] : set.items()) {
      if (value.is_number()) factors[key] = value;
    }
    return factors;
  }

  // The same of a set of actions, with the factor of the load that its own is multiplied by.
  std::string source_of_actions(const Json& set) {
    const Json& times = field(field(set, "variable"), "times");
    const std::string source = source_of(set);
    if (!times.is_string()) return source;
    return fmt::format("{}, variable loads times {}", source, times.get<std::string>());
  }

  // One set for all actions, or one for those of the structure and one for those of the ground.
  Json actions(const Json& names) {
    const Json& sets = standard_.at("actions");
    const bool two = names.is_object();
    const auto of_structure = (two ? names.at("structural") : names).get<std::string>();
    const auto of_ground = (two ? names.at("geotechnical") : names).get<std::string>();
    const Json& structural = sets.at(of_structure);
    const Json& geotechnical = sets.at(of_ground);
    Json comment = fmt::format("{}: {}", of_structure, source_of_actions(structural));
    if (two) {
      comment = {fmt::format("self-weight, loads on the wall alone by {}: {}", of_structure,
                             source_of_actions(structural)),
                 fmt::format("earth, water, loads on the ground by {}: {}", of_ground,
                             source_of_actions(geotechnical))};
    }
    Json actions = {{"comment", std::move(comment)},
                    {"self_weight", structural.at("permanent")},
                    {"earth_pressure", geotechnical.at("permanent")},
                    {"water_pressure", geotechnical.at("permanent")},
                    {"loads", Json::object()}};
    const Json& loads = field(project_, "loads");
    if (!loads.is_array()) return actions;
    for (const Json& load : loads) {
      const Json& name = field(load, "name");
      const Json& on_ground = field(load, "on_ground");
      const bool on_the_ground = on_ground.is_array() && !on_ground.empty();
      if (!name.is_string()) continue;
      actions["loads"][name.get<std::string>()] =
          load_action(load, on_the_ground ? geotechnical : structural);
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
      factors["comment"].push_back(fmt::format("{}: {}", name, source_of(row)));
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
  std::set<std::string> unconfirmed_;  // clauses of the combination in hand
};

// The name without capitals, blanks and signs, by which two names look the same.
std::string plain(const std::string& name) {
  std::string letters;
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x80 || std::isalnum(byte) != 0) letters += static_cast<char>(std::tolower(byte));
  }
  return letters;
}

// The combinations of the file: which of the standard they take the place of.
class OwnCombinations {
public:
  explicit OwnCombinations(const Json& combinations) {
    for (std::size_t i = 0; i < combinations.size(); ++i) {
      const Json& name = field(combinations[i], "name");
      if (!name.is_string()) continue;
      names_.insert(name.get<std::string>());
      by_look_.emplace(plain(name.get<std::string>()), i);
    }
  }
  bool replace(const std::string& name) const { return names_.contains(name); }
  /// Tells a name that nearly takes the place of another.
  void compare(const std::string& name, Problems& problems) const {
    const auto found = by_look_.find(plain(name));
    if (found == by_look_.end()) return;
    problems.remark(child_path(child_path("combinations", found->second), "name"),
                    problems.texts()(Text::near_standard_name, name));
  }

private:
  std::set<std::string> names_;
  std::map<std::string, std::size_t> by_look_;
};

// Tells that circles which the standard wants are left out, where the file searches none.
void remark_upon_left_out_circles(const Json& project, const Json& standard, Problems& problems) {
  if (field(project, "slope") != Json(false)) return;
  for (const Json& row : standard.at("combinations")) {
    for (const Json& check : row.at("checks")) {
      if (!is_text(check, "global_stability")) continue;
      problems.remark("slope", std::string(problems.texts()(Text::circles_of_standard_left_out)));
      return;
    }
  }
}

}  // namespace

const Json& built_in_presets() {
  static const Json presets = Json::parse(embedded_file("standards.json"));
  return presets;
}

std::optional<Json> read_presets(std::string_view text, Problems& problems) {
  std::optional<Json> presets = parse_json(text, problems);
  if (!presets) return std::nullopt;
  if (!field(*presets, "standards").is_object()) {
    problems.add("", std::string(problems.texts()(Text::missing)),
                 std::string(problems.texts()(Text::a_file_of_presets)));
    return std::nullopt;
  }
  check_presets(*presets, problems);
  if (!problems.empty()) return std::nullopt;
  return presets;
}

Expansion expand_presets(Json& project, const Json& presets, Problems& problems) {
  Expansion expansion;
  const Json wanted = field(project, "standard");
  if (!wanted.is_string()) return expansion;
  const Json& standards = presets.at("standards");
  const auto found = standards.find(wanted.get<std::string>());
  if (found == standards.end()) {
    std::vector<std::string> known;
    for (const auto& [name, standard] : standards.items()) {
      known.push_back(name);
    }
    problems.add("standard", wanted.dump(),
                 problems.texts()(Text::one_of, fmt::format("\"{}\"", fmt::join(known, "\", \""))));
    return expansion;
  }
  if (!project.contains("combinations")) project["combinations"] = Json::array();
  if (!project["combinations"].is_array()) return expansion;
  const OwnCombinations own(project["combinations"]);
  Expander expander(project, *found);
  std::vector<Json> made;
  try {
    made = expander.combinations();
    remark_upon_left_out_circles(project, *found, problems);
  } catch (const Json::exception&) {
    problems.add("standard", wanted.dump(), std::string(problems.texts()(Text::a_file_of_presets)));
    return expansion;
  }
  for (Json& combination : made) {
    const std::string name = combination.at("name").get<std::string>();
    if (own.replace(name)) continue;
    own.compare(name, problems);
    expansion.added.push_back(name);
    project["combinations"].push_back(std::move(combination));
  }
  expansion.standard = wanted.get<std::string>();
  project.erase("standard");
  return expansion;
}

}  // namespace ostrel::host
