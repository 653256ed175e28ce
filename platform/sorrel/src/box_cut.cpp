// SPDX-License-Identifier: Apache-2.0
#include "box_cut.h"

#include "sorrel/interpolation.h"

#include <cstddef>
#include <utility>

namespace sorrel {

namespace {

/// One border of a box and the side of it that stays.
struct Border {
  double Vertex::*across;  ///< the coordinate that the border holds constant
  double Vertex::*along;   ///< the other one
  double position;         ///< where the border lies [mm]
  bool keep_greater;       ///< what lies at or beyond the position stays, or what lies before it
};

bool stays(Vertex vertex, const Border& border) {
  const double across = vertex.*border.across;
  return border.keep_greater ? across >= border.position : across <= border.position;
}

Vertex crossing(Vertex low, Vertex high, const Border& border) {
  if (low.*border.across > high.*border.across) std::swap(low, high);
  Vertex made;
  made.*border.across = border.position;
  made.*border.along = linInterpol(border.position, low.*border.across, high.*border.across,
                                   low.*border.along, high.*border.along);
  return made;
}

Outline cut(const Outline& outline, const Border& border) {
  Outline kept;
  kept.reserve(outline.size() + 4);
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Vertex from = outline[i];
    const Vertex to = outline[i + 1 < outline.size() ? i + 1 : 0];
    if (stays(from, border)) append_distinct(kept, from);
    if (stays(from, border) != stays(to, border)) append_distinct(kept, crossing(from, to, border));
  }
  drop_closing(kept);
  return kept;
}

}  // namespace

Outline cut_to_box(const Outline& outline, const Box& box) {
  if (outline.empty()) return {};
  const Box extent = bounding_box(outline);
  const bool apart = extent.xmax < box.xmin || extent.xmin > box.xmax || extent.ymax < box.ymin
                  || extent.ymin > box.ymax;
  if (apart) return {};
  Outline inner = outline;
  if (extent.xmin < box.xmin) inner = cut(inner, {&Vertex::x, &Vertex::y, box.xmin, true});
  if (extent.xmax > box.xmax) inner = cut(inner, {&Vertex::x, &Vertex::y, box.xmax, false});
  if (extent.ymin < box.ymin) inner = cut(inner, {&Vertex::y, &Vertex::x, box.ymin, true});
  if (extent.ymax > box.ymax) inner = cut(inner, {&Vertex::y, &Vertex::x, box.ymax, false});
  return inner;
}

}  // namespace sorrel
