// SPDX-License-Identifier: Apache-2.0
#include "command_run.h"

#include "analysis.h"
#include "atomic_file.h"
#include "command_line.h"
#include "project_conversion.h"
#include "project_loading.h"
#include "result_files.h"
#include "run_report.h"
#include "system_reason.h"

#include <filesystem>
#include <optional>
#include <ostream>
#include <system_error>

namespace ostrel::host {

namespace {

namespace fs = std::filesystem;

// Makes the folder and tries it, before the analysis.
std::error_code prepare(const std::string& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
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
  const bool to_files = !options.folder.empty();
  if (const std::error_code error = to_files ? prepare(options.folder) : std::error_code()) {
    err << options.texts(Text::cannot_write, options.folder, reason_of(error, options.texts))
        << "\n";
    return exit_bad_input;
  }
  const Job job = to_job(*project);
  const Outcome outcome = analyse(job);
  for (const std::string& note : project->notes)
    out << note << "\n";
  out << run_report(*project, job, outcome, options.texts);
  for (const xVeldError& message : outcome.messages)
    err << message.MakeErrStr() << "\n";
  if (to_files) {
    if (!write_files(options, result_files(*project, job, outcome), err)) return exit_bad_input;
    out << "\n" << options.texts(Text::written_to, options.folder) << "\n";
  }
  return outcome.verdict == veldError ? exit_analysis_failed : exit_fine;
}

}  // namespace ostrel::host
