#pragma once
/// @file  All results of a run as tables in engineering units, for every form of export. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// Columns are named for programs, with their unit at the end. Displacements count positive towards
// the excavation.

#include "analysis.h"
#include "project.h"
#include "texts.h"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace ostrel::host {

/// One of a few things: for programs, as "anchor_tendon", and for people, in their language.
struct CodedText {
  std::string code;
  std::string words;
};

/// Nothing, a text, one of a few things, a number or yes and no. A number that is not finite counts
/// as nothing.
using TableCell = std::variant<std::monostate, std::string, CodedText, double, bool>;

struct ResultTable {
  std::string subject;  ///< as "springs"
  int combination = 0;  ///< its number, 0 for all of them
  std::string combination_name = {};
  std::vector<std::string_view> columns;
  std::vector<std::vector<TableCell>> rows = {};
};

/// Of all combinations: "summary", "verifications", "sections", "reinforcement", "anchors" and
/// "equilibrium". Then of each that was solved: "wall", "springs" and "pressures".
/// @param texts  for the places of verifications and the words of what has a code
std::vector<ResultTable> result_tables(const Project& project, const Job& job,
                                       const Outcome& outcome, const Texts& texts);

/// A table as comma-separated values. Yes and no are 1 and 0, and codes stand without their words.
std::string csv_of(const ResultTable& table);

}  // namespace ostrel::host
