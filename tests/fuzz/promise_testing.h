#pragma once
/// @file  Stops a program that breaks a promise. Room: fuzz tests
// SPDX-License-Identifier: Apache-2.0

#include <cstdio>
#include <cstdlib>

namespace ostrel::fuzz {

inline void promise(bool kept, const char* what) {
  if (kept) return;
  std::fprintf(stderr, "broken promise: %s\n", what);
  std::abort();
}

}  // namespace ostrel::fuzz
