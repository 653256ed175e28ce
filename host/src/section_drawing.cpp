// SPDX-License-Identifier: Apache-2.0
#include "section_drawing.h"

#include "section_circle.h"
#include "section_ground.h"
#include "section_loads.h"
#include "section_view.h"
#include "section_wall.h"
#include "svg.h"

#include <fmt/format.h>

#include <cmath>

namespace ostrel::host {

namespace {

Both with_metres(const char* italian, const char* english, double metres) {
  return Both{italian, english} + decimals(fmt::format(" {:.2f} m", metres));
}

void draw_dimensions(const SectionView& view, const Project& project, Svg& svg) {
  constexpr double outer = 24.0;
  constexpr double inner = 62.0;
  constexpr double reach = section_left - 8.0;
  const double length = project.wall.length_m;
  const double depth = project.excavation_depth_m;
  const auto y = [&](double level) { return view.at(0.0, level).y; };
  const auto mark = [&](double level, double from) {
    svg.line({from, y(level)}, {reach, y(level)}, "guide");
  };
  mark(0.0, outer - 6.0);
  mark(-depth, inner - 6.0);
  mark(-length, outer - 6.0);
  svg.dimension({inner, y(0.0)}, {inner, y(-depth)}, with_metres("scavo", "excavation", depth));
  svg.dimension({inner, y(-depth)}, {inner, y(-length)},
                with_metres("infissione", "embedment", length - depth));
  svg.dimension({outer, y(0.0)}, {outer, y(-length)}, with_metres("paratia", "wall", length));
  for (const double level : {0.0, -depth, -length}) {
    svg.text({reach, y(level) - 4.0}, decimals(level_text(level)), Hold::end, "level");
  }
}

// A bar of a round length, about a fifth of the view.
void draw_scale(const SectionView& view, Svg& svg) {
  const double wanted = 0.2 * (view.window().right - view.window().left);
  const double decade = std::pow(10.0, std::floor(std::log10(wanted)));
  const double length = wanted >= 5.0 * decade ? 5.0 * decade
                      : wanted >= 2.0 * decade ? 2.0 * decade
                                               : decade;
  const double y = view.at(0.0, view.window().bottom).y + 16.0;
  const double width = length * view.scale();
  svg.rectangle({section_left, y}, width / 2.0, 5.0, "scale-full");
  svg.rectangle({section_left + width / 2.0, y}, width / 2.0, 5.0, "scale-empty");
  svg.text({section_left + width + 8.0, y + 8.0}, decimals(fmt::format("{:g} m", length)),
           Hold::start, "level");
}

}  // namespace

std::string section_drawing(const Project& project, const Job& job, const Outcome& outcome) {
  const xSlopeStability* circle = worst_circle(outcome);
  const SectionView view(project, job, circle);
  const Window& window = view.window();
  Svg svg(section_width, view.height());
  svg.begin_clip("section-view", view.at(window.left, window.top),
                 (window.right - window.left) * view.scale(),
                 (window.top - window.bottom) * view.scale());
  draw_layers(view, job, svg);
  draw_pool(view, project, svg);
  if (circle != nullptr) draw_slip_circle(view, job, *circle, svg);
  svg.end_group();
  draw_water(view, project, svg);
  draw_anchors(view, project, svg);
  draw_wall(view, project, svg);
  draw_supports(view, project, svg);
  draw_ground_loads(view, project, svg);
  draw_wall_loads(view, project, svg);
  draw_layer_names(view, project, job, svg);
  draw_dimensions(view, project, svg);
  if (circle != nullptr) draw_factor_of_circle(view, *circle, svg);
  draw_scale(view, svg);
  return svg.markup({"Sezione della paratia e del terreno", "Section of wall and ground"});
}

}  // namespace ostrel::host
