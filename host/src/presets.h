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
#include <string_view>
#include <vector>

namespace ostrel::host {

/// The standards that the program carries.
const nlohmann::json& built_in_presets();

/// The standards of a file by its text. Where anything is wrong in it, tells it and returns nothing.
std::optional<nlohmann::json> read_presets(std::string_view text, Problems& problems);

/// What an expansion did.
struct Expansion {
  std::string standard;            ///< empty where the project names none, or a wrong one
  std::vector<std::string> added;  ///< names of the combinations
};

/// Writes the combinations of the project's standard into it, and takes the field `standard` out.
///
/// Those of the file stand first and win: one of the same name replaces that of the standard. A
/// verification whose part the project lacks (no anchors, no water, `slope` false) is left out, and
/// so is a combination without verifications, but for those of serviceability; seismic ones need the
/// block `seismic`. A comment tells the clause of every factor, and `to_be_confirmed` those that
/// nobody has compared with the standard. An unknown standard is told, and remarked upon are a name
/// that looks like one of the standard, and circles that `slope` false leaves out. The project may
/// be wrong anywhere else.
Expansion expand_presets(nlohmann::json& project, const nlohmann::json& presets,
                         Problems& problems);

}  // namespace ostrel::host
