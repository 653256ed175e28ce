// SPDX-License-Identifier: Apache-2.0
#include "project_loading.h"

#include "bilingual.h"
#include "json_text.h"
#include "presets.h"
#include "problems.h"
#include "project_file.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <ostream>
#include <utility>

namespace ostrel::host {

namespace {

// The standards; nothing where their file is wrong, which is told.
std::optional<nlohmann::json> load_presets(const ProjectSource& source, const Texts& texts,
                                           std::ostream& err) {
  if (source.presets_file.empty()) return built_in_presets();
  Problems problems(texts);
  const std::optional<std::string> text = read_file(source.presets_file, problems);
  auto presets = text ? read_presets(*text, problems) : std::nullopt;
  err << problems.report(source.presets_file, text ? *text : "");
  return presets;
}

// The same, with the comment of every object before its other fields.
OrderedJson with_comments_first(const nlohmann::json& value) {
  if (!value.is_object()) return OrderedJson::parse(value.dump());
  OrderedJson ordered = OrderedJson::object();
  if (value.contains("comment")) ordered["comment"] = with_comments_first(value.at("comment"));
  for (const auto& [name, entry] : value.items()) {
    ordered[name] = with_comments_first(entry);
  }
  return ordered;
}

// A combination as a person writes it.
OrderedJson in_reading_order(const nlohmann::json& combination) {
  OrderedJson ordered;
  for (const char* name : {"name", "type", "comment", "to_be_confirmed", "soil_factors",
                           "resistance_factors", "seismic", "actions", "checks"}) {
    if (combination.contains(name)) ordered[name] = with_comments_first(combination.at(name));
  }
  return ordered;
}

// The remarks that a reading made, and beside each what it is in the other language: the project,
// which was accepted, is read once more for that. The schema makes no remarks and is left out.
std::vector<OddPlace> odd_places(const std::string& text, const Problems& told,
                                 const nlohmann::json& presets) {
  if (told.remarks().empty()) return {};
  const bool in_italian = told.texts().language() == Language::italian;
  Problems other(Texts(in_italian ? Language::english : Language::italian));
  read_project(text, other, {.presets = &presets, .by_schema = false});
  const std::vector<Remark>& italian = (in_italian ? told : other).remarks();
  const std::vector<Remark>& english = (in_italian ? other : told).remarks();
  std::vector<OddPlace> places;
  for (std::size_t i = 0; i < std::min(italian.size(), english.size()); ++i) {
    places.push_back({told.shown(english[i].path), italian[i].message, english[i].message});
  }
  return places;
}

}  // namespace

LoadedProject load_project(const ProjectSource& source, const Texts& texts, std::ostream& err) {
  LoadedProject loaded;
  const auto presets = load_presets(source, texts, err);
  if (!presets) {
    loaded.errors = 1;
    return loaded;
  }
  Problems problems(texts);
  const std::optional<std::string> text = read_file(source.project_file, problems);
  if (text) loaded.project = read_project(*text, problems, {.presets = &*presets});
  if (loaded.project) {
    loaded.project->odd_places = odd_places(*text, problems, *presets);
  }
  err << problems.report(source.project_file, text ? *text : "");
  loaded.errors = problems.errors().size();
  loaded.warnings = problems.remarks().size();
  return loaded;
}

std::optional<std::string> expanded_project(const ProjectSource& source, const Texts& texts,
                                            std::ostream& err) {
  const auto presets = load_presets(source, texts, err);
  if (!presets) return std::nullopt;
  Problems problems(texts);
  const std::optional<std::string> text = read_file(source.project_file, problems);
  const auto project = text ? read_project(*text, problems, {.presets = &*presets}) : std::nullopt;
  err << problems.report(source.project_file, text ? *text : "");
  if (!project) return std::nullopt;
  for (const std::string& note : project->notes) {
    err << note << "\n";
  }
  // The fields keep the order of the file.
  auto json = OrderedJson::parse(*text);
  nlohmann::json expanded = nlohmann::json::parse(*text);
  expand_presets(expanded, *presets, problems);
  json.erase("standard");
  OrderedJson& combinations = json["combinations"];
  for (std::size_t i = combinations.size(); i < expanded.at("combinations").size(); ++i) {
    combinations.push_back(in_reading_order(expanded.at("combinations")[i]));
  }
  return json.dump(2) + "\n";
}

}  // namespace ostrel::host
