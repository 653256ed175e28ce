#pragma once
/// @file  Tables for the terminal. Room: host
// SPDX-License-Identifier: Apache-2.0

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ostrel::host {

inline constexpr std::size_t terminal_width = 80;

/// How many columns a text takes: its characters, not its bytes.
std::size_t columns_of(const std::string& text);
/// The text cut to `width` columns, the last one a mark where something is missing. Control
/// characters, which would move the cursor, become question marks.
std::string fitted(const std::string& text, std::size_t width);

/// A text in lines of at most `width` columns, broken at blanks where there are any; all lines but the
/// first begin with `indent` blanks. Control characters become question marks.
std::string wrapped(const std::string& text, std::size_t width, std::size_t indent);

/// A number with so many decimals; one that would be too wide for a column in powers of ten.
std::string number_text(double value, int decimals);

/// Rows of cells under headings. Where the table would be wider than the terminal, the first column
/// gives way, or the one that was named.
class TextTable {
public:
  enum class Side : std::int32_t { left, right };

  void add_column(std::string heading, Side side);
  /// Names the column that gives way, counted from 0.
  void give_way(std::size_t column) { giving_way_ = column; }
  /// Missing cells are empty.
  void add_row(std::vector<std::string> cells);
  std::string render() const;

private:
  struct Column {
    std::string heading;
    Side side;
  };

  std::vector<std::size_t> widths() const;
  std::string line(const std::vector<std::string>& cells,
                   const std::vector<std::size_t>& widths) const;

  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
  std::size_t giving_way_ = 0;
};

}  // namespace ostrel::host
