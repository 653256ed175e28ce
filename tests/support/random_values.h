#pragma once
/// @file  Random contents for the fields of records, for tests
// SPDX-License-Identifier: Apache-2.0

#include <cmath>
#include <cstddef>
#include <random>
#include <string>

namespace ostrel::testing {

/// Values from a seed: the same at every run on every machine.
class RandomValues {
public:
  explicit RandomValues(unsigned int seed) : engine_(seed) {}

  /// A finite number of either sign, its size between 2^-40 and 2^40.
  double number() {
    const double fraction = 0.5 + static_cast<double>(engine_()) * 0x1p-33;  // in [0.5, 1)
    const double size = std::ldexp(fraction, integer(-39, 40));
    return engine_() % 2 == 0 ? size : -size;
  }

  /// An integer in [least, greatest].
  int integer(int least, int greatest) {
    const auto span = static_cast<unsigned long long>(static_cast<long long>(greatest) - least) + 1;
    return static_cast<int>(least + static_cast<long long>(engine_() % span));
  }

  /// Up to 20 bytes of any value.
  std::string text() {
    std::string bytes(static_cast<std::size_t>(integer(0, 20)), '\0');
    for (char& byte : bytes)
      byte = static_cast<char>(integer(-128, 127));
    return bytes;
  }

private:
  std::mt19937 engine_;
};

}  // namespace ostrel::testing
