// SPDX-License-Identifier: Apache-2.0
#include "services/error_table.h"

#include "ostrel/language.h"

#include <gtest/gtest.h>

#include <iterator>
#include <utility>

namespace {

using ostrel::services::error_rows;
using ostrel::services::find_error_row;

TEST(ErrorTable, HoldsThirtyFourRowsInTheirOrder) {
  const int codes[] = {2,  3,  4,  5,  6,  13, 14, 7,  8,  17, 18, 10, 11, 15, 12, 19, 20,
                       21, 23, 25, 26, 27, 28, 29, 30, 31, 32, 33, 9,  34, 24, 16, 22, 35};
  ASSERT_EQ(error_rows.size(), 34U);
  for (std::size_t i = 0; i < error_rows.size(); ++i)
    EXPECT_EQ(error_rows[i].code, codes[i]) << i;
}

// Misspelt ones among them.
TEST(ErrorTable, SaysItsOwnTextForEachCode) {
  const std::pair<OstrelErrorType, const char*> texts[] = {
      {errLoadTooInclined, "Carico troppo inclinato nella valutazione del carico limite"},
      {errStratigraphy, "Stratigrafia assente o non valida"},
      {errNoLayerIntersection, "Nessuna intersezione degli strati con la verticale"},
      {errNoWall, "Nessuna paratia di pali definita"},
      {errNoExcavationNode, "Nodo corrispondente alla quota di fondo scavo non trovato"},
      {errCondListMismatch, "Numero di condizioni e numero di liste di carchi inconsitenti"},
      {errLoadUndefined, "Carico non definito"},
      {errNoFemNodes, "Nessun nodo FEM presente"},
      {errNoFemElements, "Nessun elemento FEM presente"},
      {errFemNodeNotFound, "Nodo FEM non trovato"},
      {errEquationSolve,
       "Soluzione del sistema di equazioni non effettuata, controllare la labilita'"},
      {errAnchorNodeCount, "Numero di nodi FEM ancorati non corrispondente al numero di ancoraggi"},
      {errForceNotFound, "Forza non trovata"},
      {errResultCount, "Numero errato di risultati verso il numero di combinazioni"},
      {errNoCircularSection, "Sezione circolare non definita"},
      {errNoCheckEnabled, "Nessuna verifica abilitata nello scenario corrente"},
      {errReinfSettings, "Impostazioni armatura non valide"},
      {errReinfForSection, "Armatura non valida per la sezione corrente"},
      {errInvalidSection, "Sezione non valida"},
      {errSteelFactorZero, "Coefficiente parziale del materiale acciaio nullo"},
      {errAnchorSectionZero, "Sezione della barra/cavo di ancoraggio nulla"},
      {errNoBulb, "Bulbo di ancoraggio assente"},
      {errPulloutFactorZero,
       "Coefficiente parziale per la resistenza a sfilamento dell'ancoraggio nullo"},
      {errCircleBounds, "Definizione cerchi di crisi minimo e massimo errata"},
      {errStabilityFactors, "Coefficienti parziali per le verifiche SLU della stabilita' errati"},
      {errEmptyCentersGrid, "Griglia dei centri vuota"},
      {errEmptyPolygons, "Vettore dei poligoni vuoto"},
      {errStabilityFormula, "Formulazione verifica stabilita' non supportata"},
      {errNodeCountModel, "Numero di nodi non congruente con il modello"},
      {errCircleAboveCentre,
       "Il cerchio interseca il profilo ad una quota maggiore di quella del centro del cerchio"},
      {errNoUltimatePressure,
       "Settaggi per la pressione ultima per il terreno non trovati, controllare gli intervalli "
       "nel criterio della parete"},
      {errNonLinearNotConverged,
       "Calcolo non lineare non convergente, controllare i parametri del solutore non lineare "
       "(iterazioni, tolleranza)"},
      {errNoReinfAtAbscissa, "Armatura non presente per l'ascissa corrente"},
      {errHydroNoWater, "Verifica idraulica richiesta in assenza di falda"},
  };
  ASSERT_EQ(std::size(texts), error_rows.size());
  for (const auto& [code, text] : texts) {
    EXPECT_STREQ(find_error_row(code).message, text);
  }
}

TEST(ErrorTable, FallsThroughToTheUndefinedRow) {
  for (const int code : {-1, 0, 1, 36, 1 << 30}) {
    EXPECT_EQ(find_error_row(static_cast<OstrelErrorType>(code)).code, 1) << code;
  }
}

TEST(ErrorTable, HasAnEnglishTextForEveryRow) {
  ASSERT_TRUE(ostrel::set_language("en"));
  for (const auto& row : error_rows)
    EXPECT_STRNE(iTranslate(row.message), row.message);
  EXPECT_STRNE(iTranslate("Errore non definito"), "Errore non definito");
  ostrel::set_language("");
}

}  // namespace
