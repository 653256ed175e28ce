#pragma once
/// @file  Comma-separated values. Room: host
// SPDX-License-Identifier: Apache-2.0

#include <string>
#include <vector>

namespace ostrel::host {

/// Rows of texts and numbers, comma between cells, decimal point, lines ended by CR LF.
class CsvTable {
public:
  explicit CsvTable(const std::vector<std::string>& headings) { add(headings); }

  /// A text with a comma, a quotation mark or a line end goes in quotation marks.
  void add(const std::vector<std::string>& cells);
  const std::string& text() const { return text_; }

private:
  std::string text_;
};

/// A number in the fewest digits that give it back; an empty cell for one that is not finite.
std::string csv_number(double number);

}  // namespace ostrel::host
