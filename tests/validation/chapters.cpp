// SPDX-License-Identifier: Apache-2.0
#include "validation/chapters.h"

namespace ostrel::validation {

std::vector<Chapter> all_chapters() {
  return {
      earth_pressure_coefficients(), pressure_diagrams(), surcharges(),       beams_on_springs(),
      concrete_sections(),           shear_strength(),    bearing_capacity(), anchor_bond(),
      water_verifications(),         slip_circles(),      whole_walls()};
}

}  // namespace ostrel::validation
