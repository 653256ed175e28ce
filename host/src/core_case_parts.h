#pragma once
/// @file  The records of a case: soil, wall, load conditions, combinations. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "field_reader.h"

#include <ostrel/load_combination.h>
#include <ostrel/load_condition.h>
#include <ostrel/soil_props.h>
#include <ostrel/wall.h>

#include <osg/ref_ptr>

namespace ostrel::host {

/// @name One record each, in the library's own units; what is wrong is told
///@{
xSoilProps read_core_soil(const ValueReader& value);
osg::ref_ptr<xPile_Sheetpiling> read_core_wall(const ValueReader& value);
xLoadCond read_core_condition(const ValueReader& value);
xLoadComb read_core_combination(const ValueReader& value);
///@}

}  // namespace ostrel::host
