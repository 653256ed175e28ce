// SPDX-License-Identifier: Apache-2.0
#include "slope/circle_cut.h"

#include "ostrel/tolerances.h"
#include "services/exact.h"

#include <sorrel/polygon.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace ostrel::slope {

namespace {

constexpr double on_side = 1e-8;    // how near to a side is on it, in parts of its length
constexpr double on_circle = 1e-8;  // how far outside a vertex still belongs to the circle [mm]
constexpr double plumb = 1e-10;     // a direction with less of x than this is plumb

bool within(double position) {
  return position >= 0.0 && position <= 1.0;
}

/// Sorts the few points of one cut; points of equal x keep their order.
void sort_by_x(std::vector<Place>& points) {
  constexpr std::size_t few = 32;
  if (points.size() > few) {
    std::stable_sort(points.begin(), points.end(), left_of);
    return;
  }
  for (std::size_t i = 1; i < points.size(); ++i) {
    const Place moved = points[i];
    std::size_t k = i;
    for (; k > 0 && left_of(moved, points[k - 1]); --k) {
      points[k] = points[k - 1];
    }
    points[k] = moved;
  }
}

/// Whether the side between two vertices surely meets the circle nowhere, not even within the
/// tolerance at its ends.
/// @param from_excess, to_excess  squares of the vertices' distances less that of the radius [mm²]
bool surely_misses(Place from, Place to, double from_excess, double to_excess, double clear) {
  if (from_excess < -clear && to_excess < -clear) return true;  // inside from end to end
  if (!(from_excess > clear && to_excess > clear)) return false;
  // Outside at both ends: it leads away from the circle, or ends before it comes near.
  const double length2 = (to.x - from.x) * (to.x - from.x) + (to.y - from.y) * (to.y - from.y);
  const double twice_slope = to_excess - from_excess - length2;
  return twice_slope > 0.5 * length2 || twice_slope < -2.5 * length2;
}

/// Whether a point is surely far from a side of more than 1e-4 mm.
bool surely_off(Place point, Place a, Place b) {
  constexpr double clear = 1e-2;
  return point.x < std::min(a.x, b.x) - clear || point.x > std::max(a.x, b.x) + clear
      || point.y < std::min(a.y, b.y) - clear || point.y > std::max(a.y, b.y) + clear;
}

/// The first side that holds a point, -1 for none.
std::ptrdiff_t first_side_with(Place point, OutlineView outline) {
  for (std::size_t k = 0; k + 1 < outline.size(); ++k) {
    if (pointOnSegment(point, outline[k], outline[k + 1], on_side, true, nullptr)) {
      return static_cast<std::ptrdiff_t>(k);
    }
  }
  return -1;
}

/// The same for a crossing whose side is known: only the sides before it are asked.
std::ptrdiff_t first_side_with_crossing(Place point, OutlineView outline,
                                        const CutBuffers& buffers) {
  std::size_t i = 0;
  while (i + 1 < buffers.crossings.size()
         && !(exactly_equal(buffers.crossings[i].x, point.x)
              && exactly_equal(buffers.crossings[i].y, point.y))) {
    ++i;
  }
  const std::size_t own_side = buffers.sides[i];
  for (std::size_t k = 0; k < own_side; ++k) {
    if (surely_off(point, outline[k], outline[k + 1])) continue;
    if (pointOnSegment(point, outline[k], outline[k + 1], on_side, true, nullptr)) {
      return static_cast<std::ptrdiff_t>(k);
    }
  }
  return static_cast<std::ptrdiff_t>(own_side);
}

/// Walks the outline: down its left side to the first crossing, from left to right along the border,
/// and up the right side.
void walk_inside(OutlineView outline, Place center, double radius, bool hurry,
                 CutBuffers& buffers) {
  std::vector<Place>& border = buffers.border;
  Outline& part = buffers.part;
  part.clear();
  const auto side_of = [&](Place point) {
    return hurry ? first_side_with_crossing(point, outline, buffers)
                 : first_side_with(point, outline);
  };
  const std::ptrdiff_t first = side_of(border.front());
  const std::ptrdiff_t last = side_of(border.back());
  const double reach = radius + on_circle;
  const double clear = clear_of_circle(radius, 0.0);
  const auto inside = [&](std::size_t k) {
    if (hurry && std::abs(buffers.excess[k]) > clear) return buffers.excess[k] < 0.0;
    return distance(outline[k], center) <= reach;
  };
  const auto append_inside = [&](std::ptrdiff_t from, std::ptrdiff_t to, std::vector<Place>& list) {
    for (std::ptrdiff_t k = from; k <= to; ++k) {
      const auto vertex = static_cast<std::size_t>(k);
      if (inside(vertex)) list.push_back(outline[vertex]);
    }
  };
  append_inside(0, first, part);
  append_inside(first + 1, last, border);
  sort_by_x(border);
  part.insert(part.end(), border.begin(), border.end());
  if (last > first) append_inside(last + 1, std::ssize(outline) - 1, part);
  if (distance(part.back(), part.front()) > on_circle) part.push_back(part.front());
}

/// `circlePolyIntersections` past the sides that surely have none.
void find_crossings_in_hurry(OutlineView outline, Place center, double radius, double tol,
                             CutBuffers& buffers) {
  buffers.sides.clear();
  buffers.excess.clear();
  for (const Place& vertex : outline) {
    const double dx = vertex.x - center.x;
    const double dy = vertex.y - center.y;
    buffers.excess.push_back(dx * dx + dy * dy - radius * radius);
  }
  const double clear = clear_of_circle(radius, tol);
  for (std::size_t k = 0; k + 1 < outline.size(); ++k) {
    if (surely_misses(outline[k], outline[k + 1], buffers.excess[k], buffers.excess[k + 1],
                      clear)) {
      continue;
    }
    segCircleIntersect(outline[k], outline[k + 1], center, radius, tol, buffers.crossings);
    buffers.sides.resize(buffers.crossings.size(), k);
  }
}

}  // namespace

double clear_of_circle(double radius, double tol) {
  constexpr double longest_side = 1e5;
  const double past = 4.0 * std::max(tol, 0.0) * longest_side;
  return 1e-9 * radius * radius + 1e-7 * radius + past * (radius + longest_side);
}

bool pointOnSegment(Place point, Place a, Place b, double eps, bool at_ends, double* position) {
  const double length = distance(a, b);
  if (eps > length) return at_ends && eps > std::abs(point.x - a.x);
  const Place u{.x = (b.x - a.x) / length, .y = (b.y - a.y) / length};
  double t = (u.x * (point.x - a.x) + u.y * (point.y - a.y)) / length;
  if (position) *position = t;
  if (!(t >= -eps && t <= 1.0 + eps)) return false;
  const double along = t * length;
  if (!(std::abs((point.x - a.x - along * u.x) / length) < eps)) return false;
  if (!(std::abs((point.y - a.y - along * u.y) / length) < eps)) return false;
  if (std::abs(t) < eps) t = 0.0;
  if (std::abs(t - 1.0) < eps) t = 1.0;
  if (position) *position = t;
  return exactly_equal(t, 0.0) || exactly_equal(t, 1.0) ? at_ends : true;
}

bool pointOnSegmentNoVertical(Place point, Place a, Place b, double eps, bool at_ends,
                              double* position) {
  const double length = distance(a, b);
  if (!(eps > length) && plumb > std::abs((b.x - a.x) / length)) return false;
  return pointOnSegment(point, a, b, eps, at_ends, position);
}

void segCircleIntersect(Place p1, Place p2, Place center, double radius, double tol,
                        std::vector<Place>& points) {
  const Place d{.x = p2.x - p1.x, .y = p2.y - p1.y};
  const Place f{.x = p1.x - center.x, .y = p1.y - center.y};
  const double a = d.x * d.x + d.y * d.y;
  const double b = f.x * d.x + f.y * d.y;
  const double excess = f.x * f.x + f.y * f.y - radius * radius;
  const double discriminant = b * b - excess * a;
  if (!(discriminant >= 0.0)) return;
  const double s = std::sqrt(discriminant);
  const double per_a = 1.0 / a;
  double t1 = (-b - s) * per_a;
  if (-tol < t1 && t1 <= 0.0) t1 = 0.0;
  if (within(t1)) points.push_back({.x = p1.x + t1 * d.x, .y = p1.y + t1 * d.y});
  double t2 = (s - b) * per_a;
  if (1.0 <= t2 && t2 < 1.0 + tol) t2 = 1.0;
  if (within(t2)) points.push_back({.x = p1.x + t2 * d.x, .y = p1.y + t2 * d.y});
}

bool circlePolyIntersections(OutlineView outline, Place center, double radius,
                             std::vector<Place>& points, double tol) {
  for (std::size_t k = 0; k + 1 < outline.size(); ++k) {
    segCircleIntersect(outline[k], outline[k + 1], center, radius, tol, points);
  }
  return !points.empty();
}

bool filterIntersections(double tol, Place center, const std::vector<Place>& crossings,
                         std::vector<Place>& filtered) {
  filtered.assign(crossings.begin(), crossings.end());
  if (filtered.empty()) return false;
  sort_by_x(filtered);
  for (const Place& each : filtered) {
    if (each.y > center.y) return false;
  }
  std::size_t kept = 1;
  for (std::size_t i = 1; i < filtered.size(); ++i) {
    if (!(std::abs(filtered[i].x - filtered[kept - 1].x) < tol)) filtered[kept++] = filtered[i];
  }
  filtered.resize(kept);
  return true;
}

CutKind cut_by_circle(OutlineView outline, Place centroid, Place center, double radius, double tol,
                      bool hurry, CutBuffers& buffers) {
  std::vector<Place>& border = buffers.border;
  buffers.crossings.clear();
  if (hurry) {
    find_crossings_in_hurry(outline, center, radius, tol, buffers);
  } else {
    circlePolyIntersections(outline, center, radius, buffers.crossings, tol);
  }
  const bool below_centre =
      filterIntersections(crossing_tolerance, center, buffers.crossings, border);
  if (!below_centre && !border.empty()) return CutKind::above_centre;
  if (border.size() < 2) {
    return radius >= distance(center, centroid) ? CutKind::whole : CutKind::none;
  }
  buffers.chord_length = distance(border[0], border[1]);
  buffers.chord_mid = {.x = 0.5 * (border[0].x + border[1].x),
                       .y = 0.5 * (border[0].y + border[1].y)};
  walk_inside(outline, center, radius, hurry, buffers);
  return CutKind::part;
}

bool intersectStripes(const Vector2& center, double radius, const Stripes& stripes,
                      Stripes& result) {
  result.clear();
  for (const Stripe& stripe : stripes) {
    Stripe inside;
    for (const osg::ref_ptr<sliceSeg>& piece : stripe) {
      osg::ref_ptr<sliceSeg> part;
      if (!piece->iIntersect(center, radius, part)) return false;
      if (part) inside.push_back(part);
    }
    if (!inside.empty()) result.push_back(inside);
  }
  return true;
}

}  // namespace ostrel::slope

bool sliceSeg::iIntersect(const arma::Col<double>::fixed<2>& center, double R,
                          osg::ref_ptr<sliceSeg>& out) {
  namespace slope = ostrel::slope;
  out = nullptr;
  double nearest = 0.0;
  double farthest = 0.0;
  getPseudoMinDist(center, nearest, farthest);
  if (ostrel::exactly_equal(farthest, 0.0) || nearest >= R) return true;
  if (R >= farthest) {
    out = this;
    return true;
  }
  slope::CutBuffers buffers;
  const slope::Outline outline = slope::outline_of(clip.polygon);
  const auto tol = (*getTolerances())[xTolerances::partial_factor];
  const slope::CutKind kind = slope::cut_by_circle(outline, slope::place(clip.baricenter),
                                                   slope::place(center), R, tol, false, buffers);
  if (kind == slope::CutKind::above_centre) return false;
  if (kind == slope::CutKind::whole) out = this;
  if (kind != slope::CutKind::part) return true;

  slope::Polygon part = slope::polygon_of(buffers.part);
  mergeCoincidentVertices(part, slope::coincidence);
  const osg::ref_ptr<sliceSeg> cut = new sliceSeg;
  if (!slope::initSlice(nullptr, part, clip.width, buffers.chord_length,
                        slope::vector2(buffers.chord_mid), *cut)) {
    return true;
  }
  cut->clip.ownerFlag = clip.ownerFlag;
  cut->clip.hasLoad = clip.hasLoad;
  cut->clip.belowWater = clip.belowWater;
  cut->clip.soil = clip.soil;
  out = cut;
  return true;
}
