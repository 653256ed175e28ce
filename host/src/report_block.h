#pragma once
/// @file  The blocks that a report is made of: tables, facts, figures, drawings. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// A block is data alone; the page's script turns it into elements, in the language in view, with
// numbers in that language's form. A cell is a number or two, a text, a text in both languages,
// true or false, or a verdict.

#include "bilingual.h"

#include <string>
#include <vector>

namespace ostrel::host {

/// As many digits as the number has.
inline constexpr int digits_as_given = -1;
/// The column holds texts.
inline constexpr int no_digits = -2;

struct ReportColumn {
  Both label;
  std::string unit = {};  ///< empty for none
  int digits = no_digits;
  bool largest = false;  ///< the number that is largest in size stands out
};

/// A table; numbers stand to the right, texts to the left.
class ReportTable {
public:
  ReportTable(std::string id, Both caption, std::vector<ReportColumn> columns);

  bool empty() const { return rows_.empty(); }
  void add(std::vector<OrderedJson> cells);
  OrderedJson block() const;

private:
  std::string id_;
  Both caption_;
  std::vector<ReportColumn> columns_;
  OrderedJson rows_ = OrderedJson::array();
};

/// Single data under each other: name, value, unit.
class ReportFacts {
public:
  explicit ReportFacts(Both caption) : caption_(std::move(caption)) {}

  void add(const Both& label, const OrderedJson& value, const std::string& unit = "",
           int digits = digits_as_given);
  OrderedJson block() const;

private:
  Both caption_;
  OrderedJson rows_ = OrderedJson::array();
};

/// Null for what is no number.
OrderedJson number_cell(double value);

/// A cell with two numbers, as "1 / 1.3".
OrderedJson pair_cell(double first, double second);

/// A cell that tells whether something holds.
OrderedJson verdict_cell(bool holds);

/// A table that is shown on request, and on paper. @param block  of a table
OrderedJson folded(OrderedJson block);

OrderedJson figures_block(const std::vector<std::string>& ids);
OrderedJson drawing_block(const std::string& id, const Both& caption, const std::string& svg);
OrderedJson note_block(const Both& text);
OrderedJson heading_block(const std::string& id, const Both& text);

}  // namespace ostrel::host
