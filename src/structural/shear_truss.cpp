// SPDX-License-Identifier: Apache-2.0
#include "structural/shear_truss.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ostrel::structural {

namespace {

constexpr double least_cotangent = 1.0;
constexpr double greatest_cotangent = 2.5;
constexpr int most_tries = 100'000;

}  // namespace

double strut_utilisation(double asw_st, double b, double fyd, double fcd) {
  const double root = std::sqrt(2.0 * (fyd * asw_st / b) / fcd);
  return root < 1.0 ? root : 1.0;
}

double strut_cotangent(double sn) {
  if (sn <= 2.220446049250313e-13) return greatest_cotangent;
  const double balanced = std::sqrt(1.0 - sn) / sn;
  if (!(balanced > least_cotangent)) return least_cotangent;
  return std::min(balanced, greatest_cotangent);
}

TrussStrength truss_strength(const EquivalentRectangle& section, double c, double asw_st,
                             double fyd, double fcd) {
  const double ct = strut_cotangent(strut_utilisation(asw_st, section.b, fyd, fcd));
  const double z = (section.h - c) * 0.9;
  return {.stirrups = asw_st * z * fyd * ct,
          .struts = z * section.b * 0.5 * fcd * ct / (ct * ct + 1.0)};
}

EquivalentRectangle equivalent_rectangle(double D, double c) {
  const double R = D / 2.0;
  const double x = 2.0 * (R - c) / R / std::numbers::pi;
  const double h = (x + 1.0) * R + c;
  const double area = (std::sqrt(1.0 - x * x) * x + std::asin(x) + std::numbers::pi / 2.0) * R * R;
  return {.b = area / h, .h = h};
}

void search_step(const xBracketSettings& settings, xBracket& stirrup,
                 const std::function<bool()>& suffices) {
  double step = settings.getMaxStep();
  for (int tries = 0; tries < most_tries && step >= settings.getMinStep(); ++tries) {
    stirrup.setStep(step);
    const double next = step - settings._getStepIncr();
    if (suffices() || !(next < step)) return;
    step = next;
  }
}

}  // namespace ostrel::structural
