#pragma once
/// @file  Whether somebody looks on, and colours where somebody does. Room: host
// SPDX-License-Identifier: Apache-2.0

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

namespace ostrel::host {

/// Whether what is written to `stream` appears on a terminal. Only the standard streams can.
bool is_terminal(const std::ostream& stream);

/// Whether to colour what is written to `stream`: on a terminal that knows more than plain letters
/// (TERM), unless NO_COLOR stands in the environment with any value but an empty one.
bool wants_colour(const std::ostream& stream);

enum class Colour : std::int32_t { red, green, yellow };

std::string coloured(std::string_view text, Colour colour);

}  // namespace ostrel::host
