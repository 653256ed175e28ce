#pragma once
/// @file  The vertices of a polygon as plain pairs, without repetitions. Library: sorrel
// SPDX-License-Identifier: Apache-2.0

#include "sorrel/polygon.h"

#include <optional>
#include <vector>

namespace sorrel {

struct Vertex {
  double x = 0.0;  ///< [mm]
  double y = 0.0;  ///< [mm]
};

/// The vertices of a closed outline: no two neighbours at one place, the first not repeated at the
/// end, so that the last is a neighbour of the first.
using Outline = std::vector<Vertex>;

/// A level and plumb rectangle [mm].
struct Box {
  double xmin = 0.0;
  double ymin = 0.0;
  double xmax = 0.0;
  double ymax = 0.0;
};

/// True for a number of a size that the ground can have, up to 1e15 mm. What is reckoned from such
/// numbers stays far from the ends of the doubles.
bool is_place(double coordinate);

/// True when both coordinates are the same doubles; 0.0 and -0.0 are.
bool same_place(Vertex a, Vertex b);

/// Appends a vertex unless the last one lies there.
void append_distinct(Outline& outline, Vertex vertex);

/// Drops the vertices at the end that repeat the first one.
void drop_closing(Outline& outline);

/// The outline of a polygon stored closed or not; nothing if a coordinate is no place.
std::optional<Outline> outline_of(const Polygon& polygon);

/// The box around an outline of at least one vertex.
Box bounding_box(const Outline& outline);

/// Whether a box has a width and a height.
bool has_extent(const Box& box);

/// The box that an outline of four level and plumb sides is; nothing for any other outline.
std::optional<Box> as_box(const Outline& outline);

/// The corners of a box, counter-clockwise.
Outline box_outline(const Box& box);

/// The outline as a polygon that begins at its highest vertex, the leftmost of several, and is
/// closed. It runs as the outline does.
Polygon polygon_from_top(const Outline& outline);

}  // namespace sorrel
