// SPDX-License-Identifier: Apache-2.0
#include "command_export.h"

#include "analysis.h"
#include "command_line.h"
#include "phrases.h"
#include "project_conversion.h"
#include "project_loading.h"
#include "run_data.h"
#include "text_table.h"

#include <optional>
#include <ostream>

namespace ostrel::host {

int export_project(const ExportOptions& options, std::ostream& out, std::ostream& err) {
  const Exports exports(options.files, options.texts, out, err);
  const ProjectSource source{options.project_file, options.presets_file};
  const std::optional<Project> project = load_project(source, options.texts, err).project;
  if (!project) return exit_bad_input;
  if (!options.files.any()) {
    err << phrase::nothing_to_export.in(options.texts, "--xlsx, --json, --pdf") << "\n";
    return exit_bad_input;
  }
  if (!outputs_differ(source, options.files, {}, options.texts, err) || !exports.ready()) {
    return exit_bad_input;
  }
  const Job job = to_job(*project);
  const Outcome outcome = analyse(job);
  for (const std::string& message : messages_of(*project, job, outcome, options.texts)) {
    err << fitted(message, columns_of(message)) << "\n";
  }
  if (!exports.write(*project, job, outcome)) return exit_bad_input;
  return outcome.verdict == veldError ? exit_analysis_failed : exit_fine;
}

}  // namespace ostrel::host
