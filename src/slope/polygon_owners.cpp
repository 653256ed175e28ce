// SPDX-License-Identifier: Apache-2.0
#include "ostrel/slip_circle.h"

#include <sorrel/polygon.h>

#include <algorithm>
#include <cstddef>

bool xPolyClipHelper::pushPolygon(const polygon& outline, const xBoundSoilLayer* owner, bool flag) {
  if (outline.empty()) return false;
  polygons.push_back(outline);
  owners.emplace_back(owner, flag);
  return true;
}

const xBoundSoilLayer* xPolyClipHelper::findPolygonOwner(const polygon& outline, bool* flag) const {
  arma::Col<double>::fixed<2> point(arma::fill::zeros);
  if (!randomPointInsidepoly(outline, point)) return nullptr;
  return findPolygonOwner_fromPolyPoint(point, flag);
}

const xBoundSoilLayer* xPolyClipHelper::findPolygonOwner_fromPolyPoint(
    const arma::Col<double>::fixed<2>& point, bool* flag) const {
  for (std::size_t i = 0; i < polygons.size(); ++i) {
    if (!pointInPolygon(point, polygons[i])) continue;
    if (flag) *flag = owners.at(i).second;
    return owners.at(i).first;
  }
  return nullptr;
}

void xPolyClipHelper::getBBox(arma::Col<double>::fixed<2>& min,
                              arma::Col<double>::fixed<2>& max) const {
  min.zeros();
  max.zeros();
  bool first = true;
  for (const polygon& each : polygons) {
    if (each.empty()) continue;
    if (first) {
      min = each.front();
      max = each.front();
      first = false;
    }
    arma::Col<double>::fixed<2> low(arma::fill::zeros);
    arma::Col<double>::fixed<2> high(arma::fill::zeros);
    polyBBox(each, low, high);
    for (const unsigned axis : {0U, 1U}) {
      min[axis] = std::min(min[axis], low[axis]);
      max[axis] = std::max(max[axis], high[axis]);
    }
  }
}

void xPolyClipHelper::clear() {
  polygons.clear();
  owners.clear();
}
