// SPDX-License-Identifier: Apache-2.0
#include "texts.h"

#include <array>
#include <cstddef>
#include <cstdlib>

namespace ostrel::host {

namespace {

struct Row {
  Text text;
  std::string_view italian;
  std::string_view english;
};

constexpr std::size_t count = static_cast<std::size_t>(Text::count_);

constexpr std::array<Row, count> rows{{
    {Text::error_line, "{0}: trovato {1}; ammesso {2}", "{0}: found {1}; allowed {2}"},
    {Text::warning_line, "{0}: attenzione: {1}", "{0}: warning: {1}"},
    {Text::more_errors, "... e altri {0} errori", "... and {0} more errors"},
    {Text::cannot_read, "un file che non si legge ({0})", "a file that cannot be read ({0})"},
    {Text::file_too_large, "un file troppo grande", "a file that is too large"},
    {Text::too_deep, "un livello di troppo", "one level too many"},
    {Text::repeated_field, "un campo ripetuto", "a field that stands here twice"},
    {Text::missing, "niente", "nothing"},
    {Text::unknown_field, "un campo sconosciuto", "an unknown field"},
    {Text::ignored_field, "campo sconosciuto, ignorato", "unknown field, ignored"},
    {Text::an_object, "un oggetto {{...}}", "an object {{...}}"},
    {Text::a_list_of, "un elenco di {0}", "a list of {0}"},
    {Text::a_readable_file, "un file leggibile", "a readable file"},
    {Text::at_most_megabytes, "al massimo {0} MB", "at most {0} MB"},
    {Text::valid_json, "JSON valido", "valid JSON"},
    {Text::once, "una volta sola", "once"},
    {Text::this_field, "questo campo, che è obbligatorio", "this field, which is required"},
    {Text::perhaps, "forse {0}", "perhaps {0}"},
    {Text::one_of, "uno di: {0}", "one of: {0}"},
    {Text::a_list, "un elenco [...]", "a list [...]"},
    {Text::a_text, "un testo", "a text"},
    {Text::a_text_not_empty, "un testo non vuoto", "a text that is not empty"},
    {Text::true_or_false, "true o false", "true or false"},
    {Text::a_number, "un numero", "a number"},
    {Text::a_number_in, "un numero {0}", "a number {0}"},
    {Text::an_integer, "un numero intero", "a whole number"},
    {Text::an_integer_in, "un numero intero {0}", "a whole number {0}"},
    {Text::a_number_as_name, "un campo che si chiama come un numero",
     "a field whose name is a whole number"},
    {Text::above, "maggiore di {0}", "above {0}"},
    {Text::at_least, "non minore di {0}", "not below {0}"},
    {Text::below, "minore di {0}", "below {0}"},
    {Text::at_most, "non maggiore di {0}", "not above {0}"},
    {Text::both, "{0} e {1}", "{0} and {1}"},
    {Text::cannot_write, "{0}: non si può scrivere ({1})", "{0}: cannot be written ({1})"},
    {Text::program_line, "Ostrel: analisi e verifica di opere di sostegno infisse",
     "Ostrel: analysis and verification of embedded retaining walls"},
    {Text::run_line, "Calcola un progetto e ne stampa i risultati",
     "Analyse a project and print its results"},
    {Text::core_line, "Calcola un caso nelle unità della libreria e ne scrive tutti i risultati",
     "Analyse a case in the library's own units and write all its results"},
    {Text::file_of_project, "il progetto (JSON)", "the project (JSON)"},
    {Text::file_of_case, "il caso (JSON)", "the case (JSON)"},
    {Text::folder_for_results, "cartella per risultati e diagrammi (JSON, CSV)",
     "folder for results and diagrams (JSON, CSV)"},
    {Text::file_for_results, "file per i risultati (JSON); altrimenti sullo standard output",
     "file for the results (JSON); otherwise they go to standard output"},
    {Text::language_line, "lingua dei testi: it o en", "language of the texts: it or en"},
    {Text::help_line, "Stampa questo aiuto ed esce", "Print this help and leave"},
    {Text::version_line, "Stampa la versione ed esce", "Print the version and leave"},
}};

constexpr bool in_order() {
  for (std::size_t i = 0; i < count; ++i) {
    if (static_cast<std::size_t>(rows[i].text) != i) return false;
  }
  return true;
}
static_assert(in_order(), "a row for each text, in the order of the enumeration");

}  // namespace

Language language_of(std::string_view code, Language otherwise) {
  if (code == "it") return Language::italian;
  return code == "en" ? Language::english : otherwise;
}

const char* code_of(Language language) {
  return language == Language::italian ? "it" : "en";
}

Language language_of_environment() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(name);
    if (value == nullptr || *value == '\0') continue;
    return std::string_view(value).starts_with("it") ? Language::italian : Language::english;
  }
  return Language::english;
}

std::string_view Texts::operator()(Text text) const {
  const Row& row = rows[static_cast<std::size_t>(text)];
  return language_ == Language::italian ? row.italian : row.english;
}

}  // namespace ostrel::host
