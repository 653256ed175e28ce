#pragma once
/// @file  The built model of wall and ground: layers, beam, anchor links. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/anchor.h"
#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/fem_data.h"
#include "ostrel/soil_layer.h"

#include <vector>

class xSheetpilingData;

/// The wall and the ground as the analysis sees them, built from the input.
class OSTREL_API xSheetpilingModel {
public:
  virtual void reset();
  virtual ~xSheetpilingModel() = default;
  xSheetpilingModel() = default;
  xSheetpilingModel(const xSheetpilingModel&) = default;
  xSheetpilingModel(xSheetpilingModel&&) = default;
  xSheetpilingModel& operator=(const xSheetpilingModel&) = default;
  xSheetpilingModel& operator=(xSheetpilingModel&&) = default;

  /// @name First stage: the ground along the wall
  ///@{
  /// Appends the ground of `data` to the layers, cut at the excavation, the wall's foot, the
  /// anchors, the constraints and the water. A caller that builds anew resets the model first.
  /// @retval errNoWall  there is no input or no pile wall in it; nothing else is looked at
  /// @retval errStratigraphy  `StepMolle` is not a positive number, or the ground would have more
  ///                          than a million levels; the layers before are in the model
  /// @retval errNoLayerIntersection  a soil layer does not reach across the wall's line; the layers
  ///                                 before are in the model
  OstrelErrorType create_Stratigraphy(xSheetpilingData* data);

  /// Cuts `layer` at `depth` [mm] if that lies strictly inside: the upper piece is finished and
  /// appended, `layer` becomes the lower one. @return whether it was cut
  bool splitLayer(double depth, const xWaterTable& water, xSoilLayer& layer);

  /// Finishes `layer`: splits it at the water on the retained side if that lies inside, gives it
  /// its levels and appends it.
  void insert_WaterTable(const xWaterTable& water, xSoilLayer& layer);
  ///@}

  std::vector<xSoilLayer> layers;        ///< from the top down, in the order of the input
  xFemData fem;                          ///< the beam
  std::vector<info_Fem_anchor> anchors;  ///< one link for each anchor, in the order of the input
};
