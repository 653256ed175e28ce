// SPDX-License-Identifier: Apache-2.0
#include "section_wall.h"

#include "units.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace ostrel::host {

namespace {

double thickness_m(const WallInput& wall) {
  return (wall.is_diaphragm ? wall.thickness_mm : wall.diameter_mm) / 1e3;
}

void draw_anchor(const SectionView& view, const AnchorInput& anchor, double face, Svg& svg) {
  const double slope = rad_of_deg(anchor.inclination_deg);
  const auto along = [&](double distance) {
    return view.at(distance * std::cos(slope), anchor.level_m - distance * std::sin(slope));
  };
  const Spot first = along(anchor.free_length_m);
  const Spot last = along(anchor.free_length_m + anchor.bond_length_m);
  svg.line(along(0.0), first, "tendon");
  const double half =
      std::max(anchor.bond_diameter_mm * anchor.bond_enlargement / 2e3, 3.0 / view.scale());
  const double dx = half * std::sin(slope) * view.scale();
  const double dy = half * std::cos(slope) * view.scale();
  svg.path({{first.x + dx, first.y - dy},
            {last.x + dx, last.y - dy},
            {last.x - dx, last.y + dy},
            {first.x - dx, first.y + dy}},
           true, "bond");
  const Spot plate = view.at(face, anchor.level_m);
  svg.rectangle({plate.x - 5, plate.y - 8}, 5, 16, "plate");
  const std::string lengths = fmt::format("{:.2f} + {:.2f} m, {:.0f}°", anchor.free_length_m,
                                          anchor.bond_length_m, anchor.inclination_deg);
  const double above = half * view.scale() + 5.0;
  svg.turned_text({(first.x + last.x) / 2.0 + above * std::sin(slope),
                   (first.y + last.y) / 2.0 - above * std::cos(slope)},
                  anchor.inclination_deg, same(anchor.name + " ") + decimals(lengths), "label");
}

void draw_support(const SupportInput& support, Spot tip, const char* style, Svg& svg) {
  if (support.horizontal) {
    svg.path({tip, {tip.x - 14, tip.y - 8}, {tip.x - 14, tip.y + 8}}, true, style);
    svg.line({tip.x - 17, tip.y - 9}, {tip.x - 17, tip.y + 9}, style);
  }
  if (support.vertical) {
    svg.path({tip, {tip.x - 8, tip.y + 14}, {tip.x + 8, tip.y + 14}}, true, style);
  }
  if (support.rotation) svg.rectangle({tip.x - 5, tip.y - 5}, 10, 10, style);
}

}  // namespace

void draw_wall(const SectionView& view, const Project& project, Svg& svg) {
  const WallInput& wall = project.wall;
  const double half = std::max(thickness_m(wall) / 2.0, 2.5 / view.scale());
  svg.rectangle(view.at(-half, 0.0), 2.0 * half * view.scale(), wall.length_m * view.scale(),
                "concrete");
  if (wall.cap_beam_height_m > 0.0 && wall.cap_beam_width_m > 0.0) {
    svg.rectangle(view.at(-wall.cap_beam_width_m / 2.0, 0.0), wall.cap_beam_width_m * view.scale(),
                  wall.cap_beam_height_m * view.scale(), "concrete");
  }
  svg.line(view.at(view.window().left, -project.excavation_depth_m),
           view.at(-half, -project.excavation_depth_m), "surface");
}

void draw_anchors(const SectionView& view, const Project& project, Svg& svg) {
  for (const AnchorInput& anchor : project.anchors) {
    draw_anchor(view, anchor, -thickness_m(project.wall) / 2.0, svg);
  }
}

void draw_supports(const SectionView& view, const Project& project, Svg& svg) {
  const double face = -thickness_m(project.wall) / 2.0;
  for (const SupportInput& support : project.fixed_supports) {
    draw_support(support, view.at(face, support.level_m), "support", svg);
  }
  for (const SupportInput& support : project.elastic_supports) {
    draw_support(support, view.at(face, support.level_m), "support elastic", svg);
  }
}

}  // namespace ostrel::host
