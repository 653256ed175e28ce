#pragma once
/// @file  The verifications of a run, for its report. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"
#include "bilingual.h"

namespace ostrel::host {

/// One line that says whether all verifications are satisfied, and which of them governs, in which
/// combination and where. Null where none was made.
OrderedJson verdict_block(const Outcome& outcome);

/// Each verification with its smallest factor; then those of each combination, the worst first,
/// with their factor, place and outcome. A text as well as a colour tells the outcome.
OrderedJson verification_blocks(const Outcome& outcome);

}  // namespace ostrel::host
