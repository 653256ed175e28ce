// SPDX-License-Identifier: Apache-2.0
#include "circle_border.h"

#include "phrases.h"
#include "slope_grid.h"
#include "text_table.h"
#include "units.h"
#include "verification.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <optional>

namespace ostrel::host {

namespace {

using Source = SlopeInput::Source;

constexpr double same_m = 1e-5;  // results come back in mm, on a grid of 2^-10 of them

constexpr std::array<Phrase, 6> side_names{phrase::first_column,    phrase::last_column,
                                           phrase::lowest_row,      phrase::highest_row,
                                           phrase::smallest_circle, phrase::largest_circle};

bool same(double a, double b) {
  return std::abs(a - b) <= same_m;
}

// Beside or above one another: along x (0) or y (1).
struct Direction {
  CircleSide side;
  int axis;
  double sign;
};

constexpr std::array<Direction, 4> directions{{{CircleSide::left, 0, -1.0},
                                               {CircleSide::right, 0, 1.0},
                                               {CircleSide::low, 1, -1.0},
                                               {CircleSide::high, 1, 1.0}}};

double coordinate(const SlopeCentreInput& centre, int axis) {
  return axis == 0 ? centre.x_m : centre.y_m;
}

class BorderSearch {
public:
  BorderSearch(const Project& project, const SlopeCentreInput& centre, double radius)
      : project_(project),
        slope_(*project.slope),
        centre_(centre),
        radius_(radius),
        ground_(ground_box(project.ground).value_or(GroundBox{})) {}

  std::vector<CircleBorder> run() {
    for (const Direction& direction : directions) {
      if (!has_neighbour(direction)) add_centres(direction);
    }
    add_radii();
    return std::move(borders_);
  }

private:
  void add(CircleSide side, const std::string& field, double reached) {
    borders_.push_back({.side = side, .field = field, .reached_m = reached});
  }

  // In a grid within the row or the column, among centres of a list wherever they are.
  bool has_neighbour(const Direction& direction) const {
    const int across = 1 - direction.axis;
    return std::any_of(
        slope_.centres.begin(), slope_.centres.end(), [&](const SlopeCentreInput& other) {
          const double further =
              coordinate(other, direction.axis) - coordinate(centre_, direction.axis);
          return direction.sign * further > same_m
              && (slope_.source == Source::centre_list
                  || same(coordinate(other, across), coordinate(centre_, across)));
        });
  }

  // The distance to the next centre along an axis; the step of the radii where there is none.
  double spacing(int axis) const {
    double spacing = std::numeric_limits<double>::infinity();
    for (const SlopeCentreInput& other : slope_.centres) {
      const double distance = std::abs(coordinate(other, axis) - coordinate(centre_, axis));
      if (distance > same_m) spacing = std::min(spacing, distance);
    }
    return std::isfinite(spacing) ? spacing : slope_.radius_step_m;
  }

  // Of a circle that touches the same depth around a centre a little further down.
  bool ground_lies_below() const {
    const double lower = 0.5 * spacing(1);
    const double level = centre_.y_m - lower;
    return !(level > 0.0) || rise_behind(project_.ground, level) - centre_.x_m < radius_ - lower;
  }

  void add_centres(const Direction& direction) {
    if (direction.side == CircleSide::low && ground_lies_below()) return;
    if (const auto edge = edge_beyond(direction)) return add_ground(direction.side, *edge);
    const std::string coordinate_field = direction.axis == 0 ? "x_m" : "y_m";
    add(direction.side,
        (slope_.source == Source::centre_list ? "slope.centres[]." : "slope.centre_box.")
            + coordinate_field,
        coordinate(centre_, direction.axis));
  }

  // Which edge of the ground left out the next centre of the grid that the program chose.
  std::optional<GroundEdge> edge_beyond(const Direction& direction) const {
    if (slope_.source != Source::chosen) return std::nullopt;
    const CentreBox box = default_box(project_);
    SlopeCentreInput next = centre_;
    (direction.axis == 0 ? next.x_m : next.y_m) += direction.sign * box.spacing_m;
    const auto [from, to] = direction.axis == 0 ? box.x_m : box.y_m;
    const double place = coordinate(next, direction.axis);
    if (!(place > from - same_m && place < to + same_m)) return std::nullopt;
    return reach_within(next, ground_, project_.excavation_depth_m).edge;
  }

  void add_ground(CircleSide side, GroundEdge edge) {
    const double level_or_x = edge == GroundEdge::front ? ground_.left
                            : edge == GroundEdge::back  ? ground_.right
                                                        : ground_.bottom;
    if (!project_.ground.by_levels) return add(side, "ground.layers[].polygons_m", level_or_x);
    if (edge == GroundEdge::bottom) return add(side, "ground.bottom_level_m", level_or_x);
    add(side, edge == GroundEdge::front ? "ground.excavated_width_m" : "ground.retained_width_m",
        std::abs(level_or_x));
  }

  void add_radii() {
    const double half_step = 0.5 * slope_.radius_step_m;
    const double to_foot = std::hypot(centre_.x_m, centre_.y_m + project_.wall.length_m);
    if (radius_ <= centre_.least_radius_m + same_m && radius_ > to_foot + half_step) {
      add_range(CircleSide::smallest, centre_.least_radius_m);
    }
    if (!(radius_ >= last_radius(centre_, slope_.radius_step_m) - same_m)) return;
    const GroundReach reach = reach_within(centre_, ground_, project_.excavation_depth_m);
    if (centre_.largest_radius_m >= reach.radius_m - half_step) {
      add_ground(CircleSide::largest, reach.edge);
    } else {
      add_range(CircleSide::largest, centre_.largest_radius_m);
    }
  }

  // The field that names the circles of a centre, and what of it belongs to a radius.
  void add_range(CircleSide side, double radius) {
    switch (slope_.source) {
      case Source::centre_list:
        return add(side,
                   side == CircleSide::smallest ? "slope.centres[].least_radius_m"
                                                : "slope.centres[].largest_radius_m",
                   radius);
      case Source::radii:
        return add(side, "slope.centre_box.radii_m", radius);
      case Source::tangent_levels:
        return add(side, "slope.centre_box.tangent_levels_m", centre_.y_m - radius);
      case Source::chosen:
      case Source::below_foot:
        break;
    }
    const double on_wall = std::sqrt(radius * radius - centre_.x_m * centre_.x_m) - centre_.y_m;
    add(side, "slope.centre_box.depths_below_foot_m", on_wall - project_.wall.length_m);
  }

  const Project& project_;
  const SlopeInput& slope_;
  const SlopeCentreInput& centre_;
  double radius_;
  GroundBox ground_;
  std::vector<CircleBorder> borders_;
};

// "Extend FIELD beyond 6.00 (largest circle of its centre), ..."
std::string advice(const std::vector<CircleBorder>& borders, const Texts& texts) {
  std::string text;
  for (const CircleBorder& border : borders) {
    text += (text.empty() ? "" : ", ")
          + phrase::extend_field.in(texts, border.field, number_text(border.reached_m, 2),
                                    side_names.at(static_cast<std::size_t>(border.side)).in(texts));
  }
  return text;
}

}  // namespace

std::vector<CircleBorder> borders_of(const Project& project, double x_m, double y_m,
                                     double radius_m) {
  if (!project.slope) return {};
  const auto& centres = project.slope->centres;
  const auto centre =
      std::find_if(centres.begin(), centres.end(), [&](const SlopeCentreInput& each) {
        return same(each.x_m, x_m) && same(each.y_m, y_m)
            && radius_m >= each.least_radius_m - same_m
            && radius_m <= each.largest_radius_m + same_m;
      });
  if (centre == centres.end()) return {};
  return BorderSearch(project, *centre, radius_m).run();
}

std::vector<std::string> border_warnings(const Project& project,
                                         const xSlopeStabilityDesign& design, const Texts& texts) {
  std::vector<std::string> advices;  // in the order of the combinations
  std::map<std::string, std::string> combinations;
  for (const xSlopeStability& result : design.getResults()) {
    if (!(result.getSf() < unlimited)) continue;
    const std::vector<CircleBorder> borders = borders_of(
        project, m_of_mm(result.getXC()), m_of_mm(result.getYC()), m_of_mm(result.getRadius()));
    if (borders.empty()) continue;
    const std::string text = advice(borders, texts);
    std::string& names = combinations[text];
    if (names.empty()) advices.push_back(text);
    names += (names.empty() ? "" : ", ") + result.getCombName();
  }
  std::vector<std::string> warnings;
  for (const std::string& text : advices) {
    warnings.push_back(phrase::circle_on_border.in(texts, combinations[text], text));
  }
  return warnings;
}

}  // namespace ostrel::host
