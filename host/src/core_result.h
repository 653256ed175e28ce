#pragma once
/// @file  All results of an analysis as JSON in the library's own units. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"

#include <nlohmann/json.hpp>

namespace ostrel::host {

/// The result tree: messages, layers, mesh, and all of each combination. Numbers that are not
/// finite are null.
nlohmann::ordered_json core_result(const Outcome& outcome);

}  // namespace ostrel::host
