// SPDX-License-Identifier: Apache-2.0
#include "parser_words.h"

#include "bilingual.h"
#include "phrases.h"

#include <CLI/CLI.hpp>

#include <array>
#include <utility>
#include <vector>

namespace ostrel::host {

namespace {

// The English is the parser's own, by which a refusal is known; of two that fit the first counts.
constexpr std::array<Phrase, 10> refusals{{
    {"Manca il comando", "A subcommand is required"},
    {"Manca {0}", "{0} is required"},
    {"Argomento imprevisto: {0}", "The following argument was not expected: {0}"},
    {"Argomenti imprevisti: {0}", "The following arguments were not expected: {0}"},
    {"{0}: manca il valore, uno di {1}", "{0}: 1 required :{1} missing"},
    {"{0}: manca il valore {1}", "{0}: 1 required {1} missing"},
    {"{0}: al massimo {1}, non {2}", "{0}: At Most {1} required but received {2}"},
    {"{0}: {1} non è un numero da {2} a {3}", "{0}: Value {1} not in range {2} to {3}"},
    {"{0}: {1} non è uno di {2}", "{0}: {1} not in {2}"},
    {"{0}: non si legge il valore {1}", "Could not convert: {0} = {1}"},
}};

constexpr Phrase how_to_get_help{"Altre informazioni con --help.",
                                 "Run with --help for more information."};

// The English is what the parser prints.
constexpr std::array<Phrase, 7> labels{{{"Uso", "Usage"},
                                        {"OPZIONI", "OPTIONS"},
                                        {"COMANDO", "SUBCOMMAND"},
                                        {"Argomenti", "Positionals"},
                                        {"Opzioni", "Options"},
                                        {"TESTO", "TEXT"},
                                        {"OBBLIGATORIO", "REQUIRED"}}};

constexpr Phrase commands{"Comandi", "Subcommands"};

// The parser asks for the labels of everything but of groups of options, and puts a colon before a
// choice even where no type stands before it.
class HelpForm : public CLI::Formatter {
public:
  std::string make_option_opts(const CLI::Option* option) const override {
    std::string told = Formatter::make_option_opts(option);
    if (told.rfind(" :", 0) == 0) told.erase(1, 1);
    return told;
  }

  std::string make_group(std::string group, bool is_positional,
                         std::vector<const CLI::Option*> options) const override {
    return Formatter::make_group(get_label(group), is_positional, std::move(options));
  }
};

}  // namespace

std::string refusal_of_arguments(const std::string& refusal, const Texts& texts) {
  std::string line = refusal;
  for (const Phrase& phrase : refusals) {
    if (const auto both = retold(refusal, phrase)) {
      line = both->in(texts.language());
      break;
    }
  }
  return line + "\n" + std::string(how_to_get_help.in(texts)) + "\n";
}

std::shared_ptr<CLI::Formatter> help_form(const Texts& texts) {
  auto form = std::make_shared<HelpForm>();
  for (const Phrase& label : labels) {
    form->label(std::string(label.in(Texts(Language::english))), std::string(label.in(texts)));
  }
  return form;
}

void head_commands(CLI::App& program, const Texts& texts) {
  for (CLI::App* command : program.get_subcommands([](const CLI::App*) { return true; })) {
    command->group(std::string(commands.in(texts)));
  }
}

}  // namespace ostrel::host
