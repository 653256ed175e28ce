// SPDX-License-Identifier: Apache-2.0
#include "driver/fixed_end_reactions.h"

namespace ostrel::driver {

EndReactions fixed_end_force(double along, double across, double a, double length) {
  const double L = length;
  const double P = across;
  const double b = L - a;
  const double L2 = L * L;
  const double L3 = L2 * L;
  return {
      {b * along / L, P * b * b * (2.0 * a + L) / L3,
       (P * L2 * a - 2.0 * P * L * a * a + P * a * a * a) / L2},
      {a * along / L, (3.0 * L - 2.0 * a) * P * a * a / L3, (P * a * a * a - P * L * a * a) / L2}};
}

EndReactions fixed_end_moment(double m, double a, double length) {
  const double L = length;
  const double L2 = L * L;
  const double L3 = L2 * L;
  return {{0.0, (L - a) * 6.0 * m * a / L3, (4.0 * L * m * a - L2 * m - 3.0 * m * a * a) / L2},
          {0.0, (a - L) * 6.0 * m * a / L3, (2.0 * L * m * a - 3.0 * m * a * a) / L2}};
}

}  // namespace ostrel::driver
