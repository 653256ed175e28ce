// SPDX-License-Identifier: Apache-2.0
#include "report_page.h"

#include "embedded_files.h"
#include "figures.h"
#include "library_messages.h"
#include "report_block.h"
#include "report_input.h"
#include "report_results.h"
#include "report_verifications.h"
#include "run_data.h"
#include "section_drawing.h"
#include "svg.h"

#include <ostrel/version.h>

#include <cstddef>
#include <map>
#include <string_view>
#include <utility>

namespace ostrel::host {

namespace {

std::string program() {
  return std::string("ostrel ") + ostrel::version();
}

// For the inside of a script element: no text of the data can end it.
std::string data_text(const OrderedJson& data) {
  const std::string text = data.dump(-1, ' ', false, OrderedJson::error_handler_t::replace);
  std::string safe;
  safe.reserve(text.size());
  std::size_t from = 0;
  for (std::size_t mark = text.find('<'); mark != std::string::npos; mark = text.find('<', from)) {
    safe.append(text, from, mark - from) += "\\u003c";
    from = mark + 1;
  }
  return safe.append(text, from);
}

// The template with a value in the place of each @{name}. What a value holds is not looked at.
std::string filled(std::string_view page,
                   const std::map<std::string_view, std::string_view>& values) {
  std::size_t size = page.size();
  for (const auto& [name, value] : values) {
    size += value.size();
  }
  std::string result;
  result.reserve(size);
  for (;;) {
    const std::size_t mark = page.find("@{");
    if (mark == std::string_view::npos) break;
    const std::size_t end = page.find('}', mark);
    result += page.substr(0, mark);
    const auto value = values.find(page.substr(mark + 2, end - mark - 2));
    if (value != values.end()) result += value->second;
    page.remove_prefix(end + 1);
  }
  return result += page;
}

// Nothing in a build without figures.
std::string plotly_with_licence() {
  const std::string_view plotly = embedded_file("plotly.js");
  if (plotly.empty()) return {};
  return "/*\n" + std::string(embedded_file("plotly.licence")) + "*/\n" + std::string(plotly);
}

OrderedJson message_block(const Project& project, const Job& job, const Outcome& outcome) {
  static const Both error{"Errore:", "Error:"};
  static const Both warning{"Attenzione:", "Warning:"};
  static const Both remark{"Informazione:", "Information:"};
  OrderedJson items = OrderedJson::array();
  for (const OddPlace& place : project.odd_places) {
    items.push_back({{"severity", "warning"},
                     {"label", warning},
                     {"text", same(place.path + ": ") + Both{place.italian, place.english}}});
  }
  for (const xVeldError& message : outcome.messages) {
    const bool is_error = message.getErr() == veldError;
    const bool is_warning = message.getErr() == veldWarning;
    items.push_back({{"severity", is_error     ? "error"
                                  : is_warning ? "warning"
                                               : "remark"},
                     {"label", is_error     ? error
                               : is_warning ? warning
                                            : remark},
                     {"text", in_both(message)}});
  }
  const auto italian = result_warnings(project, job, outcome, Texts(Language::italian));
  const auto english = result_warnings(project, job, outcome, Texts(Language::english));
  for (std::size_t i = 0; i < english.size(); ++i) {
    items.push_back(
        {{"severity", "warning"}, {"label", warning}, {"text", Both{italian[i], english[i]}}});
  }
  if (items.empty()) return {};
  return {{"kind", "messages"}, {"items", std::move(items)}};
}

OrderedJson result_blocks(const Project& project, const Job& job, const Outcome& outcome,
                          const std::vector<Figure>& figures) {
  OrderedJson blocks = OrderedJson::array();
  if (outcome.verdict == veldError) {
    blocks.push_back(note_block({"L'analisi ha segnalato un errore: i risultati non sono completi.",
                                 "The analysis reported an error: the results are not complete."}));
  }
  if (OrderedJson verdict = verdict_block(outcome); !verdict.is_null()) {
    blocks.push_back(std::move(verdict));
  }
  for (OrderedJson& block : overview_blocks(project, job, outcome, figures)) {
    blocks.push_back(std::move(block));
  }
  OrderedJson messages = message_block(project, job, outcome);
  if (!messages.is_null()) blocks.push_back(std::move(messages));
  return blocks;
}

OrderedJson convention_blocks(const Project& project) {
  OrderedJson blocks = OrderedJson::array();
  const Both of_wall =
      decimals(fmt::format("{:.2f} m", project.wall.spacing_m)) + Both{" di paratia.", " of wall."};
  if (project.wall.is_diaphragm) {
    blocks.push_back(
        note_block(Both{"Le forze sono quelle di un pannello, ", "Forces are those of one panel, "}
                   + of_wall));
  } else {
    blocks.push_back(note_block(
        Both{"Le forze sono quelle di un palo, ", "Forces are those of one pile, "} + of_wall));
  }
  blocks.push_back(
      note_block({"Quote in metri dalla testa della paratia, positive verso l'alto; "
                  "profondità dalla testa, positive verso il basso.",
                  "Levels in metres from the head of the wall, positive upwards; depths "
                  "from the head, positive downwards."}));
  blocks.push_back(note_block(
      {"Spostamenti, pressioni e carichi orizzontali positivi verso lo scavo, reazioni del "
       "terreno e degli appoggi verso terra; momenti positivi se tendono il lato dello "
       "scavo; taglio V = dM/dz, z verso il basso; trazione positiva.",
       "Displacements, pressures and horizontal loads count positive towards the "
       "excavation, reactions of soil and supports towards the retained side; moments "
       "where they stretch the excavation side; shear V = dM/dz, z downwards; tension is "
       "positive."}));
  blocks.push_back(
      note_block({"Pressioni e reazioni per unità di area della paratia, su tutto "
                  "l'interasse. Un fattore di sicurezza di almeno 1 soddisfa la verifica.",
                  "Pressures and reactions by area of wall, over the whole distance "
                  "between axes. A safety factor of at least 1 satisfies a "
                  "verification."}));
  return blocks;
}

}  // namespace

OrderedJson report_data(const Project& project, const Job& job, const Outcome& outcome,
                        Language language) {
  std::vector<Figure> drawn = figures(project, job, outcome);
  OrderedJson chapters = OrderedJson::array();
  const auto add = [&](const char* id, const Both& title, OrderedJson blocks) {
    if (blocks.empty()) return;
    chapters.push_back({{"id", id}, {"title", title}, {"blocks", std::move(blocks)}});
  };
  add("results", {"Risultati", "Results"}, result_blocks(project, job, outcome, drawn));
  add("verifications-chapter", {"Verifiche", "Verifications"}, verification_blocks(outcome));
  OrderedJson section = OrderedJson::array();
  section.push_back(drawing_block("section",
                                  {"In scala; quote in metri dalla testa della paratia.",
                                   "To scale; levels in metres from the head of the wall."},
                                  section_drawing(project, job, outcome)));
  add("section-chapter", {"Sezione", "Section"}, std::move(section));
  add("input", {"Dati", "Data"}, input_blocks(project));
  add("details", {"Combinazioni", "Combinations"},
      combination_blocks(project, job, outcome, drawn));
  add("wall", {"Armatura della paratia", "Reinforcement of the wall"},
      reinforcement_blocks(project, outcome, drawn));
  add("stability", {"Stabilità globale", "Global stability"}, stability_blocks(outcome, drawn));
  add("conventions", {"Convenzioni", "Conventions"}, convention_blocks(project));

  OrderedJson plots = OrderedJson::object();
  for (Figure& figure : drawn) {
    plots[figure.id] = {
        {"caption", figure.caption}, {"wide", figure.wide}, {"plot", std::move(figure.plot)}};
  }
  return {{"language", code_of(language)},      {"name", project.name},
          {"description", project.description}, {"program", program()},
          {"chapters", std::move(chapters)},    {"figures", std::move(plots)}};
}

std::string report_page(const Project& project, const Job& job, const Outcome& outcome,
                        Language language) {
  const std::string made_by = escaped(program());
  const std::string title = escaped(project.name);
  const std::string data = data_text(report_data(project, job, outcome, language));
  const std::string plotly = plotly_with_licence();
  return filled(embedded_file("page.html"), {{"language", code_of(language)},
                                             {"program", made_by},
                                             {"title", title},
                                             {"style", embedded_file("report.css")},
                                             {"data", data},
                                             {"plotly", plotly},
                                             {"script", embedded_file("report.js")}});
}

}  // namespace ostrel::host
