#pragma once
/// @file  How the soil springs of a stretch of the embedded wall are limited. Room: soil
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"

#include <cstdint>
#include <map>
#include <string>

/// A stretch of the embedded length and how its springs are limited.
class OSTREL_API xSpringInterval {
public:
  /// Which displacement limits a spring.
  enum QlimSpring : std::int32_t {
    limitUltimate = 0,  ///< the one at the limit load
    limitPassive = 1,   ///< the one at the passive pressure
    limitSmaller = 2,   ///< the smaller of both
  };

  xSpringInterval() = default;
  xSpringInterval(double from, double to, QlimSpring limit, double multiplier)
      : type(limit), start(from), end(to), factor(multiplier) {}

  /// Label of each limit; made at the first use and kept in that language.
  static std::map<QlimSpring, std::string>* QlimSpringypeMap();  // sic: the interface's spelling

  QlimSpring type = limitSmaller;
  double start = 0.0;   ///< where the stretch begins, as a fraction of the embedded length [-]
  double end = 1.0;     ///< where it ends, likewise [-]
  double factor = 1.0;  ///< multiplier of the spring modulus [-]
};
