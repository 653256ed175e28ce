// SPDX-License-Identifier: Apache-2.0
#include "section_circle.h"

#include "units.h"

#include <fmt/format.h>

#include <vector>

namespace ostrel::host {

namespace {

constexpr double nothing_to_verify = 1e9;

}  // namespace

const xSlopeStability* worst_circle(const Outcome& outcome) {
  const xSlopeStability* worst = nullptr;
  for (const xSlopeStability& result : slope_results(outcome)) {
    const double factor = result.getSf();
    if (factor < nothing_to_verify && (worst == nullptr || factor < worst->getSf())) {
      worst = &result;
    }
  }
  return worst;
}

void draw_slip_circle(const SectionView& view, const Job& job, const xSlopeStability& circle,
                      Svg& svg) {
  for (const auto& stripe : circle.getStripesMin()) {
    for (const xClipData& piece : stripe) {
      svg.path(view.outline(piece.polygon), true, "slice");
    }
  }
  std::vector<std::vector<Spot>> ground;
  for (const xBoundSoilLayer& layer : job.data.soilLayers) {
    for (const auto& polygon : layer.polygons) {
      ground.push_back(view.outline(polygon));
    }
  }
  const stabChekData& data = circle.getstabChekData();
  svg.begin_clip("section-ground", ground);
  svg.circle(view.at(m_of_mm(data.xc), m_of_mm(data.yc)), m_of_mm(data.radius) * view.scale(),
             "slip");
  svg.end_group();
}

void draw_factor_of_circle(const SectionView& view, const xSlopeStability& circle, Svg& svg) {
  const Spot corner = view.at(view.window().right, view.window().bottom);
  svg.text({corner.x - 10.0, corner.y - 8.0},
           Both{"cerchio critico: F = ", "governing circle: F = "}
               + decimals(fmt::format("{:.3f}", circle.getSf()))
               + same(" (" + circle.getCombName() + ")"),
           Hold::end, "slip-text");
}

}  // namespace ostrel::host
