#pragma once
/// @file  The language of messages and labels. Room: services
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"

#include <string>

namespace ostrel {

/// Chooses the language of all messages made from now on, "it" (the source language) or "en"; an
/// empty text goes back to what the environment asks for. Label tables that were asked for before
/// keep the language they were made in. It changes the environment of the process: call it before
/// other threads run.
/// @return false when there is no catalogue for `language`; texts then stay Italian
OSTREL_API bool set_language(const std::string& language);

}  // namespace ostrel
