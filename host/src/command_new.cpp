// SPDX-License-Identifier: Apache-2.0
#include "command_new.h"

#include "atomic_file.h"
#include "command_line.h"
#include "embedded_files.h"
#include "system_reason.h"

#include <filesystem>
#include <ostream>
#include <system_error>

namespace ostrel::host {

namespace {

// The examples name the schema where it lies beside them; elsewhere `ostrel schema` prints it.
std::string without_schema_line(std::string_view text) {
  std::string result(text);
  const std::size_t line = result.find("  \"$schema\"");
  if (line == std::string::npos) return result;
  return result.erase(line, result.find('\n', line) + 1 - line);
}

}  // namespace

const std::vector<std::string>& template_names() {
  static const std::vector<std::string> names{"cantilever", "anchored", "propped", "seismic"};
  return names;
}

int write_template(const NewOptions& options, std::ostream& out, std::ostream& err) {
  std::error_code code;
  if (!options.force && std::filesystem::exists(options.file, code)) {
    err << options.texts(Text::file_exists, options.file) << "\n";
    return exit_bad_input;
  }
  const std::string text = without_schema_line(embedded_file(options.name + ".json"));
  if (const std::error_code error = write_whole(options.file, text)) {
    err << options.texts(Text::cannot_write, options.file, reason_of(error, options.texts)) << "\n";
    return exit_bad_input;
  }
  out << options.texts(Text::file_written, options.file) << "\n";
  return exit_fine;
}

}  // namespace ostrel::host
