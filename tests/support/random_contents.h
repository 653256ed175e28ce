#pragma once
/// @file  Random contents of records, the same ones in every run, for tests
// SPDX-License-Identifier: Apache-2.0

#include <cmath>
#include <cstdint>
#include <random>
#include <string>

namespace ostrel::testing {

/// Draws values of the kinds that records are made of. Distributions of the standard library are
/// left out: their results differ from one library to the next.
class RandomContents {
public:
  explicit RandomContents(std::uint64_t seed) : engine_(seed) {}

  std::uint64_t bits() { return engine_(); }
  /// A finite number of either sign with a magnitude from 1e-9 to 1e9.
  double number() {
    const double mantissa = static_cast<double>(bits() >> 11) / 9007199254740992.0;  // [0, 1)
    const double magnitude = std::pow(10.0, static_cast<double>(below(19)) - 9.0);
    return (yes() ? -1.0 : 1.0) * (0.1 + 0.9 * mantissa) * magnitude;
  }
  /// A number of `low` to `high`, both multiples of 2^-10, on the grid of these multiples.
  double on_grid(double low, double high) {
    const auto steps = static_cast<std::uint64_t>((high - low) * 1024.0);
    return low + static_cast<double>(below(steps + 1)) / 1024.0;
  }
  std::uint64_t below(std::uint64_t limit) { return bits() % limit; }  ///< 0 to `limit` - 1
  int whole() { return static_cast<std::int32_t>(bits()); }
  std::int64_t wide() { return static_cast<std::int64_t>(bits()); }
  bool yes() { return (bits() & 1U) != 0; }
  /// Up to 20 bytes of any value.
  std::string text() {
    std::string bytes(below(21), '\0');
    for (char& each : bytes)
      each = static_cast<char>(bits());
    return bytes;
  }

private:
  std::mt19937_64 engine_;
};

}  // namespace ostrel::testing
