// SPDX-License-Identifier: Apache-2.0
#include "geotech/bearing_factors.h"

#include "services/exact.h"

#include <cmath>
#include <numbers>

namespace ostrel::geotech {

namespace {

using std::numbers::pi;

double squared(double x) {
  return x * x;
}

bool has_friction(double phi) {
  return !exactly_equal(phi, 0.0);
}

// The factor of the cohesion that goes with `q`, that of the overburden.
double corresponding(double q, double phi, double N) {
  return q - (1.0 - q) / (std::tan(phi) * N);
}

double bearing_of_cohesion(double Nq, double phi) {
  return has_friction(phi) ? (Nq - 1.0) / std::tan(phi) : nc_without_friction;
}

TermFactors inclination_with_friction(double phi, double c, const InclinedLoad& load, double Nc) {
  const double rest = 1.0 - load.H / (load.area * c / std::tan(phi) + load.V);
  const double q = std::pow(rest, load.m);
  return {.c = corresponding(q, phi, Nc), .q = q, .g = std::pow(rest, load.m + 1.0)};
}

}  // namespace

TermFactors bearing_terzaghi(double phi) {
  const double t = std::tan(phi);
  const double s = std::sin(phi);
  const double Nq = std::exp(pi * t) * (1.0 + s) / (1.0 - s);
  return {.c = bearing_of_cohesion(Nq, phi), .q = Nq, .g = 2.0 * (Nq + 1.0) * t};
}

TermFactors bearing_eurocode7(double phi) {
  const double t = std::tan(phi);
  const double Nq = std::exp(pi * t) * squared(std::tan(pi / 4.0 + phi / 2.0));
  return {.c = bearing_of_cohesion(Nq, phi), .q = Nq, .g = 2.0 * (Nq - 1.0) * t};
}

InclinedLoad load_on_rectangle(double H, double V, double B, double L) {
  return {.H = H, .V = V, .area = B * L, .m = (B / L + 2.0) / (B / L + 1.0)};
}

InclinedLoad load_on_strip(double H, double V, double B) {
  return {.H = H, .V = V, .area = B, .m = 2.0};
}

TermFactors inclination_terzaghi(double phi, double c, const InclinedLoad& load, double Nc) {
  if (has_friction(phi)) return inclination_with_friction(phi, c, load, Nc);
  return {.c = 1.0 - load.m * load.H / (load.area * c * Nc), .q = 1.0, .g = 0.0};
}

TermFactors inclination_eurocode7(double phi, double c, const InclinedLoad& load, double Nc) {
  if (has_friction(phi)) return inclination_with_friction(phi, c, load, Nc);
  const double strength = load.area * c;
  const double Ic = load.H > strength ? 0.5 : (std::sqrt(1.0 - load.H / strength) + 1.0) * 0.5;
  return {.c = Ic, .q = 1.0, .g = 0.0};
}

TermFactors base_factors(double phi, double alpha, double Nc) {
  const double q = squared(1.0 - std::tan(phi) * alpha);
  const double c =
      has_friction(phi) ? corresponding(q, phi, Nc) : 1.0 - 2.0 * alpha / nc_without_friction;
  return {.c = c, .q = q, .g = q};
}

TermFactors shape_terzaghi(double phi, double B, double L, const TermFactors& N) {
  return {.c = N.q / N.c * B / L + 1.0, .q = B / L * std::tan(phi) + 1.0, .g = 1.0 - 0.4 * B / L};
}

TermFactors shape_eurocode7(double phi, double B, double L, double Nq) {
  const double q = std::sin(phi) * B / L + 1.0;
  const double c = has_friction(phi) ? (Nq * q - 1.0) / (Nq - 1.0) : 0.2 * B / L + 1.0;
  return {.c = c, .q = q, .g = 1.0 - 0.3 * B / L};
}

TermFactors depth_factors(double phi, double D, double B, double Nc) {
  const double f = squared(1.0 - std::sin(phi)) * 2.0 * std::tan(phi);
  const bool deep = D > B;
  const double q = deep ? 1.0 + f * std::atan(D / B) : 1.0 + f * D / B;
  if (has_friction(phi)) return {.c = corresponding(q, phi, Nc), .q = q};
  return {.c = deep ? 1.0 + 0.4 * std::atan(D / B) : 1.0 + 0.4 * D / B, .q = q};
}

TermFactors ground_factors(double phi, double beta, double Nc) {
  const double q = std::cos(beta) * squared(1.0 - std::tan(beta));
  const double c =
      has_friction(phi) ? corresponding(q, phi, Nc) : 1.0 - 2.0 * beta / nc_without_friction;
  return {.c = c, .q = q, .g = q / std::cos(beta)};
}

double critical_rigidity_index(double phi, double B, double L) {
  return 0.5 * std::exp((3.3 - 0.45 * B / L) / std::tan(pi / 4.0 - phi / 2.0));
}

double rigidity_index(double phi, double c, double G, double sigma) {
  return G / (c + sigma * std::tan(phi));
}

TermFactors punching_factors(double phi, double B, double L, double Ir, double Nq) {
  if (!has_friction(phi)) {
    return {.c = 0.32 + 0.12 * B / L + 0.6 * std::log10(Ir), .q = 1.0, .g = 1.0};
  }
  const double s = std::sin(phi);
  const double q =
      std::exp((0.6 * B / L - 4.4) * std::tan(phi) + 3.07 * s * std::log10(2.0 * Ir) / (1.0 + s));
  return {.c = corresponding(q, phi, Nq), .q = q, .g = q};
}

TermFactors inertia_factors(double phi, double k) {
  const double t = std::tan(phi);
  const double q = t > k ? std::pow(1.0 - k / t, 0.35) : 1.0;
  return {.c = 1.0 - 0.32 * k, .q = q, .g = q};
}

}  // namespace ostrel::geotech
