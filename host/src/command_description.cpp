// SPDX-License-Identifier: Apache-2.0
#include "command_description.h"

#include <CLI/CLI.hpp>

#include <cstddef>
#include <sstream>

namespace ostrel::host {

namespace {

// A choice of values describes itself as "{it,en}".
std::vector<std::string> choices_of(CLI::Option& option) {
  std::string description;
  try {
    description = option.get_validator(0)->get_description();
  } catch (const CLI::OptionNotFound&) {
    return {};
  }
  if (description.size() < 2 || description.front() != '{' || description.back() != '}') return {};
  std::istringstream words(description.substr(1, description.size() - 2));
  std::vector<std::string> choices;
  for (std::string word; std::getline(words, word, ',');) {
    choices.push_back(word);
  }
  return choices;
}

std::string joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) {
    text += (text.empty() ? "" : "|") + word;
  }
  return text;
}

OptionDescription described(CLI::Option& option) {
  OptionDescription result;
  result.description = option.get_description();
  result.choices = choices_of(option);
  result.repeats = option.get_expected_max() > 1;
  for (const std::string& name : option.get_snames()) {
    result.names.push_back("-" + name);
  }
  for (const std::string& name : option.get_lnames()) {
    result.names.push_back("--" + name);
  }
  if (result.names.empty()) result.names.push_back(option.get_name(true));
  if (option.get_items_expected_max() > 0) {
    // A type is followed by what it is checked for, as "N:INT in [1 - 9]".
    const std::string type = option.get_type_name();
    result.value = result.choices.empty() ? type.substr(0, type.find(':')) : joined(result.choices);
    if (result.value.empty()) result.value = "VALUE";
  }
  return result;
}

}  // namespace

CommandDescription description_of(CLI::App& app) {
  CommandDescription command;
  command.name = app.get_name();
  command.description = app.get_description();
  for (CLI::Option* option : app.get_options()) {
    OptionDescription description = described(*option);
    auto& list = option->get_positional() ? command.places : command.options;
    list.push_back(std::move(description));
  }
  for (CLI::App* each : app.get_subcommands([](CLI::App*) { return true; })) {
    command.commands.push_back(description_of(*each));
  }
  return command;
}

}  // namespace ostrel::host
