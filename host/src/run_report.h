#pragma once
/// @file  What `ostrel run` prints. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "run_data.h"
#include "texts.h"

#include <string>

namespace ostrel::host {

/// Name and geometry of the job, a table for each combination, and the verifications; none of its
/// lines is wider than a terminal. A combination without a result says so.
std::string run_report(const RunData& data, const Texts& texts);

}  // namespace ostrel::host
