// SPDX-License-Identifier: Apache-2.0
#include "text_table.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
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

std::string printable(std::string text) {
  std::replace_if(text.begin(), text.end(), is_control, '?');
  return text;
}

// How many bytes the first `columns` characters take.
std::size_t bytes_of(const std::string& text, std::size_t columns) {
  std::size_t end = 0;
  for (std::size_t i = 0; i < columns && end < text.size(); ++i) {
    ++end;
    while (end < text.size() && continues(text[end])) {
      ++end;
    }
  }
  return end;
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
  const std::string clean = printable(text);
  if (columns_of(clean) <= width) return clean;
  return clean.substr(0, bytes_of(clean, width - 1)) + "…";
}

std::string wrapped(const std::string& text, std::size_t width, std::size_t indent) {
  std::string rest = printable(text);
  std::string lines;
  std::string margin;
  while (columns_of(margin + rest) > width) {
    const std::size_t end = bytes_of(rest, width - margin.size());
    const std::size_t blank = rest.rfind(' ', end);
    const bool broken = blank == std::string::npos || blank == 0;
    lines += margin + rest.substr(0, broken ? end : blank) + "\n";
    rest.erase(0, broken ? end : blank + 1);
    margin.assign(indent, ' ');
  }
  return lines + margin + rest;
}

std::string number_text(double value, int decimals) {
  if (!(std::abs(value) < 1e8)) return fmt::format("{:.3g}", value);
  return fmt::format("{:.{}f}", value, decimals);
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
  for (const auto& row : rows_) {
    text += line(row, column_widths);
  }
  return text;
}

std::vector<std::size_t> TextTable::widths() const {
  std::vector<std::size_t> widths;
  std::size_t total = 0;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    std::size_t width = columns_of(columns_[i].heading);
    for (const auto& row : rows_) {
      width = std::max(width, columns_of(row[i]));
    }
    widths.push_back(width);
    total += width + (i > 0 ? gap : 0);
  }
  if (total > terminal_width && giving_way_ < widths.size()) {
    std::size_t& width = widths[giving_way_];
    const std::size_t excess = total - terminal_width;
    width = std::max(narrowest, width > excess ? width - excess : 0);
  }
  return widths;
}

std::string TextTable::line(const std::vector<std::string>& cells,
                            const std::vector<std::size_t>& widths) const {
  std::string text;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    text += std::string(i > 0 ? gap : 0, ' ') + padded(cells[i], widths[i], columns_[i].side);
  }
  while (!text.empty() && text.back() == ' ') {
    text.pop_back();
  }
  return text + "\n";
}

}  // namespace ostrel::host
