#pragma once
/// @file  What the tables of a run are made of, and what is saved of it. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"
#include "project.h"
#include "summary.h"
#include "texts.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace ostrel::host {

struct CombinationData {
  std::string name;
  pCombinationTypes kind = combUltimate;
  std::optional<Summary> summary;  ///< none where it was not solved
};

/// All that is told of a run, without what it was computed from.
struct RunData {
  std::string name;
  bool is_diaphragm = false;
  double diameter_mm = 0.0;   ///< of a pile
  double thickness_mm = 0.0;  ///< of a diaphragm
  double spacing_m = 0.0;     ///< between pile axes; the width of a panel
  double length_m = 0.0;
  double excavation_depth_m = 0.0;
  std::vector<std::string> anchor_names;  ///< empty for one without a name
  std::vector<CombinationData> combinations;
  bool through = true;               ///< all combinations solved and all verifications made
  std::vector<std::string> notes;    ///< on the standard of the project, in the language of the run
  std::vector<std::string> remarks;  ///< on the project, in the language of the run
  std::vector<std::string> messages;  ///< of and on the analysis, in the language of the run
  xUltimateLimitStates ultimate;
  xServiceabilityLimitStates serviceability;
};

RunData run_data_of(const Project& project, const Job& job, const Outcome& outcome,
                    const Texts& texts);

/// An anchor by its name, or else by its number.
std::string name_of_anchor(const RunData& data, std::size_t place);
std::string name_of_anchor(const Project& project, std::size_t place);

/// A warning for each place of a project that looks odd.
std::vector<std::string> remarks_on(const Project& project, const Texts& texts);

/// Warnings about results: forces out of balance, slip circles on the border of their search.
std::vector<std::string> result_warnings(const Project& project, const Job& job,
                                         const Outcome& outcome, const Texts& texts);

/// What the analysis says, in its language, then the warnings about its results.
std::vector<std::string> messages_of(const Project& project, const Job& job, const Outcome& outcome,
                                     const Texts& texts);

}  // namespace ostrel::host
