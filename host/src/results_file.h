#pragma once
/// @file  The file in which a run saves its results, and how it is read back. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// 16 bytes that tell the file, the version of its form, a text that holds everything else, and the
// checksum of that text. The text holds what the tables need (`RunData`), then the library's own
// stored forms of the results, the ultimate and the serviceability limit states.

#include "problems.h"
#include "run_data.h"

#include <cstddef>
#include <optional>
#include <string>

namespace ostrel::host {

inline constexpr std::size_t max_saved_bytes = 1u << 30u;  ///< larger files are not read

struct SavedRun {
  RunData data;
  xSheetpilingRes results;
};

std::string saved_bytes(const RunData& data, const xSheetpilingRes& results);

/// Reads what `saved_bytes` gave. A file of another kind, of a later version, cut or changed is told
/// and gives nothing.
std::optional<SavedRun> read_saved(std::string bytes, Problems& problems);

}  // namespace ostrel::host
