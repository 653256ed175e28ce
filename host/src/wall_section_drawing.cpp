// SPDX-License-Identifier: Apache-2.0
#include "wall_section_drawing.h"

#include "svg.h"
#include "units.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace ostrel::host {

namespace {

constexpr double sheet_width = 460.0;
constexpr double margin = 56.0;
constexpr double least_bar = 2.5;  ///< radius of a bar that can still be seen

const Both retained_side{"lato terra", "retained side"};
const Both excavation_side{"lato scavo", "excavation side"};

Both millimetres(double value) {
  return same(fmt::format("{:g} mm", value));
}

class Drawing {
public:
  Drawing(double width_mm, double height_mm)
      : scale_((sheet_width - 2.0 * margin) / std::max(width_mm, 1.6 * height_mm)),
        width_(width_mm * scale_),
        height_(height_mm * scale_),
        svg_(sheet_width, height_ + 2.0 * margin) {}

  // A place of the section: from its centre, y towards the excavation [mm].
  Spot at(double x, double y) const {
    return {sheet_width / 2.0 + x * scale_, margin + height_ / 2.0 + y * scale_};
  }

  void bar(double x, double y, double diameter) {
    svg_.circle(at(x, y), std::max(diameter / 2.0 * scale_, least_bar), "bar");
  }

  std::string markup() {
    svg_.text({sheet_width / 2.0, 16.0}, retained_side, Hold::middle, "side");
    svg_.text({sheet_width / 2.0, height_ + 2.0 * margin - 6.0}, excavation_side, Hold::middle,
              "side");
    return svg_.markup({"Sezione della paratia con armatura", "Section of the wall, reinforced"});
  }

  double scale_;
  double width_;
  double height_;
  Svg svg_;
};

std::string circle_drawing(double diameter, double cover, xReinfCrossSection& section) {
  Drawing drawing(diameter, diameter);
  const xReinforcementBar& bars = section.AValleEff();
  const double ring = diameter / 2.0 - cover;
  const Spot centre = drawing.at(0.0, 0.0);
  drawing.svg_.circle(centre, diameter / 2.0 * drawing.scale_, "concrete");
  const double stirrup = ring + bars.getDiameter() / 2.0;
  if (section.getBracket().getDiameter() > 0.0) {
    drawing.svg_.circle(centre, stirrup * drawing.scale_, "stirrup");
  }
  for (std::uint32_t i = 0; i < bars.getNumber(); ++i) {
    const double angle = 2.0 * std::numbers::pi * i / bars.getNumber();
    drawing.bar(ring * std::sin(angle), -ring * std::cos(angle), bars.getDiameter());
  }
  const Spot left = drawing.at(-diameter / 2.0, diameter / 2.0);
  const Spot right = drawing.at(diameter / 2.0, diameter / 2.0);
  drawing.svg_.dimension({left.x, left.y + 22.0}, {right.x, right.y + 22.0}, millimetres(diameter));
  return drawing.markup();
}

void draw_row(Drawing& drawing, const xReinforcementBar& bars, double reach, double y) {
  const std::uint32_t count = bars.getNumber();
  for (std::uint32_t i = 0; i < count; ++i) {
    const double part = (i + 1.0) / (count + 1.0);
    drawing.bar(-reach + 2.0 * reach * part, y, bars.getDiameter());
  }
}

std::string rectangle_drawing(double width, double thickness, double cover,
                              xReinfCrossSection& section) {
  Drawing drawing(width, thickness);
  const double reach = width / 2.0 - cover;
  const double half = thickness / 2.0 - cover;
  drawing.svg_.rectangle(drawing.at(-width / 2.0, -thickness / 2.0), drawing.width_,
                         drawing.height_, "concrete");
  const double outer = section.AValleEff().getDiameter() / 2.0;
  if (section.getBracket().getDiameter() > 0.0) {
    drawing.svg_.rectangle(drawing.at(-reach - outer, -half - outer),
                           2.0 * (reach + outer) * drawing.scale_,
                           2.0 * (half + outer) * drawing.scale_, "stirrup");
  }
  draw_row(drawing, section.AMonteEff(), reach, -half);
  draw_row(drawing, section.AValleEff(), reach, half);
  const xReinforcementBar& corners = section.AVerticeEff();
  if (corners.getNumber() >= 4) {
    for (const double x : {-reach, reach}) {
      for (const double y : {-half, half}) {
        drawing.bar(x, y, corners.getDiameter());
      }
    }
  }
  const Spot corner = drawing.at(-width / 2.0, thickness / 2.0);
  drawing.svg_.dimension({corner.x, corner.y + 22.0}, {corner.x + drawing.width_, corner.y + 22.0},
                         millimetres(width));
  drawing.svg_.dimension({corner.x - 16.0, corner.y - drawing.height_}, {corner.x - 16.0, corner.y},
                         millimetres(thickness));
  return drawing.markup();
}

}  // namespace

std::string wall_section_drawing(const WallInput& wall, const ReinforcementInput& input,
                                 xReinfCrossSection& section) {
  if (wall.is_diaphragm) {
    return rectangle_drawing(mm_of_m(wall.spacing_m), wall.thickness_mm, input.cover_mm, section);
  }
  return circle_drawing(wall.diameter_mm, input.cover_mm, section);
}

}  // namespace ostrel::host
