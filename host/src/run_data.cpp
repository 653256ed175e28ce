// SPDX-License-Identifier: Apache-2.0
#include "run_data.h"

#include "circle_border.h"
#include "equilibrium.h"
#include "phrases.h"

#include <fmt/format.h>

#include <cstddef>
#include <utility>

namespace ostrel::host {

namespace {

std::string name_or_number(const std::string& name, std::size_t place) {
  return name.empty() ? fmt::format("{}", place + 1) : name;
}

}  // namespace

RunData run_data_of(const Project& project, const Job& job, const Outcome& outcome,
                    const Texts& texts) {
  const WallInput& wall = project.wall;
  RunData data;
  data.name = project.name;
  data.is_diaphragm = wall.is_diaphragm;
  data.diameter_mm = wall.diameter_mm;
  data.thickness_mm = wall.thickness_mm;
  data.spacing_m = wall.spacing_m;
  data.length_m = wall.length_m;
  data.excavation_depth_m = project.excavation_depth_m;
  for (const AnchorInput& anchor : project.anchors) {
    data.anchor_names.push_back(anchor.name);
  }
  for (std::size_t i = 0; i < project.combinations.size(); ++i) {
    CombinationData combination;
    combination.name = project.combinations[i].name;
    combination.kind = project.combinations[i].kind;
    if (const xCombResults* result = result_of(outcome, i)) {
      combination.summary = summary_of(job, outcome, *result);
    }
    data.combinations.push_back(std::move(combination));
  }
  data.notes = project.notes;
  data.through = outcome.verdict != veldError;
  data.remarks = remarks_on(project, texts);
  data.messages = messages_of(project, job, outcome, texts);
  data.ultimate = outcome.ultimate;
  data.serviceability = outcome.serviceability;
  return data;
}

std::string name_of_anchor(const RunData& data, std::size_t place) {
  const auto& names = data.anchor_names;
  return name_or_number(place < names.size() ? names[place] : "", place);
}

std::string name_of_anchor(const Project& project, std::size_t place) {
  const auto& anchors = project.anchors;
  return name_or_number(place < anchors.size() ? anchors[place].name : "", place);
}

std::vector<std::string> remarks_on(const Project& project, const Texts& texts) {
  std::vector<std::string> remarks;
  for (const OddPlace& place : project.odd_places) {
    const bool in_italian = texts.language() == Language::italian;
    remarks.push_back(phrase::warning.in(
        texts, place.path + ": " + (in_italian ? place.italian : place.english)));
  }
  return remarks;
}

std::vector<std::string> result_warnings(const Project& project, const Job& job,
                                         const Outcome& outcome, const Texts& texts) {
  std::vector<std::string> warnings;
  for (const xCombResults& combination : outcome.results.combResults) {
    const std::string sentence =
        balance_sentence(balance_of(job, outcome, combination).relative_residual(), texts);
    if (!sentence.empty()) warnings.push_back(combination.getCombName() + ": " + sentence);
  }
  for (std::string& warning :
       border_warnings(project, outcome.ultimate.slopeStabilityDesign, texts)) {
    warnings.push_back(std::move(warning));
  }
  return warnings;
}

std::vector<std::string> messages_of(const Project& project, const Job& job, const Outcome& outcome,
                                     const Texts& texts) {
  std::vector<std::string> messages;
  for (const xVeldError& message : outcome.messages) {
    messages.push_back(message.MakeErrStr());
  }
  for (const std::string& warning : result_warnings(project, job, outcome, texts)) {
    messages.push_back(phrase::warning.in(texts, warning));
  }
  return messages;
}

}  // namespace ostrel::host
