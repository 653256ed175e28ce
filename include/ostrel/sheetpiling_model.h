#pragma once
/// @file  The built model of wall and ground: layers, beam, anchor links. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/anchor.h"
#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/fem_data.h"
#include "ostrel/restriction.h"
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

  /// @name Second stage: the beam
  ///@{
  /// Makes the beam anew: a node for each level down to the wall's foot, an element between
  /// neighbours; a node at each constraint and anchor, and the links of the anchors. A constraint
  /// outside of the beam is left out, an anchor outside of it keeps node -1. What no mesh sets
  /// (`Redfac`, `Dembinc`) stays as it is.
  /// @retval errNoWall  there is no input or no pile wall in it; nothing changes
  /// @retval errNoExcavationNode  no node within 0.001 mm of the excavation level
  OstrelErrorType create_FemModel(xSheetpilingData* data);

  /// Puts a node at `depth` [mm] into an element, with its level into the layers; every index below
  /// moves up by one. Both halves keep the length of the whole element.
  void splitBeam(int element, double depth);

  /// Finds the node of a constraint, within 0.001 mm of its level, or makes one, and puts the
  /// constraint on it; see `applyConstrToNode`.
  void applyConstraints(int kind, const xConstraint& constraint);

  /// Puts the active parts of a constraint on a node.
  ///
  /// @oddity An imposed displacement along the wall goes into the beam with its sign reversed; the
  /// other parts do not, and no spring does. Stored results depend on it.
  ///
  /// @param kind  0 for imposed values, of which a later one replaces an earlier one; 1 for
  ///              springs, which add up; nothing happens for any other
  /// @param node  its index is not tested
  void applyConstrToNode(int kind, int node, const xConstraint& constraint);

  /// The first node that is the same point as (x, y) [mm], y being the depth, by the process's
  /// tolerance of positions; -1 for none.
  int findFemNode(double x, double y) const;

  /// The first element that holds a depth, and its node there.
  /// @param depth      [mm]
  /// @param tolerance  by which the depth may lie beyond an element or off a node [mm]
  /// @param node       out: the element's node within the tolerance of the depth, the end node if
  ///                   both are, -1 if none is
  /// @return index of the element, -1 for none
  int findFemElement(double depth, double tolerance, int& node) const;
  ///@}

  std::vector<xSoilLayer> layers;        ///< from the top down, in the order of the input
  xFemData fem;                          ///< the beam
  std::vector<info_Fem_anchor> anchors;  ///< one link for each anchor, in the order of the input
};
