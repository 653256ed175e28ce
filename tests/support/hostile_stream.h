#pragma once
/// @file  Damaged streams against the reader of a persisted class, for tests
// SPDX-License-Identifier: Apache-2.0

#include "support/random_bits.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace ostrel::testing {

/// Every stream that ends before `object` is complete must throw.
template <class T>
void expect_cuts_refused(const T& object) {
  const std::string bytes = stored(object);
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    T copy;
    EXPECT_THROW(read_stored(copy, bytes.substr(0, length)), std::runtime_error)
        << length << " bytes of " << bytes.size();
  }
}

/// A stream of `object` with bytes changed at random must end in an exception or in an object that
/// can be stored again.
/// @return the number of streams that threw, out of `tries`
template <class T>
int refused_mutations(const T& object, int tries) {
  const std::string bytes = stored(object);
  RandomBits random(1);
  int refused = 0;
  for (int i = 0; i < tries; ++i) {
    std::string damaged = bytes;
    for (std::size_t changes = 1 + random.below(3); changes > 0; --changes)
      damaged[random.below(damaged.size())] = static_cast<char>(random.bits() >> 56U);
    T copy;
    try {
      read_stored(copy, damaged);
      EXPECT_FALSE(stored(copy).empty());
    } catch (const std::runtime_error&) {
      ++refused;
    } catch (int) {  // a version that is not read any more
      ++refused;
    }
  }
  return refused;
}

}  // namespace ostrel::testing
