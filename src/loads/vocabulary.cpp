// SPDX-License-Identifier: Apache-2.0
#include "ostrel/vocabulary.h"

#include "services/label_table.h"

using ostrel::services::fill_once;
using ostrel::services::label;
using quillet::translatable;

std::map<pCheckTypes, std::string>* xGetChecksTypeMap() {
  static std::map<pCheckTypes, std::string> table;
  return fill_once(table, {{checkRigidMotion, translatable("Atto di moto rigido")},
                           {checkVerticalLimitLoad, translatable("Carico limite verticale")},
                           {checkAnchorPullout, translatable("Sfilamento ancoraggi")},
                           {checkGlobalStability, translatable("Stabilita' globale")},
                           {checkAnchorStructure, translatable("Resistenza strutturale ancoraggi")},
                           {checkWallStructure, translatable("Resistenza strutturale paratia")},
                           {checkCapBeamStructure, translatable("Resistenza strutturale trave")},
                           {checkPiping, translatable("Verifica sifonamento")},
                           {checkUplift, translatable("Verifica sollevamento")},
                           {checkDisplacements, translatable("Controllo degli spostamenti")}});
}

std::map<pCombinationTypes, std::string>* xGetCombTypeMap() {
  static std::map<pCombinationTypes, std::string> table;
  return fill_once(table, {{combUltimate, translatable("Non Sismica (SLU)")},
                           {combSeismic, translatable("Sismica")},
                           {combRare, translatable("Rara")},
                           {combFrequent, translatable("Frequente")},
                           {combQuasiPermanent, translatable("Quasi Permanente")},
                           {combAccidental, translatable("Accidentale")}});
}

std::map<SoilCoeffKType, std::string>* xSoilCoeffKTypeMap() {
  static std::map<SoilCoeffKType, std::string> table;
  return fill_once(table, {{coeffAtRest, translatable("Coefficiente di spinta a riposo K0")},
                           {coeffActive, translatable("Coefficiente di spinta attiva Ka")},
                           {coeffMean, translatable("Valore medio tra K0 e Ka")}});
}

std::map<checkUlsFactors, std::string>* xcheckUlsFactorsMap() {
  static std::map<checkUlsFactors, std::string> table;
  return fill_once(
      table,
      {{factorDownhillSoil, translatable("Resistenza terreno a valle")},
       {factorGlobalStability, translatable("Stabilita' globale")},
       {factorPileBase, translatable("Resistenza pali alla base")},
       {factorPileShaftCompression, translatable("Resistenza laterale pali in compressione")},
       {factorPileShaftTension, translatable("Resistenza laterale pali in trazione")},
       {factorAnchors, translatable("Resistenza ancoraggi")},
       {factorPiping, translatable("Sifonamento")},
       {factorUplift, translatable("Sollevamento")}});
}

std::map<AnchorCsiData, std::string>* xAnchorCsiDataMap() {
  static std::map<AnchorCsiData, std::string> table;
  return fill_once(table, {{csiMeanValues, translatable("Valori medi")},
                           {csiMinimumValues, translatable("Valori minimi")}});
}

std::map<formulType, frmtype>* xformulType_Map() {
  static std::map<formulType, frmtype> table;
  if (table.empty()) {
    table[formulaAtRest] = {0, label(translatable("Spinta a riposo"))};
    table[formulaRankine] = {0, label(translatable("Rankine"))};
    table[formulaCoulomb] = {0, label(translatable("Coulomb"))};
    table[formulaMononobeOkabe] = {1, label(translatable("Mononobe - Okabe"))};
    table[formulaWood] = {1, label(translatable("Wood"))};
  }
  return &table;
}
