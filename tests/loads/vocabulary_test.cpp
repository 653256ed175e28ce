// SPDX-License-Identifier: Apache-2.0
#include "ostrel/vocabulary.h"

#include "support/fresh_process.h"
#include "support/label_table_testing.h"

#include <gtest/gtest.h>

using namespace ostrel::testing;

namespace {

TEST(Vocabulary, NamesTheVerifications) {
  expect_in_fresh_process([] {
    expect_labels(xGetChecksTypeMap,
                  {"Atto di moto rigido", "Carico limite verticale", "Sfilamento ancoraggi",
                   "Stabilita' globale", "Resistenza strutturale ancoraggi",
                   "Resistenza strutturale paratia", "Resistenza strutturale trave",
                   "Verifica sifonamento", "Verifica sollevamento", "Controllo degli spostamenti"});
  });
}

TEST(Vocabulary, NamesTheKindsOfCombination) {
  expect_in_fresh_process([] {
    expect_labels(xGetCombTypeMap, {"Non Sismica (SLU)", "Sismica", "Rara", "Frequente",
                                    "Quasi Permanente", "Accidentale"});
  });
}

TEST(Vocabulary, NamesTheEarthPressureCoefficients) {
  expect_in_fresh_process([] {
    expect_labels(xSoilCoeffKTypeMap,
                  {"Coefficiente di spinta a riposo K0", "Coefficiente di spinta attiva Ka",
                   "Valore medio tra K0 e Ka"});
  });
}

TEST(Vocabulary, NamesTheFactorsOnResistances) {
  expect_in_fresh_process([] {
    expect_labels(
        xcheckUlsFactorsMap,
        {"Resistenza terreno a valle", "Stabilita' globale", "Resistenza pali alla base",
         "Resistenza laterale pali in compressione", "Resistenza laterale pali in trazione",
         "Resistenza ancoraggi", "Sifonamento", "Sollevamento"});
  });
}

TEST(Vocabulary, NamesTheCorrelationValuesOfAnchors) {
  expect_in_fresh_process([] {
    expect_labels(xAnchorCsiDataMap, {"Valori medi", "Valori minimi"});
  });
}

TEST(Vocabulary, NamesTheEarthPressureFormulasAndTellsTheSeismicOnes) {
  expect_in_fresh_process([] {
    ostrel::set_language("it");
    const std::map<formulType, frmtype>* const table = xformulType_Map();
    const frmtype expected[] = {{0, "Spinta a riposo"},
                                {0, "Rankine"},
                                {0, "Coulomb"},
                                {1, "Mononobe - Okabe"},
                                {1, "Wood"}};
    ASSERT_EQ(table->size(), 5u);
    for (int value = 0; value < 5; ++value) {
      EXPECT_EQ(table->at(static_cast<formulType>(value)).seismic, expected[value].seismic);
      EXPECT_EQ(table->at(static_cast<formulType>(value)).label, expected[value].label);
    }
    EXPECT_EQ(table->find(static_cast<formulType>(5)), table->end());
    EXPECT_EQ(table->find(static_cast<formulType>(-1)), table->end());
    EXPECT_EQ(xformulType_Map(), table);
  });
}

TEST(Vocabulary, HasTheNumbersThatAreStored) {
  EXPECT_EQ(static_cast<int>(checkRigidMotion), 0);
  EXPECT_EQ(static_cast<int>(checkVerticalLimitLoad), 1);
  EXPECT_EQ(static_cast<int>(checkAnchorPullout), 2);
  EXPECT_EQ(static_cast<int>(checkGlobalStability), 3);
  EXPECT_EQ(static_cast<int>(checkAnchorStructure), 4);
  EXPECT_EQ(static_cast<int>(checkWallStructure), 5);
  EXPECT_EQ(static_cast<int>(checkCapBeamStructure), 6);
  EXPECT_EQ(static_cast<int>(checkPiping), 7);
  EXPECT_EQ(static_cast<int>(checkUplift), 8);
  EXPECT_EQ(static_cast<int>(checkDisplacements), 9);
  EXPECT_EQ(static_cast<int>(combUltimate), 0);
  EXPECT_EQ(static_cast<int>(combSeismic), 1);
  EXPECT_EQ(static_cast<int>(combRare), 2);
  EXPECT_EQ(static_cast<int>(combFrequent), 3);
  EXPECT_EQ(static_cast<int>(combQuasiPermanent), 4);
  EXPECT_EQ(static_cast<int>(combAccidental), 5);
  EXPECT_EQ(static_cast<int>(coeffAtRest), 0);
  EXPECT_EQ(static_cast<int>(coeffActive), 1);
  EXPECT_EQ(static_cast<int>(coeffMean), 2);
  EXPECT_EQ(static_cast<int>(factorDownhillSoil), 0);
  EXPECT_EQ(static_cast<int>(factorGlobalStability), 1);
  EXPECT_EQ(static_cast<int>(factorPileBase), 2);
  EXPECT_EQ(static_cast<int>(factorPileShaftCompression), 3);
  EXPECT_EQ(static_cast<int>(factorPileShaftTension), 4);
  EXPECT_EQ(static_cast<int>(factorAnchors), 5);
  EXPECT_EQ(static_cast<int>(factorPiping), 6);
  EXPECT_EQ(static_cast<int>(factorUplift), 7);
  EXPECT_EQ(static_cast<int>(csiMeanValues), 0);
  EXPECT_EQ(static_cast<int>(csiMinimumValues), 1);
  EXPECT_EQ(static_cast<int>(formulaAtRest), 0);
  EXPECT_EQ(static_cast<int>(formulaRankine), 1);
  EXPECT_EQ(static_cast<int>(formulaCoulomb), 2);
  EXPECT_EQ(static_cast<int>(formulaMononobeOkabe), 3);
  EXPECT_EQ(static_cast<int>(formulaWood), 4);
}

TEST(Vocabulary, KeepsTheLanguageOfTheFirstUse) {
  expect_in_fresh_process([] {
    expect_kept_language(xGetChecksTypeMap, "Atto di moto rigido");
    expect_kept_language(xGetCombTypeMap, "Non Sismica (SLU)");
    expect_kept_language(xSoilCoeffKTypeMap, "Coefficiente di spinta a riposo K0");
    expect_kept_language(xcheckUlsFactorsMap, "Resistenza terreno a valle");
    expect_kept_language(xAnchorCsiDataMap, "Valori medi");
    ASSERT_TRUE(ostrel::set_language("en"));
    const std::string english = iTranslate("Spinta a riposo");
    ASSERT_NE(english, "Spinta a riposo");
    EXPECT_EQ(xformulType_Map()->at(formulaAtRest).label, english);
    ASSERT_TRUE(ostrel::set_language("it"));
    EXPECT_EQ(xformulType_Map()->at(formulaAtRest).label, english);
  });
}

// A table that was asked for in Italian is not made again in English.
TEST(Vocabulary, StaysItalianWhenItWasFirstAskedForInItalian) {
  expect_in_fresh_process([] {
    ASSERT_TRUE(ostrel::set_language("it"));
    xAnchorCsiDataMap();
    ASSERT_TRUE(ostrel::set_language("en"));
    EXPECT_EQ(xAnchorCsiDataMap()->at(csiMeanValues), "Valori medi");
    EXPECT_EQ(xSoilCoeffKTypeMap()->at(coeffMean), iTranslate("Valore medio tra K0 e Ka"));
    EXPECT_STRNE(iTranslate("Valore medio tra K0 e Ka"), "Valore medio tra K0 e Ka");
  });
}

}  // namespace
