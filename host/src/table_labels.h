#pragma once
/// @file  Headings of the tables of results for people. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "texts.h"

#include <string_view>

namespace ostrel::host {

/// The heading of a column of `ResultTable` with its unit, empty for a name that is none.
std::string_view column_label(std::string_view column, const Texts& texts);

/// The title of a table, likewise.
std::string_view subject_label(std::string_view subject, const Texts& texts);

}  // namespace ostrel::host
