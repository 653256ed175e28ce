#pragma once
/// @file  From a project to what the library takes. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"
#include "project.h"

#include <ostrel/soil_layer.h>

#include <vector>

namespace ostrel::host {

/// The input of the library. The project has been checked.
Job to_job(const Project& project);

/// @name Its parts
///@{
/// The soil layers as closed polygons; those by levels end at the excavation on its side.
std::vector<xBoundSoilLayer> to_soil_layers(const Project& project);
osg::ref_ptr<xPile_Sheetpiling> to_wall(const Project& project);
/// The conditions of one load: one for each of its loads on the ground, since the library turns the
/// sign of the pressure each time that a condition brings a further one. Those on the wall go with
/// the first.
std::vector<xLoadCond> to_conditions(const LoadInput& load);
/// With an action for each condition of each load.
xLoadComb to_combination(const CombinationInput& combination, const std::vector<LoadInput>& loads,
                         int index);
///@}

}  // namespace ostrel::host
