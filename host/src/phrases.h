#pragma once
/// @file  What the program says about batches, exports and itself, in its two languages. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "texts.h"

#include <fmt/format.h>

#include <stdexcept>
#include <string>
#include <string_view>

namespace ostrel::host {

/// One text, Italian and English. The places {0}, {1} of both are the same, or it does not compile.
class Phrase {
public:
  consteval Phrase(std::string_view italian, std::string_view english)
      : italian_(italian), english_(english) {
    for (const char* place : {"{0}", "{1}", "{2}", "{3}"}) {
      const bool in_italian = italian.find(place) != std::string_view::npos;
      if (in_italian != (english.find(place) != std::string_view::npos)) {
        throw std::logic_error(place);
      }
    }
  }

  std::string_view in(const Texts& texts) const {
    return texts.language() == Language::italian ? italian_ : english_;
  }

  template <class... Arguments>
  std::string in(const Texts& texts, const Arguments&... arguments) const {
    return fmt::format(fmt::runtime(in(texts)), arguments...);
  }

private:
  std::string_view italian_;
  std::string_view english_;
};

/// The comments tell what takes the place of {} in a text.
namespace phrase {

inline constexpr Phrase batch_line{"Calcola molti progetti insieme e ne stampa l'esito",
                                   "Analyse many projects at a time and print what came of each"};
inline constexpr Phrase files_of_projects{"i progetti (JSON)", "the projects (JSON)"};
inline constexpr Phrase folder_for_batch{
    "cartella in cui ogni progetto ha una cartella di risultati",
    "folder in which each project gets a folder of results"};
inline constexpr Phrase threads_line{
    "quanti progetti per volta; altrimenti quanti sono i processori",
    "how many projects at a time; otherwise as many as there are processors"};
inline constexpr Phrase progress_line{"avanzamento: auto, none, plain o json",
                                      "progress: auto, none, plain or json"};
inline constexpr Phrase heading_file{"File", "File"};
inline constexpr Phrase heading_folder{"Cartella", "Folder"};
inline constexpr Phrase heading_governs{"Governa", "Governs"};
inline constexpr Phrase batch_not_started{"non calcolato", "not started"};
inline constexpr Phrase batch_satisfied{"soddisfatto", "satisfied"};
inline constexpr Phrase batch_not_satisfied{"non soddisfatto", "not satisfied"};
inline constexpr Phrase batch_not_determined{"non determinato", "not determined"};
inline constexpr Phrase batch_nothing_verified{"nessuna verifica", "nothing verified"};
inline constexpr Phrase batch_below_limit{"sotto il limite", "below the limit"};
inline constexpr Phrase batch_analysis_failed{"analisi fallita", "analysis failed"};
inline constexpr Phrase batch_wrong_file{"file errato", "wrong file"};
inline constexpr Phrase batch_not_written{"non scritto", "not written"};
inline constexpr Phrase batch_rate{
    "{0}/s  restano {1}", "{0}/s  {1} left"};  // projects each second, minutes and seconds left
inline constexpr Phrase batch_failed_count{"falliti {0}", "{0} failed"};  // count
inline constexpr Phrase batch_interrupted{
    "Interrotto: finiti {0} progetti su {1}",
    "Interrupted: {0} of {1} projects finished"};  // count, count of all
inline constexpr Phrase export_line{
    "Calcola un progetto e ne scrive i risultati per altri programmi",
    "Analyse a project and write its results for other programs"};
inline constexpr Phrase file_for_workbook{"cartella di lavoro con tabelle e grafici (XLSX)",
                                          "workbook with tables and charts (XLSX)"};
inline constexpr Phrase file_for_tables{"tutte le tabelle in unità tecniche (JSON)",
                                        "all tables in engineering units (JSON)"};
inline constexpr Phrase file_for_print{"la relazione stampata (PDF); richiede Chromium",
                                       "the report, printed (PDF); needs Chromium"};
inline constexpr Phrase nothing_to_export{"Serve almeno uno di {0}",
                                          "At least one of {0} is needed"};
inline constexpr Phrase cannot_make_workbook{
    "{0}: la cartella di lavoro non si può comporre ({1})",
    "{0}: the workbook cannot be made ({1})"};  // file, reason
inline constexpr Phrase no_browser{
    "{0}: per stampare serve Chromium, che manca; cercati nel PATH: {1}",
    "{0}: printing needs Chromium, which is missing; looked for in PATH: {1}"};  // file, names
inline constexpr Phrase browser_failed{"{0}: {1} è terminato senza stampare",
                                       "{0}: {1} ended without printing"};  // file, name
inline constexpr Phrase browser_too_slow{
    "{0}: {1} non ha finito entro {2} s",
    "{0}: {1} did not end within {2} s"};  // file, name, seconds
inline constexpr Phrase which_schema{"project o results",
                                     "project or results"};  // Manners on a terminal
inline constexpr Phrase quiet_line{"Stampa solo gli errori", "Print nothing but errors"};
inline constexpr Phrase verbose_line{"Stampa anche tempi ed equilibrio",
                                     "Also print times and equilibrium"};
inline constexpr Phrase completion_line{"Stampa il completamento per una shell",
                                        "Print the completion for a shell"};
inline constexpr Phrase name_of_shell{"bash, zsh o fish", "bash, zsh or fish"};
inline constexpr Phrase manual_line{"Stampa la pagina di manuale (roff)",
                                    "Print the manual page (roff)"};
inline constexpr Phrase manual_name{"NOME", "NAME"};
inline constexpr Phrase manual_synopsis{"SINTASSI", "SYNOPSIS"};
inline constexpr Phrase manual_description{"DESCRIZIONE", "DESCRIPTION"};
inline constexpr Phrase manual_options{"OPZIONI", "OPTIONS"};
inline constexpr Phrase manual_commands{"COMANDI", "COMMANDS"};
inline constexpr Phrase manual_exit_status{"CODICE DI USCITA", "EXIT STATUS"};
inline constexpr Phrase manual_environment{"AMBIENTE", "ENVIRONMENT"};
inline constexpr Phrase manual_exit_0{"Tutto bene.", "All is well."};
inline constexpr Phrase manual_exit_1{
    "L'analisi ha segnalato un errore, un coefficiente è sotto il limite chiesto o un progetto di "
    "molti è fallito.",
    "The analysis reported an error, a factor is below the limit asked for, or one project of many "
    "failed."};
inline constexpr Phrase manual_exit_2{
    "Il file o gli argomenti sono errati o non si può scrivere.",
    "The file or the arguments are wrong, or nothing can be written."};
inline constexpr Phrase manual_exit_130{"Interrotto con Ctrl+C.", "Interrupted with Ctrl+C."};
inline constexpr Phrase manual_environment_language{
    "Lingua dei testi senza --lang: italiano dove lo chiedono.",
    "Language of the texts without --lang: Italian where they ask for it."};
inline constexpr Phrase manual_environment_no_color{"Niente colori, se non è vuota.",
                                                    "No colours, if it is not empty."};
inline constexpr Phrase manual_program{
    "Legge progetti in unità tecniche, ne calcola le combinazioni di carico e le verifiche e "
    "stampa tabelle.",
    "Reads projects in engineering units, analyses their load combinations and verifications and "
    "prints tables."};
inline constexpr Phrase still_analysing{
    "Calcolo in corso da {0} s: combinazioni {1}, poi le verifiche",
    "Analysing for {0} s: combinations {1}, then the verifications"};      // seconds, combinations
inline constexpr Phrase analysed_in{"Calcolo: {0} s", "Analysis: {0} s"};  // seconds
inline constexpr Phrase out_of_balance{
    "{0}: fuori equilibrio per {1} kN in orizzontale, {2} kN in verticale, {3} kNm",
    "{0}: out of balance by {1} kN across, {2} kN along the wall, {3} kNm"};  // combination, kN, kN, kNm
inline constexpr Phrase warning{"Attenzione: {0}", "Warning: {0}"};
inline constexpr Phrase strangers_in_folder{
    // folder, how many, the first of them
    "{0} contiene {1} altri file di tabelle o figure, che non sono di questo calcolo ({2}, ...)",
    "{0} holds {1} other files of tables or figures, which are not of this run ({2}, ...)"};
inline constexpr Phrase residual_horizontal{"Residuo orizzontale (verso terra)",
                                            "Residual across (towards the ground)"};
inline constexpr Phrase residual_vertical{"Residuo verticale (verso il basso)",
                                          "Residual along the wall (downwards)"};
inline constexpr Phrase residual_moment{"Residuo del momento alla testa",
                                        "Residual moment about the head"};
inline constexpr Phrase residual_relative{"Residuo rispetto ai carichi",
                                          "Residual relative to the loads"};
inline constexpr Phrase residual_not_small{
    "le forze non sono in equilibrio: il residuo è il {0} % dei carichi, i risultati non sono "
    "affidabili",
    "the forces are not in balance: the residual is {0} % of the loads, do not rely on the "
    "results"};  // per cent
inline constexpr Phrase residual_without_measure{
    "non si può dire se le forze siano in equilibrio, i risultati non sono affidabili",
    "whether the forces are in balance cannot be told, do not rely on the results"};
inline constexpr Phrase part_loads{"Carichi", "Loads"};
inline constexpr Phrase part_soil{"Terreno", "Soil"};
inline constexpr Phrase part_anchors{"Tiranti", "Anchors"};
inline constexpr Phrase part_elastic_supports{"Appoggi elastici", "Elastic supports"};
inline constexpr Phrase part_fixed_supports{"Appoggi imposti", "Imposed supports"};
inline constexpr Phrase part_residual{"Residuo", "Residual"};
inline constexpr Phrase earth_pressure{"Spinta del terreno", "Earth pressure"};
inline constexpr Phrase water_pressure{"Spinta dell'acqua", "Water pressure"};
inline constexpr Phrase overwrites_input{
    "{0}: {1} sovrascriverebbe un file che si legge",
    "{0}: {1} would write over a file that is read"};  // file, argument
inline constexpr Phrase written_twice{
    "{0}: {1} e {2} scriverebbero lo stesso file",
    "{0}: {1} and {2} would write the same file"};  // file, argument, argument
inline constexpr Phrase circle_on_border{
    "{0}: il cerchio critico sta sul bordo della ricerca, uno peggiore può starne fuori; estendere "
    "{1}",
    "{0}: the governing slip circle lies on the border of its search, a worse one may lie outside; "
    "extend {1}"};  // combinations, advice
inline constexpr Phrase extend_field{"{0} oltre {1} ({2})",
                                     "{0} beyond {1} ({2})"};  // field, number, border
inline constexpr Phrase first_column{"prima colonna di centri", "first column of centres"};
inline constexpr Phrase last_column{"ultima colonna di centri", "last column of centres"};
inline constexpr Phrase lowest_row{"riga di centri più bassa", "lowest row of centres"};
inline constexpr Phrase highest_row{"riga di centri più alta", "highest row of centres"};
inline constexpr Phrase smallest_circle{"cerchio più piccolo del suo centro",
                                        "smallest circle of its centre"};
inline constexpr Phrase largest_circle{"cerchio più grande del suo centro",
                                       "largest circle of its centre"};

}  // namespace phrase

}  // namespace ostrel::host
