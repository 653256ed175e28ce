// SPDX-License-Identifier: Apache-2.0
#include "report_block.h"

#include <cmath>
#include <utility>

namespace ostrel::host {

namespace {

// JSON has no number for it; the page shows a dash.
OrderedJson cell(const OrderedJson& value) {
  const bool lost = value.is_number_float() && !std::isfinite(value.get<double>());
  return lost ? OrderedJson() : value;
}

}  // namespace

ReportTable::ReportTable(std::string id, Both caption, std::vector<ReportColumn> columns)
    : id_(std::move(id)), caption_(std::move(caption)), columns_(std::move(columns)) {}

void ReportTable::add(std::vector<OrderedJson> cells) {
  OrderedJson row = OrderedJson::array();
  for (const OrderedJson& value : cells) {
    row.push_back(cell(value));
  }
  rows_.push_back(std::move(row));
}

OrderedJson ReportTable::block() const {
  OrderedJson columns = OrderedJson::array();
  for (const ReportColumn& column : columns_) {
    columns.push_back({{"label", column.label}, {"unit", column.unit}, {"digits", column.digits}});
    if (column.largest) columns.back()["largest"] = true;
  }
  return {{"kind", "table"},
          {"id", id_},
          {"caption", caption_},
          {"columns", std::move(columns)},
          {"rows", rows_}};
}

void ReportFacts::add(const Both& label, const OrderedJson& value, const std::string& unit,
                      int digits) {
  rows_.push_back({{"label", label}, {"value", cell(value)}, {"unit", unit}, {"digits", digits}});
}

OrderedJson ReportFacts::block() const {
  return {{"kind", "facts"}, {"caption", caption_}, {"rows", rows_}};
}

OrderedJson number_cell(double value) {
  return cell(value);
}

OrderedJson pair_cell(double first, double second) {
  return {{"pair", {cell(first), cell(second)}}};
}

OrderedJson folded(OrderedJson block) {
  block["folded"] = true;
  return block;
}

OrderedJson verdict_cell(bool holds) {
  return {{"verdict", holds}};
}

OrderedJson figures_block(const std::vector<std::string>& ids) {
  return {{"kind", "figures"}, {"figures", ids}};
}

OrderedJson drawing_block(const std::string& id, const Both& caption, const std::string& svg) {
  return {{"kind", "drawing"}, {"id", id}, {"caption", caption}, {"svg", svg}};
}

OrderedJson note_block(const Both& text) {
  return {{"kind", "note"}, {"text", text}};
}

OrderedJson heading_block(const std::string& id, const Both& text) {
  return {{"kind", "heading"}, {"id", id}, {"text", text}};
}

}  // namespace ostrel::host
