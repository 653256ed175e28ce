// SPDX-License-Identifier: Apache-2.0
#include "command_run.h"

#include "analysis.h"
#include "atomic_file.h"
#include "command_line.h"
#include "command_report.h"
#include "command_show.h"
#include "equilibrium.h"
#include "phrases.h"
#include "project_conversion.h"
#include "project_loading.h"
#include "result_folder.h"
#include "results_file.h"
#include "run_data.h"
#include "system_reason.h"
#include "terminal.h"
#include "text_table.h"
#include "units.h"
#include "waiting_line.h"

#include <fmt/format.h>

#include <chrono>
#include <optional>
#include <ostream>
#include <system_error>

namespace ostrel::host {

namespace {

Outcome watched_analysis(const Job& job, const RunOptions& options, std::ostream& err) {
  const WaitingLine line(err, options.texts, job.data.loadCombs.size(),
                         is_terminal(err) && !options.quiet);
  return analyse(job);
}

// Time and equilibrium, for those who asked for more than the tables.
void tell_more(const Job& job, const Outcome& outcome, double seconds, const Texts& texts,
               std::ostream& err) {
  err << phrase::analysed_in.in(texts, fmt::format("{:.2f}", seconds)) << "\n";
  for (const xCombResults& combination : outcome.results.combResults) {
    const ForceSum residual = balance_of(job, outcome, combination).residual();
    const std::string line = phrase::out_of_balance.in(
        texts, combination.getCombName(), fmt::format("{:.1e}", kn_of_n(residual.across)),
        fmt::format("{:.1e}", kn_of_n(residual.along)),
        fmt::format("{:.1e}", knm_of_nmm(residual.moment)));
    err << fitted(line, columns_of(line)) << "\n";
  }
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
    if (const auto error = prepare_results(options.folder))
      return cannot_write(options.folder, error);
  }
  if (to_save) {
    if (const auto error = try_writing(options.results_file))
      return cannot_write(options.results_file, error);
  }
  if (!may_write_report(options.report_file, options.texts, err)) return exit_bad_input;
  const Job job = to_job(*project);
  const auto start = std::chrono::steady_clock::now();
  const Outcome outcome = watched_analysis(job, options, err);
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  const RunData data = run_data_of(*project, job, outcome, options.texts);
  const int status = print_run(data, options.fail_below, options.texts, out, err);
  if (options.verbose) tell_more(job, outcome, time.count(), options.texts, err);
  if (to_files) {
    if (const auto failure =
            write_results(options.folder, *project, job, outcome, options.texts.language()))
      return cannot_write(failure->file, failure->error);
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
