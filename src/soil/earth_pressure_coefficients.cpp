// SPDX-License-Identifier: Apache-2.0
#include "soil/earth_pressure_coefficients.h"

#include <cmath>

namespace ostrel::soil {

namespace {

double square(double x) {
  return x * x;
}

double coulomb_active(const WallAngles& angles) {
  const auto& [phi, delta, theta, beta] = angles;
  const double A = std::cos(phi - theta);
  const double B = std::cos(theta);
  const double C = std::cos(delta + theta);
  if (!(phi > beta)) return square(A) / (square(B) * C);
  const double r =
      std::sqrt(std::sin(delta + phi) * std::sin(phi - beta) / (std::cos(theta - beta) * C));
  return square(A) / (square(B) * C * square(1.0 + r));
}

double coulomb_passive(const WallAngles& angles) {
  const auto& [phi, delta, theta, beta] = angles;
  const double A = std::cos(phi + theta);
  const double B = std::cos(theta);
  const double C = std::cos(theta - delta);
  const double r =
      std::sqrt(std::sin(delta + phi) * std::sin(phi + beta) / (std::cos(theta - beta) * C));
  return square(A) / (square(B) * C * square(1.0 - r));
}

double mononobe_okabe_active(const WallAngles& angles, double psi) {
  const auto& [phi, delta, theta, beta] = angles;
  const double N = square(std::cos(phi - theta - psi));
  const double C = std::cos(delta + theta + psi);
  if (!(phi - psi > beta)) return N / (C * std::cos(psi) * square(std::cos(theta)));
  const double r =
      std::sqrt(std::sin(phi - beta - psi) * std::sin(phi + delta) / (std::cos(theta - beta) * C));
  return N / (std::cos(psi) * square(std::cos(theta)) * C * square(1.0 + r));
}

double mononobe_okabe_passive(const WallAngles& angles, double psi) {
  const auto& [phi, delta, theta, beta] = angles;
  const double N = square(std::cos(phi + theta - psi));
  const double C = std::cos(delta - theta + psi);
  const double r =
      std::sqrt(std::sin(phi + beta - psi) * std::sin(phi + delta) / (std::cos(beta - theta) * C));
  return N / (std::cos(psi) * square(std::cos(theta)) * C * square(1.0 - r));
}

}  // namespace

double at_rest(double phi, double poisson_ratio, double ocr, double theta, double beta) {
  const double level = std::abs(phi) < no_friction ? poisson_ratio / (1.0 - poisson_ratio)
                                                   : (1.0 - std::sin(phi)) * std::sqrt(ocr);
  const double sloping = level * (1.0 + std::sin(beta));
  return std::sqrt(square(sloping) * square(std::cos(theta)) + square(std::sin(theta)));
}

double rankine(bool active, double phi, double beta) {
  if (std::abs(phi) < no_friction) return 1.0;
  const double c = std::cos(beta);
  const double r = std::sqrt(square(c) - square(std::cos(phi)));
  return active ? c * (c - r) / (c + r) : c * (c + r) / (c - r);
}

double coulomb(bool active, const WallAngles& angles, double zero_friction) {
  if (std::abs(angles.phi) < zero_friction) return 1.0;
  return active ? coulomb_active(angles) : coulomb_passive(angles);
}

double seismic_inclination(double kh, double kv) {
  return std::atan(kh / (1.0 + kv));
}

double mononobe_okabe(bool active, const WallAngles& angles, double psi) {
  if (std::abs(angles.phi) < no_friction) return 1.0;
  return active ? mononobe_okabe_active(angles, psi) : mononobe_okabe_passive(angles, psi);
}

}  // namespace ostrel::soil
