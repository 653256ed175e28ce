// SPDX-License-Identifier: Apache-2.0
#include "slope_grid.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ostrel::host {

namespace {

constexpr double within_rounding = 1e-9;  // of a number of steps

double steps(const std::array<double, 2>& span, double spacing) {
  return std::floor((span[1] - span[0]) / spacing + within_rounding);
}

// The radius of the circle around a centre that crosses the wall's line `depth` below the head.
double radius_through(double x, double y, double depth) {
  return std::hypot(x, y + depth);
}

SlopeCentreInput centre_at(double x, double y, const CircleRange& range, double length) {
  const auto [from, to] = range.span_m;
  SlopeCentreInput centre{.x_m = x, .y_m = y, .least_radius_m = from, .largest_radius_m = to};
  if (range.kind == CircleRange::Kind::tangent_levels) {
    centre.least_radius_m = y - to;
    centre.largest_radius_m = y - from;
  } else if (range.kind == CircleRange::Kind::below_foot) {
    centre.least_radius_m = radius_through(x, y, length + from);
    centre.largest_radius_m = radius_through(x, y, length + to);
  }
  return centre;
}

// The largest radius around a centre that stays within the ground: the circle comes up on the
// excavation in front, at the highest ground behind, and touches the bottom.
double largest_radius_within(const SlopeCentreInput& centre, const GroundBox& ground,
                             double excavation_depth) {
  const double in_front = std::hypot(centre.x_m - ground.left, centre.y_m + excavation_depth);
  const double behind = std::hypot(ground.right - centre.x_m, centre.y_m - ground.top);
  return std::min({in_front, behind, centre.y_m - ground.bottom});
}

}  // namespace

std::optional<GroundBox> ground_box(const GroundInput& ground) {
  if (ground.layers.empty()) return std::nullopt;
  if (ground.by_levels) {
    return GroundBox{.left = -ground.excavated_width_m,
                     .right = ground.retained_width_m,
                     .bottom = ground.bottom_level_m,
                     .top = ground.layers.front().top_level_m};
  }
  std::optional<GroundBox> box;
  for (const LayerInput& layer : ground.layers) {
    for (const PolygonInput& polygon : layer.polygons_m) {
      for (const auto& [x, y] : polygon) {
        if (!box) box = GroundBox{.left = x, .right = x, .bottom = y, .top = y};
        box->left = std::min(box->left, x);
        box->right = std::max(box->right, x);
        box->bottom = std::min(box->bottom, y);
        box->top = std::max(box->top, y);
      }
    }
  }
  return box;
}

double number_of_centres(const CentreBox& box) {
  if (!(box.spacing_m > 0.0)) return std::numeric_limits<double>::quiet_NaN();
  return (steps(box.x_m, box.spacing_m) + 1.0) * (steps(box.y_m, box.spacing_m) + 1.0);
}

std::vector<SlopeCentreInput> centres_of(const CentreBox& box, const CircleRange& range,
                                         double length_m) {
  std::vector<SlopeCentreInput> centres;
  if (!(number_of_centres(box) > 0.0)) return centres;
  const double columns = steps(box.x_m, box.spacing_m);
  const double rows = steps(box.y_m, box.spacing_m);
  for (double row = 0.0; row <= rows; ++row) {
    for (double column = 0.0; column <= columns; ++column) {
      centres.push_back(centre_at(box.x_m[0] + column * box.spacing_m,
                                  box.y_m[0] + row * box.spacing_m, range, length_m));
    }
  }
  return centres;
}

double default_stripe_width_m(const Project& project) {
  return project.wall.length_m / 20.0;
}

double default_radius_step_m(const Project& project) {
  return project.wall.length_m / 10.0;
}

std::vector<SlopeCentreInput> default_centres(const Project& project) {
  const std::optional<GroundBox> ground = ground_box(project.ground);
  const double length = project.wall.length_m;
  if (!ground || !(length > 0.0)) return {};
  const double base = std::max(ground->top, 0.0);
  const CentreBox box{.x_m = {-0.8 * length, 0.4 * length},
                      .y_m = {base + 0.02 * length, base + 1.22 * length},
                      .spacing_m = 0.15 * length};
  std::vector<SlopeCentreInput> centres;
  for (SlopeCentreInput centre : centres_of(
           box, {.kind = CircleRange::Kind::below_foot, .span_m = {0.0, 0.5 * length}}, length)) {
    centre.largest_radius_m =
        std::min(centre.largest_radius_m,
                 largest_radius_within(centre, *ground, project.excavation_depth_m));
    if (centre.largest_radius_m >= centre.least_radius_m) centres.push_back(centre);
  }
  return centres;
}

bool stays_within(const SlopeCentreInput& centre, double radius_m, const GroundBox& ground,
                  double excavation_depth_m) {
  return radius_m <= largest_radius_within(centre, ground, excavation_depth_m);
}

}  // namespace ostrel::host
