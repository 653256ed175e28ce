// SPDX-License-Identifier: Apache-2.0
#include "csv.h"

#include <fmt/format.h>

#include <cmath>
#include <cstddef>

namespace ostrel::host {

namespace {

std::string quoted_where_needed(const std::string& cell) {
  if (cell.find_first_of(",\"\r\n") == std::string::npos) return cell;
  std::string quoted = "\"";
  for (const char letter : cell) {
    if (letter == '"') quoted += '"';
    quoted += letter;
  }
  return quoted + "\"";
}

}  // namespace

void CsvTable::add(const std::vector<std::string>& cells) {
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (i > 0) text_ += ',';
    text_ += quoted_where_needed(cells[i]);
  }
  text_ += "\r\n";
}

std::string csv_number(double number) {
  return std::isfinite(number) ? fmt::format("{}", number) : std::string();
}

}  // namespace ostrel::host
