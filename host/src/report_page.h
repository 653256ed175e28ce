#pragma once
/// @file  The report of a run: one HTML page that needs nothing else. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "analysis.h"
#include "bilingual.h"
#include "project.h"

#include <string>

namespace ostrel::host {

/// What the page shows: chapters of blocks (see report_block.h) and figures by their ids.
OrderedJson report_data(const Project& project, const Job& job, const Outcome& outcome,
                        Language language);

/// The page with its data, style, scripts and drawings inside. It fetches nothing.
/// @param language  in which it opens; it holds both
std::string report_page(const Project& project, const Job& job, const Outcome& outcome,
                        Language language);

}  // namespace ostrel::host
