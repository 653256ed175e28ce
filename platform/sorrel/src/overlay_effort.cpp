// SPDX-License-Identifier: Apache-2.0
#include "overlay_effort.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace sorrel {

namespace {

constexpr std::size_t few_sides = 128;
constexpr std::size_t most_sides = 100'000;
constexpr std::size_t most_meetings = 50'000;          // beside those of neighbours
constexpr std::size_t most_comparisons = 100'000'000;  // of boxes one above the other

std::vector<Box> side_boxes(std::span<const Outline> outlines) {
  std::vector<Box> boxes;
  for (const Outline& outline : outlines) {
    Vertex from = outline.back();
    for (const Vertex to : outline) {
      const auto [xmin, xmax] = std::minmax(from.x, to.x);
      const auto [ymin, ymax] = std::minmax(from.y, to.y);
      boxes.push_back({.xmin = xmin, .ymin = ymin, .xmax = xmax, .ymax = ymax});
      from = to;
    }
  }
  std::sort(boxes.begin(), boxes.end(), [](const Box& a, const Box& b) { return a.xmin < b.xmin; });
  return boxes;
}

}  // namespace

bool is_affordable(std::span<const Outline> outlines) {
  std::size_t sides = 0;
  for (const Outline& outline : outlines) {
    sides += outline.size();
  }
  if (sides <= few_sides) return true;
  if (sides > most_sides) return false;
  const std::vector<Box> boxes = side_boxes(outlines);
  std::size_t meetings = 0;
  std::size_t comparisons = 0;
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    const Box& first = boxes[i];
    for (std::size_t j = i + 1; j < boxes.size() && boxes[j].xmin <= first.xmax; ++j) {
      ++comparisons;
      if (boxes[j].ymin <= first.ymax && first.ymin <= boxes[j].ymax) ++meetings;
    }
    if (meetings > most_meetings + 2 * sides || comparisons > most_comparisons) return false;
  }
  return true;
}

}  // namespace sorrel
