// SPDX-License-Identifier: Apache-2.0
#include "slope/piece_edge.h"

#include "ostrel/slip_circle.h"
#include "slope/circle_cut.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

namespace ostrel::slope {

namespace {

constexpr double on_side = 1e-8;  // how near to a side is on it, in parts of its length

std::optional<std::size_t> side_with(Place point, const Outline& outline) {
  for (std::size_t k = 0; k + 1 < outline.size(); ++k) {
    if (pointOnSegmentNoVertical(point, outline[k], outline[k + 1], on_side, true, nullptr)) {
      return k;
    }
  }
  return std::nullopt;
}

/// The vertices from `point` on in the direction in which side `k` gains x (`sign` 1) or loses it
/// (-1), up to the first that has reached `limit`; at most one round.
Outline walk(std::size_t k, const Outline& outline, double sign, double limit) {
  const std::size_t sides = outline.size() - 1;
  const bool forwards = sign * (outline[k + 1].x - outline[k].x) > 0.0;
  std::size_t vertex = forwards ? (k + 1) % sides : k;
  Outline passed;
  for (std::size_t i = 0; i < sides; ++i) {
    passed.push_back(outline[vertex]);
    if (sign * outline[vertex].x >= limit) break;
    vertex = (vertex + (forwards ? 1 : sides - 1)) % sides;
  }
  return passed;
}

}  // namespace

void extendRight(double xmax, Outline& line, const Outline& outline, double tol) {
  if (line.empty() || std::abs(line.back().x - xmax) < tol) return;
  const auto side = side_with(line.back(), outline);
  if (!side) return;
  const Outline passed = walk(*side, outline, 1.0, xmax - tol);
  line.insert(line.end(), passed.begin(), passed.end());
}

void extendLeft(double xmin, Outline& line, const Outline& outline, double tol) {
  if (line.empty() || std::abs(line.front().x - xmin) < tol) return;
  const auto side = side_with(line.front(), outline);
  if (!side) return;
  const Outline passed = walk(*side, outline, -1.0, -(xmin + tol));
  line.insert(line.begin(), passed.rbegin(), passed.rend());
}

}  // namespace ostrel::slope

void sliceSeg::make_poly_edge(std::vector<arma::Col<double>::fixed<2>>& polyline,
                              double tol) const {
  namespace slope = ostrel::slope;
  slope::Outline line = slope::outline_of(polyline);
  const slope::Outline outline = slope::outline_of(clip.polygon);
  std::stable_sort(line.begin(), line.end(), slope::left_of);
  slope::extendRight(xmax, line, outline, tol);
  slope::extendLeft(xmin, line, outline, tol);
  polyline = slope::polygon_of(line);
}
