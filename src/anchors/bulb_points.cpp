// SPDX-License-Identifier: Apache-2.0
#include "anchors/bulb_points.h"

#include "ostrel/tolerances.h"

#include <sorrel/line_polygon.h>

#include <cmath>
#include <cstddef>

namespace ostrel::anchors {

namespace {

double distance_from_origin(const sorrel::Point& point) {
  return std::hypot(point[0], point[1]);
}

}  // namespace

BondedLength bonded_length(const xAnchor& anchor) {
  const sorrel::Point head{0.0, -anchor.z};
  const sorrel::Point direction{std::cos(-anchor.getAngleRad()), std::sin(-anchor.getAngleRad())};
  const double free = anchor.getFreeLength();
  return {.start = head + free * direction,
          .end = head + (free + anchor.getBulbLength()) * direction};
}

std::vector<sorrel::Point> bulb_points(const BondedLength& bonded,
                                       const std::vector<xBoundSoilLayer>& layers) {
  const xTolerances& tolerances = *getTolerances();
  std::vector<sorrel::Point> points{bonded.start};
  std::vector<sorrel::Point> crossings;
  for (const xBoundSoilLayer& layer : layers) {
    linepolyIntersectSorted(bonded.start, bonded.end, tolerances[xTolerances::line_ends],
                            tolerances[xTolerances::crossing_distance], layer.polygons, crossings);
    points.insert(points.end(), crossings.begin(), crossings.end());
  }
  points.push_back(bonded.end);
  delete_repetitions(points, tolerances[xTolerances::position_identity]);
  return points;
}

void delete_repetitions(std::vector<sorrel::Point>& points, double tol) {
  for (std::size_t i = 1; i < points.size(); ++i) {
    const double step = distance_from_origin(points[i]) - distance_from_origin(points[i - 1]);
    if (std::abs(step) <= tol) points.erase(points.begin() + static_cast<std::ptrdiff_t>(i));
  }
}

}  // namespace ostrel::anchors
