#pragma once
/// @file  Random bits for the fields of records, for tests
// SPDX-License-Identifier: Apache-2.0

#include <bit>
#include <cstdint>
#include <random>
#include <string>

namespace ostrel::testing {

/// Values of any bits, for stored forms that keep every bit; the same at each run.
class RandomBits {
public:
  explicit RandomBits(std::uint64_t seed) : engine_(seed) {}

  std::uint64_t bits() { return engine_(); }
  double number() { return std::bit_cast<double>(bits()); }  ///< also NaN, infinite, denormal
  std::int32_t integer() { return static_cast<std::int32_t>(bits() >> 32U); }
  std::uint32_t natural() { return static_cast<std::uint32_t>(bits() >> 32U); }
  std::int64_t id() { return static_cast<std::int64_t>(bits()); }
  bool flag() { return (bits() >> 63U) != 0; }
  std::size_t below(std::size_t limit) { return bits() % limit; }

  /// Up to 20 bytes of any value, zero included.
  std::string text() {
    std::string bytes(below(21), '\0');
    for (char& byte : bytes)
      byte = static_cast<char>(bits() >> 56U);
    return bytes;
  }

private:
  std::mt19937_64 engine_;
};

}  // namespace ostrel::testing
