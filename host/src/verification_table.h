#pragma once
/// @file  The table of all verifications, and what is not satisfied. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "run_data.h"
#include "texts.h"

#include <string>

namespace ostrel::host {

/// One row for each verification, with its worst factor, then what the library says of those that
/// are not satisfied.
std::string verification_table(const RunData& data, const Texts& texts);

/// One line for each verification whose factor is below `limit`; empty for none.
std::string lines_below(const RunData& data, double limit, const Texts& texts);

}  // namespace ostrel::host
