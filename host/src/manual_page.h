#pragma once
/// @file  The manual page of the program. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "command_description.h"
#include "texts.h"

#include <string>

namespace ostrel::host {

/// The page for section 1 in roff, in the language of `texts`, which is that of the descriptions.
std::string manual_page(const CommandDescription& program, const Texts& texts);

}  // namespace ostrel::host
