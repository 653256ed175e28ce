#pragma once
/// @file  How bars and stirrups read in a report. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/reinforcement_bars.h"

#include <string>

namespace ostrel::structural {

/// `bars` as "4D20": number, `prefix` (null for none), diameter in whole mm; empty for a group
/// without a section.
std::string bars_text(const xReinforcementBar& bars, const char* prefix);

/// Both parts with "+" between them; an empty one leaves no "+".
std::string joined(const std::string& first, const std::string& second);

/// One stirrup at a distance, as "1D8/20": "1", `prefix` (null for none), the diameter in whole mm,
/// and the step [mm] times `factor` [-], truncated to two decimals. A value within 1e-9 of a whole
/// hundredth is that hundredth, so that 290 mm read as 0.29 m.
std::string stirrup_text(const xBracket& stirrup, const char* prefix, double factor);

}  // namespace ostrel::structural
