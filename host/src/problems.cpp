// SPDX-License-Identifier: Apache-2.0
#include "problems.h"

#include "json_text.h"
#include "text_table.h"

#include <algorithm>
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

}  // namespace

void Problems::add(std::string path, std::string found, std::string allowed) {
  keep({std::move(path), std::move(found), std::move(allowed)});
}

void Problems::add_at_line(std::size_t line, std::string found, std::string allowed) {
  keep({{}, std::move(found), std::move(allowed), line});
}

void Problems::keep(Problem problem) {
  if (errors_.size() < most_kept) {
    errors_.push_back(std::move(problem));
  } else {
    ++more_errors_;
  }
}

bool Problems::has_error_at(const std::string& path) const {
  return std::any_of(errors_.begin(), errors_.end(),
                     [&](const Problem& problem) { return problem.path == path; });
}

void Problems::remark(std::string path, std::string message) {
  if (remarks_.size() < most_kept) remarks_.push_back({std::move(path), std::move(message)});
}

void Problems::rename(const std::string& path, const std::string& place, const std::string& name) {
  renamed_.push_back({path, place, name});
}

const Problems::Renamed* Problems::renamed(const std::string& path) const {
  const auto found = std::find_if(renamed_.begin(), renamed_.end(), [&](const Renamed& entry) {
    const std::size_t end = entry.path.size();
    return path.starts_with(entry.path)
        && (path.size() == end || path[end] == '.' || path[end] == '[');
  });
  return found == renamed_.end() ? nullptr : &*found;
}

std::string Problems::shown(const std::string& path) const {
  const Renamed* other = renamed(path);
  return other == nullptr ? path : other->name + path.substr(other->path.size());
}

std::string Problems::report(const std::string& file, std::string_view text) const {
  const auto place_in_text = [&](const std::string& path) {
    const Renamed* other = renamed(path);
    return other == nullptr ? path : other->place;
  };
  std::set<std::string> paths;
  for (const Problem& problem : errors_) {
    paths.insert(place_in_text(problem.path));
  }
  for (const Remark& remark : remarks_) {
    paths.insert(place_in_text(remark.path));
  }
  const std::map<std::string, std::size_t> lines = find_lines(text, paths);
  const auto place_of = [&](const std::string& path, std::size_t line) {
    const auto found = lines.find(place_in_text(path));
    if (line == 0 && !path.empty() && found != lines.end()) line = found->second;
    std::string words = line > 0 ? fmt::format("{}:{}", file, line) : file;
    if (!path.empty()) words += ": " + (line > 0 ? fitted(shown(path), longest_path) : shown(path));
    return Place{.line = line, .words = words};
  };
  std::multimap<std::size_t, std::string> errors;  // by line
  for (const Problem& problem : errors_) {
    const Place place = place_of(problem.path, problem.line);
    errors.emplace(place.line,
                   texts_(Text::error_line, place.words, problem.found, problem.allowed));
  }
  std::multimap<std::size_t, std::string> remarks;
  for (const Remark& remark : remarks_) {
    const Place place = place_of(remark.path, 0);
    remarks.emplace(place.line, texts_(Text::warning_line, place.words, remark.message));
  }
  std::string report;
  for (const auto& [line, message] : errors) {
    report += message + "\n";
  }
  if (more_errors_ > 0) report += texts_(Text::more_errors, more_errors_) + "\n";
  for (const auto& [line, message] : remarks) {
    report += message + "\n";
  }
  return report;
}

}  // namespace ostrel::host
