#pragma once
/// @file  Colours for the verdicts in printed tables. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "texts.h"

#include <string>

namespace ostrel::host {

/// The text with the verdict at the end of each line in colour: green where a verification is
/// satisfied, red where it is not, yellow where that could not be determined.
std::string with_coloured_verdicts(const std::string& text, const Texts& texts);

}  // namespace ostrel::host
