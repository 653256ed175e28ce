#pragma once
/// @file  All persisted classes, each by its name, for tests
// SPDX-License-Identifier: Apache-2.0

#include "support/stream_round_trip.h"

#include <ostrel/ostrel.h>

#include <osg/Referenced>
#include <osg/ref_ptr>

#include <concepts>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace ostrel::testing {

/// One persisted class.
struct PersistedClass {
  std::string name;       ///< of the class
  std::string io_class;   ///< by which objects behind pointers are stored
  std::string untouched;  ///< the stored form of a new object
  /// Reads a new object from the handle and gives what it stores.
  std::string (*read_and_store)(instream& in);
};

/// A new object, however its class wants to be held.
template <class T>
auto new_object() {
  if constexpr (std::derived_from<T, osg::Referenced>) {
    return osg::ref_ptr<T>(new T);
  } else {
    return std::make_unique<T>();
  }
}

template <class T>
PersistedClass persisted_class(const char* name) {
  const auto object = new_object<T>();
  return {name, object->getIOClass(), stored(*object), [](instream& in) {
            const auto copy = new_object<T>();
            copy->pub_read(in);
            return stored(*copy);
          }};
}

/// All of them that can be objects, in the order of their headers.
inline std::vector<PersistedClass> persisted_classes() {
  return {
      persisted_class<xPoint2d>("xPoint2d"),
      persisted_class<diag_Point>("diag_Point"),
      persisted_class<xDiagram>("xDiagram"),
      persisted_class<xDescription>("xDescription"),
      persisted_class<xObjectID>("xObjectID"),
      persisted_class<xBoundSoilLayer>("xBoundSoilLayer"),
      persisted_class<xElasticProps>("xElasticProps"),
      persisted_class<xSoilProps>("xSoilProps"),
      persisted_class<xSheetpilingMaterial>("xSheetpilingMaterial"),
      persisted_class<xSheetpiling_Props>("xSheetpiling_Props"),
      persisted_class<xPile_Sheetpiling>("xPile_Sheetpiling"),
      persisted_class<DispData>("DispData"),
      persisted_class<xLoadCond>("xLoadCond"),
      persisted_class<xUniformLoad>("xUniformLoad"),
      persisted_class<xNastriformLoad>("xNastriformLoad"),
      persisted_class<xLocalizedLoad>("xLocalizedLoad"),
      persisted_class<xLinearLoad>("xLinearLoad"),
      persisted_class<xPuntiformLoad>("xPuntiformLoad"),
      persisted_class<xConcenterdLoad>("xConcenterdLoad"),
      persisted_class<xDistribuitedLoad>("xDistribuitedLoad"),
      persisted_class<xTorqueLoad>("xTorqueLoad"),
      persisted_class<xDistribuitedTorque>("xDistribuitedTorque"),
      persisted_class<xDesignSoil>("xDesignSoil"),
      persisted_class<xLayerPress>("xLayerPress"),
      persisted_class<xEarthPress>("xEarthPress"),
      persisted_class<xHydrostaticPress>("xHydrostaticPress"),
      persisted_class<xLoadPress>("xLoadPress"),
      persisted_class<xLoadCondPress>("xLoadCondPress"),
      persisted_class<xSeismicAction>("xSeismicAction"),
      persisted_class<xSeismicActionNTC2008>("xSeismicActionNTC2008"),
      persisted_class<xSeismicActionEC8>("xSeismicActionEC8"),
      persisted_class<NodeModulus>("NodeModulus"),
      persisted_class<xSubgradeReactionModulus>("xSubgradeReactionModulus"),
      persisted_class<xFemNodeData>("xFemNodeData"),
      persisted_class<xFemNodeData_pos>("xFemNodeData_pos"),
      persisted_class<PressAtEnds>("PressAtEnds"),
      persisted_class<xFemLoadCond>("xFemLoadCond"),
      persisted_class<xPointStress>("xPointStress"),
      persisted_class<xBeamStress>("xBeamStress"),
      persisted_class<reacTerr>("reacTerr"),
      persisted_class<Fsoil>("Fsoil"),
      persisted_class<xCombRes>("xCombRes"),
      persisted_class<AnchorSoll>("AnchorSoll"),
      persisted_class<xFemResults>("xFemResults"),
      persisted_class<xCombResults>("xCombResults"),
      persisted_class<xSheetpilingRes>("xSheetpilingRes"),
      persisted_class<xAnchorResults>("xAnchorResults"),
      persisted_class<xBulbAnchor>("xBulbAnchor"),
      persisted_class<xGeoAnchorCombRes>("xGeoAnchorCombRes"),
      persisted_class<xGeoAnchorResults>("xGeoAnchorResults"),
      persisted_class<xGeotechnicalAnchorDesign>("xGeotechnicalAnchorDesign"),
      persisted_class<xStrAnchorCombRes>("xStrAnchorCombRes"),
      persisted_class<xStrAnchorResults>("xStrAnchorResults"),
      persisted_class<xStructuralAnchorDesign>("xStructuralAnchorDesign"),
      persisted_class<TraveResults>("TraveResults"),
      persisted_class<xBaseResults>("xBaseResults"),
      persisted_class<xCheckCombID>("xCheckCombID"),
      persisted_class<xCheckSettings>("xCheckSettings"),
      persisted_class<xConcreteProps>("xConcreteProps"),
      persisted_class<xSteelProps>("xSteelProps"),
      persisted_class<xMaterialProps>("xMaterialProps"),
      persisted_class<xReinfRectSection>("xReinfRectSection"),
      persisted_class<xReinfCircSection>("xReinfCircSection"),
      persisted_class<xReinforcement>("xReinforcement"),
      persisted_class<xReinforcementBar>("xReinforcementBar"),
      persisted_class<xBracket>("xBracket"),
      persisted_class<xBracketSettings>("xBracketSettings"),
      persisted_class<xReinforcement_SettingsTrave>("xReinforcement_SettingsTrave"),
      persisted_class<xReinforcement_Settings>("xReinforcement_Settings"),
      persisted_class<xRectReinfSettings>("xRectReinfSettings"),
      persisted_class<xCircularReinfSettings>("xCircularReinfSettings"),
      persisted_class<xShear>("xShear"),
      persisted_class<xRectShear>("xRectShear"),
      persisted_class<xCircShear>("xCircShear"),
      persisted_class<xFlexCheck>("xFlexCheck"),
      persisted_class<xSectionCheck>("xSectionCheck"),
      persisted_class<xUltimateLimitStates>("xUltimateLimitStates"),
      persisted_class<xSollVector>("xSollVector"),
      persisted_class<xStructCombRes>("xStructCombRes"),
      persisted_class<xBendShearCombResults>("xBendShearCombResults"),
      persisted_class<xBendShearResults>("xBendShearResults"),
      persisted_class<xShearCombResults>("xShearCombResults"),
      persisted_class<xShearResults>("xShearResults"),
      persisted_class<xStructuralDesign>("xStructuralDesign"),
      persisted_class<verificaSifonamento>("verificaSifonamento"),
      persisted_class<verificaSollevamento>("verificaSollevamento"),
      persisted_class<verificheIdrauliche>("verificheIdrauliche"),
      persisted_class<xBearCapacityPile>("xBearCapacityPile"),
      persisted_class<xGeotechnicalPileDesign>("xGeotechnicalPileDesign"),
      persisted_class<rigidBodyMotionCheck>("rigidBodyMotionCheck"),
      persisted_class<xrigidBodyDesign>("xrigidBodyDesign"),
      persisted_class<xServiceLimitDispCombRes>("xServiceLimitDispCombRes"),
      persisted_class<xServiceLimitDisplacements>("xServiceLimitDisplacements"),
      persisted_class<xServiceabilityLimitStates>("xServiceabilityLimitStates"),
      persisted_class<xClipData>("xClipData"),
      persisted_class<xGridPointResults>("xGridPointResults"),
      persisted_class<xSlopeStability>("xSlopeStability"),
      persisted_class<xSlopeStabilityDesign>("xSlopeStabilityDesign"),
  };
}

}  // namespace ostrel::testing
