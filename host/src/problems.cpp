// SPDX-License-Identifier: Apache-2.0
#include "problems.h"

#include "json_text.h"

#include <map>
#include <set>
#include <utility>

namespace ostrel::host {

namespace {

constexpr std::size_t most_kept = 500;  // errors and remarks of one file, each

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
  const auto place = [&](const std::string& path) {
    const auto line = lines.find(path);
    std::string words =
        line == lines.end() || path.empty() ? file : fmt::format("{}:{}", file, line->second);
    return path.empty() ? words : fmt::format("{}: {}", words, path);
  };
  std::string report;
  for (const Problem& problem : errors_) {
    report += texts_(Text::error_line, place(problem.path), problem.found, problem.allowed) + "\n";
  }
  if (more_errors_ > 0) report += texts_(Text::more_errors, more_errors_) + "\n";
  for (const Remark& remark : remarks_) {
    report += texts_(Text::warning_line, place(remark.path), remark.message) + "\n";
  }
  return report;
}

}  // namespace ostrel::host
