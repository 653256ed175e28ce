// SPDX-License-Identifier: Apache-2.0
#include "slope_grid.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ostrel::host {

namespace {

constexpr double within_rounding = 1e-9;  // of a number of steps
constexpr double highest_rise =
    1.22;  // of ground that the centres go up with, by the wall's length
constexpr double never = std::numeric_limits<double>::infinity();

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

using Coordinates = std::array<double, 2>;

// On a line that is not upright.
double level_at(double x, const Coordinates& from, const Coordinates& to) {
  return from[1] + (to[1] - from[1]) * (x - from[0]) / (to[0] - from[0]);
}

// Calls `each` with the two ends of every edge of the layers, the left one first.
template <class Each>
void for_edges(const GroundInput& ground, const Each& each) {
  for (const LayerInput& layer : ground.layers) {
    for (const PolygonInput& polygon : layer.polygons_m) {
      for (std::size_t i = 0; i < polygon.size(); ++i) {
        const auto& [from, to] = std::minmax(polygon[i], polygon[(i + 1) % polygon.size()]);
        each(from, to);
      }
    }
  }
}

// The smallest x >= 0 at which an edge is above a level.
double rise_of_edge(Coordinates from, const Coordinates& to, double level) {
  if (to[0] < 0.0) return never;
  if (from[0] < 0.0) from = {0.0, level_at(0.0, from, to)};
  if (from[1] > level) return from[0];
  if (!(to[1] > level)) return never;
  return from[0] + (to[0] - from[0]) * (level - from[1]) / (to[1] - from[1]);
}

// The level of the ground just behind the wall, not below the head.
double level_behind(const GroundInput& ground) {
  double level = 0.0;
  if (ground.by_levels) return std::max(level, ground.layers.front().top_level_m);
  for_edges(ground, [&level](const Coordinates& from, const Coordinates& to) {
    if (from[0] <= 0.0 && to[0] > 0.0) level = std::max(level, level_at(0.0, from, to));
  });
  return level;
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

double last_radius(const SlopeCentreInput& centre, double step_m) {
  const double range = centre.largest_radius_m - centre.least_radius_m;
  return centre.largest_radius_m - range / (std::trunc(range / step_m) + 1.0);
}

double default_stripe_width_m(const Project& project) {
  return project.wall.length_m / 20.0;
}

double default_radius_step_m(const Project& project) {
  return project.wall.length_m / 10.0;
}

CentreBox default_box(const Project& project) {
  const std::optional<GroundBox> ground = ground_box(project.ground);
  if (!ground) return {};
  const double length = project.wall.length_m;
  const double low = level_behind(project.ground);
  const double high = std::min(std::max(ground->top, low), low + highest_rise * length);
  return {.x_m = {-0.8 * length, 0.4 * length},
          .y_m = {low + 0.02 * length, high + 1.22 * length},
          .spacing_m = 0.15 * length};
}

std::vector<SlopeCentreInput> default_centres(const Project& project) {
  const std::optional<GroundBox> ground = ground_box(project.ground);
  const double length = project.wall.length_m;
  if (!ground || !(length > 0.0)) return {};
  std::vector<SlopeCentreInput> centres;
  for (SlopeCentreInput centre :
       centres_of(default_box(project),
                  {.kind = CircleRange::Kind::below_foot, .span_m = {0.0, 0.5 * length}}, length)) {
    centre.largest_radius_m =
        std::min({centre.largest_radius_m,
                  reach_within(centre, *ground, project.excavation_depth_m).radius_m,
                  rise_behind(project.ground, centre.y_m) - centre.x_m});
    if (centre.largest_radius_m >= centre.least_radius_m) centres.push_back(centre);
  }
  return centres;
}

double rise_behind(const GroundInput& ground, double level_m) {
  if (ground.by_levels) {
    return !ground.layers.empty() && ground.layers.front().top_level_m > level_m ? 0.0 : never;
  }
  double rise = never;
  for_edges(ground, [&](const Coordinates& from, const Coordinates& to) {
    rise = std::min(rise, rise_of_edge(from, to, level_m));
  });
  return rise;
}

GroundReach reach_within(const SlopeCentreInput& centre, const GroundBox& ground,
                         double excavation_depth_m) {
  const GroundReach in_front{std::hypot(centre.x_m - ground.left, centre.y_m + excavation_depth_m),
                             GroundEdge::front};
  const GroundReach behind{std::hypot(ground.right - centre.x_m, centre.y_m - ground.top),
                           GroundEdge::back};
  const GroundReach below{centre.y_m - ground.bottom, GroundEdge::bottom};
  return std::min({in_front, behind, below}, [](const GroundReach& a, const GroundReach& b) {
    return a.radius_m < b.radius_m;
  });
}

}  // namespace ostrel::host
