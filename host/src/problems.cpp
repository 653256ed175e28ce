// SPDX-License-Identifier: Apache-2.0
#include "problems.h"

#include "json_text.h"
#include "text_table.h"

#include <map>
#include <set>
#include <utility>

namespace ostrel::host {

namespace {

constexpr std::size_t most_kept = 500;     // errors and remarks of one file, each
constexpr std::size_t longest_path = 120;  // characters of a path that a message shows

struct Place {
  std::size_t line = 0;  // 0 where there is none
  std::string words;
};

Place place_of(const std::string& file, const std::string& path,
               const std::map<std::string, std::size_t>& lines) {
  const auto found = lines.find(path);
  if (path.empty() || found == lines.end()) {
    return {.line = 0, .words = path.empty() ? file : fmt::format("{}: {}", file, path)};
  }
  return {.line = found->second,
          .words = fmt::format("{}:{}: {}", file, found->second, fitted(path, longest_path))};
}

}  // namespace

void Problems::add(std::string path, std::string found, std::string allowed) {
  if (errors_.size() < most_kept) {
    errors_.push_back({std::move(path), std::move(found), std::move(allowed)});
  } else {
    ++more_errors_;
  }
}

void Problems::remark(std::string path, std::string message) {
  if (remarks_.size() < most_kept) remarks_.push_back({std::move(path), std::move(message)});
}

std::string Problems::report(const std::string& file, std::string_view text) const {
  std::set<std::string> paths;
  for (const Problem& problem : errors_)
    paths.insert(problem.path);
  for (const Remark& remark : remarks_)
    paths.insert(remark.path);
  const std::map<std::string, std::size_t> lines = find_lines(text, paths);
  std::multimap<std::size_t, std::string> errors;  // by line
  for (const Problem& problem : errors_) {
    const Place place = place_of(file, problem.path, lines);
    errors.emplace(place.line,
                   texts_(Text::error_line, place.words, problem.found, problem.allowed));
  }
  std::multimap<std::size_t, std::string> remarks;
  for (const Remark& remark : remarks_) {
    const Place place = place_of(file, remark.path, lines);
    remarks.emplace(place.line, texts_(Text::warning_line, place.words, remark.message));
  }
  std::string report;
  for (const auto& [line, message] : errors)
    report += message + "\n";
  if (more_errors_ > 0) report += texts_(Text::more_errors, more_errors_) + "\n";
  for (const auto& [line, message] : remarks)
    report += message + "\n";
  return report;
}

}  // namespace ostrel::host
