#pragma once
/// @file  The version of the library. Technical header
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"

namespace ostrel {

/// The version as "major.minor.patch", of the library that is loaded.
OSTREL_API const char* version();

}  // namespace ostrel
