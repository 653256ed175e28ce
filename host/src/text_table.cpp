// SPDX-License-Identifier: Apache-2.0
#include "text_table.h"

#include <algorithm>
#include <utility>

namespace ostrel::host {

namespace {

constexpr std::size_t gap = 2;         // between columns
constexpr std::size_t narrowest = 10;  // of a column that gives way

bool continues(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0u) == 0x80u;
}

bool is_control(char byte) {
  return static_cast<unsigned char>(byte) < 0x20u || byte == 0x7F;
}

std::string padded(const std::string& text, std::size_t width, TextTable::Side side) {
  const std::string cell = fitted(text, width);
  const std::string blank(width - columns_of(cell), ' ');
  return side == TextTable::Side::left ? cell + blank : blank + cell;
}

}  // namespace

std::size_t columns_of(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char byte) { return !continues(byte); }));
}

std::string fitted(const std::string& text, std::size_t width) {
  std::string clean = text;
  std::replace_if(clean.begin(), clean.end(), is_control, '?');
  if (columns_of(clean) <= width) return clean;
  std::size_t end = 0;
  for (std::size_t columns = 0; columns + 1 < width; ++columns) {
    ++end;
    while (end < clean.size() && continues(clean[end]))
      ++end;
  }
  return clean.substr(0, end) + "…";
}

void TextTable::add_column(std::string heading, Side side) {
  columns_.push_back({std::move(heading), side});
}

void TextTable::add_row(std::vector<std::string> cells) {
  cells.resize(columns_.size());
  rows_.push_back(std::move(cells));
}

std::string TextTable::render() const {
  const std::vector<std::size_t> column_widths = widths();
  std::vector<std::string> headings;
  std::size_t total = 0;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    headings.push_back(columns_[i].heading);
    total += column_widths[i] + (i > 0 ? gap : 0);
  }
  std::string text = line(headings, column_widths) + std::string(total, '-') + "\n";
  for (const auto& row : rows_)
    text += line(row, column_widths);
  return text;
}

std::vector<std::size_t> TextTable::widths() const {
  std::vector<std::size_t> widths;
  std::size_t total = 0;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    std::size_t width = columns_of(columns_[i].heading);
    for (const auto& row : rows_)
      width = std::max(width, columns_of(row[i]));
    widths.push_back(width);
    total += width + (i > 0 ? gap : 0);
  }
  if (total > terminal_width && !widths.empty()) {
    const std::size_t excess = total - terminal_width;
    widths[0] = std::max(narrowest, widths[0] > excess ? widths[0] - excess : 0);
  }
  return widths;
}

std::string TextTable::line(const std::vector<std::string>& cells,
                            const std::vector<std::size_t>& widths) const {
  std::string text;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    text += std::string(i > 0 ? gap : 0, ' ') + padded(cells[i], widths[i], columns_[i].side);
  }
  while (!text.empty() && text.back() == ' ')
    text.pop_back();
  return text + "\n";
}

}  // namespace ostrel::host
