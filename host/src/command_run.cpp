// SPDX-License-Identifier: Apache-2.0
#include "command_run.h"

#include "analysis.h"
#include "atomic_file.h"
#include "command_line.h"
#include "command_report.h"
#include "command_show.h"
#include "project_conversion.h"
#include "project_loading.h"
#include "result_files.h"
#include "results_file.h"
#include "run_data.h"
#include "system_reason.h"

#include <filesystem>
#include <optional>
#include <ostream>
#include <system_error>

namespace ostrel::host {

namespace {

namespace fs = std::filesystem;

// Makes the folders and tries to write, before the analysis.
std::error_code prepare(const std::string& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (!error) fs::create_directories(fs::path(folder) / figure_folder, error);
  return error ? error : try_writing((fs::path(folder) / "result.json").string());
}

// @return whether all files are written; the one that is not is told
bool write_files(const RunOptions& options, const std::vector<ResultFile>& files,
                 std::ostream& err) {
  for (const ResultFile& file : files) {
    const std::string path = (fs::path(options.folder) / file.name).string();
    if (const std::error_code error = write_whole(path, file.contents)) {
      err << options.texts(Text::cannot_write, path, reason_of(error, options.texts)) << "\n";
      return false;
    }
  }
  return true;
}

}  // namespace

int run_project(const RunOptions& options, std::ostream& out, std::ostream& err) {
  const std::optional<Project> project =
      load_project({options.project_file, options.presets_file}, options.texts, err).project;
  if (!project) return exit_bad_input;
  const auto cannot_write = [&](const std::string& path, const std::error_code& error) {
    err << options.texts(Text::cannot_write, path, reason_of(error, options.texts)) << "\n";
    return exit_bad_input;
  };
  const bool to_files = !options.folder.empty();
  const bool to_save = !options.results_file.empty();
  if (to_files) {
    if (const auto error = prepare(options.folder)) return cannot_write(options.folder, error);
  }
  if (to_save) {
    if (const auto error = try_writing(options.results_file))
      return cannot_write(options.results_file, error);
  }
  if (!may_write_report(options.report_file, options.texts, err)) return exit_bad_input;
  const Job job = to_job(*project);
  const Outcome outcome = analyse(job);
  const RunData data = run_data_of(*project, job, outcome);
  const int status = print_run(data, options.fail_below, options.texts, out, err);
  if (to_files) {
    if (!write_files(options, result_files(*project, job, outcome, options.texts.language()), err))
      return exit_bad_input;
    out << "\n" << options.texts(Text::written_to, options.folder) << "\n";
  }
  if (to_save) {
    if (const auto error = write_whole(options.results_file, saved_bytes(data, outcome.results)))
      return cannot_write(options.results_file, error);
    out << "\n" << options.texts(Text::saved_to, options.results_file) << "\n";
  }
  if (!write_report(options.report_file, *project, job, outcome, options.texts, out, err)) {
    return exit_bad_input;
  }
  return status;
}

}  // namespace ostrel::host
