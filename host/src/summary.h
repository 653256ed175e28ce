#pragma once
/// @file  The figures of a combination that an engineer looks at first. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// Engineering units. Displacements count positive towards the excavation.

#include "analysis.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace ostrel::host {

/// A value and the depth below the head at which it stands [m].
struct Extreme {
  double value = 0.0;
  double depth_m = 0.0;
};

/// What the soil at one node gives.
struct SpringState {
  double depth_m = 0.0;
  double modulus_kN_m3 = 0.0;
  double limit_mm = 0.0;         ///< displacement at the limit
  double limit_kPa = 0.0;        ///< pressure at the limit
  double displacement_mm = 0.0;  ///< towards the excavation
  double pressure_kPa = 0.0;     ///< on the wall, against its displacement
  double use = 0.0;              ///< pressure by its limit [-]; 0 where the soil has no strength
  bool yields = false;           ///< at or beyond the limit
};

struct AnchorState {
  std::size_t place = 0;  ///< of the anchor in the project
  double depth_m = 0.0;
  double force_kN = 0.0;  ///< of one anchor, prestress included, tension positive
  /// @name What that force puts on the wall; towards the ground behind, and downwards, positive
  ///@{
  double horizontal_kN = 0.0;
  double vertical_kN = 0.0;
  ///@}
  double prestress_kN = 0.0;
  double stiffness_kN_m = 0.0;        ///< of all at its level on one pile or panel, along them
  double share = 1.0;                 ///< of their force on a pile or panel that falls to one [-]
  double head_displacement_mm = 0.0;  ///< of the wall there, towards the excavation
  double head_settlement_mm = 0.0;    ///< likewise, downwards
};

/// What a support puts on the wall, in the parts that it holds.
struct SupportState {
  double depth_m = 0.0;
  std::optional<double> horizontal_kN;  ///< positive towards the retained side
  std::optional<double> vertical_kN;    ///< positive upwards
  std::optional<double> moment_kNm;     ///< positive where it turns the head back
};

/// What is left over of the sum of all that acts on the wall, as `Balance` counts it.
struct Residual {
  double towards_retained_kN = 0.0;
  double downwards_kN = 0.0;
  double moment_kNm = 0.0;         ///< about the head
  double relative_to_loads = 0.0;  ///< [-]
};

struct Summary {
  std::string name;
  int index = 0;
  Extreme moment_kNm;       ///< the largest in size, with its sign
  Extreme shear_kN;         ///< likewise
  Extreme axial_kN;         ///< likewise
  Extreme displacement_mm;  ///< likewise
  double head_displacement_mm = 0.0;
  double excavation_displacement_mm = 0.0;
  Extreme spring_use;      ///< the largest [-]
  double mobilised = 0.0;  ///< forces of all springs by all limit forces [-]
  std::size_t yielding = 0;
  std::vector<SpringState> springs;
  std::vector<AnchorState> anchors;
  Residual residual;
  std::vector<SupportState> supports;  ///< from the top down, but for the foot held in every run
};

Summary summary_of(const Job& job, const Outcome& outcome, const xCombResults& combination);

}  // namespace ostrel::host
