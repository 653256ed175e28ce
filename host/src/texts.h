#pragma once
/// @file  The texts of the program in its two languages. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// The library's own messages and labels come translated from its catalogues; what the program says
// beside them stands in one table here, Italian and English side by side.

#include <fmt/format.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ostrel::host {

enum class Language : std::int32_t { italian, english };

/// "it" and "en" give a language, any other text the second argument.
Language language_of(std::string_view code, Language otherwise);
/// "it" or "en".
const char* code_of(Language language);
/// Italian where the environment (LC_ALL, else LC_MESSAGES, else LANG) asks for it, else English.
Language language_of_environment();

/// What the program can say. The comments tell what takes the place of {} in a text.
enum class Text : std::int32_t {
  // Lines about a file
  error_line,    // place, found, allowed
  warning_line,  // place, message
  more_errors,   // count
  // What was found
  cannot_read,  // reason
  file_too_large,
  too_deep,
  repeated_field,
  missing,
  unknown_field,
  ignored_field,
  an_object,
  a_list_of,  // count
  // What is allowed
  a_readable_file,
  at_most_megabytes,  // count
  valid_json,
  once,
  this_field,
  perhaps,  // name of a field
  one_of,   // choices
  a_list,
  a_text,
  a_text_not_empty,
  true_or_false,
  a_number,
  a_number_in,  // range
  an_integer,
  an_integer_in,  // range
  a_number_as_name,
  above,     // number
  at_least,  // number
  below,     // number
  at_most,   // number
  both,      // range, range
  // The program
  cannot_write,  // file, reason
  program_line,
  run_line,
  core_line,
  file_of_project,
  file_of_case,
  folder_for_results,
  file_for_results,
  language_line,
  help_line,
  version_line,
  count_
};

/// The texts of one language.
class Texts {
public:
  explicit Texts(Language language) : language_(language) {}

  Language language() const { return language_; }
  std::string_view operator()(Text text) const;

  template <class... Arguments>
  std::string operator()(Text text, const Arguments&... arguments) const {
    return fmt::format(fmt::runtime((*this)(text)), arguments...);
  }

private:
  Language language_;
};

}  // namespace ostrel::host
