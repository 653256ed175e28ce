#pragma once
/// @file  Readers of the parts of a project file. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// Each reads one field of the project; what is wrong is told and reads as something harmless.

#include "field_reader.h"
#include "project.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ostrel::host {

/// Positions of named entries, to look references up.
using Names = std::map<std::string, std::size_t>;

WallInput read_wall(const ValueReader& value);
std::vector<SoilInput> read_soils(const ValueReader& value);
GroundInput read_ground(const ValueReader& value, const Names& soils);
WaterInput read_water(const ValueReader& value);
AnchorInput read_anchor(const ValueReader& value);
LoadInput read_load(const ValueReader& value);
/// `site` stands where a combination takes its coefficients from.
CombinationInput read_combination(const ValueReader& value, const Names& loads,
                                  const std::optional<SeismicSiteInput>& site);
SeismicSiteInput read_seismic_site(const ValueReader& value);
/// `false` for none; what is not given comes from the geometry of the project, which has been read.
std::optional<SlopeInput> read_slope(const ValueReader& value, const Project& project);
/// Slip circles chosen from the geometry.
SlopeInput default_slope(const Project& project);

/// @name Names in combinations, in the order of the library's numbers
///@{
const std::vector<std::string>& soil_factor_names();
const std::vector<std::string>& resistance_factor_names();
const std::vector<std::string>& combination_types();
const std::vector<std::string>& verification_names();
///@}

/// Tells that another entry before this one has the same name.
void refuse_repeated_name(const ValueReader& entry, const std::string& name);

/// The names of `entries` with their positions; an empty one was refused before. A name that
/// stands twice is told.
template <class Entry>
Names names_of(const std::vector<Entry>& entries, const std::vector<ValueReader>& values) {
  Names names;
  for (std::size_t i = 0; i < entries.size() && i < values.size(); ++i) {
    if (entries[i].name.empty()) continue;
    if (!names.emplace(entries[i].name, i).second) {
      refuse_repeated_name(values[i], entries[i].name);
    }
  }
  return names;
}

/// Names in quotation marks, with commas between them.
std::string quoted_list(const std::vector<std::string>& names);

/// What a message says of the names that may stand in a place.
std::string known_names(const Names& names, const Texts& texts);

/// The entry that the text of `value` names; 0 where there is none, which is told.
std::size_t position_of(const ValueReader& value, const Names& names);

}  // namespace ostrel::host
