// SPDX-License-Identifier: Apache-2.0
#include "command_show.h"

#include "command_line.h"
#include "json_text.h"
#include "problems.h"
#include "results_file.h"
#include "run_report.h"
#include "terminal.h"
#include "text_table.h"
#include "verdict_colours.h"
#include "verification_table.h"

#include <ostream>
#include <utility>

namespace ostrel::host {

int show_results(const ShowOptions& options, std::ostream& out, std::ostream& err) {
  Problems problems(options.texts);
  std::optional<std::string> bytes = read_file(options.results_file, problems, max_saved_bytes);
  const std::optional<SavedRun> run =
      bytes ? read_saved(std::move(*bytes), problems) : std::nullopt;
  err << problems.report(options.results_file, "");
  if (!run) return exit_bad_input;
  for (const std::string& remark : run->data.remarks) {
    err << fitted(remark, columns_of(remark)) << "\n";
  }
  return print_run(run->data, options.fail_below, options.texts, out, err);
}

int print_run(const RunData& data, const std::optional<double>& fail_below, const Texts& texts,
              std::ostream& out, std::ostream& err) {
  for (const std::string& note : data.notes) {
    out << fitted(note, columns_of(note)) << "\n";
  }
  const std::string report = run_report(data, texts);
  out << (wants_colour(out) ? with_coloured_verdicts(report, texts) : report);
  for (const std::string& message : data.messages) {
    err << fitted(message, columns_of(message)) << "\n";
  }
  const std::string below = fail_below ? lines_below(data, *fail_below, texts) : std::string();
  err << below;
  return data.through && below.empty() ? exit_fine : exit_analysis_failed;
}

}  // namespace ostrel::host
