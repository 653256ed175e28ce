#pragma once
/// @file  The whole input of one analysis. Room: model
// SPDX-License-Identifier: Apache-2.0
//
// Units: mm, N, N/mm², N/mm³, rad. Depths are positive downwards from the head of the wall;
// elevations and polygon vertices are plane coordinates with the wall on x = 0, the retained side
// on x > 0 and y = 0 at the head, pointing up.

#include "ostrel/anchor.h"
#include "ostrel/calc_settings.h"
#include "ostrel/embankment_surface.h"
#include "ostrel/export.h"
#include "ostrel/load_combination.h"
#include "ostrel/load_condition.h"
#include "ostrel/restriction.h"
#include "ostrel/soil_layer.h"
#include "ostrel/spring_interval.h"
#include "ostrel/wall.h"

#include <osg/ref_ptr>

#include <vector>

/// The root of the input. Plain data without a check of its own: a tree is tested where it is used.
///
/// A copy shares the wall record and owns all the rest.
class OSTREL_API xSheetpilingData {
public:
  /// Releases the wall and empties everything else but the spring intervals.
  ///
  /// @oddity `springIntervals` survives a reset. Hosts rely on it.
  virtual void reset();
  virtual ~xSheetpilingData() = default;
  xSheetpilingData();
  xSheetpilingData(const xSheetpilingData&) = default;
  xSheetpilingData(xSheetpilingData&&) = default;
  xSheetpilingData& operator=(const xSheetpilingData&) = default;
  xSheetpilingData& operator=(xSheetpilingData&&) = default;

  /// The wall, absent until the host sets it; an `xPile_Sheetpiling`. An analysis takes a wall of
  /// any other class for absent.
  osg::ref_ptr<xSheetpiling_Props> props;
  std::vector<xSpringInterval> springIntervals;  ///< limits of the springs, by relative depth
  std::vector<xBoundSoilLayer> soilLayers;       ///< from the top down
  xBoundSoilLayer boundLayer;     ///< a further soil body, for the slip circles alone
  xEmbankmentSurface embankment;  ///< profile of the ground
  xWaterTable waterTable;         ///< water on the two sides
  std::vector<xLoadCond> loadConds;
  std::vector<xLoadComb> loadCombs;  ///< in the order of analysis
  xRestriction restriction;          ///< imposed displacements and springs on the wall
  std::vector<xAnchor> anchors;      ///< anchors and struts
  xCalcSettings calcSettings;
};
