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
    {Text::an_object, "un oggetto {...}", "an object {...}"},
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
    {Text::a_list_not_empty, "un elenco non vuoto", "a list that is not empty"},
    {Text::three_vertices, "almeno tre vertici", "at least three vertices"},
    {Text::a_name_of_its_own, "un nome diverso dagli altri", "a name that no other entry has"},
    {Text::fewer_centres, "non più di {0} centri", "not more than {0} centres"},
    {Text::centres_above_circles, "centri sopra le quote di tangenza dei cerchi",
     "centres above the levels that the circles touch"},
    {Text::a_level_on_the_wall, "una quota sulla paratia, da {0} a 0",
     "a level on the wall, from {0} to 0"},
    {Text::above_the_foot, "meno della lunghezza della paratia, {0}",
     "less than the length of the wall, {0}"},
    {Text::number_of_nodes, "un passo che dia al massimo {0} nodi",
     "a spacing that gives at most {0} nodes"},
    {Text::misses_the_wall, "poligoni che non attraversano la verticale della paratia",
     "polygons that do not cross the line of the wall"},
    {Text::across_the_wall,
     "poligoni da x < 0 o x = 0 a x > 0, tagliati due volte dalla verticale x = 0",
     "polygons that reach from the wall, x = 0, or from its left to x > 0"},
    {Text::no_thickness, "uno strato senza spessore", "a layer without thickness"},
    {Text::tops_downwards, "quote decrescenti da uno strato al successivo",
     "tops that go down from layer to layer"},
    {Text::layer_begins, "uno strato che alla paratia inizia a quota {0} m",
     "a layer that begins at {0} m at the wall"},
    {Text::layer_must_begin, "un inizio dove finisce lo strato superiore, {0} m",
     "a beginning where the layer above ends, {0} m"},
    {Text::not_above_head, "un inizio non sopra la testa della paratia, 0 m",
     "a beginning not above the head of the wall, 0 m"},
    {Text::ground_ends, "un terreno che alla paratia finisce a quota {0} m",
     "ground that ends at {0} m at the wall"},
    {Text::ground_to_foot, "un terreno che arrivi sotto il piede della paratia, {0} m",
     "ground that reaches below the foot of the wall, {0} m"},
    {Text::needs_slope, "questa verifica insieme al blocco \"slope\"",
     "this check together with the block \"slope\""},
    {Text::needs_water, "questa verifica insieme al blocco \"water\"",
     "this check together with the block \"water\""},
    {Text::needs_bearing, "questa verifica insieme al blocco \"wall.vertical_bearing\"",
     "this check together with the block \"wall.vertical_bearing\""},
    {Text::piles_overlap, "i pali si sovrappongono", "the piles overlap"},
    {Text::high_friction, "{0}° è molto per un terreno", "{0}° is much for a soil"},
    {Text::wall_rougher_than_soil, "l'attrito sulla paratia supera quello del terreno",
     "the friction on the wall exceeds that of the soil"},
    {Text::saturated_lighter, "il peso saturo è minore di quello sopra falda",
     "saturated, the soil is lighter than above the water"},
    {Text::soil_not_used, "nessuno strato usa questo terreno", "no layer uses this soil"},
    {Text::water_below_head,
     "la falda è sotto la testa della paratia: il diagramma della falda carica gli elementi dalla "
     "testa in giù, qualunque sia il livello",
     "the water stands below the head of the wall: its pressure diagram loads the elements from "
     "the head down, whatever its level"},
    {Text::water_above_head, "la falda è sopra la testa della paratia",
     "the water stands above the head of the wall"},
    {Text::water_higher_in_front, "la falda è più alta a valle che a monte",
     "the water stands higher in front of the wall than behind it"},
    {Text::ground_below_head,
     "il terreno inizia a quota {0} m, sotto la testa: la sua spinta agisce sugli elementi dalla "
     "testa in giù",
     "the ground begins at {0} m, below the head: its pressure loads the elements from the head "
     "down"},
    {Text::ground_ends_at_foot,
     "il terreno finisce al piede della paratia: l'ultimo strato infisso non porta",
     "the ground ends at the foot of the wall: the last embedded layer bears nothing"},
    {Text::springs_missing,
     "gli intervalli non coprono la parte infissa da {0} a 1: le combinazioni falliscono",
     "the intervals do not cover the embedded length from {0} to 1: the combinations will fail"},
    {Text::seismic_at_rest, "combinazione sismica senza kh", "a seismic combination without kh"},
    {Text::shaken_not_seismic, "kh in una combinazione che non è sismica",
     "kh in a combination that is not seismic"},
    {Text::pile_row_line, "Pali di diametro {0} mm, interasse {1} m",
     "Piles of {0} mm diameter, {1} m between axes"},
    {Text::diaphragm_line, "Diaframma di spessore {0} mm, pannelli di {1} m",
     "Diaphragm {0} mm thick, panels of {1} m"},
    {Text::geometry_line, "Lunghezza {0} m, scavo {1} m", "Length {0} m, excavation {1} m"},
    {Text::forces_of_a_pile, "Le forze sono quelle di un palo ({0} m di paratia).",
     "Forces are those of one pile ({0} m of wall)."},
    {Text::forces_of_a_panel, "Le forze sono quelle di un pannello ({0} m di paratia).",
     "Forces are those of one panel ({0} m of wall)."},
    {Text::signs_line, "Spostamenti positivi verso lo scavo; profondità dalla testa.",
     "Displacements count positive towards the excavation; depths from the head."},
    {Text::heading_value, "Valore", "Value"},
    {Text::heading_unit, "Unità", "Unit"},
    {Text::heading_depth, "Profondità [m]", "Depth [m]"},
    {Text::moment_row, "Momento massimo", "Largest moment"},
    {Text::shear_row, "Taglio massimo", "Largest shear"},
    {Text::axial_row, "Sforzo normale massimo (trazione positiva)",
     "Largest axial force (tension positive)"},
    {Text::displacement_row, "Spostamento massimo", "Largest displacement"},
    {Text::spring_row, "Molla più sfruttata", "Most used soil spring"},
    {Text::yielding_row, "Molle plasticizzate, di {0}", "Springs at their limit, of {0}"},
    {Text::mobilised_row, "Resistenza del terreno mobilitata", "Soil resistance mobilised"},
    {Text::anchor_row, "Tirante {0}", "Anchor {0}"},
    {Text::no_result, "Nessun risultato: vedere i messaggi.", "No result: see the messages."},
    {Text::written_to, "Risultati e diagrammi scritti in {0}",
     "Results and diagrams written to {0}"},
    {Text::support_horizontal_row, "Appoggio, forza orizzontale", "Support, horizontal force"},
    {Text::support_vertical_row, "Appoggio, forza verticale", "Support, vertical force"},
    {Text::support_moment_row, "Appoggio, momento", "Support, moment"},
    {Text::moment_sign_line, "Momenti positivi se tendono il lato dello scavo.",
     "Moments count positive where they stretch the side of the excavation."},
    {Text::no_names, "niente: non c'è alcun nome", "nothing: there are no names"},
    {Text::slope_or_false, "un oggetto {...}, oppure false per non cercare cerchi",
     "an object {...}, or false to search no circles"},
    {Text::needed_by_check, "questo campo, che la verifica \"{0}\" legge",
     "this field, which the check \"{0}\" reads"},
    {Text::limits_not_given,
     "la verifica \"displacements\" senza \"wall.displacement_limits\" non ha limiti",
     "the check \"displacements\" has no limits without \"wall.displacement_limits\""},
    {Text::as_in_the_schema, "ciò che lo schema ammette ({0})", "what the schema allows ({0})"},
    {Text::stripes_too_wide,
     "strisce di {0} m, più larghe della lunghezza della paratia ({1} m): i fattori sono "
     "grossolani",
     "stripes of {0} m, wider than the wall is long ({1} m): the factors are coarse"},
    {Text::circles_above_foot, "nessun cerchio passa sotto il piede della paratia",
     "no circle passes below the foot of the wall"},
    {Text::circles_leave_ground,
     "alcuni cerchi escono dal terreno, fuori dal quale non ci sono peso né resistenza",
     "some circles leave the ground, outside of which there is neither weight nor strength"},
    {Text::bishop_in_clay,
     "\"bishop\" con il terreno \"{0}\" senza attrito: non c'è nulla da ridistribuire, meglio "
     "\"fellenius\"",
     "\"bishop\" with the soil \"{0}\" without friction: there is nothing to redistribute, prefer "
     "\"fellenius\""},
    {Text::seismic_line_ntc2008,
     "Azione sismica, NTC 2008 7.11.6.3.1: ag = {0:.3f} g, Ss = {1:.3f}, St = {2:.3f}, amax = "
     "{3:.3f} g, "
     "alpha = {4:.3f}, beta = {5:.3f}: kh = {6:.3f}, kv = {7:.3f}",
     "Seismic action, NTC 2008 7.11.6.3.1: ag = {0:.3f} g, Ss = {1:.3f}, St = {2:.3f}, amax = "
     "{3:.3f} g, "
     "alpha = {4:.3f}, beta = {5:.3f}: kh = {6:.3f}, kv = {7:.3f}"},
    {Text::seismic_line_en1998,
     "Azione sismica, EN 1998-5 7.3.2.2: ag = {0:.3f} g, S = {1:.3f}, r = {2:.2f}: kh = {3:.3f}, "
     "kv = {4:.3f}",
     "Seismic action, EN 1998-5 7.3.2.2: ag = {0:.3f} g, S = {1:.3f}, r = {2:.2f}: kh = {3:.3f}, "
     "kv = {4:.3f}"},
    {Text::needs_seismic_site,
     "true insieme al blocco \"seismic\" del progetto, oppure \"kh\" e \"kv\"",
     "true together with the block \"seismic\" of the project, or \"kh\" and \"kv\""},
    {Text::needs_displacement,
     "1, oppure meno insieme a uno spostamento ammissibile \"admissible_displacement_mm\"",
     "1, or less together with an \"admissible_displacement_mm\""},
    {Text::share_of_the_wall, "al massimo 0,005 della lunghezza della paratia, {0} mm",
     "at most 0.005 of the length of the wall, {0} mm"},
    {Text::standard_expanded, "Norma {0}: combinazioni aggiunte {1}",
     "Standard {0}: {1} combinations added"},
    {Text::standard_unconfirmed, "Nota: valori da confermare sulla norma: {0}",
     "Note: values to be confirmed against the standard: {0}"},
    {Text::a_file_of_presets, "un file di norme con un oggetto \"standards\"",
     "a file of standards with an object \"standards\""},
    {Text::check_line, "Controlla un progetto senza calcolarlo: tutti gli errori e i valori dubbi",
     "Check a project without running it: every error and every questionable value"},
    {Text::expand_line, "Stampa il progetto con le combinazioni della sua norma scritte per esteso",
     "Print the project with the combinations of its standard written out"},
    {Text::new_line, "Scrive un progetto completo e spiegato da cui partire",
     "Write a complete, explained project to start from"},
    {Text::schema_line, "Stampa lo schema (JSON Schema) dei progetti",
     "Print the JSON Schema of projects"},
    {Text::file_to_write, "il file da scrivere", "the file to write"},
    {Text::template_line, "quale: cantilever, anchored, propped o seismic",
     "which: cantilever, anchored, propped or seismic"},
    {Text::force_line, "sovrascrive un file che esiste", "overwrite a file that exists"},
    {Text::presets_line, "file di norme al posto di quelle del programma",
     "file of standards instead of those of the program"},
    {Text::file_exists, "{0}: esiste già; --force lo sovrascrive",
     "{0}: exists already; --force overwrites it"},
    {Text::file_written, "Scritto {0}", "Written {0}"},
    {Text::nothing_wrong, "{0}: nessun errore, nessun valore dubbio",
     "{0}: no errors, nothing questionable"},
    {Text::problems_counted, "{0}: errori {1}, avvertimenti {2}", "{0}: {1} errors, {2} warnings"},
    {Text::no_such_file, "il file o la cartella non esiste", "no such file or folder"},
    {Text::permission_denied, "permesso negato", "permission denied"},
    {Text::is_a_folder, "è una cartella", "it is a folder"},
    {Text::not_a_folder, "un file al posto di una cartella", "a file in the place of a folder"},
    {Text::no_space, "disco pieno", "no space left"},
    {Text::read_only, "disco in sola lettura", "read-only disk"},
    {Text::a_text_or_lines, "un testo o un elenco di testi", "a text or a list of texts"},
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
