// SPDX-License-Identifier: Apache-2.0
#include "section_checks.h"

#include "json_text.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

namespace ostrel::host {

namespace {

constexpr double most_bars = 2000.0;  // in one group: the library lays out no more

std::string shown(double number) {
  return fmt::format("{}", number);
}

// One section as the reader found it; what was wrong is NaN and passes every test.
struct Section {
  std::string path;   // of its reinforcement
  double area;        // [mm²]
  double depth;       // smallest side, or diameter [mm]
  double row_length;  // on which bars stand beside one another, given their cover [mm]
  double cover;       // [mm]
  double bar;         // [mm]
  double stirrup;     // [mm]
};

void check_cover(const Section& section, Problems& problems) {
  const double least = section.stirrup + section.bar / 2.0;
  const double most = (section.depth - section.bar) / 2.0;
  if (!(section.cover < least || section.cover >= most)) return;
  problems.add(child_path(section.path, "cover_mm"), shown(section.cover),
               problems.texts()(Text::cover_that_fits, least, most, section.depth));
}

// Bars of the diameter in hand that make up so many per cent of the section.
double number_of_bars(const Section& section, double percent) {
  const double bar_area = std::numbers::pi * section.bar * section.bar / 4.0;
  return std::ceil(section.area * percent / 100.0 / bar_area - 1e-9);
}

void check_bars(const Section& section, double least_percent, Problems& problems) {
  if (problems.has_error_at(child_path(section.path, "cover_mm"))) return;
  const double most = std::min(std::floor(section.row_length / section.bar), most_bars);
  const double bars = number_of_bars(section, least_percent);
  const std::string path = child_path(section.path, "bar_diameter_mm");
  if (!(bars > most) || problems.has_error_at(path)) return;
  problems.add(path, shown(section.bar), problems.texts()(Text::bars_that_fit, bars, most));
}

Section circle(const WallInput& wall, const ReinforcementInput& input) {
  const double d = wall.diameter_mm;
  return {.path = "wall.reinforcement",
          .area = std::numbers::pi * d * d / 4.0,
          .depth = d,
          .row_length = std::numbers::pi * (d - 2.0 * input.cover_mm),
          .cover = input.cover_mm,
          .bar = input.bar_diameter_mm,
          .stirrup = input.stirrups.diameter_mm};
}

Section panel(const WallInput& wall, const ReinforcementInput& input) {
  const double width = wall.spacing_m * 1e3;
  return {.path = "wall.reinforcement",
          .area = width * wall.thickness_mm,
          .depth = std::min(width, wall.thickness_mm),
          .row_length = width - 2.0 * input.cover_mm,
          .cover = input.cover_mm,
          .bar = input.bar_diameter_mm,
          .stirrup = input.stirrups.diameter_mm};
}

// Its bars stand on the faces to the excavation and to the ground, over its height.
Section cap_beam(const WallInput& wall, const CapBeamReinforcementInput& input) {
  const double width = wall.cap_beam_width_m * 1e3;
  const double height = wall.cap_beam_height_m * 1e3;
  return {.path = "wall.reinforcement.cap_beam",
          .area = width * height,
          .depth = std::min(width, height),
          .row_length = height - 2.0 * input.cover_mm,
          .cover = input.cover_mm,
          .bar = static_cast<double>(input.bar_diameter_mm),
          .stirrup = input.stirrups.diameter_mm};
}

}  // namespace

void check_sections(const Project& project, Problems& problems) {
  const WallInput& wall = project.wall;
  if (!wall.reinforcement) return;
  const ReinforcementInput& input = *wall.reinforcement;
  const Section section = wall.is_diaphragm ? panel(wall, input) : circle(wall, input);
  if (section.depth > 0.0 && section.cover > 0.0) check_cover(section, problems);
  if (wall.is_diaphragm) {
    check_bars(section, input.least_excavation_ratio_percent, problems);
    check_bars(section, input.least_retained_ratio_percent, problems);
  } else {
    check_bars(section, input.least_ratio_percent, problems);
  }
  if (!(wall.cap_beam_height_m > 0.0) || !(input.cap_beam.cover_mm > 0.0)) return;
  const Section beam = cap_beam(wall, input.cap_beam);
  check_cover(beam, problems);
  check_bars(beam, input.cap_beam.least_ratio_percent / 2.0, problems);  // half on each face
}

}  // namespace ostrel::host
