#pragma once
/// @file  What is drawn of the results, once for every front end. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"
#include "bilingual.h"
#include "project.h"

#include <string>
#include <vector>

namespace ostrel::host {

/// One figure: what plotly needs to draw it, as {"data": [...], "layout": {...}}.
struct Figure {
  std::string id;       ///< "02-moment": number of the combination, subject; "all-moment" of all
  int combination = 0;  ///< its number, 0 for all of them
  Both caption;
  bool wide = false;  ///< of the plane, not along the wall
  OrderedJson plot;   ///< texts in both languages, see `in_language`
};

/// Along the wall, for all combinations and for each: pressures, displacement, moment, shear, axial
/// force, reaction of the soil against its limit, use of the concrete sections. Then the
/// reinforcement along the wall, and the factor of the worst slip circle over its centre.
std::vector<Figure> figures(const Project& project, const Job& job, const Outcome& outcome);

}  // namespace ostrel::host
