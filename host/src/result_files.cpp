// SPDX-License-Identifier: Apache-2.0
#include "result_files.h"

#include "core_result.h"
#include "figures.h"
#include "result_tables.h"
#include "tables_json.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace ostrel::host {

namespace {

constexpr std::size_t longest_slug = 40;

// Letters and digits of a name that every file system takes; a dash for the rest.
std::string slug(const std::string& name) {
  std::string slug;
  for (const char letter : name.substr(0, longest_slug)) {
    const bool plain = (letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'Z')
                    || (letter >= 'a' && letter <= 'z');
    if (plain) {
      slug += letter;
    } else if (!slug.empty() && slug.back() != '-') {
      slug += '-';
    }
  }
  while (!slug.empty() && slug.back() == '-') {
    slug.pop_back();
  }
  return slug;
}

std::string file_name(const ResultTable& table) {
  if (table.combination == 0) return table.subject + ".csv";
  const std::string name = slug(table.combination_name);
  return fmt::format("{:02}{}{}-{}.csv", table.combination, name.empty() ? "" : "-", name,
                     table.subject);
}

std::string result_json(const Project& project, const Outcome& outcome) {
  nlohmann::ordered_json json = {{"format", 1},
                                 {"project", project.name},
                                 {"units",
                                  {{"length", "mm"},
                                   {"force", "N"},
                                   {"moment", "Nmm"},
                                   {"pressure", "N/mm2"},
                                   {"unit_weight", "N/mm3"},
                                   {"angle", "rad"}}}};
  json.update(core_result(outcome));
  return json.dump(1, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";
}

ResultFile figure_file(const Figure& figure, Language language) {
  OrderedJson plot = in_language(figure.plot, language);
  plot["layout"]["meta"] = {{"id", figure.id}, {"caption", figure.caption.in(language)}};
  return {fmt::format("{}/{}.json", figure_folder, figure.id),
          plot.dump(1, ' ', false, OrderedJson::error_handler_t::replace) + "\n"};
}

}  // namespace

std::vector<ResultFile> result_files(const Project& project, const Job& job, const Outcome& outcome,
                                     Language language) {
  std::vector<ResultFile> files{{"result.json", result_json(project, outcome)}};
  const Texts texts(language);
  const std::vector<ResultTable> tables = result_tables(project, job, outcome, texts);
  for (const ResultTable& table : tables) {
    files.push_back({file_name(table), csv_of(table)});
  }
  files.push_back({"tables.json", tables_json(head_of(project, job, outcome, texts), tables)});
  for (const Figure& figure : figures(project, job, outcome)) {
    files.push_back(figure_file(figure, language));
  }
  return files;
}

}  // namespace ostrel::host
