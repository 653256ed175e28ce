// SPDX-License-Identifier: Apache-2.0
#include "section_loads.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

namespace ostrel::host {

namespace {

using Kind = GroundLoadInput::Kind;

constexpr double arrow_step = 24.0;
constexpr double row_height = load_row - letter - 12.0;  ///< of the arrows in a row

std::string value_of(const GroundLoadInput& load) {
  switch (load.kind) {
    case Kind::uniform:
      return fmt::format("{} kPa", load.value);
    case Kind::strip:
      if (!(std::abs(load.value - load.end_value) > 0.0)) return fmt::format("{} kPa", load.value);
      return fmt::format("{}–{} kPa", load.value, load.end_value);
    case Kind::line:
      return fmt::format("{} kN/m", load.value);
    case Kind::point:
      break;
  }
  return fmt::format("{} kN", load.value);
}

std::string value_of(const WallLoadInput& load) {
  const char* by_metre = load.per_metre ? "/m" : "";
  std::string text;
  const auto part = [&](const char* symbol, double value, const char* unit) {
    if (!(std::abs(value) > 0.0)) return;
    text += fmt::format("{}{} {} {}{}", text.empty() ? "" : ", ", symbol, value, unit, by_metre);
  };
  part("H", load.horizontal_kN, "kN");
  part("V", load.vertical_kN, "kN");
  part("M", load.moment_kNm, "kNm");
  return text;
}

// Arrows between x0 and x1 on the sheet, as long as the load is large.
void draw_spread_load(const GroundLoadInput& load, double x0, double x1, double base, Svg& svg) {
  const double largest = std::max(std::abs(load.value), std::abs(load.end_value));
  const auto size = [&](double x) {
    if (load.kind == Kind::uniform || !(largest > 0.0)) return row_height;
    const double part = x1 > x0 ? (x - x0) / (x1 - x0) : 0.0;
    const double value = load.value + part * (load.end_value - load.value);
    return row_height * std::abs(value) / largest;
  };
  svg.line({x0, base - size(x0)}, {x1, base - size(x1)}, "load");
  const double count = std::max(1.0, std::floor((x1 - x0) / arrow_step));
  for (double i = 0.0; i <= count; ++i) {
    const double x = x0 + (x1 - x0) * i / count;
    if (size(x) > 4.0) svg.arrow({x, base - size(x)}, {x, base}, "load");
  }
  svg.line({x0, base}, {x1, base}, "load");
}

void draw_ground_load(const SectionView& view, const std::string& name, const GroundLoadInput& load,
                      std::size_t row, Svg& svg) {
  const double right = view.window().right;
  const bool whole = load.kind == Kind::uniform;
  const double from = whole ? 0.0 : load.distance_m;
  const double to = whole ? right : load.distance_m + load.width_m;
  if (from > right) return;
  const double base = view.foot_of_load(row);
  const double x0 = view.at(from, 0.0).x;
  if (whole || load.kind == Kind::strip) {
    draw_spread_load(load, x0, view.at(std::min(to, right), 0.0).x, base, svg);
  } else {
    svg.arrow({x0, base - row_height}, {x0, base}, "load");
  }
  svg.text({x0, base - row_height - 5.0}, same(name + ", ") + decimals(value_of(load)), Hold::start,
           "load-text");
}

void draw_wall_load(const std::string& name, const WallLoadInput& load, Spot place, Svg& svg) {
  constexpr double size = 40.0;
  const double across = load.horizontal_kN < 0.0 ? -size : size;
  if (std::abs(load.horizontal_kN) > 0.0) svg.arrow({place.x + across, place.y}, place, "load");
  const double along = load.vertical_kN < 0.0 ? size : -size;
  if (std::abs(load.vertical_kN) > 0.0) svg.arrow({place.x, place.y + along}, place, "load");
  if (std::abs(load.moment_kNm) > 0.0) svg.circle(place, 11.0, "load moment");
  // In front of the wall, where neither ground nor another load stands.
  svg.text({place.x - size - 6.0, place.y - 6.0}, same(name + ", ") + decimals(value_of(load)),
           Hold::end, "load-text");
}

}  // namespace

void draw_ground_loads(const SectionView& view, const Project& project, Svg& svg) {
  std::size_t row = 0;
  for (const LoadInput& load : project.loads) {
    for (const GroundLoadInput& part : load.on_ground) {
      draw_ground_load(view, load.name, part, row++, svg);
    }
  }
}

void draw_wall_loads(const SectionView& view, const Project& project, Svg& svg) {
  for (const LoadInput& load : project.loads) {
    for (const WallLoadInput& part : load.on_wall) {
      draw_wall_load(load.name, part, view.at(0.0, part.level_m), svg);
    }
  }
}

}  // namespace ostrel::host
