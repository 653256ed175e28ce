#pragma once
/// @file  Writes files that are either whole or not there. Room: host
// SPDX-License-Identifier: Apache-2.0

#include <string>
#include <string_view>
#include <system_error>

namespace ostrel::host {

/// Writes `contents` under a temporary name beside `path` and renames it when all of it is on the
/// disk: a reader finds the old file or the new one, never a part. A `path` that is no regular file
/// (a terminal, a pipe) is written to directly.
/// @return the error for which it could not be written; then nothing is left behind
std::error_code write_whole(const std::string& path, std::string_view contents);

/// Whether a file could be made in the folder of `path`, tried with an empty temporary one.
/// @return the error for which not
std::error_code try_writing(const std::string& path);

}  // namespace ostrel::host
