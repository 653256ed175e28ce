#pragma once
/// @file  Between an engineer's units and the library's: the one place of conversion. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// The library takes mm, N, N/mm², N/mm³ and rad. Where a factor is below 1 the inverse divides, so
// that a decimal number of the file becomes the double nearest to it in the new unit.

#include <cmath>
#include <numbers>

namespace ostrel::host {

/// @name Into the library's units
///@{
constexpr double mm_of_m(double x) {
  return x * 1e3;
}
constexpr double n_of_kn(double x) {
  return x * 1e3;
}
constexpr double nmm_of_knm(double x) {
  return x * 1e6;
}
constexpr double n_mm_of_kn_m(double x) {
  return x;
}
constexpr double n_mm2_of_kpa(double x) {
  return x / 1e3;
}
constexpr double n_mm2_of_mpa(double x) {
  return x;
}
constexpr double n_mm2_of_gpa(double x) {
  return x * 1e3;
}
constexpr double n_mm3_of_kn_m3(double x) {
  return x / 1e6;
}
constexpr double mm_s_of_m_s(double x) {
  return x * 1e3;
}
constexpr double rad_of_deg(double x) {
  return x * std::numbers::pi / 180.0;
}
constexpr double rad_of_mrad(double x) {
  return x / 1e3;
}
/// A level or a coordinate, rounded to 2^-10 mm: on this grid sums and differences are exact, and
/// the levels of a cut agree with the borders that it was cut at.
inline double level_mm_of_m(double x) {
  return std::nearbyint(x * 1e3 * 1024.0) / 1024.0;
}
///@}

/// @name Back
///@{
constexpr double m_of_mm(double x) {
  return x / 1e3;
}
constexpr double kn_of_n(double x) {
  return x / 1e3;
}
constexpr double knm_of_nmm(double x) {
  return x / 1e6;
}
constexpr double kpa_of_n_mm2(double x) {
  return x * 1e3;
}
constexpr double kn_m_of_n_mm(double x) {
  return x;
}
constexpr double kn_m3_of_n_mm3(double x) {
  return x * 1e6;
}
constexpr double cm2_of_mm2(double x) {
  return x / 1e2;
}
constexpr double cm2_m_of_mm2_mm(double x) {
  return x * 1e1;
}
constexpr double mrad_of_rad(double x) {
  return x * 1e3;
}
///@}

}  // namespace ostrel::host
