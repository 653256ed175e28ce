// SPDX-License-Identifier: Apache-2.0
#include "ostrel/slope_settings.h"

#include <cstdint>

namespace {

// A grid beyond a million centres is a slip of the input and would only exhaust the memory.
bool step_counts_are_usable(int x_steps, int y_steps) {
  constexpr std::int64_t most_centres = 1'000'000;
  return x_steps >= 0 && y_steps >= 0
      && (std::int64_t{x_steps} + 1) * (std::int64_t{y_steps} + 1) <= most_centres;
}

}  // namespace

void xGridPoint::reset() {
  min_radius_ = 0.0;
  max_radius_ = 0.0;
}

void xCentersGrid::reset() {
  step_ = 0.0;
  x_steps_ = 0;
  y_steps_ = 0;
}

void xCentersGrid::clear() {
  origin.zeros();
  points.clear();
  reset();
}

void xCentersGrid::buildCentersGrid() {
  if (!step_counts_are_usable(x_steps_, y_steps_)) return;
  xGridPoint point;
  point.center = origin;
  for (int j = 0; j <= y_steps_; ++j) {
    for (int i = 0; i <= x_steps_; ++i) {
      points.push_back(point);
      point.center[0] += step_;
    }
    point.center[0] = origin[0];
    point.center[1] += step_;
  }
}

void xSlopeStabilitySettings::reset() {
  formulation_ = 0;
  width_stripe_ = 0.0;
  step_radius_ = 0.0;
  grid.clear();
}
