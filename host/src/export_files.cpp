// SPDX-License-Identifier: Apache-2.0
#include "export_files.h"

#include "atomic_file.h"
#include "page_print.h"
#include "phrases.h"
#include "report_page.h"
#include "system_reason.h"
#include "tables_json.h"
#include "workbook.h"

#include <filesystem>
#include <ostream>

namespace ostrel::host {

namespace {

namespace fs = std::filesystem;

constexpr int print_seconds = 60;

// A name that is the same for all paths to a file, there or not; empty for what is no regular file.
std::string identity_of(const std::string& file) {
  std::error_code code;
  const fs::path path = fs::weakly_canonical(fs::absolute(file, code), code);
  if (code) return file;
  const fs::file_status status = fs::status(path, code);
  const bool special =
      fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status);
  return special ? std::string() : path.string();
}

bool same_file(const std::string& a, const std::string& b) {
  if (a.empty() || b.empty()) return false;
  const std::string identity = identity_of(a);
  return !identity.empty() && identity == identity_of(b);
}

}  // namespace

// A report without a browser cannot be printed; better known before the analysis than after.
bool Exports::ready() const {
  for (const std::string* file : {&files_.workbook_file, &files_.tables_file, &files_.print_file}) {
    if (!file->empty() && !fine(*file, try_writing(*file))) return false;
  }
  if (files_.print_file.empty() || !found_browser().empty()) return true;
  err_ << phrase::no_browser.in(texts_, files_.print_file, browser_names()) << "\n";
  return false;
}

bool Exports::write(const Project& project, const Job& job, const Outcome& outcome) const {
  if (!files_.any()) return true;
  const std::vector<ResultTable> tables = result_tables(project, job, outcome, texts_);
  if (!files_.tables_file.empty()) {
    const std::string json = tables_json(head_of(project, job, outcome, texts_), tables);
    if (!written(files_.tables_file, json)) return false;
  }
  return write_workbook(project, tables) && print(project, job, outcome);
}

bool Exports::write_workbook(const Project& project, const std::vector<ResultTable>& tables) const {
  if (files_.workbook_file.empty()) return true;
  const Workbook workbook = workbook_of(project.name, tables, texts_);
  if (workbook.problem.empty()) return written(files_.workbook_file, workbook.bytes);
  err_ << phrase::cannot_make_workbook.in(texts_, files_.workbook_file, workbook.problem) << "\n";
  return false;
}

bool Exports::print(const Project& project, const Job& job, const Outcome& outcome) const {
  if (files_.print_file.empty()) return true;
  const std::string browser = found_browser();
  const Print result =
      print_page(browser, report_page(project, job, outcome, texts_.language()), print_seconds);
  if (result.problem == PrintProblem::none) return written(files_.print_file, result.bytes);
  err_ << (result.problem == PrintProblem::too_slow
               ? phrase::browser_too_slow.in(texts_, files_.print_file, browser, print_seconds)
               : phrase::browser_failed.in(texts_, files_.print_file, browser))
       << "\n";
  return false;
}

bool Exports::fine(const std::string& file, const std::error_code& error) const {
  if (error) err_ << texts_(Text::cannot_write, file, reason_of(error, texts_)) << "\n";
  return !error;
}

bool Exports::written(const std::string& file, const std::string& contents) const {
  if (!fine(file, write_whole(file, contents))) return false;
  out_ << texts_(Text::file_written, file) << "\n";
  return true;
}

bool outputs_differ(const ProjectSource& inputs, const ExportFiles& exports,
                    std::vector<NamedFile> outputs, const Texts& texts, std::ostream& err) {
  outputs.push_back({"--xlsx", exports.workbook_file});
  outputs.push_back({"--json", exports.tables_file});
  outputs.push_back({"--pdf", exports.print_file});
  for (auto output = outputs.begin(); output != outputs.end(); ++output) {
    for (const std::string* input : {&inputs.project_file, &inputs.presets_file}) {
      if (!same_file(output->file, *input)) continue;
      err << phrase::overwrites_input.in(texts, output->file, output->argument) << "\n";
      return false;
    }
    for (auto other = outputs.begin(); other != output; ++other) {
      if (!same_file(output->file, other->file)) continue;
      err << phrase::written_twice.in(texts, output->file, other->argument, output->argument)
          << "\n";
      return false;
    }
  }
  return true;
}

}  // namespace ostrel::host
