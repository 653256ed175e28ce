// SPDX-License-Identifier: Apache-2.0
#include "sorrel/cross_section.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;

/// The dimensions that make a section [mm]: their fourth powers are ordinary doubles.
constexpr double smallest_dimension = 1e-60;
constexpr double largest_dimension = 1e60;

bool is_dimension(double extent) {
  return extent >= smallest_dimension && extent <= largest_dimension;
}

/// Riemann's zeta at 5, the sum of 1 / n⁵ over n = 1, 2, ...
constexpr double zeta_5 = 1.0369277551433699;

/// Torsion constant of a rectangle with the full sides l >= s [mm⁴]:
///
///     J = l s³ (1/3 - 64/pi⁵ (s/l) S),  S = sum over odd n of tanh(n pi l / (2 s)) / n⁵
///
/// With tanh(x) = 1 - 2 / (e^(2x) + 1), and 31/32 zeta(5) for the sum of 1 / n⁵ over odd n,
///
///     S = 31/32 zeta(5) - 2 sum over odd n of q^n / (n⁵ (1 + q^n)),  q = e^(-pi l / s)
///
/// where q <= 0.0432 makes the term of n = 11 less than 1e-20. Of a thin strip q vanishes and
/// nothing overflows.
double rectangle_torsion(double l, double s) {
  double sum = 31.0 / 32.0 * zeta_5;
  for (int n = 1; n <= 9; n += 2) {
    const double power = std::exp(-n * pi * l / s);
    sum -= 2.0 * power / (std::pow(n, 5) * (1.0 + power));
  }
  return l * s * s * s * (1.0 / 3.0 - 64.0 / std::pow(pi, 5) * (s / l) * sum);
}

/// sqrt(second_moment / area) [mm], 0 without an area.
double radius_of_gyration(double second_moment, double area) {
  if (!(area > 0.0)) return 0.0;
  return std::sqrt(second_moment / area);
}

/// pi r^exponent / divisor, 0 for what is no radius.
double circle_value(double radius, int exponent, double divisor) {
  if (!is_dimension(radius)) return 0.0;
  return pi * std::pow(radius, exponent) / divisor;
}

/// width depth^exponent / divisor, 0 for what is no rectangle.
double rectangle_value(double width, double depth, int exponent, double divisor) {
  if (!(is_dimension(width) && is_dimension(depth))) return 0.0;
  return width * std::pow(depth, exponent) / divisor;
}

}  // namespace

void xCrossSecProp::computeProp() {
  values_ = {.area = ComputeArea(),
             .jy = ComputeJy(),
             .jz = ComputeJz(),
             .jp = ComputeJp(),
             .jt = ComputeJt(),
             .ry = ComputeRy(),
             .rz = ComputeRz(),
             .wy = ComputeWy(),
             .wz = ComputeWz()};
}

double xCrossSecProp::ComputeJp() const {
  return ComputeJy() + ComputeJz();
}
double xCrossSecProp::ComputeRy() const {
  return radius_of_gyration(ComputeJy(), ComputeArea());
}
double xCrossSecProp::ComputeRz() const {
  return radius_of_gyration(ComputeJz(), ComputeArea());
}

xCircSecProp* xCircSecProp::clone() const {
  return new xCircSecProp(*this);
}
double xCircSecProp::ComputeArea() const {
  return circle_value(Radius, 2, 1.0);
}
double xCircSecProp::ComputeJy() const {
  return circle_value(Radius, 4, 4.0);
}
double xCircSecProp::ComputeJz() const {
  return circle_value(Radius, 4, 4.0);
}
double xCircSecProp::ComputeJt() const {
  return circle_value(Radius, 4, 2.0);
}
double xCircSecProp::ComputeWy() const {
  return circle_value(Radius, 3, 4.0);
}
double xCircSecProp::ComputeWz() const {
  return circle_value(Radius, 3, 4.0);
}

xRectSecProp* xRectSecProp::clone() const {
  return new xRectSecProp(*this);
}
double xRectSecProp::ComputeArea() const {
  return rectangle_value(Second, First, 1, 1.0);
}
double xRectSecProp::ComputeJy() const {
  return rectangle_value(First, Second, 3, 12.0);
}
double xRectSecProp::ComputeJz() const {
  return rectangle_value(Second, First, 3, 12.0);
}
double xRectSecProp::ComputeWy() const {
  return rectangle_value(First, Second, 2, 6.0);
}
double xRectSecProp::ComputeWz() const {
  return rectangle_value(Second, First, 2, 6.0);
}

double xRectSecProp::ComputeJt() const {
  if (!(is_dimension(First) && is_dimension(Second))) return 0.0;
  return rectangle_torsion(std::max(First, Second), std::min(First, Second));
}
