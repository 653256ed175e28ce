#pragma once
/// @file  Enumerations shared across the library, with their labels. Room: loads
// SPDX-License-Identifier: Apache-2.0
//
// The numbers are stored in input and results; they never change. Each table is made at its first
// use, in the language in force at that moment, and keeps that language. Filling is not guarded:
// ask for the tables once before several threads do.

#include "ostrel/export.h"

#include <cstdint>
#include <map>
#include <string>

/// The verifications that a combination can ask for.
enum pCheckTypes : std::int32_t {
  checkRigidMotion = 0,
  checkVerticalLimitLoad = 1,
  checkAnchorPullout = 2,
  checkGlobalStability = 3,
  checkAnchorStructure = 4,
  checkWallStructure = 5,
  checkCapBeamStructure = 6,
  checkPiping = 7,
  checkUplift = 8,
  checkDisplacements = 9,
};

/// The kinds of combination.
enum pCombinationTypes : std::int32_t {
  combUltimate = 0,  ///< ultimate limit state, not seismic
  combSeismic = 1,
  combRare = 2,
  combFrequent = 3,
  combQuasiPermanent = 4,
  combAccidental = 5,
};

/// The earth pressure coefficient on a bulb of an anchor.
enum SoilCoeffKType : std::int32_t { coeffAtRest = 0, coeffActive = 1, coeffMean = 2 };

/// Keys of the partial factors on resistances.
enum checkUlsFactors : std::int32_t {
  factorDownhillSoil = 0,
  factorGlobalStability = 1,
  factorPileBase = 2,
  factorPileShaftCompression = 3,
  factorPileShaftTension = 4,
  factorAnchors = 5,
  factorPiping = 6,
  factorUplift = 7,
};

/// Which correlation factor applies to an anchor.
enum AnchorCsiData : std::int32_t { csiMeanValues = 0, csiMinimumValues = 1 };

/// The earth pressure formulas.
enum formulType : std::int32_t {
  formulaAtRest = 0,
  formulaRankine = 1,
  formulaCoulomb = 2,
  formulaMononobeOkabe = 3,
  formulaWood = 4,
};

/// Label of a formula, and whether it takes a seismic action.
struct frmtype {
  int seismic = 0;  ///< 1 for a formula with seismic action, else 0
  std::string label;
};

/// @name Label tables
/// Each call of one function returns the same table.
///@{
OSTREL_API std::map<pCheckTypes, std::string>* xGetChecksTypeMap();
OSTREL_API std::map<pCombinationTypes, std::string>* xGetCombTypeMap();
OSTREL_API std::map<SoilCoeffKType, std::string>* xSoilCoeffKTypeMap();
OSTREL_API std::map<checkUlsFactors, std::string>* xcheckUlsFactorsMap();
OSTREL_API std::map<AnchorCsiData, std::string>* xAnchorCsiDataMap();
OSTREL_API std::map<formulType, frmtype>* xformulType_Map();
///@}
