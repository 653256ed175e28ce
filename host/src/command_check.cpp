// SPDX-License-Identifier: Apache-2.0
#include "command_check.h"

#include "command_line.h"

#include <optional>
#include <ostream>

namespace ostrel::host {

namespace {

std::string counted(std::size_t number, Text one, Text many, const Texts& texts) {
  return number == 1 ? std::string(texts(one)) : texts(many, number);
}

}  // namespace

int check_project_file(const CheckOptions& options, std::ostream& out, std::ostream& err) {
  const LoadedProject loaded = load_project(options.source, options.texts, err);
  if (loaded.project) {
    for (const std::string& note : loaded.project->notes) {
      out << note << "\n";
    }
  }
  const std::string& file = options.source.project_file;
  const bool fine = loaded.errors == 0 && loaded.warnings == 0;
  out << (fine ? options.texts(Text::nothing_wrong, file)
               : options.texts(
                   Text::problems_counted, file,
                   counted(loaded.errors, Text::one_error, Text::errors_counted, options.texts),
                   counted(loaded.warnings, Text::one_warning, Text::warnings_counted,
                           options.texts)))
      << "\n";
  return loaded.project ? exit_fine : exit_bad_input;
}

int expand_project_file(const CheckOptions& options, std::ostream& out, std::ostream& err) {
  const std::optional<std::string> text = expanded_project(options.source, options.texts, err);
  if (!text) return exit_bad_input;
  out << *text;
  return exit_fine;
}

}  // namespace ostrel::host
