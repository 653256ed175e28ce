#pragma once
/// @file  Whether a project has the form of its published schema. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "problems.h"

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace ostrel::host {

/// The JSON Schema (draft 7) of a project file.
std::string_view project_schema();

/// Where a value is not as the schema asks, and what the schema says of it.
struct SchemaFinding {
  std::string path;
  std::string message;
  nlohmann::json::json_pointer place;  ///< the path again, to look the value up
};

/// What is wrong by the schema: of findings within one another only the innermost, one for each
/// path.
std::vector<SchemaFinding> schema_findings(const nlohmann::json& project);

/// Tells what the schema refuses and nobody has told yet. The reader of the project tells most
/// errors, with ranges and names that are near; what stands within or around a place that it told
/// is left to it.
void check_schema(const nlohmann::json& project, Problems& problems);

}  // namespace ostrel::host
