// SPDX-License-Identifier: Apache-2.0
#include "soil/surcharge_laws.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ostrel::soil {

namespace {

using std::numbers::pi;

constexpr double same_place = 1e-4;  // two places nearer than this are the same [mm]
constexpr double near_load = 0.4;    // a load nearer than this part of the height is near [-]

double square(double x) {
  return x * x;
}

double cube(double x) {
  return x * x * x;
}

// The angle between the wall and the line from the depth `z` to a place on the ground.
double sight_angle(double distance, double z) {
  if (std::abs(distance) < same_place) return 0.0;
  if (std::abs(z) < same_place) return pi / 2.0;
  return std::atan(distance / z);
}

}  // namespace

double strip_influence(double position, double extension, double z) {
  const double a1 = sight_angle(position, z);
  const double a2 = sight_angle(position + extension, z);
  const double b = a2 - a1;
  const double m = a1 + b / 2.0;
  return b - std::cos(2.0 * m) * std::sin(b);
}

double line_influence(double position, double height, double z) {
  const double m = position / height;
  const double n = z / height;
  if (m < near_load) return 0.203 * n / (height * square(square(n) + 0.16));
  return 4.0 / (pi * height) * square(m) * n / square(square(n) + square(m));
}

double point_influence(double position, double height, double z) {
  const double m = position / height;
  const double n = z / height;
  if (m < near_load) return 0.28 / cube(square(n) + 0.16) * square(n);
  return 1.77 * square(m) / cube(square(m) + square(n)) * square(n);
}

double point_spread(double position, double spacing) {
  constexpr int steps = 100;
  constexpr double angle_of_zero = 1.427996660722633;  // pi / 2.2
  const double reach = std::min(spacing / 2.0, position * std::tan(angle_of_zero));
  const double dy = reach / steps;
  double sum = 0.0;
  for (int i = 0; i < steps; ++i) {
    sum += square(std::cos(1.1 * std::atan((i * dy + dy / 2.0) / position)));
  }
  return 2.0 * sum * dy;
}

}  // namespace ostrel::soil
