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

/// Rows of cells under headings. The first column is the one that gives way where the table would be
/// wider than the terminal.
class TextTable {
public:
  enum class Side : std::int32_t { left, right };

  void add_column(std::string heading, Side side);
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
};

}  // namespace ostrel::host
