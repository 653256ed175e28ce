#pragma once
/// @file  From the bytes of a file to a JSON value, safely. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "problems.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace ostrel::host {

inline constexpr std::size_t max_file_bytes = 32u << 20u;  ///< larger files are not read
inline constexpr int max_json_depth = 64;                  ///< deeper nesting is refused

/// Reads a whole file. On failure, and for one larger than `max_bytes`, tells why and returns nothing.
std::optional<std::string> read_file(const std::string& file, Problems& problems,
                                     std::size_t max_bytes = max_file_bytes);

/// Turns the bare words NaN, Infinity and -Infinity outside of texts into texts of the same
/// letters, so that a strict parser accepts what many programs write.
std::string quote_words_for_numbers(std::string_view text);

/// Parses JSON. Broken text, nesting beyond `max_json_depth` and a field that stands twice in one
/// object are told; then nothing is returned.
std::optional<nlohmann::json> parse_json(std::string_view text, Problems& problems);

/// The line, from 1 up, on which the value of each path begins; a path that the text does not hold
/// gets the line of the nearest object or list around it.
std::map<std::string, std::size_t> find_lines(std::string_view text,
                                              const std::set<std::string>& paths);

/// `path` with the name of a field behind it.
std::string child_path(const std::string& path, const std::string& field);
/// `path` with the index of an entry behind it.
std::string child_path(const std::string& path, std::size_t index);

}  // namespace ostrel::host
