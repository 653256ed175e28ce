// SPDX-License-Identifier: Apache-2.0
#include "soil/pressure_diagram.h"

#include "model/water_weight.h"
#include "services/exact.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace ostrel::soil {

namespace {

constexpr double smallest_height = 1e-6;  // two depths nearer than this are the same [mm]

}  // namespace

bool begins_above(const xSoilLayer& layer, double depth) {
  return depth - layer.getDepth() >= smallest_height;
}

bool ends_below(const xSoilLayer& layer, double depth) {
  return layer.getDepth() + layer.getThickness() - depth >= smallest_height;
}

double slope_ratio(double theta, double angle) {
  const double a = std::numbers::pi / 2.0 - theta;
  return std::sin(a) / std::sin(a + angle);
}

xLayerPress empty_diagram(const xSoilLayer& layer) {
  xLayerPress diagram;
  diagram.start.set(0.0, -layer.getDepth());
  diagram.end.set(0.0, -(layer.getDepth() + layer.getThickness()));
  return diagram;
}

Resultant resultant_of(const std::vector<diag_Point>& points) {
  if (points.empty()) return {};
  double R = 0.0;
  double M = 0.0;
  for (std::size_t i = 1; i < points.size(); ++i) {
    const double s0 = points[i - 1].s;
    const double p0 = points[i - 1].value;
    const double s1 = points[i].s;
    const double p1 = points[i].value;
    const double d = s1 - s0;
    R += (p0 + p1) * d / 2.0;
    M += (2.0 * p0 * s0 + s0 * p1 + p0 * s1 + 2.0 * p1 * s1) * d / 6.0;
  }
  if (exactly_equal(R, 0.0)) return {R, (points.front().s + points.back().s) / 2.0};
  return {R, M / R};
}

StepEnds Overburden::add_step(double thickness, double unit_weight, double ratio) {
  const double top = stress_;
  stress_ = thickness * unit_weight + ratio * top;
  return {top, stress_};
}

double effective_weight(const xSoilProps& soil, bool under_water, double kv) {
  const double weight =
      under_water ? soil.getSaturatedUnitWeight() - model::water_unit_weight : soil.getUnitWeight();
  return weight * (1.0 - kv);
}

StepEnds earth_pressure(const StepEnds& stress, double K, double cohesion_term, double gamma) {
  // std::max gives its first argument, 0, where the second is not a number.
  return {std::max(0.0, K * stress.top - cohesion_term) * gamma,
          std::max(0.0, K * stress.bottom - cohesion_term) * gamma};
}

StepEnds wood_pressure(const StepEnds& stress, double K, double seismic, double gamma) {
  return {(stress.top * gamma * K + seismic) * gamma, stress.bottom * gamma * K * gamma + seismic};
}

}  // namespace ostrel::soil
