// SPDX-License-Identifier: Apache-2.0
#include "outline.h"

#include <algorithm>
#include <cmath>
#include <compare>
#include <cstddef>

namespace sorrel {

namespace {

constexpr double farthest = 1e15;  // size of the greatest coordinate [mm]

bool level(Vertex a, Vertex b) {
  return std::is_eq(a.y <=> b.y);
}

bool plumb(Vertex a, Vertex b) {
  return std::is_eq(a.x <=> b.x);
}

}  // namespace

bool is_place(double coordinate) {
  return std::abs(coordinate) <= farthest;
}

bool same_place(Vertex a, Vertex b) {
  return level(a, b) && plumb(a, b);
}

void append_distinct(Outline& outline, Vertex vertex) {
  if (outline.empty() || !same_place(outline.back(), vertex)) outline.push_back(vertex);
}

void drop_closing(Outline& outline) {
  while (outline.size() > 1 && same_place(outline.front(), outline.back())) {
    outline.pop_back();
  }
}

std::optional<Outline> outline_of(const Polygon& polygon) {
  Outline outline;
  outline.reserve(polygon.size());
  for (const Point& point : polygon) {
    if (!(is_place(point[0]) && is_place(point[1]))) return std::nullopt;
    append_distinct(outline, {.x = point[0], .y = point[1]});
  }
  drop_closing(outline);
  return outline;
}

Box bounding_box(const Outline& outline) {
  const Vertex first = outline.front();
  Box box{.xmin = first.x, .ymin = first.y, .xmax = first.x, .ymax = first.y};
  for (const Vertex each : outline) {
    box.xmin = std::min(box.xmin, each.x);
    box.ymin = std::min(box.ymin, each.y);
    box.xmax = std::max(box.xmax, each.x);
    box.ymax = std::max(box.ymax, each.y);
  }
  return box;
}

bool has_extent(const Box& box) {
  return box.xmin < box.xmax && box.ymin < box.ymax;
}

std::optional<Box> as_box(const Outline& outline) {
  if (outline.size() != 4) return std::nullopt;
  const Vertex a = outline[0];
  const Vertex b = outline[1];
  const Vertex c = outline[2];
  const Vertex d = outline[3];
  const bool level_first = level(a, b) && plumb(b, c) && level(c, d) && plumb(d, a);
  const bool plumb_first = plumb(a, b) && level(b, c) && plumb(c, d) && level(d, a);
  if (!(level_first || plumb_first)) return std::nullopt;
  const Box box = bounding_box(outline);
  if (!has_extent(box)) return std::nullopt;
  return box;
}

Outline box_outline(const Box& box) {
  return {{.x = box.xmin, .y = box.ymin},
          {.x = box.xmax, .y = box.ymin},
          {.x = box.xmax, .y = box.ymax},
          {.x = box.xmin, .y = box.ymax}};
}

Polygon polygon_from_top(const Outline& outline) {
  const auto top = std::min_element(outline.begin(), outline.end(), [](Vertex a, Vertex b) {
    return a.y > b.y || (level(a, b) && a.x < b.x);
  });
  Polygon polygon;
  if (top == outline.end()) return polygon;
  polygon.reserve(outline.size() + 1);
  const auto append = [&](Vertex each) { polygon.push_back(Point{each.x, each.y}); };
  std::for_each(top, outline.end(), append);
  std::for_each(outline.begin(), top, append);
  append(*top);
  return polygon;
}

}  // namespace sorrel
