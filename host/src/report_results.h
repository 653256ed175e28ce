#pragma once
/// @file  The results of a run, for its report. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"
#include "bilingual.h"
#include "figures.h"
#include "project.h"

#include <vector>

namespace ostrel::host {

/// The largest values of all combinations side by side, with the figures of all of them.
OrderedJson overview_blocks(const Project& project, const Job& job, const Outcome& outcome,
                            const std::vector<Figure>& figures);

/// For each combination its figures, anchors and supports; it says so where one has no result.
OrderedJson combination_blocks(const Project& project, const Job& job, const Outcome& outcome,
                               const std::vector<Figure>& figures);

/// The wall's reinforcement: a section, the stretches of equal reinforcement, diagrams; empty for a
/// wall without.
OrderedJson reinforcement_blocks(const Project& project, const Outcome& outcome,
                                 const std::vector<Figure>& figures);

/// The governing slip circle of each combination and the maps of the factors; empty for none.
OrderedJson stability_blocks(const Outcome& outcome, const std::vector<Figure>& figures);

}  // namespace ostrel::host
