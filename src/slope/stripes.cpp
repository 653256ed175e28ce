// SPDX-License-Identifier: Apache-2.0
#include "slope/stripes.h"

#include "slope/water_split.h"

#include <sorrel/polygon.h>
#include <sorrel/polygon_boolean.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <tuple>

namespace ostrel::slope {

namespace {

constexpr double smallest_area = 0.01;                          // [mm²]
constexpr std::uint64_t stripe_clip_scale = 5'000'000'000'000;  // the interface's grid

bool push_ground(const std::vector<xBoundSoilLayer>& layers, const xBoundSoilLayer& boundary,
                 xPolyClipHelper& polygons) {
  for (const Polygon& each : boundary.polygons) {
    polygons.pushPolygon(each, &boundary, false);
  }
  for (const xBoundSoilLayer& layer : layers) {
    for (const Polygon& each : layer.polygons) {
      if (!polygons.pushPolygon(each, &layer, false)) return false;
    }
  }
  return true;
}

/// Centroids that are no numbers stand last.
bool lower(const osg::ref_ptr<sliceSeg>& a, const osg::ref_ptr<sliceSeg>& b) {
  const double level_a = a->clip.baricenter[1];
  const double level_b = b->clip.baricenter[1];
  return level_a < level_b || (!std::isnan(level_a) && std::isnan(level_b));
}

}  // namespace

OstrelErrorType buildStripes(const xWaterTable& water, const xSlopeStabilitySettings& settings,
                             const std::vector<xBoundSoilLayer>& layers,
                             const xBoundSoilLayer& boundary, Stripes& stripes) {
  xPolyClipHelper polygons;
  if (!push_ground(layers, boundary, polygons)) return errEmptyPolygons;
  Vector2 min(arma::fill::zeros);
  Vector2 max(arma::fill::zeros);
  polygons.getBBox(min, max);
  stripes.clear();

  if (!(settings.getWidthstripe() > 0.0)) return errEmptyPolygons;
  const double width = max[0] - min[0];
  const double count = std::trunc(width / settings.getWidthstripe() + 1.0);
  if (!(count >= 1.0 && count <= most_steps)) return errEmptyPolygons;
  const double step = width / count;
  stripes.resize(static_cast<std::size_t>(count));
  for (std::size_t k = 0; k < stripes.size(); ++k) {
    const double x0 = static_cast<double>(k) * step + min[0];
    clipStripe(polygons, x0, x0 + step, min[1], max[1], stripes[k]);
    splitAtWater(water, stripes[k]);
  }
  return ok;
}

void clipStripe(const xPolyClipHelper& polygons, double x0, double x1, double ymin, double ymax,
                Stripe& stripe) {
  const double top = 2.0 * (ymax + 1000.0);
  const double bottom = 2.0 * (ymin - 1000.0);
  const Polygon rectangle{{x0, top}, {x0, bottom}, {x1, bottom}, {x1, top}, {x0, top}};
  std::vector<Polygon> pieces;
  for (const Polygon& each : polygons.polygons) {
    std::ignore = PolyBoolean(rectangle, each, pieces, stripe_clip_scale, iPolyOp::Intersection);
  }
  for (Polygon& piece : pieces) {
    mergeCoincidentVertices(piece, coincidence);
    const osg::ref_ptr<sliceSeg> slice = new sliceSeg;
    if (initSlice(&polygons, piece, x1 - x0, 0.0, Vector2{0.0, 0.0}, *slice)) {
      stripe.push_back(slice);
    }
  }
  sort_by_level(stripe);
}

bool initSlice(const xPolyClipHelper* polygons, const Polygon& polygon, double width,
               double base_length, const Vector2& base_mid, sliceSeg& slice) {
  xClipData& clip = slice.clip;
  clip.reset();
  clip.polygon = polygon;
  clip.width = width;
  clip.baseLength = base_length;
  clip.baseMid = base_mid;
  clip.area = polyArea(polygon);
  if (!(clip.area >= smallest_area)) return false;
  polyBaricenter(polygon, clip.baricenter);
  if (polygons) {
    const xBoundSoilLayer* owner =
        polygons->findPolygonOwner_fromPolyPoint(clip.baricenter, &clip.ownerFlag);
    if (!owner) return false;
    clip.soil = *owner;
  }
  const auto [left, right] = std::minmax_element(
      polygon.begin(), polygon.end(), [](const auto& a, const auto& b) { return a[0] < b[0]; });
  const auto [low, high] = std::minmax_element(
      polygon.begin(), polygon.end(), [](const auto& a, const auto& b) { return a[1] < b[1]; });
  slice.xmin = (*left)[0];
  slice.ymin = (*low)[1];
  slice.xmax = (*right)[0];
  slice.ymax = (*high)[1];
  return true;
}

void sort_by_level(Stripe& stripe) {
  std::stable_sort(stripe.begin(), stripe.end(), lower);
}

}  // namespace ostrel::slope
