#pragma once
/// @file  Messages of the library in both languages. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "bilingual.h"

#include <ostrel/error.h>

namespace ostrel::host {

/// Puts the messages of the library into `language`. The first call asks it for the texts of its
/// codes in both languages before. No lock guards the language of the process: call this before
/// other threads run.
void choose_language(Language language);

/// A message in both languages, whichever it was made in. It stays as it is where its form is not
/// known, or where no language was chosen before. It only reads: threads may call it.
Both in_both(const xVeldError& message);

}  // namespace ostrel::host
