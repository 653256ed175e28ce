// SPDX-License-Identifier: Apache-2.0
#include "slope/clean_cut.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ostrel::slope {

namespace {

constexpr double least_gap = 1e-2;   // between sides that do not meet [mm]
constexpr double least_sine = 1e-2;  // of the angle between two that do, where it is acute

double cross(Place origin, Place a, Place b) {
  return (a.x - origin.x) * (b.y - origin.y) - (b.x - origin.x) * (a.y - origin.y);
}

/// Whether both points lie on one side of the line from `a` to `b`, away from it.
bool on_one_side(Place a, Place b, Place first, Place second) {
  const double gap = least_gap * distance(a, b);
  const double of_first = cross(a, b, first);
  const double of_second = cross(a, b, second);
  return (of_first > gap && of_second > gap) || (of_first < -gap && of_second < -gap);
}

bool apart_along(double a, double b, double c, double d) {
  return std::min(a, b) > std::max(c, d) + least_gap || std::max(a, b) < std::min(c, d) - least_gap;
}

bool apart(Place a, Place b, Place c, Place d) {
  return apart_along(a.x, b.x, c.x, d.x) || apart_along(a.y, b.y, c.y, d.y)
      || on_one_side(a, b, c, d) || on_one_side(c, d, a, b);
}

bool meet_openly(Place corner, Place before, Place after) {
  const double dot =
      (before.x - corner.x) * (after.x - corner.x) + (before.y - corner.y) * (after.y - corner.y);
  const double sine_by_lengths = std::abs(cross(corner, before, after));
  return dot < 0.0
      || sine_by_lengths > least_sine * distance(corner, before) * distance(corner, after);
}

/// Where the circle passes between the vertices around an outline.
struct Passages {
  std::array<std::size_t, 2> sides{};
  std::size_t count = 0;
};

double excess_of(Place vertex, const Rim& rim) {
  const double dx = vertex.x - rim.center.x;
  const double dy = vertex.y - rim.center.y;
  return dx * dx + dy * dy - rim.radius * rim.radius;
}

/// Whether a side between two vertices outside the circle stays clear of it.
bool stays_outside(Place from, Place to, double from_excess, double to_excess, double clear) {
  const double length2 = (to.x - from.x) * (to.x - from.x) + (to.y - from.y) * (to.y - from.y);
  const double twice_slope = to_excess - from_excess - length2;
  return twice_slope > 0.5 * length2 || twice_slope < -2.5 * length2
      || 4.0 * length2 * (from_excess - clear) > twice_slope * twice_slope;
}

/// @return false with a vertex too near to the circle, a side that may touch it between two vertices
/// outside, or more than two passages
bool find_passages(OutlineView outline, const Rim& rim, CleanCut& cut, Passages& passages) {
  auto& excess = cut.excess;
  for (std::size_t k = 0; k < outline.size(); ++k) {
    excess[k] = excess_of(outline[k], rim);
    if (!(std::abs(excess[k]) > rim.clear)) return false;
    if (k == 0) continue;
    const bool passes = (excess[k] < 0.0) != (excess[k - 1] < 0.0);
    if (!passes) {
      if (excess[k] > 0.0
          && !stays_outside(outline[k - 1], outline[k], excess[k - 1], excess[k], rim.clear)) {
        return false;
      }
      continue;
    }
    if (passages.count == 2) return false;
    passages.sides[passages.count++] = k - 1;
  }
  return true;
}

/// The one point of the circle between two vertices on its two sides, as `segCircleIntersect` has it.
/// @param excess  of the first vertex [mm²]
Place crossing(Place p1, Place p2, Place center, double excess) {
  const Place d{.x = p2.x - p1.x, .y = p2.y - p1.y};
  const Place f{.x = p1.x - center.x, .y = p1.y - center.y};
  const double a = d.x * d.x + d.y * d.y;
  const double b = f.x * d.x + f.y * d.y;
  const double s = std::sqrt(b * b - excess * a);
  const double t = (excess < 0.0 ? s - b : -b - s) * (1.0 / a);
  return {.x = p1.x + t * d.x, .y = p1.y + t * d.y};
}

/// Walks the outline as `cut_by_circle` does. @return false if the border has to be sorted
bool walk(OutlineView outline, std::size_t left_side, std::size_t right_side, Place left,
          Place right, CleanCut& cut) {
  std::size_t size = 0;
  const auto append = [&cut, &size](Place place) { cut.vertices[size++] = place; };
  const auto append_inside = [&](std::size_t from, std::size_t end) {
    for (std::size_t k = from; k < end; ++k) {
      if (cut.excess[k] < 0.0) append(outline[k]);
    }
  };
  append_inside(0, left_side + 1);
  const std::size_t border = size;
  append(left);
  append_inside(left_side + 1, right_side + 1);
  append(right);
  for (std::size_t i = border + 1; i < size; ++i) {
    if (cut.vertices[i].x < cut.vertices[i - 1].x) return false;
  }
  const bool goes_on = right_side > left_side;
  if (goes_on) append_inside(right_side + 1, outline.size());
  if (!(goes_on && cut.excess[0] < 0.0)) append(cut.vertices[0]);
  cut.size = size;
  return true;
}

}  // namespace

bool is_clean(OutlineView outline) {
  if (outline.size() < 4 || outline.size() > most_clean_vertices) return false;
  const std::size_t sides = outline.size() - 1;
  for (std::size_t i = 0; i < sides; ++i) {
    const std::size_t next = (i + 1) % sides;
    if (!meet_openly(outline[next], outline[i], outline[next + 1])) return false;
    for (std::size_t k = i + 2; k < sides; ++k) {
      const bool neighbours = i == 0 && k + 1 == sides;
      if (!neighbours && !apart(outline[i], outline[i + 1], outline[k], outline[k + 1])) {
        return false;
      }
    }
  }
  return true;
}

Rim rim_of(Place center, double radius, double tol) {
  return {.center = center,
          .radius = radius,
          .clear = clear_of_circle(radius, tol) + 2.0 * radius + 1.0};
}

bool cut_cleanly(OutlineView outline, Place centroid, const Rim& rim, CutKind& kind,
                 CleanCut& cut) {
  Passages passages;
  if (!find_passages(outline, rim, cut, passages)) return false;
  if (passages.count == 0) {
    kind = rim.radius >= distance(rim.center, centroid) ? CutKind::whole : CutKind::none;
    return true;
  }
  auto [left_side, right_side] = passages.sides;
  const auto crossing_of = [&](std::size_t side) {
    return crossing(outline[side], outline[side + 1], rim.center, cut.excess[side]);
  };
  Place left = crossing_of(left_side);
  Place right = crossing_of(right_side);
  if (left.x > right.x) {
    std::swap(left, right);
    std::swap(left_side, right_side);
  }
  if (left.y > rim.center.y || right.y > rim.center.y) {
    kind = CutKind::above_centre;
    return true;
  }
  if (!(right.x - left.x >= crossing_tolerance)) return false;
  if (!walk(outline, left_side, right_side, left, right, cut)) return false;
  kind = CutKind::part;
  cut.chord_length = distance(left, right);
  cut.chord_mid = {.x = 0.5 * (left.x + right.x), .y = 0.5 * (left.y + right.y)};
  return true;
}

}  // namespace ostrel::slope
