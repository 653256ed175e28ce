// SPDX-License-Identifier: Apache-2.0
#include "tallow/largest_allocation_testing.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

thread_local bool watching = false;
thread_local std::size_t largest = 0;

}  // namespace

LargestAllocation::LargestAllocation() {
  largest = 0;
  watching = true;
}

LargestAllocation::~LargestAllocation() {
  watching = false;
}

std::size_t LargestAllocation::bytes() const {
  return largest;
}

void* operator new(std::size_t size) {
  if (watching) largest = std::max(largest, size);
  void* memory = std::malloc(std::max<std::size_t>(size, 1));
  if (!memory) throw std::bad_alloc();
  return memory;
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
