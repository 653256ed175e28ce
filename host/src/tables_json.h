#pragma once
/// @file  All tables of a run in one JSON text, and its published form. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "result_tables.h"

#include <string>
#include <string_view>
#include <vector>

namespace ostrel::host {

/// What of the run stands beside its tables.
struct TablesHead {
  std::string project;                     ///< name
  bool through = true;                     ///< all combinations solved and all verifications made
  std::vector<std::string> messages = {};  ///< on the project, of the analysis and on its results
};

TablesHead head_of(const Project& project, const Job& job, const Outcome& outcome,
                   const Texts& texts);

/// Every table as a list of objects, in engineering units; numbers that are not finite are null.
std::string tables_json(const TablesHead& head, const std::vector<ResultTable>& tables);

/// The JSON Schema (draft 7) of `tables_json`.
std::string_view results_schema();

}  // namespace ostrel::host
