#pragma once
/// @file  Counts allocations, for tests; replaces the operator new of the test program
// SPDX-License-Identifier: Apache-2.0

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace ostrel::testing {

/// Sanitizers bring an operator new of their own, and nothing is counted there.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define OSTREL_TESTS_ARE_SANITIZED
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define OSTREL_TESTS_ARE_SANITIZED
#endif

#if defined(OSTREL_TESTS_ARE_SANITIZED)
inline constexpr bool allocations_are_counted = false;
#else
inline constexpr bool allocations_are_counted = true;
#endif

/// Allocations through operator new since the program began.
inline std::atomic<long> allocations{0};

/// Counts from its construction on.
class AllocationCount {
public:
  AllocationCount() : before_(allocations.load()) {}
  long since() const { return allocations.load() - before_; }

private:
  long before_;
};

}  // namespace ostrel::testing

#if !defined(OSTREL_TESTS_ARE_SANITIZED)

// Weak, so that several files of a program may include this header.
__attribute__((weak)) void* operator new(std::size_t size) {
  ++ostrel::testing::allocations;
  if (void* memory = std::malloc(size > 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}
__attribute__((weak)) void operator delete(void* memory) noexcept {
  std::free(memory);
}
__attribute__((weak)) void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

#endif
