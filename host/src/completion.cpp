// SPDX-License-Identifier: Apache-2.0
#include "completion.h"

#include <fmt/format.h>

#include <cstddef>

namespace ostrel::host {

namespace {

constexpr const char* folder_value = "DIR";

std::string joined(const std::vector<std::string>& words, const char* between) {
  std::string text;
  for (const std::string& word : words) {
    text += (text.empty() ? "" : between) + word;
  }
  return text;
}

bool is_number(const OptionDescription& option) {
  return option.value == "N" || option.value == "FACTOR";
}

// The options of a command and those of the program, which are taken there as well.
std::vector<OptionDescription> options_in(const CommandDescription& program,
                                          const CommandDescription& command) {
  std::vector<OptionDescription> options = command.options;
  for (const OptionDescription& option : program.options) {
    bool there = false;
    for (const OptionDescription& own : command.options) {
      there = there || own.names == option.names;
    }
    if (!there) options.push_back(option);
  }
  return options;
}

std::string names_of(const std::vector<OptionDescription>& options) {
  std::string names;
  for (const OptionDescription& option : options) {
    names += (names.empty() ? "" : " ") + joined(option.names, " ");
  }
  return names;
}

std::vector<std::string> command_names(const CommandDescription& program) {
  std::vector<std::string> names;
  for (const CommandDescription& command : program.commands) {
    names.push_back(command.name);
  }
  return names;
}

// Bash: what `compgen` is asked for a value.
std::string bash_values(const OptionDescription& option) {
  if (!option.choices.empty()) return fmt::format("-W '{}'", joined(option.choices, " "));
  if (is_number(option)) return "-W ''";
  return option.value == folder_value ? "-d" : "-f";
}

std::string bash_cases(const CommandDescription& program, const CommandDescription& command,
                       const std::string& name) {
  std::string cases;
  for (const OptionDescription& option : options_in(program, command)) {
    if (!option.takes_value()) continue;
    std::string patterns;
    for (const std::string& word : option.names) {
      patterns += fmt::format("{}{}/{}", patterns.empty() ? "" : " | ", name, word);
    }
    cases += fmt::format("    {}) reply {} ;;\n", patterns, bash_values(option));
  }
  return cases;
}

// Zsh: a text within single quotes, and within an entry of _arguments or _describe.
std::string zsh_quoted(const std::string& text) {
  std::string quoted;
  for (const char letter : text) {
    if (letter == '\'') {
      quoted += "'\\''";
    } else {
      if (letter == '[' || letter == ']' || letter == ':' || letter == '\\') quoted += '\\';
      quoted += letter;
    }
  }
  return quoted;
}

std::string zsh_values(const OptionDescription& option) {
  if (!option.choices.empty()) return fmt::format("({})", joined(option.choices, " "));
  if (is_number(option)) return " ";
  return option.value == folder_value ? "_files -/" : "_files";
}

std::string zsh_argument(const OptionDescription& option) {
  const std::string value =
      option.takes_value() ? fmt::format(":{}:{}", option.choices.empty() ? option.value : "value",
                                         zsh_values(option))
                           : "";
  const std::string text = zsh_quoted(option.description);
  if (option.names.size() == 1) return fmt::format("'{}[{}]{}'", option.names[0], text, value);
  return fmt::format("'({})'{{{}}}'[{}]{}'", joined(option.names, " "), joined(option.names, ","),
                     text, value);
}

std::string zsh_place(const OptionDescription& place) {
  return fmt::format("'{}:{}:{}'", place.repeats ? "*" : "", zsh_quoted(place.names.at(0)),
                     zsh_values(place));
}

std::string zsh_command(const CommandDescription& program, const CommandDescription& command) {
  std::string text = fmt::format("        {})\n          _arguments", command.name);
  for (const OptionDescription& option : options_in(program, command)) {
    text += " \\\n            " + zsh_argument(option);
  }
  for (const OptionDescription& place : command.places) {
    text += " \\\n            " + zsh_place(place);
  }
  return text + "\n          ;;\n";
}

std::string fish_quoted(const std::string& text) {
  std::string quoted = "'";
  for (const char letter : text) {
    if (letter == '\'' || letter == '\\') quoted += '\\';
    quoted += letter;
  }
  return quoted + "'";
}

std::string fish_values(const OptionDescription& option) {
  if (!option.choices.empty()) return " -x -a " + fish_quoted(joined(option.choices, " "));
  if (is_number(option)) return " -x";
  if (option.value == folder_value) return " -x -a '(__fish_complete_directories)'";
  return " -r -F";
}

std::string fish_option(const OptionDescription& option, const std::string& where) {
  std::string text = "complete -c ostrel" + where;
  for (const std::string& name : option.names) {
    text += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
  }
  if (option.takes_value()) text += fish_values(option);
  return text + " -d " + fish_quoted(option.description) + "\n";
}

// The names of all options that take a value.
std::string value_names(const std::vector<OptionDescription>& options) {
  std::string names;
  for (const OptionDescription& option : options) {
    if (option.takes_value()) names += " " + joined(option.names, " ");
  }
  return names;
}

// What stands in a place is no value of the option before it.
std::string fish_places(const CommandDescription& program, const CommandDescription& command) {
  std::string text;
  for (const OptionDescription& place : command.places) {
    text += fmt::format(
        "complete -c ostrel -n '__ostrel_place {}{}'{}\n", command.name,
        value_names(options_in(program, command)),
        place.choices.empty() ? " -F" : " -a " + fish_quoted(joined(place.choices, " ")));
  }
  return text;
}

}  // namespace

std::string bash_completion(const CommandDescription& program) {
  std::string values = bash_cases(program, program, "");
  std::string options = fmt::format("    '') options='{}' ;;\n", names_of(program.options));
  std::string places =
      fmt::format("    '') reply -W '{}' ;;\n", joined(command_names(program), " "));
  for (const CommandDescription& command : program.commands) {
    values += bash_cases(program, command, command.name);
    options += fmt::format("    {}) options='{}' ;;\n", command.name,
                           names_of(options_in(program, command)));
    if (!command.places.empty()) {
      places +=
          fmt::format("    {}) reply {} ;;\n", command.name, bash_values(command.places.front()));
    }
  }
  return fmt::format(R"(# Completion of ostrel for bash.
_ostrel() {{
  local current=${{COMP_WORDS[COMP_CWORD]}} previous=${{COMP_WORDS[COMP_CWORD - 1]}}
  local command='' options='' i
  reply() {{ mapfile -t COMPREPLY < <(compgen "$@" -- "$current"); }}
  COMPREPLY=()
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case ${{COMP_WORDS[i]}} in
      {}) command=${{COMP_WORDS[i]}}; break ;;
    esac
  done
  case $command/$previous in
{}    *) previous='' ;;
  esac
  [ -z "$previous" ] || return 0
  case $command in
{}  esac
  if [[ $current == -* ]]; then
    reply -W "$options"
    return 0
  fi
  case $command in
{}  esac
}}
complete -o filenames -F _ostrel ostrel
)",
                     joined(command_names(program), " | "), values, options, places);
}

std::string zsh_completion(const CommandDescription& program) {
  std::string options;
  for (const OptionDescription& option : program.options) {
    options += fmt::format("    {} \\\n", zsh_argument(option));
  }
  std::string names;
  std::string commands;
  for (const CommandDescription& command : program.commands) {
    names += fmt::format("        '{}:{}'\n", command.name, zsh_quoted(command.description));
    commands += zsh_command(program, command);
  }
  return fmt::format(R"(#compdef ostrel
# Completion of ostrel for zsh.
_ostrel() {{
  local context state state_descr line
  typeset -A opt_args
  _arguments -C \
{}    '1:command:->command' \
    '*::argument:->argument'
  case $state in
    command)
      local -a commands
      commands=(
{}      )
      _describe command commands
      ;;
    argument)
      case $words[1] in
{}      esac
      ;;
  esac
}}
if [ "$funcstack[1]" = _ostrel ]; then
  _ostrel "$@"
else
  compdef _ostrel ostrel
fi
)",
                     options, names, commands);
}

std::string fish_completion(const CommandDescription& program) {
  // The command is the first word that is neither an option nor the value of one.
  std::string text = fmt::format(R"(# Completion of ostrel for fish.
function __ostrel_command
    set -l value 0
    for word in (commandline -opc)[2..-1]
        if test $value = 1
            set value 0
        else if contains -- $word{0}
            set value 1
        else if not string match -q -- '-*' $word
            echo $word
            return
        end
    end
end
function __ostrel_in
    set -l command (__ostrel_command)
    test "$command" = "$argv[1]"
end
function __ostrel_place
    __ostrel_in $argv[1]; and not contains -- (commandline -opc)[-1] $argv[2..-1]
end
complete -c ostrel -f
)",
                                 value_names(program.options));
  for (const OptionDescription& option : program.options) {
    text += fish_option(option, "");
  }
  for (const CommandDescription& command : program.commands) {
    text += fmt::format("complete -c ostrel -n \"__ostrel_in ''\" -a {} -d {}\n", command.name,
                        fish_quoted(command.description));
    const std::string where = fmt::format(" -n '__ostrel_in {}'", command.name);
    for (const OptionDescription& option : command.options) {
      text += fish_option(option, where);
    }
    text += fish_places(program, command);
  }
  return text;
}

}  // namespace ostrel::host
