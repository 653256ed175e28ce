#pragma once
/// @file  Tables of the verified wall: governing sections and reinforcement. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "texts.h"

#include <ostrel/ultimate_limit_states.h>

#include <string>

namespace ostrel::host {

/// The section with the worst factor, the first of equal ones; null where none was verified.
const xSectionCheck* governing_section(const xBendShearCombResults& combination);

/// The worst section of each combination with its forces and resistances; empty where no section
/// was verified.
std::string section_table(const xStructuralDesign& design, const Texts& texts);

/// The bars and the spiral or the stirrups along the wall, equal neighbours in one line; empty where
/// no section was verified, as the design then holds nothing but the least reinforcement.
std::string reinforcement_table(const xStructuralDesign& design, const Texts& texts);

/// The section of the cap beam and its reinforcement; empty where it was not verified.
std::string cap_beam_table(const TraveResults& beam, const Texts& texts);

/// The bars of a record in words, as "16 Ø20, spiral Ø10/150" of a ring.
std::string reinforcement_text(xReinfCrossSection& record, const Texts& texts);

}  // namespace ostrel::host
