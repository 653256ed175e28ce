// SPDX-License-Identifier: Apache-2.0
#include "manual_page.h"

#include "phrases.h"

#include <ostrel/version.h>

#include <fmt/format.h>

namespace ostrel::host {

namespace {

// A text that roff takes as it stands: no escapes, hyphens that can be copied, no request at the
// beginning of a line.
std::string plain(std::string_view text) {
  std::string result;
  for (const char letter : text) {
    if (letter == '\\') {
      result += "\\e";
    } else if (letter == '-') {
      result += "\\-";
    } else if (result.empty() && (letter == '.' || letter == '\'')) {
      result += "\\&";
      result += letter;
    } else {
      result += letter;
    }
  }
  return result;
}

std::string bold(std::string_view text) {
  return "\\fB" + plain(text) + "\\fR";
}

std::string slanted(std::string_view text) {
  return "\\fI" + plain(text) + "\\fR";
}

std::string option_entry(const OptionDescription& option) {
  std::string names;
  for (const std::string& name : option.names) {
    names += (names.empty() ? "" : ", ") + bold(name);
  }
  if (option.takes_value()) names += " " + slanted(option.value);
  return ".TP\n" + names + "\n" + plain(option.description) + "\n";
}

std::string command_entry(const CommandDescription& program, const CommandDescription& command) {
  std::string line = bold(program.name) + " " + bold(command.name);
  for (const OptionDescription& place : command.places) {
    line += " " + slanted(place.names.at(0)) + (place.repeats ? " ..." : "");
  }
  std::string text = ".SS " + line + "\n" + plain(command.description) + ".\n";
  for (const OptionDescription& place : command.places) {
    text += ".TP\n" + slanted(place.names.at(0)) + "\n" + plain(place.description) + "\n";
  }
  for (const OptionDescription& option : command.options) {
    text += option_entry(option);
  }
  return text;
}

std::string entry(std::string_view name, std::string_view description) {
  return ".TP\n" + bold(name) + "\n" + plain(description) + "\n";
}

}  // namespace

std::string manual_page(const CommandDescription& program, const Texts& texts) {
  const auto section = [&](const Phrase& title) {
    return fmt::format(".SH {}\n", title.in(texts));
  };
  std::string text = fmt::format(".TH OSTREL 1 \"\" \"ostrel {}\"\n", ostrel::version());
  text += section(phrase::manual_name) + "ostrel \\- " + plain(program.description) + "\n";
  text += section(phrase::manual_synopsis);
  for (const CommandDescription& command : program.commands) {
    text += bold(program.name) + " " + bold(command.name);
    for (const OptionDescription& place : command.places) {
      text += " " + slanted(place.names.at(0)) + (place.repeats ? " ..." : "");
    }
    text += "\n.br\n";
  }
  text += section(phrase::manual_description) + plain(phrase::manual_program.in(texts)) + "\n";
  text += section(phrase::manual_options);
  for (const OptionDescription& option : program.options) {
    text += option_entry(option);
  }
  text += section(phrase::manual_commands);
  for (const CommandDescription& command : program.commands) {
    text += command_entry(program, command);
  }
  text += section(phrase::manual_exit_status) + entry("0", phrase::manual_exit_0.in(texts))
        + entry("1", phrase::manual_exit_1.in(texts)) + entry("2", phrase::manual_exit_2.in(texts))
        + entry("130", phrase::manual_exit_130.in(texts));
  text += section(phrase::manual_environment)
        + entry("LC_ALL, LC_MESSAGES, LANG", phrase::manual_environment_language.in(texts))
        + entry("NO_COLOR", phrase::manual_environment_no_color.in(texts));
  return text;
}

}  // namespace ostrel::host
