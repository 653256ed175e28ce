#pragma once
/// @file  What `ostrel run` prints. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"
#include "project.h"
#include "texts.h"

#include <string>

namespace ostrel::host {

/// Name and geometry of the job, then a table for each combination; none of its lines is wider than
/// a terminal. A combination without a result says so.
std::string run_report(const Project& project, const Job& job, const Outcome& outcome,
                       const Texts& texts);

}  // namespace ostrel::host
