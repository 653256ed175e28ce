// SPDX-License-Identifier: Apache-2.0
#include "project_loading.h"

#include "json_text.h"
#include "presets.h"
#include "problems.h"
#include "project_file.h"

#include <nlohmann/json.hpp>

#include <ostream>
#include <utility>

namespace ostrel::host {

namespace {

using OrderedJson = nlohmann::ordered_json;

// The standards; nothing where their file is wrong, which is told.
std::optional<nlohmann::json> load_presets(const ProjectSource& source, const Texts& texts,
                                           std::ostream& err) {
  if (source.presets_file.empty()) return built_in_presets();
  Problems problems(texts);
  std::optional<nlohmann::json> presets = read_presets(source.presets_file, problems);
  err << problems.report(source.presets_file, "");
  return presets;
}

// A combination as a person writes it.
OrderedJson in_reading_order(const nlohmann::json& combination) {
  OrderedJson ordered;
  for (const char* name : {"name", "type", "comment", "soil_factors", "resistance_factors",
                           "seismic", "actions", "checks"}) {
    if (combination.contains(name)) {
      ordered[name] = OrderedJson::parse(combination.at(name).dump());
    }
  }
  return ordered;
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
  for (const std::string& note : project->notes)
    err << note << "\n";
  // The fields keep the order of the file.
  auto json = OrderedJson::parse(*text);
  nlohmann::json expanded = nlohmann::json::parse(*text);
  expand_presets(expanded, *presets, problems);
  json.erase("standard");
  OrderedJson& combinations = json["combinations"];
  for (std::size_t i = combinations.size(); i < expanded.at("combinations").size(); ++i)
    combinations.push_back(in_reading_order(expanded.at("combinations")[i]));
  return json.dump(2) + "\n";
}

}  // namespace ostrel::host
