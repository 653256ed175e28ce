#pragma once
/// @file  Why the system refused something, in the language of the program. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "texts.h"

#include <string>
#include <system_error>

namespace ostrel::host {

/// The frequent reasons in the language of `texts`, the others in English: the words of the system
/// itself depend on its locale and its character set. Empty for no error.
std::string reason_of(const std::error_code& error, const Texts& texts);

/// The error that the last call of the system left behind; never none.
std::error_code last_error();

}  // namespace ostrel::host
