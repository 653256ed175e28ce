#pragma once
/// @file  What came of one project among many. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "texts.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::host {

enum class BatchVerdict : std::int32_t {
  not_started,
  satisfied,       ///< every verification that was made
  not_satisfied,   ///< at least one has a factor below 1
  not_determined,  ///< the worst one has no number
  nothing_verified,
  below_limit,  ///< a factor is below the one that was asked for
  analysis_failed,
  wrong_file,
  not_written
};

/// One project of a batch, when it is through.
struct BatchResult {
  std::string file;
  BatchVerdict verdict = BatchVerdict::not_started;
  std::string factor;       ///< the worst, as tables show it; empty where nothing was verified
  std::string governs;      ///< the verification that it belongs to
  double seconds = 0.0;     ///< from reading the file to writing its results
  std::string folder = {};  ///< that holds its results; empty where none were written
  std::string messages;     ///< one a line, each with the name of the file
};

/// Whether the batch as a whole fails by it.
bool has_failed(BatchVerdict verdict);

/// For people, in the language of `texts`.
std::string_view name_of(BatchVerdict verdict, const Texts& texts);
/// For programs, as "not_satisfied".
std::string_view code_of(BatchVerdict verdict);

/// A row for each project, then how many there are of each outcome. Where a folder of results is not
/// named after its project alone, the folder of each stands beside it.
/// @param colours  red for what failed, yellow for what is not satisfied, green for the rest
std::string batch_table(const std::vector<BatchResult>& results, const Texts& texts, bool colours);

}  // namespace ostrel::host
