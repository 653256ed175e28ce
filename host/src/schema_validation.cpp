// SPDX-License-Identifier: Apache-2.0
#include "schema_validation.h"

#include "embedded_files.h"
#include "field_reader.h"
#include "json_text.h"

#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_results.hpp>
#include <valijson/validator.hpp>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <set>

namespace ostrel::host {

namespace {

using Json = nlohmann::json;
using Adapter = valijson::adapters::NlohmannJsonAdapter;

const valijson::Schema& parsed_schema() {
  struct Holder {
    Holder() {
      const Json text = Json::parse(project_schema());
      valijson::SchemaParser().populateSchema(Adapter(text), schema);
    }
    valijson::Schema schema;
  };
  static const Holder holder;
  return holder.schema;
}

// Whole numbers with a decimal point are whole numbers for a schema of this draft.
void make_whole(Json& value) {
  constexpr double exact = 9007199254740992.0;  // 2^53
  if (value.is_number_float()) {
    const double number = value.get<double>();
    if (std::abs(number) < exact && std::floor(number) >= number) {
      value = static_cast<std::int64_t>(number);
    }
  }
  if (!value.is_structured()) return;
  for (Json& entry : value) {
    make_whole(entry);
  }
}

// From {"<root>", "[soils]", "[0]"}: whether a name or an index is meant shows the value around it.
SchemaFinding finding_at(const std::vector<std::string>& context, const Json& root) {
  SchemaFinding finding;
  std::string& path = finding.path;
  const Json* around = &root;
  for (const std::string& part : context) {
    if (part.size() < 2 || part.front() != '[') continue;
    const std::string name = part.substr(1, part.size() - 2);
    if (around->is_array()) {
      const auto index = static_cast<std::size_t>(std::strtoul(name.c_str(), nullptr, 10));
      path = child_path(path, index);
      finding.place.push_back(std::to_string(index));
      if (index >= around->size()) break;
      around = &(*around)[index];
    } else {
      path = child_path(path, name);
      finding.place.push_back(name);
      const auto found = around->find(name);
      if (found == around->end()) break;
      around = &*found;
    }
  }
  return finding;
}

// Whether `inner` is `outer` or stands within it.
bool is_within(const std::string& inner, const std::string& outer) {
  if (outer.empty() || inner == outer) return true;
  return inner.starts_with(outer) && (inner[outer.size()] == '.' || inner[outer.size()] == '[');
}

// "soils" of "soils[0]", "wall" of "wall.piles", nothing of "wall".
std::string parent_of(const std::string& path) {
  const std::size_t end = path.find_last_of(".[");
  return end == std::string::npos ? std::string() : path.substr(0, end);
}

}  // namespace

std::string_view project_schema() {
  return embedded_file("project.schema.json");
}

std::vector<SchemaFinding> schema_findings(const Json& project) {
  Json whole = project;
  make_whole(whole);
  valijson::Validator validator;
  valijson::ValidationResults results;
  validator.validate(parsed_schema(), Adapter(whole), &results);
  std::map<std::string, SchemaFinding> found;
  valijson::ValidationResults::Error error;
  while (results.popError(error)) {
    SchemaFinding finding = finding_at(error.context, whole);
    finding.message = error.description;
    found.emplace(finding.path, finding);
  }
  std::set<std::string> outer;
  for (const auto& [path, finding] : found) {
    for (std::string around = parent_of(path); !path.empty(); around = parent_of(around)) {
      if (!outer.insert(around).second || around.empty()) break;
    }
  }
  std::vector<SchemaFinding> findings;
  for (const auto& [path, finding] : found) {
    if (!outer.contains(path)) findings.push_back(finding);
  }
  return findings;
}

void check_schema(const Json& project, Problems& problems) {
  constexpr std::size_t many = 100;  // errors, after which nobody misses further ones
  const std::vector<Problem> told = problems.errors();
  if (told.size() >= many) return;
  for (const SchemaFinding& finding : schema_findings(project)) {
    const bool known = std::any_of(told.begin(), told.end(), [&](const Problem& problem) {
      return is_within(problem.path, finding.path) || is_within(finding.path, problem.path);
    });
    if (known) continue;
    const bool is_there = project.contains(finding.place);
    const Json value = is_there ? project.at(finding.place) : Json();
    const ReadingRules rules;
    ValueReader(value, finding.path, problems, rules)
        .refuse(problems.texts()(Text::as_in_the_schema, finding.message));
  }
}

}  // namespace ostrel::host
