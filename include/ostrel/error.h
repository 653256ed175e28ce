#pragma once
/// @file  Codes of the analysis and the messages made of them. Room: services
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"

#include <cstdint>
#include <string>
#include <vector>

/// Outcome of an operation of the analysis: 0 for success, else why it could not be carried out.
// clang-format off
enum [[nodiscard]] OstrelErrorType : std::int32_t {
  errFreeText = -1,  ///< an item that holds a text of its own and no code

  errUndefined = 1,  ///< what every unknown code is taken for

  errLoadTooInclined = 2,         ///< load too inclined for the bearing capacity
  errStratigraphy = 3,            ///< stratigraphy missing or invalid
  errNoLayerIntersection = 4,     ///< no layer meets the wall's vertical
  errNoWall = 5,                  ///< no pile wall defined
  errNoExcavationNode = 6,        ///< no node at the excavation level
  errNoFemNodes = 7,              ///< no finite element nodes
  errNoFemElements = 8,           ///< no finite elements
  errNodeCountModel = 9,          ///< node count does not fit the model
  errAnchorNodeCount = 10,        ///< anchored nodes do not match the anchors
  errForceNotFound = 11,          ///< force not found
  errNoCircularSection = 12,      ///< circular section not defined
  errCondListMismatch = 13,       ///< numbers of conditions and of load lists disagree
  errLoadUndefined = 14,          ///< load not defined
  errResultCount = 15,            ///< wrong number of results for the number of combinations
  errNonLinearNotConverged = 16,  ///< the soil has nothing left to give
  errFemNodeNotFound = 17,        ///< finite element node not found
  errEquationSolve = 18,          ///< the equations were not solved: a mechanism
  errNoCheckEnabled = 19,         ///< no verification enabled in the combination
  errReinfSettings = 20,          ///< reinforcement settings invalid
  errReinfForSection = 21,        ///< reinforcement invalid for the section
  errNoReinfAtAbscissa = 22,      ///< no reinforcement at the abscissa
  errInvalidSection = 23,         ///< invalid section
  errNoUltimatePressure = 24,     ///< no spring interval holds the node
  errSteelFactorZero = 25,        ///< partial factor of the steel is zero
  errAnchorSectionZero = 26,      ///< section of the anchor bar or cable is zero
  errNoBulb = 27,                 ///< anchor bulb missing
  errPulloutFactorZero = 28,      ///< partial factor for anchor pull-out is zero
  errCircleBounds = 29,           ///< smallest and largest failure circle wrongly defined
  errStabilityFactors = 30,       ///< partial factors of the stability checks wrong
  errEmptyCentersGrid = 31,       ///< grid of centres empty
  errEmptyPolygons = 32,          ///< list of polygons empty
  errStabilityFormula = 33,       ///< stability formulation not supported
  errCircleAboveCentre = 34,      ///< the circle meets the profile above its centre
  errHydroNoWater = 35,           ///< hydraulic check requested without a water table
};
// clang-format on

namespace ostrel {
/// Success, the one code without a name in the list.
inline constexpr OstrelErrorType ok{};
}  // namespace ostrel

/// Severity of a run or of a list of messages.
enum xVeldErrorsType : std::int32_t {
  veldNothing = 0,
  veldInformation = 1,
  veldWarning = 2,
  veldError = 3,
};

struct predefinedErr;

/// One message to the host: what happened, how bad it is, and which object it speaks of. Its text
/// is in the language that was in force when the item was made.
class OSTREL_API xVeldError {
public:
  enum typeErr : std::int32_t { typeError = 0, typeWarning = 1, typeInformation = 2 };

  /// An empty free text of type error, about no object.
  xVeldError() = default;
  /// The message of `code` behind `prefix` (null means none); an unknown code, success among them,
  /// is taken for `errUndefined`.
  xVeldError(OstrelErrorType code, std::int64_t id_obj, const char* prefix);
  /// A free text.
  xVeldError(const std::string& text, std::int64_t id_obj, typeErr type);
  /// A text of one's own under a code; the table of messages is not asked. Null means no text.
  xVeldError(OstrelErrorType code, const char* text, std::int64_t id_obj, typeErr type);
  xVeldError(OstrelErrorType code, std::string text, std::int64_t id_obj, typeErr type);

  /// @name Setting all four members anew
  ///@{
  void SetErr(OstrelErrorType code, const std::string& text, std::int64_t id_obj, typeErr type);
  void SetErr(OstrelErrorType code, const char* text, std::int64_t id_obj, typeErr type);
  void SetErr(const char* text, typeErr type, std::int64_t id_obj);
  ///@}

  OstrelErrorType getID() const { return id_; }
  const std::string& GetErrorStr() const { return message_; }
  std::int64_t getIdObj() const { return id_obj_; }  ///< -1 for no object

  /// The severity of this item; nothing for a type that is none of the three.
  xVeldErrorsType getErr() const;

  /// The translated severity word and the message; the word of an unknown type is that of an error.
  std::string MakeErrStr() const;

  /// The worst severity in the list, nothing for an empty one.
  static xVeldErrorsType getWorstErr(const std::vector<xVeldError>& errors);

  /// Equal type and object, and then equal texts if this item holds a free text, or else equal
  /// codes.
  ///
  /// @oddity Only the left item decides whether texts or codes are compared, so a free text and a
  /// coded item can be equal from one side and different from the other. Hosts rely on it.
  bool operator==(const xVeldError& other) const;

private:
  OstrelErrorType id_ = errFreeText;
  typeErr type_ = typeError;
  std::string message_;
  std::int64_t id_obj_ = -1;
};

/// What the table of messages says of a code.
struct OSTREL_API predefinedErr {
  /// The row of `errUndefined`.
  predefinedErr();

  OstrelErrorType code;
  xVeldError::typeErr type;
  std::string message;  ///< translated
};

/// Fills `out` with the row of `code`, or of `errUndefined` for an unknown code.
OSTREL_API void getpredefinedErr(OstrelErrorType code, predefinedErr& out);
