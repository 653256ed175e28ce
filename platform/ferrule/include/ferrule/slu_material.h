#pragma once
/// @file  The laws of concrete and steel at the ultimate limit state. Library: ferrule
// SPDX-License-Identifier: Apache-2.0

#include <array>
#include <optional>

namespace Ferrule {

/// Parabola and rectangle, without tension. With z = -strain / peak_strain:
///
///     stress = 0                         for z <= 0
///     stress = -strength (2 z - z²)      for 0 < z < 1
///     stress = -strength                 for z >= 1
struct ConcreteLaw {
  double strength = 0.0;         ///< design strength fcd [N/mm²], > 0
  double peak_strain = 0.0;      ///< shortening at which the strength is reached [-], > 0
  double ultimate_strain = 0.0;  ///< largest shortening of the extreme fibre [-], > 0
};

/// Elastic up to the yield stress, then a straight branch, alike in tension and compression.
struct SteelLaw {
  double modulus = 0.0;       ///< elastic modulus [N/mm²], > 0
  double yield_stress = 0.0;  ///< design yield stress fyd [N/mm²], > 0
  double hardening = 0.0;     ///< slope of the branch after yielding [N/mm²], >= 0
  double limit_strain = 0.0;  ///< largest strain in tension [-], > 0
};

struct MaterialLaws {
  ConcreteLaw concrete;
  SteelLaw steel;
};

/// What a domain takes its laws from.
class BaseMaterialModel {
public:
  /// The laws, or nothing when the model's values make no material.
  virtual std::optional<MaterialLaws> laws() const = 0;

  virtual ~BaseMaterialModel() = default;
};

/// The values of a `ClsSLUModel` in the order in which they are given.
struct ClsSLUParameters {
  double Es = 0.0;      ///< elastic modulus of steel [N/mm²]
  double GammaC = 0.0;  ///< partial factor of concrete [-]
  double GammaS = 0.0;  ///< partial factor of steel [-]
  double Rck = 0.0;     ///< characteristic cube strength of concrete [N/mm²]
  double AlfaCC = 0.0;  ///< long-term coefficient of concrete [-]
  double Fyk = 0.0;     ///< characteristic yield strength of steel [N/mm²]
  double Eta = 1.0;     ///< factor on the design strength of concrete [-]
  double Ec2 = 0.0;     ///< strain of concrete at peak stress, as a positive number [-]
  double Ecu = 0.0;     ///< ultimate strain of concrete, as a positive number [-]
  double Slope = 0.0;   ///< slope of the steel's branch after yielding [N/mm²]
  int Plastic = 0;      ///< 1: perfectly plastic steel, `Slope` does not count; 0: `Slope` counts
  double EudTension = 0.0;      ///< limit strain of steel in tension [-]
  double EudCompression = 0.0;  ///< limit strain of steel in compression [-]; does not govern
  int TensionLaw = 0;           ///< tension in concrete; 0, none, is the only one there is
  /// Taken for the sake of the order; they have no say in a section without tension in concrete.
  std::array<double, 5> Spare{0.0, 0.01, 0.0, 1.0000000000000002e-06, 1.5};
};

/// Ultimate limit state of concrete with bars.
///
///     fcd = Eta 0.83 Rck AlfaCC / GammaC,   fyd = Fyk / GammaS
///
/// There is no limit on the shortening of a bar: the concrete around it crushes first.
class ClsSLUModel final : public BaseMaterialModel {
public:
  ClsSLUModel() = default;
  explicit ClsSLUModel(const ClsSLUParameters& parameters) : parameters_(parameters) {}

  const ClsSLUParameters& getParameters() const { return parameters_; }
  void setParameters(const ClsSLUParameters& parameters) { parameters_ = parameters; }

  /// Nothing unless every strength, factor and strain is a positive finite number, the slope is
  /// finite and not negative (of steel that is not plastic) and `TensionLaw` is 0. A partial factor
  /// of zero therefore makes no material.
  std::optional<MaterialLaws> laws() const override;

private:
  ClsSLUParameters parameters_;
};

}  // namespace Ferrule
