// SPDX-License-Identifier: Apache-2.0
#include "tables_json.h"

#include "embedded_files.h"
#include "run_data.h"

#include <ostrel/version.h>

#include <nlohmann/json.hpp>

#include <cstddef>
#include <type_traits>
#include <utility>

namespace ostrel::host {

namespace {

using Json = nlohmann::ordered_json;

Json json_of(const TableCell& cell) {
  return std::visit(
      [](const auto& value) -> Json {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::monostate>) {
          return nullptr;
        } else if constexpr (std::is_same_v<std::decay_t<decltype(value)>, CodedText>) {
          return value.code;
        } else {
          return value;
        }
      },
      cell);
}

Json rows_of(const ResultTable& table) {
  Json rows = Json::array();
  for (const auto& cells : table.rows) {
    Json row = Json::object();
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
      row[std::string(table.columns[i])] = json_of(cells[i]);
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace

TablesHead head_of(const Project& project, const Job& job, const Outcome& outcome,
                   const Texts& texts) {
  TablesHead head{.project = project.name,
                  .through = outcome.verdict != veldError,
                  .messages = remarks_on(project, texts)};
  for (std::string& message : messages_of(project, job, outcome, texts)) {
    head.messages.push_back(std::move(message));
  }
  return head;
}

std::string tables_json(const TablesHead& head, const std::vector<ResultTable>& tables) {
  Json json = {{"format", 1},
               {"program", std::string("ostrel ") + ostrel::version()},
               {"project", head.project},
               {"through", head.through},
               {"messages", head.messages}};
  Json combinations = Json::array();
  for (const ResultTable& table : tables) {
    if (table.combination == 0) {
      json[table.subject] = rows_of(table);
      continue;
    }
    if (combinations.empty() || combinations.back()["number"] != table.combination) {
      combinations.push_back({{"number", table.combination}, {"name", table.combination_name}});
    }
    combinations.back()[table.subject] = rows_of(table);
  }
  json["combinations"] = std::move(combinations);
  return json.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string_view results_schema() {
  return embedded_file("results.schema.json");
}

}  // namespace ostrel::host
