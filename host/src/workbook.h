#pragma once
/// @file  The results as a workbook with charts (XLSX). Room: host
// SPDX-License-Identifier: Apache-2.0

#include "result_tables.h"
#include "texts.h"

#include <string>
#include <vector>

namespace ostrel::host {

/// The bytes of a file, or why it could not be made.
struct Workbook {
  std::string bytes;
  std::string problem;  ///< in English; empty for none
};

/// A sheet for each table with headings in the language of `texts`, words where other exports have
/// codes, and charts over the depth on
/// those of a combination: moment, shear and displacement along the wall, pressure of the springs
/// against its limit, pressures above the excavation.
/// @param title  of the document
Workbook workbook_of(const std::string& title, const std::vector<ResultTable>& tables,
                     const Texts& texts);

}  // namespace ostrel::host
