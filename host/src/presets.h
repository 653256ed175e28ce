#pragma once
/// @file  Combinations that the partial factors of a standard make. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// The numbers stand in a data file, each with its clause: one standard has sets of factors on
// actions, on soils and on resistances, and combinations that name a set of each.

#include "problems.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <string>
#include <vector>

namespace ostrel::host {

/// The standards that the program carries.
const nlohmann::json& built_in_presets();

/// Reads a file of standards. On failure tells why and returns nothing.
std::optional<nlohmann::json> read_presets(const std::string& file, Problems& problems);

/// What an expansion did.
struct Expansion {
  std::string standard;                  ///< empty where the project names none, or a wrong one
  std::vector<std::string> added;        ///< names of the combinations
  std::vector<std::string> unconfirmed;  ///< clauses of numbers that nobody has confirmed
};

/// Writes the combinations of the project's standard into it, and takes the field `standard` out.
///
/// Those of the file stand first and win: one of the same name replaces that of the standard. A
/// verification whose part the project lacks (no anchors, no water, `slope` false) is left out, and
/// so is a combination without verifications, but for those of serviceability; seismic ones need the
/// block `seismic`. An unknown standard is told. The project may be wrong anywhere else.
Expansion expand_presets(nlohmann::json& project, const nlohmann::json& presets,
                         Problems& problems);

}  // namespace ostrel::host
