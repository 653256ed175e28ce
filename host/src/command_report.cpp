// SPDX-License-Identifier: Apache-2.0
#include "command_report.h"

#include "atomic_file.h"
#include "command_line.h"
#include "project_conversion.h"
#include "project_loading.h"
#include "report_page.h"
#include "run_data.h"
#include "system_reason.h"
#include "text_table.h"

#include <optional>
#include <ostream>
#include <system_error>

namespace ostrel::host {

namespace {

bool told(const std::string& file, const std::error_code& error, const Texts& texts,
          std::ostream& err) {
  if (error) err << texts(Text::cannot_write, file, reason_of(error, texts)) << "\n";
  return static_cast<bool>(error);
}

}  // namespace

bool may_write_report(const std::string& file, const Texts& texts, std::ostream& err) {
  return file.empty() || !told(file, try_writing(file), texts, err);
}

bool write_report(const std::string& file, const Project& project, const Job& job,
                  const Outcome& outcome, const Texts& texts, std::ostream& out,
                  std::ostream& err) {
  if (file.empty()) return true;
  const std::string page = report_page(project, job, outcome, texts.language());
  if (told(file, write_whole(file, page), texts, err)) return false;
  out << texts(Text::report_written, file) << "\n";
  return true;
}

int report_project(const ReportOptions& options, std::ostream& out, std::ostream& err) {
  const ProjectSource source{options.project_file, options.presets_file};
  const std::optional<Project> project = load_project(source, options.texts, err).project;
  if (!project) return exit_bad_input;
  const Exports exports(options.exports, options.texts, out, err);
  if (!outputs_differ(source, options.exports, {{"-o", options.report_file}}, options.texts, err)
      || !may_write_report(options.report_file, options.texts, err) || !exports.ready()) {
    return exit_bad_input;
  }
  const Job job = to_job(*project);
  const Outcome outcome = analyse(job);
  for (const std::string& message : messages_of(*project, job, outcome, options.texts)) {
    err << fitted(message, columns_of(message)) << "\n";
  }
  if (!write_report(options.report_file, *project, job, outcome, options.texts, out, err)
      || !exports.write(*project, job, outcome)) {
    return exit_bad_input;
  }
  return outcome.verdict == veldError ? exit_analysis_failed : exit_fine;
}

}  // namespace ostrel::host
