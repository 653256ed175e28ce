// SPDX-License-Identifier: Apache-2.0
#include "command_line.h"

#include "command_core.h"
#include "command_run.h"
#include "texts.h"

#include <ostrel/language.h>
#include <ostrel/version.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <optional>
#include <ostream>

namespace ostrel::host {

namespace {

// The language asked for, wherever it stands: the descriptions of the options need it before they
// are read.
std::optional<Language> asked_language(const std::vector<std::string>& arguments) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    std::string code;
    if (arguments[i].starts_with("--lang=")) code = arguments[i].substr(7);
    if (arguments[i] == "--lang" && i + 1 < arguments.size()) code = arguments[i + 1];
    if (code == "it" || code == "en") return language_of(code, Language::english);
  }
  return std::nullopt;
}

std::string described(const Texts& texts, Text text) {
  return std::string(texts(text));
}

class Program {
public:
  Program(std::optional<Language> asked, std::ostream& out, std::ostream& err)
      : asked_(asked), texts_(asked.value_or(language_of_environment())), out_(out), err_(err) {
    app_.description(described(texts_, Text::program_line));
    app_.name("ostrel");
    app_.require_subcommand(1);
    app_.fallthrough();
    app_.set_help_flag("-h,--help", described(texts_, Text::help_line));
    app_.set_version_flag("--version", std::string("ostrel ") + ostrel::version(),
                          described(texts_, Text::version_line));
    app_.add_option("--lang", language_, described(texts_, Text::language_line))
        ->check(CLI::IsMember({"it", "en"}))
        ->type_name("");
    add_run();
    add_core();
  }

  int run(std::vector<std::string> arguments) {
    std::reverse(arguments.begin(), arguments.end());
    try {
      app_.parse(arguments);
    } catch (const CLI::ParseError& error) {
      return app_.exit(error, out_, err_) == 0 ? exit_fine : exit_bad_input;
    }
    const bool runs = run_->parsed();
    const Texts& texts = runs ? run_options_.texts : core_options_.texts;
    ostrel::set_language(code_of(texts.language()));
    return runs ? run_project(run_options_, out_, err_) : run_core(core_options_, out_, err_);
  }

private:
  void add_run() {
    run_options_.texts = texts_;
    run_ = app_.add_subcommand("run", described(texts_, Text::run_line));
    run_->add_option("PROJECT.json", run_options_.project_file,
                     described(texts_, Text::file_of_project))
        ->required();
    run_->add_option("-o,--output", run_options_.folder,
                     described(texts_, Text::folder_for_results))
        ->type_name("DIR");
  }

  void add_core() {
    // The texts of a case are for other programs: they do not follow the environment.
    core_options_.texts = Texts(asked_.value_or(Language::italian));
    CLI::App* core = app_.add_subcommand("core", described(texts_, Text::core_line));
    core->add_option("CASE.json", core_options_.case_file, described(texts_, Text::file_of_case))
        ->required();
    core->add_option("-o,--output", core_options_.result_file,
                     described(texts_, Text::file_for_results))
        ->type_name("FILE");
  }

  std::optional<Language> asked_;
  Texts texts_;
  std::ostream& out_;
  std::ostream& err_;
  CLI::App app_;
  std::string language_;
  CLI::App* run_ = nullptr;
  RunOptions run_options_;
  CoreOptions core_options_;
};

}  // namespace

int run_program(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
  return Program(asked_language(arguments), out, err).run(arguments);
}

}  // namespace ostrel::host
