// SPDX-License-Identifier: Apache-2.0
#include "command_line.h"

#include "command_batch.h"
#include "command_check.h"
#include "command_core.h"
#include "command_description.h"
#include "command_export.h"
#include "command_new.h"
#include "command_report.h"
#include "command_run.h"
#include "command_show.h"
#include "completion.h"
#include "library_messages.h"
#include "manual_page.h"
#include "parser_words.h"
#include "phrases.h"
#include "schema_validation.h"
#include "tables_json.h"
#include "texts.h"

#include <ostrel/version.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <optional>
#include <ostream>

namespace ostrel::host {

namespace {

constexpr int most_threads = 1024;

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

std::string described(const Texts& texts, const Phrase& phrase) {
  return std::string(phrase.in(texts));
}

class Program {
public:
  Program(std::optional<Language> asked, std::ostream& out, std::ostream& err)
      : asked_(asked), texts_(asked.value_or(language_of_environment())), out_(out), err_(err) {
    app_.description(described(texts_, Text::program_line));
    app_.name("ostrel");
    app_.formatter(help_form(texts_));
    app_.failure_message([this](const CLI::App*, const CLI::Error& error) {
      return refusal_of_arguments(error.what(), texts_);
    });
    app_.require_subcommand(1);
    app_.fallthrough();
    app_.set_help_flag("-h,--help", described(texts_, Text::help_line));
    app_.set_version_flag("--version", std::string("ostrel ") + ostrel::version(),
                          described(texts_, Text::version_line));
    app_.add_option("--lang", language_, described(texts_, Text::language_line))
        ->check(CLI::IsMember({"it", "en"}))
        ->type_name("");
    app_.add_flag("-q,--quiet", quiet_, described(texts_, phrase::quiet_line));
    add_run();
    add_check(check_, "check", Text::check_line);
    add_check(expand_, "expand", Text::expand_line);
    add_new();
    add_report();
    add_schema();
    add_core();
    add_show();
    add_batch();
    add_export();
    add_completion();
    head_commands(app_, texts_);
  }

  int run(std::vector<std::string> arguments) {
    std::reverse(arguments.begin(), arguments.end());
    try {
      app_.parse(arguments);
    } catch (const CLI::ParseError& error) {
      return app_.exit(error, out_, err_) == 0 ? exit_fine : exit_bad_input;
    }
    const bool is_core = core_->parsed();
    choose_language(is_core ? core_options_.texts.language() : texts_.language());
    if (is_core) return run_core(core_options_, out_, err_);
    if (expand_->parsed()) return expand_project_file(check_options_, out_, err_);
    if (schema_->parsed()) {
      return print(which_schema_ == "results" ? results_schema() : project_schema());
    }
    if (completion_->parsed()) return print(completion());
    if (manual_->parsed()) return print(manual_page(description_of(app_), texts_));
    std::ostream nowhere(nullptr);
    run_options_.quiet = quiet_;
    if (quiet_ && batch_options_.progress == "auto") batch_options_.progress = "none";
    return run_telling(quiet_ ? nowhere : out_);
  }

private:
  // The commands whose output nobody needs to read.
  int run_telling(std::ostream& out) {
    if (run_->parsed()) return run_project(run_options_, out, err_);
    if (batch_->parsed()) return run_batch(batch_options_, out, err_);
    if (export_->parsed()) return export_project(export_options_, out, err_);
    if (report_->parsed()) return report_project(report_options_, out, err_);
    if (show_->parsed()) return show_results(show_options_, out, err_);
    if (check_->parsed()) return check_project_file(check_options_, out, err_);
    return write_template(new_options_, out, err_);
  }

  int print(std::string_view text) {
    out_ << text;
    return exit_fine;
  }

  std::string completion() {
    const CommandDescription program = description_of(app_);
    if (shell_ == "bash") return bash_completion(program);
    return shell_ == "zsh" ? zsh_completion(program) : fish_completion(program);
  }

  void add_schema() {
    schema_ = app_.add_subcommand("schema", described(texts_, Text::schema_line));
    schema_->add_option("WHICH", which_schema_, described(texts_, phrase::which_schema))
        ->check(CLI::IsMember({"project", "results"}))
        ->type_name("");
  }

  void add_export() {
    export_options_.texts = texts_;
    export_ = app_.add_subcommand("export", described(texts_, phrase::export_line));
    add_project(*export_, export_options_.project_file);
    add_exports(*export_, export_options_.files);
    add_presets(*export_, export_options_.presets_file);
  }

  void add_completion() {
    completion_ = app_.add_subcommand("completion", described(texts_, phrase::completion_line));
    completion_->add_option("SHELL", shell_, described(texts_, phrase::name_of_shell))
        ->check(CLI::IsMember({"bash", "zsh", "fish"}))
        ->type_name("")
        ->required();
    manual_ = app_.add_subcommand("manual", described(texts_, phrase::manual_line));
  }

  // What a limit should be instead; empty where it is.
  std::string what_is_wrong_with_limit(const std::string& text) const {
    const double limit = std::strtod(text.c_str(), nullptr);
    const bool sound = limit > 0.0 && limit < std::numeric_limits<double>::infinity();
    return sound ? "" : texts_(Text::a_number_in, texts_(Text::above, 0));
  }

  void add_limit(CLI::App* command, std::optional<double>& limit) {
    command->add_option("--fail-below", limit, described(texts_, Text::limit_line))
        ->check([this](const std::string& text) { return what_is_wrong_with_limit(text); })
        ->type_name("FACTOR");
  }

  void add_run() {
    run_options_.texts = texts_;
    run_ = app_.add_subcommand("run", described(texts_, Text::run_line));
    add_project(*run_, run_options_.project_file);
    run_->add_option("-o,--output", run_options_.folder,
                     described(texts_, Text::folder_for_results))
        ->type_name("DIR");
    run_->add_option("--save", run_options_.results_file, described(texts_, Text::file_to_save))
        ->type_name("FILE");
    run_->add_flag("--verbose", run_options_.verbose, described(texts_, phrase::verbose_line));
    add_limit(run_, run_options_.fail_below);
    run_->add_option("--report", run_options_.report_file, described(texts_, Text::file_for_report))
        ->type_name("FILE");
    add_exports(*run_, run_options_.exports);
    add_presets(*run_, run_options_.presets_file);
  }

  void add_exports(CLI::App& command, ExportFiles& files) {
    const auto add = [&](const char* name, std::string& file, const Phrase& description) {
      command.add_option(name, file, described(texts_, description))->type_name("FILE");
    };
    add("--xlsx", files.workbook_file, phrase::file_for_workbook);
    add("--json", files.tables_file, phrase::file_for_tables);
    add("--pdf", files.print_file, phrase::file_for_print);
  }

  void add_project(CLI::App& command, std::string& file) {
    command.add_option("PROJECT.json", file, described(texts_, Text::file_of_project))->required();
  }

  void add_presets(CLI::App& command, std::string& file) {
    command.add_option("--presets", file, described(texts_, Text::presets_line))->type_name("FILE");
  }

  void add_check(CLI::App*& command, const char* name, Text description) {
    check_options_.texts = texts_;
    command = app_.add_subcommand(name, described(texts_, description));
    add_project(*command, check_options_.source.project_file);
    add_presets(*command, check_options_.source.presets_file);
  }

  void add_new() {
    new_options_.texts = texts_;
    new_ = app_.add_subcommand("new", described(texts_, Text::new_line));
    new_->add_option("FILE", new_options_.file, described(texts_, Text::file_to_write))->required();
    new_->add_option("--template", new_options_.name, described(texts_, Text::template_line))
        ->check(CLI::IsMember(template_names()))
        ->type_name("")
        ->required();
    new_->add_flag("--force", new_options_.force, described(texts_, Text::force_line));
  }

  void add_report() {
    report_options_.texts = texts_;
    report_ = app_.add_subcommand("report", described(texts_, Text::report_line));
    add_project(*report_, report_options_.project_file);
    report_
        ->add_option("-o,--output", report_options_.report_file,
                     described(texts_, Text::file_for_report))
        ->type_name("FILE")
        ->required();
    add_exports(*report_, report_options_.exports);
    add_presets(*report_, report_options_.presets_file);
  }

  void add_core() {
    // The texts of a case are for other programs: they do not follow the environment.
    core_options_.texts = Texts(asked_.value_or(Language::italian));
    core_ = app_.add_subcommand("core", described(texts_, Text::core_line));
    core_->add_option("CASE.json", core_options_.case_file, described(texts_, Text::file_of_case))
        ->required();
    core_
        ->add_option("-o,--output", core_options_.result_file,
                     described(texts_, Text::file_for_results))
        ->type_name("FILE");
  }

  void add_show() {
    show_options_.texts = texts_;
    show_ = app_.add_subcommand("show", described(texts_, Text::show_line));
    show_
        ->add_option("RESULTS", show_options_.results_file,
                     described(texts_, Text::file_of_results))
        ->required();
    add_limit(show_, show_options_.fail_below);
  }

  void add_batch() {
    batch_options_.texts = texts_;
    batch_ = app_.add_subcommand("batch", described(texts_, phrase::batch_line));
    batch_
        ->add_option("PROJECT.json", batch_options_.project_files,
                     described(texts_, phrase::files_of_projects))
        ->required();
    batch_->add_option("-j,--jobs", batch_options_.threads, described(texts_, phrase::threads_line))
        ->check(CLI::Range(1, most_threads))
        ->type_name("N");
    batch_
        ->add_option("-o,--output", batch_options_.folder,
                     described(texts_, phrase::folder_for_batch))
        ->type_name("DIR");
    batch_
        ->add_option("--progress", batch_options_.progress,
                     described(texts_, phrase::progress_line))
        ->check(CLI::IsMember({"auto", "none", "plain", "json"}))
        ->type_name("");
    add_limit(batch_, batch_options_.fail_below);
    add_presets(*batch_, batch_options_.presets_file);
  }

  std::optional<Language> asked_;
  Texts texts_;
  std::ostream& out_;
  std::ostream& err_;
  CLI::App app_;
  std::string language_;
  CLI::App* run_ = nullptr;
  RunOptions run_options_;
  CLI::App* show_ = nullptr;
  ShowOptions show_options_;
  CLI::App* batch_ = nullptr;
  BatchOptions batch_options_;
  CLI::App* check_ = nullptr;
  CLI::App* expand_ = nullptr;
  CheckOptions check_options_;  // of either
  CLI::App* new_ = nullptr;
  NewOptions new_options_;
  CLI::App* export_ = nullptr;
  ExportOptions export_options_;
  CLI::App* schema_ = nullptr;
  std::string which_schema_ = "project";
  CLI::App* completion_ = nullptr;
  std::string shell_;
  CLI::App* manual_ = nullptr;
  bool quiet_ = false;
  CLI::App* core_ = nullptr;
  CLI::App* report_ = nullptr;
  ReportOptions report_options_;
  CoreOptions core_options_;
};

}  // namespace

int run_program(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
  return Program(asked_language(arguments), out, err).run(arguments);
}

}  // namespace ostrel::host
