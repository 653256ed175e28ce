#pragma once
/// @file  The message of every code. Room: services
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/error.h"

#include <quillet/translation.h>

#include <array>

namespace ostrel::services {

/// One code with its message in the source language; all are of type error.
struct ErrorRow {
  std::int32_t code;
  const char* message;
};

inline constexpr ErrorRow undefined_error_row{errUndefined,
                                              quillet::translatable("Errore non definito")};

/// The rows in the order in which they are searched; `undefined_error_row` is not among them.
inline constexpr std::array<ErrorRow, 34> error_rows{{
    {errLoadTooInclined,
     quillet::translatable("Carico troppo inclinato nella valutazione del carico limite")},
    {errStratigraphy, quillet::translatable("Stratigrafia assente o non valida")},
    {errNoLayerIntersection,
     quillet::translatable("Nessuna intersezione degli strati con la verticale")},
    {errNoWall, quillet::translatable("Nessuna paratia di pali definita")},
    {errNoExcavationNode,
     quillet::translatable("Nodo corrispondente alla quota di fondo scavo non trovato")},
    {errCondListMismatch,
     quillet::translatable("Numero di condizioni e numero di liste di carchi inconsitenti")},
    {errLoadUndefined, quillet::translatable("Carico non definito")},
    {errNoFemNodes, quillet::translatable("Nessun nodo FEM presente")},
    {errNoFemElements, quillet::translatable("Nessun elemento FEM presente")},
    {errFemNodeNotFound, quillet::translatable("Nodo FEM non trovato")},
    {errEquationSolve,
     quillet::translatable("Soluzione del sistema di equazioni non effettuata, controllare la "
                           "labilita'")},
    {errAnchorNodeCount,
     quillet::translatable("Numero di nodi FEM ancorati non corrispondente al numero di "
                           "ancoraggi")},
    {errForceNotFound, quillet::translatable("Forza non trovata")},
    {errResultCount,
     quillet::translatable("Numero errato di risultati verso il numero di combinazioni")},
    {errNoCircularSection, quillet::translatable("Sezione circolare non definita")},
    {errNoCheckEnabled,
     quillet::translatable("Nessuna verifica abilitata nello scenario corrente")},
    {errReinfSettings, quillet::translatable("Impostazioni armatura non valide")},
    {errReinfForSection, quillet::translatable("Armatura non valida per la sezione corrente")},
    {errInvalidSection, quillet::translatable("Sezione non valida")},
    {errSteelFactorZero,
     quillet::translatable("Coefficiente parziale del materiale acciaio nullo")},
    {errAnchorSectionZero, quillet::translatable("Sezione della barra/cavo di ancoraggio nulla")},
    {errNoBulb, quillet::translatable("Bulbo di ancoraggio assente")},
    {errPulloutFactorZero,
     quillet::translatable("Coefficiente parziale per la resistenza a sfilamento "
                           "dell'ancoraggio nullo")},
    {errCircleBounds, quillet::translatable("Definizione cerchi di crisi minimo e massimo errata")},
    {errStabilityFactors,
     quillet::translatable("Coefficienti parziali per le verifiche SLU della stabilita' "
                           "errati")},
    {errEmptyCentersGrid, quillet::translatable("Griglia dei centri vuota")},
    {errEmptyPolygons, quillet::translatable("Vettore dei poligoni vuoto")},
    {errStabilityFormula, quillet::translatable("Formulazione verifica stabilita' non supportata")},
    {errNodeCountModel, quillet::translatable("Numero di nodi non congruente con il modello")},
    {errCircleAboveCentre,
     quillet::translatable("Il cerchio interseca il profilo ad una quota maggiore di quella del "
                           "centro del cerchio")},
    {errNoUltimatePressure,
     quillet::translatable("Settaggi per la pressione ultima per il terreno non trovati, "
                           "controllare gli intervalli nel criterio della parete")},
    {errNonLinearNotConverged,
     quillet::translatable("Calcolo non lineare non convergente, controllare i parametri del "
                           "solutore non lineare (iterazioni, tolleranza)")},
    {errNoReinfAtAbscissa, quillet::translatable("Armatura non presente per l'ascissa corrente")},
    {errHydroNoWater, quillet::translatable("Verifica idraulica richiesta in assenza di falda")},
}};

/// The row of `code`, or `undefined_error_row` for a code without one.
const ErrorRow& find_error_row(OstrelErrorType code);

}  // namespace ostrel::services
