// SPDX-License-Identifier: Apache-2.0
#include "batch_result.h"

#include "phrases.h"
#include "terminal.h"
#include "text_table.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <sstream>
#include <utility>

namespace ostrel::host {

namespace {

struct Row {
  BatchVerdict verdict;
  Phrase name;
  std::string_view code;
};

constexpr std::array<Row, 9> rows{{
    {BatchVerdict::not_started, phrase::batch_not_started, "not_started"},
    {BatchVerdict::satisfied, phrase::batch_satisfied, "satisfied"},
    {BatchVerdict::not_satisfied, phrase::batch_not_satisfied, "not_satisfied"},
    {BatchVerdict::not_determined, phrase::batch_not_determined, "not_determined"},
    {BatchVerdict::nothing_verified, phrase::batch_nothing_verified, "nothing_verified"},
    {BatchVerdict::below_limit, phrase::batch_below_limit, "below_limit"},
    {BatchVerdict::analysis_failed, phrase::batch_analysis_failed, "analysis_failed"},
    {BatchVerdict::wrong_file, phrase::batch_wrong_file, "wrong_file"},
    {BatchVerdict::not_written, phrase::batch_not_written, "not_written"},
}};

constexpr bool in_order() {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (static_cast<std::size_t>(rows[i].verdict) != i) return false;
  }
  return true;
}
static_assert(in_order(), "a row for each verdict, in the order of the enumeration");

const Row& row_of(BatchVerdict verdict) {
  return rows.at(static_cast<std::size_t>(verdict));
}

Colour colour_of(BatchVerdict verdict) {
  if (has_failed(verdict)) return Colour::red;
  const bool fine = verdict == BatchVerdict::satisfied || verdict == BatchVerdict::nothing_verified;
  return fine ? Colour::green : Colour::yellow;
}

// How much of the names of files is a folder that all of them share. In a narrow table the end of a
// name tells files apart.
std::size_t shared_folder(const std::vector<BatchResult>& results) {
  if (results.empty()) return 0;
  const std::string& first = results.front().file;
  std::size_t shared = first.size();
  for (const BatchResult& result : results) {
    const auto ends =
        std::mismatch(first.begin(), first.end(), result.file.begin(), result.file.end());
    shared = std::min(shared, static_cast<std::size_t>(ends.first - first.begin()));
  }
  const std::size_t slash = shared > 0 ? first.rfind('/', shared - 1) : std::string::npos;
  return slash == std::string::npos ? 0 : slash + 1;
}

std::string name_of_folder(const BatchResult& result) {
  return std::filesystem::path(result.folder).filename().string();
}

// Projects of one name have folders that nobody would guess.
bool folders_need_telling(const std::vector<BatchResult>& results) {
  return std::any_of(results.begin(), results.end(), [](const BatchResult& result) {
    const std::filesystem::path file(result.file);
    return !result.folder.empty() && name_of_folder(result) != file.stem().string();
  });
}

// The rows stand below two lines of heading.
std::string coloured_rows(const std::string& table, const std::vector<BatchResult>& results) {
  constexpr std::size_t heading_lines = 2;
  std::istringstream lines(table);
  std::string text;
  std::size_t number = 0;
  for (std::string line; std::getline(lines, line); ++number) {
    text += number < heading_lines
              ? line
              : coloured(line, colour_of(results.at(number - heading_lines).verdict));
    text += "\n";
  }
  return text;
}

}  // namespace

bool has_failed(BatchVerdict verdict) {
  return verdict == BatchVerdict::below_limit || verdict == BatchVerdict::analysis_failed
      || verdict == BatchVerdict::wrong_file || verdict == BatchVerdict::not_written;
}

std::string_view name_of(BatchVerdict verdict, const Texts& texts) {
  return row_of(verdict).name.in(texts);
}

std::string_view code_of(BatchVerdict verdict) {
  return row_of(verdict).code;
}

std::string batch_table(const std::vector<BatchResult>& results, const Texts& texts, bool colours) {
  using Side = TextTable::Side;
  TextTable table;
  const bool tells_folders = folders_need_telling(results);
  table.add_column(std::string(phrase::heading_file.in(texts)), Side::left);
  if (tells_folders) table.add_column(std::string(phrase::heading_folder.in(texts)), Side::left);
  table.add_column(std::string(texts(Text::heading_outcome)), Side::left);
  table.add_column(std::string(texts(Text::heading_factor)), Side::right);
  table.add_column(std::string(phrase::heading_governs.in(texts)), Side::left);
  table.add_column("s", Side::right);
  const std::size_t folder = shared_folder(results);
  for (const BatchResult& result : results) {
    const bool started = result.verdict != BatchVerdict::not_started;
    std::vector<std::string> cells{result.file.substr(folder)};
    if (tells_folders) cells.push_back(name_of_folder(result));
    cells.insert(cells.end(),
                 {std::string(name_of(result.verdict, texts)), result.factor, result.governs,
                  started ? fmt::format("{:.1f}", result.seconds) : ""});
    table.add_row(std::move(cells));
  }
  std::string text = table.render();
  if (colours) text = coloured_rows(text, results);
  text += "\n";
  for (const Row& row : rows) {
    const auto count =
        std::count_if(results.begin(), results.end(),
                      [&row](const BatchResult& result) { return result.verdict == row.verdict; });
    if (count > 0) text += fmt::format("{}: {}\n", row.name.in(texts), count);
  }
  return text;
}

}  // namespace ostrel::host
