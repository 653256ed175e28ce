#pragma once
/// @file  All results of an analysis as JSON in the library's own units. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"

#include <nlohmann/json.hpp>

namespace ostrel::host {

/// The result tree: messages, layers, mesh, all of each combination, the verifications of the
/// ultimate limit states, which are null where the run did not get to them, and that of the
/// displacements, which is null where the run did not go through. Numbers that are not finite are
/// null.
nlohmann::ordered_json core_result(const Outcome& outcome);

}  // namespace ostrel::host
