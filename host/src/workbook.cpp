// SPDX-License-Identifier: Apache-2.0
#include "workbook.h"

#include "system_reason.h"
#include "table_labels.h"
#include "text_table.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>
#include <xlsxwriter.h>

namespace ostrel::host {

namespace {

namespace fs = std::filesystem;

constexpr double column_width = 18.0;         // [characters]
constexpr std::size_t longest_text = 32'767;  // bytes of a cell, as the format has it
constexpr lxw_row_t chart_rows = 26;          // a chart takes these, and some

// A file with a name of its own that goes with the object.
class ScratchFile {
public:
  ScratchFile() {
    std::error_code error;
    name_ = (fs::temp_directory_path(error) / "ostrel-XXXXXX").string();
    const int handle = error ? -1 : mkstemp(name_.data());
    made_ = handle >= 0;
    if (made_) close(handle);
  }
  ~ScratchFile() {
    if (made_) unlink(name_.c_str());
  }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;

  bool made() const { return made_; }
  const std::string& name() const { return name_; }
  std::string contents() const {
    std::ifstream stream(name_, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

private:
  std::string name_;
  bool made_ = false;
};

lxw_row_t row_number(std::size_t number) {
  return static_cast<lxw_row_t>(number);
}

lxw_col_t column_number(std::size_t number) {
  return static_cast<lxw_col_t>(number);
}

// Without control characters, which a part of a workbook must not hold, and cut between characters.
std::string cell_text(const std::string& original) {
  const std::string text = fitted(original, columns_of(original));
  std::size_t end = std::min(text.size(), longest_text);
  while (end > 0 && end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0u) == 0x80u) {
    --end;
  }
  return text.substr(0, end);
}

// What a cell tells people; empty for a number.
std::string words_of(const TableCell& cell) {
  if (const auto* one = std::get_if<CodedText>(&cell)) return one->words;
  const auto* text = std::get_if<std::string>(&cell);
  return text != nullptr ? *text : "";
}

// Rows [first, last] of a table that belong together.
struct Stretch {
  std::string name;
  std::size_t first = 0;
  std::size_t last = 0;
};

// One sheet: the table to the left, its charts to the right of it.
class Sheet {
public:
  Sheet(lxw_workbook* book, lxw_format* heading, const ResultTable& table, const Texts& texts)
      : book_(book), table_(table), texts_(texts) {
    const std::string_view subject = subject_label(table.subject, texts);
    name_ = table.combination == 0 ? std::string(subject)
                                   : fmt::format("{:02} {}", table.combination, subject);
    sheet_ = workbook_add_worksheet(book, name_.c_str());
    if (sheet_ == nullptr) {
      error_ = LXW_ERROR_SHEETNAME_ALREADY_USED;
      return;
    }
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
      const std::string label(column_label(table.columns[i], texts));
      keep(worksheet_write_string(sheet_, 0, column_number(i), label.c_str(), heading));
    }
    keep(worksheet_set_column(sheet_, 0, column_number(table.columns.size() - 1), column_width,
                              nullptr));
    worksheet_freeze_panes(sheet_, 1, 0);
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
      write_row(row_number(i + 1), table.rows[i]);
    }
    if (!table.rows.empty()) add_charts();
  }

  lxw_error error() const { return error_; }

private:
  void keep(lxw_error error) {
    if (error_ == LXW_NO_ERROR) error_ = error;
  }

  void write_row(lxw_row_t row, const std::vector<TableCell>& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
      const lxw_col_t column = column_number(i);
      if (const auto* text = std::get_if<std::string>(&cells[i])) {
        write_text(row, column, *text);
      } else if (const auto* one = std::get_if<CodedText>(&cells[i])) {
        write_text(row, column, one->words);
      } else if (const auto* number = std::get_if<double>(&cells[i])) {
        keep(worksheet_write_number(sheet_, row, column, *number, nullptr));
      } else if (const auto* yes = std::get_if<bool>(&cells[i])) {
        keep(worksheet_write_boolean(sheet_, row, column, *yes ? 1 : 0, nullptr));
      }
    }
  }

  void write_text(lxw_row_t row, lxw_col_t column, const std::string& text) {
    keep(worksheet_write_string(sheet_, row, column, cell_text(text).c_str(), nullptr));
  }

  void add_charts() {
    const std::vector<Stretch> all{{"", 0, table_.rows.size() - 1}};
    if (table_.subject == "wall") {
      add_chart({"moment_kNm"}, all);
      add_chart({"shear_kN"}, all);
      add_chart({"displacement_mm"}, all);
    } else if (table_.subject == "springs") {
      add_chart({"pressure_kPa", "limit_kPa"}, all);
      add_chart({"displacement_mm", "limit_mm"}, all);
    } else if (table_.subject == "pressures") {
      add_chart({"pressure_kN_m"}, actions());
    }
  }

  // Rows of one action stand together.
  std::vector<Stretch> actions() const {
    std::vector<Stretch> actions;
    for (std::size_t i = 0; i < table_.rows.size(); ++i) {
      const std::string action = words_of(table_.rows[i].front());
      if (actions.empty() || actions.back().name != action) actions.push_back({action, i, i});
      actions.back().last = i;
    }
    return actions;
  }

  std::size_t place_of(std::string_view column) const {
    const auto found = std::find(table_.columns.begin(), table_.columns.end(), column);
    return static_cast<std::size_t>(found - table_.columns.begin());
  }

  // Values to the right, depth downwards.
  void add_chart(const std::vector<std::string_view>& columns,
                 const std::vector<Stretch>& stretches) {
    lxw_chart* chart = workbook_add_chart(book_, LXW_CHART_SCATTER_STRAIGHT);
    if (chart == nullptr) return keep(LXW_ERROR_MEMORY_MALLOC_FAILED);
    for (const std::string_view column : columns) {
      for (const Stretch& stretch : stretches) {
        add_series(*chart, column, stretch);
      }
    }
    const std::string label(column_label(columns.front(), texts_));
    const std::string depth(column_label("depth_m", texts_));
    chart_title_set_name(chart, label.c_str());
    chart_axis_set_name(chart->x_axis, label.c_str());
    chart_axis_set_name(chart->y_axis, depth.c_str());
    chart_axis_set_reverse(chart->y_axis);
    if (columns.size() * stretches.size() == 1) {
      chart_legend_set_position(chart, LXW_CHART_LEGEND_NONE);
    }
    keep(worksheet_insert_chart(sheet_, next_chart_row_, column_number(table_.columns.size() + 1),
                                chart));
    next_chart_row_ += chart_rows;
  }

  void add_series(lxw_chart& chart, std::string_view column, const Stretch& stretch) {
    const lxw_row_t first = row_number(stretch.first + 1);
    const lxw_row_t last = row_number(stretch.last + 1);
    const lxw_col_t values = column_number(place_of(column));
    const lxw_col_t depths = column_number(place_of("depth_m"));
    lxw_chart_series* series = chart_add_series(&chart, nullptr, nullptr);
    if (series == nullptr) return keep(LXW_ERROR_MEMORY_MALLOC_FAILED);
    chart_series_set_categories(series, name_.c_str(), first, values, last, values);
    chart_series_set_values(series, name_.c_str(), first, depths, last, depths);
    const std::string name =
        stretch.name.empty() ? std::string(column_label(column, texts_)) : cell_text(stretch.name);
    chart_series_set_name(series, name.c_str());
  }

  lxw_workbook* book_;
  lxw_worksheet* sheet_ = nullptr;
  const ResultTable& table_;
  const Texts& texts_;
  std::string name_;
  lxw_row_t next_chart_row_ = 1;
  lxw_error error_ = LXW_NO_ERROR;
};

}  // namespace

Workbook workbook_of(const std::string& title, const std::vector<ResultTable>& tables,
                     const Texts& texts) {
  const ScratchFile file;
  if (!file.made()) return {"", reason_of(last_error(), texts)};
  lxw_workbook* book = workbook_new(file.name().c_str());
  if (book == nullptr) return {"", lxw_strerror(LXW_ERROR_MEMORY_MALLOC_FAILED)};
  std::string name = cell_text(title);
  lxw_doc_properties properties{};
  properties.title = name.data();
  workbook_set_properties(book, &properties);
  lxw_format* heading = workbook_add_format(book);
  format_set_bold(heading);
  format_set_text_wrap(heading);
  lxw_error error = LXW_NO_ERROR;
  for (const ResultTable& table : tables) {
    const Sheet sheet(book, heading, table, texts);
    if (error == LXW_NO_ERROR) error = sheet.error();
  }
  const lxw_error closed = workbook_close(book);
  if (error == LXW_NO_ERROR) error = closed;
  if (error != LXW_NO_ERROR) return {"", lxw_strerror(error)};
  return {file.contents(), ""};
}

}  // namespace ostrel::host
