#pragma once
/// @file  The force that the soil could give at each spring. Room: driver
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/fem_results.h"
#include "ostrel/soil_spring.h"

#include <map>

namespace ostrel::driver {

/// Adds to the limit force and moment of each spring what the limit pressure of the soil would put
/// there, so that the force in use can be compared with the force available.
///
/// With q the limit pressure times the spacing, at two neighbouring springs a (lower) and b (upper)
/// the distance L apart:
///
///     limit force    a  (7 q(a) + 3 q(b)) L / 20      b  (7 q(b) + 3 q(a)) L / 20
///     limit moment   a  -(q(b) / 3 + q(a) / 2) L² / 10     b  (q(b) / 2 + q(a) / 3) L² / 10
///
/// These are the nodal loads of a linear pressure on an element, the sign of the moment reversed
/// because the springs are taken upwards. A single spring gets nothing. All forces together are the
/// resultant of the trapezoids.
///
/// @param modulus  the springs; must hold every node of `soil_forces`, or std::out_of_range is thrown
/// @param spacing  of the wall [mm]
void add_soil_limit_forces(const std::map<int, NodeModulus>& modulus, double spacing,
                           std::map<int, Fsoil>& soil_forces);

}  // namespace ostrel::driver
