// SPDX-License-Identifier: Apache-2.0
#include "command_export.h"

#include "analysis.h"
#include "atomic_file.h"
#include "command_line.h"
#include "page_print.h"
#include "phrases.h"
#include "project_conversion.h"
#include "project_loading.h"
#include "report_page.h"
#include "result_tables.h"
#include "run_data.h"
#include "system_reason.h"
#include "tables_json.h"
#include "text_table.h"
#include "workbook.h"

#include <optional>
#include <ostream>
#include <system_error>
#include <vector>

namespace ostrel::host {

namespace {

constexpr int print_seconds = 60;

class Export {
public:
  Export(const ExportOptions& options, std::ostream& out, std::ostream& err)
      : options_(options), out_(out), err_(err) {}

  // Whether every file can be written, tried before the analysis.
  bool ready() {
    bool any = false;
    for (const std::string* file :
         {&options_.workbook_file, &options_.tables_file, &options_.print_file}) {
      if (file->empty()) continue;
      any = true;
      if (!fine(*file, try_writing(*file))) return false;
    }
    if (!any) {
      err_ << phrase::nothing_to_export.in(options_.texts, "--xlsx, --json, --pdf") << "\n";
      return false;
    }
    return options_.print_file.empty() || has_browser();
  }

  bool write(const Project& project, const Job& job, const Outcome& outcome) {
    const auto tables = result_tables(project, job, outcome, options_.texts);
    if (!options_.tables_file.empty()) {
      const std::string json = tables_json(head_of(project, outcome, options_.texts), tables);
      if (!written(options_.tables_file, json)) return false;
    }
    return write_workbook(project, tables) && print(project, job, outcome);
  }

private:
  // A report without a browser cannot be printed; better known before the analysis than after.
  bool has_browser() {
    if (!found_browser().empty()) return true;
    err_ << phrase::no_browser.in(options_.texts, options_.print_file, browser_names()) << "\n";
    return false;
  }

  bool write_workbook(const Project& project, const std::vector<ResultTable>& tables) {
    if (options_.workbook_file.empty()) return true;
    const Workbook workbook = workbook_of(project.name, tables, options_.texts);
    if (!workbook.problem.empty()) {
      err_ << phrase::cannot_make_workbook.in(options_.texts, options_.workbook_file,
                                              workbook.problem)
           << "\n";
      return false;
    }
    return written(options_.workbook_file, workbook.bytes);
  }

  bool print(const Project& project, const Job& job, const Outcome& outcome) {
    if (options_.print_file.empty()) return true;
    const std::string browser = found_browser();
    const Print result = print_page(
        browser, report_page(project, job, outcome, options_.texts.language()), print_seconds);
    if (result.problem == PrintProblem::none) return written(options_.print_file, result.bytes);
    err_ << (result.problem == PrintProblem::too_slow
                 ? phrase::browser_too_slow.in(options_.texts, options_.print_file, browser,
                                               print_seconds)
                 : phrase::browser_failed.in(options_.texts, options_.print_file, browser))
         << "\n";
    return false;
  }

  bool fine(const std::string& file, const std::error_code& error) {
    if (error) {
      err_ << options_.texts(Text::cannot_write, file, reason_of(error, options_.texts)) << "\n";
    }
    return !error;
  }

  bool written(const std::string& file, const std::string& contents) {
    if (!fine(file, write_whole(file, contents))) return false;
    out_ << options_.texts(Text::file_written, file) << "\n";
    return true;
  }

  const ExportOptions& options_;
  std::ostream& out_;
  std::ostream& err_;
};

}  // namespace

int export_project(const ExportOptions& options, std::ostream& out, std::ostream& err) {
  Export files(options, out, err);
  const std::optional<Project> project =
      load_project({options.project_file, options.presets_file}, options.texts, err).project;
  if (!project || !files.ready()) return exit_bad_input;
  const Job job = to_job(*project);
  const Outcome outcome = analyse(job);
  for (const std::string& message : messages_of(*project, outcome, options.texts))
    err << fitted(message, columns_of(message)) << "\n";
  if (!files.write(*project, job, outcome)) return exit_bad_input;
  return outcome.verdict == veldError ? exit_analysis_failed : exit_fine;
}

}  // namespace ostrel::host
