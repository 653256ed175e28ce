#pragma once
/// @file  How much memory a piece of code asks for at once. Tests of: tallow
// SPDX-License-Identifier: Apache-2.0

#include <cstddef>

/// Watches the requests for memory that this thread makes while the object lives.
class LargestAllocation {
public:
  LargestAllocation();
  ~LargestAllocation();
  LargestAllocation(const LargestAllocation&) = delete;
  LargestAllocation& operator=(const LargestAllocation&) = delete;

  std::size_t bytes() const;  ///< the largest single request so far
};
