#pragma once
/// @file  The texts of both languages. Room: host tests
// SPDX-License-Identifier: Apache-2.0

#include "texts.h"

namespace ostrel::host {

inline const Texts english{Language::english};
inline const Texts italian{Language::italian};

}  // namespace ostrel::host
