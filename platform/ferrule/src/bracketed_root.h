#pragma once
/// @file  Roots inside a bracket, found in a bounded number of steps. Library: ferrule
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace Ferrule::internal {

/// A function's value and its derivative.
struct Sample {
  double value = 0.0;
  double slope = 0.0;
};

/// Where the function that grows from f(low) <= 0 to f(high) >= 0 vanishes: Newton's method, which
/// halves the bracket instead wherever a step would leave it or does not halve the one before.
///
/// The ends themselves are not evaluated. Ends where |f| <= tolerance, or where x cannot be told
/// from its neighbours any more; also where f is not a number.
///
/// @param f  gives a `Sample`
template <class Function>
double growing_root(const Function& f, double low, double high, double start, double tolerance) {
  double x = start >= low && start <= high ? start : low + 0.5 * (high - low);
  double step = high - low;
  double step_before = step;
  for (int i = 0; i < 200; ++i) {
    const Sample s = f(x);
    if (!(std::abs(s.value) > tolerance)) return x;
    (s.value < 0.0 ? low : high) = x;
    double next = x - s.value / s.slope;
    if (std::abs(next - x) <= 4e-16 * std::abs(x)) return x;
    if (!(next > low && next < high && 2.0 * std::abs(next - x) <= std::abs(step_before))) {
      next = low + 0.5 * (high - low);
    }
    step_before = step;
    step = next - x;
    if (!(std::abs(step) > 1e-16 * std::abs(x))) return next;
    x = next;
  }
  return x;
}

/// Where f vanishes between a and b, at which it has the values fa and fb of opposite signs:
/// inverse quadratic interpolation where it may be trusted, halving elsewhere.
///
/// Ends where |f| <= tolerance or where the bracket is narrower than `narrowest`; returns the end
/// of it with the smaller |f|.
///
/// @param narrowest  gives a width, asked after each evaluation of f
/// @source Chandrupatla (1997), Advances in Engineering Software 28, 145
template <class Function, class Width>
double sign_change(const Function& f, double a, double fa, double b, double fb, double tolerance,
                   const Width& narrowest) {
  double c = a;
  double fc = fa;
  double part = 0.5;
  for (int i = 0; i < 200; ++i) {
    const double x = a + part * (b - a);
    const double fx = f(x);
    if (std::signbit(fx) == std::signbit(fa)) {
      c = a;
      fc = fa;
    } else {
      c = b;
      fc = fb;
      b = a;
      fb = fa;
    }
    a = x;
    fa = fx;
    const bool a_is_better = std::abs(fa) <= std::abs(fb);
    const double best = a_is_better ? std::abs(fa) : std::abs(fb);
    const double narrow = narrowest() / std::abs(b - a);
    if (!(best > tolerance && narrow < 0.5)) return a_is_better ? a : b;
    const double xi = (a - b) / (c - b);
    const double phi = (fa - fb) / (fc - fb);
    part = 0.5;
    if (phi * phi < xi && (1.0 - phi) * (1.0 - phi) < 1.0 - xi) {
      part = fa / (fb - fa) * (fc / (fb - fc))
           + (c - a) / (b - a) * (fa / (fc - fa)) * (fb / (fc - fb));
    }
    part = std::clamp(part, narrow, 1.0 - narrow);
  }
  return a;
}

/// The width at which doubles of the size of 1 cannot be told apart any more.
inline double finest() {
  return 1e-15;
}

/// The angle between -pi/2 and pi/2 at which f, which grows through zero there, vanishes. It is
/// looked for from 0 outwards, in steps that grow.
///
/// @param f_zero  f(0)
/// @param pace    about how fast f grows, for the first step
/// @param narrowest  as above
/// @return nothing when f has no change of sign on the side to which it points, or is not a number
template <class Function, class Width>
std::optional<double> turning_root(const Function& f, double f_zero, double pace, double tolerance,
                                   const Width& narrowest) {
  constexpr double right_angle = std::numbers::pi / 2.0;
  constexpr double least_step = 1e-7;
  double a = 0.0;
  double fa = f_zero;
  if (std::abs(fa) <= tolerance) return a;
  double step = std::copysign(std::max(least_step, std::abs(fa / pace)), -fa);
  while (true) {
    const double b = std::clamp(a + step, -right_angle, right_angle);
    const double fb = f(b);
    if (std::isnan(fb)) return std::nullopt;
    if (std::signbit(fb) != std::signbit(fa)) {
      return sign_change(f, a, fa, b, fb, tolerance, narrowest);
    }
    if (!(std::abs(b) < right_angle)) return std::nullopt;
    step = 2.0 * (b - a);
    a = b;
    fa = fb;
  }
}

}  // namespace Ferrule::internal
