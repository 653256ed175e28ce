#pragma once
/// @file  How much a search of slip circles has to reckon. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "problems.h"
#include "project.h"

namespace ostrel::host {

/// The stripes that the ground is cut into [-]; 0 for a ground without vertices.
double number_of_stripes(const Project& project);

/// The circles around all centres of a search [-].
double number_of_circles(const SlopeInput& slope);

/// Refuses a search that would take the memory or the days of whoever asks for it, most likely by a
/// step or a width in the wrong unit: more than 10 000 stripes, or more than 10^9 slices, which are
/// circles by stripes by the combinations that search. The numbers of the project are sound.
void check_search_size(const Project& project, Problems& problems);

}  // namespace ostrel::host
