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
#include <filesystem>
#include <optional>
#include <ostream>
#include <system_error>
#include <vector>

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

class Run {
public:
  Run(const RunOptions& options, std::ostream& out, std::ostream& err)
      : options_(options),
        out_(out),
        err_(err),
        exports_(options.exports, options.texts, out, err) {}

  int go() {
    const ProjectSource source{options_.project_file, options_.presets_file};
    const std::optional<Project> project = load_project(source, options_.texts, err_).project;
    if (!project || !ready(source)) return exit_bad_input;
    const Job job = to_job(*project);
    const auto start = std::chrono::steady_clock::now();
    const Outcome outcome = watched_analysis(job, options_, err_);
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    const RunData data = run_data_of(*project, job, outcome, options_.texts);
    const int status = print_run(data, options_.fail_below, options_.texts, out_, err_);
    if (options_.verbose) tell_more(job, outcome, time.count(), options_.texts, err_);
    return write(*project, job, outcome, data) ? status : exit_bad_input;
  }

private:
  // Whether everything asked for can be written, tried before the analysis.
  bool ready(const ProjectSource& source) const {
    std::vector<NamedFile> outputs{{"--save", options_.results_file},
                                   {"--report", options_.report_file},
                                   {"-o", options_.folder}};
    if (!options_.folder.empty()) {
      for (const char* name : {"result.json", "tables.json"}) {
        outputs.push_back({"-o", (std::filesystem::path(options_.folder) / name).string()});
      }
    }
    if (!outputs_differ(source, options_.exports, outputs, options_.texts, err_)) return false;
    if (!options_.folder.empty()) {
      if (const auto error = prepare_results(options_.folder)) {
        return cannot_write(options_.folder, error);
      }
    }
    if (!options_.results_file.empty()) {
      if (const auto error = try_writing(options_.results_file)) {
        return cannot_write(options_.results_file, error);
      }
    }
    return may_write_report(options_.report_file, options_.texts, err_) && exports_.ready();
  }

  bool write(const Project& project, const Job& job, const Outcome& outcome,
             const RunData& data) const {
    if (!options_.folder.empty()) {
      const WrittenFolder written =
          write_results(options_.folder, project, job, outcome, options_.texts.language());
      if (written.failure) return cannot_write(written.failure->file, written.failure->error);
      out_ << "\n" << options_.texts(Text::written_to, options_.folder) << "\n";
      const std::string warning =
          strangers_warning(options_.folder, written.strangers, options_.texts);
      if (!warning.empty()) err_ << fitted(warning, columns_of(warning)) << "\n";
    }
    if (!options_.results_file.empty()) {
      if (const auto error =
              write_whole(options_.results_file, saved_bytes(data, outcome.results))) {
        return cannot_write(options_.results_file, error);
      }
      out_ << "\n" << options_.texts(Text::saved_to, options_.results_file) << "\n";
    }
    return write_report(options_.report_file, project, job, outcome, options_.texts, out_, err_)
        && exports_.write(project, job, outcome);
  }

  bool cannot_write(const std::string& path, const std::error_code& error) const {
    err_ << options_.texts(Text::cannot_write, path, reason_of(error, options_.texts)) << "\n";
    return false;
  }

  const RunOptions& options_;
  std::ostream& out_;
  std::ostream& err_;
  Exports exports_;
};

}  // namespace

int run_project(const RunOptions& options, std::ostream& out, std::ostream& err) {
  return Run(options, out, err).go();
}

}  // namespace ostrel::host
