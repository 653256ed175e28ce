// SPDX-License-Identifier: Apache-2.0
#include "ferrule/slu_material.h"

#include <algorithm>
#include <cmath>

namespace Ferrule {

namespace {

bool is_positive(double value) {
  return value > 0.0 && std::isfinite(value);
}

bool make_sense(const ClsSLUParameters& p) {
  const auto factors = {p.Es,  p.GammaC, p.GammaS, p.Rck, p.AlfaCC,
                        p.Fyk, p.Eta,    p.Ec2,    p.Ecu, p.EudTension};
  return std::all_of(factors.begin(), factors.end(), is_positive) && p.TensionLaw == 0;
}

/// The strength of a cylinder in that of a cube.
constexpr double cylinder_to_cube = 0.83;

}  // namespace

std::optional<MaterialLaws> ClsSLUModel::laws() const {
  const ClsSLUParameters& p = parameters_;
  if (!make_sense(p)) return std::nullopt;
  const ConcreteLaw concrete{.strength = p.Eta * cylinder_to_cube * p.Rck * p.AlfaCC / p.GammaC,
                             .peak_strain = p.Ec2,
                             .ultimate_strain = p.Ecu};
  const SteelLaw steel{.modulus = p.Es,
                       .yield_stress = p.Fyk / p.GammaS,
                       .hardening = p.Plastic == 1 ? 0.0 : p.Slope,
                       .limit_strain = p.EudTension};
  const bool usable = is_positive(concrete.strength) && is_positive(steel.yield_stress)
                   && steel.hardening >= 0.0 && std::isfinite(steel.hardening);
  if (!usable) return std::nullopt;
  return MaterialLaws{.concrete = concrete, .steel = steel};
}

}  // namespace Ferrule
