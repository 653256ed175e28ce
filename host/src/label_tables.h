#pragma once
/// @file  The label tables of the library, filled before threads run. Room: host
// SPDX-License-Identifier: Apache-2.0

namespace ostrel::host {

/// Asks for every label table of the library once. They fill themselves when they are asked for
/// first, in the language in force, and no lock guards that: call this after the language is chosen
/// and before other threads analyse anything.
void fill_label_tables();

}  // namespace ostrel::host
