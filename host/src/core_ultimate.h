#pragma once
/// @file  The verifications of the ultimate limit states as JSON in the library's units. Room: host
// SPDX-License-Identifier: Apache-2.0

#include <ostrel/ultimate_limit_states.h>

#include <nlohmann/json.hpp>

namespace ostrel::host {

/// One block for each verification, then the smallest factor of all and the texts of what is not
/// satisfied, in the language in force.
nlohmann::ordered_json core_ultimate(xUltimateLimitStates ultimate);

}  // namespace ostrel::host
