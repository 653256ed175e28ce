// SPDX-License-Identifier: Apache-2.0
#include "command_core.h"

#include "analysis.h"
#include "atomic_file.h"
#include "command_line.h"
#include "core_case.h"
#include "core_result.h"
#include "json_text.h"
#include "problems.h"
#include "system_reason.h"

#include <optional>
#include <ostream>

namespace ostrel::host {

namespace {

std::optional<Job> load(const CoreOptions& options, std::ostream& err) {
  Problems problems(options.texts);
  const std::optional<std::string> text = read_file(options.case_file, problems);
  std::optional<Job> job = text ? read_core_case(*text, problems) : std::nullopt;
  err << problems.report(options.case_file, text ? *text : "");
  return job;
}

}  // namespace

int run_core(const CoreOptions& options, std::ostream& out, std::ostream& err) {
  const std::optional<Job> job = load(options, err);
  if (!job) return exit_bad_input;
  const bool to_file = !options.result_file.empty();
  const auto cannot_write = [&](const std::error_code& error) {
    err << options.texts(Text::cannot_write, options.result_file, reason_of(error, options.texts))
        << "\n";
    return exit_bad_input;
  };
  if (to_file) {
    if (const auto error = try_writing(options.result_file)) return cannot_write(error);
  }
  const Outcome outcome = analyse(*job);
  const std::string text =
      core_result(outcome).dump(1, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";
  if (to_file) {
    if (const auto error = write_whole(options.result_file, text)) return cannot_write(error);
  } else {
    out << text;
  }
  for (const xVeldError& message : outcome.messages) {
    err << message.MakeErrStr() << "\n";
  }
  return outcome.verdict == veldError ? exit_analysis_failed : exit_fine;
}

}  // namespace ostrel::host
